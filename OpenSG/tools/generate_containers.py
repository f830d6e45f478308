#!/usr/bin/env python3
"""Writes the C++ of container classes from their descriptions in src/*/*.fcd.

    generate_containers.py [--list] OUTPUT_FOLDER FILE.fcd...

A description is a comment, a head line and a line for each field:

    # How lines are drawn.
    LineChunk : StateChunk
        width   SFReal32   1
        smooth  SFBool     false       [internal]

Behind the field's type stands the default, unless it is the type's own (0, empty, identity):
numbers, true or false, or a string in quotes; `8 x 0` repeats. Flags stand in brackets.

Flags of a class
    abstract          cannot be created
    behaviour         OSG<X>Base.h is generated, the class X : XBase is written by hand
    kernel            handle and pointer fields are written by hand, in OSG<X>Fields.h
    group NAME        attachment group, where it is not the type's name
    pointers WHICH    pointer fields that exist: both (as without the flag), SF, MF or none
Flags of a field
    internal          left out of scene files
    bare              has no accessors but getSFX or getMFX, the others are written by hand
    getters           has no setter, it is written by hand
    protected         has protected accessors
    counted           the setter counts references
    numbered          the first edit gives it StateChunk::newGLId(); not copied
    described TYPE    the type that the description tells, where it is not the field's
    remark TEXT       what FieldDescription::getDefaultValue() returns

Written are, for each class, OSG<X>Fields.h (handle and pointer fields) and OSG<X>.h or
OSG<X>Base.h, and one source for each file. With --list only their names are printed.
"""

import pathlib
import sys

from container_description import read_classes
from container_header import class_header, fields_header
from container_source import family_source


def outputs(folder, families):
    """Yields path and text of each file to write."""
    include = folder / "include" / "OpenSG"
    classes = {c.name: c for family in families.values() for c in family}
    for family, members in families.items():
        for c in members:
            if not c.kernel:
                yield include / f"OSG{c.name}Fields.h", fields_header(c, classes)
            yield include / f"OSG{c.cpp_name}.h", class_header(c)
        yield folder / "src" / f"{family}.cpp", family_source(members)


def write_if_changed(path, text):
    """Leaves an unchanged file alone, so that nothing is compiled again for it."""
    if not path.exists() or path.read_text() != text:
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text)


def main(arguments):
    listing = arguments[0] == "--list"
    folder, *files = arguments[1:] if listing else arguments
    families = {pathlib.Path(f).stem: read_classes(pathlib.Path(f)) for f in files}
    for path, text in outputs(pathlib.Path(folder), families):
        if listing:
            print(path)
        else:
            write_if_changed(path, text)


if __name__ == "__main__":
    main(sys.argv[1:])
