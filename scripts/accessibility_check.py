#!/usr/bin/python3
"""Asks the running program through the accessibility bus for its names, roles and values.

Usage: accessibility_check.py PROGRAM. Needs the packages xvfb, dbus, at-spi2-core and python3-pyatspi (hence /usr/bin/python3);
brings its own display and session bus. Prints every fault; exit status 1 when there is one.
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


def inside(program):
    import pyatspi
    faults = []
    environment = {**os.environ, "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1", "LC_ALL": "C.UTF-8"}
    pyatspi.Registry.getDesktop(0)  # starts the bus, which a program that comes first would miss
    process = subprocess.Popen([program], env=environment)

    def until(get):
        end = time.monotonic() + PATIENCE
        while not (result := get()) and time.monotonic() < end:
            time.sleep(0.05)
        return result

    def tell(condition, fault):
        if not condition:
            faults.append(fault)

    def below(node):
        yield node
        if node.getRoleName() != "combo box":  # its parts are the toolkit's
            for child in node:
                if child is not None:
                    yield from below(child)

    def window():
        programs = [each for each in pyatspi.Registry.getDesktop(0) if each and each.get_process_id() == process.pid]
        return next((each for each in below(programs[0]) if each.name == "Warhost"), None) if programs else None

    def named(name, role):
        return next((each for each in below(frame) if each.name == name and each.getRoleName() == role), None)

    def text(name):
        return named(name, "text").queryText().getText(0, -1)

    def shows(name, wanted, doing):
        tell(until(lambda: text(name) == wanted), f"{doing}: '{name}' shows '{text(name)}', not '{wanted}'")

    def has(node, state):
        node.clear_cache()  # which only a main loop would keep up to date
        return node.getState().contains(state)

    def press(node, *keys):
        node.queryComponent().grabFocus()
        tell(until(lambda: has(node, pyatspi.STATE_FOCUSED)), f"'{node.name}' takes no focus")
        for key in keys:
            pyatspi.Registry.generateKeyboardEvent(key, None, pyatspi.KEY_SYM)

    try:
        frame = until(window)
        if frame is None:
            return ["the program does not come to the bus"]
        counts, seen = dict.fromkeys(ROLES, 0), {}
        for node in below(frame):
            role, name = node.getRoleName(), node.name
            counts[role] = counts.get(role, 0) + 1
            tell("<" not in node.description or ">" not in node.description, f"markup: {role} '{node.description}'")
            if role in ROLES and not name.startswith("Scroll "):
                tell(name, f"a nameless {role}")
                tell((role, name) not in seen, f"two of role {role} are named '{name}'")
                seen[role, name] = node
        for role, least in ROLES.items():
            tell(counts[role] >= least, f"{counts[role]} of role {role}, not {least}")
        panels = [node.name for node in below(frame) if node.getRoleName() == "panel"]
        for side in ("Side A", "Side B"):
            tell(side in panels, f"no panel is named '{side}'")

        place = frame.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        pyatspi.Registry.generateMouseEvent(place.x + place.width - 3, place.y + place.height - 3, "b1c")  # activates it
        digit, space = 0x31, 0x20  # key symbols
        press(named("Unit 1, soldiers", "text"), 0xFF57, 0xFF08, digit, digit + 1)  # End, Backspace, 1, 2
        shows("Total number of soldiers", "12", "typing")
        named("Unit 2, soldiers", "text").queryEditableText().setTextContents("30")
        shows("Total number of soldiers", "42", "setting a text over the bus")
        for role, name, total in (("check box", "Flushed with victory (+1)", "21"),
                                  ("radio button", "Equipment Quality: Poor (-2)", "19")):  # 20 for the numbers
            node = named(name, role)
            if node is None:
                continue  # told above
            press(node, space)
            shows("Total of modifiers, this screen only", total, f"ticking '{name}'")
            tell(until(lambda: has(node, pyatspi.STATE_CHECKED)), f"'{name}' is not told as checked")
        row = next((node for (role, name), node in seen.items() if name == "High ground (+1 to +3)"), None)
        row.queryAction().doAction(0)
        shows("Total of modifiers, this screen only", "20", "toggling a row over the bus")
    finally:
        process.kill()
    return faults


if __name__ == "__main__":
    if len(sys.argv) == 2:
        sys.exit(outside(os.path.abspath(sys.argv[1])))
    found = inside(sys.argv[1])
    print("\n".join(found) if found else "Names, roles and values are told as they should be.")
    sys.exit(1 if found else 0)
