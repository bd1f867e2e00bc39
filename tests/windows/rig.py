"""What a case needs to run the program under Wine: a display of its own, a prefix, a simulated monitor, eyes and hands."""

import contextlib
import os
import pathlib
import re
import shutil
import subprocess
import time

TITLE = "QUORVEL"
EDID_KEY = (r"HKLM\SYSTEM\CurrentControlSet\Enum\DISPLAY\Default_Monitor\0000&0000\Device Parameters")
BOX_COLOURS = 40  # of its words and its sign
COMMAND_SECONDS = 60
SOUND_KEY = r"HKLM\Software\Classes\CLSID\{BCDE0395-E52F-467C-8E3D-C4579291692E}\InprocServer32"
START_SECONDS = 40
RUN_KEY = r"HKCU\Software\Microsoft\Windows\CurrentVersion\Run"


def wait_for(condition, what, seconds=15.0):
    """Polls until condition() gives something true and returns it; fails the case after that many seconds."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        found = condition()
        if found:
            return found
        time.sleep(0.05)
    raise AssertionError(f"waited {seconds:g} s in vain for {what}")


def windows_path(path):
    """How the programs see a place of this machine."""
    return "Z:" + str(path).replace("/", "\\")


def put(file, text):
    """Writes a file that a reader never meets half of."""
    new = file.with_suffix(".new")
    new.write_text(text)
    new.replace(file)


def edid(name):
    """A 128-byte EDID whose second descriptor holds the model name."""
    block = bytearray(128)
    block[0:8] = b"\x00\xff\xff\xff\xff\xff\xff\x00"
    descriptor = b"\x00\x00\x00\xfc\x00" + name.encode("latin-1").ljust(13, b" ")
    block[72:90] = descriptor
    block[127] = -sum(block) & 0xFF
    return bytes(block)


class Rig:
    """The display, the window manager and the Wine prefix that all cases share."""

    def __init__(self, program, standins, work, suites):
        self.work = pathlib.Path(work).resolve()
        self.suites = pathlib.Path(suites).resolve()
        self.standins = pathlib.Path(standins).resolve()
        self.program = self.work / "program"
        shutil.rmtree(self.program, ignore_errors=True)
        shutil.copytree(program, self.program)
        for library in ("dxva2.dll", "libhidapi.dll", "wtsapi32.dll"):
            shutil.copy(self.standins / library, self.program)
        self.environment = {name: value for name, value in os.environ.items() if not name.startswith(("QT_", "QUORVEL_"))}
        self.environment.update(
            WINEPREFIX=str(self.work / "prefix"), WINEARCH="win64", WINEDEBUG="-all",
            WINEDLLOVERRIDES="dxva2,wtsapi32=n,b;mscoree,mshtml=", LC_ALL="en_US.UTF-8")
        self._servers = []

    def __enter__(self):
        try:
            self._start_display()
            self.run(["wineboot", "-i"], seconds=180)
            self._put_sound_endpoint()
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *_):
        with contextlib.suppress(subprocess.SubprocessError):
            self.run(["wineserver", "-k"])
        for server in reversed(self._servers):
            server.terminate()
            server.wait(10)

    def run(self, command, seconds=COMMAND_SECONDS, check=False):
        """Runs a command in the rig's environment and returns its output."""
        result = subprocess.run(command, env=self.environment, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                                stderr=subprocess.DEVNULL, timeout=seconds, check=check, text=True)
        return result.stdout.strip()

    def start(self, command, **options):
        return subprocess.Popen(command, env=self.environment | options.pop("extra", {}), stdin=subprocess.DEVNULL,
                                stdout=subprocess.DEVNULL, **{"stderr": subprocess.DEVNULL} | options)

    def put_edid(self, block):
        """Stores the EDID of the one display where Windows keeps it; None takes it away."""
        change = ["add", EDID_KEY, "/v", "EDID", "/t", "REG_BINARY", "/d", block.hex()] if block else \
            ["delete", EDID_KEY, "/v", "EDID"]
        self.run(["wine", "reg", *change, "/f"], check=block is not None)

    def started_with_windows(self):
        """The command that starts the program when the user logs on; None when it is not in that list."""
        found = re.search(r"QUORVEL\s+REG_SZ\s+(.+)", self.run(["wine", "reg", "query", RUN_KEY, "/v", "QUORVEL"]))
        return found and found[1].strip()

    def forget_start(self):
        self.run(["wine", "reg", "delete", RUN_KEY, "/v", "QUORVEL", "/f"])

    def copies(self):
        """The process numbers of all running copies of the program, as Windows counts them."""
        return re.findall(r"(\w+) +\d+ .*'quorvel\.exe'", self.run(["wine", "winedbg", "--command", "info proc"]))

    def end_copies(self):
        """Ends every copy that still runs, also one that was not started by the case itself, and waits until it is
        gone: the next start would take its window for its own."""
        self.run(["wine", "taskkill", "/f", "/im", "quorvel.exe"])
        wait_for(lambda: not self.copies() and not self.windows(TITLE), "the copies to end")

    def windows(self, title):
        """The numbers of the visible windows of that title."""
        return self.run(["xdotool", "search", "--onlyvisible", "--name", f"^{title}$"]).split()

    def screenshot(self, path):
        self.run(["import", "-window", "root", str(path)])

    def _put_sound_endpoint(self):
        """Puts the stand-in into the place of the system's class of sound devices."""
        library = windows_path(self.standins / "soundendpoint.dll")
        self.run(["wine", "reg", "add", SOUND_KEY, "/ve", "/d", library, "/f"], check=True)

    def _start_display(self):
        read_end, write_end = os.pipe()
        self._servers.append(self.start(
            ["Xvfb", "-displayfd", str(write_end), "-screen", "0", "1600x1000x24", "-nolisten", "tcp"],
            pass_fds=[write_end]))
        os.close(write_end)
        with os.fdopen(read_end) as numbers:  # one free display number, once the server is ready
            self.environment["DISPLAY"] = ":" + numbers.readline().strip()
        self._servers.append(self.start(["openbox"]))


