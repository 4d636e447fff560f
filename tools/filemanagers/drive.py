#!/usr/bin/python3
"""drive.py QUILLET [MANAGER ...]: what each file manager hands over when a user selects files and takes
"Encrypt with Quillet" from its menu.

Each manager runs on an X server, a bus and a home of its own, with the entries that QUILLET writes there.
Files with odd names are selected one by one and all at once; a recorder in QUILLET's place tells what came.
The last step of each manager is the real program. Debian: xvfb, openbox, xdotool, dbus, python3-pyatspi, at-spi2-core
and the managers."""
import ast
import os
import shutil
import subprocess
import sys
import tempfile
import time
import urllib.parse

NAMES = [b"two words.txt", b"quote's.txt", b'double"quotes".txt', b"a%f.txt", b"b%41.txt", b"new\nline.txt",
         b"-start.txt", "暗号化.txt".encode(), b"blank at the end ", b" blank before.txt", b"#hash?.txt",
         b"amp&semi;$HOME`x`.txt", b"back\\slash.txt", b"latin-\xe9.txt"]
ENTRY = "Encrypt with Quillet"
RECORDER = """#!/usr/bin/python3
import os, sys
with open({log!r}, "a") as log:
    log.write(repr([os.fsencode(a) for a in sys.argv[1:]]) + "\\n")
"""

# The command that shows a folder, and how the entry is taken: by the menus on the way to it, or by keys in the
# menu (GTK 2, GTK 4 and Qt don't show this menu on the accessibility bus).
MENUS, KEYS = range(2)
MANAGERS = {
    "nautilus": (["nautilus", "--new-window"], KEYS, ["s", "Down", "Down", "Return"]),
    "caja": (["caja", "--no-desktop", "--browser"], MENUS, ["Scripts", ENTRY]),
    "nemo": (["nemo", "--no-desktop"], MENUS, [ENTRY]),
    "thunar": (["thunar"], MENUS, [ENTRY]),
    "dolphin": (["dolphin"], KEYS, ["Up", "Up", "Right", "Down", "Return"]),
    "pcmanfm": (["pcmanfm"], KEYS, ["Up", "Up", "Up", "Return"]),
    "pcmanfm-qt": (["pcmanfm-qt"], KEYS, ["Up", "Up", "Up", "Up", "Return"]),
}


def eventually(look, seconds=20.0):
    """The first true answer of look(), or the last false one."""
    end = time.monotonic() + seconds
    while not (answer := look()) and time.monotonic() < end:
        time.sleep(0.1)
    return answer


def xdotool(*arguments):
    done = subprocess.run(["xdotool", *arguments], capture_output=True, text=True, timeout=20)
    return done.stdout.split()


def accessibles(node, depth=0):
    """node and what is below it, the last child first: menus come last."""
    yield node
    if depth > 25:
        return
    try:
        children = list(node)
    except Exception:  # it is gone
        return
    for child in reversed(children):
        if child is not None:
            yield from accessibles(child, depth + 1)


def find_item(name):
    """The menu item of that name that shows."""
    import pyatspi
    roles = (pyatspi.ROLE_MENU_ITEM, pyatspi.ROLE_MENU, pyatspi.ROLE_PUSH_BUTTON, pyatspi.ROLE_CHECK_MENU_ITEM)
    for application in pyatspi.Registry.getDesktop(0):
        if application is None:
            continue
        for node in accessibles(application):
            try:
                if node.name.replace("&", "") == name and node.getRole() in roles and \
                        node.getState().contains(pyatspi.STATE_SHOWING):
                    return node
            except Exception:
                continue
    return None


