#!/usr/bin/env python3
"""layers.py TREE: fails on an include against the layer order app > ui > common > crypto > io > lib (cli stands beside
app, over common), on what only some folders may have, and on a header that its source does not include first."""

import pathlib
import re
import sys

RANKS = {"lib": 0, "io": 1, "crypto": 2, "common": 3, "ui": 4, "app": 5, "cli": 5}
INCLUDE = r"#\s*include\s+"
POSIX = r"<(unistd|sys/[a-z]+|termios|pwd|dirent|poll|dlfcn)\.h>"
WINDOWS = r"<(windows|winternl|aclapi|sddl|shlobj|shellapi|shobjidl|io)\.h>"
OF_LINUX, OF_WINDOWS = "(lib/platform|app/desktop)/linux/", "(lib/platform|app/desktop)/windows/"
# What is complained of; the lines in which it is; in what files, and in which of them it may be.
RULES = [
    ("Crypto++ outside crypto/cryptopp", INCLUDE + r'[<"](cryptopp|crypto\+\+)/', "", "crypto/cryptopp/"),
    ("Argon2 outside its one file", INCLUDE + r'[<"]argon2\.h', "", r"crypto/sealed/Argon2\.cpp"),
    ("Qt below ui", INCLUDE + "<Q[A-Za-z]+", "(lib|io|crypto|cli)/", "lib/i18n/"),
    ("platform switch in the logic", r"#\s*(if|ifdef|ifndef|elif)\b.*(_WIN32|__linux__|__unix__|Q_OS_)", "", "$"),
    ("system header outside the platform folders",
     INCLUDE + f"({POSIX}|{WINDOWS}|<fcntl\\.h>)", "", f"{OF_LINUX}|{OF_WINDOWS}"),
    ("header of another system", INCLUDE + WINDOWS, OF_LINUX, "$"),
    ("header of another system", INCLUDE + POSIX, OF_WINDOWS, "$"),
    ("Linux's own header outside its folder", INCLUDE + f'"{OF_LINUX}', "", OF_LINUX),
    ("Windows' own header outside its folder", INCLUDE + f'"{OF_WINDOWS}', "", OF_WINDOWS),
]


def complaints(file, line):
    layer = file.split("/")[0]
    included = re.match(r'\s*#\s*include\s+"([a-z]+)/', line)
    if included and (to := included[1]) in RANKS and to != layer:
        if RANKS[to] > RANKS.get(layer, -1) or RANKS[to] == 5 or (layer, to) == ("cli", "ui"):
            yield "against the layer order"
    for complaint, pattern, where, but in RULES:
        if re.search(pattern, line) and re.match(where, file) and not re.match(but, file):
            yield complaint


def first_included(text):
    found = re.search(INCLUDE + '[<"](.+)[>"]', text)
    return found and found[1]


source = pathlib.Path(sys.argv[1], "src")
files = {path.relative_to(source).as_posix(): path for path in source.rglob("*.*") if path.suffix in (".h", ".cpp")}
found = [f"{complaint}: {file}: {line}" for file, path in files.items() for line in path.read_text().splitlines()
         if "#" in line for complaint in complaints(file, line)]
found += [f"own header not first: {file}" for file, path in files.items() if file.endswith(".cpp")
          if (header := file[:-4] + ".h") in files and first_included(path.read_text()) != header]
print(f"{len(files)} files", *found, sep="\n")
sys.exit(bool(found) or not files)
