#!/usr/bin/env python3
"""Runs the unmodified Windows program under Wine and looks at what reached the simulated monitor, the log, the screen
and the exit code. One function a case; the last line says how many passed."""

import argparse
import shutil
import subprocess
import sys
import time
import traceback

from rig import START_SECONDS, Rig, Run, edid, time_of, wait_for

MOVIE_CUSTOM = 10
STANDARD = (1, 2)
CAD_CAM = (3, 4)
REGISTERS = {0x22: MOVIE_CUSTOM, 0xED: 0, 0xEE: 0x0102, 0xF6: 1, 0xF7: 0}
BLOCK = [62, 50, 4, 0, 2, 50, 9, 50, 50, 50, 70, 55, 64, 50, 50, 50] + [50] * 12 + \
    [0, 3, 1, 1, 0, 0, 4, 0, 3, 0, 0, 0]
EXIT_REFUSED = 255  # -1, as the shell sees it

# Places in the window: the entries of the left bar lie below the top bar.
LEFT_BAR_X = 116
FIRST_ENTRY_Y = 112
CLOSE_BUTTON_X = 1243
TOP_BAR_Y = 36
BASIC_TAB_X = 1100
SERVICE_SETTINGS = 3
TOOL_SETTINGS = 4
PAGE_LIST_X = 380
PAGE_LIST_Y = 136
RUN_ON_STARTUP = {"Yes": (710, 189), "No": (796, 189)}
LANGUAGES = {"en": (796, 243), "ja_JP": (968, 243)}
UPGRADE_BUTTON = (620, 245)  # whether the note above it takes one line or two


def entry_y(index):
    return FIRST_ENTRY_Y + 48 * index


def open_basic_page(run, window, index):
    run.click(window, BASIC_TAB_X, TOP_BAR_Y)
    run.click(window, LEFT_BAR_X, entry_y(index))


def codes_of(requests):
    return [request.split()[1] for request in requests]


def writes_of(requests):
    return [request for request in requests if request.startswith("W")]


def colours_of(run, window):
    """How many colours the window's part of the screen has: a bare one has few."""
    x, y, width, height = window
    picture = run.folder / "shown.png"
    run.rig.screenshot(picture)
    return int(run.rig.run(["convert", str(picture), "-crop", f"{width}x{height}+{x}+{y}", "-format", "%k", "info:"]))


def started(rig, name, **set_up):
    return Run(rig, name, **{"registers": REGISTERS, "block": BLOCK} | set_up)


def case_first_read(rig):
    """The first read goes out in its order, the vendor code before each; showing it writes nothing back."""
    with started(rig, "first_read") as run:
        window = run.start_and_show()
        block = ["99", "22", "0A"] + ["FE"] * 10  # 40 bytes by four, and one more request that closes the stream
        expected = ["99", "22", "99", "F6", "99", "F7", "99", "EA", *block]
        for code in ("EC", "ED", "EE", "EF", "F1", "F2", "3B", "F8", "F9"):
            expected += ["99", code]
        requests = run.requests()
        assert codes_of(requests)[:len(expected)] == expected, requests
        assert not [request for request in requests if "refused" in request], requests
        assert window[2:] == (1280, 800), f"the window is {window[2]} x {window[3]}"
        wait_for(lambda: colours_of(run, window) > 500, "the painted window")
        assert not writes_of(run.requests()), run.requests()


def case_scene_by_mouse(rig):
    """A scene chosen with the mouse reaches the monitor as the vendor code and then the scene code, same value."""
    with started(rig, "scene_by_mouse") as run:
        window = run.start_and_show()
        for index, values in enumerate((STANDARD, CAD_CAM)):
            seen = len(run.requests())
            run.click(window, LEFT_BAR_X, entry_y(index))
            wait_for(lambda: "22" in codes_of(writes_of(run.requests()[seen:])), "the write of the scene")
            writes = writes_of(run.requests()[seen:])
            value = int(writes[0].split()[2])
            assert value in values, writes
            assert writes == [f"W 99 {value}", f"W 22 {value}"], writes


def case_refused_write(rig):
    """A write refused twice leads to a new search, after which the next write arrives."""
    with started(rig, "refused_write") as run:
        window = run.start_and_show()
        searches = len(run.logged("monitor counts:"))
        seen = len(run.requests())
        run.refuse("W 99")
        run.click(window, LEFT_BAR_X, entry_y(0))
        started_again = wait_for(lambda: run.logged("delayedSearchDevices: Reloader EDID Type:"), "the new search")
        assert started_again[0].rstrip().endswith(" 0"), started_again
        wait_for(lambda: run.logged("Reconnet device..."), "the reconnection")
        writes = writes_of(run.requests()[seen:])
        assert len(writes) == 2 and writes[0] == writes[1] and writes[0].endswith("refused"), writes
        assert len(run.logged("Write faile, errorCode: 03 99")) == 1
        assert len(run.logged("monitor counts:")) == searches + 1
        run.refuse()
        seen = len(run.requests())
        run.click(window, LEFT_BAR_X, entry_y(1))
        wait_for(lambda: "22" in codes_of(writes_of(run.requests()[seen:])), "the write after the search")


