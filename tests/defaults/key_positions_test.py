#!/usr/bin/env python3
"""The presets of the computer keyboard: the built-in map, and the positions of its two keyboards.

usage: key_positions_test.py PROGRAM...
"""
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

from desk import DEFAULTS, ROOT, DataFolder, presets, read_text

PROGRAM = []
FOLDER = DEFAULTS / "Computer Input Presets"
C_MAJOR = [0, 2, 4, 5, 7, 9, 11]
WHITE_KEYS = {2: ["Z", "X", "C", "V", "B", "N", "M", "Comma", "Period", "Slash"],
              1: ["Q", "W", "E", "R", "T", "Y", "U", "I", "O", "P", "Left Bracket", "Right Bracket"]}
BLACK_KEYS = {2: ["A", "S", "D", "F", "G", "H", "J", "K", "L", "Semicolon", "Apostrophe"],
              1: ["1", "2", "3", "4", "5", "6", "7", "8", "9", "0", "Minus", "Equals"]}
HOME = {2: 48, 1: 60}
POSITIONS = [f"{first + position:03} - Zone {zone} Position {name}{suffix}"
             for zone, first, suffix in ((2, 1, ""), (2, 8, " (down an octave)"),
                                         (1, 15, ""), (1, 22, " (down an octave)"))
             for position, name in enumerate(["I", "II", "III", "IV", "V", "VI", "VII"])]


def played(lines):
    """The notes that were started and those that were ended."""
    notes = [re.match(r"@\S+ play 0x([89])0 (\d+) ", line).groups() for line in lines]
    return tuple([int(note) for status, note in notes if status == wanted] for wanted in "98")


class KeyPositionsTest(unittest.TestCase):
    def testAllArePresent(self):
        self.assertEqual([], sorted({"000 - Default", *POSITIONS} - set(presets("keys"))))

    def testDefaultIsTheBuiltInMap(self):
        with DataFolder(PROGRAM) as data:
            data.run(["desk", 'preset save keys "built in"'])
            self.assertEqual((FOLDER / "000 - Default.pst").read_bytes(),
                             read_text(data.path / FOLDER.name / "built in.pst"))

    def testFilesAreWhatTheToolMakes(self):
        with tempfile.TemporaryDirectory() as folder:
            subprocess.run([sys.executable, ROOT / "tools" / "make-key-positions", folder], check=True)
            made = {path.stem: path.read_bytes() for path in pathlib.Path(folder).iterdir()}
        self.assertEqual(sorted(POSITIONS), sorted(made))
        for name, text in made.items():
            self.assertEqual(text.decode(), (FOLDER / f"{name}.pst").read_bytes().decode(), name)

    # Presses all keys of a keyboard one after the other, from the left, and returns what each of them plays.
    def play(self, data, preset, zone):
        lines = [f'preset load keys "{preset}"']
        keys = [*WHITE_KEYS[zone], *BLACK_KEYS[zone]]
        layer = '<Layers><Layer zone="{}"/></Layers>'.format(zone - 1)
        results = {}
        for number, key in enumerate(keys):
            start = 100 * number
            lines += [f'key down "{key}"', f"run {start} {start + 50} 10", f'key up "{key}"',
                      f"run {start + 50} {start + 100} 10"]
        output = data.run(["desk", "layers", layer, ".", "slice 0 0", *lines])
        for number, key in enumerate(keys):
            times = [f"@{time} " for time in range(100 * number, 100 * number + 100, 10)]
            results[key] = played([line for line in output if line.startswith(tuple(times))])
        return results

    def testWhiteKeysWalkUpTheScale(self):
        with DataFolder(PROGRAM) as data:
            for index, preset in enumerate(POSITIONS):
                zone = 2 if index < 14 else 1
                first = index % 7 - (7 if "octave" in preset else 0)
                with self.subTest(preset=preset):
                    notes = self.play(data, preset, zone)
                    for i, key in enumerate(WHITE_KEYS[zone]):
                        octave, degree = divmod(first + i, 7)
                        note = HOME[zone] + 12 * octave + C_MAJOR[degree]
                        self.assertEqual(([note], [note]), notes[key], key)

    def testBlackKeysLieBetweenTheirWhiteKeys(self):
        with DataFolder(PROGRAM) as data:
            for index, preset in enumerate(POSITIONS):
                zone = 2 if index < 14 else 1
                with self.subTest(preset=preset):
                    notes = self.play(data, preset, zone)
                    for i, key in enumerate(BLACK_KEYS[zone]):
                        left = WHITE_KEYS[zone][i - 1] if i > 0 else None
                        note = notes[left][0][0] + 1 if left else notes[WHITE_KEYS[zone][0]][0][0] - 1
                        expected = [] if note % 12 in C_MAJOR else [note]
                        self.assertEqual((expected, expected), notes[key], key)

    def testTheOtherKeyboardStays(self):
        with DataFolder(PROGRAM) as data:
            before = data.run(["desk", "print keys"])
            for preset in POSITIONS:
                other = "1" if "Zone 1" in preset else "0"
                after = data.run(["desk", f'preset load keys "{preset}"', "print keys"])
                own = f'zone="{1 - int(other)}"'
                self.assertEqual([line for line in before if f'zone="{other}"' in line],
                                 [line for line in after if f'zone="{other}"' in line], preset)
                self.assertNotEqual([], [line for line in after if own in line], preset)

    def testPositionIIsHome(self):
        with DataFolder(PROGRAM) as data:
            before = data.run(["desk", "print keys"])
            after = data.run(["desk"] + [f'preset load keys "{name}"' for name in
                                         (POSITIONS[5], POSITIONS[20], POSITIONS[0], POSITIONS[14])] + ["print keys"])
            self.assertEqual([line for line in before if "<Midi" in line], [line for line in after if "<Midi" in line])


if __name__ == "__main__":
    PROGRAM = sys.argv[1:]
    unittest.main(argv=sys.argv[:1])
