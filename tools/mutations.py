"""The places of a C++ source where tools/mutate can change one operator, constant, text or statement."""
import re

TOKEN = re.compile(
    r"""(?P<comment>//[^\n]*|/\*.*?\*/)
    |(?P<directive>^[ ]*\#(?:[^\n]*\\\n)*[^\n]*)
    |(?P<text>(?:u8|[uUL])?"(?:[^"\\\n]|\\.)*")
    |(?P<unit>(?:u8|[uUL])?'(?:[^'\\\n]|\\[^\n])+')
    |(?P<number>\b\d(?:[\w.]|'\d)*)
    |(?P<word>[A-Za-z_]\w*)
    |(?P<binary>(?<=[ ])(?:==|!=|<=|>=|&&|\|\||[-+*/]=|[-+*/%<>])(?=[ \n]))
    |(?P<step>\+\+|--)
    |(?P<negation>!(?=[\w(:*]))""",
    re.M | re.S | re.X)
OTHER = {
    "==": "!=", "!=": "==", "<": "<=", "<=": "<", ">": ">=", ">=": ">", "&&": "||", "||": "&&", "+": "-", "-": "+",
    "*": "+", "/": "*", "%": "/", "+=": "-=", "-=": "+=", "*=": "+=", "/=": "*=", "++": "--", "--": "++",
    "true": "false", "false": "true",
}
STATEMENT = re.compile(
    r"""^(?:[ ]{4})+(?P<statement>(?:(?:if|for|while)[ ]\(.*\)[ ])?
    (?:(?:return|throw)\b.*|break|continue|(?:\+\+|--|\*?)[\w.:>\[\]()-]+(?:[ ][-+*/|&]?=[ ].*|\(.*\)|\+\+|--)?)(?<!\{);)$""",
    re.M | re.X)
CHARACTER = re.compile(r"\\u[0-9A-Fa-f]{4}|\\x[0-9A-Fa-f]+|\\.|.")


class Change:
    """One change of one place: what stood there, and what stands there then."""

    def __init__(self, file, source, begin, end, then):
        self.file, self.begin, self.end, self.then = file, begin, end, then
        self.number = source.count("\n", 0, begin) + 1
        self.line = source.splitlines()[self.number - 1].strip()
        self.was = source[begin:end]

    def __str__(self):
        return f"{self.file}:{self.number}: {self.was} -> {self.then or 'nothing'}"

    def apply(self, source):
        return source[:self.begin] + self.then + source[self.end:]


def changes_of(file, source, choose):
    """Every change of a source, in its order. choose(count) gives back a number below count: which letter of a text."""
    yield from token_changes(file, source, choose)
    yield from statement_changes(file, source)


def token_changes(file, source, choose):
    for token in TOKEN.finditer(source):
        kind, was = token.lastgroup, token[0]
        if kind in ("comment", "directive"):
            continue
        if kind in ("text", "unit"):
            then = other_text(was, choose)
        elif kind == "number":
            then = other_number(was)
        else:
            then = "" if kind == "negation" else OTHER.get(was)
        # Texts are joined by "+" too; they have no "-".
        joins = was == "+" and re.search(r'u"|Text|_text\(', Change(file, source, token.start(), token.end(), "").line)
        if then is not None and not joins:
            yield Change(file, source, token.start(), token.end(), then)


def other_number(was):
    found = re.fullmatch(r"(0x[0-9A-Fa-f']+|[\d']+)(\w*)", was)
    if not found:
        return None
    value = int(found[1].replace("'", ""), 0)
    return (hex(value + 1) if found[1].startswith("0x") else str(value + 1)) + found[2]


def other_text(was, choose):
    quote = was[-1]
    begin, inside = was.index(quote) + 1, was[was.index(quote) + 1:-1]
    plain = [found for found in CHARACTER.finditer(inside) if found[0][0] != "\\"]
    if not plain:
        return was[:begin] + (inside if quote == '"' else "") + "x" + quote
    letter = plain[choose(len(plain))]
    at = begin + letter.start()
    return was[:at] + ("y" if letter[0] in "xX" else "x") + was[at + 1:]


def statement_changes(file, source):
    """Statements on one line of their own, but the last one of a function that gives back something."""
    for found in STATEMENT.finditer(source):
        was = found["statement"]
        after = source[found.end():].lstrip()
        if was.count("(") != was.count(")") or (was.startswith("return ") and after.startswith("}")):
            continue
        if source[:found.start()].rstrip().endswith((";", "{", "}", ":", ")")):
            yield Change(file, source, found.start("statement"), found.end(), "{}")
