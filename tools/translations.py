#!/usr/bin/env python3
"""Looks after the translations of the window. docs/TRANSLATING.md tells how to use it.

translations.py new TAG NAME         begins a language, as in: new sv-SE Svenska
translations.py update [TAG ...]     collects the texts of the sources into the languages given, or all
translations.py export TAG TABLE     writes the texts of a language as a table to fill
translations.py import TAG TABLE     takes a filled table back, where its texts hold what they must
translations.py check                complains of what is missing or wrong in the languages on offer
"""

import argparse
import collections
import csv
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as xml

ROOT = pathlib.Path(__file__).resolve().parent.parent
ENGLISH = "en-US"  # built in; only its plural forms are in a file
COLUMNS = ["context", "note", "source", "form", "translation"]

# How many of the plural forms, from the first, go with one number only and may do without it ("one
# file"). Elsewhere the first of several does.
FORMS_OF_ONE_NUMBER = {"ar": 3, "ga": 2, "cy": 2, "fr": 0, "pt-BR": 0, "br": 0, "fil": 0, "hy": 0, "be": 0, "bs": 0,
                       "hr": 0, "ru": 0, "sr": 0, "uk": 0, "lt": 0, "lv": 0, "is": 0, "mk": 0, "sl": 0}


def qt_tool(name):
    for place in (f"/usr/lib/qt5/bin/{name}", name):
        if found := shutil.which(place):
            return found
    sys.exit(f"{name} is missing (Debian: qttools5-dev-tools)")


def run(*command):
    done = subprocess.run([str(word) for word in command], capture_output=True, text=True)
    if done.returncode != 0:
        sys.exit(done.stdout + done.stderr)


class Language:
    """One entry of the list and its file."""

    def __init__(self, folder, attributes):
        self.tag = f"{attributes['language']}-{attributes['country']}"
        self.offered = attributes.get("disabled", "no") not in ("yes", "1", "true", "ok")
        self.path = folder / attributes["file"]

    def collect(self, sources, path=None):
        """Brings the file, or a new one at the path, in line with the sources; what is translated stays."""
        plurals = ["-pluralonly"] if self.tag == ENGLISH else []
        run(qt_tool("lupdate"), "-silent", "-locations", "none", "-no-obsolete", "-source-language", "en",
            "-target-language", self.tag.replace("-", "_"), *plurals, sources, "-ts", path or self.path)

    def may_omit_number(self, form, count):
        of_one = FORMS_OF_ONE_NUMBER.get(self.tag, FORMS_OF_ONE_NUMBER.get(self.tag.split("-")[0], 1))
        return count > 1 and form < of_one


class Text:
    """One message of a .ts file."""

    def __init__(self, context, message):
        self.context = context
        self.source = content(message.find("source"))
        self.comment = message.findtext("comment", "")
        self.note = " ".join(filter(None, [self.comment, message.findtext("extracomment", "")]))
        self.translation = message.find("translation")
        self.has_number = message.get("numerus") == "yes"

    @property
    def key(self):
        return self.context, self.source

    def forms(self):
        """The texts of its translation: one, or one for each plural form."""
        elements = self.translation.findall("numerusform") if self.has_number else [self.translation]
        return [content(element) for element in elements]

    def is_finished(self):
        return self.translation.get("type") is None and all(self.forms())

    def set(self, forms):
        elements = self.translation.findall("numerusform") if self.has_number else [self.translation]
        for element, form in zip(elements, forms):
            for byte in element.findall("byte"):
                element.remove(byte)
            element.text = form
        self.translation.attrib.pop("type", None)
        if not all(forms):
            self.translation.set("type", "unfinished")


def content(element):
    parts = [element.text or ""]
    for byte in element.findall("byte"):
        value = byte.get("value")
        parts += [chr(int(value[1:], 16) if value.startswith("x") else int(value)), byte.tail or ""]
    return "".join(parts)


def parse(path):
    try:
        return xml.parse(path)
    except (OSError, xml.ParseError) as fault:
        sys.exit(f"{path} can't be read: {fault}")


