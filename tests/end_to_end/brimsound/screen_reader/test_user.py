"""The actions of a blind user, and their effects on the preferences file and the media server."""
import unittest

import pyatspi

from case import PaneTest
from reader import actions, do, value

BUILT_IN = ["Flat", "Full bass", "Full bass/treble"]
MINE = {"PREAMP": 0.0, "PEAKING_EQ_VALUES": [1.0, 2.0] + [0.0] * 8, "AUTO_PREAMP": False}


def kinds(effects):
    return [line["effect"] for line in effects]


class AUserWhoHears(PaneTest):
    preferences = MINE

    def wait_for_gains(self, gains):
        """Waits until the media server plays these gains."""
        self.pane.server.lines.next(lambda line: line["vals"] == gains)

    def open_presets(self):
        button = self.reader.find(pyatspi.ROLE_PUSH_BUTTON, "Presets")
        do(button, "SetFocus")
        do(button, "Press")
        return self.reader.find(pyatspi.ROLE_LIST_ITEM, "Save")

    def test_sets_a_band(self):
        slider = self.reader.find(pyatspi.ROLE_SLIDER, "310")
        slider.queryValue().currentValue = -4.5
        self.reader.hears("object:property-change:accessible-value", "310")
        self.assertEqual(value(slider)[0], -4.5)

        effects = [self.pane.program.lines.next(lambda line: line["effect"] != "log")]
        while effects[-1]["effect"] != "delivered":
            effects.append(self.pane.program.lines.next(lambda line: line["effect"] != "log"))
        # Like a touch: down, one step, up.
        self.assertEqual(kinds(effects), ["message", "message", "write", "notify", "delivered"])
        gains = [0, 1, 2, -4.5] + [0] * 7
        self.assertEqual([line["vals"] for line in effects[:2]], [[0, 1, 2] + [0] * 8, gains])
        self.assertEqual(self.pane.preferences()["PEAKING_EQ_VALUES"], gains[1:])
        self.wait_for_gains(gains)

    def test_raises_a_band_by_a_step(self):
        slider = self.reader.find(pyatspi.ROLE_SLIDER, "60")
        step = value(slider)[3]
        do(slider, "Increase")
        self.reader.hears("object:property-change:accessible-value", "60")
        self.assertEqual(value(slider)[0], 1 + step)
        do(slider, "Decrease")
        self.reader.hears("object:property-change:accessible-value", "60")
        self.assertEqual(value(slider)[0], 1)
        self.wait_for_gains([0, 1 + step, 2] + [0] * 8)
        self.wait_for_gains([0, 1, 2] + [0] * 8)

    def test_hears_the_preamp_follow(self):
        do(self.reader.find(pyatspi.ROLE_CHECK_BOX, "Auto Preamp"), "Toggle")
        self.reader.find(pyatspi.ROLE_SLIDER, "170").queryValue().currentValue = 6
        self.reader.hears("object:property-change:accessible-value", "Pre")
        self.reader.wait_until(lambda: value(self.reader.find(pyatspi.ROLE_SLIDER, "Pre"))[0] == -6)
        self.wait_for_gains([-6, 1, 6] + [0] * 8)

    def test_finds_the_presets(self):
        self.open_presets()
        # The focus is in the panel, and only the panel can be found.
        self.reader.hears("object:state-changed:showing", "Save", 1)
        self.reader.hears("object:state-changed:focused", "Save", 1)
        window = self.reader.window()
        self.assertEqual([child.getRole() for child in window],
                         [pyatspi.ROLE_LIST, pyatspi.ROLE_PUSH_BUTTON])
        self.assertEqual(window[0].name, "Presets")
        rows = list(window[0])
        self.assertEqual([row.name for row in rows][:4], ["Save", *BUILT_IN])
        for row in rows:
            self.assertEqual(row.getRole(), pyatspi.ROLE_LIST_ITEM)
            self.assertState(row, pyatspi.STATE_SELECTABLE, pyatspi.STATE_FOCUSABLE, pyatspi.STATE_SHOWING)
        self.assertEqual(actions(rows[0]), ["Press", "SetFocus"])
        self.assertEqual(actions(rows[1]), ["Press", "Delete", "SetFocus"])
        self.assertEqual(window[1].name, "Cancel")

        do(window[1], "Press")
        self.reader.hears("object:state-changed:focused", "Presets", 1)
        self.assertEqual(self.reader.all(pyatspi.ROLE_LIST), [])

    def test_walks_through_the_presets_by_key(self):
        self.open_presets()
        for name in BUILT_IN:
            self.pane.press_keys("Down")
            self.reader.hears("object:state-changed:focused", name, 1)
        self.pane.press_keys("Delete")
        self.reader.wait_until(lambda: "Full bass/treble" not in self.pane.preferences()["PRESETS"])
        self.pane.press_keys("Escape")
        self.reader.hears("object:state-changed:focused", "Presets", 1)

    def test_saves_a_preset_and_chooses_it_again(self):
        do(self.open_presets(), "Press")
        # After the focus event: a reader that receives the caret event first does not announce the field.
        self.reader.hears("object:state-changed:focused", "Name", 1)
        self.reader.hears("object:text-caret-moved", "Name")
        field = self.reader.find(pyatspi.ROLE_TEXT, "Name")
        self.assertState(field, pyatspi.STATE_EDITABLE, pyatspi.STATE_FOCUSED)
        self.pane.press_keys("M", "y")
        self.reader.hears("object:text-changed:insert", "Name")
        self.reader.wait_until(lambda: field.queryText().getText(0, -1) == "My")
        self.pane.press_keys("Return")
        self.reader.hears("object:state-changed:focused", "Presets", 1)
        self.reader.wait_until(lambda: "My" in self.pane.preferences().get("PRESETS", {}))
        self.assertEqual(self.pane.preferences()["PRESETS"]["My"], [1, 2] + [0] * 8)

        # Choose another preset, and then the first one again.
        self.choose("Flat")
        self.wait_for_gains([0] * 11)
        self.choose("My")
        self.wait_for_gains([0, 1, 2] + [0] * 8)
        self.reader.wait_until(lambda: self.pane.preferences().get("SELECTED_PRESET") == "My")
        self.assertEqual(self.pane.preferences()["PEAKING_EQ_VALUES"], [1, 2] + [0] * 8)

    def test_tells_which_preset_was_chosen(self):
        self.choose("Full bass")
        self.open_presets()
        for row in list(self.reader.all(pyatspi.ROLE_LIST)[0]):
            selected = row.getState().contains(pyatspi.STATE_SELECTED)
            self.assertEqual(selected, row.name == "Full bass", row.name)

    def choose(self, preset):
        self.open_presets()
        while not any(row.name == preset for row in self.reader.all(pyatspi.ROLE_LIST_ITEM)):
            rows = self.reader.all(pyatspi.ROLE_LIST)[0]
            before = [row.name for row in rows]
            do(rows, "Next Page")
            self.assertNotEqual([row.name for row in rows], before)
        self.reader.forget()
        do(self.reader.find(pyatspi.ROLE_LIST_ITEM, preset), "Press")
        self.reader.hears_all("object:property-change:accessible-value", ["60", "170"])
        self.reader.hears("object:state-changed:focused", "Presets", 1)


if __name__ == "__main__":
    # pyatspi uses deprecated functions of the underlying library.
    unittest.main(verbosity=2, warnings="ignore")
