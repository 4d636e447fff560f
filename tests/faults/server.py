"""Server: runs a program again and again by the preloaded library of failing_calls.cpp, with one call failing in each run.
Sweep: does so with every call of every job, and counts runs and complaints."""

import argparse
import collections
import errno
import fnmatch
import os
import subprocess
import sys
import tempfile

# What may happen at a call: an error, or one of these, which are those of failing_calls.cpp.
NOTHING, SHORT, KILL_BEFORE, KILL_AFTER, FROM_THERE_ON, DONE, SHORT_THEN_ERROR = range(0, -7, -1)
WAYS = {"nothing": NOTHING, "short": SHORT, "killed-before": KILL_BEFORE, "killed-after": KILL_AFTER,
        "from-there-on": FROM_THERE_ON, "done": DONE, "short-then-EIO": SHORT_THEN_ERROR}
WAYS |= {name: number for name, number in vars(errno).items() if name[0] == "E"}
DATA = os.path.join(os.path.dirname(os.path.abspath(__file__)), "../data")


def rows(name, splits=-1):
    """Of a text file in tests/data, fields split at bars."""
    with open(os.path.join(DATA, name)) as file:
        return [[field.strip() for field in line.split("|", splits)] for line in file if line[0] != "#"]


def pairs(text):
    return dict(pair.split("=") for pair in text.split(", ") if pair)


# In what ways each call may fail, and whether it may matter.
CALLS = {call: {WAYS[way]: matters for ways, matters in ((matter, True), (other, False)) for way in ways.split()}
         for call, matter, other in rows("fault_calls.txt")}
Run = collections.namedtuple("Run", "status calls told out")


def error_of(way):
    return {FROM_THERE_ON: errno.ENOMEM, SHORT_THEN_ERROR: errno.EIO}.get(way, max(way, 0))


class Server:
    """The program with these arguments, in a folder of its own below one for its standard streams."""

    def __init__(self, library, command, folder, stdin=os.devnull, without="", environment=(), later=False):
        self.streams = os.path.dirname(folder)
        if os.path.lexists(f"{self.streams}/stdin"):
            os.remove(f"{self.streams}/stdin")
        os.symlink(stdin, f"{self.streams}/stdin")
        order, orders = os.pipe()
        answers, answer = os.pipe()
        variables = {**os.environ, **dict(environment), "LD_PRELOAD": library, "FAULTS_FROM": str(order),
                     "FAULTS_TO": str(answer), "FAULTS_WITHOUT": without, **({"FAULTS_LATER": "1"} if later else {})}
        self.process = subprocess.Popen(command, cwd=folder, env=variables, pass_fds=(order, answer),
                                        stdin=subprocess.DEVNULL)
        os.close(order)
        os.close(answer)
        self.orders = os.fdopen(orders, "w", buffering=1)
        self.answers = os.fdopen(answers)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.orders.close()
        self.answers.close()
        self.process.wait()

    def run(self, call="none", at=0, way=NOTHING, threads="all", first=""):
        self.orders.write(f"{call} {at} {way} {threads} {first}\n")
        status, calls = map(int, self.answers.readline().split())
        told = read(f"{self.streams}/stderr").decode(errors="replace")
        return Run(status, calls, told, read(f"{self.streams}/stdout"))


class Sweep:
    """A folder for the jobs, and runs and complaints by job."""

    def __init__(self, *programs):
        parser = argparse.ArgumentParser()
        for program in programs:
            parser.add_argument(program, type=os.path.abspath)
        parser.add_argument("--every", type=int, default=1)
        parser.add_argument("--job", dest="jobs", action="append")
        self.arguments = parser.parse_args()
        self.runs, self.complaints = collections.Counter(), collections.Counter()
        self.scratch = scratch()
        self.home, self.folder = self.scratch.name, f"{self.scratch.name}/work"
        os.mkdir(self.folder)
        os.chdir(self.folder)

    def all(self, jobs, sweep_job, *others):
        """Sweeps the jobs, and does what else there is, or what of it fits the names given; ends the program."""
        sweeps = {name: lambda name=name, job=job: sweep_job(name, job) for name, job in jobs.items()}
        sweeps |= {other.__name__: other for other in others}
        for name, sweep in sweeps.items():
            if any(fnmatch.fnmatch(name, wanted) for wanted in self.arguments.jobs or "*"):
                sweep()
        os.chdir("/")
        self.scratch.cleanup()
        for name, count in self.runs.items():
            print(f"{name}: {count} runs, {self.complaints[name]} failures")
        print(f"{sum(self.runs.values())} runs, {sum(self.complaints.values())} failures")
        sys.exit(any(self.complaints.values()) or not self.runs)

    def calls(self, job, judge, choose=dict.items, threads="all"):
        """Lets each call fail, on whatever thread, and of the allocations on these threads each N-th."""
        self.add(job, "none", NOTHING, 0, judge.normal, judge(judge.normal, "none", NOTHING, False))
        for call, ways in CALLS.items():
            for way, matters in choose(ways):
                step = (self.arguments.every, threads) if call == "malloc" else (1, "all")
                self.each(job, judge.run, call, way, lambda run: judge(run, call, way, matters), *step)

    def each(self, job, run, call, way, judge, step=1, threads="all"):
        """Lets the n-th call fail for every n, or every step-th, until there is none."""
        at = 1
        while (done := run(call, at, way, threads)).calls >= at:
            self.add(job, call if threads == "all" else f"{call} of {threads}", way, at, done, judge(done))
            at += step

    def add(self, job, call, way, at, run, problem):
        self.runs[job] += 1
        if problem:
            self.complaints[job] += 1
            name = next(name for name, number in WAYS.items() if number == way)
            print(f"{job}: {call} #{at}, {name}: {problem}: {run.told.strip()}", flush=True)


class Judge:
    """Runs one job, and says what is wrong with what it told and left."""

    def __init__(self, files, job, server):
        self.files, self.job, self.server = files, job, server
        self.normal = self.run()

    def run(self, *order):
        self.prepare()
        return self.server.run(*order)


def scratch():
    """A folder in memory, where there is one."""
    return tempfile.TemporaryDirectory(dir="/dev/shm" if os.access("/dev/shm", os.W_OK) else None)


def window_at(home, **settings):
    """The environment of a window that has its own files there, with these settings."""
    os.makedirs(f"{home}/Tessaly", exist_ok=True)
    settings = {"UseConfirmPassword": False, "DeleteSourceFileAfterEncryption": True,
                "ConfirmDeleteSourceFileAfterEncryption": False, **settings}
    lines = ["[General]", *(f"{name}={str(bool(value)).lower()}" for name, value in settings.items()), ""]
    write(f"{home}/Tessaly/Quillet.conf", "\n".join(lines).encode())
    places = "HOME", "TMPDIR", "XDG_CONFIG_HOME", "XDG_STATE_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"
    return {**{name: home for name in places}, "LANGUAGE": "en_US", "QT_LOGGING_RULES": "*=false"}


def read(name):
    with open(name, "rb") as file:
        return file.read()


def write(name, data):
    with open(name, "wb") as file:
        file.write(data)
