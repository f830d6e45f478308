#include <kavoCustomPropertyGLenum_enums.h>
#include <kavoCustomPropertyGLenum_p.h>
#include <kavoCustomPropertyGLenum_rows.h>

#include <QFile>
#include <QRegularExpression>
#include <QtTest>

#include <algorithm>

Q_DECLARE_METATYPE(std::set<unsigned int>)

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

// Every name that an earlier one of the same value beats, with the name kept before value 0 became
// GL_NONE.
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

// The names as a combo box shows them, "-" for a value without one.
QString shownNames(const char *field)
{
    QStringList names;
    for (unsigned int value : data.nameToEnums.at(field)) {
        const auto it = data.enumToName.find(value);
        names << (it == data.enumToName.end() ? QStringLiteral("-") : it->second.mid(3));
    }
    return names.join(' ');
}

std::set<unsigned int> range(unsigned int first, unsigned int last)
{
    std::set<unsigned int> values;
    while (first <= last)
        values.insert(first++);
    return values;
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

}

class TestGLenumTables : public QObject
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
    void groupsHaveTheirSizesAndEnds_data();
    void groupsHaveTheirSizesAndEnds();
    void tellingGroupsHaveTheseNames_data();
    void tellingGroupsHaveTheseNames();
    void groupSetsAreTheRowsInAscendingOrder();
    void exactlySeventeenFieldsAreKnown();
    void fieldsAllowTheseNames_data();
    void fieldsAllowTheseNames();
    void fieldsAllowTheseUnnamedValues_data();
    void fieldsAllowTheseUnnamedValues();
    void internalFormatsAre55OfWhich16HaveNoName();
    void destinationFactorsLackSourceAlphaSaturate();
    void otherNamesAreNotFound();
    void setupKeepsWhatTheTablesHold();
    void membersStandInOrder();
    void valuesAgreeWithTheSystemsHeaders();
};

void TestGLenumTables::theRowsHaveTheKnownCounts()
{
    QCOMPARE(allRows().size(), std::size_t(693));
    QCOMPARE(allNames().size(), std::size_t(545));
    QCOMPARE(data.groups.size(), std::size_t(51));
    QCOMPARE(droppedNames().size(), std::size_t(31));
}

void TestGLenumTables::suffixesOfTheExtensionsAreCounted()
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

void TestGLenumTables::theValueTableHas514Values()
{
    QCOMPARE(data.enumToName.size(), std::size_t(514));
    QCOMPARE(data.enumToName.rbegin()->first, 0x80ECu);
}

void TestGLenumTables::firstNamesOfAValueStay_data()
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

void TestGLenumTables::firstNamesOfAValueStay()
{
    QFETCH(unsigned int, value);
    QTEST(data.enumToName.at(value), "name");
}

void TestGLenumTables::namesUnknownToTheSystemsHeadersHaveTheirValues_data()
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

void TestGLenumTables::namesUnknownToTheSystemsHeadersHaveTheirValues()
{
    QFETCH(unsigned int, value);
    QCOMPARE(data.enumToName.at(value), QString(QTest::currentDataTag()));
}

void TestGLenumTables::valueOneHasNoName()
{
    QCOMPARE(data.enumToName.count(1), std::size_t(0));
}

void TestGLenumTables::allAttribBitsHidesZeroUntilItBecomesNone()
{
    std::map<unsigned int, QString> names;
    std::vector<std::set<unsigned int>> groups;
    setupGLenumMap(names, groups);
    QCOMPARE(names.at(0), QStringLiteral("GL_ALL_ATTRIB_BITS"));
    QCOMPARE(groups.at(2), std::set<unsigned int> { 0 });
}

void TestGLenumTables::droppedNamesLoseToTheKeptOnes_data()
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

void TestGLenumTables::droppedNamesLoseToTheKeptOnes()
{
    QFETCH(QString, dropped);
    QTEST(droppedNames().at(dropped), "kept");
}

void TestGLenumTables::vertexArrayExtensionNamesLoseToTheCoreNames()
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

