#include "Fields/OSGFieldSyntax.h"

#include <OpenSG/OSGFieldType.h>

#include <string>
#include <string_view>
#include <unordered_map>

OSG_BEGIN_NAMESPACE

namespace {

enum Forms { Neither = 0, Single = 1, Multi = 2, Both = Single | Multi };

struct ContentSyntax
{
    FieldSyntax::Kind kind;
    UInt32 count;
    // The cardinalities that all readers of the format understand.
    Forms common;
};

typedef std::unordered_map<std::string, ContentSyntax> SyntaxTable;

const SyntaxTable scalars {
    { "bool", { FieldSyntax::Bool, 1, Single } },
    { "string", { FieldSyntax::String, 1, Both } },
    { "Int8", { FieldSyntax::Integers, 1, Both } },
    { "UInt8", { FieldSyntax::Integers, 1, Both } },
    { "Int16", { FieldSyntax::Integers, 1, Both } },
    { "UInt16", { FieldSyntax::Integers, 1, Both } },
    { "Int32", { FieldSyntax::Integers, 1, Both } },
    { "UInt32", { FieldSyntax::Integers, 1, Both } },
    { "Int64", { FieldSyntax::Integers, 1, Neither } },
    { "UInt64", { FieldSyntax::Integers, 1, Neither } },
    { "GLenum", { FieldSyntax::Integers, 1, Single } },
    { "Real16", { FieldSyntax::Reals, 1, Neither } },
    { "Real32", { FieldSyntax::Reals, 1, Both } },
    { "Real64", { FieldSyntax::Reals, 1, Neither } },
    { "Time", { FieldSyntax::Reals, 1, Both } },
    { "Color3f", { FieldSyntax::Reals, 3, Both } },
    { "Color4f", { FieldSyntax::Reals, 4, Both } },
    { "Color3ub", { FieldSyntax::Integers, 3, Neither } },
    { "Color4ub", { FieldSyntax::Integers, 4, Both } },
    { "Plane", { FieldSyntax::Reals, 4, Both } },
    { "Quaternion", { FieldSyntax::Reals, 4, Both } },
    { "Matrix", { FieldSyntax::Reals, 16, Single } },
    { "Matrix4d", { FieldSyntax::Reals, 16, Neither } },
    { "BoxVolume", { FieldSyntax::Reals, 6, Neither } },
    { "DynamicVolume", { FieldSyntax::Volume, 6, Single } },
    { "AttachmentMap", { FieldSyntax::Attachments, 0, Single } },
    { "BitVector", { FieldSyntax::None, 0, Neither } },
    { "VoidP", { FieldSyntax::None, 0, Neither } },
};

// All programs know these vectors and points in files.
bool isCommonVector(const std::string &name)
{
    return name == "Vec2f" || name == "Vec3f" || name == "Vec4f" || name == "Pnt3f";
}

SyntaxTable withVectors(SyntaxTable table)
{
    for (const char *kind : { "Vec", "Pnt" }) {
        for (UInt32 size = 2; size <= 4; ++size) {
            const std::string name = kind + std::to_string(size);
            for (const char *suffix : { "ub", "b", "us", "s" }) {
                table[name + suffix] = { FieldSyntax::Integers, size, Neither };
            }
            for (const char *suffix : { "f", "d", "ld" }) {
                const Forms forms = isCommonVector(name + suffix) ? Both : Neither;
                table[name + suffix] = { FieldSyntax::Reals, size, forms };
            }
        }
    }
    return table;
}

ContentSyntax find(const std::string &content)
{
    static const SyntaxTable table = withVectors(scalars);
    const auto found = table.find(content);
    if (found != table.end()) {
        return found->second;
    }
    const bool isPointer = content.find("Ptr") != std::string::npos;
    return isPointer ? ContentSyntax { FieldSyntax::Pointers, 0, Both }
                     : ContentSyntax { FieldSyntax::Text, 1, Neither };
}

} // namespace

FieldSyntax FieldSyntax::of(const FieldType &type)
{
    const ContentSyntax syntax = find(type.getContentType().getCName());
    const bool isMulti = type.getCardinality() == FieldType::MULTI_FIELD;
    const bool isList = isMulti || type.getContentType().getName() == IDString("GLenum");
    return { syntax.kind, syntax.count, (syntax.common & (isMulti ? Multi : Single)) != 0, isList };
}

OSG_END_NAMESPACE
