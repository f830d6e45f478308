#include <kavoCustomPropertyGLenum_enums.h>
#include <kavoCustomPropertyGLenum_p.h>
#include <kavoCustomPropertyGLenum_rows.h>

#include <QFile>
#include <QRegularExpression>
#include <QtTest>

#include <algorithm>

using EnumData = QtGLenumPropertyManagerPrivate::EnumData;
using kavoGLenumRows::Constant;
using kavoGLenumRows::Rows;

namespace {

const EnumData &data = QtGLenumPropertyManagerPrivate::enumData;

std::vector<Constant> allRows()
{
    std::vector<Constant> rows;
    for (const Rows<Constant> &group : kavoGLenumRows::groups)
        rows.insert(rows.end(), group.begin(), group.end());
    return rows;
}

std::set<QString> allNames()
{
    std::set<QString> names;
    for (const Constant &row : allRows())
        names.insert(row.name);
    return names;
}

// Returns the names that were dropped because an earlier name has the same value, and the names
// kept instead. Value 0 still has its first name here.
std::map<QString, QString> droppedNames()
{
    std::map<unsigned int, QString> kept;
    std::map<QString, QString> dropped;
    for (const Constant &row : allRows()) {
        const QString &first = kept.emplace(row.value, row.name).first->second;
        if (first != row.name)
            dropped[row.name] = first;
    }
    return dropped;
}

QStringList namesOf(const Rows<Constant> &group)
{
    QStringList names;
    for (const Constant &row : group)
        names << row.name;
    return names;
}

std::map<QString, unsigned int> headerConstants(const QString &path)
{
    QFile file(path);
    if (!file.open(QFile::ReadOnly))
        return {};
    static const QRegularExpression define(
        R"(^#define\s+(GL_\w+)\s+(0x[0-9A-Fa-f]+|\d+)\s)", QRegularExpression::MultilineOption);
    std::map<QString, unsigned int> constants;
    auto match = define.globalMatch(QString::fromLatin1(file.readAll()));
    while (match.hasNext()) {
        const QRegularExpressionMatch line = match.next();
        constants.emplace(line.captured(1), line.captured(2).toUInt(nullptr, 0));
    }
    return constants;
}

} // namespace

class tst_GLenumTables : public QObject
{
    Q_OBJECT
private slots:
    void theRowsHaveTheKnownCounts();
    void suffixesOfTheExtensionsAreCounted();
    void theValueTableHas514Values();
    void firstNamesOfAValueStay_data();
    void firstNamesOfAValueStay();
    void namesUnknownToTheSystemsHeadersHaveTheirValues_data();
    void namesUnknownToTheSystemsHeadersHaveTheirValues();
    void valueOneHasNoName();
    void allAttribBitsHidesZeroUntilItBecomesNone();
    void droppedNamesLoseToTheKeptOnes_data();
    void droppedNamesLoseToTheKeptOnes();
    void vertexArrayExtensionNamesLoseToTheCoreNames();
    void groupsHaveTheseMembers_data();
    void groupsHaveTheseMembers();
    void groupSetsAreTheRowsInAscendingOrder();
    void setupKeepsWhatTheTablesHold();
    void membersStandInOrder();
    void valuesAgreeWithTheSystemsHeaders();
};

void tst_GLenumTables::theRowsHaveTheKnownCounts()
{
    QCOMPARE(allRows().size(), std::size_t(693));
    QCOMPARE(allNames().size(), std::size_t(545));
    QCOMPARE(data.groups.size(), std::size_t(51));
    QCOMPARE(droppedNames().size(), std::size_t(31));
}

void tst_GLenumTables::suffixesOfTheExtensionsAreCounted()
{
    const std::set<QString> names = allNames();
    const auto endsIn = [](const char *suffix) {
        return [suffix](const QString &name) { return name.endsWith(suffix); };
    };
    QCOMPARE(std::count_if(names.begin(), names.end(), endsIn("_EXT")), 48);
    QCOMPARE(std::count_if(names.begin(), names.end(), endsIn("_WIN")), 5);
    QCOMPARE(std::count_if(data.enumToName.begin(), data.enumToName.end(),
                 [](const auto &entry) { return entry.second.endsWith("_EXT"); }),
        22);
}

