#!/usr/bin/env python3
"""kills.py QUILLET QUILLET_CLI [ROUNDS [BYTES]]: ends both programs at random moments of encryptions and
decryptions, with and without a former output, in every way in which a program can end before its time,
and counts what is left that should not be, or is gone that should be there. Needs Xvfb, xdotool, xkill."""

import collections
import itertools
import os
import random
import signal
import subprocess
import sys
import tempfile
import time

from server import read, write

QUILLET, CLI = map(os.path.abspath, sys.argv[1:3])
ROUNDS = int(sys.argv[3]) if len(sys.argv) > 3 else 200
SIZE = int(sys.argv[4]) if len(sys.argv) > 4 else 150_000_000
PASSWORD = "secret"


class Display:
    """An X server of its own for one run of the window."""

    def __enter__(self):
        ready, server_end = os.pipe()
        self.server = subprocess.Popen(["Xvfb", "-displayfd", str(server_end), "-screen", "0", "1024x768x24", "-noreset"],
                                       pass_fds=[server_end], stderr=subprocess.DEVNULL)
        os.close(server_end)
        with os.fdopen(ready) as number:
            self.environment = {**os.environ, "DISPLAY": ":" + number.readline().strip()}
        return self

    def __exit__(self, *_):
        self.server.kill()
        self.server.wait()

    def do(self, *command):
        done = subprocess.run(command, env=self.environment, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
        return done.stdout.split()

    def window(self, title):
        for _ in range(600):
            if found := self.do("xdotool", "search", "--name", title):
                return found[-1]
            time.sleep(0.05)
        raise RuntimeError(f"no window {title}")


def run_console(operation, source, former, end):
    """Ends the console program after a random time; True when it was still running."""
    command = [CLI, operation, "--password-file", "password", "--output", "out", source]
    process = subprocess.Popen(command + ["--force"] * former, stderr=subprocess.DEVNULL)
    return end_after_a_while(process, lambda: process.send_signal(end))


def run_window(operation, source, former, end):
    settings(former)
    with Display() as display:
        process = subprocess.Popen([QUILLET, f"-{operation}", "-start", "-ifile", source, "-ofile", os.path.abspath("out")],
                                   env=display.environment, stderr=subprocess.DEVNULL)
        dialog = display.window(f"Password to {operation}")
        main = display.window("Quillet")
        display.do("xdotool", "windowfocus", "--sync", dialog)
        display.do("xdotool", "type", "--delay", "5", PASSWORD)
        display.do("xdotool", "key", "Return")
        ways = {
            "xkill": lambda: display.do("xkill", "-id", main),
            "display": display.server.kill,
        }
        return end_after_a_while(process, ways.get(end, lambda: process.send_signal(end)))


def end_after_a_while(process, end):
    time.sleep(random.random() * 0.8)
    running = process.poll() is None
    if running:
        end()
    try:
        process.wait(5)
    except subprocess.TimeoutExpired:  # it does not watch its own window go away
        process.kill()
        process.wait()
    return running


def settings(rewrite):
    folder = os.path.join(os.environ["XDG_CONFIG_HOME"], "Tessaly")
    os.makedirs(folder, exist_ok=True)
    write(os.path.join(folder, "Quillet.conf"),
          f"[General]\nUseConfirmPassword=false\nDeleteSourceFileAfterEncryption=true\n"
          f"ConfirmDeleteSourceFileAfterEncryption=false\nRewriteOutputFile={str(bool(rewrite)).lower()}\n".encode())


CONSOLE_ENDS = (signal.SIGKILL, signal.SIGTERM, signal.SIGINT)
WINDOW_ENDS = (signal.SIGKILL, signal.SIGTERM, "xkill", "display")
counts = collections.Counter()


def judge(program, operation, source, original, results, former):
    """Counts what one round has left."""
    left = read("out") if os.path.exists("out") else None
    whole = left is not None and left in results
    counts["new output whole"] += whole
    if left is not None and not whole and not (former and left == b"former"):
        counts["PARTIAL OUTPUTS"] += 1
    if former and left is None:
        # With rewriting on, the window removes the former output before it begins.
        counts["former output given up by the window" if program is run_window else "LOST FORMER OUTPUTS"] += 1
    if os.path.exists(source):
        counts["LOST INPUTS"] += read(source) != original
    else:
        counts["LOST INPUTS"] += operation == "decrypt" or not whole
        counts["input deleted, output whole"] += whole
    strange = [name for name in os.listdir() if name.startswith(".quillet")]
    counts["hidden files left"] += len(strange)
    for name in strange:
        os.remove(name)


with tempfile.TemporaryDirectory() as home:
    os.chdir(home)
    os.environ.update({"HOME": home, "XDG_CONFIG_HOME": home + "/config", "XDG_STATE_HOME": home + "/state",
                       "XDG_DATA_HOME": home + "/data"})
    write("password", PASSWORD.encode())
    plain = os.urandom(SIZE)
    write("plain", plain)
    subprocess.run([CLI, "encrypt", "--password-file", "password", "--output", "sealed", "plain"], check=True)
    sealed = read("sealed")
    ways = [(run_console, end) for end in CONSOLE_ENDS] + [(run_window, end) for end in WINDOW_ENDS]
    rounds = itertools.cycle(itertools.product(ways, ("encrypt", "decrypt"), (False, True)))
    for (program, end), operation, former in itertools.islice(rounds, ROUNDS):
        for name in ("in", "out"):
            if os.path.exists(name):
                os.remove(name)
        if former:
            write("out", b"former")
        original, results = (plain, [sealed]) if operation == "encrypt" else (sealed, [plain])
        write("in", original)
        source = os.path.abspath("in")
        counts["kills"] += program(operation, source, former, end)
        counts["rounds"] += 1
        judge(program, operation, source, original, results, former)
    os.chdir("/")
for name in ("PARTIAL OUTPUTS", "LOST FORMER OUTPUTS", "LOST INPUTS"):
    counts.setdefault(name, 0)
for name, count in sorted(counts.items()):
    print(f"{name}: {count}")
sys.exit(any(counts[name] for name in ("PARTIAL OUTPUTS", "LOST FORMER OUTPUTS", "LOST INPUTS")))
