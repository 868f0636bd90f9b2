"""The package of Windows Installer: its tables are written by wixl, and by msibuild where wixl has no words for a row.
The same files make the same package: its product code follows from the version, its package code from its contents."""
import hashlib
import os
import pathlib
import re
import shutil
import struct
import subprocess
import sys
from xml.sax.saxutils import quoteattr

from package_bits import BY_REGISTRY, MACHINE, PLATFORMS, code, family, names, rows_of_bits

ROOT = pathlib.Path(__file__).resolve().parent.parent
PACKAGING = ROOT / "packaging"
ACTIONS = "build/windows/packaging/package_actions.dll"
KEPT = ("templates", "signatures", "pictures")
SUMMARY, TIME = "\x05SummaryInformation", 64
NAMES = {
    "class": r"Software\Classes\CLSID\{01F2687D-003D-4805-8744-2B3921019DBC}",
    "page": r"Software\Classes\CLSID\{7B4C9A52-6E1D-4F0B-9D37-5A28C1E6F493}",
    "host": r"Software\Microsoft\Office\Outlook\Addins\Ornavel.Connect",
    "once": r"Software\Microsoft\Active Setup\Installed Components\{8E5A6A0C-3E5B-4C0D-A3B7-5D8C1B1F4E62}",
}


def fail(words):
    sys.exit(f"package: {words}")


def run(*command, **options):
    result = subprocess.run(command, capture_output=True, text=True, **options)
    if result.returncode or "ERROR" in result.stderr or "WARNING" in result.stderr:
        fail(f"{command[0]} failed: {result.stderr or result.stdout}")
    return result.stdout


def key(file):
    """What the tables call a file."""
    return re.sub(r"[^\w.]", "_", file.name)


def named(name, number):
    """As the tables want it: a short name, and a long one behind it where that is another. The number is the file's own."""
    stem, ending = os.path.splitext(name)
    if re.fullmatch(r"[\w-]{1,8}", stem) and re.fullmatch(r"(\.\w{1,3})?", ending):
        return name
    short = re.sub(r"\W", "", stem)[:5]
    return f"{short}~{number}{ending[:4]}".upper() + f"|{name}"


def component(file, bits):
    shortcut = ""
    if file.entry:
        shortcut = (f'<Shortcut Id="entry_{key(file)}" Directory="menu" Name={quoteattr(named(file.entry, file.number))} '
                    f'Target="[{file.folder}]{file.name}" WorkingDirectory="{file.folder}"/>')
    return (f'<Component Id="{key(file)}" Guid="{code(f"{file.folder}/{file.name}", bits)}"><File Id="{key(file)}" '
            f'Name="{named(file.name, file.number)}" Source="{file.folder}/{file.name}" KeyPath="yes"/>{shortcut}</Component>')


def fragment(files, bits):
    """What wixl is told about the files."""
    folders = dict.fromkeys(file.folder for file in files)
    parts = [f'<DirectoryRef Id="{folder}">'
             + "".join(component(file, bits) for file in files if file.folder == folder) + "</DirectoryRef>"
             for folder in folders]
    group = "".join(f'<ComponentRef Id="{key(file)}"/>' for file in files)
    return ('<?xml version="1.0" encoding="utf-8"?>\n<Wix xmlns="http://schemas.microsoft.com/wix/2006/wi"><Fragment>'
            + "".join(parts) + f'<ComponentGroup Id="files">{group}</ComponentGroup></Fragment></Wix>\n')


def version_of(file):
    """As the version resource of a Windows program has it; None for other files."""
    found = file.source.read_bytes().partition(b"\xbd\x04\xef\xfe\x00\x00\x01\x00")[2]
    if not found:
        return None
    minor, major, build, patch = struct.unpack_from("<4H", found)
    return f"{major}.{minor}.{patch}.{build}"


def rows(file):
    """Without its version a program would never take the place of one that has one. A sample outlives the package, and is
    not replaced by another, unless it is as it was installed (see packaging/actions); a component without a code is one
    that the installer puts there and then forgets."""
    if version_of(file):
        yield f"UPDATE `File` SET `Version` = '{version_of(file)}', `Language` = '1033' WHERE `File` = '{key(file)}'"
        yield f"DELETE FROM `MsiFileHash` WHERE `File_` = '{key(file)}'"
    if file.folder in KEPT:
        yield (f"UPDATE `Component` SET `ComponentId` = '', `Condition` = 'NOT changed_{key(file)}' "
               f"WHERE `Component` = '{key(file)}'")
        yield ("INSERT INTO `RemoveFile` (`FileKey`, `Component_`, `FileName`, `DirProperty`, `InstallMode`) "
               f"VALUES ('{key(file)}', 'registration', '{named(file.name, file.number)}', 'unchanged_{key(file)}', 2)")


