"""Hot keys and scenario following: real key presses, other programs with keys of their own, programs in front."""

import contextlib
import shutil
import time

from casekit import REGISTERS, open_page, press_icon, started, writes_of
from rig import START_SECONDS, wait_for, windows_path

PROBLEM_COLOUR = "#da676d"
SCREEN = "1600x1000"  # the rig's display
BRIGHTNESS = 0x10
CARE_DUE, CARE_MODE, CAPABILITIES = 0x08, 0x0A, 0xED
BY_HAND = 1
OLED_PANEL = 4
REMINDER_LOOK = 11  # s
GAME_FUNCTIONS = 1 << 10
LIGHT_MODE, LIGHT_SOURCE, ALL_TONE, LEFT_TONE, RIGHT_TONE = 0x75, 0x83, 0x86, 0x88, 0x89
GLOBAL_RHYTHM, ZONE_RHYTHM = 3, 4
FROM_SCREEN = 1
KEYS = "[basicMode]\nswitchStatus=on\n\n[12]\nswitchStatus=on\nplusKey=Ctrl+B\nsubKey=Ctrl+Alt+D\n"
MOD_CONTROL = "2"

STANDARD_MODE = 1
MOVIE_MODE = 9
MOVIE_INDEX = 4
FOLLOWED = "".join(f"[{name}]\nappPath=C:/Programs/{name}\nappScence={MOVIE_INDEX}\n"
                   for name in ("Painter.exe", "Writer.exe"))


def with_keys(rig, name):
    run = started(rig, name, registers=REGISTERS | {BRIGHTNESS: 50})
    (run.folder / "basicMode.ini").write_text(KEYS)
    return run


def step(before, after):
    """What one press of a key for the brightness makes of it, on the wire."""
    return ["R 99 -> 0", f"R 10 -> {before}", f"W 99 {after}", f"W 10 {after}"]


def problem_dots(run, window):
    """How many dots of the window's part of the screen have the colour of a row's problem."""
    x, y, width, height = window
    picture = run.folder / "shown.png"
    run.rig.screenshot(picture)
    share = run.rig.run(["convert", str(picture), "-crop", f"{width}x{height}+{x}+{y}", "-fuzz", "3%",
                         "-fill", "black", "+opaque", PROBLEM_COLOUR, "-fill", "white", "-opaque", PROBLEM_COLOUR,
                         "-format", "%[fx:mean*w*h]", "info:"])
    return float(share)


def in_front(run, name, *colours):
    """Starts a program of that name that comes to the front when it is told to; with colours its window fills the
    screen. Returns its process."""
    program = run.folder / f"{name}.exe"
    shutil.copy(run.rig.standins / "frontprobe.exe", program)
    process = run.start_other(program, *colours)
    wait_for(lambda: (run.folder / f"{name}.came").exists(), f"the program {name}")
    wait_for(lambda: run.window(rf"{name}\.exe"), f"the window of {name}")
    return process


def is_front(run, name):
    """Whether Windows itself takes the program for the one in front: the display knows it earlier."""
    told = run.folder / f"{name}.front"
    return told.exists() and told.read_text().split()[-1:] == ["1"]


def come(run, name):
    """Has the program come to the front; returns when it did, in milliseconds of the clock of the day."""
    came = run.folder / f"{name}.came"
    times = len(came.read_text().splitlines())
    (run.folder / f"{name}.come").touch()
    return int(wait_for(lambda: came.read_text().splitlines()[times:], f"{name} in front")[0])


def case_hot_key(rig):
    """A key pressed while another program has the keyboard steps the brightness; twice within 200 ms counts once."""
    with with_keys(rig, "hot_key") as run:
        run.start_and_show()
        in_front(run, "Painter")
        wait_for(lambda: run.active_title() == "Painter.exe", "the keyboard of the other program")
        seen = len(run.requests())
        rig.run(["xdotool", "key", "ctrl+b", "sleep", "0.05", "key", "ctrl+b"])
        once = step(50, 60)
        wait_for(lambda: run.requests()[seen:][-1:] == once[-1:], "the brighter value")
        time.sleep(0.3)  # the rest after a key, and what the second press would do if it counted
        assert run.requests()[seen:] == once, run.requests()[seen:]
        run.press("ctrl+alt+d")
        wait_for(lambda: run.requests()[seen + len(once):][3:], "the darker value")
        assert run.requests()[seen:] == once + step(60, 50), run.requests()[seen:]


