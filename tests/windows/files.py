#!/usr/bin/env python3
"""What quillet-cli.exe makes of patterns, and leaves behind when a job fails or is killed: nothing partial, and nothing
lost. Argument: the program. Runs as root, for the disk of a few megabytes, else it is skipped. Nobody else should use
its $WINEPREFIX, all of whose processes are killed."""
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
PREFIX = f"WINEPREFIX={os.environ['WINEPREFIX']}".encode()
SIZE = 48 << 20  # bytes; long enough for a kill in the middle
MOMENTS = 6


def encrypt(*words, code=0):
    return wine.run(PROGRAM, "encrypt", "--password-file", "pw", *words, code=code)


def written(name, data):
    pathlib.Path(name).write_bytes(data)


def patterns():
    for name in ("a.txt", "ä b.txt", "a.bin", "folder.txt/c.txt"):
        path = pathlib.Path("many", name)
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(PLAIN)
    encrypt("many\\*.txt")
    encrypt("many/?.bin")
    made = {os.path.relpath(path, "many") for path in pathlib.Path("many").rglob("*.enc")}
    assert made == {"a.txt.enc", "ä b.txt.enc", "a.bin.enc"}, made
    encrypt("none*", code=1)
    print("patterns: the files that fit, and no folder")


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


def wine_processes():
    """Those of our WINEPREFIX, the wineserver first."""
    found = []
    for process in pathlib.Path("/proc").glob("[0-9]*"):
        with contextlib.suppress(OSError):
            program = os.path.basename(os.readlink(process / "exe"))
            if program.startswith("wine") and PREFIX in (process / "environ").read_bytes().split(b"\0"):
                found.append((not program.startswith("wineserver"), int(process.name)))
    return [number for _, number in sorted(found)]


def hidden():
    return list(pathlib.Path(".").glob(".quillet-partial-*"))


def size_of(file):
    """-1 when it is gone."""
    try:
        return file.stat().st_size
    except FileNotFoundError:
        return -1


def awaited(condition, what):
    deadline = time.monotonic() + 120
    while not (found := condition()):
        assert time.monotonic() < deadline, what
        time.sleep(0.005)
    return found


def kill(words, moment, all_of_wine):
    """Whether the job was still at work when it was killed."""
    job = wine.started(PROGRAM, "encrypt", "--password-file", "pw", *words, "big")
    part = SIZE * moment // MOMENTS
    awaited(lambda: job.poll() is not None or any(size_of(file) >= part for file in hidden()), "no output")
    running = job.poll() is None
    for number in wine_processes() if all_of_wine else []:
        with contextlib.suppress(ProcessLookupError):
            os.kill(number, signal.SIGKILL)
    with contextlib.suppress(ProcessLookupError):
        os.killpg(job.pid, signal.SIGKILL)
    job.wait()
    return running


def kills(all_of_wine):
    """Of the program alone, or of all that belongs to it; then Wine, as a loss of power, can remove nothing."""
    written("big", BIG)
    cut = left = 0
    for moment in range(MOMENTS):
        for words in (["-o", "new"], ["-fo", "former"]):
            written("former", b"precious")
            before = wine.files(".")
            cut += kill(words, moment, all_of_wine)
            if not all_of_wine:  # before it is marked, the file is empty
                awaited(lambda: not any(size_of(file) > 0 for file in hidden()), "a part of an output stays")
            if hidden():
                left += len(hidden())
                encrypt("-fo", "after", "plain")  # removes what was left behind
                os.remove("after")
            awaited(lambda: not hidden(), "a hidden file stays")
            now = wine.files(".")
            if len(now.get("new", b"")) > len(BIG):  # done before the kill came
                del now["new"]
                os.remove("new")
            if len(now["former"]) > len(BIG):
                now["former"] = b"precious"
            assert now == before
    what = "program and all of Wine" if all_of_wine else "program"
    print(f"{what} killed: {cut} of {2 * MOMENTS} in the middle; no output in part, input and former output as they were; "
          f"{left} hidden files left{'' if all_of_wine else ', empty'}, removed by the next job")


if os.getuid() != 0:
    sys.exit(77)
PLAIN, BIG = os.urandom(100003), os.urandom(SIZE)
with tempfile.TemporaryDirectory() as scratch:
    os.chdir(scratch)
    written("pw", wine.PASSWORD.encode())
    written("plain", PLAIN)
    patterns()
    wrong_password()
    existing_output()
    full_disk()
    kills(all_of_wine=False)
    kills(all_of_wine=True)
    os.chdir("/")
