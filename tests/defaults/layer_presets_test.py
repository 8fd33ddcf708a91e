#!/usr/bin/env python3
"""Every layer preset does what its name says, played from the computer's keyboard with its built-in map.

usage: layer_presets_test.py PROGRAM...

Of that map: Q W E R T are C4 to G4 and I is C5 in the first zone, Z X C V B are C3 to G3 in the second.
"""
import sys
import unittest

import listening
from desk import DataFolder, presets

PROGRAM = []

# What sounds while keys are held: one row per preset, of pairs of the held keys and the (channel, note, velocity) that
# sound. The keys of a pair go down in order, and all go up before the next pair.
HELD = {
    "000 - Default": [("Q", {(0, 60, 100)}), ("Z E", {(0, 48, 100), (0, 64, 100)})],
    "001 - Split at C4": [("Q", {(0, 60, 100)}), ("M", {(1, 47, 100)}), ("Comma", {(0, 60, 100)})],
    "002 - Split by Keyboard": [("Q", {(0, 60, 100)}), ("Comma", {(1, 48, 100)}),
                                ("Z Q", {(1, 36, 100), (0, 60, 100)})],
    "003 - Three-Way Split": [("I", {(0, 72, 100)}), ("Q", {(1, 60, 100)}), ("U", {(1, 71, 100)}),
                              ("Z M", {(2, 47, 100)})],
    "004 - Stack of Two": [("Q", {(0, 60, 100), (1, 60, 70)})],
    "005 - Octave Double": [("Q", {(0, 60, 100), (0, 72, 80)})],
    "006 - Sub Octave Mono": [("Q E", {(0, 60, 100), (0, 64, 100), (1, 40, 100)})],
    "007 - Parallel Fifths": [("Q", {(0, 60, 100), (0, 67, 90), (0, 72, 80)})],
    "008 - Power Chords": [("Z", {(0, 36, 100), (0, 43, 100), (0, 48, 100)})],
    "009 - Thirds in C": [("Q", {(0, 60, 100), (0, 64, 90)}), ("W", {(0, 62, 100), (0, 65, 90)})],
    "010 - Triads in C": [("Q", {(0, 60, 100), (0, 64, 100), (0, 67, 100)}),
                          ("W", {(0, 62, 100), (0, 65, 100), (0, 69, 100)}),
                          ("U", {(0, 71, 100), (0, 74, 100), (0, 77, 100)})],
    "011 - Triads in G": [("T", {(0, 67, 100), (1, 71, 80), (1, 74, 80)}),
                          ("W", {(0, 62, 100), (1, 66, 80), (1, 69, 80)})],
    "012 - Sixths Below in C": [("I", {(0, 72, 100), (1, 64, 90)}), ("T", {(0, 67, 100), (1, 59, 90)})],
    "015 - Bagpipe Drones": [("Q", {(0, 60, 100), (1, 48, 70), (1, 55, 60)}),
                             ("Q E", {(0, 60, 100), (0, 64, 100), (1, 48, 70), (1, 55, 60)})],
    "016 - Mono Lead": [("Q E", {(0, 64, 100)}), ("E Q", {(0, 60, 100)})],
    "017 - Mono Lead over Chords": [("Z C B Q E", {(1, 48, 80), (1, 52, 80), (1, 55, 80), (0, 64, 100)})],
    "018 - Velocity Split at 80": [("Q", {(1, 60, 100)})],
    "019 - Even Touch": [("Q", {(0, 60, 93)})],
    "020 - Organ Manuals": [("Q Z", {(0, 60, 100), (1, 48, 100)})],
}

# What notes of other velocities from a MIDI input become: pairs of a velocity and the (channel, note, velocity) of C4.
TOUCHED = {
    "001 - Split at C4": [(30, {(0, 60, 30)})],
    "018 - Velocity Split at 80": [(1, {(0, 60, 1)}), (79, {(0, 60, 79)}), (80, {(1, 60, 80)}), (127, {(1, 60, 127)})],
    "019 - Even Touch": [(1, {(0, 60, 60)}), (127, {(0, 60, 102)})],
    "020 - Organ Manuals": [(20, {(0, 60, 100), (1, 60, 100)})],
}

# What an arpeggio plays while keys are held: the keys, the length in ppq, and the (ppq, channel, note) that begin.
ARPEGGIOS = {
    "021 - Arpeggio Up Two Octaves": ("Q E T", 720, [(0, 0, 60), (120, 0, 64), (240, 0, 67),
                                                     (360, 0, 72), (480, 0, 76), (600, 0, 79)]),
    "022 - Arpeggio Down Three Octaves": ("Q T", 840, [(0, 0, 91), (120, 0, 84), (240, 0, 79), (360, 0, 72),
                                                       (480, 0, 67), (600, 0, 60), (720, 0, 91)]),
    "023 - Arpeggio Up and Down": ("Q E T", 960, [(0, 0, 60), (160, 0, 64), (320, 0, 67), (480, 0, 64),
                                                  (640, 0, 60), (800, 0, 64)]),
    "024 - Chord Pulse": ("Q E", 480, [(0, 0, 60), (0, 0, 64), (240, 0, 60), (240, 0, 64)]),
    "025 - Chord Gate": ("Q E", 600, [(time, 0, note) for time in (0, 120, 360, 480) for note in (60, 64)]),
    "026 - Hocket of Four": ("Q", 600, [(0, 0, 60), (120, 1, 72), (240, 2, 60), (360, 3, 48), (480, 0, 60)]),
    "027 - Three against Two": ("Q", 960, [(0, 0, 60), (0, 1, 72), (320, 1, 72), (480, 0, 60), (640, 1, 72)]),
    "028 - Lead over Arpeggio": ("Z C I", 720, [(0, 0, 72), (0, 1, 48), (120, 1, 52), (240, 1, 60), (360, 1, 64),
                                                (480, 1, 60), (600, 1, 52)]),
    "029 - Bass Riff and Lead": ("Z Q E", 1920, [(0, 0, 60), (0, 0, 64), (0, 1, 36), (480, 1, 36), (720, 1, 48),
                                                 (1200, 1, 46), (1440, 1, 48)]),
    "030 - Drums and Lead": ("Z Q", 600, [(0, 0, 60), (0, 9, 36), (0, 9, 42), (240, 9, 42),
                                         (480, 9, 38), (480, 9, 42)]),
    "031 - One-Finger Band in C": ("X Q", 490, [(0, 0, 60), (0, 9, 36), (0, 9, 42), (0, 1, 38), (0, 2, 62), (0, 2, 65),
                                                (0, 2, 69), (240, 9, 42), (240, 1, 45), (480, 9, 38), (480, 9, 42),
                                                (480, 1, 50), (480, 2, 62), (480, 2, 65), (480, 2, 69)]),
}

