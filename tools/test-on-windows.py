#!/usr/bin/env python3
"""Tests, on Windows itself and its real desktop, a MinGW-w64 build that was made elsewhere.

  python tools/test-on-windows.py [BUILD]

  BUILD   folder of the test programs, with the programs in its bin (default build/windows); the
          packages are in build/packages

Nothing is built.  The last line is "N passed, N failed"; each step's output lies below build/logs.
"""

import os
import pathlib
import sys

from steps import JOBS, Runner, Step

ROOT = pathlib.Path(__file__).resolve().parent.parent


def windows_plan(build, root=ROOT):
    """The steps, each with the screen to itself."""
    places = (("TNT_SOURCES", root.as_posix()), ("TNT_PROGRAMS", (build / "bin").as_posix()))
    tests = [Step(name.replace("_", "-"), (build / f"{name}.exe",), 2400, counts=True, alone=True,
                  environment=places)
             for name in ("portable_tests", "windows_tests", "file_faults")]
    jobs = [Step(f"{name}-job", (build / "play_job.exe", name, build / "bin",
                                 root / "build" / "screenshots" / name), 600, counts=True,
                 alone=True)
            for name in JOBS]
    convert = Step("convert-tests", (sys.executable, "-m", "unittest", "discover", "-s",
                                     root / "tests" / "converter" / "process"), 600, counts=True,
                   alone=True, environment=places)
    packages = Step("packages", (sys.executable, "-m", "unittest", "discover", "-s",
                                 root / "tests" / "package"), 1800, counts=True, alone=True,
                    environment=places)
    return [*tests, convert, *jobs, packages]


def main():
    if os.name != "nt":
        print("This is for Windows; elsewhere ./test runs the same tests", file=sys.stderr)
        return 2
    build = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else ROOT / "build" / "windows").resolve()
    totals = Runner(windows_plan(build), 1, ROOT / "build" / "logs").run()
    print(f"{totals.passed} passed, {totals.failed} failed")
    return 1 if totals.failed else 0


if __name__ == "__main__":
    sys.exit(main())
