"""The objects that a screen reader finds in the pane, and the events that it receives."""
import unittest

import pyatspi

from case import PaneTest
from reader import actions, do, has_state, value

CAPTIONS = ["Pre", "60", "170", "310", "600", "1K", "3K", "6K", "12K", "14K", "16K"]
FINISHED = "com.quorvix.brimsound.settingsfinishnotify"
GAINS = [1.5, -2, 3, -4.5, 5, -6, 7, -8, 9.5, -12]


class ThePane(PaneTest):
    preferences = {"PREAMP": -9.5, "PEAKING_EQ_VALUES": GAINS, "AUTO_PREAMP": False}

    def test_is_a_window_with_a_name(self):
        window = self.reader.window()
        self.assertEqual(window.getRole(), pyatspi.ROLE_FRAME)
        self.assertEqual(window.name, "Brimsound")

    def test_has_every_slider_with_caption_value_range_and_unit(self):
        sliders = self.reader.all(pyatspi.ROLE_SLIDER)
        self.assertEqual([slider.name for slider in sliders], CAPTIONS)
        self.assertEqual([value(slider)[0] for slider in sliders], [-9.5, *GAINS])
        for slider in sliders:
            with self.subTest(slider.name):
                self.assertEqual(value(slider)[1:3], (-12, 12))
                self.assertGreater(value(slider)[3], 0)
                self.assertEqual(slider.description, "dB")
                self.assertEqual(actions(slider), ["Increase", "Decrease", "SetFocus"])
                self.assertState(slider, pyatspi.STATE_ENABLED, pyatspi.STATE_SENSITIVE,
                                 pyatspi.STATE_FOCUSABLE)

    def test_has_switches_that_say_whether_they_are_on(self):
        switches = self.reader.all(pyatspi.ROLE_CHECK_BOX)
        self.assertEqual([switch.name for switch in switches],
                         ["Enable Equalizer", "Show in Control Center", "Auto Preamp"])
        for switch in switches:
            self.assertState(switch, pyatspi.STATE_FOCUSABLE, pyatspi.STATE_SHOWING)
            self.assertEqual(actions(switch), ["Toggle", "SetFocus"])
        self.assertState(switches[0], pyatspi.STATE_CHECKED)
        self.assertState(switches[1], pyatspi.STATE_CHECKED)
        self.assertNotState(switches[2], pyatspi.STATE_CHECKED)

    def test_has_buttons_further_down(self):
        buttons = [button.name for button in self.reader.all(pyatspi.ROLE_PUSH_BUTTON)]
        self.assertEqual(buttons, ["Presets"])
        pane = self.reader.find(pyatspi.ROLE_PUSH_BUTTON, "Presets").parent
        for _ in range(4):
            do(pane, "Next Page")
            buttons += [button.name for button in self.reader.all(pyatspi.ROLE_PUSH_BUTTON)
                        if button.name not in buttons]
        self.assertEqual(buttons, ["Presets", "Activator", "Respring", "Report an Issue", "Visit Website",
                                   "Follow @BrimsoundHQ"])
        for button in self.reader.all(pyatspi.ROLE_PUSH_BUTTON):
            self.assertEqual(actions(button), ["Press", "SetFocus"])
            self.assertState(button, pyatspi.STATE_FOCUSABLE)

    def test_tells_where_tab_goes(self):
        for name in ("Enable Equalizer", "Show in Control Center", "Auto Preamp", "Presets", "Pre", "60"):
            self.pane.press_keys("Tab")
            self.reader.hears("object:state-changed:focused", name, 1)
            self.assertEqual(self.reader.focused().name, name)
        self.assertNotState(self.reader.window(), pyatspi.STATE_FOCUSED)

    def test_tells_where_the_keyboard_is_when_it_comes_back_to_the_window(self):
        do(self.reader.find(pyatspi.ROLE_SLIDER, "170"), "SetFocus")
        self.reader.hears("object:state-changed:focused", "170", 1)
        self.pane.deactivate()
        self.reader.wait_until(lambda: not has_state(self.reader.window(), pyatspi.STATE_ACTIVE))
        self.pane.activate()
        # First the window, which Qt reports, and then the object in it that has the focus.
        self.reader.hears("object:state-changed:focused", "Brimsound", 1)
        self.reader.hears("object:state-changed:focused", "170", 1)
        self.assertEqual(self.reader.focused().name, "170")

    def test_tells_of_every_value_that_a_key_sets(self):
        slider = self.reader.find(pyatspi.ROLE_SLIDER, "170")
        do(slider, "SetFocus")
        self.reader.hears("object:state-changed:focused", "170", 1)
        for key, gain in (("Right", -1.9), ("Page_Up", -0.9), ("Left", -1), ("Home", -12), ("End", 12)):
            self.pane.press_keys(key)
            self.reader.hears("object:property-change:accessible-value", "170")
            self.assertEqual(value(slider)[0], gain)

    def test_tells_of_values_that_another_process_sets(self):
        self.pane.write({"PREAMP": -1, "PEAKING_EQ_VALUES": [0] * 9 + [2.5]})
        self.reader.forget()
        self.pane.desktop.post(FINISHED)
        self.reader.hears_all("object:property-change:accessible-value", CAPTIONS)
        self.assertEqual([value(slider)[0] for slider in self.reader.all(pyatspi.ROLE_SLIDER)],
                         [-1] + [0] * 9 + [2.5])

    def test_tells_of_the_switch_that_a_key_flips(self):
        switch = self.reader.find(pyatspi.ROLE_CHECK_BOX, "Auto Preamp")
        do(switch, "SetFocus")
        self.pane.press_keys("space")
        self.reader.hears("object:state-changed:checked", "Auto Preamp", 1)
        self.assertState(switch, pyatspi.STATE_CHECKED)
        self.pane.press_keys("space")
        self.reader.hears("object:state-changed:checked", "Auto Preamp", 0)
        self.assertNotState(switch, pyatspi.STATE_CHECKED)

    def test_shows_an_alert_and_puts_the_keyboard_there(self):
        message = "In order to disable the equalizer, you will need to respring."
        switch = self.reader.find(pyatspi.ROLE_CHECK_BOX, "Enable Equalizer")
        do(switch, "SetFocus")
        do(switch, "Toggle")
        self.reader.hears("object:state-changed:checked", "Enable Equalizer", 0)
        self.reader.hears("object:state-changed:showing", message, 1)
        self.reader.hears("object:state-changed:focused", "Not now", 1)

        window = self.reader.window()
        self.assertEqual([child.getRole() for child in window], [pyatspi.ROLE_ALERT])
        alert = window[0]
        self.assertEqual(alert.name, message)
        self.assertState(alert, pyatspi.STATE_SHOWING, pyatspi.STATE_MODAL)
        self.assertEqual([(button.getRole(), button.name) for button in alert],
                         [(pyatspi.ROLE_PUSH_BUTTON, "Not now"), (pyatspi.ROLE_PUSH_BUTTON, "Respring")])

        do(alert[0], "Press")
        self.reader.hears("object:state-changed:showing", message, 0)
        self.reader.hears("object:state-changed:focused", "Enable Equalizer", 1)
        self.assertNotState(switch, pyatspi.STATE_CHECKED)
        self.assertEqual(self.reader.all(pyatspi.ROLE_ALERT), [])


if __name__ == "__main__":
    # pyatspi uses deprecated functions of the underlying library.
    unittest.main(verbosity=2, warnings="ignore")