def case_edid_names(rig):
    """The label's model comes from the registry: the name descriptor, else the maker's letters and the product code."""
    unnamed = bytearray(edid("x"))
    unnamed[72:90] = bytes(18)
    unnamed[8:12] = bytes((0x43, 0x04, 0xF3, 0x01))
    for name, block, model in (("edid_named", edid("WIRE TEST 27"), "WIRE TEST 27"),
                               ("edid_unnamed", bytes(unnamed), "ABC-01F3")):
        rig.put_edid(block)
        with started(rig, name) as run:
            run.start_and_show()
            lines = run.logged("hMonitor")
            assert lines and model in lines[0] and "DISPLAY1" in lines[0], lines


def case_no_edid(rig):
    """A display without a readable EDID is no monitor: the program says so and ends with 0."""
    rig.put_edid(None)
    with started(rig, "no_edid") as run:
        process = run.start()
        end_at_exit_box(run, process)
        assert run.logged("EDID read error."), run.log()
        assert run.requests() == [], run.requests()


def case_silent_monitor(rig):
    """A monitor that never tells its scene is asked in five passes of two tries; then the program ends with 0."""
    with started(rig, "silent_monitor") as run:
        run.refuse("R 22")
        process = run.start()
        end_at_exit_box(run, process)
        assert len(run.logged("Connet device Count=")) == 5
        assert run.requests().count("R 22 refused") == 5 * 2 * 5, len(run.requests())
        assert "DeviceIndex=0" in (run.folder / "config.ini").read_text()


def end_at_exit_box(run, process):
    wait_for(lambda: run.window("Exit"), "the exit box", 60)
    run.rig.screenshot(run.folder / "box.png")
    run.press("Return")
    assert process.wait(15) == 0, process.returncode
    assert run.logged("DDC/CI erorr, App exit!"), run.log()


def case_second_instance(rig):
    """A second instance says that one is running and ends with -1; the first one goes on undisturbed."""
    with started(rig, "second_instance") as run:
        run.start_and_show()
        seen = run.requests()
        second = run.start()
        wait_for(lambda: run.window("Information"), "the box of the second instance")
        rig.screenshot(run.folder / "box.png")
        run.press("Return")
        assert second.wait(15) == EXIT_REFUSED, second.returncode
        assert run.processes[0].poll() is None
        assert run.requests() == seen, run.requests()[len(seen):]


def case_monitor_arrival(rig):
    """A monitor that arrives is searched for one second later, once, without another full read."""
    with started(rig, "monitor_arrival") as run:
        run.start_and_show()
        reads = len(run.logged("ReadData from device begin"))
        sent = int(rig.run(["wine", str(rig.standins / "windowprobe.exe"), "QUORVEL"], check=True))
        assert sent >= 1
        search = wait_for(lambda: run.logged("delayedSearchDevices: Reloader EDID Type:"), "the search")[0]
        delay = time_of(search) - time_of(run.logged("Device Arrival")[0])
        assert 0.99 <= delay < 3, f"searched after {delay:.3f} s"
        wait_for(lambda: run.logged("Reconnet device..."), "the reconnection")
        assert len(run.logged("ReadData from device begin")) == reads


def case_closed_window(rig):
    """Closing the window only hides it: the program lives on and still searches for a monitor that arrives."""
    with started(rig, "closed_window") as run:
        window = run.start_and_show()
        run.click(window, CLOSE_BUTTON_X, TOP_BAR_Y)
        wait_for(lambda: not run.window(at_least=800), "the window to hide")
        rig.run(["wine", str(rig.standins / "windowprobe.exe"), "QUORVEL"], check=True)
        wait_for(lambda: run.logged("delayedSearchDevices: Reloader EDID Type:"), "the search")
        assert run.processes[0].poll() is None


