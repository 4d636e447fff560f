#!/usr/bin/env python3
"""The table of docs/TESTING.md: what shows that each algorithm is the one of its name, from data/evidence.txt and the
headings in data/vectors. Arguments: the tree, and "--write" to write it; without, the page must already have it."""
import collections
import pathlib
import re
import sys

root = pathlib.Path(sys.argv[1])
data, page = root / "tests" / "data", root / "docs" / "TESTING.md"
NAMES = {"mars.py": "[mars.py](../tests/evidence/mars.py)", "panama.py": "[panama.py](../tests/evidence/panama.py)"}


def rows(path):
    return [line.split() for line in path.read_text().splitlines() if not line.startswith("#")]


evidence = {name: (answers.split(",") if answers != "-" else [], reader) for name, answers, reader, _
            in rows(data / "evidence.txt")}
assert list(evidence) == [name for _, name, *_ in rows(data / "algorithms.txt")], "evidence.txt is not the catalogue"
known = {who for answers, _ in evidence.values() for who in answers}

published = collections.defaultdict(dict)  # where answers were published
for path in sorted((data / "vectors").iterdir()):
    heading = ""
    for line in path.read_text().splitlines():
        name = line.split()[0]
        if name == "#":
            heading = heading if line.startswith("# algorithm ") else line
        elif heading.startswith("# Published: "):
            publisher = re.split("[,;(]", heading.removeprefix("# Published: "))[0].strip()
            published[name][f"[{publisher}](../tests/data/vectors/{path.name})"] = None
        else:
            computers = {who for who in known if who in heading and heading.startswith("# Computed: ")}
            assert computers and computers <= set(evidence[name][0]), f"{path.name}: no known source of {name}: {heading}"

table = ["| Algorithm | Published answers | The same answers by | Files exchanged with |", "|---|---|---|---|"]
for name, (answers, reader) in evidence.items():
    assert published[name] or answers, f"{name} has nothing but our word"
    cells = [name, *(", ".join(NAMES.get(cell, cell) for cell in column) or "-"
                     for column in (published[name], answers, [reader]))]
    table.append("| " + " | ".join(cells) + " |")

text = page.read_text()
head, rest = text.split(table[0])
tail = rest[re.search(r"\n(?!\|)", rest).start():]
new = head + "\n".join(table) + tail
if "--write" in sys.argv:
    page.write_text(new)
assert "--write" in sys.argv or text == new, "docs/TESTING.md is out of date: tests/evidence/table.py . --write"
print(f"{len(evidence)} algorithms; without published answers: {sum(not published[name] for name in evidence)}, "
      f"without other answers: {sum(not answers for answers, _ in evidence.values())}")
