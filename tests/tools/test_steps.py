# Rules: Tools and packages
import os
import pathlib
import sys
import tempfile
import time
import unittest

import tool

steps = tool.load("steps")
Step = steps.Step

PASSES = "print('[==========] 3 tests from 1 test suite ran. (1 ms total)')"


def python(name, code, **options):
    return Step(name, (sys.executable, "-c", code), options.pop("limit", 60), **options)


def quiet(name, **options):
    return Step(name, ("true",), 60, **options)


class NextStep(unittest.TestCase):
    def chosen(self, waiting, running=(), ended=(), lanes=2):
        step = steps.next_step(waiting, running, ended, lanes)
        return step and step.name

    def test_is_the_first_that_has_what_it_needs(self):
        waiting = [quiet("a", needs=("b",)), quiet("c", follows=("d",)), quiet("e")]
        self.assertEqual(self.chosen(waiting), "e")
        self.assertEqual(self.chosen(waiting, ended=("d",)), "c")
        self.assertEqual(self.chosen(waiting, ended=("b",)), "a")

    def test_waits_for_a_lane_unless_it_takes_what_the_others_leave(self):
        busy = [quiet("x"), quiet("y")]
        self.assertIsNone(self.chosen([quiet("a")], busy))
        self.assertEqual(self.chosen([quiet("a"), quiet("b", background=True)], busy), "b")
        self.assertEqual(self.chosen([quiet("a")], [quiet("x"), quiet("y", background=True)]), "a")

    def test_alone_waits_for_everything_that_can_be_done_before(self):
        job = quiet("job", alone=True)
        self.assertIsNone(self.chosen([job], [quiet("x", background=True)]))
        self.assertEqual(self.chosen([job, quiet("a")]), "a")
        self.assertEqual(self.chosen([job]), "job")

    def test_alone_does_not_wait_for_what_needs_it(self):
        waiting = [quiet("a", needs=("job",)), quiet("job", alone=True)]
        self.assertEqual(self.chosen(waiting), "job")

    def test_nothing_starts_beside_one_that_works_alone(self):
        self.assertIsNone(self.chosen([quiet("a", background=True)], [quiet("job", alone=True)]))


class Run(unittest.TestCase):
    def setUp(self):
        temporary = tempfile.TemporaryDirectory()
        self.addCleanup(temporary.cleanup)
        self.folder = pathlib.Path(temporary.name)
        self.told = []

    def run_steps(self, *plan, lanes=2, clock=time.monotonic):
        return steps.Runner(plan, lanes, self.folder, self.told.append, clock=clock).run()

    def test_counts_each_test_of_a_suite_and_other_steps_as_one(self):
        totals = self.run_steps(python("suite", PASSES, counts=True), python("check", ""))
        self.assertEqual((totals.passed, totals.failed), (4, 0))
        self.assertTrue(any("ok" in line and "3 passed, 0 failed" in line for line in self.told))

    def test_a_failure_is_told_with_what_the_step_said_and_hides_no_other_step(self):
        totals = self.run_steps(python("check", "print('the reason'); raise SystemExit(3)"),
                                python("after", ""))
        self.assertEqual((totals.passed, totals.failed, totals.failed_steps), (1, 1, ["check"]))
        self.assertIn("the reason", "\n".join(self.told))

    def test_what_a_live_step_says_is_shown_once_and_also_when_it_passes(self):
        plan = [python("talk", "print('halfway', flush=True); print('there')")]
        steps.Runner(plan, 1, self.folder, self.told.append, live=True).run()
        self.assertEqual("\n".join(self.told).count("halfway\nthere"), 1)

    def test_what_needs_a_failed_step_is_not_run_and_counts_as_failed(self):
        marker = self.folder / "ran"
        totals = self.run_steps(python("build", "raise SystemExit(1)"),
                                python("tests", f"open({str(marker)!r}, 'w')", needs=("build",)),
                                python("more", "", needs=("tests",)))
        self.assertEqual((totals.passed, totals.failed), (0, 3))
        self.assertFalse(marker.exists())

    def test_a_program_that_is_not_there_has_failed(self):
        totals = self.run_steps(Step("gone", (self.folder / "no-such-program",), 60))
        self.assertEqual((totals.passed, totals.failed), (0, 1))

    def test_a_step_is_ended_at_its_limit_with_what_it_started(self):
        child = self.folder / "child"
        code = ("import os, signal\n"
                f"if os.fork() == 0: open({str(child)!r}, 'w').write(str(os.getpid()))\n"
                "signal.pause()")

        def clock():
            return 1000 if child.exists() and child.read_text() else 0

        totals = self.run_steps(python("slow", code, limit=1), clock=clock)
        self.assertEqual((totals.passed, totals.failed), (0, 1))
        self.assertIn("time limit of 1 s", self.told[-1])
        end = time.monotonic() + 30
        while not self.has_ended(child):
            self.assertLess(time.monotonic(), end)
            time.sleep(0.05)

    @staticmethod
    def has_ended(child):
        try:
            stat = pathlib.Path(f"/proc/{child.read_text()}/stat").read_text(encoding="utf-8")
        except OSError:
            return True
        return stat.rpartition(")")[2].split()[0] == "Z"

    def test_steps_of_two_lanes_run_beside_each_other_and_one_alone_does_not(self):
        meet = ("import pathlib, sys, time\n"
                "mine, other = map(pathlib.Path, ({0!r}, {1!r}))\n"
                "mine.touch()\n"
                "end = time.monotonic() + 30\n"
                "while not other.exists():\n"
                "    if time.monotonic() > end: sys.exit(1)\n"
                "    time.sleep(0.01)")
        a, b = str(self.folder / "a"), str(self.folder / "b")
        totals = self.run_steps(python("one", meet.format(a, b)), python("two", meet.format(b, a)))
        self.assertEqual(totals.failed, 0)

    def test_a_step_gets_its_environment_and_no_keyboard(self):
        code = "import os, sys; sys.exit(os.environ['TNT_DOSE'] != '7' or sys.stdin.read() != '')"
        totals = self.run_steps(python("dose", code, environment=(("TNT_DOSE", "7"),)))
        self.assertEqual(totals.failed, 0)

    @unittest.skipUnless(os.name == "posix", "the others know no such number")
    def test_a_background_step_gives_way_to_the_others(self):
        code = f"import os, sys; sys.exit(os.nice(0) != {min(19, os.nice(0) + steps.BACKGROUND)})"
        self.assertEqual(self.run_steps(python("tidy", code, background=True)).failed, 0)


class ToldLines(unittest.TestCase):
    def test_leave_out_what_went_well(self):
        log = "[1/9] Building\n[ RUN      ] A.B\n[       OK ] A.B\n\nexpected 1\n[  FAILED  ] A.C\n"
        self.assertEqual(steps.told_lines(log), ["expected 1", "[  FAILED  ] A.C"])

    def test_are_the_last_ones(self):
        self.assertEqual(steps.told_lines("\n".join(map(str, range(500))))[-1], "499")
        self.assertEqual(len(steps.told_lines("\n".join(map(str, range(500))))), steps.TOLD_LINES)


if __name__ == "__main__":
    unittest.main()
