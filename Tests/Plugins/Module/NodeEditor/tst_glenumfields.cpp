#include <kavoCustomPropertyGLenum_p.h>

#include <QtTest>

#include <algorithm>

Q_DECLARE_METATYPE(std::set<unsigned int>)

namespace {

const auto &tables = QtGLenumPropertyManagerPrivate::enumData;

// Returns the names as a combo box shows them, "-" for a value without a name.
QString shownNames(const char *field)
{
    QStringList names;
    for (unsigned int value : tables.nameToEnums.at(field)) {
        const auto it = tables.enumToName.find(value);
        names << (it == tables.enumToName.end() ? QStringLiteral("-") : it->second.mid(3));
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

} // namespace

// The values that the editor offers for known fields.
class tst_GLenumFields : public QObject
{
    Q_OBJECT

private slots:
    void exactlySeventeenFieldsAreKnown();
    void fieldsAllowTheseNames_data();
    void fieldsAllowTheseNames();
    void fieldsAllowTheseUnnamedValues_data();
    void fieldsAllowTheseUnnamedValues();
    void internalFormatsAre55OfWhich16HaveNoName();
    void destinationFactorsLackSourceAlphaSaturate();
    void otherNamesAreNotFound();
};

void tst_GLenumFields::exactlySeventeenFieldsAreKnown()
{
    QStringList fields;
    for (const auto &entry : tables.nameToEnums)
        fields << entry.first;
    QCOMPARE(fields.join(' '),
        QStringLiteral("alphaFunc backColorMaterial colorMaterial destFactor envMode equation "
                       "genFuncQ genFuncR genFuncS genFuncT internalFormat magFilter minFilter "
                       "srcFactor wrapR wrapS wrapT"));
}

void tst_GLenumFields::fieldsAllowTheseNames_data()
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

void tst_GLenumFields::fieldsAllowTheseNames()
{
    QTEST(shownNames(QTest::currentDataTag()), "names");
}

void tst_GLenumFields::fieldsAllowTheseUnnamedValues_data()
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

void tst_GLenumFields::fieldsAllowTheseUnnamedValues()
{
    std::set<unsigned int> unnamed;
    for (unsigned int value : tables.nameToEnums.at(QTest::currentDataTag())) {
        if (!tables.enumToName.count(value))
            unnamed.insert(value);
    }
    QFETCH(std::set<unsigned int>, values);
    QCOMPARE(unnamed, values);
}

void tst_GLenumFields::internalFormatsAre55OfWhich16HaveNoName()
{
    const std::set<unsigned int> &formats = tables.nameToEnums.at("internalFormat");
    QCOMPARE(formats.size(), std::size_t(55));
    QCOMPARE(std::count_if(formats.begin(), formats.end(),
                 [](unsigned int value) { return !tables.enumToName.count(value); }),
        16);
}

void tst_GLenumFields::destinationFactorsLackSourceAlphaSaturate()
{
    std::set<unsigned int> source = tables.nameToEnums.at("srcFactor");
    QCOMPARE(source.erase(0x0308), std::size_t(1));
    QCOMPARE(tables.nameToEnums.at("destFactor"), source);
}

void tst_GLenumFields::otherNamesAreNotFound()
{
    for (const char *name : { "", "MinFilter", "minFilter ", "rescale", "cullFace" })
        QCOMPARE(tables.nameToEnums.count(name), std::size_t(0));
}

QTEST_APPLESS_MAIN(tst_GLenumFields)
#include "tst_glenumfields.moc"
