"""Runs the steps of a test, several at a time where they can share the machine, and counts.

A step is a command with a time limit.  Its output goes into a log; its end is one line on the
screen, with the end of the log when it failed.  A step that fails does not hide the ones after it,
except those that need it.
"""

import dataclasses
import os
import re
import signal
import subprocess
import time

from count_tests import count

JOBS = ("main", "files", "editor", "mouse", "windows")  # what a person does, one after the other

TIMED_OUT = 124
BACKGROUND = 5  # niceness: at 19 the busy loops of a neighbour would leave such a step nothing
GRACE = 30  # seconds that an ended step has to tidy up
PAUSE = 0.05  # seconds between two looks at what runs
TOLD_LINES = 60
UNTOLD = re.compile(r"$|\[( *(RUN|OK) *|-+)\]|\[\d+/\d+\] ")


@dataclasses.dataclass(frozen=True)
class Step:
    """A command, and how it shares the machine with the others."""
    name: str
    command: tuple
    limit: int  # seconds
    needs: tuple = ()  # names of steps that must have passed before
    follows: tuple = ()  # names of steps that must have ended before
    counts: bool = False  # a test program: each of its tests counts
    alone: bool = False  # it works in real time, with nothing beside it
    background: bool = False  # it takes no lane, and less of the machine than the steps beside it
    environment: tuple = ()  # pairs of name and value
    filter: str = ""  # the option that chooses among its tests
    targets: tuple = ()  # what of the build it needs when it is run by itself


@dataclasses.dataclass
class Totals:
    passed: int = 0
    failed: int = 0
    failed_steps: list = dataclasses.field(default_factory=list)

    def add(self, name, passed, failed):
        self.passed += passed
        self.failed += failed
        if failed:
            self.failed_steps.append(name)


def next_step(waiting, running, ended, lanes):
    """The step that may start now, or None.

    One that works alone waits until everything else that can be done has been done.
    """
    if any(step.alone for step in running):
        return None
    ready = [step for step in waiting if all(name in ended for name in step.needs + step.follows)]
    in_lanes = sum(not step.background for step in running)
    for step in ready:
        if not step.alone and (step.background or in_lanes < lanes):
            return step
    if running or any(not step.alone for step in ready):
        return None
    return ready[0] if ready else None


def told_lines(log):
    """What of a failed step's output helps: its last lines, without those of what went well."""
    return [line for line in log.splitlines() if not UNTOLD.match(line)][-TOLD_LINES:]


class Running:
    """A step's process, with all that it starts, and its log."""

    def __init__(self, step, log, clock=time.monotonic):
        self.step, self.log, self.shown, self.clock = step, log, 0, clock
        self.started = clock()
        command = list(map(str, step.command))
        if step.background and os.name == "posix":
            command[:0] = ["nice", "-n", str(BACKGROUND)]
        try:
            with open(log, "wb") as output:
                self.process = subprocess.Popen(
                    command, stdin=subprocess.DEVNULL, stdout=output, stderr=subprocess.STDOUT,
                    env=os.environ | dict(step.environment), start_new_session=True)
        except OSError as error:
            log.write_text(f"{error}\n", encoding="utf-8")
            self.process = None

    def seconds(self):
        return self.clock() - self.started

    def status(self):
        """The exit status; None while the process runs within its limit."""
        if self.process is None:
            return 127
        status = self.process.poll()
        if status is None and self.seconds() > self.step.limit:
            self.end()
            return TIMED_OUT
        return status

    def end(self):
        """Ends the process and what it started."""
        if self.process is None or self.process.poll() is not None:
            return
        self.signal_all("SIGTERM")
        try:
            self.process.wait(GRACE)
        except subprocess.TimeoutExpired:
            self.signal_all("SIGKILL")
            self.process.wait()

    def signal_all(self, name):
        if os.name == "posix":
            os.killpg(self.process.pid, getattr(signal, name))
        else:
            subprocess.run(["taskkill", "/T", "/F", "/PID", str(self.process.pid)], check=False,
                           stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def text(self):
        return self.log.read_text(encoding="utf-8", errors="replace")

    def new_text(self):
        """What the log has got since the last call."""
        with open(self.log, "rb") as log:
            log.seek(self.shown)
            new = log.read()
        self.shown += len(new)
        return new.decode("utf-8", "replace").replace("\r", "")


class Runner:
    """Runs steps; at most as many beside each other as there are lanes, background ones aside.

    live: whether their output is shown as it comes, and not only the end of it when one fails.
    clock: gives the seconds by which the limits are kept.
    """

    def __init__(self, steps, lanes, logs, tell=print, live=False, clock=time.monotonic):
        self.waiting, self.running, self.ended = list(steps), [], {}
        self.lanes, self.logs, self.tell, self.live = lanes, logs, tell, live
        self.totals, self.clock = Totals(), clock

    def run(self):
        self.logs.mkdir(parents=True, exist_ok=True)
        try:
            while self.waiting or self.running:
                self.give_up_what_lacks_its_needs()
                self.start_what_may()
                self.look_after_what_runs()
                time.sleep(PAUSE if self.running else 0)
        finally:
            for running in self.running:
                running.end()
        return self.totals

    def give_up_what_lacks_its_needs(self):
        for step in list(self.waiting):
            missing = [name for name in step.needs if self.ended.get(name) is False]
            if missing:
                self.waiting.remove(step)
                self.ended[step.name] = False
                self.totals.add(step.name, 0, 1)
                self.tell(f"{'FAILED':7} {step.name:22} {'':7}  not run: {missing[0]} failed")

    def start_what_may(self):
        while step := next_step(self.waiting, [running.step for running in self.running],
                                self.ended, self.lanes):
            self.waiting.remove(step)
            self.running.append(Running(step, self.logs / f"{step.name}.log", self.clock))

    def look_after_what_runs(self):
        for running in list(self.running):
            status = running.status()
            if self.live and (text := running.new_text()):
                self.tell(text.removesuffix("\n"))
            if status is not None:
                self.running.remove(running)
                self.judge(running, status)

    def judge(self, running, status):
        step, details = running.step, []
        if step.counts:
            passed, failed, skipped = count(running.text(), status)
            details = [f"{passed} passed", f"{failed} failed"]
            details += [f"{skipped} skipped"] if skipped else []
        else:
            passed, failed = int(status == 0), int(status != 0)
        if status == TIMED_OUT:
            details.append(f"ended by its time limit of {step.limit} s")
        self.ended[step.name] = failed == 0
        self.totals.add(step.name, passed, failed)
        if failed and not self.live:
            self.tell("\n".join(told_lines(running.text())))
        self.tell(f"{'FAILED' if failed else 'ok':7} {step.name:22} {running.seconds():5.0f} s"
                  f"  {', '.join(details)}".rstrip())
