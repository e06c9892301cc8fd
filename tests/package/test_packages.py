"""The packages as their user meets them: unpacked, installed, worked with and removed.

Inside a session of tools/wine-session.sh, with the packages made:

  tools/wine-session.sh python3 -m unittest discover -s tests/package
"""
# Rules: Tools and packages

import hashlib
import json
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
import zipfile

sys.path[:0] = [str(pathlib.Path(__file__).resolve().parent.parent / "tools")]

import tool
import windows_side as windows
from language_codes import language_codes
from windows_side import INSTALLED, RECOVERY, ROOT, SETTINGS_KEY, UNINSTALL_KEY

make = tool.load("make-packages")
pe = tool.load("check-hardening")

PACKAGES = ROOT / "build" / "packages"
VERSION = make.version()
ARCHIVE = PACKAGES / f"tnt4swx-{VERSION}-portable.zip"
INSTALLER = PACKAGES / f"tnt4swx-{VERSION}-setup.exe"
CONTENTS = PACKAGES / f"tnt4swx-{VERSION}.spdx.json"
PICTURES = ROOT / "build" / "screenshots"
RESOURCE_VERSION = 16


def program_files():
    """Every file that a user gets, by its name."""
    resources = ROOT / "resources"
    data = {file.name: file.read_bytes() for folder in ("language", "documents")
            for file in (resources / folder).iterdir()}
    data |= {f"{folder}/{file.name}": file.read_bytes() for folder in ("samples", "banners")
             for file in (resources / folder).iterdir() if file.suffix != ".svg"}
    data |= {name: make.windows_text(ROOT / source, "utf-8")
             for name, source in make.LEGAL_TEXTS.items()}
    return data | {name: (windows.PROGRAMS / name).read_bytes() for name in make.PROGRAMS}


def versions(program):
    """File and product version of a program's version resource, as numbers."""
    data = b"".join(pe.Image(program.read_bytes()).resources(RESOURCE_VERSION))
    start = data.index(bytes.fromhex("bd04effe")) + 8
    words = [int.from_bytes(data[start + 2 * i:start + 2 * i + 2], "little") for i in range(8)]
    return tuple((words[i + 1], words[i], words[i + 3], words[i + 2]) for i in (0, 4))


def named_entries(registry):
    """Every key and value of the registry in which a name of the program stands."""
    entries = set(registry) | {
        f"{key}\\{name}={value}" for key, values in registry.items()
        for name, value in values.items()}
    return {entry for entry in entries if windows.OWN_NAMES.search(entry)}


class PackageTest(unittest.TestCase):
    def setUp(self):
        temporary = tempfile.TemporaryDirectory()
        self.addCleanup(temporary.cleanup)
        self.folder = pathlib.Path(temporary.name)

    def play_main_job(self, programs, pictures):
        report = windows.play_main_job(programs, pictures)
        self.assertRegex("\n".join(report), r"^\d+ passed, 0 failed$")


class Version(PackageTest):
    def test_is_the_same_in_all_programs_and_the_installer(self):
        numbers = tuple(map(int, VERSION.split("."))) + (0,)
        for name in make.PROGRAMS:
            self.assertEqual(versions(windows.PROGRAMS / name), (numbers, numbers), name)
        self.assertEqual(versions(INSTALLER), (numbers, numbers))

    def test_is_what_the_lists_of_changes_begin_with(self):
        for name in ("CHANGELOG.md", *(f"resources/documents/changes_{code}.txt"
                                       for code in language_codes().values())):
            text = (ROOT / name).read_text(encoding="cp1252")
            self.assertEqual(re.search(r"\d+\.\d+\.\d+", text).group(), VERSION, name)


