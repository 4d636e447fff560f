#!/usr/bin/env python3
"""power_loss.py WINDOW_JOB QUILLET_CLI LIBRARY: records the system calls of jobs, and asks of every moment what a disk
can hold whose power fails then: the data of a file as far as they were flushed, the names in the folder as they were at
its last flush, or after any number of the changes since. Never may the only copy be gone, or a name lead to a file that
is not whole; after a success told, the result is there. Needs strace."""

import itertools
import os
import re
import subprocess
import sys

from server import scratch, window_at, write

WINDOW_JOB, CLI, LIBRARY = map(os.path.abspath, sys.argv[1:4])
RENAMING = ("linkat", "renameat", "renameat2", "unlink", "unlinkat")
TRACED = ",".join(("open", "openat", "write", "pwrite64", "fsync", "fdatasync", "close", *RENAMING))

# The program, the operation, whether an output is there before, and what the file system lacks.
JOBS = list(itertools.product(("console", "window"), ("encrypt", "decrypt"), (False, True),
                              ("", "O_TMPFILE", "O_TMPFILE noreplace", "O_TMPFILE noreplace link", "exchange",
                               "O_TMPFILE noreplace link exchange")))


class Disk:
    """What stands in one folder, and what of it would be there after a loss of power."""

    def __init__(self, folder):
        self.folder = folder
        self.names = {name: name for name in os.listdir(folder)}  # the files that are there first are called so
        self.durable = [self.names]  # what the folder can hold
        self.dirty, self.open, self.made = set(), {}, 0

    def apply(self, line):
        """One line of strace."""
        if not (match := re.match(r"\d+ +(\w+)\((.*)\) += (\d+)", line)):
            return
        call, words, result = match.groups()
        names = re.findall(r'"((?:[^"\\]|\\.)*)"', words)
        handle = re.match(r"\d+", words)
        if call in ("open", "openat") and f"<{self.folder}" in line.rsplit("=", 1)[1]:
            self.opened(result, names[0], words)
        elif call == "close":
            self.open.pop(handle[0], None)
        elif call in ("write", "pwrite64") and handle[0] in self.open:
            self.dirty.add(self.open[handle[0]])
        elif call in ("fsync", "fdatasync") and handle[0] in self.open:
            self.flushed(self.open[handle[0]])
        elif call in RENAMING and (names[-1].startswith(self.folder) or f"<{self.folder}" in words):
            self.change(self.renamed(call, [os.path.basename(name) for name in names], names, words))

    def opened(self, handle, path, words):
        name = os.path.basename(path)
        if "O_TMPFILE" in words or "O_CREAT" in words and name not in self.names:
            self.made += 1
            self.open[handle] = f"new {self.made}"
            if "O_TMPFILE" not in words:
                self.change({**self.names, name: f"new {self.made}"})
        else:
            self.open[handle] = "folder" if "O_DIRECTORY" in words else self.names.get(name, path)

    def flushed(self, file):
        if file == "folder":
            self.durable = [self.names]
        self.dirty.discard(file)

    def renamed(self, call, names, paths, words):
        now = dict(self.names)
        if call in ("unlink", "unlinkat"):
            now.pop(names[0], None)
        elif call == "linkat":
            now[names[1]] = self.open[names[0]] if paths[0].startswith("/proc/self/fd/") else now[names[0]]
        elif "RENAME_EXCHANGE" in words:
            now[names[0]], now[names[1]] = now[names[1]], now[names[0]]
        else:
            now[names[1]] = now.pop(names[0])
        return now

    def change(self, names):
        self.names = names
        self.durable.append(names)


def problem_at(disk, operation, former, gives_up):
    for names in disk.durable:
        out = names.get("out")
        if out in disk.dirty:
            return "a name leads to what is not whole"
        if out is None and former and not gives_up:
            return "the former output is lost"
        if names.get("in") != "in" and (operation == "decrypt" or out in (None, "out")):
            return "the input is lost"
    return None


def run(job, folder):
    program, operation, former, without = job
    os.chdir(folder)
    for name in os.listdir():
        os.remove(name)
    write("in", os.urandom(70000))
    write("../pw", b"secret")
    if operation == "decrypt":
        os.replace("in", "../in")
        subprocess.run([CLI, "encrypt", "--password-file", "../pw", "--output", "in", "../in"], check=True)
    if former:
        write("out", b"precious")
    disk = Disk(folder)
    command = [CLI, operation, "--password-file", "../pw", "--output", "out", "in", *["--force"] * former] \
        if program == "console" else [WINDOW_JOB, operation, "secret", f"{folder}/out", f"{folder}/in"]
    subprocess.run(["strace", "-f", "-y", "-s", "256", "-o", "../trace", "-e", f"trace={TRACED}",
                    "-E", f"LD_PRELOAD={LIBRARY}", "-E", f"FAULTS_WITHOUT={without}", *command],
                   check=True, capture_output=True, timeout=120)
    with open("../trace", errors="replace") as trace:
        lines = list(joined(trace.read().splitlines()))
    for moment, line in enumerate(lines):
        disk.apply(line)
        if found := problem_at(disk, operation, former, program == "window"):
            return moment, f"{found} after {line}"
    done = all(names.get("out", "out") != "out" for names in disk.durable)
    deleted = program == "console" or operation == "decrypt" or all("in" not in names for names in disk.durable)
    return len(lines), None if done and deleted else f"the disk does not have what was told: {disk.durable}"


def joined(lines):
    """Each call where it ended, which another thread may have cut in two."""
    begun = {}
    for line in lines:
        thread = line.split(" ", 1)[0]
        if line.endswith("<unfinished ...>"):
            begun[thread] = line.removesuffix("<unfinished ...>")
        elif match := re.match(r"\d+ +<\.\.\. \w+ resumed>(.*)", line):
            yield begun.pop(thread) + match[1]
        else:
            yield line


with scratch() as home:
    os.environ.update(window_at(home, RewriteOutputFile=True), QT_QPA_PLATFORM="offscreen")
    os.mkdir(f"{home}/work")
    failures = moments = 0
    for job in JOBS:
        checked, problem = run(job, f"{home}/work")
        moments += checked
        if problem:
            failures += 1
            print(f"{job[0]} {job[1]}{', output exists' * job[2]}, without ({job[3]}): {problem}", flush=True)
    print(f"{len(JOBS)} jobs, {moments} moments, {failures} failures")
    os.chdir("/")
sys.exit(failures > 0)
