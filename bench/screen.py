"""A virtual screen whose pixels are read from outside, and the programs started on it. Nothing of the
programs is changed for it."""

import mmap
import os
import pathlib
import subprocess
import time

WIDTH, HEIGHT = 390, 844  # of a window, which stands in the screen's upper left corner
# The pointer begins in the screen's middle, where it would change the look of what it is over.
BELOW = HEIGHT + 20
ACCENT = bytes((47, 134, 83))  # as it lies in memory: blue, green, red
PATIENCE = 20  # seconds
STILL = 0.7  # seconds without a change after which a screen is at rest


class Screen:
    """A virtual screen whose pixels lie in a file."""

    def __init__(self, folder):
        self.folder = folder
        # GTK begins in the first input: its ring would fade in for a quarter of a second after all
        # else is there, and a blinking caret never comes to rest.
        settings = pathlib.Path(folder, "gtk-4.0", "settings.ini")
        settings.parent.mkdir()
        settings.write_text("[Settings]\ngtk-enable-animations=0\ngtk-cursor-blink=0\n")
        self.file = pathlib.Path(folder, "Xvfb_screen0")
        read, write = os.pipe()
        self.process = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write), "-screen", "0", f"{WIDTH}x{HEIGHT + BELOW}x24",
             "-nolisten", "tcp", "-fbdir", folder],
            pass_fds=[write], stderr=subprocess.DEVNULL)
        os.close(write)
        with os.fdopen(read) as answer:
            self.name = ":" + answer.readline().strip()
        with open(self.file, "rb") as file:
            self.memory = mmap.mmap(file.fileno(), 0, prot=mmap.PROT_READ)
        # The head of an X window dump: its size, and the bytes of a line.
        head = int.from_bytes(self.memory[0:4], "big")
        colours = int.from_bytes(self.memory[76:80], "big")
        self.line = int.from_bytes(self.memory[48:52], "big")
        self.start = head + 12 * colours

    def pixels(self):
        return self.memory[self.start:self.start + HEIGHT * self.line]

    def button(self):
        """Where the upper edge of the first button in the accent colour is, or None. It stands a
        quarter from the left for the height of a button; a progress bar is not as high."""
        column = self.start + WIDTH // 4 * 4
        run = 0
        for y in range(0, HEIGHT, 4):
            place = column + y * self.line
            run = run + 1 if self.memory[place:place + 3] == ACCENT else 0
            if run >= 8:
                return y - 4 * (run - 1)
        return None

    def colours(self, left, top, width, height):
        """How many colours there are in a rectangle: a photograph has hundreds."""
        found = set()
        for y in range(top, top + height):
            place = self.start + y * self.line + 4 * left
            line = self.memory[place:place + 4 * width]
            found.update(line[i:i + 3] for i in range(0, len(line), 4))
        return len(found)

    def at_rest(self, wanted, program):
        """Waits until nothing has changed for a while and `wanted` holds; answers the pixels."""
        began = since = time.perf_counter()
        seen = self.pixels()
        while time.perf_counter() < began + PATIENCE:
            time.sleep(0.02)
            now = self.pixels()
            if now != seen:
                seen, since = now, time.perf_counter()
            elif time.perf_counter() > since + STILL and wanted():
                return now
        raise SystemExit(f"{program} does not come to rest where it should")

    def save(self, path):
        """As an X window dump, which ImageMagick reads."""
        path.write_bytes(self.memory[:])

    def end(self):
        self.process.terminate()
        self.process.wait()


class Program:
    """A program on a screen. It draws by the processor, as the screen has nothing else, by the means
    that is quickest for its toolkit, and finds no session of the user's."""

    def __init__(self, screen, path):
        environment = {**os.environ, "DISPLAY": screen.name, "QT_QPA_PLATFORM": "xcb",
                       "GDK_BACKEND": "x11", "QT_QUICK_BACKEND": "software",
                       "GSK_RENDERER": "cairo", "GTK_A11Y": "none", "GSETTINGS_BACKEND": "memory",
                       "DBUS_SESSION_BUS_ADDRESS": "disabled:", "NO_AT_BRIDGE": "1",
                       "XDG_RUNTIME_DIR": screen.folder, "XDG_CONFIG_HOME": screen.folder}
        environment.pop("WAYLAND_DISPLAY", None)
        silent = [(os.POSIX_SPAWN_OPEN, 1, os.devnull, os.O_WRONLY, 0)]
        self.began = time.perf_counter()
        self.id = os.posix_spawn(path, [path], environment, file_actions=silent)

    def peak_memory(self):
        """In kilobytes."""
        for line in pathlib.Path(f"/proc/{self.id}/status").read_text().splitlines():
            if line.startswith("VmHWM:"):
                return int(line.split()[1])
        raise SystemExit("the memory of a program cannot be read")

    def processor_seconds(self):
        """What all its threads have taken so far, those that ended included."""
        return time.clock_gettime((~self.id << 3) | 2)  # the kernel's name of a process's clock

    def end(self):
        os.kill(self.id, 15)
        os.waitpid(self.id, 0)
