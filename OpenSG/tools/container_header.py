"""The headers of a container class: its handle with the pointer fields, and the class."""

import textwrap

GENERATED = "#pragma once\n\n// Generated from a description in OpenSG/src.\n\n"


def fields_header(c, classes):
    parts = [GENERATED, include(f"{c.parent}Fields"), include("RefPtr")]
    if is_core(c, classes):
        parts.append(include("CoredNodePtr"))
    parts += [include(f"{p[0]}Field") for p in c.pointer_fields]
    parts.append(f"\nOSG_BEGIN_NAMESPACE\n\nclass {c.name};\n\n")
    parts.append(f"typedef FCPtr<{c.parent}Ptr, {c.name}> {c.name}Ptr;\n")
    parts.append(f"typedef RefPtr<{c.name}Ptr> {c.name}RefPtr;\n")
    if is_core(c, classes):
        parts.append(f"typedef CoredNodePtr<{c.name}> {c.name}NodePtr;\n")
    if c.pointer_fields:
        parts.append(handle_traits(c))
    parts += [f"typedef {p[0]}Field<{c.name}Ptr> {p}{c.name}Ptr;\n" for p in c.pointer_fields]
    return "".join(parts) + "\nOSG_END_NAMESPACE\n"


def handle_traits(c):
    return f"""
template <> struct FieldDataTraits<{c.name}Ptr> : public FieldTraitsRecurseMapper<{c.name}Ptr, true>
{{
    static DataType _type;
    enum {{ StringConvertable = 0x00, bHasParent = 0x01 }};

    static DataType &getType() {{ return _type; }}
    static const Char8 *getSName() {{ return "SF{c.name}Ptr"; }}
    static const Char8 *getMName() {{ return "MF{c.name}Ptr"; }}
    static {c.name}Ptr getDefault() {{ return NullFC; }}
}};

"""


def class_header(c):
    parts = [GENERATED]
    parts += [include(name) for name in sorted(included_names(c))]
    parts.append("\nOSG_BEGIN_NAMESPACE\n\n")
    parts.append(doc_comment(c.comment, ""))
    parts.append(f"class {c.cpp_name} : public {c.parent}\n{{\n")
    parts.append(f"    typedef {c.parent} Inherited;\n\npublic:\n    typedef {c.name}Ptr Ptr;\n\n")
    parts += [field_ids(c), type_functions(c)]
    parts += [accessors(c, f) for f in c.fields if not f.protected]
    parts.append(protected_part(c))
    parts.append("\nprivate:\n")
    if c.fields:
        parts.append("    static FieldDescription *_desc[];\n")
    parts.append("    static FieldContainerType _type;\n};\n\nOSG_END_NAMESPACE\n")
    return "".join(parts)


def included_names(c):
    names = {c.parent, f"{c.name}Fields", "FieldTable"}
    for f in c.fields:
        names.add(f.value_name.removesuffix("Ptr") + "Fields")
        if f.counted:
            names |= {f.value_name.removesuffix("Ptr"), "HeldList"}
    return names


def field_ids(c):
    if not c.fields:
        return ""
    ids = [f.id for f in c.fields] + ["NextFieldId"]
    previous = ["Inherited::NextFieldId"] + [f"{i} + 1" for i in ids]
    rows = "".join(f"        {i} = {p},\n" for i, p in zip(ids, previous))
    masks = "".join(mask(i) for i in ids)
    return f"    enum {{\n{rows}    }};\n{masks}\n"


def mask(field_id):
    name = field_id.removesuffix("Id") + "Mask"
    return f"    static constexpr BitVector {name} = TypeTraits<BitVector>::One << {field_id};\n"


def type_functions(c):
    text = """    static FieldContainerType &getClassType() { return _type; }
    static UInt32 getClassTypeId() { return _type.getId(); }
    FieldContainerType &getType() override { return _type; }
    const FieldContainerType &getType() const override { return _type; }
"""
    if not c.abstract:
        text += f"""    UInt32 getContainerSize() const override;

    static {c.name}Ptr create();
    static {c.name}Ptr createEmpty();
    FieldContainerPtr shallowCopy() const override;
"""
    if c.follows_edits():
        text += "    void changed(BitVector whichField, UInt32 origin) override;\n"
    return text


def accessors(c, f):
    doc = doc_comment(f.comment, "    ")
    text = f"\n{doc}    {f.type} *get{f.prefix}{f.title}() {{ return &{f.member}; }}\n"
    if f.bare:
        return text
    value, kept = (f.type, f.member) if f.multi else (f.value_type, f"{f.member}.getValue()")
    text += f"    {reference(value)}get{f.title}() {{ return {kept}; }}\n"
    text += f"    const {reference(value)}get{f.title}() const {{ return {kept}; }}\n"
    if f.multi:
        return text + f"""    {reference(f.value_type)}get{f.title}(const UInt32 index)
    {{
        return {f.member}[index];
    }}
"""
    if f.getters:
        return text
    counting = f"\n        _held{f.title} = value;" if f.counted else ""
    return text + f"""    void set{f.title}(const {reference(value)}value)
    {{
        {f.member}.setValue(value);{counting}
    }}
"""


def reference(cpp_type):
    return cpp_type + ("&" if cpp_type.endswith("*") else " &")


def protected_part(c):
    parts = ["\nprotected:\n    friend class FieldContainer;\n\n"]
    parts.append(f"    {c.cpp_name}();\n")
    parts.append(f"    {c.cpp_name}(const {c.cpp_name} &);\n")
    parts.append(f"    ~{c.cpp_name}() override;\n")
    parts += [accessors(c, f) for f in c.fields if f.protected]
    parts += [forgotten(c, f) for f in c.fields if f.numbered]
    parts.append(held_containers(c))
    parts.append("\n" if c.fields else "")
    parts += [f"    {f.type} {f.member}{f.initializer()};\n" for f in c.fields]
    parts += [f"    {holder(f)} _held{f.title};\n" for f in c.fields if f.counted]
    return "".join(parts)


def held_containers(c):
    calls = "".join(held_call(f) for f in c.fields if f.counted)
    if not calls:
        return ""
    return f"""
    void forEachHeld(const HeldFunction &function) const override
    {{
        Inherited::forEachHeld(function);
{calls}    }}
"""


def held_call(f):
    held = f"_held{f.title}"
    return f"        {held}.forEach(function);\n" if f.multi else f"        function({held}.get());\n"


def forgotten(c, f):
    return f"""
    void onCreate(const {c.cpp_name} *source = nullptr)
    {{
        Inherited::onCreate(source);
        {f.member}.setValue(0);
    }}
"""


def holder(f):
    return f"{'HeldList' if f.multi else 'RefPtr'}<{f.value_type}>"


def include(name):
    return f"#include <OpenSG/OSG{name}.h>\n"


def doc_comment(lines, indent):
    text = textwrap.wrap(" ".join(lines), 96 - len(indent))
    return "".join(f"{indent}/// {line}\n" for line in text)


def is_core(c, classes):
    while c and c.name != "NodeCore":
        c = classes.get(c.parent)
    return c is not None