void TestGLenumTables::groupsHaveTheirSizesAndEnds_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("size");
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("last");
    static const struct
    {
        int size;
        const char *first;
        const char *last;
    } groups[] = {
        { 5, "GL_ACCUM", "GL_ADD" },
        { 8, "GL_NEVER", "GL_ALWAYS" },
        { 1, "GL_ALL_ATTRIB_BITS", "GL_ALL_ATTRIB_BITS" },
        { 6, "GL_SRC_COLOR", "GL_ONE_MINUS_DST_ALPHA" },
        { 7, "GL_DST_COLOR", "GL_ONE_MINUS_DST_ALPHA" },
        { 10, "GL_COLOR_BUFFER_BIT", "GL_CLIP_PLANE5" },
        { 11, "GL_BYTE", "GL_DOUBLE" },
        { 21, "GL_NEVER", "GL_AUX3" },
        { 12, "GL_CLIP_PLANE0", "GL_OUT_OF_MEMORY" },
        { 5, "GL_2D", "GL_4D_COLOR_TEXTURE" },
        { 8, "GL_PASS_THROUGH_TOKEN", "GL_LINE_RESET_TOKEN" },
        { 2, "GL_EXP", "GL_EXP2" },
        { 2, "GL_CW", "GL_CCW" },
        { 3, "GL_COEFF", "GL_DOMAIN" },
        { 209, "GL_CURRENT_COLOR", "GL_SELECTION_BUFFER_SIZE" },
        { 5, "GL_TEXTURE_WIDTH", "GL_TEXTURE_BORDER" },
        { 3, "GL_DONT_CARE", "GL_NICEST" },
        { 20, "GL_PERSPECTIVE_CORRECTION_HINT", "GL_LIGHT7" },
        { 10, "GL_AMBIENT", "GL_QUADRATIC_ATTENUATION" },
        { 2, "GL_COMPILE", "GL_COMPILE_AND_EXECUTE" },
        { 26, "GL_BYTE", "GL_SET" },
        { 28, "GL_MAP1_COLOR_4", "GL_SPECULAR" },
        { 3, "GL_MODELVIEW", "GL_TEXTURE" },
        { 8, "GL_BYTE", "GL_STENCIL" },
        { 11, "GL_COLOR_INDEX", "GL_LUMINANCE_ALPHA" },
        { 44, "GL_PIXEL_MAP_I_TO_I", "GL_FLOAT" },
        { 3, "GL_POINT", "GL_FILL" },
        { 15, "GL_FRONT_LEFT", "GL_SELECT" },
        { 2, "GL_FLAT", "GL_SMOOTH" },
        { 14, "GL_NEVER", "GL_INVERT" },
        { 4, "GL_VENDOR", "GL_EXTENSIONS" },
        { 4, "GL_S", "GL_Q" },
        { 8, "GL_SHORT", "GL_REPLACE" },
        { 2, "GL_TEXTURE_ENV_MODE", "GL_TEXTURE_ENV_COLOR" },
        { 1, "GL_TEXTURE_ENV", "GL_TEXTURE_ENV" },
        { 3, "GL_EYE_LINEAR", "GL_SPHERE_MAP" },
        { 3, "GL_TEXTURE_GEN_MODE", "GL_EYE_PLANE" },
        { 2, "GL_NEAREST", "GL_LINEAR" },
        { 6, "GL_NEAREST", "GL_LINEAR_MIPMAP_LINEAR" },
        { 5, "GL_TEXTURE_MAG_FILTER", "GL_TEXTURE_BORDER_COLOR" },
        { 4, "GL_TEXTURE_1D", "GL_REPEAT" },
        { 9, "GL_SHORT", "GL_POLYGON_OFFSET_FILL" },
        { 41, "GL_ALPHA4", "GL_PROXY_TEXTURE_2D" },
        { 4, "GL_TEXTURE_PRIORITY", "GL_TEXTURE_BINDING_2D" },
        { 40, "GL_VERTEX_ARRAY", "GL_T4F_C4F_N3F_V4F" },
        { 32, "GL_VERTEX_ARRAY_EXT", "GL_EDGE_FLAG_ARRAY_POINTER_EXT" },
        { 2, "GL_BGR_EXT", "GL_BGRA_EXT" },
        { 14, "GL_COLOR_TABLE_FORMAT_EXT", "GL_COLOR_INDEX16_EXT" },
        { 2, "GL_MAX_ELEMENTS_VERTICES_WIN", "GL_MAX_ELEMENTS_INDICES_WIN" },
        { 2, "GL_PHONG_WIN", "GL_PHONG_HINT_WIN" },
        { 1, "GL_FOG_SPECULAR_TEXTURE_WIN", "GL_FOG_SPECULAR_TEXTURE_WIN" },
    };
    for (int i = 0; i < int(std::size(groups)); ++i)
        QTest::addRow("group %d", i) << i << groups[i].size << groups[i].first << groups[i].last;
}

void TestGLenumTables::groupsHaveTheirSizesAndEnds()
{
    QFETCH(int, index);
    const QStringList names = namesOf(kavoGLenumRows::groups.begin()[index]);
    QTEST(names.size(), "size");
    QTEST(int(data.groups.at(index).size()), "size");
    QTEST(names.first(), "first");
    QTEST(names.last(), "last");
}

