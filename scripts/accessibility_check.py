#!/usr/bin/python3
"""Asks the running program through the accessibility bus for its names, roles and values.

Usage: accessibility_check.py PROGRAM. Needs the packages xvfb, dbus, at-spi2-core and python3-pyatspi (hence
/usr/bin/python3); brings its own display and session bus. Prints every fault; exit status 1 when there is one.
"""
import os
import subprocess
import sys
import time

ROLES = {"text": 78, "combo box": 31, "check box": 26, "radio button": 37, "push button": 10, "page tab": 3}  # at least
PATIENCE = 10  # seconds


def outside(program):
    number, display = os.pipe()
    screen = subprocess.Popen(["Xvfb", "-displayfd", str(display), "-screen", "0", "1600x1200x24"],
                              pass_fds=[display], stderr=subprocess.DEVNULL)
    try:
        os.environ["DISPLAY"] = ":" + os.read(number, 16).decode().strip()
        inside = ["dbus-run-session", "--", sys.executable, __file__, program, "inside"]
        return subprocess.run(inside, stderr=None if os.environ.get("VERBOSE") else subprocess.DEVNULL).returncode
    finally:
        screen.terminate()


def until(get):
    end = time.monotonic() + PATIENCE
    while not (result := get()) and time.monotonic() < end:
        time.sleep(0.05)
    return result


def below(node):
    yield node
    if node.getRoleName() != "combo box":  # its parts are the toolkit's
        for child in node:
            if child is not None:
                yield from below(child)


def has(node, state):
    node.clear_cache()  # which only a main loop would keep up to date
    return node.getState().contains(state)


def window_of(process):
    programs = [each for each in pyatspi.Registry.getDesktop(0) if each and each.get_process_id() == process.pid]
    return next((each for each in below(programs[0]) if each.name == "Warhost"), None) if programs else None


class Window:
    """The main window as the bus tells of it, and what is wrong with that."""

    def __init__(self, frame):
        self.frame = frame
        self.faults = []

    def tell(self, condition, fault):
        if not condition:
            self.faults.append(fault)

    def all_named(self, name, role):
        return [each for each in below(self.frame) if each.name == name and each.getRoleName() == role]

    def named(self, name, role):
        if found := self.all_named(name, role):
            return found[0]
        raise LookupError(f"no {role} is named '{name}'")

    def text(self, name):
        return self.named(name, "text").queryText().getText(0, -1)

    def shows(self, name, wanted, doing):
        self.tell(until(lambda: self.text(name) == wanted),
                  f"{doing}: '{name}' shows '{self.text(name)}', not '{wanted}'")

    def choose_tab(self, name, box):
        self.named(name, "page tab").queryAction().doAction(0)
        self.tell(until(lambda: any(has(each, pyatspi.STATE_SHOWING) for each in self.all_named(box, "text"))),
                  f"the tab '{name}' does not show '{box}'")

    def press(self, node, *keys):
        node.queryComponent().grabFocus()
        self.tell(until(lambda: has(node, pyatspi.STATE_FOCUSED)), f"'{node.name}' takes no focus")
        for key in keys:
            pyatspi.Registry.generateKeyboardEvent(key, None, pyatspi.KEY_SYM)

    def check_all(self):
        self.choose_tab("Run Combat", "Side A, result")  # whose screen is made when it is first shown
        self.choose_tab("Army: Side A", "Name of army")
        self.check_names()
        self.check_use()

    def check_names(self):
        counts, seen, panels = dict.fromkeys(ROLES, 0), set(), []
        for node in below(self.frame):
            role, name = node.getRoleName(), node.name
            counts[role] = counts.get(role, 0) + 1
            self.tell("<" not in node.description or ">" not in node.description,
                      f"markup: {role} '{node.description}'")
            if role == "panel":
                panels.append(name)
            if role in ROLES and not name.startswith("Scroll "):
                self.tell(name, f"a nameless {role}")
                self.tell((role, name) not in seen, f"two of role {role} are named '{name}'")
                seen.add((role, name))
        for role, least in ROLES.items():
            self.tell(counts[role] >= least, f"{counts[role]} of role {role}, not {least}")
        for side in ("Side A", "Side B"):
            self.tell(side in panels, f"no panel is named '{side}'")

    def check_use(self):
        place = self.frame.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        corner = place.x + place.width - 3, place.y + place.height - 3
        pyatspi.Registry.generateMouseEvent(*corner, "b1c")  # activates it
        digit, space = 0x31, 0x20  # key symbols
        self.press(self.named("Unit 1, soldiers", "text"), 0xFF57, 0xFF08, digit, digit + 1)  # End, Backspace, 1, 2
        self.shows("Total number of soldiers", "12", "typing")
        self.named("Unit 2, soldiers", "text").queryEditableText().setTextContents("30")
        self.shows("Total number of soldiers", "42", "setting a text over the bus")
        for role, name, total in (("check box", "After two natural 20s (+1)", "21"),
                                  ("radio button", "Equipment Quality: Poor (-2)", "19")):  # 20 for the numbers
            node = self.named(name, role)
            self.press(node, space)
            self.shows("Total of modifiers, this screen only", total, f"ticking '{name}'")
            self.tell(until(lambda: has(node, pyatspi.STATE_CHECKED)), f"'{name}' is not told as checked")
        self.named("High ground (+1 to +3)", "check box").queryAction().doAction(0)
        self.shows("Total of modifiers, this screen only", "20", "toggling a row over the bus")


def inside(program):
    environment = {**os.environ, "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1", "LC_ALL": "C.UTF-8"}
    pyatspi.Registry.getDesktop(0)  # starts the bus, which a program that comes first would miss
    process = subprocess.Popen([program], env=environment)
    try:
        frame = until(lambda: window_of(process))
        if frame is None:
            return ["the program does not come to the bus"]
        window = Window(frame)
        try:
            window.check_all()
        except LookupError as missing:
            window.faults.append(str(missing))
        return window.faults
    finally:
        process.kill()


if __name__ == "__main__":
    if len(sys.argv) == 2:
        sys.exit(outside(os.path.abspath(sys.argv[1])))
    import pyatspi  # needs the session bus
    found = inside(sys.argv[1])
    print("\n".join(found) if found else "Names, roles and values are reported correctly.")
    sys.exit(1 if found else 0)
