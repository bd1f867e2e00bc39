"""Runs the suites against changed copies of the sources: see tools/mutate."""

import argparse
import json
import os
import re
import resource
import shlex
import shutil
import signal
import subprocess
import sys
import time
from collections import Counter
from pathlib import Path

from sites import Mutant, mutants_of

ROOT = Path(__file__).resolve().parent.parent.parent
WORK = ROOT / "build" / "mutate"
TREE = WORK / "tree"
BUILD = WORK / "build"
LAUNCHER = WORK / "launcher"
COPIED = ("CMakeLists.txt", "CMakePresets.json", "cmake", "resource", "src", "tests")

# A room of the house: its name, its sources, and the suites that are likely to notice a change there.
ROOMS = (
    ("main window", r"src/(?:mainwindow|leftbar|toptab|naviga|interfacemodes|automation|monitorchecks|statusline)",
     "mainwindow windowlinks"),
    ("tray", r"src/tray/", "traypanel"),
    ("main window", r"src/sessionend|src/platform/ending", "ending"),
    ("session", r"src/(?:searchdevice|device|snapshot|relaunch|sessionhost)", "session mainwindow"),
    ("start", r"src/(?:main|global|single|elevation|loading|workingfolder)", "start shell"),
    ("files", r"src/files/|src/platform/posix/|src/ddc_protocol/(?:settings|damaged|loghandler)", "files shell session"),
    ("monitor link", r"src/ddc_protocol/", "transport displays session"),
    ("shortcuts", r"src/shortcut/|src/page/BasicSetting/(?:page)?shortcut", "shortcut shortcutpage"),
    ("following", r"src/following/|src/page/Following/", "following"),
    ("accessory", r"src/usb-hid/|src/ledmatrix/", "accessory accessoryupload ledwork"),
    ("sound", r"src/PictureAudioCom/", "spectrum soundanalyzer audio music"),
    ("accessory pages", r"src/page/Nightloom/(?:canvas/|parts/|work/ledthread)",
     "canvas canvasfiles editors"),
    ("accessory pages", r"src/page/Nightloom/", "ledtext ledwork audio music"),
    ("pages", r"src/page/Scene/", "scenepage pages"),
    ("pages", r"src/page/BasicSetting/|src/page/IO/", "toolpages pages"),
    ("pages", r"src/page/engine/listpage", "shortcutpage following"),
    ("pages", r"src/page/", "pages scenepage toolpages"),
    ("controls", r"src/controls/", "controls fields"),
    ("platform", r"src/platform/", "shortcut"),
)
# Not in the build of this machine, simulated, or in no suite.
LEFT_OUT = re.compile(r"src/(?:platform/(?:win32|virtual)|virtualdesk)/|src/main\.cpp|"
                      r"src/platform/(?:deskfactory|systemclock)")
MOST_INCLUDERS = 6  # of a header; with more of them one change rebuilds the house
BYTES = 4 << 30  # of memory that a suite may take


class Suite:
    """A test program: how it is started and how long it takes when nothing is wrong."""

    def __init__(self, test: dict):
        self.name = test["name"]
        self.program = test["command"][0]
        properties = {entry["name"]: entry["value"] for entry in test["properties"]}
        self.environment = dict(entry.split("=", 1) for entry in properties.get("ENVIRONMENT", []))
        self.folder = properties["WORKING_DIRECTORY"]
        self.seconds = 10.0
        self.symbols: set[str] = set()

    def run(self) -> str:
        """The case that failed, "time-out" or "crash"; empty when all is well. Ends with the first failure."""
        begin = time.monotonic()
        limit = 15 + 6 * self.seconds
        process = subprocess.Popen(["timeout", "-s", "KILL", str(limit), self.program], cwd=self.folder,
                                   env=os.environ | self.environment, stdout=subprocess.PIPE,
                                   stderr=subprocess.DEVNULL, text=True, errors="replace", start_new_session=True,
                                   preexec_fn=limit_resources)
        failed = ""
        for line in process.stdout:
            match = re.match(r"(?:FAIL!|XPASS|QFATAL)\s*: (\S+)", line)
            if match:
                failed = match.group(1)
                os.killpg(process.pid, 9)
                break
        process.stdout.close()
        status = process.wait()
        if failed or not status:
            return failed
        return "time-out" if time.monotonic() - begin >= limit - 1 else "crash"


def limit_resources():
    resource.setrlimit(resource.RLIMIT_AS, (BYTES, BYTES))
    resource.setrlimit(resource.RLIMIT_FSIZE, (BYTES // 16, BYTES // 16))
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))


def run(command: list[str], quiet=True, **more) -> subprocess.CompletedProcess:
    return subprocess.run(command, stdout=subprocess.PIPE if quiet else sys.stderr,
                          stderr=subprocess.STDOUT if quiet else None, text=True, **more)


