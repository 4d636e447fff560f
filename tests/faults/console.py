#!/usr/bin/env python3
"""console.py QUILLET_CLI LIBRARY [--every N] [--job PATTERN]...: lets each system call of each job fail once, in every
way that it can, and looks at exit code, line and files. Of the allocations each N-th."""

import collections
import errno
import os
import re
import resource
import subprocess
import sys

from server import (KILL_AFTER, KILL_BEFORE, NOTHING, WAYS, Judge, Run, Server, Sweep, error_of, pairs, read, rows,
                    write)

SWEEP = Sweep("cli", "library")
CLI, LIBRARY = SWEEP.arguments.cli, SWEEP.arguments.library
OK, FAILED, WRONG = 0, 1, 3

# No sealed file has the size of the encrypted one, so that a wrong password is not tried on one, which takes time.
SIZE = 131090
KEY = ["--key-file", "key", "--iv-file", "iv"]
PASSWORD = ["--password-file", "pw"]
FORMER = b"precious"
Job = collections.namedtuple("Job", "words outputs former code stdin without")


def job_of(words, outputs, former, code, stdin, without):
    stdin = os.path.join(SWEEP.folder, stdin or os.devnull)
    return Job(words.split(), pairs(outputs), former.split(), int(code), stdin, without)


JOBS = {name: job_of(*fields) for name, *fields in rows("fault_jobs.txt")}
LINES = rows("fault_lines.txt", 1)

STEP = (r"((The (input|output)? ?file .+ could not be (opened|read|processed|created|written|stored)\.|"
        r"Standard input could not be kept in the folder .+\.|Standard output could not be written)"
        r"( What was written to standard output is incomplete\.)?)")


def is_expected(line, call, way):
    number = error_of(way)
    for calls, text in LINES:
        text = text.replace("{error}", re.escape(os.strerror(number))).replace("{number}", str(number))
        pattern = "quillet-cli: " + text + (STEP if text.endswith(r"\s") else "")
        if (calls == "any" or call in calls.split()) and re.fullmatch(pattern, line):
            return True
    return False


def state(name):
    info = os.stat(name)
    return info.st_ino, info.st_size, info.st_mtime_ns


class Files:
    """The files that the jobs work on, and what must be there after each run."""

    def __init__(self):
        for name, data in (("pw", b"correct horse"), ("wrong", b"incorrect horse"), ("key", b"5a" * 32),
                           ("wrong-key", b"5b" * 32), ("iv", b"a5" * 16), ("plain", os.urandom(SIZE)),
                           ("plain-2", os.urandom(10)), ("plain-3", os.urandom(70000)), ("large", os.urandom(1_500_000))):
            write(name, data)
        for name, source, options in (("encrypted.enc", "plain", PASSWORD), ("sealed", "plain", ["--seal", *KEY]),
                                      ("large-sealed", "large", ["--seal", *KEY]),
                                      *((f"by-key{n}.enc", f"plain{n}", KEY) for n in ("", "-2", "-3"))):
            subprocess.run([CLI, "encrypt", *options, "--output", name, source], check=True)
        self.inputs = {name: read(name) for name in os.listdir()}
        self.states = {name: state(name) for name in self.inputs}
        self.opener = Server(LIBRARY, [CLI, "decrypt", *KEY, "--quiet", "--output", "-", "out"], SWEEP.folder)

    def is_whole(self, name, content, run):
        if name == "stdout":
            return run.out == self.inputs[content]
        if not os.path.exists(name):
            return False
        if content in self.inputs:
            return read(name) == self.inputs[content]
        return self.opener.run().out == self.inputs["large" if "large" in content else "plain"]


