#!/usr/bin/env python3
"""The desk's files as another XML library sees them.

usage: file_formats_test.py PROGRAM...

PROGRAM is the desk's command line. What it saves must be what Python's own parser reads, and what Python's own writer
makes of it must load as the same.
"""
import os
import pathlib
import subprocess
import sys
import tempfile
import unittest
from xml.etree import ElementTree

PROGRAM = sys.argv[1:]
DATA = pathlib.Path(__file__).resolve().parents[1] / "data"
HEADER = b'<?xml version="1.0" encoding="utf-8"?>\n\n'
NAMES = ["Zoë – ピアノ", "🎹", "</Program>", "<Program name='x'>", "</Bank>", "a & b", "]]>", "&amp;&#10;", "100%"]
COMPONENTS = ["ComputerInput", "Controls", "Layers", "Zones"]


class FileFormatsTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="mirel-formats-")
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        for name in ("three.bnk", "single.prg"):
            (self.folder / name).write_bytes((DATA / "banks" / name).read_bytes())

    def run_script(self, *lines):
        """Runs these commands and returns what they print."""
        done = subprocess.run([*PROGRAM, "script", "--data", "data", "-"], cwd=self.folder, capture_output=True,
                              input="\n".join(lines).encode())
        self.assertEqual(done.stderr.decode(), "")
        self.assertEqual(done.returncode, 0)
        return done.stdout.decode()

    def read(self, name):
        return (self.folder / name).read_bytes().replace(b"\r\n", b"\n")

    def parse(self, name):
        """The root of a file, which begins as every file does and has each tag of a block on a line of its own."""
        text = self.read(name)
        self.assertTrue(text.startswith(HEADER), name)
        self.assertTrue(text.endswith(b">\n"), name)
        for line in text[len(HEADER):].decode().splitlines():
            self.assertRegex(line, r"^\t*<[^<>]*>$", name)
        return ElementTree.fromstring(text)

    def names(self, name):
        return [program.get("name") for program in self.parse(name)]

    def test_names_of_programs_are_those_that_were_given(self):
        commands = ["bank three.bnk", f"bank-size {len(NAMES)}"]
        for index, name in enumerate(NAMES):
            commands += [f"select {index}", f'program-name "{name}"', f"save {index}"]
        printed = self.run_script(*commands, "print bank")
        self.assertEqual(printed.splitlines(), ["three.bnk", *NAMES])
        self.assertEqual(self.names("three.bnk"), NAMES)

    def test_a_saved_program_has_its_components_in_order(self):
        self.run_script("bank three.bnk", "save 0", "select 1", "save 1", "select 2", "save 2", "save-program a.prg")
        bank = self.parse("three.bnk")
        self.assertEqual(bank.tag, "Bank")
        for program in bank:
            self.assertEqual([child.tag for child in program], COMPONENTS)
            self.assertEqual(list(program.attrib), ["name", "tempo", "tempoSource"])
            self.assertEqual([child.get("merge") for child in program], ["false"] * 4)
        file = self.parse("a.prg")
        self.assertEqual(file.tag, "ProgramFile")
        self.assertEqual(ElementTree.tostring(file[0]), ElementTree.tostring(bank[2]))
        self.assertEqual(len(file), 1)

    def test_what_another_writer_makes_of_a_bank_loads_as_the_same(self):
        everything = [command for i in range(3) for command in (f"select {i}", "print program")]
        # Loaded from elsewhere first, so that no program is already there.
        printed = self.run_script("program single.prg", "bank three.bnk", "print program", *everything[2:])
        tree = ElementTree.ElementTree(ElementTree.fromstring((self.folder / "three.bnk").read_bytes()))
        for element in tree.iter():
            element.text = element.tail = None
        for encoding in ("utf-8", "us-ascii", "utf-16"):
            tree.write(self.folder / "other.bnk", encoding=encoding, xml_declaration=True)
            self.assertEqual(self.run_script("program single.prg", "bank other.bnk", "print program", *everything[2:]),
                             printed, encoding)

    def test_presets_are_their_components_alone(self):
        kinds = {"keys": ("Computer Input Presets", "ComputerInput", ["merge", "useKeyUpMod"], "Q"),
                 "controls": ("Control Presets", "Controls", ["merge"], "0,0"),
                 "layers": ("Layer Presets", "Layers", ["merge"], "0")}
        name = "Zoë – ピアノ 🎹"
        self.run_script("bank three.bnk", *(f'preset save {kind} "{name}"' for kind in kinds),
                        *(f'preset save {kind} some {row[3]}' for kind, row in kinds.items()))
        for folder, tag, attributes, _ in kinds.values():
            whole = self.parse(f"data/{folder}/{name}.pst")
            some = self.parse(f"data/{folder}/some.pst")
            self.assertEqual((whole.tag, some.tag), (tag, tag))
            self.assertEqual(list(whole.attrib), attributes)
            self.assertEqual((whole.get("merge"), some.get("merge")), ("false", "true"))
            self.assertGreaterEqual(len(whole), 1)
            self.assertEqual(len(some), 1)
            self.assertEqual(ElementTree.tostring(some[0]).strip(), ElementTree.tostring(whole[0]).strip())

    def test_a_sequence_is_its_text(self):
        self.run_script('sequence add "Zoë – ピアノ 🎹" "0,12 V10"')
        text = self.read("data/Sequences/Zoë – ピアノ 🎹.seq")
        root = ElementTree.fromstring(text)
        self.assertEqual(root.text, "0,12 V10")
        self.run_script('sequence rename "Zoë – ピアノ 🎹" "🎹"')
        self.assertEqual(self.read("data/Sequences/🎹.seq"), text)

    def test_imported_files_are_those_of_this_version(self):
        for name in ("bank.txt", "old names.txt", "layer strings.pst", "control desk.pst", "key two.pst"):
            (self.folder / name).write_bytes((DATA / "version2" / name).read_bytes())
        self.run_script("import bank bank.txt bank.bnk", 'import bank "old names.txt" names.bnk',
                        "import program bank.txt program.prg", 'import preset "layer strings.pst" a',
                        'import preset "control desk.pst" a', 'import preset "key two.pst" a')
        self.assertEqual(self.names("bank.bnk"), ["My Lead", "Silent", "Nonsense"])
        self.assertEqual(self.names("names.bnk"), ["Zoë – Flügel", "€ ½"])
        self.assertEqual(self.names("program.prg"), ["My Lead"])
        for program in [*self.parse("bank.bnk"), *self.parse("program.prg")]:
            self.assertEqual([child.tag for child in program], COMPONENTS)
        for folder, tag in (("Computer Input", "ComputerInput"), ("Control", "Controls"), ("Layer", "Layers")):
            self.assertEqual(self.parse(f"data/{folder} Presets/a.pst").tag, tag)

    def test_nothing_but_what_was_saved_stays(self):
        self.run_script("bank three.bnk", "save 0", "bank-size 5", "save-program a.prg", "preset save layers a")
        found = sorted(os.path.relpath(os.path.join(folder, file), self.folder).replace(os.sep, "/")
                       for folder, _, files in os.walk(self.folder) for file in files)
        self.assertEqual(found, ["a.prg", "data/Layer Presets/a.pst", "data/settings", "single.prg", "three.bnk"])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
