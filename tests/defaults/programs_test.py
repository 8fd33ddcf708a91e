#!/usr/bin/env python3
"""Every program of the bank can be played from the computer's keyboard and does what its name says.

usage: programs_test.py PROGRAM...

Of the built-in map: Q W E R T are C4 to G4 and I is C5 in the first zone, Z X C V B are C3 to G3 in the second.
"""
import re
import sys
import unittest

import listening
from desk import DEFAULTS, DataFolder, presets

PROGRAM = []
BANK = "Factory.bnk"
TEXT = (DEFAULTS / BANK).read_text()
NAMES = re.findall(r'<Program name="([^"]*)"', TEXT)


class Row:
    """What is expected of a program: its tempo, the General MIDI sounds it selects by channel, and what begins while
    keys are held for some ppq, as (ppq, channel, note)."""

    def __init__(self, name, tempo, sounds, keys, begins, length=40):
        self.name, self.tempo, self.sounds = name, tempo, sounds
        self.keys, self.begins, self.length = keys, begins, length


def at_once(*notes):
    return [(0, *note) for note in notes]


ROWS = [
    Row("Grand Piano", 120, {0: 0}, "Q Z", at_once((0, 60), (0, 48))),
    Row("Piano and Bass Split", 110, {0: 0, 1: 32}, "Q Z", at_once((0, 60), (1, 36))),
    Row("Piano with Strings", 80, {0: 0, 1: 48}, "Q", at_once((0, 60), (1, 60))),
    Row("Bass, Electric Piano and Flute", 100, {0: 73, 1: 4, 2: 33}, "Z Q I", at_once((2, 36), (1, 60), (0, 72))),
    Row("Drawbar Organ, Two Manuals", 120, {0: 16, 1: 16}, "Q Z", at_once((0, 60), (1, 48))),
    Row("Church Organ and Latched Pedal", 70, {0: 19, 1: 19}, "Z Q", at_once((1, 36), (0, 60))),
    Row("Mono Lead over Pad", 96, {0: 81, 1: 89}, "Z C Q", at_once((1, 48), (1, 52), (0, 60))),
    Row("Sitar over Toggled Drones", 60, {0: 104, 1: 89}, "Z Q", at_once((1, 36), (0, 60))),
    Row("Bagpipes", 76, {0: 109, 1: 109}, "Q", at_once((0, 60), (1, 48), (1, 55))),
    Row("Marimba in Thirds, C Major", 120, {0: 12}, "E", at_once((0, 64), (0, 67))),
    Row("Violin and Strings, Triads in G", 84, {0: 40, 1: 48}, "T", at_once((0, 67), (1, 71), (1, 74))),
    Row("Choir in Parallel Fifths", 60, {0: 52}, "Q", at_once((0, 60), (0, 67), (0, 72))),
    Row("Power Chords and Solo", 140, {0: 29, 1: 30}, "Z Q", at_once((1, 36), (1, 43), (1, 48), (0, 60))),
    Row("Arpeggio Up Two Octaves", 128, {0: 81}, "Q E", [(0, 0, 60), (120, 0, 64), (240, 0, 72), (360, 0, 76)], 480),
    Row("Bells Up and Down", 72, {0: 9}, "Q E T", [(0, 0, 60), (160, 0, 64), (320, 0, 67), (480, 0, 64)], 640),
    Row("Hocket of Four Players", 112, {0: 11, 1: 9, 2: 45, 3: 46}, "Q",
        [(0, 0, 60), (120, 1, 72), (240, 2, 60), (360, 3, 48)], 480),
    Row("Gated Pad", 126, {0: 90}, "Q", [(0, 0, 60), (120, 0, 60), (360, 0, 60)], 480),
    Row("Bass Riff and Saxophone", 104, {0: 65, 1: 33}, "Z Q",
        [(0, 1, 36), (0, 0, 60), (480, 1, 36), (720, 1, 48)], 960),
    Row("One-Finger Band in C", 100, {0: 56, 1: 33, 2: 0, 9: 0}, "Z Q",
        [(0, 0, 60), (0, 1, 36), (0, 2, 60), (0, 2, 64), (0, 2, 67), (0, 9, 36), (0, 9, 42), (240, 1, 43),
         (240, 9, 42)], 480),
    Row("Bossa Trio with Flute", 132, {0: 73, 1: 32, 2: 24, 9: 0}, "Z Q",
        [(0, 0, 60), (0, 1, 36), (0, 2, 60), (0, 2, 64), (0, 2, 67), (0, 9, 36), (0, 9, 37), (0, 9, 42), (120, 9, 42),
         (240, 1, 43), (240, 9, 42), (360, 9, 36), (360, 9, 37), (360, 9, 42)], 480),
    Row("Techno Box", 138, {0: 80, 1: 38, 2: 90, 9: 0}, "Z",
        [(0, 2, 60), (0, 9, 36), (0, 9, 42), (120, 2, 60), (240, 1, 24), (240, 9, 42), (360, 2, 60)], 480),
    Row("Three against Two", 90, {0: 108, 1: 11}, "Q",
        [(0, 0, 60), (0, 1, 72), (320, 1, 72), (480, 0, 60), (640, 1, 72)], 960),
    Row("Soft and Loud by Shift", 100, {0: 4, 1: 62}, "Q", at_once((1, 60))),
    Row("Finger Drums", 100, {9: 0}, "Z X C", at_once((9, 36), (9, 38), (9, 42))),
    Row("Chord Buttons and Melody", 92, {0: 21, 1: 24}, "X Q", at_once((1, 50), (1, 53), (1, 57), (0, 60))),
    Row("Positions on F5 to F11", 120, {0: 0, 1: 4}, "Q Z", at_once((0, 60), (1, 48))),
    Row("Stage Keys", 120, {0: 0, 1: 48}, "Q", at_once((0, 60), (1, 60))),
    Row("Tempo Keys on F5 to F11", 120, {0: 0, 1: 46}, "Z I",
        [(0, 0, 72), (0, 1, 48), (120, 1, 60), (240, 1, 48)], 360),
    Row("General MIDI Sounds on F5 to F12", 120, {0: 0, 1: 32, 2: 25, 3: 48, 4: 61, 5: 73, 6: 81, 9: 0}, "Q Z",
        at_once((0, 60), (1, 36))),
    Row("Sequencer Remote", 120, {}, "Q", at_once((0, 60))),
]

