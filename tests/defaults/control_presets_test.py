#!/usr/bin/env python3
"""Every control of the control presets sends what its name says, and each fits on the grid.

usage: control_presets_test.py PROGRAM...
"""
import re
import sys
import unittest
import xml.etree.ElementTree

import listening
from desk import DEFAULTS, DataFolder, presets

PROGRAM = []
GRID = 16
VALUE = 11

CONTROLLER, PROGRAM_CHANGE, PRESSURE, SONG, POSITION, BEND = 0xb0, 0xc0, 0xd0, 0xf3, 0xf2, 0xe0


def sends(*controllers, channel=0):
    """The events of controls that send these controllers."""
    return [[(CONTROLLER, number, VALUE, channel)] for number in controllers]


def row(number, first, events, step=1):
    """The events of the controls of a row of the grid, from its column first."""
    return {f"{number},{first + step * i}": each for i, each in enumerate(events)}


def column_of_channels(rows):
    """The same controllers on each of the 16 channels: one column a channel, from {row: controller}."""
    return {f"{number},{channel}": [(CONTROLLER, controller, VALUE, channel)]
            for channel in range(GRID) for number, controller in rows.items()}


BENDER = [[(BEND, VALUE, 0, 0)]]
# What a change of one of three linked controls sends.
BANK = [[(CONTROLLER, 0, VALUE, 0), (CONTROLLER, 32, 0, 0), (PROGRAM_CHANGE, 0, 0, 0)],
        [(CONTROLLER, 0, VALUE, 0), (CONTROLLER, 32, VALUE, 0), (PROGRAM_CHANGE, 0, 0, 0)],
        [(CONTROLLER, 0, VALUE, 0), (CONTROLLER, 32, VALUE, 0), (PROGRAM_CHANGE, VALUE, 0, 0)]]
BAND = [0, 1, 2, 3, 4, 5, 6, 9]  # Channels.
TOUCH = [[(PRESSURE, VALUE, 0, 0)]]

# Preset by preset what each control sends when it is moved to VALUE, in the order of the moves.
EXPECTED = {
    "000 - Default": row(0, 0, [*BENDER, *sends(1, 7, 64), *TOUCH, *BANK]) |
                     row(2, 0, [*BENDER, *sends(1, 7, 10), *TOUCH]),
    "001 - Performance": row(0, 0, [*BENDER, *sends(1, 2, 4, 11), *TOUCH]) | row(0, 7, sends(64, 66, 67, 65, 68)) |
                         row(2, 10, sends(5, 84)) | row(3, 0, [*BENDER, *sends(1, 2, 4, 11), *TOUCH]) |
                         row(3, 7, sends(7, 10, 8)),
    "002 - Organ Drawbars": row(0, 0, sends(*range(102, 111))) | row(0, 10, sends(11, 1, 80)) |
                            row(2, 11, sends(92, 83)) | row(3, 11, sends(91, 82)),
    "003 - Mixer 16 Volumes and Pans": column_of_channels({0: 10, 1: 7, 5: 7}),
    "004 - Mixer 16 Effects Sends": column_of_channels({1: 91, 2: 93, 3: 94, 4: 95}),
    "005 - Synth Filter and Envelope": row(0, 0, sends(74, 71)) | row(0, 3, sends(73, 75, 72)) |
                                       row(0, 7, sends(76, 77, 78)) | row(4, 0, sends(74, 71)) |
                                       row(4, 3, sends(73, 75, 72)) | row(4, 7, sends(76, 77, 78)) |
                                       {"0,11": sends(70)[0], "1,11": sends(5)[0], "2,11": sends(65)[0]} |
                                       row(0, 13, [*BENDER, *sends(1)]),
    "006 - Effects Sends": row(0, 0, sends(91, 92, 93, 94, 95, 12, 13)) | row(4, 0, sends(91, 92, 93, 94, 95, 12, 13)),
    "007 - Bank and Program": row(0, 0, BANK) | row(0, 4, sends(7, 7), step=4),
    "008 - Bank and Program 16 Channels": {f"{number + 1},{channel}": [(*event[:3], channel) for event in events]
                                           for channel in range(GRID) for number, events in enumerate(BANK)},
    "009 - General MIDI Band": {f"{number},{column}": [(*event, channel)]
                                for column, channel in enumerate(BAND)
                                for number, event in ((1, (PROGRAM_CHANGE, VALUE, 0)), (2, (CONTROLLER, 7, VALUE)),
                                                      (5, (CONTROLLER, 10, VALUE)), (6, (CONTROLLER, 91, VALUE)))} |
                               row(0, 9, [*BENDER, *sends(1)]),
    "010 - Live Remote 8 x 3": row(0, 0, sends(16, 17, 18, 19, 80, 81, 82, 83)) | row(1, 0, sends(*range(20, 28))) |
                               row(5, 0, sends(*range(102, 110))),
    "011 - Pads 4 x 4": {f"{2 * (pad // 4)},{2 * (pad % 4)}": sends(102 + pad)[0] for pad in range(16)},
    "012 - Bend Range and Tuning": row(0, 0, sends(101, 100, 6, 38)) | {"1,0": sends(6)[0], "2,0": BENDER[0]},
    "013 - Song Select and Position": {cell: [(status, VALUE, 0, 0)] for cell, status in
                                       (("0,0", SONG), ("0,2", POSITION), ("1,0", SONG), ("2,0", POSITION))},
    "014 - Channel Mode": row(0, 0, sends(120, 121, 123)) | row(0, 4, sends(122)) | row(0, 6, sends(126, 127)),
}


