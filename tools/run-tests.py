#!/usr/bin/env python3
"""What ./test does: the plan of its steps, and those of them that are asked for.

  tools/run-tests.py [native | --long | STEP [FILTER ...]]
"""

import dataclasses
import os
import pathlib
import re
import signal
import subprocess
import sys

from steps import JOBS, Runner, Step

ROOT = pathlib.Path(__file__).resolve().parent.parent
LOGS = ROOT / "build" / "logs"
WINE = ("tools/wine-session.sh",)
PROGRAMS = ("tnt4swx", "swx_standin", "tnt-convert")
OWN_LIBRARIES = ("tnt_portable", "tnt_platform", "tnt_forms", "standin_model", "tnt_converter")
LONG_DOSES = (("TNT_MONKEY", "100000"), ("TNT_ENDURANCE", "1000"), ("TNT_KILLS", "100"),
              ("TNT_SAVES", "1000"), ("TNT_CALLS", "1000"), ("TNT_FILES", "300"),
              ("TNT_FRAMES", "20000"), ("TNT_PAGES", "10000"), ("TNT_HISTORY", "100"))

USAGE = """usage: ./test                      everything that is for every hour
       ./test native               the portable half and the quick checks
       ./test --long               all of it, with long doses, the second compiler and fuzzing
       ./test STEP [FILTER ...]    one step and what it needs, as in
                                     ./test portable ColorTable*
                                     ./test windows Monkey.*
                                     ./test mouse

steps: """


def build(preset, limit, **options):
    return Step(f"build-{preset}", ("tools/build.sh", preset), limit, **options)


def suite(name, preset, command, limit, **options):
    """A test program of a build; its target is the name of its file, when no other is given."""
    target = pathlib.PurePath(command[-1]).stem
    options = {"filter": "--gtest_filter", "targets": (target,)} | options
    return Step(name, tuple(command), limit, needs=(f"build-{preset}",), counts=True, **options)


def shared_suite(name, preset, command, limit, shards, doses):
    """A test program in shares, each a step of its own: more of them than run at a time let no core
    wait for the longest."""
    if shards == 1:
        return [suite(name, preset, command, limit, environment=doses)]
    return [suite(f"{name}-{index + 1}", preset, command, limit,
                  environment=doses + (("GTEST_TOTAL_SHARDS", str(shards)),
                                       ("GTEST_SHARD_INDEX", str(index))))
            for index in range(shards)]


def convert_tests(name, preset, *command):
    """The console program of a build as scripts see it."""
    return Step(name, (*command, sys.executable, "-m", "unittest", "discover", "-s",
                       "tests/converter/process"), 300, needs=(f"build-{preset}",), counts=True,
                filter="-k", targets=("tnt-convert",))


def check(name, *command, limit=120, **options):
    return Step(name, command, limit, **options)


def patience(doses):
    """Seconds for a suite that goes on longer with long doses."""
    return 3600 if doses else 900


def native_steps(shards=1, doses=()):
    return [
        build("native", 1800),
        *shared_suite("portable-tests", "native", ["build/native/portable_tests"],
                      patience(doses), shards, doses),
        convert_tests("convert-tests", "native"),
        # Whether it runs, at a small size; nothing is timed here.
        check("library-bench", "build/native/library_bench", "10000", "1",
              needs=("build-native",), targets=("library_bench",)),
        check("shading-bench", "build/native/shading_bench", "9",
              needs=("build-native",), targets=("shading_bench",)),
        check("cppcheck", "tools/check-cppcheck.sh", limit=900),
        Step("tool-tests", (sys.executable, "-m", "unittest", "discover", "-s", "tests/tools"),
             300, counts=True, filter="-k"),
        check("format", "tools/check-format.sh"),
        check("includes", "tools/check-includes.py"),
        check("language-files", "tools/check-language.py"),
        check("test-map", "tools/make-test-map.py", "--check"),
        check("samples", "tools/make-samples.py", "--check"),
        check("icons", "tools/make-icons.py", "--check"),
        check("banners", "tools/make-banners.py", "--check"),
    ]