def case_taken_key(rig):
    """A key that another program holds is shown at its row and does nothing; once it is free, "Apply" takes it."""
    with with_keys(rig, "taken_key") as run:
        holder = run.start_other(rig.standins / "keyholder.exe", MOD_CONTROL, str(ord("B")))
        held = run.folder / "held.txt"
        wait_for(held.exists, "the other program's key")
        window = run.start_and_show()
        open_page(run, "Basic", "Shortcut Key")
        wait_for(lambda: problem_dots(run, window) > 50, "the problem at the row")
        seen = len(run.requests())
        run.press("ctrl+b")
        wait_for(lambda: held.read_text() == "pressed\n", "the key in the other program")
        holder.kill()
        holder.wait(10)
        run.click("pushButtonAppli")
        wait_for(lambda: problem_dots(run, window) == 0, "the problem to go")
        assert run.requests()[seen:] == [], run.requests()[seen:]
        run.press("ctrl+b")
        wait_for(lambda: run.requests()[seen:][3:], "the brighter value")
        assert run.requests()[seen:] == step(50, 60), run.requests()[seen:]


def case_following(rig):
    """A listed program in front gets its scene after 150 ms, one that is not listed the base scene, unless it comes
    within 300 ms. File names count to the letter."""
    with started(rig, "following") as run:
        (run.folder / "scenceSetting.ini").write_text(FOLLOWED)
        run.start_and_show()
        for name in ("Painter", "writer", "Reader"):
            in_front(run, name)

        def switched(name, value, followed_by=None):
            seen = len(run.requests())
            came = come(run, name)
            if followed_by:
                come(run, followed_by)
            wait_for(lambda: run.requests()[seen:][1:], f"the scene of {name}")
            delay = run.times()[seen] - came
            assert 149 <= delay < 400, f"{name}: after {delay} ms"  # 1 ms: two clocks, cut off
            assert run.requests()[seen:] == [f"W 99 {value}", f"W 22 {value}"], run.requests()[seen:]

        switched("Painter", MOVIE_MODE, followed_by="Reader")  # within 300 ms: a flip of the focus
        seen = len(run.requests())
        time.sleep(0.5)  # longer than that, and than what it would bring
        come(run, "Painter")  # has its scene
        time.sleep(0.5)
        assert run.requests()[seen:] == [], run.requests()[seen:]
        switched("writer", STANDARD_MODE)
        switched("Painter", MOVIE_MODE)
        time.sleep(0.4)  # no flip
        switched("Reader", STANDARD_MODE)


def place_of(run, name):
    """Where a program's window is and where windows may be, each as left, top, right, bottom."""
    numbers = [int(number) for number in (run.folder / f"{name}.place").read_text().splitlines()[-1].split()]
    return numbers[:4], numbers[4:]


def in_zone(run, name, zone):
    """Whether the window's edges are those of a zone, in parts of 5040, within one pixel."""
    found, (left, top, right, bottom) = place_of(run, name)
    wanted = [begin + side * (end - begin) / 5040
              for side, begin, end in zip(zone, (left, top) * 2, (right, bottom) * 2)]
    return all(abs(is_at - should) <= 1 for is_at, should in zip(found, wanted))


def case_splitter(rig):
    """Keys put the window of another program into every zone of an own layout, within one pixel, and back where it was;
    so does a number on the overlay, and the number pressed once more gives the old place back. The tray's panel leads to
    the overlay as well."""
    zones = [(0, 0, 720, 5040), (720, 0, 5040, 1680), (720, 1680, 2891, 5040), (2891, 1680, 5040, 5040)]
    own = "Work:" + "+".join("-".join(map(str, zone)) for zone in zones)
    screen = f"QRV SIM 27 {SCREEN}"
    keys = "KeyNext=Ctrl+1\nKeyPrevious=Ctrl+2\nKeyRestore=Ctrl+3\nKeyZones=Ctrl+4\n"
    with started(rig, "splitter") as run:
        with (run.folder / "config.ini").open("a") as file:
            file.write(f"[Splitter]\n{keys}Layouts%20{screen}={own}\nChosen%20{screen}=own Work\n".replace(
                screen, screen.replace(" ", "%20")))
        run.start_and_show()
        in_front(run, "Painter")
        wait_for(lambda: is_front(run, "Painter"), "the other program in front")
        come(run, "Painter")  # Windows tells it by itself; Wine may soon take no window for the one in front
        before = place_of(run, "Painter")[0]
        for key, zone in (("ctrl+1", 0), ("ctrl+1", 1), ("ctrl+1", 2), ("ctrl+1", 3), ("ctrl+1", 0), ("ctrl+2", 3)):
            run.press(key)
            wait_for(lambda: in_zone(run, "Painter", zones[zone]), f"zone {zone + 1}")
        run.press("ctrl+3")
        wait_for(lambda: place_of(run, "Painter")[0] == before, "the old place")
        for number, zone in ((3, zones[2]), (2, zones[1]), (2, None)):
            run.press("ctrl+4")
            run.click(f"zone_{number}")
            wait_for(lambda: in_zone(run, "Painter", zone) if zone else place_of(run, "Painter")[0] == before,
                     f"what number {number} does")
        press_icon(rig)
        run.click("arrangeWindow")
        run.click("zone_4")
        wait_for(lambda: in_zone(run, "Painter", zones[3]), "the zone chosen by way of the tray")


