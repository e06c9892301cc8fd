# Rules: Tools and packages
import pathlib
import subprocess
import tempfile
import unittest

import tool

check = tool.load("check-hardening")

COMPILER = "x86_64-w64-mingw32-gcc-posix"
SEARCH = "SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_SYSTEM32);"
ON_THE_STACK = "char text[64]; GetTempPathA(64, text); return text[0];"
MANIFEST = """<assembly xmlns="urn:schemas-microsoft-com:asm.v1" manifestVersion="1.0">
<trustInfo xmlns="urn:schemas-microsoft-com:asm.v3"><security><requestedPrivileges>
<requestedExecutionLevel level="{level}" uiAccess="false"/>
</requestedPrivileges></security></trustInfo></assembly>
"""


class Faults(unittest.TestCase):
    """Each on a program that a real linker made with one of the protections left out."""

    @classmethod
    def setUpClass(cls):
        cls.temporary = tempfile.TemporaryDirectory()
        cls.folder = pathlib.Path(cls.temporary.name)

    @classmethod
    def tearDownClass(cls):
        cls.temporary.cleanup()

    def compile(self, *options, body=SEARCH + ON_THE_STACK, level="asInvoker"):
        (self.folder / "program.c").write_text(
            "#define WIN32_LEAN_AND_MEAN\n#include <windows.h>\n"
            "#include <uxtheme.h>\n#include <commctrl.h>\n"
            f"int main(void) {{ {body} }}\n")
        (self.folder / "program.manifest").write_text(MANIFEST.format(level=level))
        (self.folder / "program.rc").write_text('1 24 "program.manifest"\n')
        subprocess.run(["x86_64-w64-mingw32-windres", "program.rc", "resource.o"],
                       cwd=self.folder, check=True)
        subprocess.run([COMPILER, "-static", "-fstack-protector-strong", "-Wl,--high-entropy-va",
                        "program.c", "resource.o", "-o", "program.exe", *options],
                       cwd=self.folder, check=True)
        return (self.folder / "program.exe").read_bytes()

    def faults(self, *options, forbidden=(), **parts):
        return list(check.faults_of_program(self.compile(*options, **parts), forbidden))

    def test_a_protected_program_has_none(self):
        self.assertEqual(self.faults(), [])

    def test_addresses_that_can_be_foretold(self):
        self.assertEqual(self.faults("-Wl,--disable-high-entropy-va"),
                         ["addresses of 64 bits are not used (HIGH_ENTROPY_VA)"])
        faults = self.faults("-Wl,--disable-dynamicbase,--disable-high-entropy-va,"
                             "--disable-reloc-section")
        self.assertIn("the program is always at the same address (DYNAMIC_BASE)", faults)
        self.assertIn("the program cannot be moved: it has no relocations", faults)

    def test_data_that_can_be_executed(self):
        self.assertEqual(self.faults("-Wl,--disable-nxcompat"),
                         ["data can be executed (NX_COMPAT)"])

    def test_code_that_can_be_written(self):
        self.assertIn("section .text can be written and executed", self.faults("-Wl,--omagic"))

    def test_no_stack_protector(self):
        self.assertEqual(self.faults("-fno-stack-protector"),
                         ["the stack protector is not linked"])

    def test_libraries_are_looked_for_everywhere(self):
        self.assertEqual(self.faults(body=ON_THE_STACK),
                         ["the folders in which libraries are looked for are not set"])

    def test_a_library_that_may_lie_beside_the_program(self):
        self.assertEqual(self.faults("-luxtheme", body=SEARCH + "IsAppThemed();" + ON_THE_STACK),
                         ["UxTheme.dll is loaded with the program, from its own folder first"])

    def test_a_console_program_with_the_window_system(self):
        body = SEARCH + "MessageBoxW(0, 0, 0, 0);" + ON_THE_STACK
        self.assertEqual(self.faults(body=body), ["a console program that loads the window system"])
        self.assertEqual(self.faults("-mwindows", body=body), [])

    def test_common_controls_without_the_manifest_that_binds_them(self):
        body = SEARCH + "InitCommonControls();" + ON_THE_STACK
        self.assertEqual(self.faults("-lcomctl32", body=body),
                         ["COMCTL32.dll is not bound to the system's copy by the manifest"])

    def test_rights_of_an_administrator(self):
        self.assertEqual(self.faults(level="requireAdministrator"),
                         ["the manifest does not say that the program asks for no rights "
                          "(asInvoker)"])

    def test_a_folder_of_the_build_in_either_encoding(self):
        for text in ('"/home/build"', 'L"/home/build"'):
            body = f"{SEARCH} MessageBoxW(0, (const wchar_t*){text}, 0, 0); {ON_THE_STACK}"
            self.assertEqual(self.faults("-mwindows", body=body, forbidden=["/home/build"]),
                             ["holds the text /home/build"])

    def test_what_is_no_program_is_refused(self):
        with self.assertRaises(ValueError):
            check.Image(b"\0" * 200)


class StackProtector(unittest.TestCase):
    def uses_it(self, *options):
        with tempfile.TemporaryDirectory() as folder:
            source = pathlib.Path(folder) / "code.c"
            source.write_text("void fill(char*); int f(void) { char t[64]; fill(t); return t[0]; }")
            subprocess.run([COMPILER, "-c", *options, "code.c", "-o", "code.o"], cwd=folder,
                           check=True)
            return check.uses_stack_protector(pathlib.Path(folder) / "code.o")

    def test_in_code_that_is_compiled_with_it(self):
        self.assertTrue(self.uses_it("-fstack-protector-strong"))

    def test_not_in_code_that_is_compiled_without(self):
        self.assertFalse(self.uses_it("-fno-stack-protector"))


if __name__ == "__main__":
    unittest.main()
