#!/usr/bin/python3
"""accessibility.py QUILLET: walks the main window and every dialog of the program as a screen reader does, and
prints each control with its role, name and actions. Fails on a control without a name, or without an action
where its role has one, and on a dialog that doesn't come. Runs on an X server and a bus of its own."""
import importlib.util
import os
import shutil
import subprocess
import sys
import tempfile
import time

PATIENCE = 60  # seconds, for a loaded machine

if "QUILLET_WALK" not in os.environ:
    missing = [name for name in ("xvfb-run", "dbus-run-session", "xdotool") if not shutil.which(name)]
    missing += [name for name in ("gi", "pyatspi") if not importlib.util.find_spec(name)]
    if missing:
        print("not here:", *missing)
        sys.exit(77)
    sys.exit(subprocess.run(["xvfb-run", "-a", "-s", "-screen 0 1280x1024x24 -dpi 96 -noreset", "dbus-run-session", "--",
                             sys.executable, *sys.argv], env=os.environ | {"QUILLET_WALK": "1"}, timeout=500).returncode)

from gi.repository import GLib  # noqa: E402
import pyatspi  # noqa: E402  asks for the bus as soon as it is loaded

# What a user works with; everything else is there to hold these or to be read.
ACTIVE = {pyatspi.ROLE_PUSH_BUTTON, pyatspi.ROLE_CHECK_BOX, pyatspi.ROLE_RADIO_BUTTON, pyatspi.ROLE_MENU_ITEM,
          pyatspi.ROLE_CHECK_MENU_ITEM, pyatspi.ROLE_COMBO_BOX, pyatspi.ROLE_LINK, pyatspi.ROLE_TOGGLE_BUTTON,
          pyatspi.ROLE_TEXT, pyatspi.ROLE_PASSWORD_TEXT, pyatspi.ROLE_SPIN_BUTTON, pyatspi.ROLE_SLIDER,
          pyatspi.ROLE_PUSH_BUTTON_MENU, pyatspi.ROLE_ENTRY}
LISTS = {pyatspi.ROLE_LIST, pyatspi.ROLE_TABLE, pyatspi.ROLE_TREE, pyatspi.ROLE_TREE_TABLE}
NAMED = ACTIVE | LISTS | {pyatspi.ROLE_PROGRESS_BAR, pyatspi.ROLE_MENU, pyatspi.ROLE_PAGE_TAB, pyatspi.ROLE_DIALOG}
# Qt's own widgets within a widget, which nobody comes to.
WITHIN = {pyatspi.ROLE_COMBO_BOX, pyatspi.ROLE_SPIN_BUTTON}
# These hand the focus on to what they hold.
PASSING = {pyatspi.ROLE_FRAME, pyatspi.ROLE_FILLER, pyatspi.ROLE_SCROLL_PANE}

# What opens a dialog, from the tool bar, and what opens one from there.
DIALOGS = [("Options", []), ("Default algorithm", []), ("Information about algorithms", []),
           ("Keyboard shortcuts", []), ("About", []), ("Encrypt", ["Generate..."])]
SECRET = "Tr0ub4dor-and-3"


def eventually(look, seconds=PATIENCE):
    end = time.monotonic() + seconds
    while not (answer := look()) and time.monotonic() < end:
        while GLib.MainContext.default().iteration(False):  # the news of the bus
            pass
        time.sleep(0.05)
    return answer


def states(node, *wanted):
    return all(node.getState().contains(state) for state in wanted)


def name_of(node):
    """Of a list to choose from, Qt gives the choice as the name, and the label apart."""
    if node.getRole() != pyatspi.ROLE_COMBO_BOX:
        return node.name
    labels = [relation.getTarget(0).name for relation in node.getRelationSet()
              if relation.getRelationType() == pyatspi.RELATION_LABELLED_BY]
    return labels[0] if labels else ""


class Walk:
    def __init__(self, application):
        self.application = application
        self.faults = []
        self.count = 0

    def window(self, window):
        print(f"== {window.name or '(no name)'}")
        if not window.name:
            self.faults.append("a window without a title")
        self.node(window, 0, False)
        for tab in find_all(window, lambda n: n.getRole() == pyatspi.ROLE_PAGE_TAB)[1:]:
            before = shown(tab.parent.parent)
            do(tab, "Press")
            if not eventually(lambda: shown(tab.parent.parent) != before):
                self.faults.append(f"the tab {tab.name} shows nothing")
            self.node(tab.parent.parent, 1, False)

    def node(self, node, depth, within):
        role = node.getRole()
        is_reached = states(node, pyatspi.STATE_FOCUSABLE, pyatspi.STATE_SHOWING) and role not in PASSING
        shown = states(node, pyatspi.STATE_VISIBLE) or node.parent.getRole() == pyatspi.ROLE_POPUP_MENU
        if shown and not within and (role in NAMED or is_reached):
            self.control(node, depth)
        for child in children(node):
            self.node(child, depth + 1, within or role in WITHIN)

    def control(self, node, depth):
        name, actions = name_of(node), actions_of(node)
        self.count += 1
        print(f"{'  ' * depth}{node.getRoleName()} \"{name}\" {', '.join(actions)}")
        if not name and node.getRole() != pyatspi.ROLE_SEPARATOR:
            self.faults.append("no name: " + path_to(node))
        if node.getRole() in ACTIVE and not actions and states(node, pyatspi.STATE_ENABLED, pyatspi.STATE_FOCUSABLE):
            self.faults.append("no action: " + path_to(node))

    def dialog(self, parent, name, inner):
        """Opens it, walks it and what it opens, and closes it."""
        before = windows(self.application)
        opener = find(parent, lambda n: n.name == name and states(n, pyatspi.STATE_SHOWING))
        if opener is None:
            self.faults.append(f"nothing that opens {name}")
            return
        dialog = opened(self.application, opener, before)
        if dialog is None:
            self.faults.append(f"no dialog of {name}")
            return
        self.window(dialog)
        for further in inner:
            self.dialog(dialog, further, [])
        self.close(dialog, before)

    def close(self, dialog, before):
        closer = button(dialog, "Cancel", "Close")
        if closer is None:
            self.faults.append(f"nothing that closes {dialog.name}")
            return
        do(closer, "Press")
        if not eventually(lambda: len(windows(self.application)) == len(before)):
            self.faults.append(f"the dialog {dialog.name} stays")

    def advanced(self, main):
        """The dialog of key and initialisation vector takes the place of the one for the password."""
        password = opened(self.application, button(main, "Encrypt"), [main])
        link = find(password, lambda n: n.name == "Show advanced options" and states(n, pyatspi.STATE_SHOWING))
        key = link and opened(self.application, link, [main, password])
        if key:
            self.window(key)
        else:
            self.faults.append("no dialog of advanced options")
        self.close(key or password, [main])


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


