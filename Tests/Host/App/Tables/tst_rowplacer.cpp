#include "kavoShipFixture.h"

#include <kavoTestHost.h>

#include <QTest>

#include <memory>

using kavoTestPairs::addNode;
using Ship = kavoShipFixture;
using Pairs = std::vector<kavoTestPairs::Pair>;

// Checks to which node an import writes each row of an edited table.
class tst_RowPlacer : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_table = std::make_unique<kavoShipFixture>(); }
    void cleanup() { m_table.reset(); }

    void inAnotherSessionThePathFindsTheNode();
    void whenThePathIsGoneTheIdFindsTheSibling();
    void siblingsThatChangedPlacesAreReported();
    void shiftedIdsOfAnotherSessionChangeNothing_data();
    void shiftedIdsOfAnotherSessionChangeNothing();
    void afterASiblingWasDeletedNothingLandsOnItsSuccessor();
    void anIdOfANodeElsewhereDoesNotCount();
    void rowsWithoutANodeAreReported();
    void reportsShowThePathOfTheFile();
    void rowsOfTheSameNodeAreReported();
    void otherRowsAreStillWritten();

private:
    std::unique_ptr<kavoShipFixture> m_table;
};

void tst_RowPlacer::inAnotherSessionThePathFindsTheNode()
{
    const QByteArray wrongId = QByteArray::number(m_table->deck.getFieldContainerId());
    m_table->import(Ship::header + wrongId + ",/Hull/Mast,Mast,Group,green,2\n");
    QVERIFY(kavoTestPairs::of(m_table->mast) == (Pairs { { "size", "2" }, { "color", "green" } }));
    QVERIFY(kavoTestPairs::of(m_table->deck) == (Pairs { { "color", "blue" } }));
}

void tst_RowPlacer::whenThePathIsGoneTheIdFindsTheSibling()
{
    const QByteArray id = QByteArray::number(m_table->mast.getFieldContainerId());
    m_table->import("id,path,name,type,color\n" + id + ",/Hull/Mast[2],Mast,Group,black\n");
    QVERIFY(kavoTestPairs::of(m_table->mast) == (Pairs { { "size", "2" }, { "color", "black" } }));
}

void tst_RowPlacer::siblingsThatChangedPlacesAreReported()
{
    const osg::NodePtr second = addNode(m_table->root, "Mast", { { "color", "white" } });
    const auto report = m_table->import(Ship::header + Ship::row(second, "black,"));
    QCOMPARE(report.unplacedRows.size(), 1);
    QVERIFY(report.unplacedRows[0].endsWith("id and path name different nodes"));
    QVERIFY(kavoTestPairs::of(second) == (Pairs { { "color", "white" } }));
    QVERIFY(kavoTestPairs::of(m_table->mast) == (Pairs { { "size", "2" }, { "color", "red" } }));
}

void tst_RowPlacer::shiftedIdsOfAnotherSessionChangeNothing_data()
{
    QTest::addColumn<int>("shift");
    QTest::addColumn<int>("placed");
    QTest::newRow("not at all") << 0 << 4;
    QTest::newRow("up by one sibling") << 1 << 0;
    QTest::newRow("down by one sibling") << -1 << 0;
    QTest::newRow("away") << 1000 << 4;
}

void tst_RowPlacer::shiftedIdsOfAnotherSessionChangeNothing()
{
    std::vector<osg::NodePtr> oars;
    for (const char *color : { "red", "green", "white", "black" })
        oars.push_back(addNode(m_table->root, "Oar", { { "color", color } }));
    QFETCH(int, shift);
    const int step = int(oars[1].getFieldContainerId() - oars[0].getFieldContainerId());
    m_table->options.nodeNames = kavoPatterns("Oar");
    QByteArray table = "id,path,name,type,color\n";
    for (std::size_t i = 0; i < oars.size(); ++i) {
        const int id = int(oars[i].getFieldContainerId()) + shift * step;
        const QByteArray number = i == 0 ? "" : '[' + QByteArray::number(int(i) + 1) + ']';
        table += QByteArray::number(id) + ",/Hull/Oar" + number + ",Oar,Group,"
            + m_table->cells(int(i) + 1) + '\n';
    }
    const auto report = m_table->import(table);
    QTEST(4 - report.unplacedRows.size(), "placed");
    QCOMPARE(report.changedValues, 0);
}

void tst_RowPlacer::afterASiblingWasDeletedNothingLandsOnItsSuccessor()
{
    addNode(m_table->root, "Mast", { { "color", "white" } });
    const QByteArray table = m_table->exported();
    osg::NodePtr(m_table->root)->subChild(m_table->mast);
    const auto report = m_table->import(table);
    QCOMPARE(report.changedValues, 0);
    QCOMPARE(report.unplacedRows.size(), 2);
    QVERIFY(report.unplacedRows[0].endsWith("line 4 names the same node"));
    QVERIFY(report.unplacedRows[1].endsWith("line 2 names the same node"));
}

void tst_RowPlacer::anIdOfANodeElsewhereDoesNotCount()
{
    const QByteArray id = QByteArray::number(m_table->deck.getFieldContainerId());
    const auto report = m_table->import(Ship::header + id + ",/Hull/Sail,Sail,Group,green,\n");
    QCOMPARE(report.unplacedRows,
        QStringList { "line 2: '/Hull/Sail' (id " + id + "): the scene has no such node" });
    QVERIFY(kavoTestPairs::of(m_table->deck) == (Pairs { { "color", "blue" } }));
}

void tst_RowPlacer::rowsWithoutANodeAreReported()
{
    const auto report = m_table->import(Ship::header + "1,/Hull/A,,,,\n1,/Hull/B,,,,\n");
    QCOMPARE(report.unplacedRows,
        (QStringList { "line 2: '/Hull/A' (id 1): the scene has no such node",
            "line 3: '/Hull/B' (id 1): the scene has no such node" }));
    QCOMPARE(m_table->import(Ship::header).unplacedRows, QStringList());
}

void tst_RowPlacer::reportsShowThePathOfTheFile()
{
    const auto report = m_table->import(Ship::header + "17,/A%2FX,,,,\n");
    QCOMPARE(
        report.unplacedRows, QStringList("line 2: '/A%2FX' (id 17): the scene has no such node"));
}

void tst_RowPlacer::rowsOfTheSameNodeAreReported()
{
    const QByteArray again = Ship::row(m_table->mast, "black,2");
    const auto report = m_table->import(Ship::header + Ship::row(m_table->mast, "green,2") + again);
    QCOMPARE(report.unplacedRows.size(), 2);
    QVERIFY(report.unplacedRows[0].startsWith("line 2: '/Hull/Mast'"));
    QVERIFY(report.unplacedRows[0].endsWith("line 3 names the same node"));
    QVERIFY(report.unplacedRows[1].endsWith("line 2 names the same node"));
    QVERIFY(kavoTestPairs::of(m_table->mast) == (Pairs { { "size", "2" }, { "color", "red" } }));
}

void tst_RowPlacer::otherRowsAreStillWritten()
{
    const auto report
        = m_table->import(Ship::header + "1,/Hull/A,,,,\n" + Ship::row(m_table->mast, "green,2"));
    QCOMPARE(report.unplacedRows.size(), 1);
    QCOMPARE(report.changedValues, 1);
}

KAVO_TEST_MAIN(tst_RowPlacer)
#include "tst_rowplacer.moc"
