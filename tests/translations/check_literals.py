#!/usr/bin/env python3
"""Finds texts of the interface that do not go through tr.

Looked at are the string literals of the two faces and of LinkManager, and elsewhere those that a signal carries. What
has a blank between words, or begins with a capital or a letter that is not ASCII, is taken for a text to be read,
unless it is a style sheet, a path, an object name, a size, a command line or a log line. Names that stay are listed
below.
"""

import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
FACES = ("src/ui/", "src/cli/", "src/support/LinkManager")

NAMES_THAT_STAY = {
    # What is typed on the command line.
    "ADDRESS", "CODE|NAME|ADDRESS", "DIR", "FILE", "ID", "NAME",
    # Folders and words of software, as they stand on a disk or in a registry.
    "System Volume Information", "Recovery", "$Recycle.Bin", "Config.Msi", "MSOCache", "PerfLogs",
    "update for", "security update",
    # Names inside the program.
    "SelectionPage", "WaitingPage", "THIS_PC",
    # Style sheet selectors, one of them by the English text of a button.
    "QCheckBox::indicator", "QTreeView::indicator", "Yes, Cancel", "Continue Transfer", "Cancel and Close",
    # The form of a time in a file name.
}

TRANSLATED = {"tr", "translate", "QT_TR_NOOP", "QT_TRANSLATE_NOOP"}
LOGGED = {"qCDebug", "qCInfo", "qCWarning", "qCCritical"}
INTERNAL = {"setObjectName", "setProperty", "boxStyle", "createPanel", "makeHoverBox", "rule"}

TOKEN = re.compile(
    r'//[^\n]*|/\*.*?\*/|^[ \t]*\#[^\n]*'
    r'|R"(?P<delimiter>[^(]*)\((?P<raw>.*?)\)(?P=delimiter)"|"(?P<text>(?:\\.|[^"\\\n])*)"'
    r"|'(?:\\.|[^'\\])*'|(?P<name>[A-Za-z_]\w*)|(?P<mark>[(){};\[\]])",
    re.DOTALL | re.MULTILINE)
READ = re.compile(r"^[\W\d_]*[^\W\d_a-z]|[A-Za-z]+[.,:;!?]? +[A-Za-z]")
NOT_WORDS = re.compile(r"[{}]|: .*;|px|^:?/|^#|qlineargradient|^[-\d]+ [KMGT]?B(/s)?$|^zandrove-cli ")


def literals(source):
    """Yields line, text, the names of the calls around it and the names since the statement's begin."""
    calls, name, statement = [], "", set()
    for token in TOKEN.finditer(source):
        if token["name"]:
            name = token["name"]
            statement.add(name)
        elif mark := token["mark"]:
            if mark in "([{":
                calls.append(name if mark == "(" else "")
            elif mark in ")]}" and calls:
                calls.pop()
            if mark in ";{}":
                statement = set()
            name = ""
        elif (text := token["text"] if token["text"] is not None else token["raw"]) is not None:
            yield source.count("\n", 0, token.start()) + 1, text, set(calls), statement


def main():
    failures, faces, used = [], 0, set()
    for path in sorted((ROOT / "src").rglob("*.cpp")) + sorted((ROOT / "src").rglob("*.h")):
        file = path.relative_to(ROOT).as_posix()
        is_face = file.startswith(FACES)
        faces += is_face
        for line, text, calls, statement in literals(path.read_text(encoding="utf-8")):
            if calls & (TRANSLATED | INTERNAL) or statement & LOGGED or not (is_face or "Q_EMIT" in statement):
                continue
            if sum(map(str.isalpha, text)) < 2 or not READ.search(text) or NOT_WORDS.search(text):
                continue
            if text in NAMES_THAT_STAY:
                used.add(text)
            else:
                failures.append(f'{file}:{line}: "{text}" does not go through tr')
    failures += [f'"{name}" is listed as a name that stays and stands nowhere' for name in NAMES_THAT_STAY - used]
    if not faces:
        failures.append("no sources were found")
    print("\n".join(failures) or f"{faces} files of the interface: every text goes through tr")
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