def case_care_reminder(rig):
    """A panel whose care is due: the user is reminded when another program comes to the front, not before; "Later" is
    kept in the settings, and nothing is written to the monitor."""
    care = dict.fromkeys(range(0x01, 0x0F), 0) | {CARE_DUE: 1, CARE_MODE: BY_HAND}
    with started(rig, "care_reminder", registers=REGISTERS | care | {CAPABILITIES: OLED_PANEL}) as run:
        run.start_and_show()
        run.settled()
        time.sleep(REMINDER_LOOK)
        assert not run.seen("questionLater")
        in_front(run, "Painter")
        x, y, width, height = run.window(r"Painter\.exe")
        run.click_at(x + width // 2, y + height // 2)
        wait_for(lambda: run.seen("questionLater"), "the reminder", 2 * REMINDER_LOOK)
        run.click("questionLater")
        wait_for(lambda: "later:" in (run.folder / "config.ini").read_text(), "the reminder to be put off")
        assert writes_of(run.requests()) == [], run.requests()


def case_light_follows_screen(rig):
    """The lamps take the colours of what another program shows, left and right or all together, and those of the next
    one; a colour is 5 bits of red, 6 of green, 5 of blue."""
    zones = (LEFT_TONE, RIGHT_TONE)
    for mode, shown in ((ZONE_RHYTHM, (("Painter", ("ff0000", "0000ff"), dict(zip(zones, (0xF800, 0x001F)))),
                                       ("Writer", ("00ff00", "ff0000"), dict(zip(zones, (0x07E0, 0xF800)))))),
                        (GLOBAL_RHYTHM, (("Painter", ("00ff00", "00ff00"), {ALL_TONE: 0x07E0}),))):
        light = {CAPABILITIES: GAME_FUNCTIONS, LIGHT_MODE: mode, LIGHT_SOURCE: FROM_SCREEN}
        with started(rig, "light_follows_screen", registers=REGISTERS | light) as run:
            run.start_and_show()
            for name, colours, tones in shown:
                program = in_front(run, name, *colours)
                for code, tone in tones.items():
                    wait_for(lambda: last_write(run, code) == f"W {code:02X} {tone}", f"the colour of {name} at {code:02X}")
                program.kill()
                program.wait(10)


def last_write(run, code):
    return next((request for request in reversed(run.requests()) if request.startswith(f"W {code:02X}")), None)


def case_settings_file(rig):
    """The keys are stored although another program has their file open, and far down in folders; a file that may only
    be read stays as it is, which the log tells."""
    far_down = "far_down".ljust(245 - len(windows_path(rig.work / "cases" / "x")), "_")
    for name, mode, held, stored in (("held_file", 0o644, True, True), ("read_only", 0o444, False, False),
                                     (far_down, 0o644, False, True)):
        with with_keys(rig, name) as run:
            file = run.folder / "basicMode.ini"
            file.chmod(mode)
            if held:
                run.start_other(rig.standins / "keyholder.exe", "file", file.name)
                wait_for((run.folder / "held.txt").exists, "the file to be held")
            run.start_and_show()
            assert (b"\r\n" in file.read_bytes()) == stored, file.read_bytes()
            assert bool(run.logged("Cannot write")) != stored, run.log()
            assert not list(run.folder.glob("*.new")), list(run.folder.iterdir())


def case_killed_while_saving(rig):
    """The program killed in the middle of storing its keys leaves the old file or the new one, and starts again."""
    with with_keys(rig, "killed_while_saving") as run:
        file = run.folder / "basicMode.ini"
        old = KEYS.replace("\n\n", "\n").encode()  # as no program writes it
        file.write_bytes(old)
        run.start_and_show()
        new = file.read_bytes()
        assert b"plusKey=Ctrl+B" in new and new != old
        run.processes[0].kill()

        def others():  # beside the file while it is written; an empty one is only just being made
            return [other for other in run.folder.glob(file.name + ".*") if other.stat().st_size]

        def changed():
            return file.read_bytes() != old

        def begun():  # a busy machine may look too late
            with contextlib.suppress(FileNotFoundError):  # gone while it was looked at
                return others() or changed()

        left = []
        while len(left) < 6 or (len(left) < 20 and not {old, new} <= set(left)):
            moment = begun if len(left) % 2 else changed  # what the last one leaves meets the next start
            for other in run.folder.glob(file.name + ".*"):
                other.unlink()
            file.write_bytes(old)
            kill_at(run, moment)
            left.append(file.read_bytes())
        assert all(content in (old, new) for content in left), left
        assert old in left and new in left, left
        run.start_and_show()
        assert file.read_bytes() == new


def kill_at(run, moment):
    """Starts the program and kills it the very moment that comes true."""
    process = run.start()
    end = time.monotonic() + START_SECONDS
    while not moment():
        assert time.monotonic() < end, "the program stored nothing"
    process.kill()
    process.wait(10)