def copy_tree():
    """Makes the copy say what the work tree says; what is equal stays as it is, so that it is not built again."""
    present = {Path(name) for name in COPIED if (ROOT / name).is_file()}
    for name in COPIED:
        present |= {path.relative_to(ROOT) for path in (ROOT / name).rglob("*")
                    if path.is_file() and path.suffix != ".pyc"}
    for path in present:
        source, copy = ROOT / path, TREE / path
        if not copy.exists() or copy.read_bytes() != source.read_bytes():
            copy.parent.mkdir(parents=True, exist_ok=True)
            shutil.copyfile(source, copy)
    for copy in [path for path in TREE.rglob("*") if path.is_file() and path.relative_to(TREE) not in present]:
        copy.unlink()


def build(targets: list[str], quiet=True, jobs=1) -> bool:
    go_on = [] if quiet else ["-k", "0"]  # whoever reads along wants to see all that is wrong
    return run(["ninja", "-C", str(BUILD), "-j", str(jobs), *go_on, *targets], quiet).returncode == 0


def commands() -> list[dict]:
    return json.loads((BUILD / "compile_commands.json").read_text())


def precompile():
    """Qt's headers once for all sources, which saves half of the time. The launcher puts them in front."""
    header = WORK / "qt.h"
    if LAUNCHER.exists():
        return
    entry = next(entry for entry in commands() if entry["file"].endswith("/mainwindow.cpp"))
    compiler = re.sub(r"\S*/launcher | -o \S+| -c \S+", "", entry["command"])
    header.write_text("#include <QtWidgets>\n")
    done = run([*shlex.split(compiler), "-x", "c++-header", str(header), "-o", f"{header}.gch"], cwd=BUILD)
    if done.returncode:
        sys.exit(f"mutate: {done.stdout}")
    # Taken only where the same parts of Qt are announced. Resources are compiled otherwise and need none.
    parts = " ".join(sorted(set(re.findall(r"-DQT_[A-Z]+_LIB", compiler))))
    LAUNCHER.write_text('#!/bin/sh\ncase "$*" in *" -std="*)'
                        f' set -- "$@" {parts} -include {header} ;; esac\nexec "$@"\n')
    LAUNCHER.chmod(0o755)


def prepare(jobs: int) -> list[Suite]:
    """The suites, built from the copy and all green."""
    copy_tree()
    done = run(["cmake", "-S", str(TREE), "-B", str(BUILD), "-G", "Ninja", "-DCMAKE_BUILD_TYPE=",
                "-DCMAKE_CXX_FLAGS=-O0", f"-DCMAKE_CXX_COMPILER_LAUNCHER={LAUNCHER}",
                "-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=lld", "-DCMAKE_EXPORT_COMPILE_COMMANDS=ON"])
    if done.returncode:
        sys.exit(f"mutate: {done.stdout}")
    precompile()
    if not build([test["name"] for test in listed_suites()], quiet=False, jobs=jobs):
        sys.exit("mutate: the copy does not build")
    suites = [Suite(test) for test in listed_suites()]
    for suite in suites:
        suite.symbols = symbols_of(Path(suite.program))
        begin = time.monotonic()
        failed = suite.run()
        suite.seconds = time.monotonic() - begin
        if failed:
            sys.exit(f"mutate: {suite.name} fails without any change: {failed}")
    return suites


def symbols_of(built: Path) -> set[str]:
    """The functions of an object or a program that are its own, not a template's or the toolkit's."""
    lines = run(["nm", "--defined-only", "--format=posix", str(built)]).stdout.splitlines()
    return {words[0] for words in (line.split() for line in lines) if len(words) > 1 and words[1] == "T"}


def listed_suites() -> list[dict]:
    """The test programs as CTest knows them; only what is built has a command."""
    listed = json.loads(run(["ctest", "--test-dir", str(BUILD), "--show-only=json-v1"]).stdout)
    return [test for test in listed["tests"] if test["name"].startswith("tst_")]


def room_of(file: str) -> tuple[str, list[str]]:
    name, _, suites = next(room for room in ROOMS if re.match(room[1], file))
    return name, ["tst_" + suite for suite in suites.split()]


def includers(files: list[str]) -> Counter:
    """How many sources include a header, directly or by another."""
    direct = {file: set(re.findall(r'^#include "([^"]+)"', (ROOT / file).read_text(), re.M)) for file in files}
    count: Counter = Counter()
    for file in files:
        seen, open_ = set(), [file]
        while open_:
            for name in direct.get(open_.pop(), ()):
                if (header := f"src/{name}") not in seen:
                    seen.add(header)
                    open_.append(header)
        count.update(seen)
    return count


def all_mutants(seed: int, only: list[str]) -> list[Mutant]:
    """Every mutant of a seed, in an order that a change elsewhere in the sources does not disturb."""
    files = sorted(str(path.relative_to(ROOT)) for path in (ROOT / "src").rglob("*") if path.suffix in (".cpp", ".h"))
    count = includers(files)
    mutants = []
    for file in files:
        wanted = not only or any(file.startswith(path) for path in only)
        if wanted and not LEFT_OUT.match(file) and count[file] <= MOST_INCLUDERS:
            mutants += mutants_of(file, (ROOT / file).read_text(), seed)
    return sorted(mutants, key=lambda mutant: mutant.key)


