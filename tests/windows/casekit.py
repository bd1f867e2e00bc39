"""What several areas of cases share: the monitor that they start with, and steps."""

from rig import Run, wait_for

MOVIE_CUSTOM = 10
REGISTERS = {0x22: MOVIE_CUSTOM, 0xED: 0, 0xEE: 0x0102, 0xF6: 1, 0xF7: 0}
BLOCK = [62, 50, 4, 0, 2, 50, 9, 50, 50, 50, 70, 55, 64, 50, 50, 50] + [50] * 12 + \
    [0, 3, 1, 1, 0, 0, 4, 0, 3, 0, 0, 0]


def open_page(run, tab, entry):
    """Opens the entry of the left bar under a tab of the top bar."""
    run.click(f"tab_{tab}")
    run.click(f"entry_{entry}")


def press_icon(rig, times=1):
    """Presses the program's icon in the tray, which is a small window of Wine's here."""
    tray = wait_for(lambda: rig.windows("Wine System Tray"), "the tray")[0]
    rig.run(["xdotool", "mousemove", "--window", tray, "10", "10", "sleep", "0.3",
             "click", "--repeat", str(times), "--delay", "150", "1"])


def codes_of(requests):
    return [request.split()[1] for request in requests]


def writes_of(requests):
    return [request for request in requests if request.startswith("W")]


def started(rig, name, **set_up):
    return Run(rig, name, **{"registers": REGISTERS, "block": BLOCK} | set_up)


def end_at_exit_box(run, process):
    run.answer("Exit", 60)
    assert process.wait(15) == 0, process.returncode
    assert run.logged("DDC/CI erorr, App exit!"), run.log()
