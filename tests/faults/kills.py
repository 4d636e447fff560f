#!/usr/bin/python3
"""kills.py QUILLET QUILLET_CLI LIBRARY [BYTES]: ends the window in the middle of encryptions and decryptions, with and
without a former output, in every way in which it can be ended from outside, and looks for what is left that should not
be, or is gone that should be there. window.py kills it at every system call. Needs Xvfb."""

import itertools
import os
import subprocess
import sys

from server import read, scratch, window_at, write

sys.path.insert(1, os.path.join(sys.path[0], "../support"))
from screen import Screen, eventually  # noqa: E402

QUILLET, CLI, LIBRARY = map(os.path.abspath, sys.argv[1:4])
SIZE = int(sys.argv[4]) if len(sys.argv) > 4 else 150_000_000
PASSWORD = "secret"
HANGING = {"LD_PRELOAD": LIBRARY, "FAULTS_WITHOUT": "O_TMPFILE flush"}


def close_connection(window):
    window.kill_client()
    window.display.flush()


ENDS = {"SIGTERM": lambda process, server, window: process.terminate(),
        "SIGTERM, the disk hangs": lambda process, server, window: process.terminate(),
        "its connection is closed": lambda process, server, window: close_connection(window),
        "the display goes": lambda process, server, window: server.kill()}


def end_at_work(home, end, operation, former):
    """On an X server of its own; the title has a percentage while a job runs."""
    hangs = end.endswith("hangs")
    environment = os.environ | window_at(home, RewriteOutputFile=former) | (HANGING if hangs else {})
    ready, server_end = os.pipe()
    server = subprocess.Popen(["Xvfb", "-displayfd", str(server_end), "-screen", "0", "1024x768x24", "-noreset"],
                              pass_fds=[server_end], stderr=subprocess.DEVNULL)
    os.close(server_end)
    with os.fdopen(ready) as number:
        display = ":" + number.readline().strip()
    command = [QUILLET, f"-{operation}", "-start", "-ifile", os.path.abspath("in"), "-ofile", os.path.abspath("out")]
    process = subprocess.Popen(command, env=environment | {"DISPLAY": display}, stderr=subprocess.DEVNULL)
    screen = Screen(display)
    screen.await_window(f"Password to {operation}")
    screen.type(PASSWORD)
    screen.key("Return")
    ENDS[end](process, server, eventually(lambda: screen.find("100% - " if hangs else "% - "), "no job"))
    process.wait(60)
    server.kill()
    server.wait()


def problems(operation, original, result, former):
    left = read("out") if os.path.exists("out") else None
    if left not in (None, result) and not (former and left == b"former"):
        yield "a partial output"
    if os.path.exists("in"):
        if read("in") != original:
            yield "a changed input"
    elif operation == "decrypt" or left != result:
        yield "a lost input"
    yield from (f"{name} left" for name in os.listdir() if name.startswith(".quillet"))


with scratch() as home:
    os.mkdir(f"{home}/work")
    os.chdir(f"{home}/work")
    plain = os.urandom(SIZE)
    for name, data in ("../plain", plain), ("../pw", PASSWORD.encode()):
        write(name, data)
    subprocess.run([CLI, "encrypt", "--password-file", "../pw", "--output", "../sealed", "../plain"], check=True)
    faults = 0
    for end, operation, former in itertools.product(ENDS, ("encrypt", "decrypt"), (False, True)):
        for name in os.listdir():
            os.remove(name)
        if former:
            write("out", b"former")
        files = [plain, read("../sealed")][::1 if operation == "encrypt" else -1]
        write("in", files[0])
        end_at_work(home, end, operation, former)
        found = list(problems(operation, *files, former))
        faults += len(found)
        print(f"{operation}{', output exists' * former}, {end}:", ", ".join(found) or "nothing lost", flush=True)
    os.chdir("/")
sys.exit(faults > 0)
