"""The Wine world in which the package's test installs and removes: three versions of the package, and what is in files and
registry at a moment."""
import contextlib
import hashlib
import os
import pathlib
import re
import shutil
import struct
import subprocess

ROOT = pathlib.Path(__file__).resolve().parents[2]
BITS = int(os.environ.get("WINE_BITS") or 32)
BUILD, ENDING = {32: ("build/windows", ""), 64: ("build/windows64", "-x64")}[BITS]
HELPERS = ROOT / BUILD / "tests/package"
OLDER, NEWER, NEXT = "3.9.8", "3.9.9", "3.9.10"
REFUSED, TO_BE_RESTARTED = 1603 & 0xFF, 3010 & 0xFF  # as exit codes of Linux
PATIENCE = 120  # seconds for one call of the installer, which takes two or three
TOOK_TOO_LONG = 124
MACHINE, USER = "hkey_local_machine", "hkey_current_user"
SETTINGS = rf"{USER}\software\vb and vba program settings"
ACTIVE_SETUP = r"\microsoft\active setup\installed components\{8e5a6a0c-3e5b-4c0d-a3b7-5d8c1b1f4e62}"
MEMO = ROOT / "samples/stationery/memo.htm"
NODE = "\\Wow6432Node" if BITS == 64 else ""  # where 32-bit programs look
DLL = "C:\\Program Files\\Brevant\\Ornavel\\Programs\\Ornavel.dll"


def every_line():
    """Each line of the list of files, in words."""
    lines = (ROOT / "packaging/files").read_text("utf-8").splitlines()
    return [line.split(maxsplit=2) for line in lines if line and not line.startswith("#")]


def listed():
    """Those about this package."""
    return [words for words in every_line() if words[1] != f"programs{96 - BITS}"]


def name_of(version, ending=ENDING):
    return f"Ornavel-{version}{ending}.msi"


def dll_of(version):
    """The DLL that was built, but for the version that it says it has."""
    dll = bytearray((ROOT / BUILD / "shell/Ornavel.dll").read_bytes())
    place = dll.index(b"\xbd\x04\xef\xfe\x00\x00\x01\x00") + 8
    major, minor, patch = map(int, version.split("."))
    struct.pack_into("<4H", dll, place, minor, major, 0, patch)
    return bytes(dll)


