#include "kavoTestLoad.h"

#include "Files/kavoBackgroundLoader.h"
#include "Scene/kavoNodeFinder.h"
#include <kavoController.h>
#include <kavoMessage.h>
#include <kavoMessageIds.h>
#include <kavoScenegraph.h>

#include <QTest>

QString kavoTestLoad::model(const QString &relativePath)
{
    return QStringLiteral(KAVO_TEST_MODELS "/") + relativePath;
}

osg::NodePtr kavoTestLoad::open(const QString &relativePath)
{
    kavoBackgroundLoader loader;
    QObject::connect(&loader, &kavoBackgroundLoader::loaded, &loader, &kavoTestLoad::show);
    QObject::connect(&loader, &kavoBackgroundLoader::failed, &loader,
        [](const QString &file, const QString &reason) {
            show(osg::NullFC);
            QWARN(qPrintable(file + ": " + reason));
        });
    show(osg::NullFC);
    loader.load({ model(relativePath) });
    if (!QTest::qWaitFor([&] { return !loader.isLoading(); }, 20000))
        QWARN("Loading takes too long");
    return kavoScenegraph::getRoot();
}

osg::NodePtr kavoTestLoad::find(const QString &name)
{
    return kavoNodeFinder::find(kavoScenegraph::getRoot(), name);
}

std::vector<osg::NodePtr> kavoTestLoad::allNodes(const osg::NodePtr &root)
{
    std::vector<osg::NodePtr> nodes { root };
    for (std::size_t i = 0; i < nodes.size(); ++i) {
        const osg::NodePtr node = nodes[i];
        for (osg::UInt32 child = 0; child < node->getNChildren(); ++child)
            nodes.push_back(node->getChild(child));
    }
    return nodes;
}

void kavoTestLoad::show(const osg::NodePtr &root)
{
    kavoScenegraph::setRoot(root);
    kavoMessage loaded(kavoMessageIds::sceneLoaded);
    kavoController::sendMessage(loaded);
}