# Programs whose layers are those of a layer preset.
SHARED_LAYERS = {
    "Piano and Bass Split": "002 - Split by Keyboard",
    "Piano with Strings": "004 - Stack of Two",
    "Bass, Electric Piano and Flute": "003 - Three-Way Split",
    "Drawbar Organ, Two Manuals": "020 - Organ Manuals",
    "Church Organ and Latched Pedal": "014 - Latched Bass Pedal",
    "Mono Lead over Pad": "017 - Mono Lead over Chords",
    "Sitar over Toggled Drones": "013 - Toggled Drones",
    "Bagpipes": "015 - Bagpipe Drones",
    "Marimba in Thirds, C Major": "009 - Thirds in C",
    "Violin and Strings, Triads in G": "011 - Triads in G",
    "Choir in Parallel Fifths": "007 - Parallel Fifths",
    "Arpeggio Up Two Octaves": "021 - Arpeggio Up Two Octaves",
    "Bells Up and Down": "023 - Arpeggio Up and Down",
    "Hocket of Four Players": "026 - Hocket of Four",
    "Gated Pad": "025 - Chord Gate",
    "Bass Riff and Saxophone": "029 - Bass Riff and Lead",
    "One-Finger Band in C": "031 - One-Finger Band in C",
    "Three against Two": "027 - Three against Two",
    "Soft and Loud by Shift": "018 - Velocity Split at 80",
    "Tempo Keys on F5 to F11": "028 - Lead over Arpeggio",
}


