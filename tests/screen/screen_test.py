"""The desk as users see it: a program on a screen, with a mouse and a keyboard.

Runs on an X server without a window manager; MIREL_CONSOLE is the program, MIREL_LOOP_DRIVER a driver of MIDI devices.
"""
import os
import pathlib
import shutil
import subprocess
import unittest

from screen import (BUTTON, BUTTON_THAT_IS_ON, TEXT, WINE, Console, click, drag, eventually, move, xdotool)

NOTE_ON = 0x90
NOTE_OFF = 0x80
CONTROLLER = 0xb0
ALL_SOUND_OFF = 120


def key(name, *functions, use_key_up_mod=False):
    """A key's entry in a program. Its release looks at modifiers only if they are used."""
    return (f'<ComputerInput merge="false" useKeyUpMod="{str(use_key_up_mod).lower()}">'
            f'<Key id="{name}">{"".join(functions)}</Key></ComputerInput>')


def note(number):
    return (f'<Function><Down><MidiNoteOn channel="0" note="{number}" velocity="100"/></Down>'
            f'<Up><MidiNoteOff channel="0" note="{number}" velocity="100"/></Up></Function>')


def repeated(function):
    return f'<Function keepSending="true"><Down>{function}</Down></Function>'


class KeyTest(unittest.TestCase):
    def test_keys_play(self):
        with Console() as desk:
            desk.open_log()
            xdotool("key", "q")
            xdotool("keydown", "w", "keydown", "e", "keyup", "w", "keyup", "e")
            desk.wait_for_log(lines=7)
            self.assertEqual(desk.close(), 0)
            self.assertEqual(desk.played(), [(NOTE_ON, 60, 100), (NOTE_OFF, 60, 100), (NOTE_ON, 62, 100),
                                             (NOTE_ON, 64, 100), (NOTE_OFF, 62, 100), (NOTE_OFF, 64, 100)])

    def test_keys_of_a_bank_play(self):
        with Console("--bank", "data/Factory.bnk") as desk:
            eventually(lambda: desk.find_window("Grand Piano - Factory"), "the bank is loaded")
            desk.open_log()
            desk.wait_for_log(lines=5)  # What the program begins with.
            xdotool("key", "2")
            desk.wait_for_log(lines=7)
            self.assertEqual(desk.close(), 0)
            self.assertEqual(desk.played()[-2:], [(NOTE_ON, 61, 100), (NOTE_OFF, 61, 100)])

    def test_a_held_key_starts_its_note_once(self):
        with Console(program=key("Q", note(60), repeated('<MoveWindow x="+1" y=""/>'))) as desk:
            desk.open_log()
            left = desk.rect()[0]
            xdotool("keydown", "q")
            eventually(lambda: desk.rect()[0] >= left + 4, "the key repeats")
            xdotool("keyup", "q")
            desk.wait_for_log(lines=3)
            self.assertEqual(desk.close(), 0)
            self.assertEqual(desk.played(), [(NOTE_ON, 60, 100), (NOTE_OFF, 60, 100)])

    def test_modifiers_belong_to_a_key(self):
        with Console(program=key("Control Q", note(70), use_key_up_mod=True)) as desk:
            desk.open_log()
            # The desk looks at the modifiers when it gets to the key, so they stay until then.
            xdotool("keydown", "ctrl", "keydown", "q")
            desk.wait_for_log(lines=2)
            xdotool("keyup", "q")
            desk.wait_for_log(lines=3)
            xdotool("keyup", "ctrl")
            xdotool("key", "q")
            self.assertEqual(desk.close(), 0)
            self.assertEqual(desk.played(), [(NOTE_ON, 70, 100), (NOTE_OFF, 70, 100)])

    def test_another_window_ends_the_notes_of_held_keys(self):
        with Console() as desk, Console() as other:
            left, top, width, height = desk.rect()
            drag(other.point(300, 12), (left + 300, top - 200))  # They come up in one place.
            eventually(lambda: other.rect()[1] < top - height, "the other window is moved")
            desk.click(300, 12)
            desk.open_log()
            xdotool("keydown", "q")
            desk.wait_for_log(lines=2)
            other.click(300, 12)
            desk.wait_for_log(lines=3)
            xdotool("keyup", "q")
            desk.click(300, 12)
            xdotool("key", "w")
            desk.wait_for_log(lines=5)
            self.assertEqual(desk.close(), 0)
            self.assertEqual(other.close(), 0)
            self.assertEqual(desk.played(), [(NOTE_ON, 60, 100), (NOTE_OFF, 60, 100), (NOTE_ON, 62, 100),
                                             (NOTE_OFF, 62, 100)])
            self.assertEqual(other.played(), [])

    def test_a_dialog_ends_the_notes_of_held_keys(self):
        with Console() as desk:
            desk.open_log()
            xdotool("keydown", "q")
            desk.wait_for_log(lines=2)
            desk.press("S")
            desk.dialog("Mirel Console Setup")
            desk.wait_for_log(lines=3)
            xdotool("keyup", "q", "key", "Escape")
            eventually(lambda: not desk.find_window("Mirel Console Setup"), "the setup is gone")
            xdotool("key", "w")
            desk.wait_for_log(lines=5)
            self.assertEqual(desk.close(), 0)
            self.assertEqual(desk.played(), [(NOTE_ON, 60, 100), (NOTE_OFF, 60, 100), (NOTE_ON, 62, 100),
                                             (NOTE_OFF, 62, 100)])


