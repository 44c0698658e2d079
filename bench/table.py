"""The table of what was measured, the machine it was taken on, and plots."""

import os
import pathlib
import platform
import re
import subprocess


class Table:
    def __init__(self):
        self.rows = []

    def add(self, what, ours, beside, limit, goal, widgets=None):
        """Two measurements, each a number and its unit; their ratio is held against the goal.
        Qt Widgets, where they were measured, are told beside it and hold nothing."""
        ratio = ours[0] / beside[0]
        verdict = "OK" if ratio <= goal else "short"
        self.rows.append((what, written(*ours), f"{written(*beside)}, {limit}", f"{ratio:.2f}",
                          f"{goal:g}", verdict, written(*widgets) if widgets else "",
                          f"{os.getloadavg()[0]:.1f}"))
        print(f"{verdict:5} {ratio:6.2f}  {what}", flush=True)

    def text(self):
        head = ("what", "ours", "beside", "ratio", "at most", "", "Qt Widgets", "load")
        lines = [head, ("---", "--:", "---", "--:", "--:", "---", "--:", "--:"), *self.rows]
        return "".join("| " + " | ".join(line) + " |\n" for line in lines)


def written(number, unit):
    return (f"{number:,.0f}" if number >= 1000 else f"{number:.3g}") + f" {unit}"


def first_match(path, pattern):
    found = re.search(pattern, pathlib.Path(path).read_text(), re.M)
    return found.group(1).strip() if found else "unknown"


def machine():
    """In a sentence, what a reader needs to know before comparing with their own."""
    processor = first_match("/proc/cpuinfo", r"^model name\s*:(.*)")
    memory = int(first_match("/proc/meminfo", r"^MemTotal:\s*(\d+)")) / 2**20
    system = first_match("/etc/os-release", r'^PRETTY_NAME="?([^"\n]*)')
    qt = subprocess.run(["dpkg-query", "-W", "-f", "${Version}", "libqt6core6"],
                        capture_output=True, text=True).stdout.split("+")[0]
    return (f"{processor}, {os.cpu_count()} processors, {memory:.0f} GB; {system}, "
            f"Linux {platform.release().split('-')[0]}, Qt {qt or 'unknown'}")


def plot(path, title, points, axes, scale=""):
    """A plot of points, drawn by gnuplot."""
    data = path.with_suffix(".dat")
    data.write_text("".join(f"{x} {y}\n" for x, y in points))
    script = (f'set terminal pngcairo size 900,500; set output "{path}"; {scale}'
              f'set title "{title}"; set xlabel "{axes[0]}"; set ylabel "{axes[1]}"; '
              f'set grid; unset key; '
              f'plot "{data}" with linespoints pointtype 7 linecolor rgb "#53862f"')
    subprocess.run(["gnuplot", "-e", script], check=True)
