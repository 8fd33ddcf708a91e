#!/usr/bin/env python3
"""Every file that comes with the desk is exactly what the desk itself writes: nothing in it is ignored or defaulted.

usage: round_trip_test.py PROGRAM...
"""
import re
import sys
import unittest

from desk import DEFAULTS, PRESET_FOLDERS, DataFolder, presets, read_text

PROGRAM = []
HEADER = b'<?xml version="1.0" encoding="utf-8"?>\n\n'
ELEMENT_ID = {"keys": r'^\t<Key id="([^"]*)"', "controls": r'^\t<Control cell="([^"]*)"'}


def quote(text):
    return f'"{text}"'


def merged_elements(kind, text):
    """The ids of a preset that is to be merged; these are what the desk has to save."""
    if b'merge="true"' not in text.split(b"\n")[2]:
        return []
    return re.findall(ELEMENT_ID[kind], text.decode(), re.MULTILINE)


class RoundTripTest(unittest.TestCase):
    def checkSaved(self, folder, name, original, saved):
        self.assertTrue(saved.exists(), f"{name}: not saved")
        self.assertEqual(original.decode(), read_text(saved).decode(), f"{folder}: {name} is saved otherwise")

    def testPresetsAreSavedAsTheyAre(self):
        with DataFolder(PROGRAM) as data:
            lines = ["desk"]
            files = []
            for kind, folder in PRESET_FOLDERS.items():
                self.assertNotEqual([], presets(kind), folder)
                for number, name in enumerate(presets(kind)):
                    original = (DEFAULTS / folder / f"{name}.pst").read_bytes()
                    saved = f"saved {number}"
                    ids = " ".join(quote(each) for each in merged_elements(kind, original))
                    lines += [f"preset load {kind} {quote(name)}", f"preset save {kind} {quote(saved)} {ids}"]
                    files.append((folder, name, original, data.path / folder / f"{saved}.pst"))
            data.run(lines)
            for file in files:
                with self.subTest(preset=file[1]):
                    self.checkSaved(*file)

    def testSequencesAreSavedAsTheyAre(self):
        folder = "Sequences"
        with DataFolder(PROGRAM) as data:
            originals = sorted((DEFAULTS / folder).glob("*.seq"))
            self.assertNotEqual([], originals)
            lines = ["desk"]
            for number, original in enumerate(originals):
                text = re.search("<Sequence>(.*)</Sequence>", original.read_text()).group(1)
                lines.append(f"sequence add {quote(f'saved {number}')} {quote(text)}")
            data.run(lines)
            for number, original in enumerate(originals):
                with self.subTest(sequence=original.stem):
                    self.checkSaved(folder, original.stem, original.read_bytes(),
                                    data.path / folder / f"saved {number}.seq")

    def testProgramsAreSavedAsTheyAre(self):
        banks = sorted(DEFAULTS.glob("*.bnk"))
        self.assertNotEqual([], banks)
        for bank in banks:
            original = bank.read_bytes()
            blocks = re.findall(rb"<Program .*?</Program>\n", original, re.DOTALL)
            self.assertNotEqual([], blocks)
            with DataFolder(PROGRAM) as data:
                lines = [f"bank {bank.name}"]
                for number in range(len(blocks)):
                    lines += [f"select {number}", f"save-program saved{number}.prg", f"save {number}"]
                data.run(lines)
                for number, block in enumerate(blocks):
                    with self.subTest(bank=bank.name, program=number):
                        file = HEADER + b"<ProgramFile>\n" + block + b"</ProgramFile>\n"
                        self.checkSaved(bank.name, number, file, data.path / f"saved{number}.prg")
                self.checkSaved(DEFAULTS, bank.name, original, data.path / bank.name)

    def testNothingElseLiesThere(self):
        known = [DEFAULTS / folder / "*.pst" for folder in PRESET_FOLDERS.values()]
        known += [DEFAULTS / "Sequences" / "*.seq", DEFAULTS / "*.bnk"]
        files = {path for path in DEFAULTS.rglob("*") if path.is_file()}
        self.assertEqual(files, {path for pattern in known for path in pattern.parent.glob(pattern.name)})


if __name__ == "__main__":
    PROGRAM = sys.argv[1:]
    unittest.main(argv=sys.argv[:1])
