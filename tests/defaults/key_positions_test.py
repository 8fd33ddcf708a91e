#!/usr/bin/env python3
"""The presets of the computer keyboard: the built-in map, and the positions of its two keyboards.

usage: key_positions_test.py PROGRAM...
"""
import pathlib
import subprocess
import sys
import tempfile
import unittest

import listening
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


def zone_of(preset):
    """The number of a preset's zone, as its name counts."""
    return 2 if "Zone 2" in preset else 1


def notes(played):
    """The notes that were started and those that were ended."""
    return tuple([event.d1 for event in played if event.status == status] for status in (0x90, 0x80))


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

    # Loads one position after the other, presses all keys of its keyboard and returns what each of them starts and
    # ends, by preset and key. Only that keyboard's zone plays.
    def playAll(self):
        take = listening.Take("desk")
        starts = {}
        for preset in POSITIONS:
            zone = zone_of(preset)
            take.lines += ["layers", f'<Layers><Layer zone="{zone - 1}"/></Layers>', "."]
            take.add(f'preset load keys "{preset}"')
            for key in [*WHITE_KEYS[zone], *BLACK_KEYS[zone]]:
                starts[preset, key] = take.now
                take.press(key)
                take.wait(20)
                take.release(key)
                take.wait(20)
        with DataFolder(PROGRAM) as data:
            played = listening.events(data.run(take.lines))
        return {each: notes(listening.between(played, start, start + 40)) for each, start in starts.items()}

    def testWhiteKeysWalkUpTheScale(self):
        heard = self.playAll()
        for index, preset in enumerate(POSITIONS):
            zone = zone_of(preset)
            first = index % 7 - (7 if "octave" in preset else 0)
            with self.subTest(preset=preset):
                for i, key in enumerate(WHITE_KEYS[zone]):
                    octave, degree = divmod(first + i, 7)
                    note = HOME[zone] + 12 * octave + C_MAJOR[degree]
                    self.assertEqual(([note], [note]), heard[preset, key], key)

    def testBlackKeysLieBetweenTheirWhiteKeys(self):
        heard = self.playAll()
        for preset in POSITIONS:
            zone = zone_of(preset)
            with self.subTest(preset=preset):
                for i, key in enumerate(BLACK_KEYS[zone]):
                    neighbour = heard[preset, WHITE_KEYS[zone][max(i - 1, 0)]][0][0]
                    note = neighbour + 1 if i > 0 else neighbour - 1
                    expected = [] if note % 12 in C_MAJOR else [note]
                    self.assertEqual((expected, expected), heard[preset, key], key)

    def testTheOtherKeyboardStays(self):
        lines = ["desk", "print keys"]
        for preset in POSITIONS:
            lines += [f'preset load keys "{preset}"', "print keys"]
        with DataFolder(PROGRAM) as data:
            maps = "\n".join(data.run(lines)).split("</ComputerInput>\n")
        self.assertEqual(len(POSITIONS) + 1, len(maps))
        for preset, before, after in zip(POSITIONS, maps, maps[1:]):
            other = f'zone="{2 - zone_of(preset)}"'
            self.assertIn(other, before)
            before, after = ([line for line in text.splitlines() if other in line] for text in (before, after))
            self.assertEqual(before, after, preset)

    def testPositionIIsHome(self):
        with DataFolder(PROGRAM) as data:
            before = data.run(["desk", "print keys"])
            after = data.run(["desk"] + [f'preset load keys "{name}"' for name in
                                         (POSITIONS[5], POSITIONS[20], POSITIONS[0], POSITIONS[14])] + ["print keys"])
            self.assertEqual([line for line in before if "<Midi" in line], [line for line in after if "<Midi" in line])


if __name__ == "__main__":
    PROGRAM = sys.argv[1:]
    unittest.main(argv=sys.argv[:1])