def press(item):
    """Clicks in its middle, as a user does."""
    import pyatspi
    box = item.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
    xdotool("mousemove", str(box.x + box.width // 2), str(box.y + box.height // 2), "click", "1")


class Session:
    """One manager showing one folder."""

    def __init__(self, name, folder):
        command, self.way, self.steps = MANAGERS[name]
        self.menu_key = "Menu" if name in ("dolphin", "pcmanfm-qt") else "shift+F10"  # Qt knows the first, GTK both
        self.process = subprocess.Popen([*command, folder], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.window = (eventually(lambda: xdotool("search", "--onlyvisible", "--class", name)) or [None])[-1]

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.process.terminate()
        try:
            self.process.wait(10)
        except subprocess.TimeoutExpired:
            self.process.kill()
            self.process.wait()
        eventually(lambda: not xdotool("search", "--onlyvisible", "--class", "."), 1)

    def choose(self):
        """Selects everything and takes the entry; tells what was missing."""
        if not self.window:
            return "no window"
        time.sleep(2.5 if self.way == KEYS else 1)  # the folder is being read
        for _ in range(4):
            xdotool("windowactivate", "--sync", self.window)
            if self.way == KEYS:  # in the free part of the view, for the keyboard
                box = dict(line.split("=") for line in xdotool("getwindowgeometry", "--shell", self.window))
                x, y = (int(box[a]) + int(box[b]) - 150 for a, b in (("X", "WIDTH"), ("Y", "HEIGHT")))
                xdotool("mousemove", str(x), str(y), "click", "1")
            xdotool("key", "ctrl+a")
            time.sleep(0.7)
            xdotool("key", self.menu_key)
            if self.way == KEYS:
                time.sleep(0.7)
                for step in self.steps:
                    xdotool("key", step)
                    time.sleep(0.4)
                return ""
            for step in self.steps:
                item = eventually(lambda: find_item(step), 3)
                if not item:
                    break
                press(item)
            else:
                return ""
            xdotool("key", "Escape", "Escape")
        return f"no entry {step!r}"


def path_of(argument):
    """As the program reads it."""
    if argument.startswith(b"file://"):
        return urllib.parse.unquote_to_bytes(argument[len("file://"):])
    return argument


def arrived(log):
    """The files of each start of the program."""
    if not os.path.exists(log):
        return []
    with open(log) as lines:
        starts = [ast.literal_eval(line) for line in lines]
    os.remove(log)
    return [[path_of(a) for a in start if a not in (b"-encrypt", b"-start", b"-ifile")] for start in starts]


def make_files(folder, names):
    os.makedirs(folder)
    paths = [os.path.join(os.fsencode(folder), name) for name in names]
    for path in paths:
        with open(path, "wb") as file:
            file.write(b"x")
    return paths


def drive(quillet, manager):
    home = os.environ["HOME"]
    program, log = home + "/programs/quillet", home + "/log"
    os.makedirs(home + "/programs")
    shutil.copy(quillet, program)
    # The entries are written by the program itself, once its window is there.
    with subprocess.Popen([program]) as writer:
        written = eventually(lambda: os.path.exists(home + "/.config/Thunar/uca.xml"))
        writer.terminate()
    print(f"== {manager}: {'entries written' if written else 'no entries'}")
    shutil.move(program, program + ".real")
    with open(program, "w") as file:
        file.write(RECORDER.format(log=log))
    os.chmod(program, 0o755)

    def take(folder, expected, label):
        with Session(manager, folder) as session:
            for _ in range(2):  # again where nothing was selected: the key came before the files were there
                fault = session.choose()
                if not fault:
                    eventually(lambda: os.path.exists(log), 5)
                    time.sleep(0.5)  # for more starts, of which there should be none
                starts = arrived(log)
                if starts != [[]]:
                    break
        same = len(starts) == 1 and sorted(starts[0]) == sorted(expected)
        print("ok  " if same else "FAIL", label, "" if same else fault or f"{len(starts)} starts: {starts}",
              flush=True)

    for number, name in enumerate(NAMES):
        folder = f"{home}/one{number}"
        take(folder, make_files(folder, [name]), repr(name))
    take(home + "/all", make_files(home + "/all", NAMES), f"all {len(NAMES)} at once")

    shutil.move(program + ".real", program)
    with Session(manager, f"{home}/one3") as session:
        fault = session.choose()
        window = eventually(lambda: xdotool("search", "--onlyvisible", "--name", r"^a%f\.txt - Quillet$"), 10)
        asked = eventually(lambda: xdotool("search", "--onlyvisible", "--name", "^Password to encrypt$"), 10)
        for pid in {pid for part in (window, asked) for pid in (xdotool("getwindowpid", part[0]) if part else [])}:
            os.kill(int(pid), 15)
    print("ok  " if window and asked else "FAIL", "the real program asks for a password for a%f.txt", fault, flush=True)


def main():
    quillet = os.path.abspath(sys.argv[1])
    if "QUILLET_DRIVEN" in os.environ:
        windows = subprocess.Popen(["openbox"], stderr=subprocess.DEVNULL)
        try:
            drive(quillet, os.environ["QUILLET_DRIVEN"])
        finally:
            windows.terminate()
        return
    for manager in sys.argv[2:] or MANAGERS:
        with tempfile.TemporaryDirectory(prefix="quillet-", ignore_cleanup_errors=True) as home:
            environment = {"PATH": os.environ["PATH"], "HOME": home, "LANG": "C.UTF-8", "QUILLET_DRIVEN": manager,
                           "XDG_RUNTIME_DIR": home + "/run", "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
                           "GIO_USE_VFS": "local", "XDG_CURRENT_DESKTOP": "X-Generic"}
            os.mkdir(home + "/run", 0o700)
            subprocess.run(["timeout", "400", "xvfb-run", "-a", "-s", "-screen 0 1280x1024x24 -dpi 96 -noreset",
                            "dbus-run-session", "--", sys.executable, __file__, quillet], env=environment, check=False)


main()
