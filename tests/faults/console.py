#!/usr/bin/env python3
"""console.py QUILLET_CLI LIBRARY [--every N] [--job NAME]...: lets each system call of each job fail once, in every
way that it can, and looks at exit code, line and files. Of the allocations each N-th."""

import argparse
import collections
import errno
import os
import re
import resource
import subprocess
import sys

from server import (CALLS, FROM_THERE_ON, KILL_AFTER, KILL_BEFORE, NOTHING, Run, Server, Table, read, scratch, sweep,
                    write)

parser = argparse.ArgumentParser()
parser.add_argument("cli", type=os.path.abspath)
parser.add_argument("library", type=os.path.abspath)
parser.add_argument("--every", type=int, default=1)
parser.add_argument("--job", dest="jobs", action="append")
ARGUMENTS = parser.parse_args()
CLI, LIBRARY = ARGUMENTS.cli, ARGUMENTS.library
OK, FAILED, WRONG = 0, 1, 3

# No sealed file has the size of the encrypted one, so that a wrong password is not tried on one, which takes time.
SIZE = 131090
KEY = ["--key-file", "key", "--iv-file", "iv"]
PASSWORD = ["--password-file", "pw"]
FORMER = b"precious"

# The words of the command; the outputs and whose content they get ("sealed" is one that opens to the input); the
# outputs that are there before; the exit code; standard input; what the file system lacks.
Job = collections.namedtuple("Job", "words outputs former code stdin without",
                             defaults=({}, (), OK, os.devnull, ""))