@unittest.skipIf(windows.ON_WINDOWS, "the packages are made elsewhere")
class Bytes(PackageTest):
    def test_are_the_same_when_the_packages_are_made_again_elsewhere(self):
        programs = self.folder / "bin"
        shutil.copytree(windows.PROGRAMS, programs)
        make.make_packages(programs, self.folder / "packages")
        for package in (ARCHIVE, INSTALLER, CONTENTS):
            again = self.folder / "packages" / package.name
            self.assertTrue(again.read_bytes() == package.read_bytes(), package.name)

    def test_sums_are_those_of_the_packages(self):
        subprocess.run(["sha256sum", "--check", "--strict", "--quiet", "SHA256SUMS"],
                       cwd=PACKAGES, check=True)


class Contents(PackageTest):
    def test_are_listed_with_their_sums_and_the_version(self):
        listed = json.loads(CONTENTS.read_text(encoding="utf-8"))
        self.assertEqual(listed["packages"][0]["versionInfo"], VERSION)
        sums = {entry["fileName"].removeprefix("./"): entry["checksums"][1]["checksumValue"]
                for entry in listed["files"]}
        self.assertEqual(sums,
                         {name: hashlib.sha256(data).hexdigest()
                          for name, data in program_files().items()})


class Archive(PackageTest):
    def unpack(self):
        """Into a folder with an umlaut and a blank in its name; where the program is."""
        target = self.folder / "Grüne Farben"
        with zipfile.ZipFile(ARCHIVE) as archive:
            archive.extractall(target)
        return target / f"tnt4swx-{VERSION}"

    def test_holds_the_program_with_all_its_files_and_a_text_on_how_to_use_it(self):
        unpacked = windows.contents(self.unpack())
        how_to = unpacked.pop("how-to.txt")
        self.assertIn("tnt4swx.exe starten".encode(), how_to)
        self.assertNotIn(b"\n", how_to.replace(b"\r\n", b""))
        self.assertEqual(unpacked, program_files())

    def test_entries_stand_in_order_and_have_the_time_of_the_commit(self):
        with zipfile.ZipFile(ARCHIVE) as archive:
            names = archive.namelist()
            times = {entry.date_time for entry in archive.infolist()}
        self.assertEqual(names, sorted(names))
        self.assertEqual(times, {make.zip_entry("x", make.commit_time()).date_time})

    def test_unpacked_program_does_the_main_job_and_leaves_its_folder_alone(self):
        programs = self.unpack()
        before = windows.contents(programs)
        self.play_main_job(programs, PICTURES / "main-portable")
        self.assertTrue(windows.contents(programs) == before)

    def test_unpacked_console_program_makes_libraries_of_the_sample_palettes(self):
        programs = self.unpack()
        before = windows.contents(programs)
        for sample in ("powder-coats.gpl", "anodized-aluminium.csv"):
            library = self.folder / f"{sample}.tnt"
            self.assertEqual(windows.run(programs / "tnt-convert.exe",
                                         windows.path(programs / "samples" / sample),
                                         windows.path(library)), 0)
            self.assertTrue(library.read_bytes().startswith(b'"D#'))
        self.assertTrue(windows.contents(programs) == before)