void TestGLenumTables::tellingGroupsHaveTheseNames_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("names");
    QTest::newRow("buffers and clip planes")
        << 5
        << "GL_COLOR_BUFFER_BIT GL_ACCUM_BUFFER_BIT GL_STENCIL_BUFFER_BIT GL_DEPTH_BUFFER_BIT "
           "GL_CLIP_PLANE0 GL_CLIP_PLANE1 GL_CLIP_PLANE2 GL_CLIP_PLANE3 GL_CLIP_PLANE4 "
           "GL_CLIP_PLANE5";
    QTest::newRow("comparisons and draw buffers")
        << 7
        << "GL_NEVER GL_LESS GL_EQUAL GL_LEQUAL GL_GREATER GL_NOTEQUAL GL_GEQUAL GL_ALWAYS "
           "GL_FRONT_LEFT GL_FRONT_RIGHT GL_BACK_LEFT GL_BACK_RIGHT GL_FRONT GL_BACK GL_LEFT "
           "GL_RIGHT GL_FRONT_AND_BACK GL_AUX0 GL_AUX1 GL_AUX2 GL_AUX3";
    QTest::newRow("draw buffers and render modes")
        << 27
        << "GL_FRONT_LEFT GL_FRONT_RIGHT GL_BACK_LEFT GL_BACK_RIGHT GL_FRONT GL_BACK GL_LEFT "
           "GL_RIGHT GL_AUX0 GL_AUX1 GL_AUX2 GL_AUX3 GL_RENDER GL_FEEDBACK GL_SELECT";
    QTest::newRow("stencil functions and operations")
        << 29
        << "GL_NEVER GL_LESS GL_EQUAL GL_LEQUAL GL_GREATER GL_NOTEQUAL GL_GEQUAL GL_ALWAYS "
           "GL_ZERO GL_KEEP GL_REPLACE GL_INCR GL_DECR GL_INVERT";
    QTest::newRow("texture environment modes")
        << 32 << "GL_SHORT GL_INT GL_FLOAT GL_DOUBLE GL_MODULATE GL_DECAL GL_BLEND GL_REPLACE";
}

void TestGLenumTables::tellingGroupsHaveTheseNames()
{
    QFETCH(int, index);
    QTEST(namesOf(kavoGLenumRows::groups.begin()[index]).join(' '), "names");
}

void TestGLenumTables::groupSetsAreTheRowsInAscendingOrder()
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

void TestGLenumTables::exactlySeventeenFieldsAreKnown()
{
    QStringList fields;
    for (const auto &entry : data.nameToEnums)
        fields << entry.first;
    QCOMPARE(fields.join(' '),
        QStringLiteral("alphaFunc backColorMaterial colorMaterial destFactor envMode equation "
                       "genFuncQ genFuncR genFuncS genFuncT internalFormat magFilter minFilter "
                       "srcFactor wrapR wrapS wrapT"));
}

void TestGLenumTables::fieldsAllowTheseNames_data()
{
    QTest::addColumn<QString>("names");
    const char *materialColors = "NONE AMBIENT DIFFUSE SPECULAR EMISSION AMBIENT_AND_DIFFUSE";
    const char *wraps = "CLAMP REPEAT - - -";
    const char *genFuncs = "NONE EYE_LINEAR OBJECT_LINEAR SPHERE_MAP - -";
    QTest::newRow("colorMaterial") << materialColors;
    QTest::newRow("backColorMaterial") << materialColors;
    QTest::newRow("minFilter") << "NEAREST LINEAR NEAREST_MIPMAP_NEAREST LINEAR_MIPMAP_NEAREST "
                                  "NEAREST_MIPMAP_LINEAR LINEAR_MIPMAP_LINEAR";
    QTest::newRow("magFilter") << "NEAREST LINEAR";
    QTest::newRow("wrapS") << wraps;
    QTest::newRow("wrapT") << wraps;
    QTest::newRow("wrapR") << wraps;
    QTest::newRow("envMode") << "BLEND REPLACE MODULATE DECAL -";
    QTest::newRow("internalFormat")
        << "NONE ALPHA RGB RGBA LUMINANCE LUMINANCE_ALPHA R3_G3_B2 "
           "ALPHA4 ALPHA8 ALPHA12 ALPHA16 LUMINANCE4 LUMINANCE8 LUMINANCE12 LUMINANCE16 "
           "LUMINANCE4_ALPHA4 LUMINANCE6_ALPHA2 LUMINANCE8_ALPHA8 LUMINANCE12_ALPHA4 "
           "LUMINANCE12_ALPHA12 LUMINANCE16_ALPHA16 INTENSITY INTENSITY4 INTENSITY8 INTENSITY12 "
           "INTENSITY16 RGB4 RGB5 RGB8 RGB10 RGB12 RGB16 RGBA2 RGBA4 RGB5_A1 RGBA8 RGB10_A2 "
           "RGBA12 RGBA16 - - - - - - - - - - - - - - - -";
    QTest::newRow("srcFactor") << "NONE - SRC_COLOR ONE_MINUS_SRC_COLOR SRC_ALPHA "
                                  "ONE_MINUS_SRC_ALPHA DST_ALPHA ONE_MINUS_DST_ALPHA DST_COLOR "
                                  "ONE_MINUS_DST_COLOR SRC_ALPHA_SATURATE";
    QTest::newRow("destFactor") << "NONE - SRC_COLOR ONE_MINUS_SRC_COLOR SRC_ALPHA "
                                   "ONE_MINUS_SRC_ALPHA DST_ALPHA ONE_MINUS_DST_ALPHA DST_COLOR "
                                   "ONE_MINUS_DST_COLOR";
    QTest::newRow("equation") << "NONE CLEAR AND AND_REVERSE COPY AND_INVERTED NOOP XOR OR NOR "
                                 "EQUIV INVERT OR_REVERSE COPY_INVERTED OR_INVERTED NAND SET";
    QTest::newRow("alphaFunc") << "NONE NEVER LESS EQUAL LEQUAL GREATER NOTEQUAL GEQUAL ALWAYS";
    for (const char *field : { "genFuncS", "genFuncT", "genFuncR", "genFuncQ" })
        QTest::newRow(field) << genFuncs;
}

