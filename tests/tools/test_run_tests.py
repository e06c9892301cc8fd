# Rules: Tools and packages
import unittest

import tool

tests = tool.load("run-tests")


def commands(plan):
    return {step.name: tuple(map(str, step.command)) for step in plan}


class Plan(unittest.TestCase):
    def setUp(self):
        self.plans = [tests.whole_plan(), tests.whole_plan(native=True), tests.whole_plan(shards=3),
                      tests.whole_plan(with_long=True, shards=2)]

    def test_each_step_has_a_name_of_its_own_and_stands_after_what_it_needs(self):
        for plan in self.plans:
            names = [step.name for step in plan]
            self.assertEqual(len(names), len(set(names)))
            for index, step in enumerate(plan):
                self.assertLessEqual(set(step.needs + step.follows), set(names[:index]), step.name)

    def test_native_one_needs_nothing_of_windows(self):
        for command in commands(self.plans[1]).values():
            self.assertFalse({"tools/wine-session.sh", "windows"} & set(command), command)

    def test_long_suites_are_shared_out(self):
        for suite in ("windows-tests", "portable-tests"):
            shares = [dict(step.environment) for step in self.plans[2]
                      if step.name.removeprefix(suite + "-").isdecimal()]
            self.assertEqual([share["GTEST_SHARD_INDEX"] for share in shares], ["0", "1", "2"])
            self.assertEqual({share["GTEST_TOTAL_SHARDS"] for share in shares}, {"3"})

    def test_windows_half_is_built_beside_the_native_tests(self):
        names = [step.name for step in self.plans[2]]
        self.assertLess(names.index("build-windows"), names.index("portable-tests-1"))

    def test_jobs_have_the_machine_to_themselves(self):
        alone = {step.name for step in self.plans[0] if step.alone}
        self.assertEqual(alone, {f"{name}-job" for name in tests.JOBS} | {"packages"})

    def test_long_doses_are_for_the_long_run_alone(self):
        long_names = {name for name, _ in tests.LONG_DOSES}
        for plan, expected in zip(self.plans, (set(), set(), set(), long_names)):
            given = {name for step in plan for name, _ in step.environment}
            self.assertEqual(given & long_names, expected)


class Choice(unittest.TestCase):
    def test_native_choices_want_nothing_of_windows_installed(self):
        for arguments in (["native"], ["portable", "Text*"], ["convert"], ["cppcheck"]):
            self.assertTrue(tests.is_native(tests.chosen_plan(arguments, 2)), arguments)
        for arguments in ([], ["--long"], ["windows"], ["convert-tests-wine"], ["coverage"]):
            self.assertFalse(tests.is_native(tests.chosen_plan(arguments, 2)), arguments)

    def test_nothing_that_makes_sense_is_refused(self):
        for arguments in (["nonsense"], ["--unknown"], ["--long", "portable"], ["native", "x"]):
            self.assertIsNone(tests.chosen_plan(arguments, 2), arguments)

    def test_one_suite_builds_no_more_than_it_needs(self):
        self.assertEqual(commands(tests.chosen_plan(["portable", "ColorTable*", "Text.Ends"], 2)), {
            "build-native": ("tools/build.sh", "native", "portable_tests"),
            "portable-tests": ("build/native/portable_tests",
                               "--gtest_filter=ColorTable*:Text.Ends")})

    def test_a_named_step_is_that_of_every_run_if_it_is_in_that(self):
        self.assertNotIn("--paths", commands(tests.chosen_plan(["tidy-portable"], 2))
                         ["tidy-portable"])
        limits = {step.name: step.limit for step in tests.chosen_plan(["portable"], 2)}
        self.assertEqual(limits["portable-tests"], 900)

    def test_a_bare_word_is_the_beginning_of_a_name(self):
        plan = commands(tests.chosen_plan(["windows", "Monkey"], 2))
        self.assertEqual(plan["windows-tests"][-1], "--gtest_filter=Monkey*")

    def test_python_tests_are_chosen_by_their_own_option(self):
        plan = commands(tests.chosen_plan(["tool", "Plan", "Choice"], 2))
        self.assertEqual(plan["tool-tests"][-4:], ("-k", "Plan", "-k", "Choice"))

    def test_a_job_is_known_by_its_name(self):
        self.assertEqual(list(commands(tests.chosen_plan(["mouse"], 2))),
                         ["build-windows", "mouse-job"])

    def test_packages_are_made_before_they_are_tried(self):
        plan = commands(tests.chosen_plan(["packages"], 2))
        self.assertEqual(list(plan), ["build-windows", "make-packages", "packages"])
        self.assertLessEqual({*tests.PROGRAMS, "play_job"}, set(plan["build-windows"]))

    def test_console_program_is_tested_natively_and_under_wine(self):
        plan = commands(tests.chosen_plan(["convert"], 2))
        self.assertEqual(plan["build-native"], ("tools/build.sh", "native", "tnt-convert"))
        plan = commands(tests.chosen_plan(["convert-tests-wine", "exit_codes"], 2))
        self.assertEqual(plan["build-windows"], ("tools/build.sh", "windows", "tnt-convert"))
        self.assertIn("TNT_CONVERT=build/windows/bin/tnt-convert.exe", plan["convert-tests-wine"])
        self.assertEqual(plan["convert-tests-wine"][-2:], ("-k", "exit_codes"))

    def test_a_step_without_tests_has_none_to_choose_among(self):
        for name in ("format", "mouse"):
            with self.assertRaises(SystemExit):
                tests.chosen_plan([name, "Something"], 2)

    def test_only_what_needs_windows_wants_all_packages_of_the_tests(self):
        for arguments, native in ((["native"], True), (["portable"], True), (["format"], True),
                                  ([], False), (["mouse"], False), (["--long"], False)):
            self.assertEqual(tests.is_native(tests.chosen_plan(arguments, 2)), native, arguments)


if __name__ == "__main__":
    unittest.main()
