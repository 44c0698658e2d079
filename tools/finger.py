"""Fingers on the app's window. X has no way to send touches from outside; Qt's plug-in for TUIO, a network
protocol of touch tables, makes them of what it is told over UDP, and everything behind it is as on a phone."""

import itertools
import socket
import struct
import time

FRAME = 0.016  # seconds between two reports of a finger that moves


def free_port():
    with socket.socket(socket.AF_INET, socket.SOCK_DGRAM) as tried:
        tried.bind(("127.0.0.1", 0))
        return tried.getsockname()[1]


def _text(word):
    raw = word.encode() + b"\0"
    return raw + b"\0" * (-len(raw) % 4)


def _message(*values):
    """An OSC message of TUIO's profile for points, its values tagged by their types."""
    tags, data = ",", b""
    for value in values:
        tag, packed = {
            str: lambda: ("s", _text(value)),
            int: lambda: ("i", struct.pack(">i", value)),
            float: lambda: ("f", struct.pack(">f", value)),
        }[type(value)]()
        tags, data = tags + tag, data + packed
    whole = _text("/tuio/2Dcur") + _text(tags) + data
    return struct.pack(">i", len(whole)) + whole


class Fingers:
    """Those of the user of an app that listens on that port, on a window of that size."""

    def __init__(self, port):
        self._socket = socket.socket(socket.AF_INET, socket.SOCK_DGRAM)
        self._socket.connect(("127.0.0.1", port))
        self._frame = itertools.count(1)

    def report(self, size, *places):
        """Where each finger is now, in points of the window; those no longer named are lifted."""
        width, height = size
        messages = [_message("source", "fingers"), _message("alive", *range(1, len(places) + 1))]
        for number, (x, y) in enumerate(places, 1):
            messages.append(_message("set", number, x / width, y / height, 0.0, 0.0, 0.0))
        messages.append(_message("fseq", next(self._frame)))
        self._socket.send(_text("#bundle") + struct.pack(">Q", 1) + b"".join(messages))
        time.sleep(FRAME)

    def tap(self, size, place):
        for _ in range(3):
            self.report(size, place)
        self.report(size)

    def draw(self, size, start, end, steps=12):
        """One finger from here to there, at a hand's pace, which rests at the end and so throws nothing."""
        for step in range(steps + 1):
            share = step / steps
            self.report(size, tuple(a + (b - a) * share for a, b in zip(start, end)))
        for _ in range(8):
            self.report(size, end)
        self.report(size)
