#!/usr/bin/env python3
"""Puts small faults into the program, one at a time, and tells which of them no test notices.

    tools/mutate/mutate.py [--layer L...] [--only PATTERN...] [--every N --from K] [--near] [--quick S] [--jobs N]
                           [--build DIR]
    tools/mutate/mutate.py --check

The lists beside this file have the faults, one list for each layer; docs/TESTING.md tells how to write them. All is done in
a copy of the tree below DIR. Fails when more than 3 % of the faults survive, or when a list does not fit the sources.
"""
import argparse
import fnmatch
import pathlib
import re
import shutil
import subprocess
import sys
import time

sys.dont_write_bytecode = True
import suite

HERE = pathlib.Path(__file__).resolve().parent
ROOT = HERE.parent.parent
ALLOWED = 0.03


class ListError(Exception):
    """A list is not written as it should be, or does not fit the sources."""


class Fault:
    """One entry of a list."""

    def __init__(self, layer, text):
        lines = text.splitlines()
        self.layer, self.name, self.file = layer, lines[0].strip(), lines[1].strip()
        body = [line for line in lines[2:] if line.strip()]
        pick = lambda mark: [line[1:].strip() for line in body if line[0] == mark]
        self.old, self.new, reasons = pick("-"), pick("+"), pick("=")
        self.equivalent = " ".join(reasons).removeprefix("equivalent: ")
        if len(self.old) + len(self.new) + len(reasons) != len(body):
            raise ListError(f"{layer}: {self.name}: a line begins with none of - + =")
        if not self.old or self.old == self.new:
            raise ListError(f"{layer}: {self.name}: nothing to change")

    def applied(self, text):
        """The file's text with the fault in it. Leading blanks do not matter."""
        lines = text.splitlines()
        bare = [line.strip() for line in lines]
        count = len(self.old)
        places = [i for i in range(len(bare)) if bare[i:i + count] == self.old]
        if len(places) != 1:
            raise ListError(f"stale: the old text is {len(places)} times in {self.file}")
        return "\n".join(lines[:places[0]] + self.new + lines[places[0] + count:]) + "\n"


def read_lists(folder):
    faults = []
    for file in sorted(folder.glob("*.txt")):
        entries = re.split(r"^## ", file.read_text(), flags=re.M)[1:]
        faults += [Fault(file.stem, entry) for entry in entries]
    names = [fault.name for fault in faults]
    twice = {name for name in names if names.count(name) > 1}
    if twice:
        raise ListError(f"names used twice: {', '.join(sorted(twice))}")
    return faults


def check(faults):
    bad = 0
    for fault in faults:
        try:
            fault.applied((ROOT / fault.file).read_text())
        except (ListError, OSError) as error:
            bad += 1
            print(f"{fault.layer}: {fault.name}: {error}")
    print(f"{len(faults)} faults, {bad} do not fit")
    return bad == 0


def copy_tree(target):
    """Brings the copy up to date. Files that are the same stay untouched, so that little is built again."""
    listed = subprocess.run(["git", "ls-files", "-co", "--exclude-standard", "-z"], cwd=ROOT, check=True,
                            capture_output=True, text=True).stdout
    names = {name for name in listed.split("\0") if name and (ROOT / name).is_file()}
    for name in names:
        there = target / name
        if not there.is_file() or there.read_bytes() != (ROOT / name).read_bytes():
            there.parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(ROOT / name, there)
    for there in [path for path in target.rglob("*") if path.is_file()]:
        if str(there.relative_to(target)) not in names:
            there.unlink()


class Round:
    """Puts faults in one after the other and lets either the tests of their own layers or all others judge them."""

    def __init__(self, tree, tests, own_layer):
        self.tree, self.tests, self.own_layer = tree, tests, own_layer

    def run(self, faults, counts):
        """Those that survived."""
        if faults:
            self.tests.prepare(sorted({fault.layer for fault in faults}), self.own_layer)
        survivors = []
        for fault in faults:
            began = time.monotonic()
            word, line = self.put_in(fault)
            counts[word] += 1
            if word == "survived":
                survivors.append(fault)
            print(f"{fault.layer}: {fault.name}: {line} ({time.monotonic() - began:.0f} s)", flush=True)
        return survivors

    def put_in(self, fault):
        """What came of it: the word for the totals, and the words to print."""
        file = self.tree / fault.file
        whole = file.read_text()
        try:
            file.write_text(fault.applied(whole))
            layers = [fault.layer] if self.own_layer else []
            if not self.tests.build("src", layers):
                return "wrong", "does not build"
            if not self.tests.build("tests", layers):
                return "killed", "killed by a check when the tests are built"
            killer = self.tests.first_failure(fault, self.own_layer)
            if killer:
                return "killed", f"killed by {killer}"
            return "survived", "survived its layer" if self.own_layer else "SURVIVED"
        except ListError as error:
            return "wrong", str(error)
        finally:
            file.write_text(whole)  # its time is now: what was built of the fault is older


def chosen(faults, options):
    fits = lambda fault: ((not options.layer or fault.layer in options.layer)
                          and any(fnmatch.fnmatch(f"{fault.file} {fault.name}", f"*{only}*") for only in options.only))
    faults = [fault for fault in faults if fits(fault)]
    return faults[options.start % options.every::options.every]


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--layer", nargs="+", metavar="L", help="only these lists")
    parser.add_argument("--only", nargs="+", default=[""], metavar="PATTERN",
                        help="only faults with one of these in their file or name")
    parser.add_argument("--every", type=int, default=1, metavar="N", help="only each N-th fault")
    parser.add_argument("--from", type=int, default=0, metavar="K", dest="start", help="the first one of these, modulo N")
    parser.add_argument("--near", action="store_true", help="run the tests of the fault's own layer only")
    parser.add_argument("--quick", type=float, default=float("inf"), metavar="S", help="run no test that takes longer, in s")
    parser.add_argument("--jobs", type=int, default=2, metavar="N", help="processes at a time")
    parser.add_argument("--check", action="store_true", help="only check that the lists fit the sources")
    parser.add_argument("--build", type=pathlib.Path, default=ROOT / "build" / "mutate", metavar="DIR")
    options = parser.parse_args()
    try:
        faults = read_lists(HERE)
    except ListError as error:
        sys.exit(f"mutate: {error}")
    if options.check:
        sys.exit(0 if check(faults) else 1)

    tree = options.build.resolve() / "tree"
    copy_tree(tree)
    tests = suite.Suite(tree, options.build.resolve() / "build", options.jobs, options.quick)
    counts = dict.fromkeys(["killed", "survived", "wrong"], 0)
    faults = chosen(faults, options)
    equivalent = [fault for fault in faults if fault.equivalent]
    for fault in equivalent:
        print(f"{fault.layer}: {fault.name}: equivalent: {fault.equivalent}")
    survivors = Round(tree, tests, True).run([fault for fault in faults if not fault.equivalent], counts)
    if survivors and not options.near:
        counts["survived"] = 0
        survivors = Round(tree, tests, False).run(survivors, counts)

    real = counts["killed"] + counts["survived"]
    share = counts["survived"] / real if real else 0
    print(f"{real} put in, {counts['killed']} killed, {len(equivalent)} equivalent, {counts['wrong']} wrong entries, "
          f"{counts['survived']} survivors ({share:.1%})")
    for fault in survivors:
        print(f"  {fault.layer}: {fault.name} ({fault.file})")
    sys.exit(0 if share <= ALLOWED and not counts["wrong"] else 1)


if __name__ == "__main__":
    main()
