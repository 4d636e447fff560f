#!/usr/bin/python3
"""accessibility.py QUILLET: walks the main window and every dialog of the program as a screen reader does, and
prints each control with its role, name and actions. Fails on a control without a name, or without an action
where its role has one, and on a dialog that doesn't come. Runs on an X server and a bus of its own."""
import os
import subprocess
import sys
import tempfile
import time

PATIENCE = 10  # seconds

if "QUILLET_WALK" not in os.environ:
    sys.exit(subprocess.run(["xvfb-run", "-a", "-s", "-screen 0 1280x1024x24 -noreset", "dbus-run-session", "--",
                             sys.executable, *sys.argv], env=os.environ | {"QUILLET_WALK": "1"}, timeout=120).returncode)

import pyatspi  # noqa: E402  asks for the bus as soon as it is loaded

# What a user works with; everything else is there to hold these or to be read.
ACTIVE = {pyatspi.ROLE_PUSH_BUTTON, pyatspi.ROLE_CHECK_BOX, pyatspi.ROLE_RADIO_BUTTON, pyatspi.ROLE_MENU_ITEM,
          pyatspi.ROLE_CHECK_MENU_ITEM, pyatspi.ROLE_COMBO_BOX, pyatspi.ROLE_LINK, pyatspi.ROLE_TOGGLE_BUTTON,
          pyatspi.ROLE_TEXT, pyatspi.ROLE_PASSWORD_TEXT, pyatspi.ROLE_SPIN_BUTTON, pyatspi.ROLE_SLIDER,
          pyatspi.ROLE_BUTTON_MENU, pyatspi.ROLE_ENTRY}
NAMED = ACTIVE | {pyatspi.ROLE_PROGRESS_BAR, pyatspi.ROLE_MENU, pyatspi.ROLE_PAGE_TAB, pyatspi.ROLE_LIST,
                  pyatspi.ROLE_TABLE, pyatspi.ROLE_TREE, pyatspi.ROLE_TREE_TABLE, pyatspi.ROLE_DIALOG, pyatspi.ROLE_FRAME}
# Qt's own widgets within a widget, which nobody comes to.
WITHIN = {pyatspi.ROLE_COMBO_BOX, pyatspi.ROLE_SPIN_BUTTON}

MENU_DIALOGS = [("Options...", "Options"), ("Default algorithm...", "Default algorithm"),
                ("Information about algorithms...", ""), ("Keyboard shortcuts...", ""), ("About...", "")]


def eventually(look):
    end = time.monotonic() + PATIENCE
    while not (answer := look()) and time.monotonic() < end:
        time.sleep(0.05)
    return answer


class Walk:
    def __init__(self):
        self.faults = []
        self.count = 0

    def window(self, window):
        print(f"== {window.name or '(no name)'}")
        self.node(window, 0, False)

    def node(self, node, depth, within):
        role = node.getRole()
        actions = actions_of(node)
        showing = node.getState().contains(pyatspi.STATE_VISIBLE)
        if role in NAMED and showing and not within:
            self.count += 1
            line = f"{'  ' * depth}{node.getRoleName()} \"{node.name}\" {', '.join(actions)}"
            print(line)
            if not node.name:
                self.faults.append("no name: " + path_to(node))
            if role in ACTIVE and not actions:
                self.faults.append("no action: " + path_to(node))
        for child in node:
            if child is not None:
                self.node(child, depth + 1, within or role in WITHIN)


def actions_of(node):
    try:
        action = node.queryAction()
    except NotImplementedError:
        return []
    return [action.getName(i) for i in range(action.nActions)]


def path_to(node):
    steps = []
    while node is not None and node.getRole() != pyatspi.ROLE_APPLICATION:
        steps.append(f'{node.getRoleName()} "{node.name}"')
        node = node.parent
    return " in ".join(steps)


def find(node, role, name):
    return pyatspi.findDescendant(node, lambda n: n.getRole() == role and n.name == name)


def do(node, *wanted):
    """The first of the wanted actions that there is."""
    names = actions_of(node)
    name = next(name for name in wanted if name in names)
    node.queryAction().doAction(names.index(name))


def windows(application):
    return [window for window in application if window is not None]


def close(application, dialog):
    """As Escape does."""
    for name in ("Cancel", "Close", "OK", "No"):
        if button := find(dialog, pyatspi.ROLE_PUSH_BUTTON, name):
            do(button, "Press")
            break
    return eventually(lambda: len(windows(application)) == 1)


def walk(quillet, home):
    file = home + "/letter.txt"
    with open(file, "w") as stream:
        stream.write("x")
    process = subprocess.Popen([quillet, file], env=os.environ | {
        "HOME": home, "XDG_CONFIG_HOME": home, "XDG_DATA_HOME": home, "XDG_STATE_HOME": home,
        "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"})
    walk = Walk()
    try:
        desktop = pyatspi.Registry.getDesktop(0)
        application = eventually(lambda: next((a for a in desktop if a is not None and len(a) > 0 and
                                               a.get_process_id() == process.pid), None))
        main = application[0]
        eventually(lambda: main.getState().contains(pyatspi.STATE_SHOWING))
        walk.window(main)
        openers = [(pyatspi.ROLE_MENU_ITEM, item) for item, _ in MENU_DIALOGS] + \
                  [(pyatspi.ROLE_PUSH_BUTTON, "Encrypt")]
        for role, name in openers:
            opener = find(main, role, name)
            if opener is None:
                walk.faults.append(f"nothing that opens a dialog: {name}")
                continue
            do(opener, "Press")
            dialog = eventually(lambda: next((w for w in windows(application) if w != main), None))
            if dialog is None:
                walk.faults.append(f"no dialog of {name}")
                continue
            walk.window(dialog)
            if not close(application, dialog):
                walk.faults.append(f"the dialog of {name} stays")
                break
    finally:
        process.terminate()
        process.wait(PATIENCE)
    print(f"controls: {walk.count}, faults: {len(walk.faults)}")
    for fault in walk.faults:
        print("FAULT", fault)
    return 1 if walk.faults else 0


with tempfile.TemporaryDirectory() as home:
    sys.exit(walk(sys.argv[1], home))
