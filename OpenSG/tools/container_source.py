"""The source of a family of container classes: their tables, types and creation."""

from container_header import include


def family_source(members):
    parts = ["// Generated from a description in OpenSG/src.\n\n"]
    parts += [include(c.name) for c in members]
    parts.append("\n#include <OpenSG/OSGMFieldTypeDef.inl>\n")
    parts.append("#include <OpenSG/OSGSFieldTypeDef.inl>\n")
    parts.append("\nOSG_BEGIN_NAMESPACE\n")
    parts += [pointer_fields(c) for c in members if not c.kernel and c.pointer_fields]
    parts += [class_source(c) for c in members]
    return "".join(parts) + "\nOSG_END_NAMESPACE\n"


def pointer_fields(c):
    text = f'\nDataType FieldDataTraits<{c.name}Ptr>::_type("{c.name}Ptr", "{c.parent}Ptr");\n'
    for prefix in c.pointer_fields:
        text += f"OSG_DLLEXPORT_{prefix}IELD_DEF1({c.name}Ptr, );\n"
    return text


def class_source(c):
    parts = [field_table(c), type_object(c), special_members(c), creation(c), end_of_edit(c)]
    return f"\n// {c.name}\n" + "".join(parts)


def field_table(c):
    if not c.fields:
        return ""
    rows = "".join(f"    {described(c, f)},\n" for f in c.fields)
    return f"\nFieldDescription *{c.cpp_name}::_desc[] = {{\n{rows}}};\n"


def described(c, f):
    member = f"&{c.cpp_name}::{f.member}" + (f", {f.described}" if f.described else "")
    arguments = [f'"{f.name}"', f.id]
    if f.internal or f.remark:
        arguments.append("true" if f.internal else "false")
    if f.remark:
        arguments.append(f'"{f.remark}"')
    return f"describe<{member}>({', '.join(arguments)})"


def type_object(c):
    group = f'"{c.group}"' if c.group else "nullptr"
    prototype = "nullptr" if c.abstract else f"prototypeOf<&{c.cpp_name}::createEmpty>"
    table = "_desc, sizeof(_desc)" if c.fields else "nullptr, 0"
    return f"""
FieldContainerType {c.cpp_name}::_type(
    "{c.name}", "{c.parent}", {group}, {prototype}, nullptr, {table});
"""


def special_members(c):
    """Not inline, so that sources with derived classes do not compile them again."""
    name = c.cpp_name
    return f"""
{name}::{name}() = default;
{name}::{name}(const {name} &) = default;
{name}::~{name}() = default;
"""


def creation(c):
    if c.abstract:
        return ""
    return f"""
UInt32 {c.cpp_name}::getContainerSize() const
{{
    return sizeof({c.name});
}}

{c.name}Ptr {c.cpp_name}::create()
{{
    return copyPrototype<{c.name}Ptr>(getClassType());
}}

{c.name}Ptr {c.cpp_name}::createEmpty()
{{
    {c.name}Ptr result;
    newPtr(result);
    return result;
}}

FieldContainerPtr {c.cpp_name}::shallowCopy() const
{{
    {c.name}Ptr result;
    newPtr(result, static_cast<const {c.name} *>(this));
    return result;
}}
"""


def follow(f):
    held, value = f"_held{f.title}", f.member
    action = f"{held}.follow({value})" if f.multi else f"{held} = {value}.getValue()"
    return f"    if (whichField & {f.title}FieldMask) {{\n        {action};\n    }}\n"


def number(f):
    value = f"{f.member}.getValue()"
    return f"    if ({value} == 0) {{\n        {f.member}.setValue(newGLId());\n    }}\n"


def end_of_edit(c):
    """Fields that were filled without their setter get their references when the edit ends."""
    if not c.follows_edits():
        return ""
    body = "".join(follow(f) for f in c.fields if f.counted)
    body += "".join(number(f) for f in c.fields if f.numbered)
    return f"""
void {c.cpp_name}::changed(BitVector whichField, UInt32 origin)
{{
{body}    Inherited::changed(whichField, origin);
}}
"""