def tidy_steps(with_paths=False):
    """They take no lane from the others."""
    command = ("tools/check-tidy.py", *(["--paths"] if with_paths else []))
    return [check("tidy-portable", *command, "native", limit=7200, background=True,
                  needs=("build-native",), targets=("tnt_portable",)),
            check("tidy-windows", *command, "windows", limit=7200, background=True,
                  needs=("build-native", "build-windows"), targets=("tnt_portable",))]


def windows_suites(shards, doses):
    """The tests on real windows; each share of them has a session of its own."""
    return shared_suite("windows-tests", "windows",
                        (*WINE, "wine", "build/windows/windows_tests.exe"),
                        9000 if doses else 2400, shards, doses)


def job(name):
    """A job that is worked as a person does, with real mouse and keyboard; leaves its pictures."""
    return suite(f"{name}-job", "windows", [*WINE, "tools/play-job.sh", name], 300, alone=True,
                 filter="", targets=("play_job",))


def windows_steps(shards, doses):
    programs = [f"build/windows/bin/{name}.exe" for name in PROGRAMS]
    own = [f"--objects=build/windows/lib{name}.a" for name in OWN_LIBRARIES]
    session = (*WINE, "wine")
    return [
        build("windows", 3600, follows=("build-native",)),
        *windows_suites(shards, doses),
        suite("portable-tests-wine", "windows", (*session, "build/windows/portable_tests.exe"),
              patience(doses), environment=doses),
        convert_tests("convert-tests-wine", "windows", *WINE, "env",
                      "TNT_CONVERT=build/windows/bin/tnt-convert.exe"),
        suite("file-faults", "windows",
              (*WINE, "tools/run-file-faults.sh", "build/windows/file_faults.exe"),
              patience(doses), environment=doses),
        # What protects the programs and their user, and that nothing of this machine is in them.
        check("hardening", "tools/check-hardening.py", *own, f"--forbid={ROOT}", "--forbid=/usr/",
              *programs, needs=("build-windows",), targets=PROGRAMS),
        check("library-bench-wine", *session, "build/windows/library_bench.exe", "1000", "1",
              needs=("build-windows",), targets=("library_bench",)),
        check("preview-bench", *session, "build/windows/preview_bench.exe", "5", "1",
              needs=("build-windows",), targets=("preview_bench",)),
        # Whether the walks make no call more than a bare loop.
        check("walk-bench", *session, "build/windows/walk_bench.exe", "300",
              needs=("build-windows",), targets=("walk_bench",)),
        check("make-packages", "tools/make-packages.py", needs=("build-windows",),
              targets=PROGRAMS),
        *map(job, JOBS),
        # The packages, unpacked and installed as their user does.
        Step("packages", (*WINE, sys.executable, "-m", "unittest", "discover", "-s",
                          "tests/package"), 900, needs=("make-packages",), counts=True, alone=True,
             filter="-k", targets=("play_job",)),
    ]


def long_steps():
    """The same sources with the second compiler, the coverage by tests, and fuzzing."""
    return [
        build("native-clang", 1800, follows=("packages",)),
        suite("portable-tests-clang", "native-clang", ["build/native-clang/portable_tests"], 900),
        build("windows-clang", 3600, follows=("build-native-clang",)),
        suite("windows-tests-clang", "windows-clang",
              (*WINE, "wine", "build/windows-clang/windows_tests.exe"), 2400),
        check("coverage", "tools/check-coverage.sh", limit=1800, follows=("build-windows-clang",)),
        # Those of drawing programs, fetched from their packages.
        check("real-palettes", "tools/check-real-palettes.py", limit=900, needs=("build-native",),
              targets=("tnt-convert",)),
        build("fuzz", 1800, follows=("coverage",)),
        suite("fuzz", "fuzz", ["tools/run-fuzzers.sh", "60"], 1800, filter="", targets=()),
    ]


