"""The base class of the tests. Importing this module creates the desktop that they share."""
import atexit
import unittest

from desktop import Desktop, Pane

DESKTOP = Desktop()
atexit.register(DESKTOP.end)

# The accessibility library looks for the desktop when it is loaded.
import pyatspi  # noqa: E402
from reader import Reader, has_state  # noqa: E402

READER = Reader()
# The pane's log, and Qt's warnings for queries about a row that was just removed: the first is from Qt 6.4,
# the others from 6.8.
EXPECTED = (
    "Brimsound: ",
    "qt.accessibility.atspi: WARNING Qt AtSpiAdaptor: Accessible invalid: ",
    "qt.accessibility.atspi: Accessible invalid: ",
    "qt.accessibility.atspi: Could not find accessible on path: ",
)


class PaneTest(unittest.TestCase):
    """Starts a pane for each test. At the end, standard error must contain only expected lines."""

    preferences = {}

    def setUp(self):
        self.reader = READER
        self.pane = Pane(DESKTOP, self.preferences)
        self.addCleanup(self._end)
        window = self.reader.window()
        self.pane.activate()
        self.reader.wait_until(lambda: has_state(window, pyatspi.STATE_ACTIVE))
        self.reader.forget()
        self.pane.effects()

    def _end(self):
        errors = [line for line in self.pane.end().splitlines() if not line.startswith(EXPECTED)]
        self.assertEqual(errors, [])

    def assertState(self, one, *states):
        for state in states:
            self.assertTrue(has_state(one, state), f"{one} is not {state}")

    def assertNotState(self, one, *states):
        for state in states:
            self.assertFalse(has_state(one, state), f"{one} is {state}")
