#!/usr/bin/env python3
"""Makes manual page and completions of a program from what it prints itself, so that they can't differ.

manual.py man PROGRAM TEMPLATE NAME=VALUE ...   the page: each @NAME@ replaced, @HELP@ by the help texts
manual.py bash|zsh|fish PROGRAM                 the completion
"""

import pathlib
import re
import subprocess
import sys


class Entry:
    """A row of a table in a help text: an option, a command or an argument, and what it is."""

    def __init__(self, term, text):
        self.term = term
        self.text = text
        self.names = re.findall(r"(?<![\w-])--?[\w-]+", term)
        self.value = (re.findall(r" ([A-Z]+)$", term) + [""])[0] if self.names else ""  # what the option takes


def run(*command):
    return subprocess.run(command, check=True, stdout=subprocess.PIPE, text=True).stdout


def help_of(*command):
    """The help text as its blocks: ("usage", lines), (title, entries) or ("", paragraph)."""
    blocks = []
    for block in re.split(r"\n\s*\n|\n(?=Usage: )", run(*command, "--help").strip()):
        title, _, rest = block.partition("\n")
        if block.startswith("Usage: "):
            blocks.append(("usage", [line.strip() for line in block.removeprefix("Usage: ").splitlines()]))
        elif re.match(r"\w[\w ]*:$", title) or block.startswith("  "):
            rows = re.sub(r"\n {8,}", "  ", rest if title.endswith(":") else block).splitlines()
            parts = [re.split(r"\s{2,}", row.strip()) for row in rows]
            blocks.append((title[:-1] if title.endswith(":") else "Options",
                           [Entry(term, " ".join(text)) for term, *text in parts]))
        else:
            blocks.append(("", block.replace("\n", " ")))
    return blocks


def entries(blocks, title):
    return [entry for name, content in blocks if name == title for entry in content]


def commands_of(program):
    listed = [entry for title, content in help_of(program) if title == "Commands" for entry in content]
    return {entry.term: (entry.text, help_of(program, entry.term)) for entry in listed}


# The manual page

def roff(text):
    return re.sub(r"(?m)^([.'])", r"\\&\1", text.replace("\\", "\\e").replace("-", "\\-"))


def sections(blocks, heading):
    for title, content in blocks:
        if title == "":
            yield f".PP\n{roff(content)}"
        elif title == "usage":
            yield from (f".br\n.B {roff(line)}" for line in content)
        else:
            yield f".{heading} {title.upper() if heading == 'SH' else title}"
            yield from (f".TP\n.B {roff(entry.term)}\n{roff(entry.text)}" for entry in content)


def man(program, template, *values):
    blocks, commands = help_of(program), commands_of(program)
    usage = [(title, text) for title, text in blocks if title == "usage"]
    usage += [block for _, of in commands.values() for block in of if block[0] == "usage"]
    rest = [block for block in blocks if block[0] not in ("usage", "Commands")]
    lines = [".SH SYNOPSIS", *sections(usage, "SH"), ".SH DESCRIPTION"]
    lines += sections([b for b in rest if b[0] == ""], "SH")
    for name, (_, of) in commands.items():
        own = [b for b in of if b[0] != "usage" and b not in rest]
        lines += [f".SH COMMAND {name.upper()}", *sections(own, "SS")]
    lines += sections([b for b in rest if b[0] != ""], "SH")
    page = pathlib.Path(template).read_text()
    for name, value in [value.split("=", 1) for value in values] + [("HELP", "\n".join(lines))]:
        page = page.replace(f"@{name}@", value)
    return page


# Completions

def words(names):
    return " ".join(names)


def options_of(blocks):
    return [entry for entry in entries(blocks, "Options") if entry.names]


def takes_file(blocks):
    return any(re.search(r" FILE\W*$", lines[0]) for title, lines in blocks if title == "usage")


def algorithms_of(program):
    return [line.split()[1] for line in run(program, "algorithms").splitlines()[1:]]