void tst_GLenumTables::theValueTableHas514Values()
{
    QCOMPARE(data.enumToName.size(), std::size_t(514));
    QCOMPARE(data.enumToName.rbegin()->first, 0x80ECu);
}

void tst_GLenumTables::firstNamesOfAValueStay_data()
{
    QTest::addColumn<unsigned int>("value");
    QTest::addColumn<QString>("name");
    QTest::newRow("none") << 0x0000u << "GL_NONE";
    QTest::newRow("accumulation") << 0x0100u << "GL_ACCUM";
    QTest::newRow("comparison") << 0x0200u << "GL_NEVER";
    QTest::newRow("stencil bit") << 0x0400u << "GL_STENCIL_BUFFER_BIT";
    QTest::newRow("colour bit") << 0x4000u << "GL_COLOR_BUFFER_BIT";
    QTest::newRow("vertex array") << 0x8074u << "GL_VERTEX_ARRAY";
    QTest::newRow("largest") << 0x80ECu << "GL_FOG_SPECULAR_TEXTURE_WIN";
}

void tst_GLenumTables::firstNamesOfAValueStay()
{
    QFETCH(unsigned int, value);
    QTEST(data.enumToName.at(value), "name");
}

void tst_GLenumTables::namesUnknownToTheSystemsHeadersHaveTheirValues_data()
{
    QTest::addColumn<unsigned int>("value");
    QTest::newRow("GL_COLOR_TABLE_FORMAT_EXT") << 0x80D8u;
    QTest::newRow("GL_COLOR_TABLE_WIDTH_EXT") << 0x80D9u;
    QTest::newRow("GL_COLOR_TABLE_RED_SIZE_EXT") << 0x80DAu;
    QTest::newRow("GL_COLOR_TABLE_GREEN_SIZE_EXT") << 0x80DBu;
    QTest::newRow("GL_COLOR_TABLE_BLUE_SIZE_EXT") << 0x80DCu;
    QTest::newRow("GL_COLOR_TABLE_ALPHA_SIZE_EXT") << 0x80DDu;
    QTest::newRow("GL_COLOR_TABLE_LUMINANCE_SIZE_EXT") << 0x80DEu;
    QTest::newRow("GL_COLOR_TABLE_INTENSITY_SIZE_EXT") << 0x80DFu;
    QTest::newRow("GL_MAX_ELEMENTS_VERTICES_WIN") << 0x80E8u;
    QTest::newRow("GL_MAX_ELEMENTS_INDICES_WIN") << 0x80E9u;
    QTest::newRow("GL_PHONG_WIN") << 0x80EAu;
    QTest::newRow("GL_PHONG_HINT_WIN") << 0x80EBu;
    QTest::newRow("GL_FOG_SPECULAR_TEXTURE_WIN") << 0x80ECu;
}

void tst_GLenumTables::namesUnknownToTheSystemsHeadersHaveTheirValues()
{
    QFETCH(unsigned int, value);
    QCOMPARE(data.enumToName.at(value), QString(QTest::currentDataTag()));
}

void tst_GLenumTables::valueOneHasNoName()
{
    QCOMPARE(data.enumToName.count(1), std::size_t(0));
}

void tst_GLenumTables::allAttribBitsHidesZeroUntilItBecomesNone()
{
    std::map<unsigned int, QString> names;
    std::vector<std::set<unsigned int>> groups;
    setupGLenumMap(names, groups);
    QCOMPARE(names.at(0), QStringLiteral("GL_ALL_ATTRIB_BITS"));
    QCOMPARE(groups.at(2), std::set<unsigned int> { 0 });
}