def number(name):
    return NAMES.index(name)


def block(name):
    return re.findall(r"<Program .*?</Program>", TEXT, re.DOTALL)[number(name)]


class ProgramsTest(unittest.TestCase):
    def setUp(self):
        self.data = self.enterContext(DataFolder(PROGRAM))

    def take(self, name):
        return listening.Take("outputs 1", f"bank {BANK}", f"select {number(name)}")

    def play(self, take):
        return listening.events(self.data.run(take.lines))

    def testNamesAreOnesOfTheirOwn(self):
        self.assertEqual([row.name for row in ROWS], NAMES)
        self.assertEqual(len(NAMES), len(set(NAMES)))

    # One after the other in one desk, so that anything a program leaves behind shows in the next one.
    def testProgramsPlay(self):
        take = listening.Take("outputs 1", f"bank {BANK}")
        starts = []
        for index, row in enumerate(ROWS):
            take.add(f"select {index}")
            take.wait(100)
            take.press(*row.keys.split())
            starts.append(take.now + listening.STEP)  # A key is heard one slice later.
            take.wait(listening.STEP + row.length)
            take.release(*row.keys.split())
            take.wait(listening.PAUSE)
        played = self.play(take)
        for row, start in zip(ROWS, starts):
            with self.subTest(program=row.name):
                begins = listening.onsets(listening.between(played, start, start + row.length), start)
                self.assertEqual(sorted(row.begins), sorted(begins))

    def testProgramsSelectTheirSounds(self):
        take = listening.Take("outputs 1", f"bank {BANK}")
        starts = []
        for index in range(len(ROWS)):
            starts.append(take.now)
            take.add(f"select {index}")
            take.wait(100)
        played = self.play(take)
        for row, start in zip(ROWS, starts):
            with self.subTest(program=row.name):
                sent = listening.between(played, start, start + 100)
                sounds = [(event.channel, event.d1) for event in sent if event.status == 0xc0]
                self.assertEqual(sorted(row.sounds.items()), sorted(sounds))

    def testTempos(self):
        lines = [line for index in range(len(ROWS)) for line in (f"select {index}", "print tempo")]
        tempos = [int(re.search(r"\d+", line).group()) for line in self.data.run([f"bank {BANK}", *lines])]
        self.assertEqual([row.tempo for row in ROWS], tempos)

    def testKeyPresetsOfProgramsExist(self):
        for name in NAMES:
            for preset in re.findall(r'<ComputerInput preset="([^"]*)"', block(name)):
                self.assertIn(preset, presets("keys"), name)
            for kind, tag in (("keys", "ComputerInput"), ("layers", "Layer"), ("controls", "Control")):
                for preset in re.findall(f'<Load{tag}Preset preset="([^"]*)"', block(name)):
                    self.assertIn(preset, presets(kind), name)

    def testSharedLayersAreThoseOfThePresets(self):
        for name, preset in SHARED_LAYERS.items():
            lines = (DEFAULTS / "Layer Presets" / f"{preset}.pst").read_text().splitlines()[2:]
            self.assertIn("\n".join(f"\t{line}" for line in lines), block(name), name)

    # Reloads a program for each row, presses and releases its keys one after the other, then holds the last one.
    # Compares what begins then, as (channel, note).
    def checkHeardAfter(self, name, rows):
        take = listening.Take("outputs 1", f"bank {BANK}")
        starts = []
        for keys, last, _ in rows:
            take.add(f"select {number(name)}")
            take.wait(100)
            for key in keys:
                take.press(key)
                take.wait(50)
                take.release(key)
                take.wait(50)
            take.press(last)
            starts.append(take.now)
            take.wait(100)
            take.release(last)
        played = self.play(take)
        for (keys, last, expected), start in zip(rows, starts):
            with self.subTest(keys=keys, last=last):
                heard = listening.onsets(listening.between(played, start, start + 100), start)
                self.assertEqual(expected, sorted(note[1:] for note in heard))

    def testShiftPlaysSoft(self):
        take = self.take("Soft and Loud by Shift")
        take.press("Shift Q")
        take.wait(100)
        soft = take.now
        take.release("Shift Q")
        take.wait(100)
        off = take.now
        take.press("Q")
        take.wait(100)
        loud = take.now
        take.release("Q")
        take.wait(100)
        played = self.play(take)
        self.assertEqual([[(0, 60)], [], [(1, 60)], []],
                         [listening.hanging(listening.between(played, 0, time))
                          for time in (soft, off, loud, take.now)])

    def testChordButtonsEndTheirChords(self):
        take = self.take("Chord Buttons and Melody")
        take.press("V")
        take.wait(100)
        held = take.now
        take.release("V")
        take.wait(100)
        played = self.play(take)
        self.assertEqual([(1, 53), (1, 57), (1, 60)], listening.hanging(listening.between(played, 0, held)))
        self.assertEqual([], listening.hanging(played))

    def testPositionKeysMoveTheKeyboards(self):
        rows = []
        for keys, left, right in ((["F6"], 50, 60), (["F11"], 59, 60), (["Shift F6"], 48, 62), (["Control F5"], 36, 60),
                                  (["Shift Control F11"], 48, 59), (["F9", "Shift F8"], 55, 65),
                                  (["F9", "F5"], 48, 60)):
            rows += [(keys, "Z", [(1, left)]), (keys, "Q", [(0, right)])]
        self.checkHeardAfter("Positions on F5 to F11", rows)

    def testStageKeysChangeWhatPlays(self):
        both = [(0, 60), (1, 60)]
        self.checkHeardAfter("Stage Keys", [
            ([], "Q", both),
            (["Control F5"], "Q", [(1, 60)]),
            (["Control F6"], "Q", [(0, 60)]),
            (["Control F5", "Control F5"], "Q", both),
            (["Shift Control F6"], "Q", [(1, 60)]),
            (["Shift Control F6", "Shift Control F6"], "Q", both),
            (["Control F2"], "Q", [(0, 61), (1, 61)]),
            (["Control F1"], "Q", [(0, 59), (1, 59)]),
            (["F9"], "Z", [(1, 36)]),
            (["F11"], "Z", [(0, 48)]),
            (["F9", "F10"], "Q", both),
            (["Escape"], "Q", both),
        ])

    # What the desk prints after keys of a program, for each row of keys.
    def printed(self, name, rows, what):
        texts = []
        for keys in rows:
            lines = [f'key down "{key}"' for key in keys]
            texts.append("\n".join(self.data.run([f"bank {BANK}", f"select {number(name)}", *lines, f"print {what}"])))
        return texts

    def testStageKeysStepThroughPrograms(self):
        steps = {"F12": 1, "Shift F12": -1}
        for text, step in zip(self.printed("Stage Keys", [[key] for key in steps], "program"), steps.values()):
            self.assertIn(f'<Program name="{NAMES[number("Stage Keys") + step]}"', text)

    def testStageKeysLoadControls(self):
        loaded = {"Shift F9": "001 - Performance", "Shift F10": "005 - Synth Filter and Envelope",
                  "Shift F11": "000 - Default"}
        for text, preset in zip(self.printed("Stage Keys", [[key] for key in loaded], "controls"), loaded.values()):
            file = (DEFAULTS / "Control Presets" / f"{preset}.pst").read_text()
            self.assertEqual(file.split("\n", 2)[2].rstrip("\n"), text)

    def testKeysChangeTheTempo(self):
        rows = [("Stage Keys", ["Control Page Up"], 121), ("Stage Keys", ["Control Page Down"], 119),
                ("Stage Keys", ["Control Home"], 130), ("Stage Keys", ["Control End"], 110)]
        tempo_keys = "Tempo Keys on F5 to F11"
        rows += [(tempo_keys, [f"F{5 + i}"], tempo) for i, tempo in enumerate([60, 80, 100, 120, 140, 160, 180])]
        rows += [(tempo_keys, ["F7", "Control Page Up"], 101), (tempo_keys, ["F7", "Control Page Down"], 99)]
        lines = [f"bank {BANK}"]
        for name, keys, _ in rows:
            lines += [f"select {number(name)}", *[f'key down "{key}"' for key in keys], "print tempo"]
        tempos = [int(line.split()[0]) for line in self.data.run(lines)]
        self.assertEqual([tempo for _, _, tempo in rows], tempos)

    # Reloads a program for each row, presses its keys, and returns the events that each row sends.
    def sentBy(self, name, rows):
        take = listening.Take("outputs 1", f"bank {BANK}")
        starts = []
        for keys in rows:
            take.add(f"select {number(name)}")
            take.wait(100)
            starts.append(take.now)
            take.press(*keys)
            take.wait(100)
        played = self.play(take)
        return [[event[1:] for event in listening.between(played, start, start + 100)] for start in starts]

    def testKeysSelectGeneralMidiSounds(self):
        sounds = [0, 4, 16, 19, 24, 48, 56, 73]
        rows = [[f"F{5 + i}"] for i in range(len(sounds))]
        sent = self.sentBy("General MIDI Sounds on F5 to F12", [*rows, ["F6", "Control Page Up"]])
        self.assertEqual([*[[(0xc0, sound, 0, 0)] for sound in sounds], [(0xc0, 4, 0, 0), (0xc0, 5, 0, 0)]], sent)

    def testSequencerRemoteDrivesASequencer(self):
        rows = {"Insert": (0xfa, 0, 0), "Delete": (0xfc, 0, 0), "Home": (0xfb, 0, 0), "End": (0xf2, 0, 0)}
        rows |= {f"F{5 + song}": (0xf3, song, 0) for song in range(7)}
        sent = self.sentBy("Sequencer Remote", [[key] for key in rows])
        self.assertEqual([[event] for event in rows.values()], [[event[:3] for event in events] for events in sent])

    def testDrawbarsBelongToTheirManuals(self):
        name = "Drawbar Organ, Two Manuals"
        for cell, expected in (("0,1", [(0xb0, 103, 90, 0)]), ("0,11", [(0xb0, 104, 90, 1)]),
                               ("4,2", [(0xb0, 1, 90, 0), (0xb0, 1, 90, 1)])):
            take = self.take(name)
            start = take.now
            take.add(f"control {cell} 90")
            take.wait(100)
            played = listening.between(self.play(take), start, take.now)
            self.assertEqual(expected, [event[1:] for event in played], cell)

    def testTheOrganStartsWithItsRegistration(self):
        take = self.take("Drawbar Organ, Two Manuals")
        played = self.play(take)
        drawbars = {(event.channel, event.d1): event.d2 for event in played if event.status == 0xb0}
        self.assertEqual([127, 127, 127, 0, 0, 0, 0, 0, 0], [drawbars[0, 102 + i] for i in range(9)])
        self.assertEqual([0, 127, 90, 0, 0], [drawbars[1, number] for number in (102, 104, 105, 106, 107)])

    def testPedalAndDronesStay(self):
        for name, again in (("Church Organ and Latched Pedal", [(1, 43)]),
                            ("Sitar over Toggled Drones", [(1, 36), (1, 43)])):
            take = self.take(name)
            for key in ("Z", "B"):
                take.press(key)
                take.wait(100)
                take.release(key)
                take.wait(100)
            self.assertEqual(again, listening.hanging(self.play(take)), name)


if __name__ == "__main__":
    PROGRAM = sys.argv[1:]
    unittest.main(argv=sys.argv[:1])