def whole_plan(native=False, with_long=False, shards=1):
    doses = LONG_DOSES if with_long else ()
    plan = native_steps(shards, doses)
    if not native:
        build_windows, *windows = windows_steps(shards, doses)
        plan[1:1] = [build_windows]  # the native tests run beside it
        plan += windows + tidy_steps(with_long)
    return plan + (long_steps() if with_long else [])


def needed(step, plan):
    """The steps that must have passed before, each once and in the plan's order."""
    names, open_names = set(), list(step.needs)
    while open_names:
        name = open_names.pop()
        if name not in names:
            names.add(name)
            open_names += next(other for other in plan if other.name == name).needs
    return [other for other in plan if other.name in names]


def filtered(step, patterns):
    """The step with only those of its tests that a pattern fits; a bare word is a beginning."""
    if not step.filter:
        raise SystemExit(f"{step.name} has no tests to choose among")
    if step.filter == "-k":
        return dataclasses.replace(step, command=step.command + tuple(
            part for pattern in patterns for part in ("-k", pattern)))
    wanted = (pattern if set(pattern) & set("*?.") else f"{pattern}*" for pattern in patterns)
    return dataclasses.replace(step, command=(*step.command, f"{step.filter}={':'.join(wanted)}"))


def only_targets(step, targets):
    return dataclasses.replace(step, command=step.command + tuple(targets))


def named_plan(name, patterns):
    """One step with what it needs, building nothing else; None when there is no such step."""
    names = (name, f"{name}-tests", f"{name}-job")
    for plan in (whole_plan(), whole_plan(with_long=True)):  # as in every run, if it is in that
        found = [step for wanted in names for step in plan if step.name == wanted]
        if found:
            break
    else:
        return None
    step, before = found[0], needed(found[0], plan)
    targets = dict.fromkeys(target for each in (step, *before) for target in each.targets)
    before = [only_targets(each, targets) if each.name.startswith("build-") else each
              for each in before]
    step = filtered(step, patterns) if patterns else step
    return [dataclasses.replace(each, follows=(), environment=()) for each in (*before, step)]


def chosen_plan(arguments, cores):
    """The steps to run; None when the arguments make no sense."""
    match arguments:
        case []:
            return whole_plan(shards=2 * cores)
        case ["native"]:
            return whole_plan(native=True, shards=2 * cores)
        case ["--long"]:
            return whole_plan(with_long=True, shards=2 * cores)
        case [name, *patterns] if not name.startswith("-"):
            return named_plan(name, patterns)
    return None


def is_native(plan):
    """Whether nothing of it needs Windows, or what is like it."""
    native = {step.name for step in native_steps()}
    return all(re.sub(r"-\d+$", "", step.name) in native for step in plan)


def main():
    cores = min(os.cpu_count() or 1, 4)
    plan = chosen_plan(sys.argv[1:], cores)
    if plan is None:
        names = " ".join(step.name for step in whole_plan(with_long=True))
        print(USAGE + names, file=sys.stderr)
        return 2
    os.chdir(ROOT)
    sys.stdout.reconfigure(line_buffering=True)
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(143))
    os.environ["PYTHONDONTWRITEBYTECODE"] = "1"
    subprocess.run(["tools/setup.sh", "native" if is_native(plan) else "test"], check=True)
    is_named = bool(sys.argv[1:]) and sys.argv[1] not in ("native", "--long")
    totals = Runner(plan, cores, LOGS, live=is_named).run()
    if totals.failed_steps:
        print(f"Failed: {' '.join(totals.failed_steps)} (logs in build/logs)")
    print(f"{totals.passed} passed, {totals.failed} failed")
    return 1 if totals.failed else 0


if __name__ == "__main__":
    try:
        sys.exit(main())
    except KeyboardInterrupt:
        sys.exit(130)
