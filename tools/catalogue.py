"""The rows of settings/catalogue.inc, for the tools that check the code against them."""
import re

ROW = re.compile(
    r'^[A-Z]+_KEY\((?P<section>\w+), (?P<id>\w+), "(?P<name>[^"]+)",.*?'
    r'\s(?:administrator|user|state),\s+(?P<readers>NOT_YET\("[^"]+"\)|"[^"]*"),\s+"[^"]*",\n'
    r'(?:    "(?:[^"\\]|\\.)*"\n)*    "(?:[^"\\]|\\.)*"\)$',
    re.M | re.S)
BEGIN = re.compile(r'^[A-Z]+_KEY\(.*', re.M)


class Row:
    """One setting: its name in the store, its name in the code, and who reads it."""

    def __init__(self, found):
        self.name = found["name"]
        self.code = f'{found["section"]}::{found["id"]}'
        self.not_yet = found["readers"].startswith("NOT_YET")
        self.unread = found["readers"] == '""'


def rows_of(text):
    """Every row; a ValueError names the first that can't be read."""
    rows, at = [], 0
    for begin in BEGIN.finditer(text):
        found = ROW.match(text, begin.start())
        if not found or begin.start() < at:
            raise ValueError(f"settings/catalogue.inc: can't read the row {begin[0]}")
        rows.append(Row(found))
        at = found.end()
    return rows