class World:
    """The Wine world that this runs in, and three versions of the package, of which the oldest has another memo."""

    def __init__(self, scratch):
        self.scratch, self.digests = scratch, {}
        self.drive = pathlib.Path(os.environ["ORNAVEL_WINE_WORLD"]) / "prefix/drive_c"
        for version in (OLDER, NEWER, NEXT):
            self.package(version)
        subprocess.run(["wixl", "-o", scratch / "empty.msi", "empty.wxs"], cwd=ROOT / "tests/package", check=True)

    def package(self, version):
        own = self.scratch / version
        own.mkdir()
        (own / "Ornavel.dll").write_bytes(dll_of(version))
        (own / "memo.htm").write_bytes(b"an older memo" if version == OLDER else MEMO.read_bytes())
        ours = {f"{BUILD}/shell/Ornavel.dll": own / "Ornavel.dll", str(MEMO.relative_to(ROOT)): own / "memo.htm"}
        lines = [[str(ours.get(source, source)), *words] for source, *words in every_line()]
        (own / "list").write_text("\n".join(map(" ".join, lines)), "utf-8")
        subprocess.run([ROOT / "tools/package", "--version", version, "--files", own / "list", "--out", self.scratch],
                       check=True)

    def preset(self):
        """Its path and its number, as Windows finds them at a logon; None without one."""
        stubs = [values for key, values in self.registry().items() if key.endswith(ACTIVE_SETUP)]
        if not stubs:
            return None
        path = re.fullmatch(r'"\\"C:\\\\windows\\\\regedit.exe\\" /s \\"(.+)\\""', stubs[0]['"StubPath"'], re.I)[1]
        return path.replace("\\\\", "\\"), stubs[0]['"Version"'].strip('"')

    @staticmethod
    def samples():
        return {pathlib.Path(words[0]).name for words in listed() if words[1] in ("templates", "signatures", "pictures")}

    def run(self, program, *words):
        code = subprocess.run([ROOT / "tools/wine/run", self.drive / "windows" / program, *words],
                              env={**os.environ, "WINE_SECONDS": str(PATIENCE)}).returncode
        assert code != TOOK_TOO_LONG, f"{program} {' '.join(words)}: not done after {PATIENCE} seconds"
        return code

    @staticmethod
    def says(program, *words):
        """What it writes, when it ends well."""
        return subprocess.run([ROOT / "tools/wine/run", program, *words], capture_output=True, text=True,
                              check=True).stdout.strip()

    def forget_notes(self):
        """Of what Windows brought to the user at a logon; so another user is without them."""
        self.import_registry(r"[-HKEY_CURRENT_USER\Software\Microsoft\Active Setup]")

    def installer(self, act, name, *words):
        return self.run("system32/msiexec.exe", act, f"Z:{self.scratch / name}", "/qn", *words)

    def refuses(self, sentence, name, *words):
        """The package does, in one sentence for whoever sees it, and without a window; nothing is changed by either."""
        before = self.state()
        assert self.installer("/i", name, *words) == REFUSED, (name, words)
        seen = subprocess.Popen([ROOT / "tools/wine/run", self.drive / "windows/system32/msiexec.exe", "/i",
                                 f"Z:{self.scratch / name}", *words])
        said = subprocess.run([ROOT / "tools/wine/run", HELPERS / "read_box.exe"], capture_output=True, text=True)
        assert (seen.wait(PATIENCE), said.stdout.strip()) == (REFUSED, sentence), (words, said.stdout)
        changed = self.differences(before)
        assert not changed, changed

    @contextlib.contextmanager
    def in_use(self, dll):
        """What runs within this meets the DLL as it is while a mail client is open."""
        user = subprocess.Popen([ROOT / "tools/wine/run", HELPERS / "use_dll.exe", dll], stdin=subprocess.PIPE,
                                stdout=subprocess.PIPE, text=True)
        assert user.stdout.readline() == "loaded\n", f"{dll} can't be loaded"
        try:
            yield
        finally:
            user.communicate(timeout=PATIENCE)

    @contextlib.contextmanager
    def outlook(self, *bits):
        """What runs within this meets the notes of mail clients of so many bits, each where its own programs look."""
        lines = [[rf"[HKEY_LOCAL_MACHINE\Software{NODE if word == 'x86' else ''}\Microsoft\Office\{version}\Outlook]",
                  f'"Bitness"="{word}"'] for version, word in zip(("16.0", "14.0"), bits)]
        self.import_registry(*sum(lines, []))
        try:
            yield
        finally:
            self.import_registry(*(rf"[-HKEY_LOCAL_MACHINE\Software{node}\Microsoft\Office\{version}]"
                                   for node in ("", NODE) for version in ("16.0", "14.0")))

    def forget_outlook(self):
        """The key that the notes needed above theirs, when no package is installed."""
        self.import_registry(*(rf"[-HKEY_LOCAL_MACHINE\Software{node}\Microsoft\Office]" for node in ("", NODE)))

    def import_registry(self, *lines):
        (self.scratch / "own.reg").write_text("\n".join(["REGEDIT4", "", *lines, ""]), "cp1252")
        self.run("regedit.exe", "/s", f"Z:{self.scratch}/own.reg")

    def registry(self):
        """The values of each key, by its name in small letters, in the words of Wine's own files."""
        keys = {}
        for area, text in zip((MACHINE, USER), self.saved_registry()):
            for line in re.sub(r"\\\n *", "", text).splitlines():
                if found := re.match(r"\[(.*)\] \d+$", line):
                    name = rf"{area}\software\{found[1]}".replace(r"\\", "\\").lower()
                    values = keys.setdefault(name, {})
                elif found := re.match(r'(@|"(?:[^"\\]|\\.)*")=(.*)', line):
                    values[found[1]] = found[2]
        return keys

    def saved_registry(self):
        areas = [self.scratch / area for area in (MACHINE, USER)]
        for area in areas:
            area.unlink(missing_ok=True)
        subprocess.run([ROOT / "tools/wine/run", HELPERS / "save_registry.exe", *(f"Z:{area}" for area in areas)], check=True)
        return [area.read_text("latin-1") for area in areas]

    def files(self):
        """Each file of the drive with what its contents come to, and each folder. What plays keep for themselves counts
        for nothing."""
        own = self.drive / "windows/ornavel_prefix"
        return {str(path.relative_to(self.drive)): self.digest(path) for path in self.drive.rglob("*")
                if own not in path.parents}

    def digest(self, path):
        """Of the contents; a file that nobody has written to since is not read again."""
        if path.is_symlink() or not path.is_file():
            return "link" if path.is_symlink() else "folder"
        found = path.stat()
        seen = (found.st_ino, found.st_size, found.st_mtime_ns, found.st_ctime_ns)
        if seen not in self.digests:
            self.digests[seen] = hashlib.sha256(path.read_bytes()).hexdigest()
        return self.digests[seen]

    def state(self):
        """Every key, value and file, each with what is in it."""
        return {**self.files(), **{f"{key} {name}": data for key, values in self.registry().items()
                                   for name, data in (("", ""), *values.items())}}

    def differences(self, before):
        """What is not as it was then, in words."""
        now = self.state()
        return [f"{name}: {before.get(name, 'not there')} became {now.get(name, 'not there')}"
                for name in sorted({*before, *now}) if before.get(name) != now.get(name)]

    def left_with(self, file):
        """Whether a package that is gone left this file and its folders, and nothing else; it goes with them."""
        folders = [folder for folder in file.relative_to(self.drive).parents if len(folder.parts) > 1]
        left = {words.partition(":")[0] for words in self.differences(self.before)}
        shutil.rmtree(self.drive / folders[-1])
        assert left == set(map(str, [file.relative_to(self.drive), *folders])), left
        return True
