#include "NewContainers.h"
#include "SceneGrammar.h"
#include "SceneText.h"

#include <OpenSG/OSGAction.h>
#include <OpenSG/OSGBaseFunctions.h>

#include <QFile>
#include <QtTest>

#include <random>
#include <sstream>

using namespace osg;

/// Whatever is in a file: it is read to its end, what came of it can be walked, written without
/// mistakes and destroyed without a rest, and the next file is read as ever.
class tst_SceneFileFuzz : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();

    void mutatedSamples_data();
    void mutatedSamples();
    void truncatedSamples_data() { mutatedSamples_data(); }
    void truncatedSamples();
    void tokensInAnyOrder();
    void bytesInAnyOrder();
    void nestedBrackets();
    void containersUsedAnywhere_data();
    void containersUsedAnywhere();

private:
    typedef std::mt19937 Random;

    static std::string sample(const QString &name);
    static std::size_t below(Random &random, std::size_t limit) { return random() % limit; }
    static void mutate(std::string &text, Random &random);
    void survive(const std::string &text);

    SceneText m_text;
};

namespace {

const std::vector<std::string> words { "Node", "Group", "Name", "name", "children", "core",
    "attachments", "volume", "travMask", "MaterialGroup", "material", "SimpleMaterial",
    "ChunkMaterial", "chunks", "slots", "TextureChunk", "image", "Image", "PointLight", "beacon",
    "Geometry", "positions", "GeoPositions3f", "MultiPassMaterial", "materials", "DEF", "USE",
    "NULL", "A", "B", "C", "{", "}", "[", "]", "1", "-2.5e3", "0x1f", "TRUE", "\"text\"", "\"", "#",
    "\n", "'", "\xff" };

Action::ResultE findCore(NodePtr &node)
{
    return node->getCore() ? Action::Continue : Action::Quit;
}

} // namespace

void tst_SceneFileFuzz::initTestCase()
{
    QVERIFY(osgInit(0, nullptr));
}

void tst_SceneFileFuzz::cleanup()
{
    SceneFileHandler::the().setOptions("osg", "");
    m_text.takeLog();
    QVERIFY(m_text.read("Node { core Switch { choice 1 } }") != NullFC);
    QCOMPARE(m_text.takeLog(), std::string());
}

std::string tst_SceneFileFuzz::sample(const QString &name)
{
    QFile file(QFINDTESTDATA(QStringLiteral("data/samples/%1.osg").arg(name)));
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
}

void tst_SceneFileFuzz::survive(const std::string &text)
{
    const NewContainers made;
    const NodePtr root = m_text.read(text);
    const bool goTogether = made.goTogether();
    if (root) {
        const auto visit = osgTypedFunctionFunctor1CPtrRef<Action::ResultE, NodePtr>(findCore);
        QCOMPARE(traverse(root, visit), Action::Continue);
        root->updateVolume();
        const std::string written = m_text.write(root);
        m_text.takeLog();
        m_text.read(written);
        QVERIFY(m_text.takeLog().find("parse error") == std::string::npos);
    }
    m_text.read(std::string());
    m_text.takeLog();
    QVERIFY(made.count() == 0 || !goTogether);
}

void tst_SceneFileFuzz::mutatedSamples_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : { "basic", "chunks", "geometry", "lights", "shader" }) {
        QTest::newRow(name) << QString(name);
    }
}

void tst_SceneFileFuzz::mutatedSamples()
{
    QFETCH(QString, name);
    const std::string original = sample(name);
    QVERIFY(!original.empty());
    Random random(4711);
    for (int round = 0; round < 300; ++round) {
        std::string text = original;
        for (std::size_t count = 1 + below(random, 8); count > 0; --count) {
            mutate(text, random);
        }
        survive(text);
    }
}

// A byte changes, a stretch is cut, doubled or moved, a word comes in.
void tst_SceneFileFuzz::mutate(std::string &text, Random &random)
{
    const std::size_t at = below(random, text.size());
    const std::string stretch = text.substr(at, 1 + below(random, 60));
    const std::size_t target = below(random, text.size());
    switch (below(random, 5)) {
    case 0:
        text[at] = char(below(random, 256));
        break;
    case 1:
        text.erase(at, stretch.size());
        break;
    case 2:
        text.insert(target, stretch);
        break;
    case 3:
        text.erase(at, stretch.size()).insert(std::min(target, text.size()), stretch);
        break;
    default:
        text.insert(at, ' ' + words[below(random, words.size())] + ' ');
    }
}

void tst_SceneFileFuzz::truncatedSamples()
{
    QFETCH(QString, name);
    const std::string original = sample(name);
    const std::size_t step = original.size() < 2000 ? 1 : 37;
    for (std::size_t length = 0; length < original.size(); length += step) {
        survive(original.substr(0, length));
    }
}

void tst_SceneFileFuzz::tokensInAnyOrder()
{
    Random random(42);
    for (int round = 0; round < 3000; ++round) {
        std::string text = "Node { ";
        for (std::size_t count = below(random, 80); count > 0; --count) {
            text += words[below(random, words.size())] + ' ';
        }
        survive(text);
    }
}

void tst_SceneFileFuzz::bytesInAnyOrder()
{
    Random random(1);
    for (int round = 0; round < 1000; ++round) {
        std::string text(below(random, 200), '\0');
        for (char &byte : text) {
            byte = char(below(random, 256));
        }
        survive(text);
    }
}

void tst_SceneFileFuzz::nestedBrackets()
{
    for (const char *bracket : { "{", "[", "Node { children [ ", "Node { core Switch { ",
             "DEF A Node { attachments FCPtrAttributeMap { values " }) {
        std::string text;
        while (text.size() < 300000) {
            text += bracket;
        }
        m_text.read(text);
        QVERIFY(m_text.takeLog().find("parse error") != std::string::npos);
    }
}

void tst_SceneFileFuzz::containersUsedAnywhere_data()
{
    QTest::addColumn<bool>("areShared");
    QTest::addColumn<QByteArray>("options");

    QTest::newRow("as in the file") << false << QByteArray();
    QTest::newRow("with the default sequence") << true << QByteArray();
    QTest::newRow("with empty places in lists") << true << QByteArray("lists=replace");
}

void tst_SceneFileFuzz::containersUsedAnywhere()
{
    QFETCH(bool, areShared);
    QFETCH(QByteArray, options);
    SceneFileHandler::the().setOptions("osg", options);
    GraphOpSeq *operations = areShared ? SceneFileHandler::the().getDefaultGraphOp() : nullptr;
    for (unsigned seed = 0; seed < 1000; ++seed) {
        std::istringstream text(SceneGrammar(seed).scene());
        const NodeRefPtr root(SceneFileHandler::the().read(text, "osg", operations));
        survive(m_text.write(root.get()));
        const NodeRefPtr copy(cloneTree(root.get()));
    }
}

QTEST_APPLESS_MAIN(tst_SceneFileFuzz)
#include "tst_scenefilefuzz.moc"
