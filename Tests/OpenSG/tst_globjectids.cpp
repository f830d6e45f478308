#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGField.h>
#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGRefPtr.h>

#include <QtTest>

using namespace osg;

/// Chunks that stand for an object of OpenGL have a number for it.
class tst_GLObjectIds : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { osgInit(0, nullptr); }

    void anEditGivesANumberThatStays_data() { addRows(); }
    void anEditGivesANumberThatStays();
    void everyChunkHasItsOwnNumber_data() { addRows(); }
    void everyChunkHasItsOwnNumber();
    void aCopyGetsANumberOfItsOwn_data() { addRows(); }
    void aCopyGetsANumberOfItsOwn();

private:
    static void addRows();
    static RefPtr<FieldContainerPtr> create();
    static std::string idOf(const RefPtr<FieldContainerPtr> &container);
};

void tst_GLObjectIds::addRows()
{
    QTest::addColumn<QByteArray>("type");
    for (const char *type : { "TextureChunk", "CubeTextureChunk", "SHLChunk", "VertexProgramChunk",
             "FragmentProgramChunk" }) {
        QTest::newRow(type) << QByteArray(type);
    }
}

RefPtr<FieldContainerPtr> tst_GLObjectIds::create()
{
    QFETCH(QByteArray, type);
    return RefPtr<FieldContainerPtr>(
        FieldContainerFactory::the()->createFieldContainer(type.constData()));
}

std::string tst_GLObjectIds::idOf(const RefPtr<FieldContainerPtr> &container)
{
    std::string text;
    return container->getField("GLId")->getValueByStr(text);
}

void tst_GLObjectIds::anEditGivesANumberThatStays()
{
    const auto chunk = create();
    QCOMPARE(idOf(chunk), std::string("0"));
    endEditCP(chunk.get());
    const std::string id = idOf(chunk);
    QVERIFY(id != "0");
    endEditCP(chunk.get());
    QCOMPARE(idOf(chunk), id);
}

void tst_GLObjectIds::everyChunkHasItsOwnNumber()
{
    const auto first = create();
    const auto second = create();
    endEditCP(first.get());
    endEditCP(second.get());
    QVERIFY(idOf(first) != idOf(second));
}

void tst_GLObjectIds::aCopyGetsANumberOfItsOwn()
{
    const auto chunk = create();
    endEditCP(chunk.get());
    const RefPtr<FieldContainerPtr> copy(chunk->shallowCopy());
    QCOMPARE(idOf(copy), std::string("0"));
    endEditCP(copy.get());
    QVERIFY(idOf(copy) != idOf(chunk));
}

QTEST_APPLESS_MAIN(tst_GLObjectIds)
#include "tst_globjectids.moc"
