#!/usr/bin/env python3
"""How long the same colors take to be opened by the program and by gpick, a palette editor that
Debian packages; the numbers stand in docs/performance.md.  The programs and gpick must be there:

  tools/wine-session.sh python3 tests/bench/peers.py [REPETITIONS]

Each starts with the file, in turn; it has opened the file when it uses the processor no more, for
which it is given two minutes.  Nothing else may run beside this.  Of the program, what Wine's server
works for it counts too.
"""

import os
import pathlib
import statistics
import subprocess
import sys
import tempfile
import time

ROOT = pathlib.Path(__file__).resolve().parents[2]
PROGRAM = ROOT / "build" / "windows" / "bin" / "tnt4swx.exe"
SIZES = (1_000, 10_000, 100_000)
GROUP = 1_000  # colors in a group, where there are groups
TICK = 1 / os.sysconf("SC_CLK_TCK")
LOOK = 0.02  # seconds between two looks
REST = 1.5  # seconds with next to no work
PATIENCE = 120


def colors(count):
    """Names of 16 characters, and red, green and blue."""
    return [(f"color {index:010}", (index & 255, index >> 8 & 255, index * 7 & 255))
            for index in range(count)]


def library(count):
    """As docs/file-format.md describes it."""
    groups = range((count + GROUP - 1) // GROUP)
    lines = [f"D#Peers=0D:{count + len(groups)}", *(f"G#Group {g}=0DG{g + 1}" for g in groups)]
    for index, (name, rgb) in enumerate(colors(count)):
        values = (*rgb, 45, 55, 77, 70, 0, 0)
        lines.append(f"E#{name}=0DG{index // GROUP + 1}:" + "÷".join([name, *map(str, values)]))
    return "".join(f'"{line}"\r\n' for line in lines).encode("cp1252")


def palette(count):
    rows = "".join(f"{r:3} {g:3} {b:3}\t{name}\n" for name, (r, g, b) in colors(count))
    return f"GIMP Palette\nName: Peers\nColumns: 1\n#\n{rows}".encode()


def seconds_of(pid):
    """Processor time of a process; None when it has ended."""
    try:
        fields = pathlib.Path(f"/proc/{pid}/stat").read_text().rpartition(")")[2].split()
    except OSError:
        return None
    return (int(fields[11]) + int(fields[12])) * TICK


def processes(name):
    found = subprocess.run(["pgrep", "-x", name], stdout=subprocess.PIPE, text=True, check=False)
    return [int(line) for line in found.stdout.split() if is_of_this_session(int(line))]


def is_of_this_session(pid):
    """Other sessions on this machine have programs of the same name."""
    try:
        return os.environ["HOME"].encode() in pathlib.Path(f"/proc/{pid}/environ").read_bytes()
    except OSError:
        return False


def used(names):
    return sum(seconds_of(pid) or 0 for name in names for pid in processes(name))


def time_to_rest(command, names):
    """Wall and processor seconds until the started program rests; None when it never does."""
    before, started = used(names), time.monotonic()
    process = subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    last_work, last_used = started, before
    try:
        while True:
            time.sleep(LOOK)
            now, work = time.monotonic(), used(names)
            if work - last_used > 2 * TICK:
                last_work, last_used = now, work
            if last_used > before and now - last_work > REST:
                return last_work - started, last_used - before
            if process.poll() is not None:
                raise SystemExit(f"{command[0]} has ended")
            if now - started > PATIENCE:
                return None
    finally:
        for pid in processes(names[0]):
            os.kill(pid, 15)
        process.wait()


def open_with_program(file):
    subprocess.run(["wine", "reg", "add", r"HKCU\SOFTWARE\Chromixs\TNT4SWX", "/v",
                    "DefaultColorFile", "/d", "Z:" + str(file).replace("/", "\\"), "/f"],
                   check=True, stdout=subprocess.DEVNULL)
    return time_to_rest(["wine", str(PROGRAM)], ("tnt4swx.exe", "wineserver"))


def open_with_gpick(file):
    return time_to_rest(["gpick", str(file)], ("gpick",))


def row(count, name, measured):
    if None in measured:
        return f"| {count:,} | {name} | not open after {PATIENCE} | |"
    walls, works = zip(*measured)
    return (f"| {count:,} | {name} | {statistics.median(walls):.2f} ({min(walls):.2f} - "
            f"{max(walls):.2f}) | {statistics.median(works):.2f} |")


def main():
    repetitions = int(sys.argv[1]) if len(sys.argv) > 1 else 5
    print("| colors | program | wall, s | processor, s |\n| --- | --- | --- | --- |")
    with tempfile.TemporaryDirectory() as folder:
        for count in SIZES:
            peers = {"tnt4swx": (open_with_program, "peers.tnt", library(count)),
                     "gpick": (open_with_gpick, "peers.gpl", palette(count))}
            times = {name: [] for name in peers}
            for _ in range(repetitions):
                for name, (opened_in, file_name, data) in peers.items():
                    file = pathlib.Path(folder) / file_name
                    file.write_bytes(data)
                    times[name].append(opened_in(file))
            for name, measured in times.items():
                print(row(count, name, measured), flush=True)


if __name__ == "__main__":
    main()
