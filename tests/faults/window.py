#!/usr/bin/env python3
"""window.py WINDOW_JOB QUILLET_CLI LIBRARY [--every N] [--job NAME]...: lets each system call of the window's jobs
fail once, in every way that it can, from the password on, with the deletion of encrypted inputs on, and looks at what
the window says and at the files. Of the allocations each N-th; on the window's own thread, where the toolkit makes
most of them and does not survive all, each 20 N-th, and only the files count. With N above 1, two ways of each
call."""

import argparse
import collections
import errno
import os
import sys

from server import (CALLS, DONE, FROM_THERE_ON, KILL_AFTER, KILL_BEFORE, NOTHING, Server, Table, read, scratch, sweep,
                    write)

parser = argparse.ArgumentParser()
parser.add_argument("window_job", type=os.path.abspath)
parser.add_argument("cli", type=os.path.abspath)
parser.add_argument("library", type=os.path.abspath)
parser.add_argument("--every", type=int, default=1)
parser.add_argument("--job", dest="jobs", action="append")
ARGUMENTS = parser.parse_args()

PASSWORD = "secret"
FORMER = b"precious"
DELETED = "Input file has been deleted after the successfully encryption according to your options"

# The operation; input and output; outputs that are there before; the password; seal; stop; what is missing.
Job = collections.namedtuple("Job", "operation files former password seal stop without",
                             defaults=({"in": "out"}, (), PASSWORD, False, False, ""))
LIST = {"a": "a.enc", "b": "b.enc", "c": "c.enc"}
JOBS = {
    "encrypt": Job("encrypt"),
    "encrypt, output exists": Job("encrypt", former=["out"]),
    "encrypt, sealed": Job("encrypt", seal=True),
    "encrypt, stopped": Job("encrypt", {"large": "out"}, stop=True),
    "encrypt, no nameless files": Job("encrypt", without="O_TMPFILE noreplace"),
    "encrypt, list": Job("encrypt", LIST, former=["b.enc"]),
    "decrypt": Job("decrypt", {"in.enc": "out"}),
    "decrypt, output exists": Job("decrypt", {"in.enc": "out"}, former=["out"]),
    "decrypt, sealed": Job("decrypt", {"sealed.enc": "out"}),
    "decrypt, wrong password": Job("decrypt", {"in.enc": "out"}, password="secrets"),
    "decrypt, stopped": Job("decrypt", {"large.enc": "out"}, stop=True),
    "decrypt, list": Job("decrypt", {f"{name}.enc": f"{name}.dec" for name in LIST}),
}

# What others do just before the n-th of these calls, whatever n: a decoy takes the place of a file, or they change it.
# What they put there must be somewhere afterwards, and where they have not overwritten it what was there before. The
# input's name is all that its removal can be told, and so the last looks, at the input, cannot tell of the output.
OTHERS = {"mv decoy in": ["decoy"], "cat decoy > in": ["decoy"], "mv decoy out": ["in", "decoy"], "rm -f out": ["in"]}
OTHERS_BEFORE = {"open": 0, "read": 0, "write": 0, "fsync": 1, "link": 0, "stat": 3}


class Window:
    """The files that the jobs work on."""

    def __init__(self, folder):
        self.home = os.path.dirname(folder)
        self.folder = folder
        self.plain = {name: os.urandom(size) for name, size in
                      (("in", 131090), ("a", 70000), ("b", 10), ("c", 131090), ("decoy", 5000))}
        self.plain["large"] = bytes(8 << 20)
        write("pw", PASSWORD.encode())
        self.files = {}
        for name, content in self.plain.items():
            write(name, content)
            command = [ARGUMENTS.cli, "encrypt", "--password-file", "pw", name]
            if os.spawnv(os.P_WAIT, command[0], command) != 0:
                sys.exit("the files could not be made")
            self.files |= {name: content, f"{name}.enc": read(f"{name}.enc")}
        with self.server(JOBS["encrypt, sealed"]) as server:
            os.remove("in.enc")
            server.run()
            self.files |= {"sealed": self.plain["in"], "sealed.enc": read("out")}

    def server(self, job):
        environment = {"HOME": self.home, "TMPDIR": self.home, "QT_QPA_PLATFORM": "offscreen", "QT_NO_GLIB": "1",
                       "LANGUAGE": "en_US", "QT_LOGGING_RULES": "*=false"}
        for name in "CONFIG", "STATE", "DATA", "RUNTIME":
            environment[f"XDG_{name}_{'DIR' if name == 'RUNTIME' else 'HOME'}"] = self.home
        os.makedirs(os.path.join(self.home, "Tessaly"), exist_ok=True)
        write(os.path.join(self.home, "Tessaly", "Quillet.conf"),
              f"[General]\nUseConfirmPassword=false\nDeleteSourceFileAfterEncryption=true\n"
              f"RewriteOutputFile={str(bool(job.former)).lower()}\n"
              f"ConfirmDeleteSourceFileAfterEncryption=false\nSealFiles={str(job.seal).lower()}\n".encode())
        if job.stop:
            environment["QUILLET_STOP"] = "1"
        paths = [os.path.join(self.folder, name) for name in (*list(job.files.values())[:1], *job.files)]
        return Server(ARGUMENTS.library, [ARGUMENTS.window_job, job.operation, job.password, *paths], self.folder,
                      without=job.without, environment=environment, later=True)