TO_OUT = ["--output", "out"]
JOBS = {
    "encrypt": Job(["encrypt", *PASSWORD, *TO_OUT, "plain"], {"out": "encrypted.enc"}),
    "encrypt --force": Job(["encrypt", *PASSWORD, *TO_OUT, "--force", "plain"], {"out": "encrypted.enc"}, ["out"]),
    "encrypt, output exists": Job(["encrypt", *PASSWORD, *TO_OUT, "plain"], {}, ["out"], FAILED),
    "encrypt --salt --seal": Job(["encrypt", "--seal", *KEY, *TO_OUT, "--force", "plain"], {"out": "a sealed one"},
                                 ["out"]),
    "encrypt, standard streams": Job(["encrypt", *KEY, "-"], {"stdout": "by key.enc"}, stdin="plain"),
    "encrypt, standard input": Job(["encrypt", *KEY, *TO_OUT, "-"], {"out": "by key.enc"}, stdin="plain"),
    "encrypt, several": Job(["encrypt", *KEY, "--force", "plain", "plain 2", "plain 3"],
                            {"plain.enc": "by key.enc", "plain 2.enc": "by key 2.enc", "plain 3.enc": "by key 3.enc"},
                            ["plain 2.enc"]),
    "decrypt": Job(["decrypt", *PASSWORD, *TO_OUT, "encrypted.enc"], {"out": "plain"}),
    "decrypt --force": Job(["decrypt", *PASSWORD, *TO_OUT, "--force", "encrypted.enc"], {"out": "plain"}, ["out"]),
    "decrypt, sealed": Job(["decrypt", *KEY, *TO_OUT, "--force", "sealed"], {"out": "plain"}, ["out"]),
    "decrypt, standard streams": Job(["decrypt", *KEY, "-"], {"stdout": "plain"}, stdin="sealed"),
    "decrypt, wrong password": Job(["decrypt", "--password-file", "wrong", *TO_OUT, "--force", "encrypted.enc"], {},
                                   ["out"], WRONG),
    "decrypt, sealed, wrong key": Job(["decrypt", "--key-file", "wrong key", "--iv-file", "iv", *TO_OUT, "sealed"], {},
                                      [], WRONG),
    "decrypt, several, one wrong": Job(["decrypt", *KEY, "by key 2.enc", "encrypted.enc", "by key 3.enc"],
                                       {"by key 2": "plain 2", "by key 3": "plain 3"}, [], WRONG),
    "verify": Job(["verify", *PASSWORD, "encrypted.enc"]),
    "verify, sealed": Job(["verify", *KEY, "sealed", "by key.enc"]),
    "verify, wrong password": Job(["verify", "--password-file", "wrong", "encrypted.enc"], {}, [], WRONG),
    "encrypt --seal, several pieces": Job(["encrypt", "--seal", *KEY, *TO_OUT, "large"], {"out": "a large sealed one"}),
    "decrypt, several pieces": Job(["decrypt", *KEY, *TO_OUT, "large sealed"], {"out": "large"}),
    "no nameless files": Job(["encrypt", *PASSWORD, *TO_OUT, "plain"], {"out": "encrypted.enc"}, without="O_TMPFILE"),
    "neither they nor RENAME_NOREPLACE": Job(["decrypt", *PASSWORD, *TO_OUT, "encrypted.enc"], {"out": "plain"},
                                             without="O_TMPFILE noreplace"),
    "nor hard links": Job(["decrypt", *PASSWORD, *TO_OUT, "encrypted.enc"], {"out": "plain"},
                          without="O_TMPFILE noreplace link"),
    "no RENAME_EXCHANGE, --force": Job(["encrypt", *PASSWORD, *TO_OUT, "--force", "plain"], {"out": "encrypted.enc"},
                                       ["out"], without="exchange"),
    "nothing of them, --force": Job(["encrypt", *PASSWORD, *TO_OUT, "--force", "plain"], {"out": "encrypted.enc"}, ["out"],
                                    without="O_TMPFILE noreplace link exchange"),
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

SYSTEM = r"(Reading data stream failed |{error} )\(error: 1/{number}\)\. "
SECRET = "cannot read the (password|key|IV) file .+"
# What a call's failure may be told with, beside its own error.
OTHER_LINES = {
    "open": [SECRET, "input not found: .+"],
    "read": [SECRET, r"Reading data stream failed \(error: 5/(60|45)\)\. ", "Corrupted data .*",
             r"The file is damaged or has been changed \(error: 5/4010\)\. ",
             "the (key|IV) file .+ is not hexadecimal", "password file .+: the password is empty"],
    "write": [r"Input/output error \(error: 1/5\)\. ", r"Failed to write\. "],
    "stat": ["(input|output folder) not found: .+", "output exists: .+", r"File exists \(error: 1/17\)\. ",
             r"Output file not found \(error: 5/203\)\. "],
    "pthread_create": ["{error}"],
    "malloc": ["out of memory", "Resource temporarily unavailable", SECRET,
               r"(Failed to .*|Cannot allocate memory) \(error: (1/12|53/6|5/13|5/14|5/4000|5/4002|5/4020|5/4042)\)\. "],
}
OTHER_LINES["mmap"] = OTHER_LINES["malloc"]  # pages for secrets
STEP = (r"((The (input|output)? ?file .+ could not be (opened|read|processed|created|written|stored)\.|"
        r"Standard input could not be kept in the folder .+\.|Standard output could not be written)"
        r"( What was written to standard output is incomplete\.)?)")


def is_expected(line, call, way):
    number = errno.ENOMEM if way == FROM_THERE_ON else way
    for text in [SYSTEM, *OTHER_LINES.get(call, [])]:
        text = text.replace("{error}", re.escape(os.strerror(max(number, 0)))).replace("{number}", str(number))
        if re.fullmatch("quillet-cli: " + text + (STEP if text.endswith(" ") else ""), line):
            return True
    return False


def state(name):
    info = os.stat(name)
    return info.st_ino, info.st_size, info.st_mtime_ns


class Console:
    """The files that the jobs work on, and what must be there after each run."""

    def __init__(self, folder):
        self.folder = folder
        write("pw", b"correct horse")
        write("wrong", b"incorrect horse")
        write("key", b"5a" * 32)
        write("wrong key", b"5b" * 32)
        write("iv", b"a5" * 16)
        for name, size in ("plain", SIZE), ("plain 2", 10), ("plain 3", 70000), ("large", 1_500_000):
            write(name, os.urandom(size))
        for name, source, options in (("encrypted.enc", "plain", PASSWORD), ("sealed", "plain", ["--seal", *KEY]),
                                      ("large sealed", "large", ["--seal", *KEY]),
                                      *((f"by key{n}.enc", f"plain{n}", KEY) for n in ("", " 2", " 3"))):
            if os.spawnv(os.P_WAIT, CLI, [CLI, "encrypt", *options, "--output", name, source]) != OK:
                sys.exit("the files could not be made")
        self.inputs = {name: read(name) for name in os.listdir()}
        self.states = {name: state(name) for name in self.inputs}
        self.opener = Server(LIBRARY, [CLI, "decrypt", *KEY, "--quiet", "--output", "-", "out"], folder)

    def sweep(self, name, job, table):
        stdin = os.path.join(self.folder, job.stdin)
        with Server(LIBRARY, [CLI, *job.words], self.folder, stdin, job.without) as server:
            judge = Judge(self, job, server)
            table.add(name, "none", NOTHING, 0, judge.normal, judge(judge.normal))
            for call, ways in CALLS.items():
                for way, matters in ways.items():
                    step = ARGUMENTS.every if call == "malloc" else 1
                    sweep(judge.run, name, call, way, lambda run: judge(run, call, way, matters), table, step)

    def sweep_others(self, table):
        """What others do to the files is theirs."""
        for name, at, command, error, expected in OTHERS:
            with Server(LIBRARY, [CLI, *JOBS[name].words], self.folder) as server:
                Judge(self, JOBS[name], server).prepare()
                write("other", b"other")
                contents = {"other": b"other", "precious": FORMER, "new": self.inputs["encrypted.enc"],
                            "input": self.inputs["plain"]}
                run = server.run("fsync", at, error, "all", f"CLI={CLI}; {command}")
                left = {file: read(file) for file in expected if os.path.exists(file)}
                strange = [file for file in os.listdir() if file.startswith(".quillet")]
                right = run.status == FAILED << 8 and left == {file: contents[what] for file, what in expected.items()}
                table.add("among others", "fsync", error, at, run,
                          None if right and not strange else f"{command}: left {sorted(os.listdir())}")
                write("plain", self.inputs["plain"])
                self.states["plain"] = state("plain")

    def without_memory_for_the_key(self, table):
        write("out", FORMER)
        done = subprocess.run([CLI, "encrypt", "--seal", *PASSWORD, "--force", *TO_OUT, "plain"], capture_output=True,
                              text=True, preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_AS, (200 << 20,) * 2))
        right = done.returncode == FAILED and "Cannot allocate memory (error: 5/4042)" in done.stderr
        table.add("no memory for the key", "malloc", errno.ENOMEM, 0, Run(done.returncode, 0, done.stderr, b""),
                  None if right and read("out") == FORMER else "wrong")

    def is_whole(self, name, content, run):
        if name == "stdout":
            return run.out == self.inputs[content]
        if not os.path.exists(name):
            return False
        if content in self.inputs:
            return read(name) == self.inputs[content]
        return self.opener.run().out == self.inputs["large" if "large" in content else "plain"]


