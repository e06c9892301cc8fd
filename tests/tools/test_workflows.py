"""What the workflow files of the continuous integration name is there; their form is checked by
tools/check-workflows.sh."""
# Rules: Tools and packages

import json
import pathlib
import re
import unittest

import tool

WORKFLOWS = sorted((tool.ROOT / ".github" / "workflows").glob("*.yml"))
on_windows = tool.load("test-on-windows")
tests = tool.load("run-tests")


def presets(kind):
    text = (tool.ROOT / "CMakePresets.json").read_text(encoding="utf-8")
    return {preset["name"]: preset for preset in json.loads(text)[kind]}


class Workflows(unittest.TestCase):
    def test_are_there_for_both_systems(self):
        self.assertEqual([file.name for file in WORKFLOWS], ["linux.yml", "windows.yml"])

    def test_take_actions_by_a_full_version(self):
        for file in WORKFLOWS:
            used = re.findall(r"uses: (\S+)", file.read_text(encoding="utf-8"))
            self.assertTrue(used)
            for action in used:
                self.assertRegex(action, r"^[\w./-]+@v\d+\.\d+\.\d+$")

    def test_call_scripts_and_presets_that_are_there(self):
        for file in WORKFLOWS:
            text = file.read_text(encoding="utf-8")
            for script in re.findall(r"(?:tools/[\w-]+\.\w+|\./\w+)", text):
                self.assertTrue((tool.ROOT / script).is_file(), script)
            for kind, command in (("configurePresets", "cmake"), ("buildPresets", "cmake --build"),
                                  ("testPresets", "ctest")):
                for name in re.findall(rf"run: {command} --preset (\S+)", text):
                    self.assertIn(name, presets(kind))

    def test_give_every_job_a_limit(self):
        for file in WORKFLOWS:
            text = file.read_text(encoding="utf-8")
            self.assertEqual(text.count("runs-on:"), text.count("timeout-minutes:"))


class Presets(unittest.TestCase):
    def test_each_build_whose_tests_can_run_has_a_test_preset(self):
        self.assertEqual(set(presets("testPresets")),
                         {"native", "native-clang", "windows", "windows-clang", "msvc"})

    def test_version_of_the_manifest_is_that_of_the_project(self):
        manifest = json.loads((tool.ROOT / "vcpkg.json").read_text(encoding="utf-8"))
        self.assertEqual(manifest["version"], tool.load("make-packages").version())


class TestOnWindows(unittest.TestCase):
    def test_works_each_test_program_and_job_alone_and_then_the_packages(self):
        plan = on_windows.windows_plan(pathlib.Path("build"))
        self.assertTrue(all(step.alone and step.counts for step in plan))
        self.assertEqual([step.name for step in plan],
                         ["portable-tests", "windows-tests", "file-faults", "convert-tests",
                          *(f"{job}-job" for job in tests.JOBS), "packages"])

    def test_tells_the_tests_where_sources_and_programs_are(self):
        plan = on_windows.windows_plan(pathlib.Path("/b"), pathlib.Path("/s"))
        for step in (plan[1], plan[-1]):
            self.assertEqual(dict(step.environment),
                             {"TNT_SOURCES": "/s", "TNT_PROGRAMS": "/b/bin"})


if __name__ == "__main__":
    unittest.main()
