# Rules: Tools and packages
import hashlib
import json
import shutil
import unittest

import tool

listing = tool.load("contents_list")

CONTENTS = {"LICENSE.txt": "\ufeffTerms\r\n".encode(), "NOTICES.txt": b"Notices", "b/a.tnt": b"a",
            "tnt4swx.exe": b"MZ"}
LIBRARIES = [listing.Library("libstdc++", "12", listing.GCC_TERMS, "Foundation"),
             listing.Library("winpthreads", "10.0.0", "MIT", "x"),
             listing.Library("CLI11", "2.1.2", "BSD-3-Clause", "y", ("other.exe",))]


def listed(contents=None, moment=1700000000):
    return json.loads(
        listing.contents_list("tnt4swx", "1.2.3", contents or CONTENTS, LIBRARIES, moment))


class ContentsList(unittest.TestCase):
    def test_names_the_version_and_each_file_with_its_sum(self):
        document = listed()
        self.assertEqual(document["packages"][0]["versionInfo"], "1.2.3")
        self.assertEqual([entry["fileName"] for entry in document["files"]],
                         [f"./{name}" for name in sorted(CONTENTS)])
        sums = {entry["algorithm"]: entry["checksumValue"]
                for entry in document["files"][-1]["checksums"]}
        self.assertEqual(sums, {"SHA1": hashlib.sha1(b"MZ").hexdigest(),
                                "SHA256": hashlib.sha256(b"MZ").hexdigest()})

    def test_holds_the_terms_themselves(self):
        terms = listed()["hasExtractedLicensingInfos"][0]
        self.assertEqual((terms["licenseId"], terms["extractedText"]),
                         (listing.OWN_TERMS, "Terms\r\n"))

    def test_tells_which_libraries_are_in_each_program(self):
        links = [(relation["spdxElementId"], relation["relatedSpdxElement"])
                 for relation in listed()["relationships"]
                 if relation["relationshipType"] == "STATIC_LINK"]
        self.assertEqual(links, [("SPDXRef-File-4", "SPDXRef-Package-libstdcxx"),
                                 ("SPDXRef-File-4", "SPDXRef-Package-winpthreads")])

    def test_library_of_one_program_is_in_no_other(self):
        document = listed(CONTENTS | {"other.exe": b"MZ"})
        files = {entry["fileName"]: entry["SPDXID"] for entry in document["files"]}
        with_it = [relation["spdxElementId"] for relation in document["relationships"]
                   if relation["relatedSpdxElement"] == "SPDXRef-Package-CLI11"]
        self.assertEqual(with_it, [files["./other.exe"]])

    def test_speaks_only_of_what_it_names(self):
        document = listed()
        known = {"SPDXRef-DOCUMENT"} | {entry["SPDXID"]
                                        for entry in document["packages"] + document["files"]}
        for relation in document["relationships"]:
            self.assertLessEqual({relation["spdxElementId"], relation["relatedSpdxElement"]}, known)
        for name in known:
            self.assertRegex(name, r"^SPDXRef-[A-Za-z0-9.-]+$")

    def test_other_contents_make_another_document_and_the_same_ones_the_same(self):
        self.assertEqual(listed(), listed())
        other = listed(CONTENTS | {"tnt4swx.exe": b"MZ2"})
        self.assertNotEqual(other["documentNamespace"], listed()["documentNamespace"])

    def test_its_time_is_the_one_that_is_given(self):
        self.assertEqual(listed(moment=0)["creationInfo"]["created"], "1970-01-01T00:00:00Z")


@unittest.skipUnless(shutil.which(listing.COMPILER), "the compiler is not there")
class LinkedLibraries(unittest.TestCase):
    def test_have_the_versions_of_the_compiler_that_links_them(self):
        for library in listing.linked_libraries():
            self.assertRegex(library.version, r"^\d+(\.\d+)*$", library.name)


class LegalTexts(unittest.TestCase):
    def test_licence_says_what_the_terms_of_use_say(self):
        terms = (tool.ROOT / "resources" / "documents" / "lizenz_us.txt").read_bytes()
        self.assertEqual((tool.ROOT / "LICENSE").read_text(encoding="utf-8"),
                         terms.decode("cp1252").replace("\r\n", "\n"))

    def test_notices_have_a_section_for_every_library(self):
        notices = (tool.ROOT / "packaging" / "notices.txt").read_text(encoding="utf-8")
        for words in ("libgcc", "libstdc++", "libssp", "MinGW-w64", "winpthreads",
                      "GCC RUNTIME LIBRARY EXCEPTION", "Lucent", "Lockless", "Nullsoft", "CLI11"):
            self.assertIn(words, notices)


if __name__ == "__main__":
    unittest.main()