class Judge:
    """Runs one job and says what is wrong with what it told and left."""

    def __init__(self, console, job, server):
        self.console, self.job, self.server = console, job, server
        self.is_several = len(job.outputs) > 1 or job.words[-2:] == ["sealed", "by key.enc"]
        self.normal = self.run()

    def prepare(self):
        for name in set(os.listdir()) - set(self.console.inputs):
            os.remove(name)
        for name in self.job.former:
            write(name, FORMER)

    def run(self, *order):
        self.prepare()
        return self.server.run(*order)

    def __call__(self, run, call="none", way=NOTHING, matters=False):
        killed = way in (KILL_BEFORE, KILL_AFTER)
        if os.WIFSIGNALED(run.status) != killed:
            return f"status {run.status}"
        code = OK if killed else os.WEXITSTATUS(run.status)
        return (self.inputs() or self.outputs(run, call, killed, code == self.job.code)
                or (None if killed else self.told(run, call, way, matters, code)))

    def inputs(self):
        return next((f"{name} has changed" for name, was in self.console.states.items() if state(name) != was), None)

    def outputs(self, run, call, killed, is_normal):
        hidden = [name for name in os.listdir() if name.startswith(".quillet-partial-")]
        self.whole = [name for name, content in self.job.outputs.items() if self.console.is_whole(name, content, run)]
        for name in set(os.listdir()) - set(self.console.inputs) - set(hidden) - set(self.whole):
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
        for line in lines:
            if not is_expected(line, call, way):
                return "not told why"
        cut = run.out if "stdout" in self.job.outputs else b""
        is_told = "is incomplete" in run.told or "out of memory" in run.told
        return None if is_told or not cut else "not told what standard output has got"


with scratch() as folder:
    folder = os.path.join(folder, "work")
    os.mkdir(folder)
    os.chdir(folder)
    console = Console(folder)
    table = Table()
    for name, job in JOBS.items():
        if not ARGUMENTS.jobs or name in ARGUMENTS.jobs:
            console.sweep(name, job, table)
    if not ARGUMENTS.jobs:
        console.sweep_others(table)
        console.without_memory_for_the_key(table)
    os.chdir("/")
sys.exit(not table.show())