# Presets with a test of their own below.
TOGGLED = {"013 - Toggled Drones", "014 - Latched Bass Pedal"}


def sounding(played):
    """The (channel, note, velocity) that keep sounding."""
    velocities = {(event.channel, event.d1): event.d2 for event in played if event.status == 0x90}
    return {(*note, velocities[note]) for note in listening.hanging(played)}


class LayerPresetsTest(unittest.TestCase):
    def take(self, preset):
        return listening.Take("desk", f'preset load layers "{preset}"')

    def play(self, take):
        with DataFolder(PROGRAM) as data:
            return listening.events(data.run(take.lines))

    def testEachPresetIsHeard(self):
        self.assertEqual(sorted({*HELD, *ARPEGGIOS, *TOGGLED}), presets("layers"))

    # The presets are loaded one after the other in one desk, so that anything left behind shows in the next one.
    def testHeldKeys(self):
        take = listening.Take("desk")
        times = []
        for preset, rows in HELD.items():
            take.add(f'preset load layers "{preset}"')
            for keys, expected in rows:
                take.press(*keys.split())
                take.wait(100)
                times.append((preset, keys, expected, take.now))
                take.release(*keys.split())
                take.wait(100)
        played = self.play(take)
        for preset, keys, expected, time in times:
            with self.subTest(preset=preset, keys=keys):
                self.assertEqual(expected, sounding(listening.between(played, 0, time)))

    def testTouch(self):
        take = listening.Take("desk")
        times = []
        for preset, rows in TOUCHED.items():
            take.add(f'preset load layers "{preset}"')
            for velocity, expected in rows:
                take.add(f"event 0x90 60 {velocity} in=0")
                take.wait(100)
                times.append((preset, velocity, expected, take.now))
                take.add("event 0x80 60 64 in=0")
                take.wait(100)
        played = self.play(take)
        for preset, velocity, expected, time in times:
            with self.subTest(preset=preset, velocity=velocity):
                self.assertEqual(expected, sounding(listening.between(played, 0, time)))
        self.assertEqual([], listening.hanging(played))

    def testArpeggios(self):
        take = listening.Take("desk")
        starts = []
        for preset, (keys, length, _) in ARPEGGIOS.items():
            take.add(f'preset load layers "{preset}"')
            take.press(*keys.split())
            starts.append(take.now + listening.STEP)  # A key is heard one slice later.
            take.wait(listening.STEP + length)
            take.release(*keys.split())
            take.wait(listening.PAUSE)
        played = self.play(take)
        for (preset, (_, length, expected)), start in zip(ARPEGGIOS.items(), starts):
            with self.subTest(preset=preset):
                begins = listening.onsets(listening.between(played, start, start + length), start)
                self.assertEqual(sorted(expected), sorted(begins))

    def testMonoReturnsToTheOlderKey(self):
        for preset in ("016 - Mono Lead", "017 - Mono Lead over Chords"):
            take = self.take(preset)
            take.press("Q", "E")
            take.wait(100)
            take.release("E")
            take.wait(100)
            self.assertEqual([(0, 60)], listening.hanging(self.play(take)), preset)

    def testDronesGoOnUntilTheyArePressedAgain(self):
        take = self.take("013 - Toggled Drones")
        heard = []
        for key in ("Z", "B", "Z", "B"):
            take.press(key)
            take.wait(100)
            take.release(key)
            take.press("Q")
            take.wait(100)
            heard.append(take.now)
            take.release("Q")
            take.wait(100)
        played = self.play(take)
        self.assertEqual([[(0, 60), (1, 36)], [(0, 60), (1, 36), (1, 43)], [(0, 60), (1, 43)], [(0, 60)]],
                         [listening.hanging(listening.between(played, 0, time)) for time in heard])

    def testPedalStaysUntilTheNextOne(self):
        take = self.take("014 - Latched Bass Pedal")
        heard = []
        for key in ("Z", "B", "B"):
            take.press(key)
            take.wait(100)
            take.release(key)
            take.wait(100)
            heard.append(take.now)
        played = self.play(take)
        self.assertEqual([[(1, 36)], [(1, 43)], []],
                         [listening.hanging(listening.between(played, 0, time)) for time in heard])


if __name__ == "__main__":
    PROGRAM = sys.argv[1:]
    unittest.main(argv=sys.argv[:1])
