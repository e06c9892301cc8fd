"""What the tests of the packages see of Windows: files and registry of the session's own prefix, or
those of the user where they run on Windows itself."""

import os
import pathlib
import re
import shutil
import subprocess
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
ON_WINDOWS = os.name == "nt"
PROGRAMS = pathlib.Path(os.environ.get("TNT_PROGRAMS", ROOT / "build" / "windows" / "bin"))
USER = (pathlib.Path.home() if ON_WINDOWS else
        next((pathlib.Path(os.environ["WINEPREFIX"]) / "drive_c" / "users").glob("[!P]*")))
INSTALLED = USER / "AppData" / "Local" / "Programs" / "TNT4SWX"
START_MENU = USER / "AppData" / "Roaming/Microsoft/Windows/Start Menu/Programs"
DOCUMENTS = USER / "Documents"
RECOVERY = USER / "AppData" / "Local" / "Chromixs" / "TNT4SWX" / "Recovery"
UNINSTALL_KEY = r"HKEY_CURRENT_USER\Software\Microsoft\Windows\CurrentVersion\Uninstall\TNT4SWX"
SETTINGS_KEY = r"HKEY_CURRENT_USER\Software\Chromixs\TNT4SWX"

PATIENCE = 30  # seconds
OWN_NAMES = re.compile(r"tnt4swx|tnt-convert|chromixs|swx_standin|sldworks", re.IGNORECASE)


def command(*parts):
    """The command that starts a Windows program here."""
    return ([] if ON_WINDOWS else ["wine"]) + list(map(str, parts))


def path(file):
    """A file's name as a Windows program knows it."""
    return str(file) if ON_WINDOWS else f"Z:{file}"


def run(*parts):
    """Starts a Windows program and waits for it; its exit code."""
    return subprocess.run(command(*parts), timeout=120, check=False,
                          stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                          stderr=subprocess.DEVNULL).returncode


def wait_until(condition):
    end = time.monotonic() + PATIENCE
    while not condition():
        if time.monotonic() > end:
            raise AssertionError("it did not come to that")
        time.sleep(0.1)


def make_usual_folders():
    """What every user of Windows has, and a new prefix lacks until the first installation."""
    INSTALLED.parent.mkdir(parents=True, exist_ok=True)
    run("reg", "add", UNINSTALL_KEY.rpartition("\\")[0], "/f")


def contents(folder):
    """The bytes of every file below a folder, by its name relative to it."""
    return {file.relative_to(folder).as_posix(): file.read_bytes()
            for file in folder.rglob("*") if file.is_file()}


def users_files():
    """Every file and folder of the user, temporary ones aside; on Windows itself, where others work
    too, those that bear a name of the program."""
    names = (entry.relative_to(USER) for entry in USER.rglob("*"))
    return {name.as_posix() for name in names if "Temp" not in name.parts and
            (not ON_WINDOWS or OWN_NAMES.search(name.as_posix()))}


def users_registry(folder):
    """Values by name of every key of the user; folder: for the exported text."""
    file = folder / "user.reg"
    run("reg", "export", "HKEY_CURRENT_USER", path(file), "/y")
    keys = {}
    for block in file.read_text(encoding="utf-16").split("\n["):
        key, _, values = block.partition("]\n")
        lines = re.sub(r"\\\n\s*", "", values).split("\n")
        keys[key] = dict(line.split("=", 1) for line in lines if line.startswith(("\"", "@")))
    return keys


def play_main_job(programs, pictures):
    """Works the main job with the programs of a folder; the lines of its report that tell of a
    failure, and its last one."""
    shutil.rmtree(pictures, ignore_errors=True)
    pictures.mkdir(parents=True)
    job = ([PROGRAMS.parent / "play_job.exe", "main", programs, pictures] if ON_WINDOWS else
           [ROOT / "tools" / "play-job.sh", "main", pictures, programs])
    result = subprocess.run(job, timeout=300, check=False, stdin=subprocess.DEVNULL,
                            stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
    lines = result.stdout.splitlines()
    return [line.strip() for line in lines if "FAILED" in line] + lines[-1:]
