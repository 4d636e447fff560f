#!/usr/bin/env python3
"""Lets each system call of quillet-cli fail once, in turn, and looks at what is told and left.
Arguments: the program, the library to preload; --every N takes each N-th allocation only."""

import errno
import os
import resource
import subprocess
import sys
import tempfile

CLI, SHIM = map(os.path.abspath, sys.argv[1:3])
EVERY = int(sys.argv[4]) if len(sys.argv) > 4 else 1
OK, FAILED, WRONG = 0, 1, 3

# What may fail and how; the codes that may follow. A call that a signal interrupts is made again.
CALLS = {
    "open": {errno.EMFILE: {OK, FAILED}},
    "openat": {errno.EACCES: {OK, FAILED}, errno.EMFILE: {OK, FAILED}, errno.EINTR: {OK}},
    "read": {errno.EIO: {FAILED}, errno.EINTR: {OK}},
    "write": {errno.ENOSPC: {FAILED}, errno.EIO: {FAILED}, 0: {FAILED}, errno.EINTR: {OK}},
    "fsync": {errno.EIO: {FAILED}, errno.ENOSPC: {FAILED}, errno.EINTR: {OK}},
    "fstat": {errno.EIO: {OK, FAILED}},
    "fstatat": {errno.EIO: {OK, FAILED}},
    "lseek": {errno.EIO: {FAILED}},
    "linkat": {errno.EIO: {FAILED}, errno.ENOSPC: {FAILED}, errno.EINTR: {OK}},
    "renameat": {errno.EIO: {FAILED}},
    "fallocate": {errno.ENOSPC: {FAILED}, errno.EOPNOTSUPP: {OK}, errno.EINTR: {OK}},
    "flock": {errno.ENOLCK: {OK}},
    "close": {errno.EIO: {OK, FAILED}},
    "pthread_create": {errno.EAGAIN: {OK, FAILED}},
    "malloc": {errno.ENOMEM: {OK, FAILED}},
}

# No sealed file has the size of the encrypted one, so that a wrong password is not tried on one, which takes time.
SIZE = 131090
KEY = ["--key-file", "key", "--iv-file", "iv"]

# Name: command, input, options, whether an output is there before.
JOBS = {
    "encrypt": ("encrypt", "plain", ["--password-file", "pw"], False),
    "encrypt --force": ("encrypt", "plain", ["--password-file", "pw", "--force"], True),
    "encrypt --seal": ("encrypt", "plain", ["--seal", *KEY, "--force"], True),
    "decrypt": ("decrypt", "encrypted", ["--password-file", "pw"], False),
    "decrypt --force": ("decrypt", "encrypted", ["--password-file", "pw", "--force"], True),
    "decrypt, sealed": ("decrypt", "sealed", [*KEY, "--force"], True),
    "encrypt, standard input": ("encrypt", "-", ["--password-file", "pw"], False),
    "decrypt, wrong password": ("decrypt", "encrypted", ["--password-file", "wrong", "--force"], True),
}

# What others do just before the n-th flush, the second of which is that of the folder, and whether that flush then
# fails. Afterwards these files must have these contents: "new" is the result of the job.
OTHERS = [
    ("encrypt --force", 2, "mv other out", errno.EIO, {"out": "other"}),
    ("encrypt --force", 2, "mv out moved", errno.EIO, {"out": "precious", "moved": "new"}),
    ("encrypt --force", 2, "$CLI encrypt --password-file pw --output moved --force other", errno.EIO,
     {"out": "precious"}),
    ("encrypt", 2, "mv out moved", errno.EIO, {"moved": "new"}),
    ("encrypt", 2, "mv other out", errno.EIO, {"out": "other"}),
    ("encrypt --force", 1, "mv plain out", errno.EINTR, {"out": "input"}),
]


def read(name):
    with open(name, "rb") as file:
        return file.read()


def write(name, data):
    with open(name, "wb") as file:
        file.write(data)


