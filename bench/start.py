#!/usr/bin/python3 -B
"""start.py PAIRS FOLDER PROGRAM...: starts the programs in turn on a virtual screen of their own, and
prints, a line a start, the name, the milliseconds from before the start until the screen is as it
stays, and the most memory the program had taken by then in kilobytes.

What stays is seen in a start of its own, which is not timed: the accent colour of the button to sign
in has to be in it, and it is left in FOLDER, as NAME-landing.xwd, for whoever wants to look.
"""

import pathlib
import sys
import tempfile
import time

from screen import PATIENCE, Program, Screen


def show(screen, path, folder):
    """Starts a program untimed, which also reads it from the disk; answers what it ends up with."""
    program = Program(screen, path)
    try:
        pixels = screen.at_rest(lambda: screen.button() is not None, path)
        screen.save(pathlib.Path(folder, f"{pathlib.Path(path).name}-landing.xwd"))
        return pixels
    finally:
        program.end()


def start(screen, path, rest):
    while screen.pixels() == rest or screen.button() is not None:
        time.sleep(0.01)
    program = Program(screen, path)
    try:
        while screen.button() is None or screen.pixels() != rest:
            if time.perf_counter() > program.began + PATIENCE:
                raise SystemExit(f"start.py: {path} does not show what it showed before")
            time.sleep(0.0002)
        seconds = time.perf_counter() - program.began
        return seconds * 1000, program.peak_memory()
    finally:
        program.end()


def main():
    pairs, folder, paths = int(sys.argv[1]), sys.argv[2], sys.argv[3:]
    with tempfile.TemporaryDirectory() as state:
        screen = Screen(state)
        try:
            rest = {path: show(screen, path, folder) for path in paths}
            for pair in range(pairs):
                for path in paths if pair % 2 else reversed(paths):
                    milliseconds, memory = start(screen, path, rest[path])
                    print(pathlib.Path(path).name, f"{milliseconds:.3f}", memory, flush=True)
        finally:
            screen.end()


if __name__ == "__main__":
    main()
