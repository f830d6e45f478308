#include "kavoTableFixture.h"
#include "kavoTestLoad.h"

#include "Tables/kavoPathWalk.h"
#include <kavoTestHost.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>
#include <QTest>

using kavoTestPairs::addNode;

// Runs the line of Python from the documentation.
class tst_TablePython : public QObject
{
    Q_OBJECT

private slots:
    void oneLineOfPythonReadsTheTableBack();
    void oneLineOfPythonReadsRealScenesBack_data();
    void oneLineOfPythonReadsRealScenesBack();

private:
    static QJsonArray expectedRows(const osg::NodePtr &root);
    QJsonArray rowsReadByPython(const osg::NodePtr &root) const;

    kavoTableFixture m_table;
};

// Returns a row for each node with pairs: its name, then the key and the value of each pair.
QJsonArray tst_TablePython::expectedRows(const osg::NodePtr &root)
{
    QJsonArray rows;
    kavoPathWalk walk(root);
    while (walk.next()) {
        QJsonArray row { QString::fromUtf8(walk.name()) };
        for (const kavoTestPairs::Pair &pair : kavoTestPairs::of(walk.node())) {
            row.append(QString::fromStdString(pair.key));
            row.append(QString::fromStdString(pair.value));
        }
        if (row.size() > 1)
            rows.append(row);
    }
    return rows;
}

QJsonArray tst_TablePython::rowsReadByPython(const osg::NodePtr &root) const
{
    kavoTableExport::run(root, m_table.path(), m_table.options);
    QFile documentation(KAVO_VALUE_PAIR_DOCUMENTATION);
    if (!documentation.open(QIODevice::ReadOnly))
        return {};
    const QString text = QString::fromUtf8(documentation.readAll());
    const QString line = text.mid(text.indexOf("csv.field_size_limit(")).section('\n', 0, 0);
    const QString program = "import csv, json, sys\n" + line + "\nprint(json.dumps(rows))\n";
    QProcess python;
    python.setWorkingDirectory(m_table.folder.path());
    python.start("python3", { "-c", program });
    python.waitForFinished();
    return QJsonDocument::fromJson(python.readAllStandardOutput()).array();
}

void tst_TablePython::oneLineOfPythonReadsTheTableBack()
{
    const std::string values[] = { "=1+1", "'quoted'", "a,b", "a\"b", "a\nb\r\nc\rd", "", " x ",
        "\xC3\xA4", "1.50", "-7", "007", std::string(200000, 'x') };
    for (const std::string &value : values)
        addNode(m_table.root, value.c_str(), { { "k", value } });
    m_table.options.startsWithByteOrderMark = true;
    const QJsonArray rows = rowsReadByPython(m_table.root);
    QCOMPARE(rows.size(), int(std::size(values)) + 1);
    for (int i = 1; i < rows.size(); ++i) {
        QCOMPARE(rows[i].toArray()[4].toString(), QString::fromStdString(values[i - 1]));
        if (!values[i - 1].empty())
            QCOMPARE(rows[i].toArray()[2].toString(), QString::fromStdString(values[i - 1]));
    }
}

void tst_TablePython::oneLineOfPythonReadsRealScenesBack_data()
{
    QTest::addColumn<int>("nodes");
    QTest::addColumn<int>("pairs");
    QTest::newRow("FBX/spider.fbx") << 21 << 90;
    QTest::newRow("FBX/huesitos.fbx") << 15 << 66;
    QTest::newRow("FBX/animation_with_skeleton.fbx") << 20 << 86;
    QTest::newRow("FBX/global_settings.fbx") << 6 << 36;
    QTest::newRow("FBX/cubes_with_names.fbx") << 4 << 28;
    QTest::newRow("FBX/cubes_with_outofrange_float.fbx") << 4 << 28;
    QTest::newRow("FBX/box_orphant_embedded_texture.fbx") << 1 << 15;
    QTest::newRow("FBX/maxPbrMaterial_metalRough.fbx") << 1 << 7;
}

void tst_TablePython::oneLineOfPythonReadsRealScenesBack()
{
    const osg::NodePtr root = kavoTestLoad::open(QTest::currentDataTag());
    QVERIFY(root != osg::NullFC);
    const QJsonArray read = rowsReadByPython(root);
    const QJsonArray expected = expectedRows(root);
    QFETCH(int, nodes);
    QCOMPARE(expected.size(), nodes);
    QCOMPARE(read.size(), nodes + 1);
    int pairs = 0;
    for (int row = 0; row < nodes; ++row) {
        const QJsonArray header = read[0].toArray(), cells = read[row + 1].toArray();
        const QJsonArray node = expected[row].toArray();
        QCOMPARE(cells[2], node[0]);
        for (int i = 1; i < node.size(); i += 2, ++pairs) {
            const int column = header.toVariantList().indexOf(node[i].toVariant());
            QCOMPARE(cells[column], node[i + 1]);
        }
    }
    QTEST(pairs, "pairs");
}

KAVO_TEST_MAIN(tst_TablePython)
#include "tst_tablepython.moc"
