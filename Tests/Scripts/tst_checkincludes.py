#!/usr/bin/env python3
"""Runs scripts/check-includes on small trees, right ones and wrong ones."""

import pathlib
import subprocess
import tempfile
import unittest

SCRIPT = pathlib.Path(__file__).resolve().parents[2] / "scripts" / "check-includes"
PLUGIN = "Plugins/Module/NodeEditor"


class CheckIncludes(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = pathlib.Path(folder.name)

    def add(self, file, *included):
        path = self.root / file
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text("".join(f"#include {name}\n" for name in included))

    def add_public(self, header, room, *included):
        self.add(f"OpenSG/include/OpenSG/{header}", *included)
        with open(self.root / f"OpenSG/src/{room}/CMakeLists.txt", "a") as listing:
            listing.write(f"{header}\n")

    def add_rooms(self):
        for room in ("Base", "Nodes"):
            self.add(f"OpenSG/src/{room}/CMakeLists.txt")

    def expect(self, *parts):
        """The one error has these parts; without parts the tree is right."""
        run = subprocess.run([SCRIPT, self.root], stdout=subprocess.PIPE, text=True, check=False)
        self.assertEqual(run.returncode, 1 if parts else 0, run.stdout)
        self.assertEqual(len(run.stdout.splitlines()), 1, run.stdout)
        for part in parts:
            self.assertIn(part, run.stdout)

    def test_includes_of_rooms_in_front_are_right(self):
        self.add_rooms()
        self.add_public("OSGLow.h", "Base", "<cstdint>")
        self.add_public("OSGHigh.h", "Nodes", "<OpenSG/OSGLow.h>")
        self.add("Host/SDK/kavoTool.h", "<OpenSG/OSGHigh.h>")
        self.add("Host/App/Scene/kavoView.h", "<kavoTool.h>", '"Scene/kavoView.h"')
        self.expect()

    def test_a_room_of_the_runtime_does_not_include_a_later_one(self):
        self.add_rooms()
        self.add_public("OSGHigh.h", "Nodes")
        self.add("OpenSG/src/Base/OSGLow.cpp", "<OpenSG/OSGHigh.h>")
        self.expect("OpenSG/src/Base/OSGLow.cpp", "OSGHigh.h", "OpenSG/src/Nodes")

    def test_a_described_class_belongs_to_the_room_of_its_description(self):
        self.add_rooms()
        (self.root / "OpenSG/src/Nodes/nodes.fcd").write_text("Node : FieldContainer\n")
        self.add("OpenSG/src/Base/OSGLow.cpp", "<OpenSG/OSGNodeFields.h>")
        self.expect("OpenSG/src/Base/OSGLow.cpp", "OSGNodeFields.h")

    def test_a_description_does_not_refer_to_a_later_room(self):
        self.add_rooms()
        (self.root / "OpenSG/src/Nodes/nodes.fcd").write_text("Node : FieldContainer\n")
        (self.root / "OpenSG/src/Base/low.fcd").write_text("Low : Thing\n    node  SFNodePtr\n")
        self.expect("OpenSG/src/Base/low.fcd", "OSGNodeFields.h")

    def test_every_public_header_is_listed_by_a_room(self):
        self.add("OpenSG/include/OpenSG/OSGStray.h")
        self.expect("OSGStray.h", "belongs to no room")

    def test_the_sdk_does_not_include_the_application(self):
        self.add("Host/App/Scene/kavoView.h")
        self.add("Host/SDK/kavoTool.cpp", '"kavoView.h"')
        self.expect("Host/SDK/kavoTool.cpp", "kavoView.h")

    def test_application_and_plugin_do_not_include_each_other(self):
        self.add(f"{PLUGIN}/kavoEditor.h")
        self.add("Host/App/Window/kavoWindow.cpp", "<kavoEditor.h>")
        self.expect("Host/App/Window/kavoWindow.cpp", "kavoEditor.h")

    def test_application_and_plugin_include_the_csv_operation(self):
        self.add(f"{PLUGIN}/OSGValuePairCSVCreator.h")
        self.add(f"{PLUGIN}/kavoEditor.cpp", '"OSGValuePairCSVCreator.h"')
        self.add("Host/App/Tables/kavoExport.cpp", "<OSGValuePairCSVCreator.h>")
        self.expect()

    def test_rooms_side_by_side_do_not_include_each_other_in_a_circle(self):
        self.add("Host/App/Views/kavoView.h", '"Files/kavoFile.h"')
        self.add("Host/App/Files/kavoFile.h")
        self.expect()
        self.add("Host/App/Files/kavoDocument.cpp", '"Views/kavoView.h"')
        run = subprocess.run([SCRIPT, self.root], stdout=subprocess.PIPE, text=True, check=False)
        self.assertEqual(run.returncode, 1)
        self.assertIn("Host/App/Views: includes itself by way of other rooms", run.stdout)

    def test_a_new_folder_needs_a_place_in_the_order(self):
        self.add("Host/App/Attic/kavoBox.h")
        self.expect("Host/App/Attic/kavoBox.h", "belongs to no room")


if __name__ == "__main__":
    unittest.main()
