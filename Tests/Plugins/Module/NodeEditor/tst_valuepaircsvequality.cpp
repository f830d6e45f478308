#include "LiteralValuePairCsv.h"
#include "RandomValuePairScene.h"

#include <OSGValuePairCSVCreator.h>
#include <kavoConsoleCapture.h>
#include <kavoTestHost.h>
#include <kavoTestPairs.h>

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <random>

using osg::ValuePairCSVCreator;

// The operation against the literal implementation: every byte must be the same.
class tst_ValuePairCsvEquality : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void randomScenes();
    void manyColumnsAndLongValues();

private:
    void start(bool takesAllNodes);
    void traverse(const kavoNodePtr &root);
    bool savesAreEqual();

    template <class Operation> QByteArray saved(Operation &operation)
    {
        const QString file = m_folder.filePath("pairs.csv");
        operation.save(file.toStdString());
        QFile written(file);
        return written.open(QIODevice::ReadOnly) ? written.readAll() : QByteArray();
    }

    QTemporaryDir m_folder;
    std::unique_ptr<ValuePairCSVCreator> m_creator;
    std::unique_ptr<LiteralValuePairCsv> m_literal;
};

void tst_ValuePairCsvEquality::init()
{
    QVERIFY(m_folder.isValid());
}

void tst_ValuePairCsvEquality::start(bool takesAllNodes)
{
    const kavoConsoleCapture output(kavoConsoleCapture::StandardOutput);
    m_creator = std::make_unique<ValuePairCSVCreator>("ValuePairCSVCreator");
    m_creator->setCsvType(takesAllNodes);
    m_literal = std::make_unique<LiteralValuePairCsv>(takesAllNodes);
}

void tst_ValuePairCsvEquality::traverse(const kavoNodePtr &root)
{
    for (osg::GraphOp *operation : { static_cast<osg::GraphOp *>(m_creator.get()),
             static_cast<osg::GraphOp *>(m_literal.get()) }) {
        osg::NodePtr start = root;
        operation->traverse(start);
    }
}

bool tst_ValuePairCsvEquality::savesAreEqual()
{
    const QByteArray ours = saved(*m_creator);
    return !ours.isEmpty() && ours == saved(*m_literal);
}

// Scenes of every odd kind, in one, two or more passes, with and without a save in between.
void tst_ValuePairCsvEquality::randomScenes()
{
    const kavoConsoleCapture output(kavoConsoleCapture::StandardOutput);
    for (unsigned seed = 0; seed < 2000; ++seed) {
        RandomValuePairScene random(seed);
        start(random.oneIn(2));
        for (bool again = true; again; again = random.oneIn(2)) {
            traverse(random.make());
            if (!random.oneIn(4))
                QVERIFY2(savesAreEqual(), qPrintable(QString::number(seed)));
        }
        QVERIFY2(savesAreEqual(), qPrintable(QString::number(seed)));
    }
}

// Tables that do not fit into one block of memory, nor rows into the buffer of the file.
void tst_ValuePairCsvEquality::manyColumnsAndLongValues()
{
    std::mt19937 random(1);
    const kavoNodePtr root(kavoTestPairs::addNode(osg::NullFC, "root"));
    for (int node = 0; node < 300; ++node) {
        std::vector<kavoTestPairs::Pair> pairs;
        for (unsigned i = random() % 40; i > 0; --i)
            pairs.push_back({ "key" + std::to_string(random() % 400),
                std::string(random() % (node % 50 == 0 ? 100000 : 200), 'x') });
        kavoTestPairs::addNode(root, "node", pairs);
    }
    start(false);
    traverse(root);
    QVERIFY(savesAreEqual());
}

KAVO_TEST_MAIN(tst_ValuePairCsvEquality)
#include "tst_valuepaircsvequality.moc"
