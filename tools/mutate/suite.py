"""Builds a tree fast and runs its tests, the quick ones first, until one fails."""
import json
import os
import pathlib
import signal
import subprocess
import sys
import threading
import time
import uuid

CONFIGURE = ["-G", "Ninja", "-DCMAKE_BUILD_TYPE=Debug", "-DCMAKE_CXX_FLAGS_DEBUG=-O0 -g0", "-DQUILLET_WERROR=OFF",
             "-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=lld", "-DCMAKE_GTEST_DISCOVER_TESTS_DISCOVERY_MODE=PRE_TEST"]
NOT_RUN = {"house.mutations"}  # it would notice every fault


def kill_all_of(run):
    """Kills what a failed test has left running, in sessions of its own, too."""
    for environment in pathlib.Path("/proc").glob("[0-9]*/environ"):
        try:
            if f"MUTATE_RUN={run}".encode() in environment.read_bytes().split(b"\0"):
                os.kill(int(environment.parent.name), signal.SIGKILL)
        except OSError:
            pass  # it has ended, or is another user's


class Test:
    def __init__(self, facts, tests_folder):
        properties = {p["name"]: p["value"] for p in facts["properties"]}
        self.name, self.command = facts["name"].partition("  #")[0], facts["command"]
        self.folder = properties["WORKING_DIRECTORY"]
        self.environment = dict(line.split("=", 1) for line in properties.get("ENVIRONMENT", []))
        place = pathlib.Path(self.folder)
        self.layer = place.relative_to(tests_folder).parts[:1] if place.is_relative_to(tests_folder) else ()
        self.seconds = None  # it took when nothing was wrong

    def passes(self, base_environment, give_up):
        """Whether it passes in many times its time; None when give_up was set first."""
        limit = 20 + 20 * self.seconds if self.seconds is not None else 600
        self.ended = True
        end = time.monotonic() + limit
        run = uuid.uuid4().hex
        environment = base_environment | self.environment | {"MUTATE_RUN": run}
        process = subprocess.Popen(self.command, cwd=self.folder, env=environment, start_new_session=True,
                                   stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        try:
            while True:
                try:
                    return process.wait(timeout=0.5) == 0
                except subprocess.TimeoutExpired:
                    if give_up.is_set():
                        return None
                    if time.monotonic() > end:
                        self.ended = False
                        return False
        finally:
            try:
                os.killpg(process.pid, signal.SIGKILL)
            except ProcessLookupError:
                pass
            process.wait()
            if process.returncode:
                kill_all_of(run)


class Suite:
    def __init__(self, tree, folder, jobs, longest):
        self.tree, self.folder, self.jobs, self.longest = tree, folder, jobs, longest
        self.environment = self._private_environment()
        self._run(["cmake", "-S", str(tree), "-B", str(folder), *CONFIGURE], must=True)
        self.tests = []
        self.killers = {}  # file: names of the tests that have noticed faults in it

    def build(self, part, layers=()):
        """Builds the sources or the tests of these layers, or of all. False when the compiler or linker refuses."""
        targets = [f"{part}/{layer}/all" for layer in layers] or ["all" if part == "tests" else f"{part}/all"]
        return self._run(["cmake", "--build", str(self.folder), "-j", str(self.jobs), "--target", *targets])

    def prepare(self, layers, own_layer):
        """Builds without a fault, and learns how long the tests of these layers, or of all others, take."""
        if not all(self.build(part, layers if own_layer else ()) for part in ("src", "tests")):
            sys.exit("mutate: the tree does not build")
        self.tests = self._learn_tests()
        wanted = {test.name: test for layer in layers for test in self._of(layer, own_layer)}
        times = self.folder.parent / "times.json"  # of all runs in this folder
        known = json.loads(times.read_text()) if times.exists() else {}
        for test in wanted.values():
            test.seconds = known.get(test.name)
            if test.seconds is None:
                self._measure(test)
            if test.seconds is not None and test.seconds > self.longest:
                self.tests.remove(test)
        times.write_text(json.dumps(known | {test.name: test.seconds for test in self.tests if test.seconds}, indent=1))

    def _measure(self, test):
        """One that fails without a fault tells nothing of faults and is left out."""
        for _ in range(2):
            began = time.monotonic()
            if test.passes(self.environment, threading.Event()):
                test.seconds = time.monotonic() - began
                return
        print(f"left out, it fails without a fault: {test.name}", flush=True)
        self.tests.remove(test)

    def first_failure(self, fault, own_layer):
        """The name of a test that fails twice, or None. Of the layer's tests, or of all others; those that have noticed
        other faults in the file come first, then the quick ones."""
        killers = self.killers.setdefault(fault.file, set())
        waiting = sorted(self._of(fault.layer, own_layer), key=lambda test: (test.name not in killers, test.seconds))
        waiting.reverse()
        failed, found, lock = [], threading.Event(), threading.Lock()

        def work():
            while not found.is_set():
                with lock:
                    if not waiting:
                        return
                    test = waiting.pop()
                if test.passes(self.environment, found) is False and not test.passes(self.environment, threading.Event()):
                    failed.append(test)
                    found.set()

        workers = [threading.Thread(target=work) for _ in range(self.jobs)]
        for worker in workers:
            worker.start()
        for worker in workers:
            worker.join()
        killers.update(test.name for test in failed)
        return failed[0].name + ("" if failed[0].ended else ", which did not end") if failed else None

    def _of(self, layer, own):
        return [test for test in self.tests if (test.layer == (layer,)) == own]

    def _learn_tests(self):
        shown = subprocess.run(["ctest", "--test-dir", str(self.folder), "--show-only=json-v1"], check=True,
                               capture_output=True, text=True).stdout
        found = [Test(facts, self.folder / "tests") for facts in json.loads(shown)["tests"] if "command" in facts]
        return [test for test in found if test.name not in NOT_RUN]

    def _private_environment(self):
        """A fault may write or delete anywhere: not among the developer's own files."""
        own = {name: str(self.folder.parent / name.lower()) for name in ("HOME", "TMPDIR")}
        for path in own.values():
            pathlib.Path(path).mkdir(parents=True, exist_ok=True)
        return {name: value for name, value in os.environ.items() if not name.startswith("XDG_")} | own

    def _run(self, command, must=False):
        done = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                              env=os.environ | {"CCACHE_BASEDIR": str(self.tree), "CCACHE_NOHASHDIR": "1"})
        if must and done.returncode:
            sys.exit(f"mutate: {' '.join(command)}\n{done.stdout}")
        return done.returncode == 0
