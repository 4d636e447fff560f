"""Runs the Windows console program under Wine."""
import contextlib
import os
import pathlib
import subprocess

PASSWORD = "Žluťoučký kůň"
RUNNER = pathlib.Path(__file__).resolve().parents[2] / "packaging/windows/wine.sh"


def started(program, *words):
    """A process group of its own."""
    return subprocess.Popen([RUNNER, program, *words], stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                            stderr=subprocess.DEVNULL, start_new_session=True)


def run(program, *words, code=0):
    """What the program, an .exe or one of this machine, tells; it must end with that code."""
    command = [RUNNER, program] if str(program).endswith(".exe") else [program]
    done = subprocess.run([*command, *words], stdin=subprocess.DEVNULL, capture_output=True, timeout=900)
    told = (done.stdout + done.stderr).decode()
    assert done.returncode == code, f"{words}: {done.returncode}: {told}"
    return told


@contextlib.contextmanager
def kept_ready():
    """Without a program that runs, Wine starts anew for each one."""
    waiting = subprocess.Popen([RUNNER, "cmd.exe", "/c", "echo ready & pause"], stdin=subprocess.PIPE,
                               stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                               env={**os.environ, "QUILLET_WINE_SECONDS": "3600"})
    waiting.stdout.readline()  # its server is there
    try:
        yield
    finally:
        waiting.stdin.write(b"\r\n")
        waiting.stdin.close()
        waiting.wait()


def files(folder):
    """What is in the folder: names and contents."""
    return {os.path.relpath(os.path.join(top, name), folder): pathlib.Path(top, name).read_bytes()
            for top, _, names in os.walk(folder) for name in names}
