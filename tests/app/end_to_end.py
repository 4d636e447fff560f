#!/usr/bin/python3
"""end_to_end.py QUILLET: types the password on an X server of its own, and compares the file after the way back.
Afterwards no secret may be found in settings, log or temporary files."""
import os
import pathlib
import re
import resource
import signal
import subprocess
import sys
import tempfile

sys.path.insert(1, os.path.join(sys.path[0], "../support"))
from screen import PATIENCE, Screen, eventually  # noqa: E402

QUILLET = sys.argv[1]
SECRET = "tr0ub4dorand3"


def ask(direction, source, target):
    """Starts the program; what is typed goes to its password dialog."""
    process = subprocess.Popen([QUILLET, f"-{direction}", "-start", "-ifile", source, "-ofile", target, "-algorithm",
                                "Serpent-256"])
    screen.await_window(f"Password to {direction}")
    return process


def end(process):
    """As a log-out does it."""
    process.terminate()
    assert process.wait(PATIENCE) == 0, "the program does not end as it should"


def run(direction, source, target):
    process = ask(direction, source, target)
    process.send_signal(signal.SIGPIPE)  # as a reader of its output that goes away: nothing to end a job for
    screen.type(*[SECRET] * (2 if direction == "encrypt" else 1))
    screen.key("Return")
    eventually(target.exists, f"no output {target}")  # which appears when it is whole
    end(process)


with tempfile.TemporaryDirectory() as folder:
    home, screen = pathlib.Path(folder), Screen()
    # The program bars debuggers from itself, and a leak checker is one. The X and graphics libraries aren't built for
    # ThreadSanitizer, and there are too many to name.
    os.environ.update({"HOME": folder, "TMPDIR": folder, "XDG_CONFIG_HOME": folder, "XDG_STATE_HOME": folder,
                       "XDG_DATA_HOME": folder, "ASAN_OPTIONS": "detect_leaks=0",
                       "TSAN_OPTIONS": "ignore_noninstrumented_modules=1"})
    os.environ.pop("QT_QPA_PLATFORM", None)
    for name in "Tessaly", "caja":
        (home / name).mkdir()
    (home / "Tessaly/Quillet.conf").write_text("[General]\nUseLogFile=true\nLogLevel=6\n")

    dead = {"env": os.environ | {"DISPLAY": ":987"}, "capture_output": True, "text": True, "timeout": PATIENCE}
    done = subprocess.run([QUILLET], **dead)
    assert done.returncode == 1 and done.stderr.count("\n") == 1, f"with a dead display: {done}"
    assert subprocess.run([QUILLET, "--help"], **dead).stdout.startswith("Usage: quillet "), "no help"

    (home / "in").write_bytes(os.urandom(3000000))
    process = ask("encrypt", home / "in", home / "none")
    assert resource.prlimit(process.pid, resource.RLIMIT_CORE) == (0, 0), "a core dump could hold the secret"
    end(process)
    assert not (home / "none").exists(), "nobody has entered a password"
    run("encrypt", home / "in", home / "out")
    run("decrypt", home / "out", home / "back")
    assert (home / "in").read_bytes() == (home / "back").read_bytes(), "the file has changed on its way"
    assert (home / "out").stat().st_size == 3000064, "the encrypted file has the wrong size"
    assert os.access(home / "caja/scripts/Encrypt with Quillet", os.X_OK), "no entry in the file manager's menu"

    files = {path: path.read_bytes() for path in home.rglob("*") if path.is_file()}
    logs = b"".join(content for path, content in files.items() if path.suffix == ".log")
    assert re.search(b'Try to process command line: "-encrypt" "-start"', logs), "no line in the log"
    told = [path for path, content in files.items() if SECRET.encode() in content]
    assert not told, f"the password stands in {told}"