def control_elements():
    """The Controls elements of all presets and programs, by a name for messages."""
    for name in presets("controls"):
        yield name, xml.etree.ElementTree.parse(DEFAULTS / "Control Presets" / f"{name}.pst").getroot()
    for bank in DEFAULTS.glob("*.bnk"):
        for program in xml.etree.ElementTree.parse(bank).getroot():
            yield program.get("name"), program.find("Controls")


def covered_cells(control):
    cell_row, column = map(int, control.get("cell").split(","))
    rows = int(control.get("size")) if control.get("type") == "vfader" else 1
    columns = int(control.get("size")) if control.get("type") == "hfader" else 1
    return [(cell_row + i, column + j) for i in range(rows) for j in range(columns)]


class ControlPresetsTest(unittest.TestCase):
    def testEachPresetIsPlayed(self):
        self.assertEqual(sorted(EXPECTED), presets("controls"))

    def testControlsSendWhatTheyAreFor(self):
        with DataFolder(PROGRAM) as data:
            for preset, cells in EXPECTED.items():
                take = listening.Take("desk", f'preset load controls "{preset}"')
                starts = []
                for cell in cells:
                    starts.append(take.now)
                    take.add(f"control {cell} {VALUE}")
                    take.wait(2 * listening.STEP)
                played = listening.events(data.run(take.lines))
                for (cell, expected), start in zip(cells.items(), starts):
                    with self.subTest(preset=preset, cell=cell):
                        sent = listening.between(played, start, start + 2 * listening.STEP)
                        self.assertEqual(expected, [event[1:] for event in sent])

    def testEveryControlIsPlayed(self):
        for preset, root in control_elements():
            if preset in EXPECTED:
                cells = [control.get("cell") for control in root if control.get("type") != "label"]
                self.assertEqual(sorted(EXPECTED[preset]), sorted(cells), preset)

    def testValuesLieInTheirRanges(self):
        for name, root in control_elements():
            for control in root:
                value, end, other, release = (int(control.get(key)) for key in ("value", "min", "max", "release"))
                self.assertTrue(min(end, other) <= value <= max(end, other), (name, control.attrib))
                self.assertTrue(release == -1 or min(end, other) <= release <= max(end, other), (name, control.attrib))

    def testControlsFitOnTheGrid(self):
        for name, root in control_elements():
            taken = [cell for control in root for cell in covered_cells(control)]
            self.assertEqual(len(taken), len(set(taken)), name)
            self.assertTrue(all(0 <= each < GRID for cell in taken for each in cell), name)

    def testOneControlForEachSelectedProgram(self):
        # A program change of two controls would be sent twice when its bank changes.
        for name, root in control_elements():
            channels = [event.get("channel") for event in root.iter("Function")
                        if re.match("Program Change", event.get("midiEvent"))]
            self.assertEqual(len(channels), len(set(channels)), name)


if __name__ == "__main__":
    PROGRAM = sys.argv[1:]
    unittest.main(argv=sys.argv[:1])
