#include "kavoTableFixture.h"

#include <kavoTestHost.h>

#include <QTest>

#include <memory>

using kavoTestPairs::addNode;
using Pairs = std::vector<kavoTestPairs::Pair>;

// Exports and imports texts that are not UTF-8, and texts that are easily confused.
class tst_TableEncoding : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_table = std::make_unique<kavoTableFixture>(); }
    void cleanup() { m_table.reset(); }

    void textsThatLookAlikeAreNotMixedUp_data() { formats(); }
    void textsThatLookAlikeAreNotMixedUp();
    void aByteOrderMarkInATextIsKept_data() { formats(); }
    void aByteOrderMarkInATextIsKept();
    void invalidUtf8IsReplaced_data();
    void invalidUtf8IsReplaced();
    void keysAndPathsEscapeInvalidUtf8_data();
    void keysAndPathsEscapeInvalidUtf8();
    void specialCharactersInPathsAreEscaped();

private:
    static void formats();

    std::unique_ptr<kavoTableFixture> m_table;
};

void tst_TableEncoding::formats()
{
    QTest::addColumn<int>("format");
    QTest::newRow("CSV") << int(kavoTableOptions::Csv);
    QTest::newRow("JSON Lines") << int(kavoTableOptions::JsonLines);
}

void tst_TableEncoding::invalidUtf8IsReplaced_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QByteArray>("cell");
    const QByteArray mark("\xEF\xBF\xBD");
    QTest::newRow("Latin-1") << QByteArray("a\xE4z") << "a" + mark + "z";
    QTest::newRow("cut off") << QByteArray("a\xE2\x82") << "a" + mark + mark;
    QTest::newRow("overlong") << QByteArray("\xC0\xAF") << mark + mark;
    QTest::newRow("surrogate") << QByteArray("\xED\xA0\x80") << mark + mark + mark;
    QTest::newRow("beyond") << QByteArray("\xF4\x90\x80\x80") << mark + mark + mark + mark;
    QTest::newRow("4 bytes") << QByteArray("\xF0\x9F\x9A\xA2") << QByteArray("\xF0\x9F\x9A\xA2");
}

void tst_TableEncoding::invalidUtf8IsReplaced()
{
    QFETCH(QByteArray, value);
    addNode(m_table->root, "Mast", { { "k", value.toStdString() } });
    QTEST(m_table->cells(1), "cell");
}

void tst_TableEncoding::keysAndPathsEscapeInvalidUtf8_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("key");
    QTest::addColumn<QByteArray>("path");
    QTest::newRow("UTF-8") << QByteArray("\xC3\xA4") << QByteArray("\xC3\xA4")
                           << QByteArray("/Hull/\xC3\xA4");
    QTest::newRow("Latin-1") << QByteArray("\xE4z") << QByteArray("%E4z")
                             << QByteArray("/Hull/%E4z");
    QTest::newRow("the same spelt out")
        << QByteArray("%E4z") << QByteArray("%25E4z") << QByteArray("/Hull/%25E4z");
    QTest::newRow("percent") << QByteArray("5%") << QByteArray("5%") << QByteArray("/Hull/5%25");
}

void tst_TableEncoding::keysAndPathsEscapeInvalidUtf8()
{
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, path);
    addNode(m_table->root, text, { { text.toStdString(), "1" } });
    QTEST(m_table->cells(0), "key");
    QVERIFY(m_table->exported().contains(',' + path + ','));
}

void tst_TableEncoding::specialCharactersInPathsAreEscaped()
{
    addNode(m_table->root, "a/b[2]%", { { "k", "1" } });
    QVERIFY(m_table->exported().contains(",/Hull/a%2Fb%5B2%5D%25,a/b[2]%,"));
}

// Uses keys and names that are not UTF-8, and keys that are numbers with either separator.
void tst_TableEncoding::textsThatLookAlikeAreNotMixedUp()
{
    QFETCH(int, format);
    m_table->options.format = kavoTableOptions::Format(format);
    m_table->options.guardsFormulas = false;
    m_table->options.decimalSeparator = ',';
    const Pairs all { { "\xF6", "1" }, { "\xE4", "2" }, { "%E4", "3" }, { "%25", "4" },
        { "1.5", "5" }, { "1,5", "6" } };
    addNode(m_table->root, "Both", all);
    const osg::NodePtr first = addNode(m_table->root, "\xF6", { { "\xE4", "7" } });
    const osg::NodePtr second = addNode(m_table->root, "\xE4", { { "\xF6", "8" } });
    const QByteArray table = m_table->exported();
    QCOMPARE(m_table->import(table).unplacedRows, QStringList());
    QCOMPARE(m_table->import(table).changedValues, 0);
    const bool isJson = format == kavoTableOptions::JsonLines;
    const QByteArray seven = isJson ? "\"7\"" : ",7,", nine = isJson ? "\"9\"" : ",9,";
    QCOMPARE(m_table->import(QByteArray(table).replace(seven, nine)).changedValues, 1);
    QVERIFY(kavoTestPairs::of(first) == (Pairs { { "\xE4", "9" } }));
    QVERIFY(kavoTestPairs::of(second) == (Pairs { { "\xF6", "8" } }));
}

void tst_TableEncoding::aByteOrderMarkInATextIsKept()
{
    QFETCH(int, format);
    m_table->options.format = kavoTableOptions::Format(format);
    const Pairs marked { { "\xEF\xBB\xBFk", "\xEF\xBB\xBFv" }, { "k", "\xEF\xBB\xBF" } };
    const osg::NodePtr node = addNode(m_table->root, "\xEF\xBB\xBFn", marked);
    const QByteArray table = m_table->exported();
    QCOMPARE(table.count("\xEF\xBB\xBF"), 5); // in name and path, too
    QCOMPARE(m_table->import(table).changedValues, 0);
    m_table->import(QByteArray(table).replace("\xBFv", "\xBFvv"));
    QVERIFY(kavoTestPairs::of(node) == (Pairs { { marked[0].key, "\xEF\xBB\xBFvv" }, marked[1] }));
}

KAVO_TEST_MAIN(tst_TableEncoding)
#include "tst_tableencoding.moc"
