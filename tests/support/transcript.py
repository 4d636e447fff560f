#!/usr/bin/env python3
"""transcript.py TRANSCRIPT PROGRAM [PART]: plays what stands behind each "$" of the part, or of all, and fails where it
does not tell the lines below it, in which * is anything, or ends with another code than the one before the "$".

A part begins with "== NAME" and has a folder and a shell of its own. Each begins with what stands above the first."""

import difflib
import os
import re
import subprocess
import sys
import tempfile

DATA = os.path.dirname(os.path.abspath(sys.argv[1]))

def played(part, program):
    """The part with what its commands tell now."""
    commands = re.findall(r"^\d*\$ (.*)", part, re.M)
    script = "".join(f"{command}\nprintf '\\0%d\\0' $?\n" for command in commands)
    with tempfile.TemporaryDirectory() as folder:
        environment = {**os.environ, "HOME": folder, "XDG_CONFIG_HOME": folder, "LC_ALL": "C.UTF-8", "PROGRAM": program,
                       "PATH": f"{os.path.dirname(program)}:{os.environ['PATH']}", "DATA": DATA}
        done = subprocess.run(["bash", "-c", script], cwd=folder, env=environment, stdin=subprocess.DEVNULL,
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT, start_new_session=True, timeout=280)
    told = done.stdout.decode(errors="backslashreplace").split("\0")
    lines = []
    for command, text, code in zip(commands, told[::2], told[1::2]):
        lines += [f"{code}$ {command}".removeprefix("0"), *filter(None, text.splitlines())]
    return lines


def is_as_shown(line, shown):
    return re.fullmatch(re.escape(shown).replace(r"\*", ".*"), line)


def main():
    with open(sys.argv[1]) as file:
        common, *parts = re.split(r"^== (.+)\n", re.sub(r"(?m)^(#.*)?\n", "", file.read()), flags=re.M)
    parts = dict(zip(parts[::2], parts[1::2]))
    different = False
    for name in sys.argv[3:] or parts:
        shown = (common + parts[name]).splitlines()
        lines = played(common + parts[name], os.path.abspath(sys.argv[2]))
        if len(lines) != len(shown) or not all(map(is_as_shown, lines, shown)):
            different = True
            print(name, *difflib.unified_diff(shown, lines, "shown", "told", lineterm=""), sep="\n")
    sys.exit(different)


if __name__ == "__main__":
    main()
