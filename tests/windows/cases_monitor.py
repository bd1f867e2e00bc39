"""What reaches the monitor, and what the program makes of one that is silent, nameless or new."""

import re
import subprocess
import time

from casekit import codes_of, end_at_exit_box, open_page, started, writes_of
from rig import START_SECONDS, edid, time_of, wait_for

STANDARD = ("entry_Standard Mode", (1, 2))
CAD_CAM = ("entry_CAD/CAM Mode", (3, 4))


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
        wait_for(lambda: run.colours(window) > 500, "the painted window")
        assert not writes_of(run.requests()), run.requests()


def case_scene_by_mouse(rig):
    """A scene chosen with the mouse reaches the monitor as the vendor code and then the scene code, same value."""
    with started(rig, "scene_by_mouse") as run:
        run.start_and_show()
        for name, values in (STANDARD, CAD_CAM):
            seen = len(run.requests())
            run.click(name)
            wait_for(lambda: "22" in codes_of(writes_of(run.requests()[seen:])), "the write of the scene")
            writes = writes_of(run.requests()[seen:])
            value = int(writes[0].split()[2])
            assert value in values, writes
            assert writes == [f"W 99 {value}", f"W 22 {value}"], writes


def case_refused_write(rig):
    """A write refused twice leads to a new search, after which the next write arrives. The old handle was 0: also that
    one is used and given back."""
    with started(rig, "refused_write") as run:
        run.start_and_show()
        searches = len(run.logged("monitor counts:"))
        seen = len(run.requests())
        run.refuse("W 99")
        run.click(STANDARD[0])
        started_again = wait_for(lambda: run.logged("delayedSearchDevices: Reloader EDID Type:"), "the new search")
        assert started_again[0].rstrip().endswith(" 0"), started_again
        wait_for(lambda: run.logged("Reconnet device..."), "the reconnection")
        writes = writes_of(run.requests()[seen:])
        assert len(writes) == 2 and writes[0] == writes[1] and writes[0].endswith("refused"), writes
        assert len(run.logged("Write faile, errorCode: 03 99")) == 1
        assert len(run.logged("monitor counts:")) == searches + 1
        run.refuse()
        seen = len(run.requests())
        run.click(CAD_CAM[0])
        wait_for(lambda: "22" in codes_of(writes_of(run.requests()[seen:])), "the write after the search")
        assert run.handles() == ["opened 0", "closed 0", "opened 1"], run.handles()


def case_error_number(rig):
    """A block that is not answered leaves the system's error number in the log."""
    with started(rig, "error_number") as run:
        run.refuse("R 0A")
        run.start()
        lines = wait_for(lambda: run.logged("Fail to retry errorCode= "), "the failed request", START_SECONDS)
        assert lines[0].rstrip().endswith(f"Fail to retry errorCode= a {0xC0262583}"), lines


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


def case_monitor_arrival(rig):
    """A monitor that arrives is searched for one second later, once, without another full read."""
    with started(rig, "monitor_arrival") as run:
        run.start_and_show()
        reads = len(run.logged("ReadData from device begin"))
        run.announce("monitor")
        search = wait_for(lambda: run.logged("delayedSearchDevices: Reloader EDID Type:"), "the search")[0]
        delay = time_of(search) - time_of(run.logged("Device Arrival")[0])
        assert 0.99 <= delay < 3, f"searched after {delay:.3f} s"
        wait_for(lambda: run.logged("Reconnet device..."), "the reconnection")
        assert len(run.logged("ReadData from device begin")) == reads


def case_system_notices(rig):
    """What the system tells leads to reads of what is in sight, never to a write; where handles may be stale, to one
    search."""
    with started(rig, "system_notices") as run:
        run.start_and_show()
        assert run.session_registrations() == ["registered"]
        for notice, scene, searches in (("unlock", 13, 0), ("resume", 5, 1), ("displays", 10, 1)):
            time.sleep(2.5)  # what the monitor told a moment ago is not asked for again
            begin, found = len(run.requests()), len(run.logged("Reconnet device..."))
            run.set_by_hand({0x22: scene})
            for _ in range(3):
                run.announce(notice)
            asked = wait_for(lambda: f"R 22 -> {scene}" in (new := run.requests()[begin:]) and new, notice)
            if scene % 2 == 0:  # the custom half is in sight
                wait_for(lambda: f"R {scene:02X}" in " ".join(run.requests()[begin:]), "the block")
            time.sleep(1.5)
            assert not writes_of(run.requests()[begin:]), asked
            assert len(run.logged("Reconnet device...")) == found + searches, notice


def case_recording(rig):
    """What the program records while it is used, with values that are not told and writes that are not taken, another
    machine's simulated desk answers as the monitor itself wrote it down, byte for byte."""
    with started(rig, "recording") as run:
        run.start_and_show()

        def slide(value):
            x, y, width, height = run.place("Brightness_slider")
            run.click_at(x + width * value // 100, y + height // 2)

        def open_health():
            open_page(run, "Basic", "Tool Settings")
            run.click("Monitor Health")
            return run.settled()
        begin = open_health()
        run.click("record")
        run.settled()
        for refused, act, request in ((("R 12", "R FE"), lambda: run.click("readEverything"), "R 12 refused"),
                                      ((), lambda: run.click("tab_Scene"), ""),
                                      (("W 10",), lambda: slide(40), r"W 10 \d+ refused"),
                                      ((), lambda: slide(80), r"W 10 \d+$"),
                                      ((), lambda: run.click(STANDARD[0]), "W 22")):
            seen = len(run.requests())
            run.refuse(*refused)
            act()
            wait_for(lambda: re.search(request, "\n".join(run.requests()[seen:]), re.MULTILINE), request)
            run.settled()
        end = open_health()
        run.click("record")
        run.click("readEverything")
        wait_for(lambda: len(run.requests()) > end, "requests that are not recorded any more")
        run.settled()
        next(run.folder.glob("recording-*.jsonl")).rename(run.folder / "recording.jsonl")
        (run.folder / "bytes.txt").write_text("".join(line + "\n" for line in run.bytes_told()[begin:end]))
        replayed = subprocess.run([rig.suites / "tst_linkrecord", "recordingOfWindowsReplays"], text=True,
                                  env=rig.environment | {"QUORVEL_RECORDING": str(run.folder)}, capture_output=True)
        assert replayed.returncode == 0, replayed.stdout