class ButtonTest(unittest.TestCase):
    def test_screens_come_and_go(self):
        with Console() as desk:
            self.assertEqual(desk.button_colour("OUT"), BUTTON_THAT_IS_ON)
            for button in ("DISP", "?", "CTRL"):
                height = desk.height()
                desk.press(button)
                eventually(lambda: desk.height() > height, f"{button} opens its screen")
                eventually(lambda: desk.button_colour(button) == BUTTON_THAT_IS_ON, f"{button} is bright")
                desk.press(button)
                eventually(lambda: desk.height() == height, f"{button} closes its screen")
                eventually(lambda: desk.button_colour(button) == BUTTON, f"{button} is dark")
            self.assertEqual(desk.close(), 0)

    def test_help_tells_of_what_is_under_the_pointer(self):
        with Console() as desk:
            height = desk.height()
            desk.press("?")
            eventually(lambda: desk.height() > height, "the help shows")

            def text():
                return desk.picture(15, 62, 450, 100)

            move(*desk.point(*desk.BUTTONS["R"]))
            eventually(lambda: text().count(TEXT) > 100, "the help has words")
            of_reset = text()
            move(*desk.point(*desk.BUTTONS["K"]))
            eventually(lambda: text() != of_reset and text().count(TEXT) > 100, "the help has other words")
            self.assertEqual(desk.close(), 0)

    def test_reset_silences_the_output(self):
        with Console() as desk:
            desk.open_log()
            xdotool("keydown", "q")
            desk.wait_for_log(lines=2)
            desk.press("R")
            xdotool("keyup", "q")
            self.assertEqual(desk.close(), 0)
            played = desk.played()
            self.assertEqual(played[:2], [(NOTE_ON, 60, 100), (NOTE_OFF, 60, 100)])
            self.assertEqual([event[0] - CONTROLLER for event in played if event[1:] == (ALL_SOUND_OFF, 0)],
                             list(range(16)))

    def test_the_global_keyboard_is_a_setting(self):
        with Console() as desk:
            desk.press("K")
            eventually(lambda: desk.button_colour("K") == BUTTON_THAT_IS_ON, "K is bright")
            self.assertEqual(desk.close(), 0)
            self.assertEqual(desk.setting("GlobalKeyboard"), "1")

    def test_arrows_choose_the_output(self):
        drivers = pathlib.Path(os.environ["WINEPREFIX"], "drive_c", "windows", "system32")
        shutil.copy(os.environ["MIREL_LOOP_DRIVER"], drivers / "winefake.drv")
        subprocess.run([WINE, "reg", "add", r"HKCU\Software\Wine\Drivers", "/v", "Audio", "/d", "fake", "/f"],
                       check=True, capture_output=True)
        with Console() as desk:
            # It begins in the middle of three, and there is nothing beyond the first and the last.
            eventually(lambda: desk.output_name().count(TEXT) > 0, "the output shows")
            middle = desk.output_name()
            desk.press("next")
            eventually(lambda: desk.output_name() != middle, "the last output is chosen")
            last = desk.output_name()
            desk.press("next")
            desk.press("previous")
            eventually(lambda: desk.output_name() == middle, "the output before the last is chosen")
            desk.press("previous")
            eventually(lambda: desk.output_name() not in (middle, last), "the first output is chosen")
            desk.press("next")
            eventually(lambda: desk.output_name() == middle, "the output in the middle is chosen")
            self.assertEqual(desk.close(), 0)
            self.assertEqual(desk.setting("DefaultMidiOutput"), "1")


