"""The list of a package's contents: version, files with their sums, and the libraries linked in.

The form is SPDX 2.3 as JSON.  The same files give the same list.
"""

import hashlib
import json
import pathlib
import re
import subprocess
import time
import typing
import uuid

OWN_TERMS = "LicenseRef-tnt4swx"
COMPILER = "x86_64-w64-mingw32-g++-posix"
GCC_TERMS = "GPL-3.0-or-later WITH GCC-exception-3.1"
CLI11_VERSION = pathlib.Path("/usr/include/CLI/Version.hpp")


class Library(typing.NamedTuple):
    """A library that is linked in, or compiled in."""
    name: str
    version: str
    terms: str
    rights: str  # their holder
    programs: tuple = ()  # that have it in them; none: all


def output_of(*command, text=None):
    return subprocess.run(command, check=True, input=text, text=True,
                          stdout=subprocess.PIPE).stdout


def linked_libraries():
    """The libraries of the programs as this machine has them."""
    gcc = output_of(COMPILER, "-dumpfullversion").strip().removesuffix("-posix")
    parts = "".join(f" __MINGW64_VERSION_{part}" for part in ("MAJOR", "MINOR", "BUGFIX"))
    mingw = ".".join(output_of(COMPILER, "-E", "-P", "-x", "c++", "-",
                               text=f"#include <_mingw.h>\nversion{parts}\n")
                     .rpartition("version")[2].split())
    project = "2009-2016 the mingw-w64 project"
    cli11 = re.search(r'#define CLI11_VERSION "(.+)"', CLI11_VERSION.read_text()).group(1)
    return [Library(name, gcc, GCC_TERMS, "Free Software Foundation, Inc.")
            for name in ("libgcc", "libstdc++", "libssp")] + [
                Library("mingw-w64-crt", mingw, "ZPL-2.1", project),
                Library("winpthreads", mingw, "MIT AND BSD-3-Clause", project),
                Library("CLI11", cli11, "BSD-3-Clause", "2017-2020 University of Cincinnati",
                        ("tnt-convert.exe",))]


def package_entry(name, version, terms, rights, **more):
    return {"SPDXID": f"SPDXRef-Package-{name.replace('+', 'x')}", "name": name,
            "versionInfo": version, "downloadLocation": "NOASSERTION", "filesAnalyzed": False,
            "licenseConcluded": terms, "licenseDeclared": terms, "copyrightText": rights} | more


def file_entry(index, name, data):
    sums = [{"algorithm": kind.upper(), "checksumValue": hashlib.new(kind, data).hexdigest()}
            for kind in ("sha1", "sha256")]
    return {"SPDXID": f"SPDXRef-File-{index}", "fileName": f"./{name}", "checksums": sums,
            "licenseConcluded": "NOASSERTION" if name == "NOTICES.txt" else OWN_TERMS,
            "copyrightText": "NOASSERTION"}


def verification_code(files):
    """What the list's form wants of a package whose files are named: the sum of their sums."""
    sums = sorted(entry["checksums"][0]["checksumValue"] for entry in files)
    return hashlib.sha1("".join(sums).encode()).hexdigest()


def relation(one, kind, other):
    return {"spdxElementId": one, "relationshipType": kind, "relatedSpdxElement": other}


def links(files, libraries):
    """Which library is in which program; files: entries of the list."""
    return [relation(entry["SPDXID"], "STATIC_LINK", linked["SPDXID"])
            for entry in files if entry["fileName"].endswith(".exe")
            for library, linked in libraries
            if not library.programs or entry["fileName"].removeprefix("./") in library.programs]


def contents_list(name, version, contents, libraries, moment):
    """The list as text.  contents: bytes by file name, with LICENSE.txt among them; libraries: as
    linked_libraries gives them; moment: seconds since 1970."""
    files = [file_entry(index, *item) for index, item in enumerate(sorted(contents.items()), 1)]
    code = verification_code(files)
    program = package_entry(name, version, OWN_TERMS, "NOASSERTION", filesAnalyzed=True,
                            packageVerificationCode={"packageVerificationCodeValue": code})
    linked = [package_entry(*library[:4]) for library in libraries]
    relations = [relation("SPDXRef-DOCUMENT", "DESCRIBES", program["SPDXID"])]
    relations += [relation(program["SPDXID"], "CONTAINS", entry["SPDXID"]) for entry in files]
    relations += links(files, list(zip(libraries, linked)))
    terms = contents["LICENSE.txt"].decode("utf-8-sig")
    return json.dumps({
        "spdxVersion": "SPDX-2.3", "dataLicense": "CC0-1.0", "SPDXID": "SPDXRef-DOCUMENT",
        "name": f"{name}-{version}",
        "documentNamespace": uuid.uuid5(uuid.NAMESPACE_OID, f"{name} {version} {code}").urn,
        "creationInfo": {"created": time.strftime("%Y-%m-%dT%H:%M:%SZ", time.gmtime(moment)),
                         "creators": ["Tool: make-packages"]},
        "packages": [program, *linked], "files": files, "relationships": relations,
        "hasExtractedLicensingInfos": [{"licenseId": OWN_TERMS, "name": "Terms of use of TNT4SWX",
                                        "extractedText": terms}],
    }, indent=1) + "\n"
