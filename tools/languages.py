"""What the tools share about the languages of the interface: the list, and the characters that each takes of the font."""

import shutil
import subprocess
import sys
import xml.etree.ElementTree as ElementTree
from pathlib import Path
from typing import NamedTuple

RESOURCE = Path(__file__).resolve().parent.parent / "resource"
TRANSLATIONS = RESOURCE / "Translations"
FONT = RESOURCE / "HARMONYOS_SANS_SC_REGULAR.TTF"


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
