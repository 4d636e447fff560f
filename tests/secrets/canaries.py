#!/usr/bin/python3
"""canaries.py QUILLET QUILLET_CLI: gives passwords, keys and initialisation vectors to both programs in every
place that takes them, and looks for them afterwards: in all the memory of the program, which it is held at its end
for, in what it wrote (log at its highest level, settings, messages) and in its arguments. Needs an X server and a bus
of its own, and LD_BIND_NOW: where a function is called for the first time, the loader would save the registers on the
stack, which nobody can wipe."""
import os
import pathlib
import pty
import random
import re
import signal
import subprocess
import sys
import tempfile
import termios
import time

from traced import Traced

sys.path.insert(1, os.path.join(sys.path[0], "../support"))
from screen import PATIENCE, Screen, eventually  # noqa: E402

QUILLET, CLI = sys.argv[1:]
ENCODINGS = ("utf-8", "utf-16-le", "utf-32-le")
UNDO = 16  # bytes of an entry of the toolkit's undo history, which begins with the letter
# Every eight letters or bytes of a canary begin with these, by which a search is soon through.
LETTERS, BYTES = "qzx", b"\xf1\x7e\xc3"


class Canary:
    """A secret that is nowhere else, as text or as bytes, and what a copy of any part of it would show."""

    def __init__(self, text=None, size=0):
        self.text, self.forms = text, []
        if text:
            words = [text[at:at + 8] for at in range(0, len(text) - 7, 8)]
            digits = [word.encode()[:4].hex() for word in words]
        else:
            words, pieces = [], [BYTES + random.randbytes(5) for _ in range(size // 8)]
            digits = [piece[:4].hex() for piece in pieces]
            self.text = b"".join(pieces).hex()
            self.forms = [("bytes", BYTES, piece) for piece in pieces]
        for piece in words + digits + [digit.upper() for digit in digits]:
            for encoding in ENCODINGS:
                form = piece.encode(encoding)
                self.forms.append((f"{piece} in {encoding}", form[:len(form) * 3 // 8], form))
        letters = self.text[:8].encode("utf-16-le")
        entry = b".{%d}" % (UNDO - 2)
        self.spread = re.compile(entry.join(re.escape(letters[at:at + 2]) for at in range(0, 16, 2)), re.DOTALL)

    def seen_in(self, content):
        begun = {start for start in {start for _, start, _ in self.forms} if start in content}
        seen = [name for name, start, form in self.forms if start in begun and form in content]
        return seen + (["spread over entries"] if self.spread.search(content) else [])


def password():
    return Canary("".join(LETTERS + "".join(random.choices("abcdefghijklmnopqrstuvwxyz0123456789", k=5)) for _ in range(3)))


def copies(program, canaries):
    """Where the program has them in its memory."""
    return [f"{form} at {where}" for where, content in program.read() for canary in canaries
            for form in canary.seen_in(content)]


class Report:
    faults = 0

    def tell(self, place, found):
        print(f"{place}: {'clean' if not found else ', '.join(found[:8])}", flush=True)
        self.faults += bool(found)

    def await_clean(self, place, program, *canaries):
        """The last of them go when the event loop comes to it."""
        end = time.monotonic() + 10
        while (found := copies(program, canaries)) and time.monotonic() < end:
            program.poll()
        self.tell(place, found)

    def written(self, place, folder, canaries):
        self.tell(place, [f"{form} in {path}" for path in pathlib.Path(folder).rglob("*")
                          if path.is_file() and path.suffix != ".secret"
                          for canary in canaries for form in canary.seen_in(path.read_bytes())])


def write(path, text):
    pathlib.Path(path).write_text(text)
    return path


def seconds_of(program):
    """What it has calculated."""
    stat = pathlib.Path(f"/proc/{program.pid}/stat").read_text()
    return int(stat.rpartition(")")[2].split()[11]) / os.sysconf("SC_CLK_TCK")


def answer_prompts(master, answers):
    for answer in answers:
        shown = b""
        while not re.search(rb"assword: $", shown):
            shown += os.read(master, 1000)
        os.write(master, answer.encode())


def run_console(report, home):
    canaries = {"right": password(), "wrong": password(), "key": Canary(size=32), "iv": Canary(size=16)}
    answers = {name: canary.text + "\n" for name, canary in canaries.items()}
    answers["cut"] = canaries["right"].text[:20] + "\x03"
    for name, canary in canaries.items():
        write(f"{home}/{name}.secret", canary.text)
    pathlib.Path(home, "letter").write_bytes(random.randbytes(300000))
    os.truncate(write(f"{home}/zeros", ""), 8 << 30)
    for row in pathlib.Path(sys.path[0], "../data/secret_jobs.txt").read_text().splitlines():
        if row[0] == "#":
            continue
        place, words, given, told, expected = (field.strip() for field in row.split("|"))
        given = [canaries[name] for name in given.split()]
        master, terminal = pty.openpty()
        settings = termios.tcgetattr(terminal)
        settings[1] &= ~termios.OPOST
        termios.tcsetattr(terminal, termios.TCSANOW, settings)
        with open(f"{home}/messages", "ab") as messages:
            program = Traced([CLI, *words.replace("~", home).split()], terminal=terminal, stdin=terminal,
                             stdout=messages, stderr=messages)
        if told == "stop":
            eventually(lambda: seconds_of(program) > 0.2, "it does not work")
            report.await_clean(f"console, {place}, before", program, *given)
            os.kill(program.pid, signal.SIGINT)
        else:
            answer_prompts(master, [answers[word] for word in told.split()])
        program.hold_at_end()
        report.await_clean(f"console, {place}", program, *given)
        if (code := program.end()) != int(expected):
            report.tell(f"console, {place}", [f"ended with {code}"])
        os.close(master)
        os.close(terminal)
    os.remove(f"{home}/zeros")
    report.written("console, files and messages", home, canaries.values())


class Window:
    def __init__(self, report, home, screen):
        self.report, self.home, self.screen = report, home, screen
        self.right, self.seen = password(), []
        write(f"{home}/right.secret", self.right.text)
        letter = write(f"{home}/plain", "x" * 5000)
        for name, seal in (("letter", []), ("sealed", ["--seal"])):
            subprocess.run([CLI, "encrypt", "-q", *seal, "--password-file", f"{home}/right.secret", "-o",
                            f"{home}/{name}", letter], check=True, timeout=PATIENCE)

    def start(self, name):
        os.makedirs(f"{self.home}/Tessaly", exist_ok=True)
        write(f"{self.home}/Tessaly/Quillet.conf", "[General]\nUseLogFile=true\nLogLevel=6\n")
        with open(f"{self.home}/messages", "ab") as messages:
            self.program = Traced([QUILLET, f"{self.home}/{name}"], stdout=messages, stderr=messages, env=os.environ | {
                "HOME": self.home, "TMPDIR": self.home, "XDG_CONFIG_HOME": self.home, "XDG_DATA_HOME": self.home,
                "XDG_STATE_HOME": self.home, "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1", "LC_ALL": "C.UTF-8"})
        self.name = name
        self.main = self.screen.await_window(f"{name} - Quillet")

    def check(self, place, *canaries):
        self.seen += canaries
        self.report.await_clean("window, " + place, self.program, *canaries)

    def open(self, key, title):
        self.screen.focus(self.main)
        self.screen.key(key)
        return self.screen.await_window(title)

    def await_typed(self, *canaries):
        """Else nothing would be found whatever it leaves behind."""
        eventually(lambda: all(copies(self.program, [canary]) for canary in canaries), "nothing of what was typed")

    def away(self, way, dialog, title):
        if way == "close":
            self.screen.close(dialog)
        elif way == "Cancel":
            self.screen.click_last_button(dialog)
        else:
            self.screen.key(way)
        self.screen.await_gone(title)

    def await_end(self):
        """The title has a percentage while a job runs."""
        eventually(lambda: not self.screen.find("% - "), "the job does not end")

    def remove_output(self):
        output = f"{self.home}/{self.name}.enc"
        eventually(lambda: os.path.exists(output), f"no output {output}")
        self.await_end()
        os.remove(output)

    # What is filled in where

    def encryption(self, *keys):
        dialog, secret = self.open("F5", "Password to encrypt"), password()
        self.screen.key(*keys)
        self.screen.type(secret.text, secret.text)
        self.await_typed(secret)
        return dialog, "Password to", [secret]

    def decryption(self, secret=None):
        dialog, secret = self.open("F6", "Password to decrypt"), secret or password()
        self.screen.type(secret.text)
        self.await_typed(secret)
        return dialog, "Password to", [secret]

    def key_and_iv(self):
        """By way of a password that is typed and left."""
        _, _, secrets = self.encryption()
        self.screen.key("Alt_L+p", *["Shift_L+Tab"] * 3, "space")
        dialog, key, iv = self.screen.await_window("Key and IV"), Canary(size=32), Canary(size=16)
        self.screen.type(iv.text, key.text)
        self.await_typed(key, iv)
        return dialog, "Key and IV", [*secrets, key, iv]

    def generator(self):
        outer = self.open("F5", "Password to encrypt")
        self.screen.key("Alt_L+g")
        dialog = self.screen.await_window("Generate a password")
        self.screen.key("Alt_L+m", "Down", "Alt_L+c")  # no words, which are in a list
        secret = Canary(eventually(self.screen.clipboard, "nothing on the clipboard"))
        self.await_typed(secret)
        self.screen.take_clipboard()
        return dialog, "Generate a password", [secret], outer

    # The places

    def leave(self):
        ways = "Escape", "Cancel", "close"
        for name, fill, ways in (("encryption", self.encryption, ways), ("decryption", self.decryption, ways),
                                 ("shown encryption", lambda: self.encryption("Alt_L+s", "Alt_L+p"), ways),
                                 ("key and IV", self.key_and_iv, ways),
                                 ("generator", self.generator, ("Return", "Escape", "close"))):
            for way in ways:
                dialog, title, secrets, *behind = fill()
                self.away(way, dialog, title)
                for outer in behind:
                    self.screen.focus(outer)
                    self.away("Escape", outer, "Password to")
                self.check(f"{name} left by {way}", *secrets)

    def accept(self):
        """The output's name is proposed when the window opens, and stays."""
        for place, fill in (("encryption", self.encryption), ("key and IV", self.key_and_iv),
                            ("decryption", lambda: self.decryption(self.right))):
            _, title, secrets = fill()
            self.away("Return", None, title)
            self.remove_output()
            self.check(f"{place} of {self.name} done", *secrets)
        _, title, secrets = self.decryption()
        self.away("Return", None, title)
        self.await_end()
        self.check(f"decryption of {self.name}, wrong password", *secrets)

    def stop(self):
        _, title, secrets = self.decryption()
        self.away("Return", None, title)
        self.screen.focus(eventually(lambda: self.screen.find("% - "), "no job"))
        self.screen.key("F8")
        self.await_end()
        self.check("stopped at work", *secrets)

    def end(self, place, *canaries):
        os.kill(self.program.pid, signal.SIGTERM)
        self.program.hold_at_end()
        self.check(place, *canaries)
        self.program.end()


def run_window(report, home):
    window = Window(report, home, Screen())
    window.start("letter")
    window.leave()
    window.accept()
    _, _, secrets = window.key_and_iv()
    window.end("ended while a dialog is open", *secrets)
    window.start("sealed")
    window.accept()
    window.stop()
    window.end("ended")
    report.written("window, files and messages", home, window.seen)


signal.signal(signal.SIGINT, signal.default_int_handler)  # ignored below a shell that does other work meanwhile
with tempfile.TemporaryDirectory() as console, tempfile.TemporaryDirectory() as windowed:
    report = Report()
    run_console(report, console)
    run_window(report, windowed)
    print(f"faults: {report.faults}")
    sys.exit(report.faults > 0)
