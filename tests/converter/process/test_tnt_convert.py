"""tnt-convert as a process: what scripts see of it.

  python3 -m unittest discover -s tests/converter/process

TNT_CONVERT names another program than that of the native build, or on Windows itself that beside the
others; one for Windows runs under Wine elsewhere.
"""
# Rules: Console program

import csv
import io
import os
import pathlib
import subprocess
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[3]
ON_WINDOWS = os.name == "nt"
USUAL = (pathlib.Path(os.environ.get("TNT_PROGRAMS", ROOT / "build" / "windows" / "bin")) /
         "tnt-convert.exe" if ON_WINDOWS else ROOT / "build" / "native" / "tnt-convert")
PROGRAM = pathlib.Path(os.environ.get("TNT_CONVERT", USUAL)).resolve()
IS_WINDOWS_PROGRAM = PROGRAM.suffix == ".exe"
COMMAND = ["wine", str(PROGRAM)] if IS_WINDOWS_PROGRAM and not ON_WINDOWS else [str(PROGRAM)]
SAMPLES = ROOT / "resources" / "samples"

DONE, LOSSY, WRONG_USAGE, UNREADABLE, NOT_WRITTEN = range(5)

GPL = "GIMP Palette\nName: Meins\n#\n255 204 77\tSonne\n0 0 0\tΩ Nacht\n"


