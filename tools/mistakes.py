"""The deliberate mistakes of tools/mutants.d, read as tools/mutants describes them."""

import pathlib
import re

TOP = pathlib.Path(__file__).resolve().parent.parent
HEADLESS = ("model", "platform", "screens", "shell", "journeys", "contract_headless")
WINDOW = ("window", "pictures", "contract_qt", "faults", "journeys_window", "measure", "approval")
WINDOW_ROOMS = ("platform/qt/", "platform/curl/", "interface/qml/")


class Mutant:
    def __init__(self, headline, lines):
        self.headline = headline
        self.path = headline.split(": ", 1)[0]
        self.in_window = self.path.startswith(WINDOW_ROOMS)
        hint = [line[2:].split() for line in lines if line.startswith("@")]
        self.suite, self.tests = (hint[0] + ["."])[:2] if hint else (None, ".")
        pairs = []
        for line in lines:
            if line.startswith("-") and (not pairs or pairs[-1][1]):
                pairs.append(([], []))
            if line[:1] in ("-", "+"):
                pairs[-1]["-+".index(line[0])].append(line[2:])
        self.pairs = [("\n".join(old), "\n".join(new)) for old, new in pairs]

    def asked(self):
        """Suite by suite, and which of its tests: the named ones, then all of the likely suites.
        Without a hint the suite named as the room comes first: most mistakes are met at home."""
        if self.suite and self.tests != ".":
            yield self.suite, self.tests
        first = self.suite or self.path.split("/")[0]
        suites = WINDOW if self.in_window else HEADLESS
        for suite in sorted(suites, key=lambda suite: suite != first):
            yield suite, "."

    def spoilt(self, text):
        for old, new in self.pairs:
            text = text.replace(old, new)
        return text

    def stale(self):
        file = TOP / self.path
        text = file.read_text() if file.is_file() else ""
        return not self.pairs or any(
            not old or old == new or text.count(old) != 1 for old, new in self.pairs)


def mutants():
    for table in sorted((TOP / "tools/mutants.d").glob("*.txt")):
        for block in re.split(r"^# ", table.read_text(), flags=re.M)[1:]:
            headline, *lines = block.rstrip("\n").split("\n")
            yield Mutant(headline, lines)