def bash(program):
    commands, every = commands_of(program), options_of(help_of(program))
    options = {option.names[-1]: option for _, of in commands.values() for option in options_of(of)}.values()
    named = [name for o in options if o.value == "NAME" for name in o.names]
    filed = [name for o in options if o.value not in ("", "NAME") for name in o.names]
    cases = "\n".join(f"        {name}) options='{words(n for o in options_of(of) for n in o.names)}' files={'yes' if takes_file(of) else ''} ;;"
                      for name, (_, of) in commands.items())
    return f"""# bash completion for quillet-cli
_quillet_cli()
{{
    local cur prev words cword split options command='' files='' word
    _init_completion -s || return
    case $prev in
        {"|".join(named)}) COMPREPLY=($(compgen -W '{words(algorithms_of(program))}' -- "$cur")); return ;;
        {"|".join(filed)}) _filedir; return ;;
    esac
    $split && return
    for word in "${{words[@]:1:cword-1}}"; do
        [[ $word == -* ]] || {{ command=$word; break; }}
    done
    case $command in
        '') options='{words([*commands, *(n for o in every for n in o.names)])}' ;;
{cases}
    esac
    if [[ $cur == -* || -z $files ]]; then
        COMPREPLY=($(compgen -W "$options" -- "$cur"))
    else
        _filedir
    fi
}} && complete -F _quillet_cli quillet-cli
"""


def zsh(program):
    def quoted(text):
        return re.sub(r"([\[\]:\\])", r"\\\1", text).replace("'", "’")

    def argument(option):
        kind = {"": "", "NAME": ":algorithm:($algorithms)"}.get(option.value, ":file:_files")
        return " ".join(f"'{name}{'=' * (bool(kind) and name.startswith('--'))}[{quoted(option.text)}]{kind}'"
                        for name in option.names)

    commands = commands_of(program)
    listed = " ".join(f"'{name}:{quoted(text)}'" for name, (text, _) in commands.items())
    cases = "\n".join(
        f"    {name}) _arguments {' '.join(map(argument, options_of(of)))}{' ' + repr('*:file:_files') if takes_file(of) else ''} ;;"
        for name, (_, of) in commands.items())
    return f"""#compdef quillet-cli
local -a commands=({listed})
local -a algorithms=({words(algorithms_of(program))})
local context state line
_arguments -C {' '.join(map(argument, options_of(help_of(program))))} '1:command:->command' '*::argument:->arguments'
case $state in
  command) _describe command commands ;;
  arguments) case $words[1] in
{cases}
  esac ;;
esac
"""


def fish(program):
    def quoted(text):
        return "'" + text.replace("\\", "\\\\").replace("'", "\\'") + "'"

    def option_line(condition, option):
        letters = "".join(f" -l {name[2:]}" if name.startswith("--") else f" -s {name[1:]}" for name in option.names)
        kind = {"": "", "NAME": " -x -a \"$algorithms\""}.get(option.value, " -r -F")
        return f"complete -c quillet-cli -n {condition}{letters}{kind} -d {quoted(option.text)}"

    lines = [f"set -l algorithms '{words(algorithms_of(program))}'", "complete -c quillet-cli -f"]
    lines += (option_line("__fish_use_subcommand", option) for option in options_of(help_of(program)))
    for name, (text, of) in commands_of(program).items():
        condition = f"'__fish_seen_subcommand_from {name}'"
        lines.append(f"complete -c quillet-cli -n __fish_use_subcommand -a {name} -d {quoted(text)}")
        lines += (option_line(condition, option) for option in options_of(of))
        if takes_file(of):
            lines.append(f"complete -c quillet-cli -n {condition} -F")
    return "\n".join(lines) + "\n"


if __name__ == "__main__":
    sys.stdout.write({"man": man, "bash": bash, "zsh": zsh, "fish": fish}[sys.argv[1]](*sys.argv[2:]))
