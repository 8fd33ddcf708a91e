#!/usr/bin/env python3
"""Every note key of every program and of every layer preset sounds, and nothing sounds on after it, or after a reset.

usage: no_hanging_note_test.py PROGRAM...
"""
import re
import sys
import unittest

import listening
from desk import DEFAULTS, DataFolder, presets

PROGRAM = []
BANK = "Factory.bnk"
NAMES = re.findall(r'<Program name="([^"]*)"', (DEFAULTS / BANK).read_text())
# Keys of a set-up whose layers toggle sound until they are pressed again.
TOGGLES = ("Toggled Drones", "Latched")


class NoHangingNoteTest(unittest.TestCase):
    def noteKeys(self, lines):
        """The keys that play notes on their own, without a modifier."""
        keys = re.findall(r'<Key id="([^"]*)".*?</Key>', "\n".join(lines), re.DOTALL)
        blocks = re.findall(r'<Key id="[^"]*".*?</Key>', "\n".join(lines), re.DOTALL)
        return [key for key, block in zip(keys, blocks) if "<MidiNoteOn" in block and "Shift " not in key]

    def checkSetUp(self, data, load, isToggled):
        keys = self.noteKeys(data.run([*load, "print keys"]))
        self.assertGreater(len(keys), 20)
        take = listening.Take(*load)
        starts = {}
        for key in keys:
            starts[key] = take.now
            take.press(key)
            take.wait(480)
            take.release(key)
            take.wait(520)
            if isToggled:
                take.press(key)
                take.wait(20)
                take.release(key)
                take.wait(20)
        end = take.now
        held = []
        for reset in ("reset", 'key down "Numpad -"'):
            take.press(*keys)
            take.wait(40)
            held.append(take.now)
            take.add(reset)
            take.wait(listening.PAUSE)
            take.release(*keys)
            take.wait(listening.PAUSE)
        played = listening.events(data.run(take.lines))
        for key, start in starts.items():
            sounding = listening.between(played, start, start + 480)
            self.assertNotEqual([], listening.onsets(sounding, start), f"{key} is silent")
        for start in [*list(starts.values())[1:], end]:
            self.assertEqual([], listening.hanging(listening.between(played, 0, start)), f"hangs at {start}")
        for start in held:
            self.assertNotEqual([], listening.hanging(listening.between(played, 0, start)), "nothing to reset")
            after = listening.between(played, 0, start + 2 * listening.PAUSE)
            self.assertEqual([], listening.hanging(after), "hangs after a reset")

    def testPrograms(self):
        with DataFolder(PROGRAM) as data:
            for number, name in enumerate(NAMES):
                with self.subTest(program=name):
                    self.checkSetUp(data, [f"bank {BANK}", f"select {number}"], any(word in name for word in TOGGLES))

    def testLayerPresets(self):
        with DataFolder(PROGRAM) as data:
            for name in presets("layers"):
                with self.subTest(preset=name):
                    self.checkSetUp(data, ["desk", f'preset load layers "{name}"'],
                                    any(word in name for word in TOGGLES))


if __name__ == "__main__":
    PROGRAM = sys.argv[1:]
    unittest.main(argv=sys.argv[:1])