class Sweep:
    def __init__(self):
        write("pw", b"correct horse")
        write("wrong", b"incorrect horse")
        write("key", b"5a" * 32)
        write("iv", b"a5" * 16)
        write("plain", os.urandom(SIZE))
        for name, options in (("encrypted", ["--password-file", "pw"]), ("sealed", ["--seal", *KEY])):
            subprocess.run([CLI, "encrypt", *options, "--output", name, "plain"], check=True)
        self.runs = self.complaints = 0

    def run(self, job, call, at, error):
        command, source, options, former = JOBS[job]
        if os.path.exists("out"):
            os.remove("out")
        if former:
            write("out", b"precious")
        environment = {**os.environ, "LD_PRELOAD": SHIM, "FAIL_CALL": call, "FAIL_AT": str(at),
                       "FAIL_ERROR": str(error), "FAIL_COUNT": "count"}
        with open("plain" if source == "-" else os.devnull) as stdin:
            done = subprocess.run([CLI, command, *options, "--output", "out", source], env=environment, stdin=stdin,
                                  capture_output=True, timeout=60)
        self.runs += 1
        return done.returncode, done.stderr.decode()

    def judge(self, job, expected, code, told):
        """What is wrong, or nothing."""
        former = JOBS[job][-1]
        if code not in expected:
            return f"exit code {code}"
        if code != OK and (told.count("\n") != 1 or not told.startswith("quillet-cli: ")):
            return "not told in one line"
        left = read("out") if os.path.exists("out") else None
        if code == OK and not self.is_result(job, left):
            return "a false success"
        if code != OK and left != (b"precious" if former else None):
            return "the output is not as before"
        if not set(os.listdir()) <= {"pw", "wrong", "key", "iv", "plain", "encrypted", "sealed", "out", "check",
                                      "count"}:
            return f"left: {os.listdir()}"
        return None

    def is_result(self, job, left):
        if job != "encrypt --seal":
            return left == read("encrypted" if JOBS[job][0] == "encrypt" else "plain")
        subprocess.run([CLI, "decrypt", *KEY, "--force", "--output", "check", "out"], capture_output=True)
        return read("check") == read("plain")

    def without_memory_for_the_key(self):
        write("out", b"precious")
        done = subprocess.run([CLI, "encrypt", "--seal", "--password-file", "pw", "--force", "--output", "out", "plain"],
                              capture_output=True,
                              preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_AS, (200 << 20, 200 << 20)))
        self.runs += 1
        if done.returncode != FAILED or b"Cannot allocate memory (error: 5/4042)" not in done.stderr \
                or read("out") != b"precious":
            self.complaints += 1
            print(f"without memory for the key: {done.returncode}, {done.stderr.decode()}")

    def among_others(self, job, at, command, error, expected):
        write("other", b"other")
        plain = read("plain")
        contents = {"other": b"other", "precious": b"precious", "new": read("encrypted"), "input": plain}
        os.environ["FAIL_FIRST"] = f"unset LD_PRELOAD FAIL_FIRST; CLI={CLI}; {command}"
        code, told = self.run(job, "fsync", at, error)
        del os.environ["FAIL_FIRST"]
        left = {name: read(name) for name in expected if os.path.exists(name)}
        strange = [name for name in os.listdir() if name.startswith(".quillet")]
        if code != FAILED or left != {name: contents[what] for name, what in expected.items()} or strange:
            self.complaints += 1
            print(f"{job}: {command} at flush {at}: {code}, {told.strip()}, left {sorted(os.listdir())}")
        write("plain", plain)
        for name in ("other", "moved"):
            if os.path.exists(name):
                os.remove(name)

    def sweep(self, job, call, error, codes):
        expected = codes if "wrong" not in job else {WRONG if code == OK else code for code in codes} | {WRONG}
        at, step = 1, EVERY if call == "malloc" else 1
        while True:
            code, told = self.run(job, call, at, error)
            if code in (OK, WRONG) and int(read("count")) < at:
                return
            if problem := self.judge(job, expected, code, told):
                self.complaints += 1
                print(f"{job}: {call} #{at} fails with {errno.errorcode.get(error, error)}: {problem}: {told.strip()}")
            at += step


with tempfile.TemporaryDirectory() as scratch:
    os.chdir(scratch)
    sweep = Sweep()
    sweep.without_memory_for_the_key()
    for row in OTHERS:
        sweep.among_others(*row)
    for job in JOBS:
        for call, ways in CALLS.items():
            for error, codes in ways.items():
                sweep.sweep(job, call, error, codes)
    print(f"{sweep.runs} runs, {sweep.complaints} failures")
    os.chdir("/")
sys.exit(1 if sweep.complaints else 0)
