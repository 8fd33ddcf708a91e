#!/usr/bin/env python3
"""The presets that add keys to a map, such as those for the stage.

usage: key_presets_test.py PROGRAM...
"""
import re
import sys
import unittest

import listening
from desk import DEFAULTS, DataFolder, presets

PROGRAM = []
FOLDER = DEFAULTS / "Computer Input Presets"
KEY = re.compile(r'<Key id="([^"]*)".*?</Key>', re.DOTALL)
# Bank programs that hold the keys of a preset; they are played in the test of the programs.
SHARED = {"029 - Position Keys": "Positions on F5 to F11", "030 - Performance Keys": "Stage Keys",
          "031 - Transport Keys": "Sequencer Remote"}
DRUMS = {"0": 36, ".": 35, "1": 38, "2": 37, "3": 39, "4": 42, "5": 44, "6": 46, "7": 41, "8": 45, "9": 50, "/": 49,
         "*": 51, "-": 56, "+": 57, "Enter": 54}


def keys(text):
    """The elements of the keys by their ids, without their indentation."""
    return {match.group(1): re.sub(r"\n\t+", "\n", match.group()) for match in KEY.finditer(text)}


def preset(name):
    return (FOLDER / f"{name}.pst").read_text()


class KeyPresetsTest(unittest.TestCase):
    def testProgramsHoldTheKeysOfTheirPreset(self):
        bank = (DEFAULTS / "Factory.bnk").read_text()
        for name, program in SHARED.items():
            block = re.search(f'<Program name="{program}".*?</Program>', bank, re.DOTALL).group()
            self.assertNotEqual({}, keys(preset(name)))
            self.assertEqual(keys(block), keys(block) | keys(preset(name)), name)

    def testPositionKeysLoadThePositionsInOrder(self):
        loads = re.findall(r'<Key id="([^"]*)".*?Preset preset="(\d+) - ', preset("029 - Position Keys"), re.DOTALL)
        expected = {f"{modifier}F{5 + position}": first + position for position in range(7)
                    for modifier, first in (("", 1), ("Control ", 8), ("Shift ", 15), ("Shift Control ", 22))}
        self.assertEqual(expected, {key: int(number) for key, number in loads})

    def testPresetsOfKeysExist(self):
        for name in presets("keys"):
            for kind, tag in (("keys", "ComputerInput"), ("layers", "Layer"), ("controls", "Control")):
                for loaded in re.findall(f'<Load{tag}Preset preset="([^"]*)"', preset(name)):
                    self.assertIn(loaded, presets(kind), name)

    def testTheOtherKeysStay(self):
        with DataFolder(PROGRAM) as data:
            for name in [*SHARED, "032 - Numpad Drums"]:
                before = keys("\n".join(data.run(["desk", "print keys"])))
                after = keys("\n".join(data.run(["desk", f'preset load keys "{name}"', "print keys"])))
                self.assertEqual(before | keys(preset(name)), after, name)

    def testNumpadPlaysDrumsOfGeneralMidi(self):
        with DataFolder(PROGRAM) as data:
            take = listening.Take("desk", 'preset load keys "032 - Numpad Drums"')
            starts = []
            for key in DRUMS:
                starts.append(take.now)
                take.press(f"Numpad {key}")
                take.wait(50)
                take.release(f"Numpad {key}")
                take.wait(50)
            played = listening.events(data.run(take.lines))
            for (key, note), start in zip(DRUMS.items(), starts):
                heard = listening.between(played, start, start + 100)
                self.assertEqual([(0x90, note, 9), (0x80, note, 9)],
                                 [(event.status, event.d1, event.channel) for event in heard], key)


if __name__ == "__main__":
    PROGRAM = sys.argv[1:]
    unittest.main(argv=sys.argv[:1])
