#!/usr/bin/python3 -B
"""start.py PAIRS APP FLOOR: starts the two programs in turn on a virtual screen of their own, and
prints, a line a start, the name, the milliseconds from before the start to its first frame, and the
most memory it had taken by then in kilobytes.

The frame is seen from outside, in the virtual screen's own memory: the accent colour of the button
to sign in has to stand in the screen's middle column, and nothing of the programs is changed for it.
"""

import mmap
import os
import pathlib
import subprocess
import sys
import tempfile
import time

WIDTH, HEIGHT = 390, 844
ACCENT = bytes((47, 134, 83))  # as it lies in memory: blue, green, red
PATIENCE = 20  # seconds


class Screen:
    """A virtual screen whose pixels lie in a file."""

    def __init__(self, folder):
        self.folder = folder
        read, write = os.pipe()
        self.process = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write), "-screen", "0", f"{WIDTH}x{HEIGHT}x24",
             "-nolisten", "tcp", "-fbdir", folder],
            pass_fds=[write], stderr=subprocess.DEVNULL)
        os.close(write)
        with os.fdopen(read) as answer:
            self.name = ":" + answer.readline().strip()
        with open(pathlib.Path(folder, "Xvfb_screen0"), "rb") as file:
            self.memory = mmap.mmap(file.fileno(), 0, prot=mmap.PROT_READ)
        # The head of an X window dump: its size, and the bytes of a line.
        head = int.from_bytes(self.memory[0:4], "big")
        colours = int.from_bytes(self.memory[76:80], "big")
        self.line = int.from_bytes(self.memory[48:52], "big")
        self.start = head + 12 * colours

    def shows_button(self):
        """Whether the accent colour stands a quarter from the left for the height of a button."""
        column = self.start + WIDTH // 4 * 4
        run = 0
        for y in range(HEIGHT // 2, HEIGHT, 4):
            place = column + y * self.line
            run = run + 1 if self.memory[place:place + 3] == ACCENT else 0
            if run >= 8:
                return True
        return False

    def end(self):
        self.process.terminate()
        self.process.wait()


def peak_memory(process):
    for line in pathlib.Path(f"/proc/{process}/status").read_text().splitlines():
        if line.startswith("VmHWM:"):
            return int(line.split()[1])
    raise SystemExit("start.py: the memory of the program cannot be read")


def start(screen, program):
    environment = {**os.environ, "DISPLAY": screen.name, "QT_QPA_PLATFORM": "xcb",
                   "DBUS_SESSION_BUS_ADDRESS": "disabled:", "NO_AT_BRIDGE": "1",
                   "XDG_RUNTIME_DIR": screen.folder}
    environment.pop("WAYLAND_DISPLAY", None)
    while screen.shows_button():
        time.sleep(0.01)
    began = time.perf_counter()
    process = os.posix_spawn(program, [program], environment)
    try:
        while not screen.shows_button():
            if time.perf_counter() > began + PATIENCE:
                raise SystemExit(f"start.py: {program} shows no button")
            time.sleep(0.0002)
        seconds = time.perf_counter() - began
        return seconds * 1000, peak_memory(process)
    finally:
        os.kill(process, 15)
        os.waitpid(process, 0)


def main():
    pairs, programs = int(sys.argv[1]), sys.argv[2:]
    with tempfile.TemporaryDirectory() as folder:
        screen = Screen(folder)
        try:
            for program in programs:  # what is read from disk the first time is no part of it
                start(screen, program)
            for pair in range(pairs):
                for program in programs if pair % 2 else reversed(programs):
                    time_taken, memory = start(screen, program)
                    print(pathlib.Path(program).name, f"{time_taken:.3f}", memory, flush=True)
        finally:
            screen.end()


if __name__ == "__main__":
    main()