class Installer(PackageTest):
    def setUp(self):
        super().setUp()
        windows.make_usual_folders()
        self.files_before = windows.users_files()
        self.registry_before = windows.users_registry(self.folder)

    def tearDown(self):
        if INSTALLED.exists():
            self.uninstall()
            shutil.rmtree(INSTALLED, ignore_errors=True)
        windows.run("reg", "delete", SETTINGS_KEY, "/f")

    def install(self):
        self.assertEqual(windows.run(INSTALLER, "/S"), 0)

    def uninstall(self):
        """As "Apps & features" does: the program copies itself and goes on from there."""
        windows.run(INSTALLED / "uninstall.exe", "/S")
        windows.wait_until(lambda: UNINSTALL_KEY not in windows.users_registry(self.folder))

    def left_behind(self):
        """What there is now and was not there before: files, and what names the program in the
        registry, where Windows itself makes keys of its own when it is first used."""
        entries = named_entries(windows.users_registry(self.folder))
        return (sorted(windows.users_files() - self.files_before) +
                sorted(entries - named_entries(self.registry_before)))

    @staticmethod
    def is_kept(name):
        """Whether an entry that was left behind is of the settings or of the recovery folder."""
        return re.match(r"(hkey_current_user\\software|appdata/local)[\\/]chromixs([\\/]tnt4swx.*)?$",
                        name, re.IGNORECASE) is not None

    def write_mine(self, mine):
        """Puts the user's own files where they are said to be, until the end of the test."""
        for file, text in mine.items():
            file.parent.mkdir(parents=True, exist_ok=True)
            self.addCleanup(file.unlink, missing_ok=True)
            file.write_bytes(text)

    def settings(self):
        registry = {key.lower(): values
                    for key, values in windows.users_registry(self.folder).items()}
        return registry[SETTINGS_KEY.lower()]

    @staticmethod
    def installed_path():
        below_drive = str(INSTALLED).partition("drive_c")[2].replace("/", "\\")
        return INSTALLED if windows.ON_WINDOWS else f"C:{below_drive}"

    def test_asks_for_no_rights(self):
        image = pe.Image(INSTALLER.read_bytes())
        self.assertEqual(list(pe.faults_of_manifest(b"".join(image.resources(24)))), [])

    def test_installs_the_program_for_its_user(self):
        self.install()
        installed = windows.contents(INSTALLED)
        self.assertIn("uninstall.exe", installed)
        del installed["uninstall.exe"]
        self.assertEqual(installed, program_files())

    def test_programs_stand_in_the_start_menu(self):
        self.install()
        names = {file.name for file in (windows.START_MENU / "TNT4SWX").iterdir()}
        self.assertEqual(names, {"TNT4SWX.lnk", "Stand-in for SolidWorks.lnk"})

    def test_program_stands_among_the_installed_ones(self):
        self.install()
        entry = windows.users_registry(self.folder)[UNINSTALL_KEY]
        self.assertEqual(entry['"DisplayName"'], '"TNT4SWX"')
        self.assertEqual(entry['"DisplayVersion"'], f'"{VERSION}"')
        self.assertRegex(entry['"UninstallString"'], r'uninstall\.exe')
        size = sum(map(len, windows.contents(INSTALLED).values())) / 1024
        self.assertAlmostEqual(int(entry['"EstimatedSize"'].removeprefix("dword:"), 16), size,
                               delta=len(program_files()))

    def test_installed_program_does_the_main_job_and_leaves_only_settings_when_it_is_removed(self):
        self.install()
        before = windows.contents(INSTALLED)
        self.play_main_job(INSTALLED, PICTURES / "main-installed")
        self.assertTrue(windows.contents(INSTALLED) == before)
        self.assertIn(SETTINGS_KEY.lower(),
                      [key.lower() for key in windows.users_registry(self.folder)])
        self.uninstall()
        left = self.left_behind()
        self.assertEqual(left, [name for name in left if self.is_kept(name)])
        self.assertIn(SETTINGS_KEY.lower(), [name.lower() for name in left])

    def test_libraries_of_the_user_stay(self):
        self.install()
        mine = {windows.DOCUMENTS / "mine.tnt": b"in the documents",
                INSTALLED / "mine.tnt": b"beside the program",
                INSTALLED / "samples" / "mine.tnt": b"among the samples",
                INSTALLED / "samples" / "materials.tnt": b"a sample that was worked on",
                INSTALLED / "samples" / "materials.tnt.bak": b"and what it was before",
                RECOVERY / "1-1.tnt": b"never saved", RECOVERY / "1-1.txt": b"and its name"}
        self.write_mine(mine)
        self.uninstall()
        self.assertEqual({file: file.read_bytes() for file in mine}, mine)
        folders = {INSTALLED.parent, INSTALLED, INSTALLED / "samples", RECOVERY, *RECOVERY.parents}
        folders = {folder for folder in folders if windows.USER in folder.parents}
        self.assertEqual({windows.USER / name for name in self.left_behind()},
                         mine.keys() | (folders - {windows.USER / f for f in self.files_before}))

    def test_installing_again_keeps_settings_and_changed_samples_and_drops_old_files(self):
        self.install()
        sample = INSTALLED / "samples" / "materials.tnt"
        sample.write_bytes(b"worked on")
        (INSTALLED / "readme_us.txt").write_bytes(b"an older text")
        windows.run("reg", "add", SETTINGS_KEY, "/v", "Language", "/d", "0", "/f")
        self.install()
        self.assertEqual(sample.read_bytes(), b"worked on")
        self.assertEqual(windows.contents(INSTALLED)["readme_us.txt"],
                         program_files()["readme_us.txt"])
        self.assertEqual(self.settings()['"Language"'], '"0"')

    def install_1_0_0(self):
        """Version 1.0.0 as an upgrade meets it; no program of it runs."""
        stage = self.folder / "1.0.0"
        for name in ("tnt4swx.exe", "swx_standin.exe", "tntlng_us.ini", "readme_us.txt",
                     "only-in-1.0.0.txt", "banners/banner1.bmp", "samples/materials.tnt"):
            (stage / name).parent.mkdir(parents=True, exist_ok=True)
            (stage / name).write_bytes(b"of 1.0.0")
        installer = self.folder / "1.0.0.exe"
        subprocess.run(["makensis", "-WX", "-V1", f"-DSTAGE={stage}", f"-DOUTPUT={installer}",
                        pathlib.Path(__file__).with_name("version-1.0.0.nsi")], check=True)
        self.assertEqual(windows.run(installer, "/S"), 0)
        self.assertEqual((INSTALLED / "tnt4swx.exe").read_bytes(), b"of 1.0.0")

    @unittest.skipIf(windows.ON_WINDOWS, "the older installer is made elsewhere")
    def test_upgrade_from_1_0_0_keeps_libraries_settings_and_recovery_copies(self):
        self.install_1_0_0()
        mine = {windows.DOCUMENTS / "mine.tnt": b"in the documents",
                INSTALLED / "mine.tnt": b"beside the program",
                INSTALLED / "samples" / "materials.tnt": b"a sample that was worked on",
                RECOVERY / "1-1.tnt": b"never saved", RECOVERY / "1-1.txt": b"and its name"}
        self.write_mine(mine)
        library = windows.path(windows.DOCUMENTS / "mine.tnt")
        for name, value in (("Language", "0"), ("DefaultColorFile", library)):
            windows.run("reg", "add", SETTINGS_KEY, "/v", name, "/d", value, "/f")
        self.install()
        self.assertEqual({file: file.read_bytes() for file in mine}, mine)
        self.assertEqual(self.settings()['"Language"'], '"0"')
        self.assertIn("mine.tnt", self.settings()['"DefaultColorFile"'])
        installed = windows.contents(INSTALLED)
        self.assertEqual({name: installed[name] for name in program_files()},
                         program_files() | {"samples/materials.tnt": b"a sample that was worked on"})
        self.assertEqual(installed.keys() - program_files().keys(), {"mine.tnt", "uninstall.exe"})
        self.assertEqual(windows.users_registry(self.folder)[UNINSTALL_KEY]['"DisplayVersion"'],
                         f'"{VERSION}"')

    def test_nothing_is_removed_while_the_program_runs(self):
        self.install()
        before = windows.contents(INSTALLED)
        with subprocess.Popen(windows.command(INSTALLED / "swx_standin.exe", "--hidden",
                                              "--ready-file", windows.path(self.folder / "ready")),
                              stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL) as running:
            self.addCleanup(running.kill)
            windows.wait_until((self.folder / "ready").exists)
            here = f"_?={self.installed_path()}"
            self.assertEqual(windows.run(INSTALLED / "uninstall.exe", "/S", here), 3)
            self.assertTrue(windows.contents(INSTALLED) == before)
            windows.run("taskkill", "/im", "swx_standin.exe")
            running.wait(30)


if __name__ == "__main__":
    unittest.main()
