#include "Tables/kavoCsvCreatorExport.h"

#include "Basics/kavoOutputFile.h"
#include "Basics/kavoTaskError.h"

#include <OSGValuePairCSVCreator.h>
#include <kavoNodePtr.h>

#include <OpenSG/OSGGraphOpFactory.h>

#include <QCoreApplication>
#include <QFile>

#include <memory>

using osg::ValuePairCSVCreator;

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(kavoCsvCreatorExport)
};

const char *const operationName = "ValuePairCSVCreator";

// Static, because the factory keeps the pointer and never deletes it.
void registerPrototype()
{
    static ValuePairCSVCreator prototype(operationName);
    osg::GraphOpFactory::the().registerOp(&prototype);
}

bool isRegistered()
{
    osg::GraphOpFactory &factory = osg::GraphOpFactory::the();
    for (auto op = factory.begin(); op != factory.end(); ++op) {
        if (op->first == operationName && op->second)
            return true;
    }
    return false;
}

std::unique_ptr<osg::GraphOp> createOperation()
{
    if (!isRegistered())
        registerPrototype();
    return std::unique_ptr<osg::GraphOp>(osg::GraphOpFactory::the().create(operationName));
}

bool gather(ValuePairCSVCreator &creator, const osg::NodePtr &root, const kavoMonitor &monitor)
{
    kavoTaskProgress progress(root, 1, monitor);
    creator.setMonitor([&] { return progress.advance(ValuePairCSVCreator::monitorInterval); });
    osg::NodePtr start = root;
    const bool isComplete = root == osg::NullFC || creator.traverse(start);
    creator.setMonitor({});
    return isComplete;
}

} // namespace

bool kavoCsvCreatorExport::run(const osg::NodePtr &root, const QString &fileName,
    bool takesAllNodes, const kavoMonitor &monitor)
{
    const kavoNodePtr kept(root); // the monitor may close the scene
    kavoOutputFile file(fileName);
    const std::unique_ptr<osg::GraphOp> operation = createOperation();
    auto *creator = dynamic_cast<ValuePairCSVCreator *>(operation.get());
    if (!creator) {
        throw kavoTaskError(Text::tr("The operation '%1' is not the one that writes value pairs")
                                .arg(QString::fromLatin1(operationName)));
    }
    creator->setCsvType(takesAllNodes);
    if (!gather(*creator, root, monitor))
        return false;
    creator->save(QFile::encodeName(file.path()).toStdString());
    if (creator->saveError() != 0)
        file.fail(creator->saveError());
    file.commit();
    return true;
}