def children(node):
    """What is in lists and tables is named after what it stands for, and is too much to look at."""
    return [] if node.getRole() in LISTS else [child for child in node if child is not None]


def find_all(node, predicate):
    return [node] * predicate(node) + [found for child in children(node) for found in find_all(child, predicate)]


def find(node, predicate):
    if predicate(node):
        return node
    return next(filter(None, (find(child, predicate) for child in children(node))), None)


def shown(node):
    return [n.name for n in find_all(node, lambda n: n.getRole() in ACTIVE and states(n, pyatspi.STATE_SHOWING))]


def button(node, *names):
    return find(node, lambda n: n.getRole() == pyatspi.ROLE_PUSH_BUTTON and n.name in names)


def do(node, *wanted):
    """The first of the wanted actions that there is."""
    names = actions_of(node)
    name = next(name for name in wanted if name in names)
    node.queryAction().doAction(names.index(name))


def click(node):
    """Where the text of a link is, too. An action that opens a dialog would not return before that is closed."""
    box = node.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
    x, y = box.x + min(box.width, 40) // 2, box.y + box.height // 2
    subprocess.run(["xdotool", "mousemove", str(x), str(y), "click", "1"], check=True, timeout=PATIENCE)


def windows(application):
    return [window for window in application if window is not None]


def opened(application, opener, before):
    """The window that it opens. A click is lost where another dialog is just going."""
    for _ in range(PATIENCE // 2):
        click(opener)
        dialog = eventually(lambda: next((w for w in windows(application) if w not in before), None), 2)
        if dialog is not None:
            return dialog
    return None


def encrypt(walk, main):
    """Leaves the window with a result, which is announced. What is typed into a masked field is nothing to tell on the
    bus."""
    told, announced = [], []
    pyatspi.Registry.registerEventListener(lambda event: announced.append(event.source and event.source.name),
                                           "object:state-changed:showing")
    pyatspi.Registry.registerEventListener(lambda event: told.append(event.any_data), "object:text-changed:insert")
    dialog = opened(walk.application, button(main, "Encrypt"), [main])
    for field in find_all(dialog, lambda n: n.getRole() == pyatspi.ROLE_PASSWORD_TEXT):
        field.queryEditableText().setTextContents(SECRET)
    bullets = "\u2022" * len(SECRET)
    if not eventually(lambda: told.count(bullets) == 2) or SECRET in told:
        walk.faults.append(f"told of the password: {told}")
    do(button(dialog, "OK"), "Press")
    if not eventually(lambda: len(windows(walk.application)) == 1 and find(
            main, lambda n: "successfully" in n.name and states(n, pyatspi.STATE_SHOWING))):
        walk.faults.append("no result to read")
    # The label has the sentence alone.
    if not eventually(lambda: any("successfully. letter.txt" in (name or "") for name in announced)):
        walk.faults.append(f"no word of the result: {announced}")


def walk(quillet, home):
    file = home + "/letter.txt"
    with open(file, "w") as stream:
        stream.write("x")
    len(pyatspi.Registry.getDesktop(0))  # once it answers, programs can make themselves known
    process = subprocess.Popen([quillet, file], env=os.environ | {
        "HOME": home, "XDG_CONFIG_HOME": home, "XDG_DATA_HOME": home, "XDG_STATE_HOME": home,
        "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1", "ASAN_OPTIONS": "detect_leaks=0"})
    try:
        application = eventually(lambda: next((a for a in pyatspi.Registry.getDesktop(0) if a is not None and len(a) > 0 and
                                               a.get_process_id() == process.pid), None))
        if application is None:
            sys.exit(f"the program has not come to the bus, and ended with {process.poll()}")
        walk = Walk(application)
        main = eventually(lambda: application[0])
        eventually(lambda: "letter.txt" in main.name)
        walk.window(main)
        for name, inner in DIALOGS:
            walk.dialog(main, name, inner)
        walk.advanced(main)
        encrypt(walk, main)
        walk.window(main)
    finally:
        process.terminate()
        process.wait(PATIENCE)
    print(f"controls: {walk.count}, faults: {len(walk.faults)}")
    for fault in walk.faults:
        print("FAULT", fault)
    return 1 if walk.faults else 0


with tempfile.TemporaryDirectory() as home:
    sys.exit(walk(sys.argv[1], home))
