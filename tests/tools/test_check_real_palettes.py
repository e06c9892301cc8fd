"""The count that real palettes are held against, and what is said of those that differ."""
# Rules: Console program

import contextlib
import io
import pathlib
import stat
import struct
import tempfile
import unittest
from unittest import mock

import tool

check = tool.load("check-real-palettes")
GOLDEN = tool.ROOT / "tests" / "golden" / "palettes"


class Count(unittest.TestCase):
    def test_lines_of_a_gimp_palette_are_colors_comments_or_neither(self):
        data = (b"GIMP Palette\r\nName: 1 2 3\r\nColumns: 4\r\n# 1 2 3\r\n\r\n  1   2 3\tName\r\n"
                b"255 255 255\r\n256 0 0 too much\r\n1 2 3no\r\nwords\r\n")
        self.assertEqual(check.gpl_colors(data), (2, 3))

    def test_blocks_of_a_swatch_exchange_file_are_colors_or_not(self):
        blocks = [(0xC001, b"\0\0"), (1, b"12345"), (0xC002, b""), (1, b"")]
        data = b"ASEF\0\1\0\0\0\0\0\4" + b"".join(
            struct.pack(">HI", kind, len(content)) + content for kind, content in blocks)
        self.assertEqual(check.ase_colors(data), (2, 0))

    def test_golden_palettes_have_as_many_colors_in_both_formats(self):
        ase = check.ase_colors((GOLDEN / "golden.ase").read_bytes())
        aco = check.aco_colors((GOLDEN / "golden.aco").read_bytes())
        self.assertEqual(ase, aco)
        self.assertGreater(ase[0], 1)


class Comparison(unittest.TestCase):
    def setUp(self):
        temporary = tempfile.TemporaryDirectory()
        self.addCleanup(temporary.cleanup)
        self.folder = pathlib.Path(temporary.name)
        (self.folder / "package").mkdir()
        self.palette = self.folder / "package" / "a.gpl"
        self.palette.write_text("GIMP Palette\n1 2 3\n4 5 6\n")

    def program(self, colors, exit_code):
        path = self.folder / "program"
        path.write_text(f"#!/bin/sh\necho 'colors: {colors}'\nexit {exit_code}\n")
        path.chmod(stat.S_IRWXU)
        return path

    def well(self, colors, exit_code):
        with contextlib.redirect_stdout(io.StringIO()) as told:
            is_well = check.check("package", self.program(colors, exit_code), self.folder)
        return is_well, told.getvalue()

    def test_the_same_number_of_colors_is_well(self):
        self.assertEqual(self.well(2, 0), (True, "package: 1 palettes, 0 read otherwise\n"))

    def test_another_number_or_faults_that_are_none_are_told(self):
        self.assertEqual(self.well(1, 0), (False, "package: 1 palettes, 1 read otherwise\n  a.gpl: "
                                           "exit code 0 and 1 colors instead of 0 and 2\n"))
        self.assertFalse(self.well(2, 1)[0])

    def test_lines_that_are_nothing_known_are_to_be_told_by_the_program(self):
        self.palette.write_text("GIMP Palette\n1 2 3\nwords\n")
        self.assertTrue(self.well(1, 1)[0])
        self.assertFalse(self.well(1, 0)[0])

    def test_a_package_without_palettes_is_not_well(self):
        self.palette.unlink()
        self.assertFalse(self.well(0, 0)[0])

    def test_without_a_network_it_fails_and_says_so(self):
        with mock.patch.object(check.subprocess, "run") as run, \
                contextlib.redirect_stdout(io.StringIO()) as told, \
                mock.patch("sys.argv", ["x", "--folder", str(self.folder / "new")]):
            run.return_value.returncode = 100
            self.assertEqual(check.main(), 1)
        self.assertIn("cannot be fetched: no network", told.getvalue())


if __name__ == "__main__":
    unittest.main()