class Run:
    """One start of the program in an empty working folder, with a monitor of its own."""

    def __init__(self, rig, name, registers=None, block=None):
        self.rig = rig
        self.folder = rig.work / "cases" / name
        shutil.rmtree(self.folder, ignore_errors=True)
        self.monitor = self.folder / "monitor"
        self.monitor.mkdir(parents=True)
        (self.monitor / "registers.txt").write_text(
            "".join(f"{code:02x} {value}\n" for code, value in (registers or {}).items()))
        (self.monitor / "block.txt").write_text(" ".join(map(str, block or [])))
        self.accessory = None
        self.sound = None
        self.processes = []

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.rig.screenshot(self.folder / "screen.png")
        for process in self.processes:
            process.kill()
            process.wait(10)
        wait_for(lambda: not self.rig.windows(TITLE), "the program's windows to go")

    def start(self):
        """Starts the program here and returns the process."""
        return self.start_other(self.rig.program / "quorvel.exe")

    def start_other(self, program, *arguments, extra={}, **options):
        """Starts any Windows program here, to end with the case at the latest, and returns the process. Options are
        those of a process, extra variables of its environment."""
        places = {"QUORVEL_TEST_MONITOR": self.monitor, "QUORVEL_TEST_ACCESSORY": self.accessory,
                  "QUORVEL_TEST_SOUND": self.sound}
        process = self.rig.start(["wine", str(program), *arguments], **{"cwd": self.folder} | options,
                                 extra={name: f"Z:{place}" for name, place in places.items() if place} | extra)
        self.processes.append(process)
        return process

    def announce(self, device_class):
        """Tells the program's windows that a device has arrived, a "monitor" or a "hid", that the "session" ends or its "unlock", the
        "resume" of the computer, or that the "displays" changed."""
        sent = self.rig.run(["wine", str(self.rig.standins / "windowprobe.exe"), TITLE, device_class], check=True)
        assert int(sent) >= 1, sent

    def start_and_show(self, process=None):
        """Starts the program, unless it was started, waits for its window and returns the window's position on the
        screen."""
        process = process or self.start()

        def window():
            assert process.poll() is None, f"the program ended with {process.returncode}"
            return self.window(at_least=800)  # the progress of the first read bears the same title
        return wait_for(window, "the window", START_SECONDS)

    def window(self, title=TITLE, at_least=100):
        """(x, y, width, height) of the visible window of that title, if it is that wide; or None."""
        for number in self.rig.windows(title):
            shape = dict(line.split("=") for line in
                         self.rig.run(["xdotool", "getwindowgeometry", "--shell", number]).splitlines())
            if int(shape.get("WIDTH", 0)) >= at_least:
                return tuple(int(shape[key]) for key in ("X", "Y", "WIDTH", "HEIGHT"))
        return None

    def active_title(self):
        """The title of the window that has the keyboard; unlike a search, in any script."""
        return self.rig.run(["xdotool", "getactivewindow", "getwindowname"])

    def colours(self, window):
        """How many colours the window's part of the screen has: one that is not painted yet has few."""
        x, y, width, height = window
        picture = self.folder / "shown.png"
        self.rig.screenshot(picture)
        return int(self.rig.run(["convert", str(picture), "-crop", f"{width}x{height}+{x}+{y}", "-format", "%k", "info:"]))

    def answer(self, title, seconds=15.0):
        """Waits for the box of that title, painted and with the keyboard, keeps its picture and takes its usual answer."""
        def is_ready():
            box = self.window(title)
            return box and self.active_title() == title and self.colours(box) > BOX_COLOURS
        wait_for(is_ready, f"the box {title}", seconds)
        self.rig.screenshot(self.folder / "box.png")
        self.press("Return")

    def seen(self, name):
        """(x, y, width, height) on the screen of what can be seen of the control of that name; empty for nothing."""
        answer = self.monitor / "place.txt"
        answer.unlink(missing_ok=True)
        put(self.monitor / "where.txt", name)
        wait_for(answer.exists, f"the place of {name}")
        return tuple(map(int, answer.read_text().split()))

    def place(self, name):
        """The same, once there is something to be seen of it and it stays where it is."""
        def still():
            found = self.seen(name)
            return found == self.seen(name) and found
        return wait_for(still, f"{name} to be seen")

    def click(self, name):
        """Presses the left mouse button in the middle of a control."""
        x, y, width, height = self.place(name)
        self.click_at(x + width // 2, y + height // 2)

    def click_at(self, x, y):
        self.rig.run(["xdotool", "mousemove", str(x), str(y), "sleep", "0.2", "click", "1"])

    def press(self, key):
        self.rig.run(["xdotool", "key", key])

    def requests(self):
        """What reached the monitor so far, a request each."""
        return self._written("requests.txt")

    def set_by_hand(self, registers):
        """Somebody presses the monitor's own buttons."""
        put(self.monitor / "buttons.txt", "".join(f"{code:02x} {value}\n" for code, value in registers.items()))

    def bytes_told(self):
        """The same with all that was told, as the monitor itself writes it down."""
        return self._written("bytes.txt")

    def settled(self):
        """Waits until the program has asked nothing for a while; returns how many requests there were."""
        asked = None
        while asked != (asked := len(self.requests())):
            time.sleep(1.5)
        return asked

    def session_registrations(self):
        return self._written("sessions.txt")

    def handles(self):
        """Which handles of the monitor were opened and closed so far."""
        return self._written("handles.txt")

    def _written(self, name):
        file = self.monitor / name
        return file.read_text().splitlines() if file.exists() else []

    def times(self):
        """When each of them came, in milliseconds of the clock of the day."""
        return [int(line) for line in (self.monitor / "times.txt").read_text().splitlines()]

    def refuse(self, *requests):
        """From now on the monitor does not take these requests, such as "W 99"."""
        put(self.monitor / "refuse.txt", "".join(request + "\n" for request in requests))

    def log(self):
        """The lines of the day's log so far."""
        return [line for file in sorted(self.folder.glob("QUORVEL_*.log"))
                for line in file.read_bytes().decode("utf-8", "replace").split("\r\n") if line]

    def logged(self, text):
        return [line for line in self.log() if text in line]


def time_of(line):
    """The second of the day, with its fraction, at which a log line was written."""
    hours, minutes, seconds = re.search(r"\t\d{4}-\d\d-\d\d (\d\d):(\d\d):(\d\d\.\d{3}) \t", line).groups()
    return int(hours) * 3600 + int(minutes) * 60 + float(seconds)
