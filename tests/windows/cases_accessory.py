"""The LED-matrix accessory: found, written to, failing, unplugged and back."""

from casekit import open_page, started
from rig import put, wait_for

FIRST_MODE = 0x24
LIVE_STOP = bytes((0xE0, 0x01))
LAMP_OPEN = bytes((0xD0, 0x04, 0x01))
LAMP_CLOSE = bytes((0xD0, 0x04, 0x00))
REOPENED = ["close", "open", "nonblocking"]


def with_accessory(rig, name, state=""):
    run = started(rig, name)
    run.accessory = run.folder / "accessory"
    run.accessory.mkdir()
    put(run.accessory / "state.txt", state)
    return run


def set_state(run, state):
    """From now on the accessory is "" (plugged in and well), "absent", "failing", or gone at a write: "vanish 2"."""
    put(run.accessory / "state.txt", state)


def happened(run):
    file = run.accessory / "happened.txt"
    return file.read_text().splitlines() if file.exists() else []


def report(command):
    """A report as the accessory tells it: its number, the command with its data, and their checksum."""
    checksum = 0xFFFF
    for byte in command:
        checksum ^= byte
        for _ in range(8):
            checksum = checksum >> 1 ^ (0xA001 if checksum & 1 else 0)
    return (b"\x01" + command + checksum.to_bytes(2, "big")).hex(" ").upper()


def show_settings(run):
    run.start_and_show()
    open_page(run, "Night Loom", "System Settings")


def expect(run, seen, events):
    """Waits until that much happened to the accessory after what was seen, and that it is just that."""
    wait_for(lambda: len(happened(run)) >= seen + len(events), f"{events}, seen is {happened(run)[seen:]}")
    assert happened(run)[seen:] == events, happened(run)[seen:]


def expect_warning(run):
    run.answer("Warning")
    wait_for(lambda: not run.window("Warning"), "the warning to go")


def case_accessory_lamp(rig):
    """The accessory is found among other devices and opened at the start; the lamp's button opens it anew and writes."""
    with with_accessory(rig, "accessory_lamp") as run:
        show_settings(run)
        lines = [line for line in run.log() if "HID " in line]
        assert len(lines) == 2, lines
        assert lines[0].rstrip().endswith("HID device find") and "HID open OK" in lines[1], lines
        seen = REOPENED[1:]
        assert happened(run) == seen, happened(run)
        for name, lamp in (("Open", LAMP_OPEN), ("Close", LAMP_CLOSE)):
            run.click(f"Matrix Lamp_{name}")
            events = [*REOPENED, report(LIVE_STOP), report(lamp)]
            expect(run, len(seen), events)
            seen = seen + events


def case_accessory_absent(rig):
    """Without the accessory its buttons warn each time and write nothing; a failing one is only logged."""
    with with_accessory(rig, "accessory_absent", "absent") as run:
        show_settings(run)
        assert run.logged("HID device  not find") and not run.logged("HID open"), run.log()
        for _ in range(2):
            run.click("Matrix Lamp_Open")
            expect_warning(run)
        assert happened(run) == [], happened(run)
        set_state(run, "failing")
        run.click("Matrix Lamp_Open")
        expect(run, 0, [*REOPENED[1:], report(LIVE_STOP) + " failed", report(LAMP_OPEN) + " failed"])
        wait_for(lambda: len(run.logged("HID write error.")) == 2, "the log of the failures")
        assert not run.window("Warning")


def case_accessory_replugged(rig):
    """An accessory pulled out between two reports is missed at the next; its return is heard and it is opened again."""
    with with_accessory(rig, "accessory_replugged", "vanish 2") as run:
        show_settings(run)
        run.click("Matrix Lamp_Open")
        wait_for(lambda: run.logged("HID write error."), "the log of the failure")
        seen = [*REOPENED[1:], *REOPENED, report(LIVE_STOP), report(LAMP_OPEN) + " failed"]
        expect(run, 0, seen)
        run.click("Matrix Lamp_Close")
        expect_warning(run)
        seen = seen + ["close"]
        expect(run, 0, seen)
        run.announce("monitor")  # another device's arrival is none of the accessory's
        assert happened(run) == seen, happened(run)
        set_state(run, "")
        opened = len(run.logged("HID open OK"))
        run.announce("hid")
        wait_for(lambda: len(run.logged("HID open OK")) > opened, "the accessory to be opened")
        # Every window of the program hears of the arrival, but only one listens.
        expect(run, len(seen), REOPENED[1:])
        seen = happened(run)
        run.announce("accessory")  # the same device under its own class
        expect(run, len(seen), REOPENED)
        seen = happened(run)
        run.click("Matrix Lamp_Close")
        expect(run, len(seen), [*REOPENED, report(LIVE_STOP), report(LAMP_CLOSE)])


def upload_reports(mode, digits):
    """The announcement of an upload, and the file in chunks of 56 cells."""
    chunks = [digits[place:place + 56] for place in range(0, len(digits), 56)]
    reports = [report(bytes((0xC0, mode)))]
    for number, chunk in enumerate(chunks, 1):
        cells = bytes(0xFE if digit == ord("1") else 0 for digit in chunk)
        reports.append(report(bytes((0xC0, mode)) + len(chunks).to_bytes(2, "big") + number.to_bytes(2, "big") + cells))
    return reports


def case_upload(rig):
    """A drawn animation goes out cell by cell; pulling out the accessory ends an upload, which is logged."""
    with with_accessory(rig, "upload") as run:
        run.start_and_show()
        open_page(run, "Night Loom", "Custom Mode")
        x, y, width, height = run.place("LEDMatrixWidget")
        cells = [(x + width // 3, y + height // 8), (x + width // 2, y + height // 8), (x + width // 2, y + height - 4)]
        for cell in cells:  # the last one lies in the last row
            run.click_at(*cell)
        run.click("Save Animate")
        saved = run.folder / "LEDMatrixData.txt"
        wait_for(saved.exists, "the saved animation")
        digits = saved.read_bytes()
        assert len(digits) == 949 and digits.count(b"1") == len(cells), digits
        whole = upload_reports(FIRST_MODE, digits)
        run.click("Write Animate")
        seen = [*REOPENED[1:], *REOPENED, *whole]
        expect(run, 0, seen)
        set_state(run, "vanish 5")
        run.click("Write Animate")
        wait_for(lambda: run.logged("HID write error."), "the log of the failure")
        expect(run, len(seen), [*REOPENED, *whole[:4], whole[4] + " failed"])