void TestGLenumTables::fieldsAllowTheseNames()
{
    QTEST(shownNames(QTest::currentDataTag()), "names");
}

void TestGLenumTables::fieldsAllowTheseUnnamedValues_data()
{
    QTest::addColumn<std::set<unsigned int>>("values");
    using Values = std::set<unsigned int>;
    QTest::newRow("srcFactor") << Values { 1 };
    QTest::newRow("destFactor") << Values { 1 };
    QTest::newRow("envMode") << Values { 0x8570 };
    for (const char *field : { "wrapS", "wrapT", "wrapR" })
        QTest::newRow(field) << Values { 0x812D, 0x812F, 0x8370 };
    for (const char *field : { "genFuncS", "genFuncT", "genFuncR", "genFuncQ" })
        QTest::newRow(field) << Values { 0x8511, 0x8512 };
    Values formats = range(0x8814, 0x881F);
    formats.insert({ 0x84EA, 0x84EB, 0x84ED, 0x84EE });
    QTest::newRow("internalFormat") << formats;
}

void TestGLenumTables::fieldsAllowTheseUnnamedValues()
{
    std::set<unsigned int> unnamed;
    for (unsigned int value : data.nameToEnums.at(QTest::currentDataTag())) {
        if (!data.enumToName.count(value))
            unnamed.insert(value);
    }
    QFETCH(std::set<unsigned int>, values);
    QCOMPARE(unnamed, values);
}

void TestGLenumTables::internalFormatsAre55OfWhich16HaveNoName()
{
    const std::set<unsigned int> &formats = data.nameToEnums.at("internalFormat");
    QCOMPARE(formats.size(), std::size_t(55));
    QCOMPARE(std::count_if(formats.begin(), formats.end(),
                 [](unsigned int value) { return !data.enumToName.count(value); }),
        16);
}

void TestGLenumTables::destinationFactorsLackSourceAlphaSaturate()
{
    std::set<unsigned int> source = data.nameToEnums.at("srcFactor");
    QCOMPARE(source.erase(0x0308), std::size_t(1));
    QCOMPARE(data.nameToEnums.at("destFactor"), source);
}

void TestGLenumTables::otherNamesAreNotFound()
{
    for (const char *name : { "", "MinFilter", "minFilter ", "rescale", "cullFace" })
        QCOMPARE(data.nameToEnums.count(name), std::size_t(0));
}

void TestGLenumTables::setupKeepsWhatTheTablesHold()
{
    std::map<unsigned int, QString> names { { 0x0100, "mine" } };
    std::vector<std::set<unsigned int>> groups(1);
    setupGLenumMap(names, groups);
    QCOMPARE(names.at(0x0100), QStringLiteral("mine"));
    QCOMPARE(groups.size(), std::size_t(52));
}

void TestGLenumTables::membersStandInOrder()
{
    QVERIFY(static_cast<const void *>(&data) == &data.nameToEnums);
    QVERIFY(static_cast<const void *>(&data.nameToEnums) < &data.enumToName);
    QVERIFY(static_cast<const void *>(&data.enumToName) < &data.groups);
}

void TestGLenumTables::valuesAgreeWithTheSystemsHeaders()
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

QTEST_APPLESS_MAIN(TestGLenumTables)
#include "tst_glenumtables.moc"