def case_run_key(rig):
    """"Run on startup" writes the program's own place into the list of what Windows starts, and takes it out again."""
    rig.forget_start()
    try:
        with started(rig, "run_key") as run:
            window = run.start_and_show()
            open_basic_page(run, window, TOOL_SETTINGS)
            assert rig.started_with_windows() is None
            run.click(window, *RUN_ON_STARTUP["Yes"])
            command = wait_for(rig.started_with_windows, "the value QUORVEL")
            assert command == "Z:" + str(rig.program / "quorvel.exe").replace("/", "\\"), command
            run.click(window, *RUN_ON_STARTUP["No"])
            wait_for(lambda: rig.started_with_windows() is None, "the value to go")
    finally:
        rig.forget_start()  # or the next session of this prefix would begin with the program


def choose_language(run, window, code, question):
    """Presses the language's button in the tool settings and answers the question, whose title is given, with yes."""
    open_basic_page(run, window, TOOL_SETTINGS)
    run.click(window, *LANGUAGES[code])
    wait_for(lambda: run.active_title() == question, "the question")
    run.press("Return")


def case_restart(rig):
    """Another language ends the program with 0, and a new copy runs in its place, alone and in that language."""
    try:
        with started(rig, "restart") as run:
            window = run.start_and_show()
            first = rig.copies()
            choose_language(run, window, "ja_JP", "Language")
            assert run.processes[0].wait(15) == 0, run.processes[0].returncode
            window = wait_for(lambda: run.window(at_least=800), "the window of the new copy", START_SECONDS)
            second = rig.copies()
            assert len(first) == len(second) == 1 and first != second, (first, second)
            assert "Language=ja_JP" in (run.folder / "config.ini").read_text().split()
            assert len(run.logged("ReadData from device begin")) == 2, run.log()
            # A copy that finds no monitor ends of itself: so the last one does.
            rig.put_edid(None)
            choose_language(run, window, "en", "言語")
            wait_for(lambda: run.window("Exit"), "the exit box of the last copy", START_SECONDS)
            last = rig.copies()
            assert len(last) == 1 and last != second, (second, last)
            run.press("Return")
            wait_for(lambda: not rig.copies(), "the last copy to end")
    finally:
        rig.run(["wine", "taskkill", "/f", "/im", "quorvel.exe"])  # a copy that a failed case left behind


def case_upgrader(rig):
    """The upgrade program, beside the program or in the working folder, is told the product line and the language."""
    for name, line, stored, entry, beside, expected in (
            ("upgrader_line_1", 1, None, 3, True, ["XB", "en_US"]),
            ("upgrader_line_2", 2, "ja_JP", 2, False, ["PW", "ja_JP"]),
            ("upgrader_line_3", 3, "zh_CN", 2, False, ["EXP", "zh"])):
        with started(rig, name, registers=REGISTERS | {0xED: line << 4}) as run:
            if stored:
                (run.folder / "config.ini").write_text(f"[General]\nLanguage={stored}\n")
            upgrader = (rig.program if beside else run.folder) / "Flasqon.exe"
            shutil.copy(rig.standins / "Flasqon.exe", upgrader)
            try:
                window = run.start_and_show()
                open_basic_page(run, window, SERVICE_SETTINGS)
                run.click(window, PAGE_LIST_X, PAGE_LIST_Y + 48 * entry)
                run.click(window, *UPGRADE_BUTTON)
                told = run.folder / "flasqon.txt"
                wait_for(told.exists, "the upgrade program")
                assert told.read_text().split("\n") == [*expected, ""], told.read_text()
            finally:
                upgrader.unlink()


CASES = [value for name, value in list(globals().items()) if name.startswith("case_")]


def run_case(rig, case):
    begin = time.monotonic()
    try:
        rig.put_edid(edid("QRV SIM 27"))
        case(rig)
        passed = True
    except (AssertionError, OSError, ValueError, IndexError, subprocess.SubprocessError):
        traceback.print_exc()
        passed = False
    print(f"{'PASS' if passed else 'FAIL'}  {case.__name__[5:]}  ({time.monotonic() - begin:.1f} s)", flush=True)
    return passed


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--program", required=True, help="folder of quorvel.exe and its libraries")
    parser.add_argument("--standins", required=True, help="folder of dxva2.dll, windowprobe.exe and Flasqon.exe")
    parser.add_argument("--work", required=True, help="where the Wine prefix and the cases' folders are made")
    parser.add_argument("names", nargs="*", help="cases to run, all when none is named")
    arguments = parser.parse_args()
    chosen = [case for case in CASES if not arguments.names or case.__name__[5:] in arguments.names]
    with Rig(arguments.program, arguments.standins, arguments.work) as rig:
        passed = sum(run_case(rig, case) for case in chosen)
    print(f"{passed} passed, {len(chosen) - passed} failed")
    return 0 if chosen and passed == len(chosen) else 1


if __name__ == "__main__":
    sys.exit(main())
