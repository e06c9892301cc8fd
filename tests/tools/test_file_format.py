"""The converter that docs/file-format.md shows writes the files that the document describes."""
# Rules: Tools and packages

import pathlib
import tempfile
import unittest

DOCUMENT = pathlib.Path(__file__).resolve().parents[2] / "docs" / "file-format.md"


def shown_function():
    text = DOCUMENT.read_text(encoding="utf-8")
    code = text.split("```python\n", 1)[1].split("```", 1)[0]
    names = {}
    exec(code, names)  # our own document
    return names["write_library"]


class FileFormatDocument(unittest.TestCase):
    def test_shown_converter_writes_records_in_the_documented_order(self):
        with tempfile.TemporaryDirectory() as folder:
            path = pathlib.Path(folder) / "library.tnt"
            shown_function()(path, "Werkstatt", {
                "Stahl": {"Poliert": (130, 130, 130, 45, 55, 77, 70, 0, 0)},
                "Grüntöne": {},
            })
            self.assertEqual(path.read_bytes().split(b"\r\n"), [
                b'"D#Werkstatt=0D:3"',
                b'"G#Stahl=0DG1"',
                b'"G#Gr\xfcnt\xf6ne=0DG2"',
                b'"E#Poliert=0DG1:Poliert\xf7130\xf7130\xf7130\xf745\xf755\xf777\xf770\xf70\xf70"',
                b"",
            ])


if __name__ == "__main__":
    unittest.main()
