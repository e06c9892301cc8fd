# Rules: Tools and packages
import pathlib
import shutil
import tempfile
import unittest

import tool

icons = tool.load("make-icons")
DRAWING = ('<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 24 24">'
           '<rect x="6" y="0" width="18" height="24" fill="{}" fill-opacity=".5"/></svg>')


class IconFile(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.folder)

    def draw(self, name, color="#ff0000"):
        (self.folder / f"{name}.svg").write_text(DRAWING.format(color), encoding="utf-8")
        return icons.stale_icons(self.folder, write=True)

    def test_holds_every_size_and_reads_back_as_drawn(self):
        self.draw("tnt4swx")
        pictures = icons.decode_icon((self.folder / "tnt4swx.ico").read_bytes())
        self.assertEqual([len(rows) for rows in pictures], [16, 20, 24, 32, 48, 256])
        for rows in pictures:
            middle = rows[len(rows) // 2]
            self.assertEqual(middle[0:4], bytes(4))
            self.assertEqual(middle[-4:-1], b"\xff\0\0")
            self.assertAlmostEqual(middle[-1], 128, delta=1)

    def test_is_current_until_the_drawing_changes(self):
        self.assertEqual(self.draw("Open"), ["Open.ico"])
        self.assertEqual(icons.stale_icons(self.folder, write=False), [])
        (self.folder / "Open.svg").write_text(DRAWING.format("#00ff00"), encoding="utf-8")
        self.assertEqual(icons.stale_icons(self.folder, write=False), ["Open.ico"])

    def test_without_a_drawing_is_named(self):
        self.draw("Open")
        (self.folder / "Open.svg").rename(self.folder / "Save.svg")
        self.assertEqual(icons.stale_icons(self.folder, write=False), ["Save.ico", "Open.ico"])

    def test_with_broken_content_is_not_current(self):
        self.draw("Open")
        (self.folder / "Open.ico").write_bytes(b"\0\0\1\0\5\0 cut off")
        self.assertEqual(icons.stale_icons(self.folder, write=False), ["Open.ico"])


class ToolbarTable(unittest.TestCase):
    def test_has_a_drawing_for_every_icon_that_it_names(self):
        table = (tool.ROOT / "mainwindow" / "ToolbarTable.h").read_text(encoding="utf-8")
        rows = table.split("ToolbarRow{")[1:]
        named = {row.split("}")[0].split('"')[-2] for row in rows if row.startswith('"')} - {""}
        drawn = {svg.stem for svg in icons.FOLDER.glob("*.svg")}
        self.assertGreater(len(named), 15)
        self.assertEqual(named - drawn, set())


if __name__ == "__main__":
    unittest.main()
