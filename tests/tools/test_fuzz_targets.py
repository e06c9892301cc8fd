# Rules: Tools and packages
"""Every fuzz target has a kept corpus to start from, and no corpus is left without its target."""

import pathlib
import unittest

FUZZ = pathlib.Path(__file__).parents[1] / "fuzz"


class FuzzTargets(unittest.TestCase):
    def test_each_has_a_kept_corpus_and_no_corpus_stands_alone(self):
        targets = {path.stem for path in FUZZ.glob("*Fuzz.cpp")}
        corpora = {path.parent.name for path in FUZZ.glob("corpus/*/*")}
        self.assertTrue(targets)
        self.assertEqual(targets, corpora)


if __name__ == "__main__":
    unittest.main()