def read_texts(path):
    tree = parse(path)
    texts = [Text(context.findtext("name"), message)
             for context in tree.getroot().findall("context") for message in context.findall("message")]
    return tree, texts


def list_path(folder):
    return folder / "quillet.langs.xml"


def read_list(folder):
    return [Language(folder, entry.attrib) for entry in parse(list_path(folder)).getroot().findall("locale")]


def find_language(folder, tag):
    for language in read_list(folder):
        if language.tag == tag:
            return language
    sys.exit(f"{tag} is not in {list_path(folder)}")


def markers(text):
    return sorted(re.findall(r"%L?\d{1,2}|%L?n", text)), sorted(re.findall(r"</?[a-zA-Z]\w*", text))


def mnemonics(text):
    return len(re.findall(r"&[^&\s;]", text.replace("&&", "")))


def faults_of(language, text, forms):
    """What a translation has that its source has not, and the other way round."""
    places, tags = markers(text.source)
    number_place = "%Ln" if "%Ln" in places else "%n"
    for number, form in enumerate(forms):
        form_places, form_tags = markers(form)
        if text.has_number and language.may_omit_number(number, len(forms)) and number_place not in form_places:
            form_places = sorted(form_places + [number_place])
        if form_places != places:
            yield f"place markers {' '.join(form_places) or 'missing'} instead of {' '.join(places) or 'none'}"
        if form_tags != tags:
            yield f"tags {form_tags} instead of {tags}"
        if mnemonics(form) != mnemonics(text.source):
            yield f"{mnemonics(form)} letters marked with & instead of {mnemonics(text.source)}"
        if form != form.strip() and text.source == text.source.strip():
            yield "blanks around the text"


def new(arguments):
    if not re.fullmatch(r"[a-z]{2,3}-([A-Z]{2}|\d{3})", arguments.tag):
        sys.exit(f"{arguments.tag} is no tag such as de-DE")
    path = list_path(arguments.folder)
    if not path.exists():
        arguments.folder.mkdir(parents=True, exist_ok=True)
        path.write_text('<?xml version="1.0" encoding="UTF-8"?>\n<locales>\n</locales>\n', encoding="utf-8")
    if arguments.tag in (language.tag for language in read_list(arguments.folder)):
        sys.exit(f"{arguments.tag} is in {path} already")
    code, country = arguments.tag.split("-")
    entry = xml.tostring(xml.Element("locale", language=code, country=country, displayname=arguments.name,
                                     file=f"quillet_{arguments.tag}.ts", filetype="translations"), encoding="unicode")
    text = path.read_text(encoding="utf-8")
    path.write_text(text.replace("</locales>", f"  {entry.replace(' />', '/>')}\n</locales>"), encoding="utf-8")
    language = find_language(arguments.folder, arguments.tag)
    language.collect(arguments.sources)
    print(f"{language.path} is ready to be translated; {path} names it.")


def update(arguments):
    tags = arguments.tags or [language.tag for language in read_list(arguments.folder)]
    for language in [find_language(arguments.folder, tag) for tag in tags]:
        language.collect(arguments.sources)


def escaped(text):
    return text.replace("\\", "\\\\").replace("\n", "\\n").replace("\t", "\\t").replace("\r", "\\r")


def unescaped(text):
    return re.sub(r"\\(.)", lambda match: {"n": "\n", "t": "\t", "r": "\r"}.get(match[1], match[1]), text)


def form_name(text, number):
    return f"{number + 1} of {len(text.forms())}" if text.has_number else ""


def export(arguments):
    _, texts = read_texts(find_language(arguments.folder, arguments.tag).path)
    with open(arguments.table, "w", encoding="utf-8", newline="") as file:
        table = csv.writer(file, delimiter="\t", quoting=csv.QUOTE_NONE, quotechar=None, lineterminator="\n")
        table.writerow(COLUMNS)
        for text in texts:
            for number, form in enumerate(text.forms()):
                table.writerow([text.context, escaped(text.note), escaped(text.source), form_name(text, number),
                                escaped(form)])


