#!/usr/bin/env python3
"""Every note key of every program and every layer preset sounds, and nothing keeps sounding after it or after a reset.

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
# If its layers toggle, the keys of a set-up sound until they are pressed again.
TOGGLES = ("Toggled Drones", "Latched")


class SetUp:
    """A program or a preset, what it was played with, and when, in the take that all set-ups share."""

    def __init__(self, name, load):
        self.name, self.load = name, load
        self.isToggled = any(word in name for word in TOGGLES)
        self.keys = []
        self.starts = {}  # When each key was pressed.
        self.held = []  # When all keys were held, before a reset.

    def play(self, take):
        take.add(self.load)
        take.wait(100)
        self.start = take.now
        for key in self.keys:
            self.starts[key] = take.now
            take.press(key)
            take.wait(480)
            take.release(key)
            take.wait(520)
            if self.isToggled:
                take.press(key)
                take.wait(20)
                take.release(key)
                take.wait(20)
        self.end = take.now
        for reset in ("reset", 'key down "Numpad -"'):
            take.press(*self.keys)
            take.wait(40)
            self.held.append(take.now)
            take.add(reset)
            take.wait(listening.PAUSE)
            take.release(*self.keys)
            take.wait(listening.PAUSE)


def note_keys(text):
    """The keys that play notes on their own, without a modifier."""
    return [match.group(1) for match in re.finditer(r'<Key id="([^"]*)".*?</Key>', text, re.DOTALL)
            if "<MidiNoteOn" in match.group() and "Shift " not in match.group(1)]


class NoHangingNoteTest(unittest.TestCase):
    def check(self, setUp, played):
        self.assertGreater(len(setUp.keys), 20)
        for key, start in setUp.starts.items():
            sounding = listening.between(played, start, start + 480)
            self.assertNotEqual([], listening.onsets(sounding, start), f"{key} is silent")
        for start in [*list(setUp.starts.values())[1:], setUp.end]:
            self.assertEqual([], listening.hanging(listening.between(played, setUp.start, start)), f"hangs at {start}")
        for start in setUp.held:
            before = listening.between(played, setUp.start, start)
            self.assertNotEqual([], listening.hanging(before), "nothing to reset")
            after = listening.between(played, setUp.start, start + 2 * listening.PAUSE)
            self.assertEqual([], listening.hanging(after), "hangs after a reset")

    def checkAll(self, begin, setUps):
        with DataFolder(PROGRAM) as data:
            marked = [line for each in setUps for line in (each.load, "print keys", "print tempo")]
            maps = re.split(r"^\d+ source=.*$", "\n".join(data.run([begin, *marked])), flags=re.MULTILINE)
            take = listening.Take(begin)
            for setUp, text in zip(setUps, maps):
                setUp.keys = note_keys(text)
                setUp.play(take)
            played = listening.events(data.run(take.lines))
        for setUp in setUps:
            with self.subTest(setUp=setUp.name):
                self.check(setUp, listening.between(played, setUp.start, setUp.held[-1] + 2 * listening.PAUSE))

    def testPrograms(self):
        self.checkAll(f"bank {BANK}", [SetUp(name, f"select {number}") for number, name in enumerate(NAMES)])

    def testLayerPresets(self):
        self.checkAll("desk", [SetUp(name, f'preset load layers "{name}"') for name in presets("layers")])


if __name__ == "__main__":
    PROGRAM = sys.argv[1:]
    unittest.main(argv=sys.argv[:1])
