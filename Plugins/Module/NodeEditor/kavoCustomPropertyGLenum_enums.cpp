#include "kavoCustomPropertyGLenum_enums.h"

#include "kavoCustomPropertyGLenum_rows.h"

namespace {

using kavoGLenumRows::Constant;
using kavoGLenumRows::Rows;

constexpr unsigned int materialColors[] = { 0x0000, 0x1200, 0x1201, 0x1202, 0x1600, 0x1602 };

constexpr unsigned int minFilters[] = { 0x2600, 0x2601, 0x2700, 0x2701, 0x2702, 0x2703 };

constexpr unsigned int magFilters[] = { 0x2600, 0x2601 };

// The last three are clamp to border, clamp to edge and mirrored repeat.
constexpr unsigned int wraps[] = { 0x2900, 0x2901, 0x812D, 0x812F, 0x8370 };

// 0x8570 is combine.
constexpr unsigned int envModes[] = { 0x0BE2, 0x1E01, 0x2100, 0x2101, 0x8570 };

constexpr unsigned int internalFormats[] = {
    // Unsized, and the packed R3 G3 B2.
    0x0000, 0x1906, 0x1907, 0x1908, 0x1909, 0x190A, 0x2A10,
    // Sized alpha, luminance and intensity.
    0x803B, 0x803C, 0x803D, 0x803E, 0x803F, 0x8040, 0x8041, 0x8042, 0x8043, 0x8044, 0x8045, 0x8046,
    0x8047, 0x8048, 0x8049, 0x804A, 0x804B, 0x804C, 0x804D,
    // Sized RGB and RGBA.
    0x804F, 0x8050, 0x8051, 0x8052, 0x8053, 0x8054, 0x8055, 0x8056, 0x8057, 0x8058, 0x8059, 0x805A,
    0x805B,
    // Compressed, then floating-point of 32 and of 16 bits.
    0x84EA, 0x84EB, 0x84ED, 0x84EE, 0x8814, 0x8815, 0x8816, 0x8817, 0x8818, 0x8819, 0x881A, 0x881B,
    0x881C, 0x881D, 0x881E, 0x881F
};

constexpr unsigned int sourceFactors[]
    = { 0x0000, 0x0001, 0x0300, 0x0301, 0x0302, 0x0303, 0x0304, 0x0305, 0x0306, 0x0307, 0x0308 };

constexpr unsigned int destinationFactors[]
    = { 0x0000, 0x0001, 0x0300, 0x0301, 0x0302, 0x0303, 0x0304, 0x0305, 0x0306, 0x0307 };

// Deliberate: logic operations, not blend equations.
constexpr unsigned int equations[] = { 0x0000, 0x1500, 0x1501, 0x1502, 0x1503, 0x1504, 0x1505,
    0x1506, 0x1507, 0x1508, 0x1509, 0x150A, 0x150B, 0x150C, 0x150D, 0x150E, 0x150F };

constexpr unsigned int alphaFuncs[]
    = { 0x0000, 0x0200, 0x0201, 0x0202, 0x0203, 0x0204, 0x0205, 0x0206, 0x0207 };

// The last two are normal map and reflection map.
constexpr unsigned int genFuncs[] = { 0x0000, 0x2400, 0x2401, 0x2402, 0x8511, 0x8512 };

constexpr struct
{
    const char *field;
    Rows<unsigned int> values;
} fields[] = {
    { "colorMaterial", materialColors },
    { "backColorMaterial", materialColors },
    { "minFilter", minFilters },
    { "magFilter", magFilters },
    { "wrapS", wraps },
    { "wrapT", wraps },
    { "wrapR", wraps },
    { "envMode", envModes },
    { "internalFormat", internalFormats },
    { "srcFactor", sourceFactors },
    { "destFactor", destinationFactors },
    { "equation", equations },
    { "alphaFunc", alphaFuncs },
    { "genFuncS", genFuncs },
    { "genFuncT", genFuncs },
    { "genFuncR", genFuncs },
    { "genFuncQ", genFuncs },
};

} // namespace

void setupGLenumMap(
    std::map<unsigned int, QString> &enumToName, std::vector<std::set<unsigned int>> &groups)
{
    for (const Rows<Constant> &rows : kavoGLenumRows::groups) {
        std::set<unsigned int> group;
        for (const Constant &constant : rows) {
            enumToName.emplace(constant.value, QLatin1String(constant.name));
            group.insert(constant.value);
        }
        groups.push_back(group);
    }
}

void setupNameToEnums(std::map<QString, std::set<unsigned int>> &nameToEnums)
{
    for (const auto &[field, values] : fields)
        nameToEnums[field] = { values.begin(), values.end() };
}
