"""The app's window as a user meets it: found by names, driven by real keys and clicks."""

import hashlib
import subprocess
import time

from bus import FIELDS, App, Atspi, Role

DOUBLE_CLICK = 0.5  # seconds, and a little more than any platform gives it
TABS = {Role.PAGE_TAB}
ROWS = {Role.LIST_ITEM}
CONTROLS = {Role.PUSH_BUTTON} | ROWS | FIELDS | TABS


def run(*command):
    return subprocess.run(command, check=True, stdout=subprocess.PIPE).stdout


class Window(App):
    """Sees what assistive technology sees, and touches only through the X server."""

    def __init__(self, process):
        super().__init__(process)
        self.width, self.height = self._screen()
        self._pressed = 0.0

    # Looking

    def sees(self, name, roles=None):
        """The first showing thing of that name, exact or as a part of it."""
        shown = [node for node in self._showing() if roles is None or node[1] in roles]
        exact = [node for node in shown if node[0] == name]
        return next(iter(exact or [node for node in shown if name in node[0]]), None)

    def expect(self, name, roles=None):
        return self.wait(f"“{name}” on the screen", lambda: self.sees(name, roles))

    def expect_gone(self, name):
        self.wait(f"“{name}” gone from the screen", lambda: not self.sees(name))

    def expect_picture(self, row):
        """Waits until the left end of a row shows more colours than a frame and letters have."""

        def drawn():
            x, y, _, height = self.expect(row, ROWS)[2]
            crop = f"80x{height}+{x}+{y}"
            shot = run("import", "-window", "root", "-crop", crop, "-format", "%k", "info:-")
            return int(shot) > 500

        self.wait(f"the picture of “{row}”", drawn)

    def rows(self):
        """Names of the rows on the screen, from top to bottom."""
        found = [node for node in self._showing() if node[1] in ROWS]
        return [name for name, _, _ in sorted(found, key=lambda node: node[2][1])]

    # Touching

    def click(self, name, roles=None, options=()):
        self.expect(name, roles or CONTROLS)
        self._bring_into_view(name, roles or CONTROLS)
        x, y = self._still_middle(name, roles or CONTROLS)
        self.pause()
        self.press((x, y), options)

    def pause(self):
        """A user looks first; what comes sooner at one place is a double click, and one tap."""
        time.sleep(max(0, self._pressed + DOUBLE_CLICK - time.monotonic()))
        self._pressed = time.monotonic()

    def press(self, place, options=()):
        self._xdotool("mousemove", *map(str, place), "click", *map(str, options), "1")

    def type_into(self, field, text):
        """Replaces what a field holds."""
        self.click(field, FIELDS)
        self._xdotool("key", "ctrl+a", "key", "BackSpace", "type", "--delay", "20", text)

    def capture(self, path):
        """Saves the screen once it stands still."""
        self.wait("a screen that stands still", self._is_still)
        run("import", "-window", "root", path)

    def scroll_towards(self, y):
        """A little towards what lies above or below of what is seen."""
        self._xdotool("mousemove", str(self.width // 2), str(self.height // 2))
        self._xdotool("click", "5" if y > self.height // 2 else "4")

    def list_edges(self):
        """The upper and lower edge of the list on top."""
        lists = [place for _, role, place in self._showing() if role == Role.LIST]
        return (lists[0][1], lists[0][1] + lists[0][3]) if lists else (0, self.height)

    # The rest is how.

    def _showing(self):
        """Name, role and place of everything in the scene on top, in reading order.

        What is below the fold counts: it has a place, and is a turn of the wheel away. The state
        "showing" would miss it; what is hidden has no place at all.
        """
        found = []

        def note(node):
            place = self._place(node)
            if place[2] > 0 and place[3] > 0 and 0 <= place[0] + place[2] // 2 < self.width:
                found.append((node.get_name() or "", node.get_role(), place))
            return True

        for _ in self.walk(note):
            pass
        return found

    @staticmethod
    def _place(node):
        extents = node.get_extents(Atspi.CoordType.SCREEN)
        return extents.x, extents.y, extents.width, extents.height

    def _bring_into_view(self, name, roles):
        """Scrolls until the middle of a control can be pressed: that of a row may lie under the tabs."""

        def in_view():
            _, y = self._middle(name, roles)
            top, bottom = self.list_edges() if roles == ROWS else (0, self.height)
            if top < y < bottom:
                return True
            self.scroll_towards(y)
            return False

        self.wait(f"“{name}” within reach", in_view)

    def _still_middle(self, name, roles):
        """The middle of a control that no longer slides."""
        seen = []

        def still():
            seen.append(self._middle(name, roles))
            return len(seen) > 1 and seen[-1] == seen[-2]

        self.wait(f"“{name}” at rest", still)
        return seen[-1]

    def _middle(self, name, roles):
        x, y, width, height = self.expect(name, roles)[2]
        return x + width // 2, y + height // 2

    def _is_still(self):
        before = self._pixels()
        time.sleep(0.15)
        return before == self._pixels()

    @staticmethod
    def _pixels():
        return hashlib.sha256(run("import", "-window", "root", "rgb:-")).digest()

    @staticmethod
    def _screen():
        return tuple(int(number) for number in run("xdotool", "getdisplaygeometry").split())

    @staticmethod
    def _xdotool(*arguments):
        run("xdotool", *arguments)

    def describe(self):
        """What is on the screen, for whoever must find out why the walk broke."""
        named = [node for node in self._showing() if node[0]]
        return "\n".join(f"  {role.value_nick}: {name!r} at {place}" for name, role, place in named)