def read_table(path):
    try:
        with open(path, encoding="utf-8-sig", newline="") as file:
            rows = csv.DictReader(file, delimiter="\t", quoting=csv.QUOTE_NONE)
            if rows.fieldnames != COLUMNS:
                sys.exit(f"{path} begins with other columns than {' '.join(COLUMNS)}")
            return {(row["context"], unescaped(row["source"] or ""), row["form"] or ""):
                    unescaped(row["translation"] or "") for row in rows}
    except (OSError, UnicodeDecodeError) as fault:
        sys.exit(f"{path} can't be read: {fault}")


def import_table(arguments):
    language = find_language(arguments.folder, arguments.tag)
    table = read_table(arguments.table)
    tree, texts = read_texts(language.path)
    refused = 0
    known = set()
    for text in texts:
        keys = [(*text.key, form_name(text, number)) for number in range(len(text.forms()))]
        known.update(keys)
        forms = [table.pop(key, "") for key in keys]
        if not any(forms):
            continue
        faults = list(faults_of(language, text, forms)) if all(forms) else ["not all plural forms are filled"]
        for fault in faults:
            print(f"refused: {text.context}: {escaped(text.source)!r}: {fault}")
        refused += bool(faults)
        if not faults:
            text.set(forms)
    unknown = table.keys() - known
    for context, source, form in sorted(unknown):
        print(f"unknown: {context}: {escaped(source)!r} {form}".rstrip())
    tree.write(language.path, encoding="utf-8", xml_declaration=True)
    run(qt_tool("lconvert"), "-locations", "none", "-i", language.path, "-o", language.path)
    finished = sum(text.is_finished() for text in texts)
    print(f"{language.path.name}: {finished} of {len(texts)} texts are finished.")
    sys.exit(refused > 0 or bool(unknown))


def complaints_about(language, sources, scratch):
    fresh_path = scratch / language.path.name
    language.collect(sources, fresh_path)
    _, wanted = read_texts(fresh_path)
    _, texts = read_texts(language.path)
    present = {text.key: text for text in texts}
    for text in wanted:
        known = present.get(text.key)
        if known is None or not known.is_finished():
            yield text, "no finished translation"
        elif len(known.forms()) != len(text.forms()):
            yield text, f"{len(known.forms())} plural forms instead of {len(text.forms())}"
        else:
            for fault in faults_of(language, known, known.forms()):
                yield text, fault
    for key, count in collections.Counter(text.key for text in wanted).items():
        if count > 1:  # the program does not tell them apart
            yield next(text for text in wanted if text.key == key), "twice in its context, with different comments"


def check(arguments):
    count = 0
    with tempfile.TemporaryDirectory() as scratch:
        for language in read_list(arguments.folder):
            if not language.offered:
                continue
            for text, complaint in complaints_about(language, arguments.sources, pathlib.Path(scratch)):
                print(f"{language.path.name}: {text.context}: {escaped(text.source)!r}: {complaint}")
                count += 1
    sys.exit(count > 0)


def folder(name):
    if not name:
        raise argparse.ArgumentTypeError("its name is empty; is the variable set in this terminal?")
    return pathlib.Path(name)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--folder", type=folder, default=ROOT / "translations", help="where the languages are")
    parser.add_argument("--sources", type=pathlib.Path, default=ROOT / "src", help="where the texts are")
    commands = parser.add_subparsers(required=True)
    for name, action, words in (("new", new, ["tag", "name"]), ("export", export, ["tag", "table"]),
                                ("import", import_table, ["tag", "table"]), ("check", check, []),
                                ("update", update, [])):
        command = commands.add_parser(name)
        command.set_defaults(action=action)
        for word in words:
            command.add_argument(word)
    command.add_argument("tags", nargs="*")
    arguments = parser.parse_args()
    arguments.action(arguments)


main()
