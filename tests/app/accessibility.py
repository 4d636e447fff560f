#!/usr/bin/python3
"""accessibility.py QUILLET: walks the main window and every dialog of the program as a screen reader does. Fails on a control
without a name, or without an action where its role has one, and on a dialog that doesn't come. Needs an X server and a
bus of its own."""
import os
import subprocess
import sys
import tempfile
import time

from gi.repository import GLib
import pyatspi  # which asks for the bus as soon as it is loaded

PATIENCE = 60  # seconds, for a loaded machine


def roles(names):
    return {getattr(pyatspi, f"ROLE_{name}") for name in names.split()}


# What a user works with; everything else is there to hold these or to be read.
ACTIVE = roles("PUSH_BUTTON CHECK_BOX RADIO_BUTTON MENU_ITEM CHECK_MENU_ITEM COMBO_BOX LINK TOGGLE_BUTTON TEXT "
               "PASSWORD_TEXT SPIN_BUTTON SLIDER PUSH_BUTTON_MENU ENTRY")
LISTS = roles("LIST TABLE TREE TREE_TABLE")
NAMED = ACTIVE | LISTS | roles("PROGRESS_BAR MENU PAGE_TAB DIALOG")
WITHIN = roles("COMBO_BOX SPIN_BUTTON")  # what is in them is the toolkit's, and nobody comes to it
PASSING = roles("FRAME FILLER SCROLL_PANE")  # these hand the focus on to what they hold

# What opens a dialog, from the tool bar, and what opens one from there. The last takes its place.
DIALOGS = {"Options": [], "Default algorithm": [], "Information about algorithms": [], "Keyboard shortcuts": [],
           "About": [], "Encrypt": ["Generate...", "Show advanced options"]}
SECRET = "Tr0ub4dor-and-3"


def eventually(look, seconds=PATIENCE):
    end = time.monotonic() + seconds
    while not (answer := look()) and time.monotonic() < end:
        while GLib.MainContext.default().iteration(False):  # the news of the bus
            pass
        time.sleep(0.01)
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
        self.application, self.faults, self.count = application, [], 0

    def expect(self, right, fault):
        if not right:
            self.faults.append(fault)
        return right

    def window(self, window):
        self.expect(window.name, "a window without a title")
        self.node(window)
        for tab in list(find_all(window, lambda n: n.getRole() == pyatspi.ROLE_PAGE_TAB))[1:]:
            before = shown(tab.parent.parent)
            do(tab, "Press")
            self.expect(eventually(lambda: shown(tab.parent.parent) != before), f"the tab {tab.name} shows nothing")
            self.node(tab.parent.parent)

    def node(self, node, within=False):
        role = node.getRole()
        is_reached = states(node, pyatspi.STATE_FOCUSABLE, pyatspi.STATE_SHOWING) and role not in PASSING
        is_shown = states(node, pyatspi.STATE_VISIBLE) or node.parent.getRole() == pyatspi.ROLE_POPUP_MENU
        if is_shown and not within and (role in NAMED or is_reached):
            self.count += 1
            self.expect(name_of(node) or role == pyatspi.ROLE_SEPARATOR, "no name: " + path_to(node))
            can_act = role in ACTIVE and states(node, pyatspi.STATE_ENABLED, pyatspi.STATE_FOCUSABLE)
            self.expect(actions_of(node) or not can_act, "no action: " + path_to(node))
        for child in children(node):
            self.node(child, within or role in WITHIN)

    def dialog(self, parent, name, inner=()):
        """Opens it, walks it and what it opens, and closes it."""
        opener = find(parent, lambda n: n.name == name and states(n, pyatspi.STATE_SHOWING))
        dialog = opener and opened(self.application, opener)
        if not self.expect(dialog, f"no dialog of {name}"):
            return
        self.window(dialog)
        for further in inner:
            self.dialog(dialog, further)
        is_open = lambda: dialog in windows(self.application)
        closer = is_open() and button(dialog, "Cancel", "Close")
        if closer:
            do(closer, "Press")
        self.expect(eventually(lambda: not is_open()), f"the dialog of {name} stays")


def actions_of(node):
    try:
        action = node.queryAction()
        return [action.getName(i) for i in range(action.nActions)]
    except NotImplementedError:
        return []


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
    if predicate(node):
        yield node
    for child in children(node):
        yield from find_all(child, predicate)


def find(node, predicate):
    return next(find_all(node, predicate), None)


def shown(node):
    return [n.name for n in find_all(node, lambda n: n.getRole() in ACTIVE and states(n, pyatspi.STATE_SHOWING))]


def button(node, *names):
    return find(node, lambda n: n.getRole() == pyatspi.ROLE_PUSH_BUTTON and n.name in names)


def do(node, action):
    node.queryAction().doAction(actions_of(node).index(action))


def click(node):
    """Where the text of a link is, too. An action that opens a dialog would not return before that is closed."""
    box = node.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
    x, y = box.x + min(box.width, 40) // 2, box.y + box.height // 2
    subprocess.run(["xdotool", "mousemove", str(x), str(y), "click", "1"], check=True, timeout=PATIENCE)


def windows(application):
    return [window for window in application if window is not None]


def opened(application, opener):
    """The window that it opens. A click is lost where another dialog is just going."""
    before = windows(application)
    for _ in range(PATIENCE // 2):
        click(opener)
        if dialog := eventually(lambda: next((w for w in windows(application) if w not in before), None), 2):
            return dialog
    return None


def encrypt(walk, main):
    """Leaves the window with a result, which is announced. What is typed into a masked field is nothing to tell on the
    bus."""
    told, announced = [], []
    pyatspi.Registry.registerEventListener(lambda event: announced.append(event.source and event.source.name),
                                           "object:state-changed:showing")
    pyatspi.Registry.registerEventListener(lambda event: told.append(event.any_data), "object:text-changed:insert")
    dialog = opened(walk.application, button(main, "Encrypt"))
    for field in list(find_all(dialog, lambda n: n.getRole() == pyatspi.ROLE_PASSWORD_TEXT)):
        field.queryEditableText().setTextContents(SECRET)
    is_masked = eventually(lambda: told.count("\u2022" * len(SECRET)) == 2) and SECRET not in told
    walk.expect(is_masked, f"told of the password: {told}")
    do(button(dialog, "OK"), "Press")
    result = eventually(lambda: len(windows(walk.application)) == 1 and find(
        main, lambda n: "successfully" in n.name and states(n, pyatspi.STATE_SHOWING)))
    walk.expect(result, "no result to read")
    # The label has the sentence alone.
    walk.expect(eventually(lambda: any("successfully. letter.txt" in (name or "") for name in announced)),
                f"no word of the result: {announced}")


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
        assert application, f"the program has not come to the bus, and ended with {process.poll()}"
        walk = Walk(application)
        main = eventually(lambda: application[0])
        eventually(lambda: "letter.txt" in main.name)
        walk.window(main)
        for name, inner in DIALOGS.items():
            walk.dialog(main, name, inner)
        encrypt(walk, main)
        walk.window(main)
    finally:
        process.terminate()
        process.wait(PATIENCE)
    sys.exit("\n".join(walk.faults) if walk.faults or not walk.count else 0)


with tempfile.TemporaryDirectory() as home:
    walk(sys.argv[1], home)
