"""Before there is a window: what is loaded, whose orders are taken, and the folder in which the program works."""

import shutil

from casekit import started
from rig import START_SECONDS, wait_for, windows_path

PLUGINS = ("platforms", "styles", "imageformats")
# Found neither beside the program nor in the system's folder, and names that Windows and the toolkit ask for.
LIBRARIES = ("planted.dll", "qttestability.dll", "uxtheme.dll", "dwmapi.dll", "hid.dll", "avrt.dll")


def plant(rig, run):
    """Puts libraries where any program of the same user could, and returns the folder with the plug-ins."""
    planted = run.folder / "planted"
    for name in PLUGINS:
        shutil.copytree(rig.program / name, planted / name)
    for folder in (run.folder, planted):
        for name in LIBRARIES:
            shutil.copy(rig.standins / "soundendpoint.dll", folder / name)
    return planted


def case_planted_libraries(rig):
    """Neither libraries that lie about nor a desk that the environment names are taken by a program with rights."""
    with started(rig, "planted_libraries") as run:
        planted = plant(rig, run)
        plugins = windows_path(planted)
        variables = {"QT_PLUGIN_PATH": plugins, "QT_QPA_PLATFORM_PLUGIN_PATH": plugins + "\\platforms",
                     "QT_STYLE_OVERRIDE": "windowsvista", "QT_LOAD_TESTABILITY": "1", "PATH": plugins + ";%PATH%",
                     "QUORVEL_DESK": "virtual", "QUORVEL_DESK_LOG": windows_path(run.folder / "desk.txt")}
        script = run.folder / "start.bat"  # the variables of the toolkit do not get into Wine from outside
        script.write_text("".join(f"@set {name}={value}\r\n" for name, value in variables.items()) +
                          f"@{windows_path(rig.program / 'quorvel.exe')} -platformpluginpath {plugins}\\platforms\r\n")
        trace = run.folder / "trace.txt"
        try:
            with trace.open("w") as lines:
                run.start_and_show(run.start_other("cmd", "/c", windows_path(script), stderr=lines,
                                                   extra={"WINEDEBUG": "-all,+loaddll"}))
            loaded = [line.lower() for line in trace.read_text(errors="replace").splitlines() if "Loaded L" in line]
            assert any("qwindows.dll" in line for line in loaded), loaded
            foreign = [line for line in loaded if "planted_libraries" in line]
            assert not foreign, foreign
            assert run.requests() and not (run.folder / "desk.txt").exists()
        finally:
            rig.end_copies()


def logs_of(folder):
    return list(folder.glob("QUORVEL_*.log"))


def case_working_folder(rig):
    """Started in the system's folder or where nothing can be written, the program works where its settings lie, or in
    the user's own folder."""
    drive = rig.work / "prefix" / "drive_c"
    system = drive / "windows" / "system32"
    for name, folder, settings, place in (
            ("in_system", system, None, None),
            ("below_system", system / "drivers", "[General]\nLanguage=ja_JP\n", rig.program),
            ("unwritable", "/proc", None, None)):
        with started(rig, "working_folder_" + name) as run:
            data = next(drive.glob("users/*/AppData/Local"), drive) / "QUORVEL"
            shutil.rmtree(data, ignore_errors=True)
            if settings:
                (rig.program / "config.ini").write_text(settings)
            try:
                run.start_and_show(run.start_other(rig.program / "quorvel.exe", cwd=folder))
                assert logs_of(place or data) and not logs_of(system), name
                language = "ja_JP" if settings else "en_US"
                assert any(f"\t{language}" in log.read_text() for log in logs_of(place or data)), name
            finally:
                for visited in (rig.program, system, system / "drivers"):
                    for file in [*visited.glob("*.ini"), *logs_of(visited)]:
                        file.unlink()
