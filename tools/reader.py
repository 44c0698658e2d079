"""The app as assistive technology meets it: over the accessibility bus alone, without a place."""

from collections import Counter

from bus import FIELDS, App, Atspi, GLib, WalkBroken, Role

SHOWING = "object:state-changed:showing"
NOT_A_ROLE = {Role.UNKNOWN, Role.INVALID, Role.FILLER}
PAGE_DOWN = 0xFF56  # the X keyboard's numbers of keys
ESCAPE = 0xFF1B


class Reader(App):
    """Reads names, roles, states, texts and values; acts by actions, texts and keys."""

    def __init__(self, process):
        super().__init__(process)
        self.heard = []  # messages, in the order they came
        self._listener = Atspi.EventListener.new(self._on_event)
        self._listener.register(SHOWING)

    # Reading

    def visible(self):
        """Everything that is not hidden, in reading order; below the fold counts."""
        return self.walk(lambda node: self.has(node, Atspi.StateType.VISIBLE))

    def everything(self):
        return self.walk(lambda node: True)

    def expect(self, name, role=None, state=Atspi.StateType.VISIBLE):
        """The first visible thing of exactly that name; what leaves is seen, and not enabled."""

        def found():
            for node in self.visible():
                if self.name(node) == name and role in (None, node.get_role()):
                    if self.has(node, state):
                        return node
            return None

        return self.wait(f"{role.value_nick if role else 'something'} called “{name}”", found)

    def expect_gone(self, name):
        self.wait(f"“{name}” gone", lambda: name not in map(self.name, self.visible()))

    def expect_heard(self, message):
        self.wait(f"the message “{message}” announced", lambda: message in self.heard)
        self.heard.remove(message)

    def expect_text(self, field, text):
        self.wait(f"“{text}” in “{field}”", lambda: self.text(self._field(field)) == text)

    def expect_focus(self, name, role=None):
        """On whatever bears the name: a screen that leaves may have things of the same one."""
        self.wait(f"the focus on “{name}”", lambda: any(
            self.name(node) == name and role in (None, node.get_role())
            and self.has(node, Atspi.StateType.FOCUSED) for node in self.visible()))

    def expect_screen(self, heading):
        """A new one, on whose heading the reader stands."""
        self.expect_focus(heading, Role.HEADING)

    def rows(self):
        return [self.name(node) for node in self.visible() if node.get_role() == Role.LIST_ITEM]

    def description(self, field):
        return self._field(field).get_description()

    @staticmethod
    def text(node):
        return Atspi.Text.get_text(node, 0, -1)

    @staticmethod
    def range(node):
        """Value, least and greatest."""
        if "Value" not in node.get_interfaces():
            raise WalkBroken(f"“{node.get_name()}” has no value")
        value = Atspi.Value
        least, greatest = value.get_minimum_value(node), value.get_maximum_value(node)
        return value.get_current_value(node), least, greatest

    # Acting

    def press(self, name, role=Role.PUSH_BUTTON):
        self._act(self.expect(name, role, Atspi.StateType.ENABLED), "Press")

    def act(self, name, role, action):
        self._act(self.expect(name, role, Atspi.StateType.ENABLED), action)

    def write(self, field, text):
        """Puts a text into a field as a whole, without the keyboard."""
        node = self._field(field)
        if "EditableText" not in node.get_interfaces():
            raise WalkBroken(f"“{field}” takes no text")
        if not Atspi.EditableText.set_text_contents(node, text):
            raise WalkBroken(f"“{field}” refuses a text")
        self.expect_text(field, text)

    def type_into(self, field, text, shown=None):
        """Focuses a field and types, in place of what is selected there."""
        self._act(self._field(field), "SetFocus")
        self.expect_focus(field)
        Atspi.generate_keyboard_event(0, text, Atspi.KeySynthType.STRING)
        self.expect_text(field, shown or text)

    @staticmethod
    def key(number):
        # A symbol is turned into the key that gives it, whatever the keyboard's layout.
        Atspi.generate_keyboard_event(number, None, Atspi.KeySynthType.SYM)

    # What must hold of every screen

    def audit(self, screen):
        """Every visible thing has a role and a name of its own and is enabled; every control has an
        action, and nothing has one twice.

        A screen on its way out is still visible and no longer enabled, so this may take a moment.
        """
        faults = []

        def sound():
            faults[:] = self._faults()
            return not faults

        try:
            self.wait("", sound)
        except WalkBroken:
            raise WalkBroken(f"on the {screen} screen " + "; ".join(faults)) from None

    def _faults(self):
        found = []
        met = Counter()
        for node in self.visible():
            role, name = node.get_role(), self.name(node)
            met[role.value_nick, name] += 1
            if role in NOT_A_ROLE:
                found.append(f"“{name}” has no role")
            if not name:
                found.append(f"a {role.value_nick} has no name")
            if not self.has(node, Atspi.StateType.ENABLED):
                found.append(f"{role.value_nick} “{name}” is visible and not enabled")
            if self.has(node, Atspi.StateType.FOCUSABLE):
                found.extend(self._faults_of_control(node, role, name))
            elif self._actions(node) and role != Role.LIST:
                found.append(f"{role.value_nick} “{name}” is no control and has actions")
        found.extend(f"{nick} “{name}” is there twice" for (nick, name), n in met.items() if n > 1)
        return found

    def _faults_of_control(self, node, role, name):
        actions = self._actions(node)
        if len(actions) != len(set(actions)):
            yield f"“{name}” has an action twice"
        if "SetFocus" not in actions:
            yield f"“{name}” cannot be focused"
        if role in FIELDS:
            if "EditableText" not in node.get_interfaces():
                yield f"“{name}” takes no text"
        elif role != Role.HEADING and "Press" not in actions:
            yield f"“{name}” cannot be pressed"

    def expect_nowhere(self, secret):
        """Nothing, hidden or not, gives a text out."""
        for node in self.everything():
            texts = [self.name(node), node.get_description() or ""]
            if "Text" in node.get_interfaces():
                texts.append(self.text(node) or "")
            if any(secret in text for text in texts):
                raise WalkBroken(f"“{self.name(node)}” gives the password out")

    # The rest is how.

    def describe(self):
        return "\n".join(f"  {node.get_role().value_nick}: {self.name(node)!r}"
                         for node in self.visible())

    def _on_event(self, event):
        try:
            if event.detail1 and event.source.get_role() == Role.NOTIFICATION:
                self.heard.append(self.name(event.source))
        except GLib.Error:
            pass  # gone already, and so is its message

    def _field(self, name):
        def found():
            for node in self.visible():
                if self.name(node) == name and node.get_role() in FIELDS:
                    return node
            return None

        return self.wait(f"a field called “{name}”", found)

    def _act(self, node, wanted):
        actions = self._actions(node)
        if wanted not in actions:
            raise WalkBroken(f"“{self.name(node)}” has no action {wanted}")
        Atspi.Action.do_action(node, actions.index(wanted))

    @staticmethod
    def _actions(node):
        if "Action" not in node.get_interfaces():
            return []
        count = Atspi.Action.get_n_actions(node)
        return [Atspi.Action.get_action_name(node, i) for i in range(count)]

    @staticmethod
    def has(node, state):
        return node.get_state_set().contains(state)

    @staticmethod
    def name(node):
        return node.get_name() or ""
