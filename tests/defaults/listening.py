"""What a desk sounds like: which notes it starts, and which of them keep sounding."""
import collections
import re

STEP = 10  # ppq of a slice
PAUSE = 2000  # ppq: longer than the beat of any arpeggio

Event = collections.namedtuple("Event", "time status d1 d2 channel")


def events(lines):
    """The events in the lines that a script printed."""
    found = []
    for line in lines:
        match = re.match(r"@(-?\d+) play 0x(\w\w) (\d+) (\d+) ch=(\d+) out=0$", line)
        if match:
            time, status, *rest = match.groups()
            found.append(Event(int(time), int(status, 16), *map(int, rest)))
    return found


def hanging(played):
    """The (channel, note) pairs that sound after all events, sorted."""
    sounding = collections.Counter()
    for event in played:
        note = (event.channel, event.d1)
        if event.status == 0x90:
            sounding[note] += 1
        elif event.status == 0x80:
            sounding[note] = 0
        elif event.status == 0xb0 and event.d1 == 120:  # All sound off.
            for each in [each for each in sounding if each[0] == event.channel]:
                del sounding[each]
    return sorted(note for note, count in sounding.items() if count > 0)


def onsets(played, start):
    """The notes that begin, as (ppq after start, channel, note)."""
    return [(event.time - start, event.channel, event.d1) for event in played if event.status == 0x90]


class Take:
    """A script with a clock: it records commands and when they happen."""

    def __init__(self, *lines):
        self.now = 0
        self.lines = [*lines]
        self.wait(100)  # What the set-up sends of its own.

    def wait(self, ppq):
        self.lines.append(f"run {self.now} {self.now + ppq} {STEP}")
        self.now += ppq

    def press(self, *keys):
        self.lines += [f'key down "{key}"' for key in keys]

    def release(self, *keys):
        self.lines += [f'key up "{key}"' for key in keys]

    def add(self, line):
        self.lines.append(line)


def between(played, start, end):
    return [event for event in played if start <= event.time < end]