class ConsoleJudge(Judge):
    def prepare(self):
        self.is_several = len(self.job.outputs) > 1 or self.job.words[-2:] == ["sealed", "by-key.enc"]
        for name in set(os.listdir()) - set(self.files.inputs):
            os.remove(name)
        for name in self.job.former:
            write(name, FORMER)

    def __call__(self, run, call, way, matters):
        killed = way in (KILL_BEFORE, KILL_AFTER)
        if os.WIFSIGNALED(run.status) != killed:
            return f"status {run.status}"
        code = OK if killed else os.WEXITSTATUS(run.status)
        changed = [f"{name} has changed" for name, was in self.files.states.items() if state(name) != was]
        return (changed or self.outputs(run, call, killed, code == self.job.code)
                or (None if killed else self.told(run, call, way, matters, code)))

    def outputs(self, run, call, killed, is_normal):
        hidden = [name for name in os.listdir() if name.startswith(".quillet-partial-")]
        self.whole = [name for name, content in self.job.outputs.items() if self.files.is_whole(name, content, run)]
        for name in set(os.listdir()) - set(self.files.inputs) - set(hidden) - set(self.whole):
            if not (name in self.job.former and read(name) == FORMER) and not self.is_place(name, killed):
                return f"{name} is neither as before nor whole"
        if not killed and len(self.whole) != len(self.job.outputs) and run.told == self.normal.told:
            return "a false success"
        if not killed and not is_normal and self.whole and not self.is_several and \
                "exchange" not in self.job.without and "stdout" not in self.job.outputs:
            return "an output in spite of the failure"
        if lost := [name for name in self.job.former if not os.path.exists(name)]:
            return f"lost: {lost}"
        if hidden and (killed or call == "unlink"):
            for name in self.job.outputs:
                if not self.job.former and os.path.exists(name):
                    os.remove(name)
            self.server.run()  # the next run in the folder removes it
            hidden = [name for name in hidden if os.path.exists(name)]
        return f"left: {hidden}" if hidden else None

    def is_place(self, name, killed):
        """Where nothing else can keep a name, an empty file does for a moment."""
        return killed and "link" in self.job.without and not self.job.former and read(name) == b""

    def told(self, run, call, way, matters, code):
        if code == self.job.code and run.told == self.normal.told:
            if call == "fsync" and matters:
                return "a failed flush is a success"
            return None if run.out == self.normal.out or "stdout" in self.job.outputs else "another answer"
        usual = self.normal.told.splitlines()
        if call == "malloc" and code == self.job.code and len(self.whole) == len(self.job.outputs) and \
                set(run.told.splitlines()) < set(usual):
            return None  # no words for what is told beside the work
        may_be_wrong = (call, way) == ("read", NOTHING) or (self.is_several and self.job.code == WRONG)
        if not matters or code not in ((FAILED, WRONG) if may_be_wrong else (FAILED,)):
            return f"exit code {code}"
        lines = [line for line in run.told.splitlines() if line not in usual]
        if not lines or (len(lines) > 1 and not self.is_several):
            return "not told in one line"
        if self.is_several and all("could not be" in line for line in lines) and \
                len(self.job.outputs) - len(self.whole) > len(lines):
            return "a file is missing that nothing was told of"
        if not all(is_expected(line, call, way) for line in lines):
            return "not told why"
        cut = run.out if "stdout" in self.job.outputs else b""
        is_told = "is incomplete" in run.told or "out of memory" in run.told
        return None if is_told or not cut else "not told what standard output has got"


FILES = Files()


def sweep_job(name, job):
    with Server(LIBRARY, [CLI, *job.words], SWEEP.folder, job.stdin, job.without) as server:
        SWEEP.calls(name, ConsoleJudge(FILES, job, server))


def sweep_others():
    """What others do to the files is theirs."""
    contents = {"other": b"other", "precious": FORMER, "new": FILES.inputs["encrypted.enc"],
                "input": FILES.inputs["plain"]}
    for name, at, command, error, expected in rows("fault_others.txt"):
        with Server(LIBRARY, [CLI, *JOBS[name].words], SWEEP.folder) as server:
            ConsoleJudge(FILES, JOBS[name], server).prepare()
            write("other", b"other")
            run = server.run("fsync", at, WAYS[error], "all", f"CLI={CLI}; {command}")
            right = run.status == FAILED << 8 and \
                all(os.path.exists(file) and read(file) == contents[what] for file, what in pairs(expected).items()) and \
                not any(file.startswith(".quillet") for file in os.listdir())
            SWEEP.add("among others", "fsync", WAYS[error], at, run,
                      None if right else f"{command}: left {sorted(os.listdir())}")
            write("plain", FILES.inputs["plain"])
            FILES.states["plain"] = state("plain")


def unstored_standard_output():
    """Which of the files cannot be closed does not matter, except for the one that gets the data."""
    name = "decrypt, standard streams"
    with Server(LIBRARY, [CLI, *JOBS[name].words], SWEEP.folder, JOBS[name].stdin) as server:
        judge = ConsoleJudge(FILES, JOBS[name], server)
        codes = [judge.run("close", at, errno.EIO).status >> 8 for at in range(1, judge.run("close").calls + 1)]
    SWEEP.add("standard output", "close", errno.EIO, len(codes), judge.normal,
              None if codes.count(FAILED) == 1 else f"exit codes {codes}")


def without_memory_for_the_key():
    write("out", FORMER)
    limit = lambda: resource.setrlimit(resource.RLIMIT_AS, (200 << 20,) * 2)
    done = subprocess.run([CLI, "encrypt", "--seal", *PASSWORD, "--force", "--output", "out", "plain"], text=True,
                          capture_output=True, preexec_fn=limit)
    right = done.returncode == FAILED and "Cannot allocate memory (error: 5/4042)" in done.stderr
    SWEEP.add("no memory for the key", "malloc", errno.ENOMEM, 0, Run(done.returncode, 0, done.stderr, b""),
              None if right and read("out") == FORMER else "wrong")


SWEEP.all(JOBS, sweep_job, sweep_others, unstored_standard_output, without_memory_for_the_key)
