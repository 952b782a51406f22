"""A simulated screen reader: it receives all events, queries the pane, and acts for its user.

Import this when the desktop exists.
"""
import time

import pyatspi
from gi.repository import GLib

from desktop import PATIENCE


class Heard:
    """An event, with the properties that its source had at that time."""

    def __init__(self, event):
        self.type = event.type
        self.detail = event.detail1
        self.data = event.any_data
        try:
            self.role = event.source.getRole()
            self.name = event.source.name
        except (GLib.Error, LookupError):
            # The source no longer exists.
            self.role = self.name = None

    def __repr__(self):
        return f"{self.type} {self.detail} {self.role} {self.name!r}"


class Reader:
    def __init__(self):
        self._events = []
        for kind in ("object:state-changed:checked", "object:state-changed:focused",
                     "object:state-changed:showing", "object:property-change:accessible-value",
                     "object:text-changed:insert", "object:text-caret-moved"):
            pyatspi.Registry.registerEventListener(lambda event: self._events.append(Heard(event)), kind)

    @staticmethod
    def pump():
        """Receives events. Returns whether there were any."""
        return GLib.MainContext.default().iteration(False)

    @classmethod
    def wait_until(cls, condition):
        """Waits until the condition is true and returns its value. Raises TimeoutError when it stays false."""
        deadline = time.monotonic() + PATIENCE
        while not (result := condition()):
            if time.monotonic() > deadline:
                raise TimeoutError
            if not cls.pump():
                time.sleep(0.01)
        return result

    def forget(self):
        """Drops the events received so far."""
        while self.pump():
            pass
        self._events.clear()

    def hears(self, kind, name, detail=None):
        """Waits for an event of that type, like "object:state-changed:checked", from the object with that name.

        The event and those before it are dropped. Raises AssertionError when it does not arrive.
        """
        def was_heard():
            for index, event in enumerate(self._events):
                if event.type == kind and event.name == name and detail in (None, event.detail):
                    del self._events[:index + 1]
                    return True
            return False
        self._wait_to_hear(was_heard, f"{kind} {detail} of {name!r}")

    def hears_all(self, kind, names):
        """Waits for events of that type from all objects with those names, in any order. Drops nothing."""
        def were_heard():
            return set(names) <= {event.name for event in self._events if event.type == kind}
        self._wait_to_hear(were_heard, f"{kind} of {names}")

    def _wait_to_hear(self, condition, what):
        try:
            self.wait_until(condition)
        except TimeoutError:
            raise AssertionError(f"{what} was not received, but {self._events}") from None

    def window(self):
        """Waits for the pane's window and returns it."""
        def found():
            for application in pyatspi.Registry.getDesktop(0):
                if application and application.name == "brimsound" and application.childCount:
                    return application[0]
            return None
        return self.wait_until(found)

    def all(self, role):
        """All objects of that role in reading order."""
        return pyatspi.findAllDescendants(self.window(), lambda one: one.getRole() == role)

    def find(self, role, name):
        """Waits for the object of that role with that name and returns it."""
        def found():
            return next((one for one in self.all(role) if one.name == name), None)
        try:
            return self.wait_until(found)
        except TimeoutError:
            names = [one.name for one in self.all(role)]
            raise AssertionError(f"there is no {name!r}, but {names}") from None

    def focused(self):
        """The innermost object with the keyboard focus; None when there is none."""
        found = pyatspi.findAllDescendants(self.window(), lambda one: has_state(one, pyatspi.STATE_FOCUSED))
        return found[-1] if found else None


def has_state(one, state):
    # The library may have cached an old state.
    one.clearCache()
    return one.getState().contains(state)


def actions(one):
    action = one.queryAction()
    return [action.getName(index) for index in range(action.nActions)]


def do(one, name):
    """Performs the action of that name."""
    one.queryAction().doAction(actions(one).index(name))


def value(slider):
    """Value, minimum, maximum and smallest step of a slider."""
    slider = slider.queryValue()
    return (slider.currentValue, slider.minimumValue, slider.maximumValue, slider.minimumIncrement)
