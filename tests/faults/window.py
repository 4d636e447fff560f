#!/usr/bin/env python3
"""window.py WINDOW_JOB QUILLET_CLI LIBRARY [--every N] [--job PATTERN]...: lets each system call of the window's jobs
fail once, in every way that it can, from the password on, with the deletion of encrypted inputs on, and looks at what
the window says and at the files. Of the allocations each N-th; on the window's own thread, where the toolkit makes
most of them and does not survive all, each 20 N-th, and only the files count. With N above 1, two ways of each
call."""

import collections
import errno
import os
import subprocess

from server import (DONE, FROM_THERE_ON, KILL_AFTER, KILL_BEFORE, Judge, Server, Sweep, error_of, pairs, read, rows, window_at,
                    write)

SWEEP = Sweep("window_job", "cli", "library")
ARGUMENTS = SWEEP.arguments

PASSWORD = "secret"
FORMER = b"precious"
DELETED = "Input file has been deleted after the successfully encryption according to your options"

Job = collections.namedtuple("Job", "operation files former how without")
JOBS = {name: Job(operation, pairs(files), former.split(), how, without)
        for name, operation, files, former, how, without in rows("fault_window_jobs.txt")}

# What others do just before the n-th of these calls, whatever n: a decoy takes the place of a file, or they change it.
# What they put there must be somewhere afterwards, and where they have not overwritten it what was there before. The
# input's name is all that its removal can be told, and so the last looks, at the input, cannot tell of the output.
OTHERS = {"mv decoy in": ["decoy"], "cat decoy > in": ["decoy"], "mv decoy out": ["in", "decoy"], "rm -f out": ["in"]}
OTHERS_BEFORE = {"open": 0, "read": 0, "write": 0, "fsync": 1, "link": 0, "stat": 3}

# Beside the error of the call itself.
OTHER_TEXTS = ["Reading data stream failed (error: ", "Input/output error (error: 1/5)", "(error: 53/6)", "(error: 5/",
               "is not found", "File exists (error: 1/17)", "does not answer", "The input file has been kept"]


def serve(job):
    environment = window_at(SWEEP.home, RewriteOutputFile=job.former, SealFiles=job.how == "seal")
    environment |= {"QT_QPA_PLATFORM": "offscreen", "QT_NO_GLIB": "1",
                    **({"QUILLET_STOP": "1"} if job.how == "stop" else {})}
    password = "secrets" if job.how == "wrong" else PASSWORD
    paths = [os.path.join(SWEEP.folder, name) for name in (*list(job.files.values())[:1], *job.files)]
    return Server(ARGUMENTS.library, [ARGUMENTS.window_job, job.operation, password, *paths], SWEEP.folder,
                  without=job.without, environment=environment, later=True)


def made_files():
    """Names and contents that the jobs work on."""
    write("pw", PASSWORD.encode())
    files = {name: os.urandom(size) for name, size in (("in", 131090), ("a", 70000), ("b", 10), ("c", 131090),
                                                       ("decoy", 5000))} | {"large": bytes(8 << 20)}
    for name, content in list(files.items()):
        write(name, content)
        subprocess.run([ARGUMENTS.cli, "encrypt", "--password-file", "pw", name], check=True)
        files[f"{name}.enc"] = read(f"{name}.enc")
    with serve(JOBS["encrypt, sealed"]) as server:
        os.remove("in.enc")
        server.run()
        return files | {"sealed": files["in"], "sealed.enc": read("out")}


