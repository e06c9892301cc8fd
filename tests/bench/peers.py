#!/usr/bin/env python3
"""Opens the same colors with this program and with another palette editor, in turn.

    tools/wine-session.sh tests/bench/peers.py [REPETITIONS [COLORS ...]]

Needs the Debian packages gpick (the other editor) and x11-utils, and the programs built by
`tools/build.sh windows tnt4swx tnt-convert`; it installs nothing.  It prints the medians of the
repetitions (3) and one more that fills the caches, for each number of colors (1000 10000 100000):

    window      until a window is shown, in milliseconds since the start
    ready       until it is shown and the processes have been idle for a second
    processor   that all processes of the session took until then, but not the X server

Idle is at most a twentieth of a processor: the other editor never stands quite still.

This program reads a library of groups of 1,000 colors, with the values of their material, as the one
that opens at every start; the other editor a palette of the same names and colors, which it is given
on its command line.
"""

import collections
import os
import pathlib
import re
import shutil
import statistics
import subprocess
import sys
import tempfile
import time

PROGRAMS = pathlib.Path(__file__).resolve().parents[2] / "build" / "windows" / "bin"
PROGRAM = PROGRAMS / "tnt4swx.exe"
CONVERTER = PROGRAMS / "tnt-convert.exe"
SETTINGS = r"HKCU\SOFTWARE\Chromixs\TNT4SWX"
IDLE = 1  # seconds
PATIENCE = 300  # seconds
TICKS = os.sysconf("SC_CLK_TCK")  # of processor time, in a second
MOST_TICKS = IDLE * TICKS / 20  # of one that is idle


class Session:
    """The processor time of what runs in this Wine session, but not of this script."""

    def __init__(self):
        self.mark = b"WINEPREFIX=" + os.fsencode(os.environ["WINEPREFIX"]) + b"\0"
        self.is_ours = {os.getpid(): False}

    def processor_ticks(self):
        return sum(self.ticks_of(int(name)) for name in os.listdir("/proc") if name.isdigit())

    def ticks_of(self, process):
        folder = pathlib.Path("/proc", str(process))
        try:
            if process not in self.is_ours:
                self.is_ours[process] = self.mark in (folder / "environ").read_bytes()
            if not self.is_ours[process]:
                return 0
            fields = (folder / "stat").read_text().rpartition(")")[2].split()
            return sum(int(field) for field in fields[11:13])  # of users and of the system
        except OSError:
            return 0  # it has ended


def windows():
    """The windows that the window manager manages."""
    told = subprocess.run(["xprop", "-root", "_NET_CLIENT_LIST"], capture_output=True, text=True)
    return set(re.findall("0x[0-9a-f]+", told.stdout))


def wait_for(what, is_so):
    for _ in range(int(PATIENCE / 0.1)):
        if is_so():
            return
        time.sleep(0.1)
    sys.exit(f"peers: waited {PATIENCE} seconds for {what}")


def keep_a_desktop():
    """Wine starts its desktop with the first window; on Windows it is always there."""
    subprocess.Popen(["wine", "notepad"], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    wait_for("the desktop", windows)
    return windows()


def are_idle(looks):
    (first, ticks_before), (last, ticks) = looks[0], looks[-1]
    return last - first >= IDLE and ticks - ticks_before <= MOST_TICKS


def measure(session, others, command):
    """Milliseconds until the window is shown, until it is ready, and of processor time."""
    wait_for("the last window to go", lambda: windows() == others)
    before = session.processor_ticks()
    start = time.monotonic()
    program = subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    window = None
    looks = collections.deque([(start, 0)])  # of the last second, when and how many ticks
    while window is None or not are_idle(looks):
        time.sleep(0.01)
        if window is None and windows() - others:
            window = time.monotonic()
        looks.append((time.monotonic(), session.processor_ticks() - before))
        while looks[-1][0] - looks[1][0] >= IDLE:
            looks.popleft()
        if looks[-1][0] - start > PATIENCE:
            sys.exit(f"peers: {command[0]} was not ready after {PATIENCE} seconds")
    program.terminate()
    program.wait()
    ready, ticks = looks[0]
    return (window - start) * 1000, (max(window, ready) - start) * 1000, ticks * 1000 / TICKS


def write_library(path, count):
    groups = (count + 999) // 1000
    lines = [f'"D#Peers=0D:{groups + count}"']
    lines += [f'"G#Group {number}=0DG{number}"' for number in range(1, groups + 1)]
    for number in range(count):
        values = [number * 7 % 256, number * 13 % 256, number * 31 % 256, 100, 100, 100, 30, 0, 0]
        name = f"Color {number:08}"
        fields = "÷".join([name] + [str(value) for value in values])
        lines.append(f'"E#{name}=0DG{number // 1000 + 1}:{fields}"')
    path.write_bytes("".join(line + "\r\n" for line in lines).encode("cp1252"))


def make_files(folder, count):
    library, palette = folder / f"{count}.tnt", folder / f"{count}.gpl"
    write_library(library, count)
    told = subprocess.run(["wine", CONVERTER, f"Z:{library}", f"Z:{palette}"], capture_output=True)
    if told.returncode not in (0, 1):  # 1: a palette does not hold all of a library
        sys.exit(f"peers: {told.stderr.decode()}")
    return library, palette


def open_with_this_program(library):
    subprocess.run(["wine", "reg", "add", SETTINGS, "/v", "DefaultColorFile", "/d",
                    f"Z:{library}".replace("/", "\\"), "/f"], check=True, capture_output=True)
    return ["wine", str(PROGRAM)]


def compare(session, others, folder, count, repetitions):
    library, palette = make_files(folder, count)
    commands = {"tnt4swx": open_with_this_program(library), "gpick": ["gpick", str(palette)]}
    measured = {name: [] for name in commands}
    for _ in range(repetitions + 1):
        for name, command in commands.items():
            measured[name].append(measure(session, others, command))
    for name, runs in measured.items():
        window, ready, processor = (statistics.median(each) for each in zip(*runs[1:]))
        print(f"| {count:,} | {name} | {window:.0f} | {ready:.0f} | {processor:.0f} |", flush=True)


def main(arguments):
    for command in ("gpick", "xprop"):
        if not shutil.which(command):
            sys.exit(f"peers: no {command}; it needs the packages gpick and x11-utils")
    if not PROGRAM.exists() or not CONVERTER.exists() or "WINEPREFIX" not in os.environ:
        sys.exit(__doc__)
    repetitions, *counts = [int(argument) for argument in arguments] or [3]
    print("| colors | program | window, ms | ready, ms | processor, ms |\n"
          "| --- | --- | --- | --- | --- |")
    others = keep_a_desktop()
    with tempfile.TemporaryDirectory() as folder:
        for count in counts or (1000, 10000, 100000):
            compare(Session(), others, pathlib.Path(folder), count, repetitions)


if __name__ == "__main__":
    main(sys.argv[1:])
