"""What the packages for mail clients of 32 and of 64 bits have each for itself: codes, places, and the rows by which one
refuses where the other belongs."""
import uuid

FAMILY = uuid.UUID("E0B5E4E7-7C5D-4E12-9C34-0B7A5F6C1D27")
PLATFORMS = {32: "Intel;1033", 64: "x64;1033"}
WORDS, ENDINGS = {32: "x86", 64: "x64"}, {32: "", 64: "-x64"}
VERSIONS_WITH_BITNESS = ("14", "15", "16")  # of mail clients whose setup notes its bits
BY_REGISTRY, TRANSITIVE, OF_64_BITS = 4, 64, 256  # of a component
MACHINE, SEARCH_VALUE, SEARCH_64_BIT = 2, 2, 16  # of a search in the registry
FROM_THIS_VERSION_ON, UP_TO_THIS_VERSION, ONLY_DETECTED = 256, 512, 2


def code(name, bits=32):
    """A code of the form that Windows Installer wants, the same for the same name. What lies in another place, as a
    package for 64-bit mail clients does, needs codes of its own."""
    return str(uuid.uuid5(FAMILY, name if bits == 32 else f"x64/{name}")).upper()


def family(bits):
    return str(FAMILY).upper() if bits == 32 else code("family", 64)


def names(bits):
    """What ornavel.wxs leaves open because the packages differ in it."""
    if bits == 32:
        return {"place": "ProgramFilesFolder", "registration": "FA3C2A55-9E85-4C24-AB38-1F15E70DDC56"}
    return {"place": "ProgramFiles64Folder", "registration": code("registration", 64)}


def rows_of_bits(version, bits, files):
    """The files are given by their keys."""
    yield from component_rows(bits, files)
    yield from search_rows()
    yield condition_row(version, bits, 96 - bits)
    yield from upgrade_rows(version, 96 - bits)


def upgrade_rows(version, other):
    """The other package gives way, unless it is newer."""
    yield ("INSERT INTO `Upgrade` (`UpgradeCode`, `VersionMin`, `VersionMax`, `Attributes`, `ActionProperty`) VALUES "
           f"('{{{family(other)}}}', '0.0.0', '{version}', {FROM_THIS_VERSION_ON + UP_TO_THIS_VERSION}, 'OTHERBITS')")
    yield ("INSERT INTO `Upgrade` (`UpgradeCode`, `VersionMin`, `Attributes`, `ActionProperty`) VALUES "
           f"('{{{family(other)}}}', '{version}', {ONLY_DETECTED}, 'OTHERBITSNEWER')")
    yield ("INSERT INTO `LaunchCondition` (`Condition`, `Description`) VALUES ('NOT OTHERBITSNEWER', "
           f"'A newer Ornavel, for {other}-bit Outlook, is installed on this computer. Remove it first.')")


def component_rows(bits, files):
    """A component of 64 bits has its files and keys where programs of 64 bits look."""
    own = OF_64_BITS if bits == 64 else 0
    found = {"registration": BY_REGISTRY + own, "preset": BY_REGISTRY + TRANSITIVE, **dict.fromkeys(files, own)}
    for name, value in found.items():
        yield f"UPDATE `Component` SET `Attributes` = {value} WHERE `Component` = '{name}'"


def notes():
    """A property for each place where a mail client's setup may have noted its bits: where its own programs look."""
    return {f"OL{number}{programs}": (number, programs) for number in VERSIONS_WITH_BITNESS for programs in (32, 64)}


def search_rows():
    for name, (number, programs) in notes().items():
        where = SEARCH_VALUE + (SEARCH_64_BIT if programs == 64 else 0)
        yield f"INSERT INTO `AppSearch` (`Property`, `Signature_`) VALUES ('{name}', '{name.lower()}')"
        yield ("INSERT INTO `RegLocator` (`Signature_`, `Root`, `Key`, `Name`, `Type`) VALUES "
               f"('{name.lower()}', {MACHINE}, 'Software\\Microsoft\\Office\\{number}.0\\Outlook', 'Bitness', {where})")


def condition_row(version, own, other):
    """Refuses where all notes say that the other package belongs there. The table has room for 255 letters."""
    said = {bits: " OR ".join(f'{name}="{WORDS[bits]}"' for name in notes()) for bits in (own, other)}
    words = f"Outlook on this computer is {other}-bit: it needs Ornavel-{version}{ENDINGS[other]}.msi instead of this package."
    return ("INSERT INTO `LaunchCondition` (`Condition`, `Description`) VALUES "
            f"('Installed OR {said[own]} OR NOT ({said[other]})', '{words}')")
