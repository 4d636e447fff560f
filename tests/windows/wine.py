"""Runs the Windows console program under Wine."""
import os
import pathlib
import subprocess

PASSWORD = "Žluťoučký kůň"
RUNNER = pathlib.Path(__file__).resolve().parents[2] / "packaging/windows/wine.sh"


def started(program, *words, **options):
    """A process group of its own."""
    return subprocess.Popen([RUNNER, program, *words], stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                            stderr=subprocess.PIPE, start_new_session=True, **options)


def run(program, *words, code=0):
    """What the program, an .exe or one of this machine, tells; it must end with that code."""
    command = [RUNNER, program] if str(program).endswith(".exe") else [program]
    done = subprocess.run([*command, *words], stdin=subprocess.DEVNULL, capture_output=True, timeout=900)
    told = (done.stdout + done.stderr).decode()
    assert done.returncode == code, f"{words}: {done.returncode}: {told}"
    return told


def files(folder):
    """What is in the folder: names and contents."""
    return {os.path.relpath(os.path.join(top, name), folder): pathlib.Path(top, name).read_bytes()
            for top, _, names in os.walk(folder) for name in names}
