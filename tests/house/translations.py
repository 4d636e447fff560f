#!/usr/bin/env python3
"""translations.py TOOL: a language goes its way from `new` to `check`, and each fault in it is told."""

import csv
import pathlib
import subprocess
import sys
import tempfile

SOURCE = r"""
struct A : QObject { void f(int n) {
    tr("&Open <b>%1</b>\n\"\\"); tr("%n file(s)", "", n); //: told to the translator
    tr("Close");
} };
"""

with tempfile.TemporaryDirectory() as scratch:
    folder, table = pathlib.Path(scratch, "translations"), pathlib.Path(scratch, "table")
    sources = pathlib.Path(scratch, "src")
    sources.mkdir()
    (sources / "a.cpp").write_text(SOURCE)

    def tool(*words):
        done = subprocess.run([sys.argv[1], "--folder", folder, "--sources", sources, *words],
                              capture_output=True, text=True, timeout=120)
        return done.returncode, done.stdout + done.stderr

    def expect(words, code, text):
        got = tool(*words)
        assert got[0] == code and text in got[1], (words, got)

    def fill(change):
        """Each translation is its source in brackets, where the change does not say otherwise."""
        with open(table, newline="") as file:
            rows = list(csv.DictReader(file, delimiter="\t", quoting=csv.QUOTE_NONE))
        lines = ["\t".join(rows[0])]
        lines += ["\t".join({**row, "translation": change.get(row["source"], f"[{row['source']}]")}.values())
                  for row in rows]
        table.write_text("\n".join(lines) + "\n")

    expect(["new", "russian", "x"], 1, "is no tag")
    expect(["new", "ru-RU", "Русский"], 0, "ready to be translated")
    expect(["new", "ru-RU", "Русский"], 1, "already")
    expect(["export", "ru-RU", table], 0, "")
    fill({"Close": ""})
    expect(["import", "ru-RU", table], 0, "2 of 3 texts")
    expect(["check"], 1, "quillet_ru-RU.ts: A: 'Close': no finished translation")
    for source, wrong, fault in (("Close", "&Close", "1 letters marked with & instead of 0"),
                                 ("Close", "Close %1", "place markers %1 instead of none"),
                                 ("%n file(s)", "one file", "place markers missing instead of %n"),
                                 ("Close", "<i>Close</i>", "tags ['</i', '<i'] instead of []"),
                                 ("Close", " Close", "blanks around")):
        fill({source: wrong})
        expect(["import", "ru-RU", table], 1, fault)
    fill({})
    expect(["import", "ru-RU", table], 0, "3 of 3 texts")
    expect(["check"], 0, "")
    (sources / "a.cpp").write_text(SOURCE.replace("Close", "End"))
    expect(["check"], 1, "'End': no finished translation")
    (sources / "a.cpp").write_text(SOURCE + 'struct B : QObject { void f() { tr("a", "x"); tr("a", "y"); } };')
    expect(["update"], 0, "")
    fill({})
    expect(["check"], 1, "B: 'a': twice in its context")
    assert "\\n" in table.read_text() and (folder / "quillet_ru-RU.ts").read_text().count("<numerusform>") == 3
