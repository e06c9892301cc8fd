# Rules: Tools and packages
import unittest

import tool

samples = tool.load("make-samples")


class LibraryFile(unittest.TestCase):
    def test_is_header_groups_and_colors_in_quotes(self):
        content = samples.library_file("Ümlaut", {"A": {"x": [1, 2, 3, 4, 5, 6, 7, 8, 9]}, "B": {}})
        self.assertEqual(content, b'"D#\xdcmlaut=0D:3"\r\n"G#A=0DG1"\r\n"G#B=0DG2"\r\n'
                         b'"E#x=0DG1:x\xf71\xf72\xf73\xf74\xf75\xf76\xf77\xf78\xf79"\r\n')


class Palettes(unittest.TestCase):
    def test_are_as_other_programs_write_them(self):
        self.assertEqual(samples.gimp_palette("Grün", {"a b": "0a00ff"}),
                         "GIMP Palette\nName: Grün\nColumns: 0\n#\n 10   0 255\ta b\n".encode())
        self.assertEqual(samples.table({"g": {"a": "0a00ff"}}, {"g": [1, 2, 3, 4, 5, 6]}),
                         f"\ufeff{samples.TABLE_HEAD}\r\ng,a,10,0,255,1,2,3,4,5,6\r\n".encode())

    def test_have_names_that_differ_within_their_group(self):
        for name in samples.POWDER_COATS | samples.ANODIZED_ALUMINIUM["Satin"]:
            self.assertRegex(name, r"^[A-Z][a-z ]+$")
        self.assertEqual(len(set(samples.POWDER_COATS.values())), len(samples.POWDER_COATS))


class Colors(unittest.TestCase):
    def setUp(self):
        self.libraries = {"materials": samples.materials(), "web colors": samples.web_colors()}

    def test_stay_in_the_ranges_of_their_nine_values(self):
        for library in self.libraries.values():
            for colors in library.values():
                for name, values in colors.items():
                    with self.subTest(name):
                        self.assertEqual(len(values), 9)
                        self.assertTrue(all(0 <= value <= 255 for value in values[:3]))
                        self.assertTrue(all(0 <= value <= 100 for value in values[3:]))

    def test_of_the_web_are_all_148_names(self):
        names = [name for colors in self.libraries["web colors"].values() for name in colors]
        self.assertEqual((len(names), len(set(names))), (148, 148))
        self.assertEqual(self.libraries["web colors"]["Purples"]["rebeccapurple"][:3],
                         [0x66, 0x33, 0x99])

    def test_of_materials_give_the_tables_constants_back(self):
        red, _, _, ambient, diffuse, specular, shininess, transparency, emission = \
            self.libraries["materials"]["Metals"]["Polished gold"]
        self.assertAlmostEqual(red / 255 * ambient / 100, 0.24725, delta=0.005)
        self.assertAlmostEqual(red / 255 * diffuse / 100, 0.34615, delta=0.005)
        self.assertEqual((specular, shininess, transparency, emission), (80, 65, 0, 0))

    def test_of_gems_are_as_transparent_as_they_lack_opacity(self):
        self.assertEqual(self.libraries["materials"]["Gems"]["Ruby"][7], 45)


if __name__ == "__main__":
    unittest.main()
