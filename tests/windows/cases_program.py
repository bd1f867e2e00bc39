"""The program among other programs: its copies, its start with Windows, its window, the upgrade program."""

import shutil
import time

from casekit import BLOCK, REGISTERS, open_page, press_icon, started, writes_of
from rig import START_SECONDS, wait_for, windows_path

EXIT_REFUSED = 255  # -1, as the shell sees it
LANGUAGES = {"en": "Tool language settings_English", "ja_JP": "Tool language settings_日本語"}


def case_second_instance(rig):
    """A second instance says that one is running and ends with -1; the first one goes on undisturbed. So it does when
    it may not even open the name that the first one holds."""
    with started(rig, "second_instance") as run:
        run.start_and_show()
        seen = run.requests()
        expect_refusal(run)
        assert run.processes[0].poll() is None
        assert not writes_of(run.requests()[len(seen):])  # coming back to the front, the first one only asks
    with started(rig, "closed_name") as run:
        run.start_other(rig.standins / "keyholder.exe", "QUORVEL")
        wait_for((run.folder / "held.txt").exists, "the name to be held")
        expect_refusal(run)


def expect_refusal(run):
    second = run.start()
    run.answer("Information", START_SECONDS)
    assert second.wait(15) == EXIT_REFUSED, second.returncode


def case_tray_panel(rig):
    """Closing the window only hides it: a monitor that arrives is still searched for. A press on the tray's icon opens
    the panel, wholly on the screen; fifty notches of the wheel in a second end with the last value in at most twelve
    writes; Escape closes it, and a double press shows the window."""
    with started(rig, "tray_panel", registers=REGISTERS | {0x10: BLOCK[0]}) as run:
        run.start_and_show()
        run.click("windowClose")
        wait_for(lambda: not run.window(), "the window to hide")
        run.announce("monitor")
        wait_for(lambda: run.logged("Reconnet device..."), "the reconnection")
        press_icon(rig)
        panel = x, y, width, height = wait_for(run.window, "the panel")
        assert width == 368 and x >= 0 and y >= 0 and x + width <= 1600 and y + height <= 1000, panel
        begin = run.settled()
        run.click("panelHint")  # Wine's tray, a window itself, has the keyboard
        x, y, width, height = run.place("Brightness_slider")
        rig.run(["xdotool", "mousemove", str(x + width // 2), str(y + height // 2)])
        wheel = time.monotonic()
        rig.run(["xdotool", "click", "--repeat", "50", "--delay", "20", "5"])
        wheel = time.monotonic() - wheel
        run.settled()
        steps = [write for write in writes_of(run.requests()[begin:]) if write.startswith("W 10")]
        print(f"{len(steps)} writes for 50 notches in {wheel:.2f} s")
        assert steps[-1] == f"W 10 {BLOCK[0] - 50}" and len(steps) <= 2 + wheel / 0.12, steps
        run.press("Escape")
        wait_for(lambda: not run.window(), "the panel to close")
        press_icon(rig, 2)
        wait_for(lambda: run.window(at_least=800), "the window")


def case_log_off(rig):
    """Logging off ends the program at once, from the tray and under an open question, which then counts as "No"."""
    for question in (False, True):
        with started(rig, "log_off") as run:
            run.start_and_show()
            if question:
                open_page(run, "Basic", "Tool Settings")
                run.click(LANGUAGES["ja_JP"])
                wait_for(lambda: run.active_title() == "Language", "the question")
            else:
                run.click("windowClose")
                wait_for(lambda: not run.window(at_least=800), "the window to hide")
            run.announce("session")
            assert run.processes[0].wait(3) == 0, run.processes[0].returncode
            assert not rig.copies() and not (run.folder / "config.ini").read_text().count("Language")


def case_run_key(rig):
    """"Run on startup" writes the program's own place into the list of what Windows starts, and takes it out again."""
    rig.forget_start()
    try:
        with started(rig, "run_key") as run:
            run.start_and_show()
            open_page(run, "Basic", "Tool Settings")
            assert rig.started_with_windows() is None
            run.click("Run on startup_Yes")
            command = wait_for(rig.started_with_windows, "the value QUORVEL")
            assert command == windows_path(rig.program / "quorvel.exe"), command
            run.click("Run on startup_No")
            wait_for(lambda: rig.started_with_windows() is None, "the value to go")
    finally:
        rig.forget_start()  # or the next session of this prefix would begin with the program


def choose_language(run, code, question):
    """Presses the language's button in the tool settings and answers the question, whose title is given, with yes.
    Returns when that was, in seconds of the clock of the day."""
    open_page(run, "Basic", "Tool Settings")
    run.click(LANGUAGES[code])
    wait_for(lambda: run.active_title() == question, "the question")
    answered = time.time()
    run.press("Return")
    return answered


def case_restart(rig):
    """Another language ends the program with 0, and a new copy runs in its place, alone and in that language. The name
    is free in time for it."""
    try:
        with started(rig, "restart") as run:
            run.start_and_show()
            first = rig.copies()
            run.start_other(rig.standins / "keyholder.exe", "free", "QUORVEL")
            chosen = choose_language(run, "ja_JP", "Language")
            assert run.processes[0].wait(15) == 0, run.processes[0].returncode
            free = run.folder / "held.txt"
            wait_for(free.exists, "the name to be free")
            free_after = free.stat().st_mtime - chosen
            print(f"the name was free after {1000 * free_after:.0f} ms")
            assert 0 < free_after < 0.8, free_after
            wait_for(lambda: run.window(at_least=800), "the window of the new copy", START_SECONDS)
            second = rig.copies()
            assert len(first) == len(second) == 1 and first != second, (first, second)
            assert "Language=ja_JP" in (run.folder / "config.ini").read_text().split()
            assert len(run.logged("ReadData from device begin")) == 2, run.log()
            # A copy that finds no monitor ends of itself: so the last one does.
            rig.put_edid(None)
            choose_language(run, "en", "言語")
            wait_for(lambda: run.window("Exit"), "the exit box of the last copy", START_SECONDS)
            last = rig.copies()
            assert len(last) == 1 and last != second, (second, last)
            run.answer("Exit")
            wait_for(lambda: not rig.copies(), "the last copy to end")
    finally:
        rig.end_copies()  # a copy that a failed case left behind


def case_upgrader(rig):
    """The upgrade program is told the product line and the language; one beside the program goes before one in the
    working folder."""
    for name, line, stored, places, expected in (
            ("upgrader_line_1", 1, None, "both", ["XB", "en"]),
            ("upgrader_line_2", 2, "ja_JP", "here", ["PW", "ja_JP"]),
            ("upgrader_line_3", 3, "zh_CN", "beside", ["EXP", "zh"])):
        with started(rig, name, registers=REGISTERS | {0xED: line << 4}) as run:
            if stored:
                (run.folder / "config.ini").write_text(f"[General]\nLanguage={stored}\n")
            folders = {"here": [run.folder], "beside": [rig.program], "both": [rig.program, run.folder]}[places]
            for folder in folders:
                shutil.copy(rig.standins / "Flasqon.exe", folder)
            try:
                run.start_and_show()
                open_page(run, "Basic", "Service Settings")
                run.click("Upgrade")
                run.click("upgrade")
                told = run.folder / "flasqon.txt"
                wait_for(told.exists, "the upgrade program")
                lines = told.read_text().splitlines()
                assert lines == [windows_path(folders[0]), *expected], lines
            finally:
                (rig.program / "Flasqon.exe").unlink(missing_ok=True)