class LogTest(unittest.TestCase):
    def test_its_menu_clears_it(self):
        with Console() as desk:
            desk.open_log()
            xdotool("key", "q")
            desk.wait_for_log(lines=3)
            desk.click(100, 120, button=3)
            eventually(lambda: desk.picture(105, 125, 30, 1).count(BUTTON) > 0, "the menu shows")
            desk.click(115, 128)
            desk.wait_for_log(lines=0)
            xdotool("key", "q")
            desk.wait_for_log(lines=2)
            self.assertEqual(desk.close(), 0)

    def test_its_bottom_edge_goes_where_it_is_dragged(self):
        with Console() as desk:
            desk.open_log()
            height = desk.height()
            edge = desk.LOG_TOP + 190
            drag(desk.point(200, edge), desk.point(200, edge + 30), desk.point(200, edge + 57))
            eventually(lambda: desk.height() > height, "the log is higher")
            higher = desk.height()
            drag(desk.point(200, edge + 50), desk.point(200, edge + 45), desk.point(200, edge + 37))
            eventually(lambda: desk.height() == higher - 20, "the log is lower")
            self.assertEqual(desk.close(), 0)
            self.assertEqual(int(desk.setting("DisplayHeight")), 200 + higher - height - 20)


class SetupTest(unittest.TestCase):
    VELOCITY = (184, 100)
    OK = (157, 308)
    CANCEL = (236, 308)

    def turn(self, sheet, steps):
        """Turns the wheel over the velocity, and waits for the value to change each time."""
        for _ in range(steps):
            before = sheet.picture(160, 92, 48, 16)
            sheet.click(*self.VELOCITY, button=4)
            eventually(lambda: sheet.picture(160, 92, 48, 16) != before, "the velocity is another")

    def setup(self, button):
        with Console() as desk:
            desk.press("S")
            sheet = desk.dialog("Mirel Console Setup")
            eventually(lambda: sheet.picture(160, 92, 48, 16).count(TEXT) > 0, "the velocity shows")
            self.turn(sheet, 3)
            sheet.click(*button)
            eventually(lambda: not desk.find_window("Mirel Console Setup"), "the setup is gone")
            desk.open_log()
            xdotool("key", "q")
            desk.wait_for_log(lines=3)
            self.assertEqual(desk.close(), 0)
            return desk.played()[0], desk.setting("LiteVelocity")

    def test_a_velocity_of_the_wheel_is_played(self):
        played, setting = self.setup(self.OK)
        self.assertEqual(setting, "103")
        self.assertEqual(played, (NOTE_ON, 60, 103))

    def test_cancel_keeps_the_velocity(self):
        played, setting = self.setup(self.CANCEL)
        self.assertIn(setting, (None, "100"))
        self.assertEqual(played, (NOTE_ON, 60, 100))


class FrameTest(unittest.TestCase):
    def test_its_caption_moves_it(self):
        with Console() as desk:
            left, top, *size = desk.rect()
            drag(desk.point(300, 12), (left + 250, top - 30), (left + 200, top - 88))
            eventually(lambda: desk.rect() == (left - 100, top - 100, *size), "the window is moved")
            self.assertEqual(desk.close(), 0)

    def test_its_close_button_may_be_let_go_elsewhere(self):
        with Console() as desk:
            width = desk.rect()[2]
            drag(desk.point(width - 13, 12), desk.point(300, 90))
            desk.press("K")
            eventually(lambda: desk.button_colour("K") == BUTTON_THAT_IS_ON, "the desk goes on")
            self.assertTrue(desk.is_running())
            self.assertEqual(desk.close(), 0)


if __name__ == "__main__":
    unittest.main()
