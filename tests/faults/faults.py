#!/usr/bin/env python3
"""Lets each system call of quillet-cli fail once, in turn, and looks at what is told and left.
Arguments: the program, the library to preload; --every N takes each N-th allocation only."""

import errno
import os
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

# Name: command, password file, options, whether an output is there before.
JOBS = {
    "encrypt": ("encrypt", "pw", [], False),
    "encrypt --force": ("encrypt", "pw", ["--force"], True),
    "decrypt": ("decrypt", "pw", [], False),
    "decrypt --force": ("decrypt", "pw", ["--force"], True),
    "decrypt, wrong password": ("decrypt", "wrong", ["--force"], True),
}


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
        write("plain", os.urandom(150000))
        subprocess.run([CLI, "encrypt", "--password-file", "pw", "--output", "sealed", "plain"], check=True)
        self.source = {"encrypt": "plain", "decrypt": "sealed"}
        self.result = {"encrypt": read("sealed"), "decrypt": read("plain")}
        self.runs = self.complaints = 0

    def run(self, job, call, at, error):
        command, password, options, former = JOBS[job]
        if os.path.exists("out"):
            os.remove("out")
        if former:
            write("out", b"precious")
        environment = {**os.environ, "LD_PRELOAD": SHIM, "FAIL_CALL": call, "FAIL_AT": str(at),
                       "FAIL_ERROR": str(error), "FAIL_COUNT": "count"}
        source = self.source[command]
        done = subprocess.run([CLI, command, "--password-file", password, *options, "--output", "out", source],
                              env=environment, stdin=subprocess.DEVNULL, capture_output=True, timeout=60)
        self.runs += 1
        return done.returncode, done.stderr.decode()

    def judge(self, job, expected, code, told):
        """What is wrong, or nothing."""
        command, _, _, former = JOBS[job]
        if code not in expected:
            return f"exit code {code}"
        if code != OK and (told.count("\n") != 1 or not told.startswith("quillet-cli: ")):
            return "not told in one line"
        left = read("out") if os.path.exists("out") else None
        if left != (self.result[command] if code == OK else b"precious" if former else None):
            return "a false success" if code == OK else "the output is not as before"
        if not set(os.listdir()) <= {"pw", "wrong", "plain", "sealed", "out", "count"}:
            return f"left: {os.listdir()}"
        return None

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
    for job in JOBS:
        for call, ways in CALLS.items():
            for error, codes in ways.items():
                sweep.sweep(job, call, error, codes)
    print(f"{sweep.runs} runs, {sweep.complaints} failures")
    os.chdir("/")
sys.exit(1 if sweep.complaints else 0)
