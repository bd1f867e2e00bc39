"""Finds the places of a source file where a rule can be changed, and the changes.

A text is looked at without its comments and strings. What only paints, lays out, styles or logs is left alone.
"""

import hashlib
import re
from typing import NamedTuple

# Functions that paint or lay out; those that merely draw into a frame of the LED matrix take no painter.
LOOK_FUNCTION = re.compile(r"(?:^|::)(?:paint\w*|sizeHint|minimumSizeHint|\w*[sS]tyle\w*|setUpFrame|doLayout|colorOf)$")
LOOK_CALL = re.compile(
    r"\b(?:q(?:Debug|Info|Warning|Critical)|setStyleSheet|set\w*(?:Margins|Spacing|Stretch|Alignment|Font|Icon|Pixmap|"
    r"Cursor|Color|Accent|PixelSize|SizePolicy|ScrollBarPolicy|FrameShape|CaptionWidth|RenderHint|WordWrap|Palette)|"
    r"set(?:Fixed|Minimum|Maximum)(?:Size|Width|Height)|setGeometry|setAttribute|setWindowFlags|resize|"
    r"add(?:Stretch|Widget|Layout|Item|Spacing)|QColor|QFont|QSize|QMargins|QRect|painter|Q_ASSERT|"
    r"set(?:ToolTip|PlaceholderText)|style|polish|dressPage|layOut|SliderGrid|"
    r"static_assert|Q_\w+|columns|captionWidth|devicePixelRatio\w*)\b|\bupdate\(\);|setObjectName\(QStringLiteral")
LOOK_FILE = re.compile(r"/(?:pagestyle|flowlayout|sharedfonts|captionlabel|focusring)\.(?:cpp|h)$")
LOOK_CONSTANT = re.compile(
    r"\bk\w*(?:Width|Height|Margin|Spacing|Pixels|Radius|Colou?r|Side|Top|Left|Pitch|Gap|Opacity|Caption|Text|Marker|"
    r"Pad\w*)\s*[({=;]")
# Where such constants are rules.
MEASURES_ARE_RULES = re.compile(r"src/(?:ledmatrix|usb-hid|ddc_protocol|PictureAudioCom|platform)/")
NO_CODE = re.compile(r"^\s*(?:#|(?:using|namespace|template|case|class|struct|friend)\b|public:|private:|protected:)")

RELATIONS = {"==": ["!="], "!=": ["=="], "<": ["<=", ">="], ">": [">=", "<="], "<=": ["<", ">"], ">=": [">", "<"]}
ARITHMETIC = {"+": ["-"], "-": ["+"], "*": ["/"], "/": ["*"], "%": ["/"], "&&": ["||"], "||": ["&&"], "&": ["|"],
              "|": ["&"], "+=": ["-="], "-=": ["+="], "|=": ["&="], "&=": ["|="]}
# The formatter sets blanks around every operator of two operands, none around brackets of templates or stars of types.
OPERATOR = re.compile(r"(?<=[\w)\]\"'] )(==|!=|<=|>=|\+=|-=|\|=|&=|&&|\|\||[<>+\-*/%&|])(?= )")
STEP = re.compile(r"(\+\+|--)(?=\w)")
CONDITION = re.compile(r"\b(?:if|while) \(")
NUMBER = re.compile(r"(?<![\w.])(0x[0-9A-Fa-f]+|\d+(?:\.\d+)?)(?![\w.])")
WORD = re.compile(r"\b(true|false)\b")
NEGATION = re.compile(r"(?<=[( ])!(?=[\w(])")
STATEMENT = re.compile(
    r"^\s*(?:\+\+|--)?(?!(?:return|delete|break|continue|else|goto|case|default|if|for|while|do|switch)\b)"
    r"(?:\(\*?\w+\)|\*?[\w:]+)(?:<[\w: ,*]*>)?(?:\[[^;]*?\]|\([^;]*?\)|\.\w+|->\w+)*\s*"
    r"(?:\([^;]*\)|[-+*/|&%]?=[^=;][^;]*|\+\+|--);$", re.S)


class Mutant(NamedTuple):
    """A file with one place changed."""

    file: str
    line: int  # counted from 1
    what: str  # the kind of change, and what it does
    begin: int
    end: int
    text: str  # what stands there instead
    key: str  # the same as long as the line says the same


def masked(source: str) -> str:
    """The source with blanks for comments and the insides of strings, of the same length."""
    def blank(match: re.Match) -> str:
        text = match.group(0)
        if text[0] in "\"'" and len(text) > 1:
            return text[0] + "_" * (len(text) - 2) + text[-1]
        return re.sub(r"[^\n]", " ", text)

    text = r"""//[^\n]*|/\*.*?\*/|"(?:\\.|[^"\\\n])*"|(?<![0-9A-Fa-f])'(?:\\.|[^'\\\n])+'"""
    return re.sub(text, blank, source, flags=re.S)


def look_spans(code: str) -> list[tuple[int, int]]:
    """From where to where functions go that paint or lay out."""
    spans, depth, head, begin = [], 0, 0, None
    outer = []  # of each open brace: whether functions may lie in it
    for match in re.finditer(r"[{};]", code):
        token, at = match.group(0), match.start()
        if token == "{":
            text = code[head:at].strip()
            holds_functions = "=" not in text and bool(re.match(r"(?:namespace|class|struct|extern)\b", text))
            if all(outer) and not holds_functions and begin is None:
                name = re.search(r"([\w:~]+)\s*\(", text)
                if name and (LOOK_FUNCTION.search(name.group(1)) or "QPainter &" in text):
                    begin, depth = head, len(outer)
            outer.append(holds_functions)
            head = at + 1
        elif token == "}":
            if outer:
                outer.pop()
            if begin is not None and len(outer) == depth:
                spans.append((begin, at))
                begin = None
            head = at + 1
        else:
            head = at + 1
    return spans


