"""The swatch files that the readers and writers are held against."""
# Rules: Foreign palettes

import pathlib
import subprocess
import sys
import unittest

SCRIPT = pathlib.Path(__file__).resolve().parents[1] / "palettes" / "make-golden-palettes.py"


class GoldenPalettes(unittest.TestCase):
    def test_golden_palettes_are_what_their_script_writes(self):
        result = subprocess.run([sys.executable, SCRIPT, "--check"], stdout=subprocess.PIPE,
                                text=True, check=False)
        self.assertEqual((result.returncode, result.stdout), (0, ""))


if __name__ == "__main__":
    unittest.main()