class TntConvert(unittest.TestCase):
    def setUp(self):
        temporary = tempfile.TemporaryDirectory()
        self.addCleanup(temporary.cleanup)
        self.folder = pathlib.Path(temporary.name)
        (self.folder / "library.tnt").write_bytes((SAMPLES / "materials.tnt").read_bytes())
        (self.folder / "a.gpl").write_text(GPL, encoding="utf-8", newline="\n")

    def run_program(self, *arguments):
        """Exit code, standard output and standard error."""
        result = subprocess.run([*COMMAND, *arguments], cwd=self.folder, stdin=subprocess.DEVNULL,
                                stdout=subprocess.PIPE, stderr=subprocess.PIPE, timeout=120,
                                check=False)
        return result.returncode, result.stdout.decode(), result.stderr.decode()

    def exit_code(self, *arguments):
        return self.run_program(*arguments)[0]

    def listed(self, name):
        """Group, name and values of each color of a file."""
        code, out, _ = self.run_program("--list", name)
        self.assertEqual(code, DONE)
        rows = [line.split("\t") for line in out.removesuffix("\n").split("\n")]
        return [(row[0], row[1], *row[2:]) for row in rows]

    def names(self):
        return {path.name for path in self.folder.iterdir()}

    def test_library_goes_to_a_table_and_back_with_all_names_and_nine_values(self):
        self.assertEqual(self.exit_code("library.tnt", "b.csv"), LOSSY)
        self.assertEqual(self.exit_code("b.csv", "back.tnt", "--name", "Materials"), DONE)
        self.assertEqual((self.folder / "back.tnt").read_bytes(),
                         (SAMPLES / "materials.tnt").read_bytes())

    def test_table_is_what_the_list_says(self):
        self.exit_code("library.tnt", "b.csv")
        text = (self.folder / "b.csv").read_bytes().decode("utf-8-sig")
        rows = list(csv.reader(io.StringIO(text)))[1:]
        self.assertEqual([tuple(row) for row in rows], self.listed("library.tnt"))
        self.assertEqual(rows[0][:2], ["Metals", "Brass"])

    def test_palettes_keep_names_and_red_green_blue(self):
        colors = [row[1:5] for row in self.listed("library.tnt")]
        for name in ("b.gpl", "b.ase", "b.aco"):
            with self.subTest(name):
                self.assertEqual(self.exit_code("library.tnt", name), LOSSY)
                self.assertEqual(self.exit_code(name, f"{name}.tnt"), DONE)
                self.assertEqual([row[1:5] for row in self.listed(f"{name}.tnt")], colors)

    def test_sample_palettes_are_libraries_at_once_and_as_the_program_writes_them(self):
        for name, groups, colors in (("powder-coats.gpl", 0, 20), ("anodized-aluminium.csv", 2, 16)):
            with self.subTest(name):
                (self.folder / name).write_bytes((SAMPLES / name).read_bytes())
                code, out, _ = self.run_program("--check", name)
                self.assertEqual(code, DONE)
                self.assertTrue(out.endswith(f"groups: {groups}\ncolors: {colors}\n"), out)
                self.assertEqual(self.exit_code(name, f"{name}.tnt"), DONE)
                self.assertEqual(self.exit_code(name, f"again-{name}"), DONE)
                self.assertEqual((self.folder / f"again-{name}").read_bytes(),
                                 (SAMPLES / name).read_bytes())

    def test_what_is_lost_is_told_on_standard_error_in_a_line_each(self):
        code, out, told = self.run_program("library.tnt", "b.gpl")
        self.assertEqual((code, out), (LOSSY, ""))
        self.assertEqual(told, "tnt-convert: b.gpl: groups that are not kept as groups of their "
                               "own: 4\ntnt-convert: b.gpl: colors without their material values: "
                               "29\n")

    def test_what_cannot_be_read_is_told(self):
        (self.folder / "b.gpl").write_text(GPL + "1 2 three\n", encoding="utf-8")
        code, out, told = self.run_program("--check", "b.gpl")
        self.assertEqual(code, LOSSY)
        self.assertEqual(out, "kind: GIMP palette (.gpl)\nname: Meins\ngroups: 0\ncolors: 2\n")
        self.assertEqual(told, "tnt-convert: b.gpl: not read as a color and left out: 1 "
                               "(first: line 6)\n")

    def test_existing_file_is_replaced_with_force_alone(self):
        target = self.folder / "b.csv"
        target.write_bytes(b"old")
        code, _, told = self.run_program("a.gpl", "b.csv", "--name", "")
        self.assertEqual((code, told), (NOT_WRITTEN, "tnt-convert: b.csv: exists; --force replaces "
                                                     "it\n"))
        self.assertEqual(target.read_bytes(), b"old")
        self.assertEqual(self.exit_code("a.gpl", "b.csv", "--name", "", "--force"), DONE)
        self.assertIn(b",Sonne,255,204,77,", target.read_bytes())
        self.assertEqual(self.names(), {"library.tnt", "a.gpl", "b.csv"})

    def test_file_is_replaced_by_itself_with_force_alone(self):
        before = (self.folder / "library.tnt").read_bytes()
        self.assertEqual(self.exit_code("library.tnt", "library.tnt", "--name", "New"), NOT_WRITTEN)
        self.assertEqual((self.folder / "library.tnt").read_bytes(), before)
        self.assertEqual(self.exit_code("library.tnt", "library.tnt", "--name", "New", "--force"),
                         DONE)
        self.assertEqual((self.folder / "library.tnt").read_bytes(),
                         before.replace(b"D#Materials", b"D#New"))

    def test_exit_codes_tell_what_went_wrong(self):
        (self.folder / "text.txt").write_text("Dear Sir or Madam\n")
        for code, *arguments in ((WRONG_USAGE,), (WRONG_USAGE, "a.gpl"),
                                 (WRONG_USAGE, "a.gpl", "b.xyz"),
                                 (WRONG_USAGE, "a.gpl", "b.tnt", "--values", "1,2,3"),
                                 (WRONG_USAGE, "a.gpl", "b.tnt", "--code-page", "5"),
                                 (UNREADABLE, "none.gpl", "b.tnt"), (UNREADABLE, "--check", "."),
                                 (UNREADABLE, "text.txt", "b.tnt"),
                                 (NOT_WRITTEN, "a.gpl", "none/b.tnt")):
            with self.subTest(arguments):
                found, out, told = self.run_program(*arguments)
                self.assertEqual((found, out), (code, ""))
                self.assertTrue(told.startswith("tnt-convert: "), told)
        self.assertEqual(self.names(), {"library.tnt", "a.gpl", "text.txt"})

    def test_names_and_paths_may_have_any_characters(self):
        self.assertEqual(self.exit_code("a.gpl", "Ω日本 ä.gpl", "--name", "Ψ ÷ 色"), DONE)
        self.assertIn("Ω日本 ä.gpl", self.names())
        code, out, told = self.run_program("--check", "Ω日本 ä.gpl")
        self.assertEqual((code, told), (DONE, ""))
        self.assertIn("name: Ψ ÷ 色\n", out)
        self.assertEqual([row[1] for row in self.listed("Ω日本 ä.gpl")], ["Sonne", "Ω Nacht"])

    def test_paths_may_be_long(self):
        folder = self.folder / ("f" * 150) / ("g" * 150)
        folder.mkdir(parents=True)
        name = (folder / "a.csv").relative_to(self.folder).as_posix()
        self.assertEqual(self.exit_code("a.gpl", name, "--name", ""), DONE)
        self.assertEqual([path.name for path in folder.iterdir()], ["a.csv"])

    def test_library_is_in_the_code_page_that_is_asked_for(self):
        code, _, told = self.run_program("a.gpl", "b.tnt", "--code-page", "1252")
        self.assertEqual(code, LOSSY)
        self.assertIn("(Ω)", told)
        self.assertEqual(self.exit_code("a.gpl", "greek.tnt", "--code-page", "1253"), DONE)
        self.assertIn("E#Ω Nacht=0DG1:".encode("cp1253"), (self.folder / "greek.tnt").read_bytes())
        _, out, _ = self.run_program("--list", "greek.tnt", "--code-page", "1253")
        self.assertIn("\tΩ Nacht\t0\t0\t0\t100\t100\t100\t30\t0\t0\n", out)

    def test_help_and_version_go_to_standard_output(self):
        code, out, told = self.run_program("--version")
        self.assertEqual((code, told), (DONE, ""))
        self.assertRegex(out, r"^tnt-convert \d+\.\d+\.\d+\n$")
        code, out, told = self.run_program("--help")
        self.assertEqual((code, told), (DONE, ""))
        self.assertIn("--values", out)

    @unittest.skipIf(IS_WINDOWS_PROGRAM, "Linux has terminals and a full device")
    def test_progress_is_for_a_terminal_and_a_full_disk_is_told(self):
        controller, terminal = os.openpty()
        with os.fdopen(controller, "rb", buffering=0) as shown:
            subprocess.run([*COMMAND, "--check", "library.tnt"], cwd=self.folder, stderr=terminal,
                           stdout=subprocess.DEVNULL, check=True)
            os.close(terminal)
            self.assertIn(b"reading 100 %", shown.read(100_000))
        with open("/dev/full", "wb") as full:
            result = subprocess.run([*COMMAND, "--list", "a.gpl"], cwd=self.folder, stdout=full,
                                    stderr=subprocess.PIPE, check=False)
        self.assertEqual(result.returncode, NOT_WRITTEN)


if __name__ == "__main__":
    unittest.main()
