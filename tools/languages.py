"""What the tools share about the languages of the interface: the list, and the characters that each takes of the fonts."""

import re
import shutil
import subprocess
import sys
import xml.etree.ElementTree as ElementTree
from pathlib import Path
from typing import NamedTuple

RESOURCE = Path(__file__).resolve().parent.parent / "resource"
TRANSLATIONS = RESOURCE / "Translations"
SOURCES = RESOURCE.parent / "src"
FONT = RESOURCE / "HARMONYOS_SANS_SC_REGULAR.TTF"
FONTS = RESOURCE / "fonts"
SCRIPTS = FONTS / "scripts.ttf"

# What a language with shapes of its own writes most: the codec, and its rows for that.
LEVELS = {"zh_TW": ("big5", range(0xA4, 0xC7)), "ja_JP": ("euc_jp", range(0xB0, 0xD0))}


class Language(NamedTuple):
    """A row of languages.txt, which tells what its columns are."""

    code: str
    file: str
    locale: str
    state: str
    name: str

    @property
    def path(self) -> Path:
        return TRANSLATIONS / f"{self.file}.ts"

    @property
    def characters(self) -> set[str]:
        """Those of its texts and of its button; none while it has no file."""
        texts = ElementTree.parse(self.path).iter("translation") if self.path.exists() else ()
        return {c for text in (self.name, *(text.text or "" for text in texts)) for c in text if c.isprintable()}

    @property
    def english(self) -> bool:
        return self.state == "english"

    @property
    def partial(self) -> bool:
        return self.state == "partial"


def languages() -> list[Language]:
    lines = (TRANSLATIONS / "languages.txt").read_text(encoding="utf-8").splitlines()
    return [Language(*line.split(maxsplit=4)) for line in lines if line and not line.startswith("#")]


def own_font(file: str) -> Path:
    """Where a language has its own shapes of characters, the font of these."""
    return FONTS / f"{file}.otf"


def pairs(codec: str, leads, trails):
    """The characters of the two-byte codes of a codec."""
    for lead in leads:
        for trail in trails:
            try:
                yield from bytes((lead, trail)).decode(codec)
            except UnicodeDecodeError:
                pass


def level_of(file: str) -> set[str]:
    """Level 1 of Big5 or of JIS X 0208."""
    codec, leads = LEVELS[file]
    level = set(pairs(codec, leads, [*range(0x40, 0x7F), *range(0xA1, 0xFF)]))
    return {c for c in level if c.encode(codec) <= b"\xC6\x7E"} if codec == "big5" else level


def jis_symbols() -> set[str]:
    """Rows 1 to 8 of JIS X 0208: symbols, letters and kana."""
    return set(pairs("euc_jp", range(0xA1, 0xA9), range(0xA1, 0xFF)))


def literals() -> set[str]:
    """What the sources show by themselves, such as the names of languages in themselves."""
    characters: set[str] = set()
    for path in SOURCES.rglob("*"):
        if path.suffix in (".cpp", ".h"):
            code = re.sub(r"//[^\n]*|/\*.*?\*/", "", path.read_text(encoding="utf-8"), flags=re.S)
            characters.update(*re.findall(r'"((?:[^"\\\n]|\\.)*)"', code))
    return {c for c in characters if c.isprintable()}


def covered(font: Path, index: int = 0) -> set[str]:
    """The characters of a font as fontconfig sees them; a collection has several fonts."""
    if not shutil.which("fc-scan"):
        sys.exit("fc-scan is missing; install the package fontconfig")
    listing = subprocess.run(["fc-scan", "--format", "%{index} %{charset}\n", str(font)], check=True, capture_output=True, text=True)
    characters: set[str] = set()
    for line in listing.stdout.splitlines():
        face, *ranges = line.split()
        for part in ranges if int(face) == index else ():
            first, _, last = part.partition("-")
            characters.update(map(chr, range(int(first, 16), int(last or first, 16) + 1)))
    return characters


def named(characters: set[str]) -> str:
    return ", ".join(f"{c} (U+{ord(c):04X})" for c in sorted(characters))
