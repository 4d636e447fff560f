#!/usr/bin/env python3
"""Has the console programs of both systems read each other's files, with every algorithm. Arguments: quillet-cli of
this machine, quillet-cli.exe. Prints what was compared."""
import itertools
import json
import os
import pathlib
import sys
import tempfile

import wine

LINUX, WINDOWS = map(os.path.abspath, sys.argv[1:3])
if not os.path.exists(LINUX):
    sys.exit(77)
SYSTEMS = {"linux": LINUX, "windows": WINDOWS}
OTHER = {"linux": WINDOWS, "windows": LINUX}
PLAIN = os.urandom(100003)


def written(name, data):
    pathlib.Path(name).write_bytes(data)
    return name


def secret(row):
    return ["--key-file", f"key{row['keyBytes']}", "--iv-file", f"iv{row['ivBytes']}"]


def encrypted_everywhere(rows):
    for system, program in SYSTEMS.items():
        for way in ("key", "password"):
            os.makedirs(f"{system}/{way}")
        for row in rows:
            name = f"ключ 🔑 {row['name']}.enc"
            by_password = ["--salt", "--password-file", "pw"]
            for way, options in (("key", secret(row)), ("password", by_password)):
                wine.run(program, "encrypt", "-a", row["name"], *options, "-o", f"{system}/{way}/{name}", "plain")


def opened(system, way, options, rows):
    """How many of the system's files the other one opens, without being told the algorithm."""
    names = [f"{system}/{way}/ключ 🔑 {row['name']}" for row in rows]
    wine.run(OTHER[system], "decrypt", "-q", *options, *(name + ".enc" for name in names))
    return sum(pathlib.Path(name).read_bytes() == PLAIN for name in names)


def compare_algorithms():
    table = wine.run(LINUX, "algorithms", "--json")
    assert wine.run(WINDOWS, "algorithms", "--json") == table
    rows = json.loads(table)
    for size in {row[part] for row in rows for part in ("keyBytes", "ivBytes")}:
        for part in ("key", "iv"):
            written(f"{part}{size}", os.urandom(size).hex().encode())
    encrypted_everywhere(rows)
    same = sum(pathlib.Path(f"linux/key/ключ 🔑 {row['name']}.enc").read_bytes() ==
               pathlib.Path(f"windows/key/ключ 🔑 {row['name']}.enc").read_bytes() for row in rows)
    counts = [("under key and IV, byte for byte equal", same)]
    for system, other in (("windows", "Linux"), ("linux", "Windows")):
        groups = itertools.groupby(sorted(rows, key=secret), key=secret)
        by_key = sum(opened(system, "key", options, list(group)) for options, group in groups)
        by_password = opened(system, "password", ["--password-file", "pw"], rows)
        counts += [(f"under key and IV, opened by {other}", by_key),
                   (f"under password with salt, opened by {other}", by_password)]
    for what, count in counts:
        print(f"{what}: {count} of {len(rows)}")
    return all(count == len(rows) for _, count in counts)


def exchange_sealed():
    for system, program in SYSTEMS.items():
        wine.run(program, "encrypt", "--seal", "--password-file", "pw", "-o", f"{system}/sealed", "plain")
        wine.run(OTHER[system], "decrypt", "-q", "--password-file", "pw", "-o", f"{system}/opened", f"{system}/sealed")
        assert pathlib.Path(f"{system}/opened").read_bytes() == PLAIN
    print("sealed, opened by the other: 2 of 2")


def use_long_path():
    folder = os.path.join(*["длинное имя " + "x" * 30] * 8)
    os.makedirs(folder)
    path = written(os.path.join(folder, "plain"), PLAIN)
    wine.run(WINDOWS, "encrypt", "--password-file", "pw", path)
    wine.run(LINUX, "decrypt", "-q", "--password-file", "pw", "-o", "from long", path + ".enc")
    assert pathlib.Path("from long").read_bytes() == PLAIN
    print(f"a path of {len(os.path.abspath(path))} characters: used")


def refuse_reserved_names():
    before = wine.files(".")
    names = ("NUL", "com1.txt", "aux .enc", "ab:c", "end.", "end ", "what?")
    for name in names:
        told = wine.run(WINDOWS, "encrypt", "-f", "--password-file", "pw", "-o", name, "plain", code=1)
        assert wine.files(".") == before, name
        print(f"refused: {told.strip()}")


with tempfile.TemporaryDirectory() as scratch, wine.kept_ready():
    os.chdir(scratch)
    written("plain", PLAIN)
    written("pw", wine.PASSWORD.encode())
    use_long_path()
    refuse_reserved_names()
    good = compare_algorithms()
    exchange_sealed()
    os.chdir("/")
sys.exit(0 if good else 1)