void tst_GLenumTables::droppedNamesLoseToTheKeptOnes_data()
{
    QTest::addColumn<QString>("dropped");
    QTest::addColumn<QString>("kept");
    QTest::newRow("zero") << "GL_ZERO"
                          << "GL_ALL_ATTRIB_BITS";
    QTest::newRow("depth bit") << "GL_DEPTH_BUFFER_BIT"
                               << "GL_ACCUM";
    QTest::newRow("accumulation bit") << "GL_ACCUM_BUFFER_BIT"
                                      << "GL_NEVER";
    QTest::newRow("front left") << "GL_FRONT_LEFT"
                                << "GL_STENCIL_BUFFER_BIT";
    QTest::newRow("light") << "GL_LIGHT0"
                           << "GL_COLOR_BUFFER_BIT";
}

void tst_GLenumTables::droppedNamesLoseToTheKeptOnes()
{
    QFETCH(QString, dropped);
    QTEST(droppedNames().at(dropped), "kept");
}

void tst_GLenumTables::vertexArrayExtensionNamesLoseToTheCoreNames()
{
    std::map<QString, QString> expected;
    for (const QString &name : namesOf(kavoGLenumRows::groups.begin()[45])) {
        if (!name.endsWith("_COUNT_EXT"))
            expected[name] = name.chopped(4);
    }
    QCOMPARE(expected.size(), std::size_t(26));
    const std::map<QString, QString> dropped = droppedNames();
    QVERIFY(std::includes(dropped.begin(), dropped.end(), expected.begin(), expected.end()));
}

void tst_GLenumTables::groupsHaveTheseMembers_data()
{
    QTest::addColumn<QStringList>("names");
    QFile file(QFINDTESTDATA("data/enumgroups.txt"));
    QVERIFY(file.open(QFile::ReadOnly));
    const QStringList groups = QString::fromLatin1(file.readAll()).split("\n\n");
    QCOMPARE(groups.size(), 51);
    for (int i = 0; i < groups.size(); ++i)
        QTest::addRow("group %d", i) << groups[i].simplified().split(' ');
}

void tst_GLenumTables::groupsHaveTheseMembers()
{
    const int index = QByteArray(QTest::currentDataTag()).mid(6).toInt();
    const QStringList names = namesOf(kavoGLenumRows::groups.begin()[index]);
    QTEST(names, "names");
    QCOMPARE(int(data.groups.at(index).size()), names.size());
}

void tst_GLenumTables::groupSetsAreTheRowsInAscendingOrder()
{
    auto rows = kavoGLenumRows::groups.begin();
    for (const std::set<unsigned int> &group : data.groups) {
        std::set<unsigned int> expected;
        for (const Constant &row : *rows++)
            expected.insert(row.value);
        QCOMPARE(group, expected);
    }
    QCOMPARE(data.groups.at(37), (std::set<unsigned int> { 0x2600, 0x2601 }));
}

void tst_GLenumTables::setupKeepsWhatTheTablesHold()
{
    std::map<unsigned int, QString> names { { 0x0100, "mine" } };
    std::vector<std::set<unsigned int>> groups(1);
    setupGLenumMap(names, groups);
    QCOMPARE(names.at(0x0100), QStringLiteral("mine"));
    QCOMPARE(groups.size(), std::size_t(52));
}

void tst_GLenumTables::membersStandInOrder()
{
    QVERIFY(static_cast<const void *>(&data) == &data.nameToEnums);
    QVERIFY(static_cast<const void *>(&data.nameToEnums) < &data.enumToName);
    QVERIFY(static_cast<const void *>(&data.enumToName) < &data.groups);
}

void tst_GLenumTables::valuesAgreeWithTheSystemsHeaders()
{
    std::map<QString, unsigned int> header = headerConstants(GL_HEADER_DIR "/gl.h");
    header.merge(headerConstants(GL_HEADER_DIR "/glext.h"));
    int compared = 0;
    for (const Constant &row : allRows()) {
        const auto it = header.find(row.name);
        if (it == header.end() || it->first == "GL_ALL_ATTRIB_BITS")
            continue;
        QVERIFY2(it->second == row.value, row.name);
        ++compared;
    }
    QVERIFY2(compared > 650, qPrintable(QString::number(compared)));
}

QTEST_APPLESS_MAIN(tst_GLenumTables)
#include "tst_glenumtables.moc"