class Bench:
    """Tries one mutant after the other on the copy."""

    def __init__(self, suites: list[Suite]):
        self.suites = sorted(suites, key=lambda suite: suite.seconds)
        self.objects: dict[str, Path] = {}
        for entry in commands():
            built = BUILD / re.search(r" -o (\S+)", entry["command"]).group(1)
            self.objects[os.path.relpath(entry["file"], TREE)] = built

    def try_mutant(self, mutant: Mutant) -> str:
        """Which suite noticed it by which case, "survived", or nothing when the change does not compile."""
        path = TREE / mutant.file
        source, times = path.read_text(), path.stat()
        built = self.objects.get(mutant.file)
        kept = built.read_bytes() if built and built.exists() else None
        try:
            path.write_text(source[:mutant.begin] + mutant.text + source[mutant.end:])
            return self.verdict(mutant.file, symbols_of(built) if built else set())
        finally:
            path.write_text(source)
            if kept is not None:  # so that it need not be compiled again
                os.utime(path, ns=(times.st_atime_ns, times.st_mtime_ns))
                built.write_bytes(kept)

    def verdict(self, file: str, symbols: set[str]) -> str:
        likely = room_of(file)[1]
        # The linker leaves out the objects of a library of which a program uses nothing.
        able = [suite for suite in self.suites if not symbols or symbols & suite.symbols]
        first = sorted((suite for suite in able if suite.name in likely), key=lambda suite: likely.index(suite.name))
        rest = [suite for suite in able if suite.name not in likely]
        for group in (first[:1], first[1:], *(rest[i:i + 4] for i in range(0, len(rest), 4))):
            if not group:
                continue
            if not build([suite.name for suite in group]):
                return ""
            for suite in group:
                if failed := suite.run():
                    return f"{suite.name[4:]} ({failed})"
        return "survived"


def describe(mutant: Mutant, verdict: str) -> str:
    end = verdict if verdict == "survived" else f"killed by {verdict}" if verdict else "does not compile"
    return f"{mutant.file}:{mutant.line}\t{mutant.what}\t{end}"


def read_results(path: Path) -> dict[str, str]:
    """What was found earlier: a line of the results for each key."""
    lines = path.read_text().splitlines() if path.exists() else []
    return {line.split("\t")[0]: line for line in lines if re.match(r"[0-9a-f]{16}\t", line)}


def summary(lines: list[str]) -> str:
    """How many were noticed in each room, as rows of a table."""
    tried, noticed = Counter(), Counter()
    for line in lines:
        room = room_of(line.split("\t")[1].split(":")[0])[0]
        tried[room] += 1
        noticed[room] += not line.endswith("\tsurvived")
    tried["all"], noticed["all"] = sum(tried.values()), sum(noticed.values())
    return "\n".join(f"| {room} | {noticed[room]} of {count} | {100 * noticed[room] / max(count, 1):.0f} % |"
                     for room, count in sorted(tried.items(), key=lambda item: (item[0] == "all", item[0])))


def arguments() -> argparse.Namespace:
    parser = argparse.ArgumentParser(prog="tools/mutate", description=__doc__)
    parser.add_argument("--count", type=int, default=20, help="mutants that compile (default 20)")
    parser.add_argument("--seed", type=int, default=1, help="which mutants (default 1)")
    parser.add_argument("--only", action="append", default=[], metavar="PATH", help="only sources whose path begins so")
    parser.add_argument("--again", action="store_true", help="try those once more that survived")
    parser.add_argument("--list", action="store_true", help="name the mutants and try none")
    parser.add_argument("--jobs", type=int, default=1, help="for the first build (default 1)")
    return parser.parse_args()


def main() -> int:
    options = arguments()
    mutants = all_mutants(options.seed, options.only)
    if options.list:
        print(*(f"{mutant.file}:{mutant.line}\t{mutant.what}" for mutant in mutants[:options.count]), sep="\n")
        return 0
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))  # or the copy would keep the change
    bench = Bench(prepare(options.jobs))
    path = WORK / f"seed-{options.seed}.txt"
    known = read_results(path)
    if options.again:
        known = {key: line for key, line in known.items() if not line.endswith("\tsurvived")}
    lines = []
    for mutant in mutants:
        if len(lines) == options.count:
            break
        begin = time.monotonic()
        if mutant.key in known:
            verdict = known[mutant.key].split("\t")[-1].removeprefix("killed by ")
            verdict = "" if verdict == "does not compile" else verdict
        else:
            verdict = bench.try_mutant(mutant)
            known[mutant.key] = f"{mutant.key}\t{describe(mutant, verdict)}"
            with path.open("a") as file:
                print(known[mutant.key], file=file)
            seconds = f"{time.monotonic() - begin:.1f} s"
            place = f"{len(lines) + bool(verdict)}/{options.count}"
            print(place, describe(mutant, verdict), seconds, sep="\t", flush=True)
        if verdict:
            lines.append(f"{mutant.key}\t{describe(mutant, verdict)}")
    text = summary(lines)
    path.write_text("\n".join([*known.values(), "", text, ""]))
    print(text)
    return 0


if __name__ == "__main__":
    sys.exit(main())