def statements(code: str, begin: int, end: int) -> list[tuple[int, int]]:
    """Where the expression statements lie that begin on lines of this part."""
    found = []
    for match in re.finditer(r"(?<=[;{}\n])[ \t]+[^\s{}][^;{}]*;", code[begin:end]):
        before = code[:begin + match.start()].rstrip()
        if not before or before[-1] not in ";{})" and not before.endswith("else"):
            continue
        if STATEMENT.match(match.group(0).strip(" \t")):
            text = match.group(0)
            found.append((begin + match.start() + len(text) - len(text.lstrip()), begin + match.end()))
    return found


def names(code: str) -> set[str]:
    """The names of variables and functions in it, without those of types."""
    return set(re.findall(r"\b[a-z]\w+\b", code))


def changed_number(text: str, choice: int) -> str:
    if text.startswith("0x"):
        return f"0x{int(text, 16) ^ 1:X}"
    if "." in text:
        return str(float(text) * 2 + (1 if float(text) == 0 else 0))
    number = int(text)
    return str(number + 1 if choice % 2 == 0 or number == 0 else number - 1)


def condition_end(code: str, begin: int) -> int:
    """Behind the bracket that closes the one which opens just before."""
    depth, at = 1, begin
    while depth and at < len(code):
        depth += {"(": 1, ")": -1}.get(code[at], 0)
        at += 1
    return at - 1


def changes_of(code: str, source: str, begin: int, end: int, in_statements, choice: int):
    """What can be changed on the line from begin to end: (kind, begin, end, text)."""
    line = code[begin:end]
    for match in OPERATOR.finditer(line):
        sign = match.group(1)
        options = RELATIONS.get(sign) or ARITHMETIC[sign]
        if sign in "<>" and re.search(r"template|operator", line):
            continue
        text = options[choice % len(options)]
        yield ("relation" if sign in RELATIONS else "arithmetic", begin + match.start(1), begin + match.end(1), text)
    for match in STEP.finditer(line):
        yield "arithmetic", begin + match.start(), begin + match.end(), {"++": "--", "--": "++"}[match.group(1)]
    for match in CONDITION.finditer(line):
        close = condition_end(code, begin + match.end())
        condition = source[begin + match.end():close]
        if not re.search(r"(?<![=!<>])=(?!=)|;", code[begin + match.end():close]):
            always = ["false", "true"][choice % 2] if match.group(0).startswith("if") else "false"
            yield "condition", begin + match.end(), close, [f"!({condition})", always][choice // 2 % 2]
    for match in NEGATION.finditer(line):
        yield "condition", begin + match.start(), begin + match.end(), ""
    for match in WORD.finditer(line):
        yield "constant", begin + match.start(), begin + match.end(), {"true": "false", "false": "true"}[match.group(1)]
    for match in NUMBER.finditer(line):
        yield "constant", begin + match.start(), begin + match.end(), changed_number(match.group(1), choice)
    here = [i for i, (at, _) in enumerate(in_statements) if begin <= at < end]
    for i in here:
        at, stop = in_statements[i]
        yield "statement removed", at, stop, ";"
        if i + 1 < len(in_statements) and not code[stop:in_statements[i + 1][0]].strip():
            after, last = in_statements[i + 1]
            # Else the order can make no difference.
            if names(code[at:stop]) & names(code[after:last]) and not LOOK_CALL.search(code[after:last]):
                yield "statements swapped", at, last, source[after:last] + source[stop:after] + source[at:stop]


def mutants_of(file: str, source: str, seed: int) -> list[Mutant]:
    """One change for each line of a file that has any, chosen by the seed and the line's text."""
    code = masked(source)
    spans = look_spans(code)
    found, seen = [], {}
    in_statements = statements(code, 0, len(code))
    begin = 0
    for number, line in enumerate(source.splitlines(keepends=True), 1):
        end = begin + len(line)
        text = line.strip()
        seen[text] = seen.get(text, 0) + 1
        key = hashlib.sha256(f"{seed}|{file}|{text}|{seen[text]}".encode()).hexdigest()[:16]
        if is_rule(file, code[begin:end], begin, spans):
            choice = int(key, 16)
            changes = list(changes_of(code, source, begin, end, in_statements, choice // 1024 % 4))
            if changes:
                kinds = sorted({change[0] for change in changes})  # else the numbers of a long line outweigh its rule
                of_kind = [change for change in changes if change[0] == kinds[choice % len(kinds)]]
                kind, at, stop, new = of_kind[choice // 32 % len(of_kind)]
                found.append(Mutant(file, number, describe(kind, source[at:stop], new), at, stop, new, key))
        begin = end
    return found


def is_rule(file: str, line: str, at: int, spans: list[tuple[int, int]]) -> bool:
    if NO_CODE.match(line) or LOOK_FILE.search(file) or LOOK_CALL.search(line):
        return False
    if any(begin <= at < end for begin, end in spans):
        return False
    return not LOOK_CONSTANT.search(line) or bool(MEASURES_ARE_RULES.match(file))


def describe(kind: str, old: str, new: str) -> str:
    if kind == "statements swapped":
        return f"{kind}: {short(old)}"
    return f"{kind}: {short(old)}" + ("" if kind == "statement removed" else f" -> {short(new) or 'nothing'}")


def short(text: str) -> str:
    text = " ".join(text.split())
    return text if len(text) <= 60 else text[:57] + "..."
