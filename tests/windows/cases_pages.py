"""Every setting of the game aids, the windows, the care and the lamps: pressed on its page, seen on the wire."""

from casekit import REGISTERS, open_page, started, writes_of
from rig import wait_for

CAPABILITIES, CARE_MODE = 0xED, 0x0A
GAME_FUNCTIONS, OLED_PANEL = 1 << 10, 4
ON = "         Enable"
OWN_COLOUR = {0x7A: 10, 0x7B: 20, 0x7C: 30}
COLOURS = 8
RHYTHM_TONES = ("86", "88", "89")  # which the program writes by itself


def option(name):
    return lambda run: run.click(name)


def switch(name):
    return option(f"{name}_{ON}")


def colour(group, index, count=COLOURS):
    """The swatch of that index in a row of that many."""
    def press(run):
        x, y, width, height = run.place(f"{group}_swatches")
        run.click_at(x + width * (2 * index + 1) // (2 * count), y + height // 2)
    return press


def highest(slider):
    """A press on the slider and one on the key for its end: two actions, of which the second is the one expected."""
    def press(run):
        run.click(f"{slider}_slider")
        run.press("End")
    return press


def start_care(run):
    run.click("startCare")
    run.answer("Start care")


def own_colour(run):
    run.click("ownLightColor")
    run.answer("Select Color")


GAME_AIDS = {
    "Game Rush": [(switch("Game Rush"), "E4 1")],
    "Game Crosshair": [(switch("Game Crosshair"), "3D 1"), (option("Crosshair Shape_Ring"), "34 4"),
                       (colour("Crosshair Color", 3), "32 3"), (option("Crosshair Place_Bottom"), "FA 4")],
    "HawkEye Vision": [(switch("HawkEye Vision"), "63 1"), (option("HawkEye Zoom_x4"), "4D 2"),
                       (option("HawkEye Brightness_Level2"), "64 1"), (option("HawkEye Contrast_Level3"), "65 2"),
                       (option("HawkEye Sharpness_Level5"), "66 4")],
    "Night Vision": [(option("Night Vision_Auto-L2"), "45 4")],
    "Refresh Rate": [(switch("Refresh Rate"), "30 1"), (option("Refresh Rate Place_Bottom Left"), "31 2")],
    "Stopwatch": [(switch("Stopwatch"), "3E 1"), (option("Stopwatch Time_90 min"), "33 4"),
                  (option("Stopwatch Place_Top Right"), "35 1")],
    "Game Time": [(switch("Game Time"), "3F 1"), (option("Game Time Length_40 min"), "36 2"),
                  (option("Game Time Place_Bottom Right"), "37 3")],
    "Dynamic Crosshair": [(switch("Dynamic Crosshair"), "39 1"), (colour("Dynamic Crosshair Color", 5), "38 5"),
                          (option("Dynamic Crosshair Size_Large"), "3A 2")],
    "Focus Dimming": [(switch("Focus Dimming"), "4B 1"), (option("Focus Dimming Level_High"), "4C 2")],
    "AI Dual Mode": [(option("AI Dual Mode_Open"), "E0 1")],
}
WINDOWS = [(option("Multi-window_PIP"), "50 1"), (option("Size_Large"), "54 2"), (option("Place_Bottom Left"), "55 2")]
CARE = {
    "Care Plan": [(option("Care Mode_Auto"), "0A 0"), (option("Care Interval_12 Hour"), "0B 2"),
                  (switch("Care Reminder"), "09 1")],
    "Pixel Shift": [(option("Pixel Shift_Fast"), "01 3")],
    "Still Picture": [(switch("Still Picture"), "02 1"), (option("Detection Rate_Normal"), "03 1")],
    "Static Icon": [(option("Static Icon_Medium"), "04 2")],
    "Taskbar": [(option("Taskbar_High"), "06 3")],
    "Boundary": [(option("Boundary_Low"), "07 1")],
    "ISP": [(switch("ISP"), "0D 1")],
}
LIGHTING = {
    "Lighting": [(option("Light Mode_Effect"), "75 2"), (highest("Light Brightness"), "77 100")],
    "Effect": [(option("Light Effect_Wave"), "76 3"), (highest("Light Speed"), "78 10"),
               (option("Light Direction_Counterclockwise"), "85 1"), (switch("Soft Changes"), "8D 1")],
    "Color": [(colour("Light Color", 8, count=9), "79 8")],
    "Front and Rear": [(colour("Front Color", 1), "7F 1"), (highest("Front Brightness"), "81 100"),
                       (colour("Rear Color", 6), "80 6"), (highest("Rear Brightness"), "82 100")],
    "Lamp Belt": [(colour("Lamp Belt Color", 7), "E5 7"), (option("Lamp Belt Brightness_Highlight"), "E6 2"),
                  (option("Lamp Belt Effect_Pearl"), "E7 5"), (colour("Lamp Belt Front Color", 2), "E8 2"),
                  (colour("Lamp Belt Rear Color", 4), "E9 4")],
    "Times": [(option("Light Timer_2 Hour"), "8C 3"), (switch("Dark with the Screen"), "8B 1"),
              (switch("Light in Standby"), "8A 1")],
}
EYE_CARE = [(option("Light Level_Standard"), "7E 1"), (highest("Light Temperature"), "7D 100")]
RHYTHM = [(option("Rhythm Source_Screen"), "83 1"), (option("Rhythm Level_Level4"), "84 3")]


def started_with_all(rig, name):
    functions = {CAPABILITIES: GAME_FUNCTIONS | OLED_PANEL, CARE_MODE: 1}
    return started(rig, name, registers=REGISTERS | OWN_COLOUR | functions)


def asked_for(run):
    """The writes that somebody asked for."""
    return [request for request in writes_of(run.requests())
            if request.split()[1] != "99" and request.split()[1] not in RHYTHM_TONES]


def press_all(run, settings):
    """Presses each control, after which its write is the last one, the vendor code with its value before it."""
    for press, expected in settings:
        seen = len(run.requests())
        press(run)
        pair = [f"W 99 {expected.split()[1]}", f"W {expected}"]
        wait_for(lambda: " ".join(pair) in " ".join(writes_of(run.requests()[seen:])), expected)
        assert asked_for(run)[-1] == pair[1], asked_for(run)[-3:]


def press_panels(run, panels):
    for panel, settings in panels.items():
        run.click(panel)
        press_all(run, settings)


def codes_written(run):
    """In the order in which each was first written."""
    return list(dict.fromkeys(request.split()[1] for request in asked_for(run)))


def case_game_aids_on_wire(rig):
    """Every setting of the game aids is one write of its code, the vendor code before it, and nothing else is written."""
    with started_with_all(rig, "game_aids_on_wire") as run:
        run.start_and_show()
        open_page(run, "Game Aid", "Game Aid")
        press_panels(run, GAME_AIDS)
        assert asked_for(run) == [f"W {write}" for panel in GAME_AIDS.values() for _, write in panel], asked_for(run)


def case_windows_and_care_on_wire(rig):
    """So is every setting of the two windows, which leaves the input alone, and of the panel's care, whose state is
    read."""
    with started_with_all(rig, "windows_and_care_on_wire") as run:
        run.start_and_show()
        open_page(run, "Basic", "Multi-window")
        press_all(run, WINDOWS)
        open_page(run, "Oled Care", "Care Content")
        wait_for(lambda: {"R 05 -> 0", "R 08 -> 0"} <= set(run.requests()), "whether care runs and is due")
        press_panels(run, CARE)
        run.click("Care Plan")
        press_all(run, [(start_care, "0E 1")])
        assert asked_for(run) == [f"W {write}" for panel in [WINDOWS, *CARE.values()] for _, write in panel] + ["W 0E 1"]


def case_lighting_on_wire(rig):
    """So is every setting of the lamps, each in a mode in which it counts; an own colour is three."""
    with started_with_all(rig, "lighting_on_wire") as run:
        run.start_and_show()
        open_page(run, "Game Aid", "Emberline")
        press_panels(run, LIGHTING)
        run.click("Color")
        own_colour(run)
        wait_for(lambda: asked_for(run)[-3:] == ["W 7A 10", "W 7B 20", "W 7C 30"], "the own colour")
        for mode, panel, settings in (("Eye Care", "Eye Care", EYE_CARE), ("Global Rhythm", "Rhythm", RHYTHM)):
            run.click("Lighting")
            run.click(f"Light Mode_{mode}")
            run.click(panel)
            press_all(run, settings)
        assert codes_written(run) == "75 77 76 78 85 8D 79 7F 81 80 82 E5 E6 E7 E8 E9 8C 8B 8A 7A 7B 7C 7E 7D 83 84".split()