class WindowJudge(Judge):
    def prepare(self):
        for name in os.listdir():
            os.remove(name)
        for name in (*self.job.files, "decoy"):
            write(name, self.files[name])
        for name in self.job.former:
            write(name, FORMER)

    def said(self, run):
        return dict(line.split(": ", 1) for line in run.out.decode().splitlines() if ": " in line)

    def is_whole(self, source, output):
        if not os.path.exists(output):
            return False
        wanted = source.removesuffix(".enc") if self.job.operation == "decrypt" else f"{source}.enc"
        if self.job.how == "seal":  # no two are alike, and nothing else opens one whose key was as cheap as here
            return len(read(output)) == len(self.files["sealed.enc"])
        return read(output) == self.files[wanted]

    def __call__(self, run, call, way, matters, only_files=False):
        killed = way in (KILL_BEFORE, KILL_AFTER)
        if not only_files and os.WIFSIGNALED(run.status) != killed or run.status == 14:
            return f"status {run.status}"
        whole = {source for source, output in self.job.files.items() if self.is_whole(source, output)}
        problem = self.left(call, killed or only_files, whole)
        return problem or (None if killed or only_files else self.told(run, call, way, matters, whole))

    def left(self, call, died, whole):
        for source, output in self.job.files.items():
            if os.path.exists(source) and read(source) != self.files[source]:
                return f"{source} has changed"
            if not os.path.exists(source) and (source not in whole or self.job.operation == "decrypt"):
                return f"{source} is gone, and {output} is not whole"
            if os.path.exists(output) and source not in whole and \
                    not (output in self.job.former and read(output) == FORMER):
                return f"{output} is neither as before nor whole"
        hidden = [name for name in os.listdir() if name.startswith(".")]
        return f"left: {hidden}" if hidden and not died and call != "unlink" else None

    def told(self, run, call, way, matters, whole):
        said, usual = self.said(run), self.said(self.normal)
        gone = {source for source in self.job.files if not os.path.exists(source)}
        if said == usual or self.job.how == "stop" and said["resultMessage"].endswith(("canceled", "successfully")):
            if call == "fsync" and matters and self.job.how != "stop":
                return "a failed flush changes nothing"
            expected = "successfully" in said["resultMessage"] or "files " in said["resultMessage"]
            return None if expected == (len(whole) == len(self.job.files)) else "a false success"
        if not matters:
            return f"a failure of no matter: {said}"
        lines = " ".join(said.values())
        number = error_of(way)
        if call in ("open", "read", "stat") and whole and not gone and not said["inputMessage"]:
            return None  # the settings or a file cannot be looked at, and so nothing is deleted
        if os.strerror(number) not in lines and not any(text in lines for text in OTHER_TEXTS):
            return f"not told why: {said}"
        done = sum(state.startswith("Done") for name, state in said.items() if name in self.job.files)
        if len(self.job.files) == 1:
            done = "successfully" in said["resultMessage"]
            if (DELETED in said["inputMessage"]) != bool(gone):
                return f"the deletion is told otherwise: {said}"
        return None if done == len(whole) else f"told otherwise: {said}"


def chosen(ways):
    """Without FROM_THERE_ON, as new is tried again until there is memory. In a quick run the first that matters and the
    first that does not; the console shows the others."""
    ways = [(way, matters) for way, matters in ways.items() if way != FROM_THERE_ON]
    return ways if ARGUMENTS.every == 1 else {matters: (way, matters) for way, matters in reversed(ways)}.values()


def sweep_job(name, job):
    with serve(job) as server:
        judge = WindowJudge(FILES, job, server)
        SWEEP.calls(name, judge, chosen, "workers")
        if name in ("encrypt", "encrypt, list"):
            SWEEP.each(name, judge.run, "malloc", errno.ENOMEM,
                       lambda run: judge(run, "malloc", errno.ENOMEM, True, True), 20 * ARGUMENTS.every)


def sweep_others():
    opens = {FILES[f"{name}.enc"]: FILES[name] for name in ("in", "decoy")}
    with serve(JOBS["encrypt"]) as server:
        judge = WindowJudge(FILES, JOBS["encrypt"], server)
        for command, saved in OTHERS.items():
            for call, last in OTHERS_BEFORE.items():
                for at in range(1, judge.run(call).calls - (last if command.endswith("out") else 0) + 1):
                    run = judge.run(call, at, DONE, "all", command)
                    there = [opens.get(content, content) for content in map(read, os.listdir())]
                    lost = [name for name in saved if FILES[name] not in there]
                    SWEEP.add("others: " + command, call, DONE, at, run,
                              f"{lost} lost, left {sorted(os.listdir())}" if lost else None)


FILES = made_files()
SWEEP.all(JOBS, sweep_job, sweep_others)
