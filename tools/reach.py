"""The part of tools/reach that speaks AT-SPI: reach.py PROGRAM FOLDER [list]"""

import subprocess
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

# A role that a control may have; its name must say more than a sign does.
CONTROLS = {"push button", "check box", "radio button", "page tab", "slider", "spin button", "combo box", "text", "canvas"}
WINDOW = "QUORVEL"

told: list[str] = []
faults: list[str] = []


def spin(seconds: float) -> None:
    loop = GLib.MainLoop()
    GLib.timeout_add(int(seconds * 1000), loop.quit)
    loop.run()


def attempt(find):
    """What is looked for, or none: things go while one looks at them."""
    try:
        return find()
    except GLib.GError:
        return None


def wait_for(what: str, find, seconds: float = 15):
    end = time.monotonic() + seconds
    while not (found := attempt(find)):
        if time.monotonic() > end:
            sys.exit(f"reach: waited in vain for {what}")
        spin(0.1)
    return found


def children(node) -> list:
    nodes = [node.get_child_at_index(i) for i in range(node.get_child_count())]
    return [child for child in nodes if child and child.get_state_set().contains(Atspi.StateType.VISIBLE)]


def tree(node, depth: int = 0):
    yield depth, node
    for child in children(node):
        yield from tree(child, depth + 1)


def window():
    programs = [node for node in children_of_desktop() if node.get_name() == WINDOW]
    frames = [node for program in programs for node in children(program) if node.get_name() == WINDOW]
    return frames[0] if frames else None


def children_of_desktop() -> list:
    desktop = Atspi.get_desktop(0)
    return [node for i in range(desktop.get_child_count()) if (node := desktop.get_child_at_index(i))]


def find(role: str, name: str, top=None):
    top = top or window()
    nodes = (node for _, node in tree(top)) if top else iter(())
    return next((node for node in nodes if node.get_role_name() == role and node.get_name() == name), None)


def press(node) -> None:
    """Once it can be pressed: a mode that changes locks the others for a while."""
    def names() -> list[str]:
        return [node.get_action_name(i) for i in range(node.get_n_actions())]
    wait_for(f"{node.get_name()} to be usable", lambda: "Press" in names())
    node.do_action(names().index("Press"))


def hear(event) -> None:
    if event.source.get_role_name() == "status bar":
        told.append(event.source.get_name())


def expect(right: bool, what: str) -> None:
    print(f"{'ok  ' if right else 'FAIL'} {what}")
    if not right:
        faults.append(what)


def walk_pages(prints: bool) -> None:
    mute, seen = [], 0
    for tab in [node for _, node in tree(window()) if node.get_role_name() == "page tab"]:
        press(tab)
        spin(0.3)
        bar = wait_for("the left bar", lambda: find("panel", tab.get_name()))
        for entry in children(bar):
            press(entry)
            spin(0.3)
            for depth, node in tree(window()):
                seen += 1
                name, role = node.get_name() or "", node.get_role_name()
                if prints:
                    print(f"{'  ' * depth}{role} \"{name}\" {node.get_description() or ''}")
                if role in CONTROLS and not any(letter.isalnum() for letter in name):
                    mute.append(f"{tab.get_name()} / {entry.get_name()}: {role}")
    expect(not mute, f"{seen} things on all pages, none of the controls without a name {sorted(set(mute))[:5]}")


def main() -> int:
    program, folder, prints = sys.argv[1], sys.argv[2], sys.argv[3:] == ["list"]
    Atspi.init()
    listener = Atspi.EventListener.new(lambda event: attempt(lambda: hear(event)))
    listener.register("object:property-change:accessible-name")
    with subprocess.Popen([program], cwd=folder) as process:
        try:
            wait_for("the window", lambda: window() and find("page tab", "Basic"))
            walk_pages(prints)
            press(find("page tab", "Basic"))
            press(wait_for("the entry", lambda: find("radio button", "I/O Settings")))
            press(wait_for("the entry", lambda: find("radio button", "Input Signal")))
            wanted = wait_for("the inputs", lambda: find("radio button", "Input Signal: DP2"))
            press(wanted)
            spin(1)
            expect(wanted.get_state_set().contains(Atspi.StateType.CHECKED) and bool(find("label", "On now: DP2")),
                   "an option that is pressed by its action switches the input")
            desk = next(node for node in children(window().get_parent()) if node.get_name() != WINDOW)
            press(find("push button", "Refuse writes", desk))
            spin(0.5)
            told.clear()
            press(find("radio button", "Input Signal: HDMI1"))
            spin(1)
            expect(any("did not take" in text for text in told), f"a refusal is told by the status object: {told}")
            press(find("push button", "Refuse writes", desk))
            spin(3)  # the refusal has the program look for the monitor again
            press(find("page tab", "Scene"))
            press(wait_for("the left bar", lambda: find("radio button", "Movie Mode")))
            press(wait_for("the halves", lambda: find("radio button", "Custom")))
            spin(1)
            slider = wait_for("the scene page", lambda: find("slider", "CR Enhance"))
            slider.set_current_value(4)
            spin(1)
            value = slider.get_description().split(". ")[0]  # before what the slider is for
            expect(value == "4 of 5", f"a slider says its value: {value}")
        finally:
            process.terminate()
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
