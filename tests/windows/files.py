#!/usr/bin/env python3
"""What quillet-cli.exe leaves behind when a job fails or is killed: nothing partial, and nothing lost. Argument: the
program. Runs as root, for the disk of a few megabytes, else it is skipped. Nobody else should use its $WINEPREFIX, as
the wineserver is killed too."""
import contextlib
import os
import pathlib
import signal
import subprocess
import sys
import tempfile
import time

import wine

PROGRAM = os.path.abspath(sys.argv[1])
os.environ.setdefault("WINEPREFIX", os.path.expanduser("~/.cache/quillet-windows/wine-files"))
SIZE = 48 << 20  # bytes; long enough for a kill in the middle
MOMENTS = 6


def encrypt(*words, code=0):
    return wine.run(PROGRAM, "encrypt", "--password-file", "pw", *words, code=code)


def written(name, data):
    pathlib.Path(name).write_bytes(data)


def wrong_password():
    encrypt("-o", "sealed", "-s", "plain")
    encrypt("-o", "made", "plain")
    written("wrong", b"wrong")
    before = wine.files(".")
    for name in ("made", "sealed"):
        wine.run(PROGRAM, "decrypt", "--password-file", "wrong", "-o", "opened", name, code=3)
        assert wine.files(".") == before
    print("wrong password: 2 files refused, nothing written")


def existing_output():
    written("out", b"precious")
    encrypt("-o", "out", "plain", code=1)
    assert pathlib.Path("out").read_bytes() == b"precious"
    encrypt("-fo", "out", "plain")
    assert len(pathlib.Path("out").read_bytes()) > len(PLAIN)
    print("existing output: kept, and replaced when asked to")


@contextlib.contextmanager
def small_disk():
    """Of 4 MB: an image with a file system of its own, or memory where none can be mounted."""
    os.mkdir("disk")
    with open("image", "wb") as image:
        image.truncate(4 << 20)
    subprocess.run(["mkfs.ext4", "-q", "-m0", "image"], check=True)
    kind = "ext4"
    if subprocess.run(["mount", "-o", "loop", "image", "disk"], stderr=subprocess.DEVNULL).returncode != 0:
        subprocess.run(["mount", "-t", "tmpfs", "-o", "size=4m", "none", "disk"], check=True)
        kind = "tmpfs"
    try:
        yield kind
    finally:
        subprocess.run(["umount", "disk"], check=True)


def full_disk():
    """Once too small for the room to be set aside, once full in the middle of small outputs."""
    with small_disk() as kind:
        written("large", os.urandom(6 << 20))
        written("disk/out", b"precious")
        stat = os.statvfs("disk")
        for source, spare in (("large", None), ("plain", 65536)):
            if spare:
                written("disk/filler", bytes(stat.f_bavail * stat.f_frsize - spare))
            before = wine.files("disk")
            for words in (["-o", "disk/new"], ["-fo", "disk/out"]):
                told = encrypt(*words, source, code=1)
                assert wine.files("disk") == before, told
    print(f"full disk ({kind}): 4 runs failed, nothing written, the former file as it was: {told.strip()}")


def server():
    """The wineserver of our WINEPREFIX."""
    for process in pathlib.Path("/proc").glob("[0-9]*"):
        with contextlib.suppress(OSError):
            environment = (process / "environ").read_bytes().split(b"\0")
            if b"wineserver" in (process / "comm").read_bytes() and \
                    f"WINEPREFIX={os.environ['WINEPREFIX']}".encode() in environment:
                return int(process.name)
    return None


def hidden():
    return list(pathlib.Path(".").glob(".quillet-partial-*"))


def awaited(condition, what):
    deadline = time.monotonic() + 120
    while not (found := condition()):
        assert time.monotonic() < deadline, what
        time.sleep(0.005)
    return found


def kill(words, moment, with_server):
    """Whether the job was still at work when it was killed."""
    job = wine.started(PROGRAM, "encrypt", "--password-file", "pw", *words, "big")
    part = SIZE * moment // MOMENTS
    with contextlib.suppress(FileNotFoundError):
        awaited(lambda: job.poll() is not None or any(file.stat().st_size >= part for file in hidden()), "no output")
    running = job.poll() is None
    if with_server and (pid := server()):
        os.kill(pid, signal.SIGKILL)
    with contextlib.suppress(ProcessLookupError):
        os.killpg(job.pid, signal.SIGKILL)
    job.communicate()
    return running


def kills(with_server):
    """Of the program alone, or of all that belongs to it; then Wine, as a loss of power, can remove nothing."""
    written("big", BIG)
    cut = left = 0
    for moment in range(MOMENTS):
        for words in (["-o", "new"], ["-fo", "former"]):
            written("former", b"precious")
            before = wine.files(".")
            cut += kill(words, moment, with_server)
            if with_server:
                left += len(hidden())
                encrypt("-fo", "after", "plain")  # removes what was left behind
                os.remove("after")
            awaited(lambda: not hidden(), "a part of an output stays")
            now = wine.files(".")
            if len(now.get("new", b"")) > len(BIG):  # done before the kill came
                del now["new"]
                os.remove("new")
            if len(now["former"]) > len(BIG):
                now["former"] = b"precious"
            assert now == before
    what = "program and wineserver" if with_server else "program"
    print(f"{what} killed: {cut} of {2 * MOMENTS} in the middle; no output in part, input and former output as they were"
          + (f"; {left} hidden files left, removed by the next job" if with_server else "; no hidden file left"))


if os.getuid() != 0:
    sys.exit(77)
PLAIN, BIG = os.urandom(100003), os.urandom(SIZE)
with tempfile.TemporaryDirectory() as scratch:
    os.chdir(scratch)
    written("pw", wine.PASSWORD.encode())
    written("plain", PLAIN)
    wrong_password()
    existing_output()
    full_disk()
    kills(with_server=False)
    kills(with_server=True)
    os.chdir("/")