def notes(files):
    """The package notes each sample's hash, which is also that of Windows Installer, where the next one finds it. The
    component is of 32 bits in both packages: each finds what the other noted."""
    noted = [file for file in files if file.folder in KEPT]
    yield ("INSERT INTO `Component` (`Component`, `ComponentId`, `Directory_`, `Attributes`, `KeyPath`) "
           f"VALUES ('samples', '{{{code('samples')}}}', 'stationery', {BY_REGISTRY}, 'note_{key(noted[0])}')")
    yield "INSERT INTO `FeatureComponents` (`Feature_`, `Component_`) VALUES ('everything', 'samples')"
    for file in noted:
        digest = hashlib.md5(file.source.read_bytes(), usedforsecurity=False).hexdigest()
        yield ("INSERT INTO `Registry` (`Registry`, `Root`, `Key`, `Name`, `Value`, `Component_`) VALUES "
               f"('note_{key(file)}', {MACHINE}, 'Software\\Brevant\\Ornavel\\Samples', '{file.name}', '#x{digest}', "
               "'samples')")


def contents(package, scratch):
    """Every table, and every other stream, in a fixed order. msiinfo writes what a table holds in streams beside it."""
    for table in sorted(run("msiinfo", "tables", package).split()):
        if not table.startswith("_"):
            yield table, run("msiinfo", "export", package, table, cwd=scratch).encode()
    for stream in sorted(run("msiinfo", "streams", package).splitlines()):
        if not stream.startswith("\x05"):
            yield stream, subprocess.run(["msiinfo", "extract", package, stream], capture_output=True).stdout


def package_code(package, scratch):
    digest = hashlib.sha256()
    for name, part in contents(package, scratch):
        digest.update(f"{name}\n{len(part)}\n".encode() + part)
    return code(digest.hexdigest())


def gather(files, actions, moment, scratch, bits):
    """All that wixl reads, in one folder: it takes no full paths."""
    (scratch / "files.wxs").write_text(fragment(files, bits), "utf-8")
    places = [(file.source, f"{file.folder}/{file.name}") for file in files]
    places += [(file, file.name) for file in (PACKAGING / "ornavel.wxs", PACKAGING / "ornavel.ico", actions)]
    for source, name in places:
        (scratch / name).parent.mkdir(exist_ok=True)
        shutil.copyfile(source, scratch / name)
        os.utime(scratch / name, (moment, moment))


def set_times(package, moment):
    """The two times of the summary, in tenths of microseconds since 1601. msibuild always writes the present."""
    summary = subprocess.run(["msiinfo", "extract", package, SUMMARY], capture_output=True, check=True).stdout
    present = re.search(struct.pack("<I", TIME) + rb".{7}\x01", summary, re.S)[0]
    whole = package.read_bytes()
    if whole.count(present) != 2:
        fail(f"{package.name}: the times of its summary are not where they should be")
    package.write_bytes(whole.replace(present, struct.pack("<IQ", TIME, (moment + 11_644_473_600) * 10_000_000)))


def check(package, files, scratch):
    """What wixl and msibuild were told is really there."""
    lines = [line.split("\t") for line in run("msiinfo", "export", package, "File", cwd=scratch).splitlines()[3:]]
    held = {line[0]: line[2] for line in lines}
    removed = run("msiinfo", "export", package, "RemoveFile", cwd=scratch)
    if held != {key(file): named(file.name, file.number) for file in files} or not all(
            key(file) in removed for file in files if file.folder in KEPT):
        fail(f"{package.name} lacks something; it holds {', '.join(sorted(held.values()))}")


def make_package(files, actions, version, moment, scratch, package, bits):
    """Writes the package and gives back its package code. A file has a source, a name, a folder, a number of its own and the
    words of its entry in the start menu; the actions are the DLL that the package itself runs. The moment is that of
    everything inside, the bits those of the mail client."""
    gather(files, actions, moment, scratch, bits)
    words = {"version": version, "product": code(version, bits), "family": family(bits), **NAMES, **names(bits)}
    defined = [part for name, value in words.items() for part in ("-D", f"{name}={value}")]
    run("wixl", *defined, "-o", package, "ornavel.wxs", "files.wxs", cwd=scratch, env={**os.environ, "TZ": "UTC"})
    fixed = (PACKAGING / "rows.sql").read_text("utf-8").splitlines()
    more = [*(row for file in files for row in rows(file)), *notes(files), *rows_of_bits(version, bits, map(key, files))]
    run("msibuild", package, *(part for row in [*fixed, *more] for part in ("-q", row)))
    own_code = package_code(package, scratch)
    run("msibuild", package, "-s", f"Ornavel {version}", "Brevant", PLATFORMS[bits], f"{{{own_code}}}")
    set_times(package, moment)
    check(package, files, scratch)
    return own_code
