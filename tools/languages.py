"""What the tools share about the languages of the interface: the list, and the texts of each."""

from pathlib import Path
from typing import NamedTuple

RESOURCE = Path(__file__).resolve().parent.parent / "resource"
TRANSLATIONS = RESOURCE / "Translations"


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
    def english(self) -> bool:
        return self.state == "english"

    @property
    def partial(self) -> bool:
        return self.state == "partial"


def languages() -> list[Language]:
    lines = (TRANSLATIONS / "languages.txt").read_text(encoding="utf-8").splitlines()
    return [Language(*line.split(maxsplit=4)) for line in lines if line and not line.startswith("#")]
