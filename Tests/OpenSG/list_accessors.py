#!/usr/bin/env python3
"""Lists the fields of the container classes, for tst_accessors.

    list_accessors.py REFLECTION.json OUTPUT

The header of each class that has one is included, followed by SINGLE_FIELD or MULTI_FIELD for each
field that the class does not inherit, with class, name, name in accessors, field type and id.
"""

import json
import sys

# Their accessors follow no rule; those of the last are protected.
OTHERWISE = {"Attachment", "AttachmentContainer", "Node", "NodeCore", "StringAttributeMap"}


def listed(container, parent):
    name = container["type"]
    yield f"#if __has_include(<OpenSG/OSG{name}.h>)"
    yield f"#include <OpenSG/OSG{name}.h>"
    inherited = len(parent["fields"]) if parent else 0
    for field in container["fields"][inherited:]:
        macro = "MULTI_FIELD" if field["multi"] else "SINGLE_FIELD"
        title = field["name"][0].upper() + field["name"][1:]
        yield f'{macro}({name}, "{field["name"]}", {title}, {field["type"]}, {field["id"]})'
    yield "#endif"


def main(source, target):
    with open(source) as file:
        containers = {c["type"]: c for c in json.load(file)}
    with open(target, "w") as file:
        for container in containers.values():
            if container["type"] not in OTHERWISE:
                lines = listed(container, containers.get(container["parent"]))
                file.write("\n".join(lines) + "\n")


if __name__ == "__main__":
    main(*sys.argv[1:])
