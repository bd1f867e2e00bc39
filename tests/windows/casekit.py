"""What several areas of cases share: the monitor that they start with, places in the window, and steps."""

from rig import Run, wait_for

MOVIE_CUSTOM = 10
REGISTERS = {0x22: MOVIE_CUSTOM, 0xED: 0, 0xEE: 0x0102, 0xF6: 1, 0xF7: 0}
BLOCK = [62, 50, 4, 0, 2, 50, 9, 50, 50, 50, 70, 55, 64, 50, 50, 50] + [50] * 12 + \
    [0, 3, 1, 1, 0, 0, 4, 0, 3, 0, 0, 0]

# Places in the window: the entries of the left bar lie below the top bar.
LEFT_BAR_X = 116
FIRST_ENTRY_Y = 112
TOP_BAR_Y = 36
NIGHT_LOOM_TAB_X = 995
BASIC_TAB_X = 1100
PAGE_LIST_X = 380
PAGE_LIST_Y = 136


def entry_y(index):
    return FIRST_ENTRY_Y + 48 * index


def open_page(run, window, tab_x, index):
    """Opens the entry of the left bar under a tab of the top bar."""
    run.click(window, tab_x, TOP_BAR_Y)
    run.click(window, LEFT_BAR_X, entry_y(index))


def open_basic_page(run, window, index):
    open_page(run, window, BASIC_TAB_X, index)


def codes_of(requests):
    return [request.split()[1] for request in requests]


def writes_of(requests):
    return [request for request in requests if request.startswith("W")]


def started(rig, name, **set_up):
    return Run(rig, name, **{"registers": REGISTERS, "block": BLOCK} | set_up)


def end_at_exit_box(run, process):
    wait_for(lambda: run.window("Exit"), "the exit box", 60)
    run.rig.screenshot(run.folder / "box.png")
    run.press("Return")
    assert process.wait(15) == 0, process.returncode
    assert run.logged("DDC/CI erorr, App exit!"), run.log()