class Judge:
    """Runs one job, and says what is wrong with what it told and left."""

    def __init__(self, window, job, server):
        self.window, self.job, self.server = window, job, server
        self.normal = self.run()
        self.usual = self.said(self.normal)

    def run(self, *order):
        for name in os.listdir():
            os.remove(name)
        for name in (*self.job.files, "decoy"):
            write(name, self.window.files[name])
        for name in self.job.former:
            write(name, FORMER)
        return self.server.run(*order)

    def said(self, run):
        return dict(line.split(": ", 1) for line in run.out.decode().splitlines() if ": " in line)

    def is_whole(self, source, output):
        if not os.path.exists(output):
            return False
        wanted = source.removesuffix(".enc") if self.job.operation == "decrypt" else f"{source}.enc"
        content = read(output)
        if self.job.seal:  # no two are alike, and nothing else opens one whose key was as cheap as here
            return len(content) == len(self.window.files["sealed.enc"])
        return content == self.window.files[wanted]

    def __call__(self, run, call, way, matters, only_files=False):
        killed = way in (KILL_BEFORE, KILL_AFTER)
        if not only_files and os.WIFSIGNALED(run.status) != killed or run.status == 14:
            return f"status {run.status}"
        whole = {source for source, output in self.job.files.items() if self.is_whole(source, output)}
        problem = self.files(run, call, killed or only_files, whole)
        return problem or (None if killed or only_files else self.told(run, call, way, matters, whole))

    def files(self, run, call, died, whole):
        for source, output in self.job.files.items():
            if os.path.exists(source) and read(source) != self.window.files[source]:
                return f"{source} has changed"
            if not os.path.exists(source) and (source not in whole or self.job.operation == "decrypt"):
                return f"{source} is gone, and {output} is not whole"
            if os.path.exists(output) and source not in whole and \
                    not (output in self.job.former and read(output) == FORMER):
                return f"{output} is neither as before nor whole"
        hidden = [name for name in os.listdir() if name.startswith(".")]
        return f"left: {hidden}" if hidden and not died and call != "unlink" else None

    def told(self, run, call, way, matters, whole):
        said = self.said(run)
        gone = {source for source in self.job.files if not os.path.exists(source)}
        if said == self.usual or self.job.stop and said["resultMessage"].endswith(("canceled", "successfully")):
            expected = "successfully" in said["resultMessage"] or "files " in said["resultMessage"]
            return None if expected == (len(whole) == len(self.job.files)) else "a false success"
        if not matters:
            return f"a failure of no matter: {said}"
        lines = " ".join(said.values())
        number = errno.ENOMEM if way == FROM_THERE_ON else max(way, 0)
        if call in ("open", "read", "stat") and whole and not gone and not said["inputMessage"]:
            return None  # the settings or a file cannot be looked at, and so nothing is deleted
        if os.strerror(number) not in lines and not any(text in lines for text in OTHER_TEXTS):
            return f"not told why: {said}"
        if len(self.job.files) == 1:
            if ("successfully" in said["resultMessage"]) != bool(whole):
                return f"told otherwise: {said}"
            if (DELETED in said["inputMessage"]) != bool(gone):
                return f"the deletion is told otherwise: {said}"
        elif sum(state.startswith("Done") for name, state in said.items() if name in self.job.files) != len(whole):
            return f"told otherwise: {said}"
        return None


OTHER_TEXTS = ["Reading data stream failed (error: ", "Input/output error (error: 1/5)", "(error: 53/6)", "(error: 5/",
               "is not found", "File exists (error: 1/17)", "does not answer", "The input file has been kept"]


def chosen(ways):
    """In a quick run the first that matters and the first that does not; the console shows the others."""
    return ways.items() if ARGUMENTS.every == 1 else {matters: (way, matters) for way, matters in
                                                      reversed(ways.items())}.values()


def sweep_job(window, name, job, table):
    with window.server(job) as server:
        judge = Judge(window, job, server)
        table.add(name, "none", NOTHING, 0, judge.normal, judge(judge.normal, "none", NOTHING, False))
        for call, ways in CALLS.items():
            for way, matters in chosen(ways):
                if way == FROM_THERE_ON:
                    continue  # news are tried again until there is memory
                threads = "workers" if call == "malloc" else "all"
                step = ARGUMENTS.every if call == "malloc" else 1
                sweep(judge.run, name, call, way, lambda run: judge(run, call, way, matters), table, step, threads)
        if name in ("encrypt", "encrypt, list"):
            sweep(judge.run, name, "malloc", errno.ENOMEM,
                  lambda run: judge(run, "malloc", errno.ENOMEM, True, True), table, 20 * ARGUMENTS.every)


def sweep_others(window, table):
    job = JOBS["encrypt"]
    opens = {window.files["in.enc"]: window.files["in"], window.files["decoy.enc"]: window.files["decoy"]}
    with window.server(job) as server:
        judge = Judge(window, job, server)
        for command, saved in OTHERS.items():
            for call, last in OTHERS_BEFORE.items():
                for at in range(1, judge.run(call).calls - (last if command.endswith("out") else 0) + 1):
                    run = judge.run(call, at, DONE, "all", command)
                    there = [opens.get(content, content) for content in map(read, os.listdir())]
                    lost = [name for name in saved if window.files[name] not in there]
                    table.add("others: " + command, call, DONE, at, run,
                              f"{lost} lost, left {sorted(os.listdir())}" if lost else None)


with scratch() as folder:
    folder = os.path.join(folder, "work")
    os.mkdir(folder)
    os.chdir(folder)
    window = Window(folder)
    table = Table()
    for name, job in JOBS.items():
        if not ARGUMENTS.jobs or name in ARGUMENTS.jobs:
            sweep_job(window, name, job, table)
    if not ARGUMENTS.jobs or "others" in ARGUMENTS.jobs:
        sweep_others(window, table)
    os.chdir("/")
sys.exit(not table.show())
