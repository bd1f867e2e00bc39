"""Whether a text of the interface is worded as resource/Translations/terms.md has it, which also tells why."""

import re
from pathlib import Path
from typing import NamedTuple

from languages import TRANSLATIONS

TERMS = TRANSLATIONS / "terms.md"

# What a country's texts are written with, by the name of the .ts; ideographs of others have other shapes, or are wrong.
SCRIPTS = {"zh_CN": "gb2312", "zh_TW": "big5", "ja_JP": "cp932"}

IDEOGRAPH = r"\u3005\u3400-\u9fff"
CJK = rf"[{IDEOGRAPH}\u3041-\u30fa\u30fc\uac00-\ud7a3]"
LATIN = r"[0-9A-Za-z\u00c0-\u024f%]"
UNPARTED = re.compile(rf"{CJK}{LATIN}|{LATIN}{CJK}")
# A line must not end between a figure and the word that it belongs to, nor begin with "=": %1 may be a figure as well.
UNTIED = re.compile(rf"(?<={CJK}) (?=\d|%L?\d|=)|(?<=\d) (?={CJK})")
TIE = "\u00a0"
# Arguments may hold either kind, tags and mnemonics are not seen.
UNSEEN = re.compile(r"%L?\d{1,2}|</?[A-Za-z][^<>]*>|\(&\w\)")


class Replaced(NamedTuple):
    """A word that is not used, and the longer ones that have it rightly."""

    word: str
    instead: str
    within: tuple[str, ...]


class Wording:
    """The tables of terms.md."""

    def __init__(self, path: Path = TERMS) -> None:
        self.terms: dict[str, dict[str, str]] = {}  # of a language, the word of an English text
        self.replaced: dict[str, list[Replaced]] = {}
        for header, cells in rows(path.read_text(encoding="utf-8")):
            row = dict(zip(header, cells))
            if "English" in row:
                for language in header[1:-1]:
                    self.terms.setdefault(language, {})[row["English"]] = row[language]
            else:
                within = listed(row["Except within"])
                self.replaced.setdefault(row["Language"], []).extend(
                    Replaced(word, row["But"], within) for word in listed(row["Not"]))

    def faults(self, language: str, english: str, text: str) -> list[str]:
        """What is wrong with the text that stands for an English one; empty when nothing is."""
        found = [f'has "{word.word}", but the word is {word.instead}' for word in self.replaced.get(language, ())
                 if word.word in without(text.lower(), word.within)]
        term = self.terms.get(language, {}).get(english.strip())
        if term and text.strip() != tied(term):
            found.append(f'is "{text.strip()}", but the word is {term}')
        if untied := UNTIED.search(text):
            start, end = untied.span()
            found.append(f'may break within "{text[start - 1:end + 1]}": run tools/translations update')
        if parting := UNPARTED.search(UNSEEN.sub("\0", text)):
            found.append(f'no blank within "{parting[0]}"')
        if re.search(r"：\s", text):
            found.append("a blank after a full-width colon")
        if strange := [c for c in re.findall(rf"[{IDEOGRAPH}]", text) if not c.encode(SCRIPTS.get(language, "utf-8"), "ignore")]:
            found.append(f"strange to the language: {', '.join(strange)}")
        return found


def tied(text: str) -> str:
    """The text with blanks that do not break between figures and Chinese or Japanese words."""
    return UNTIED.sub(TIE, text)


def rows(page: str):
    """The rows of all tables of a page, each with the header of its table."""
    header = None
    for line in page.splitlines():
        if not line.startswith("|"):
            header = None
        elif not set(line) <= set("|- "):
            cells = [cell.strip() for cell in line.strip("|").split("|")]
            if header:
                yield header, cells
            else:
                header = cells


def listed(cell: str) -> tuple[str, ...]:
    return tuple(word.strip() for word in cell.split(",") if word.strip())


def without(text: str, parts: tuple[str, ...]) -> str:
    for part in parts:
        text = text.replace(part.lower(), "\0")
    return text
