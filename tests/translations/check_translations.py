#!/usr/bin/env python3
"""Holds translations/*.ts against the sources and against what a translation has to keep of its source, and the
compiled ones against a program that runs in each language. Prints a table, then what is wrong.

Usage: check_translations.py [--program zandrove-cli] [--languages de fr ...]
"""

import argparse
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unicodedata
import xml.etree.ElementTree as ElementTree

ROOT = pathlib.Path(__file__).resolve().parents[2]
LANGUAGES = ["en", "zh_TW", "fr", "de", "ja", "es", "ko", "nl", "pt", "it"]
IDEOGRAPH = re.compile(r"[\u3400-\u9fff]")
FULL_WIDTH = str.maketrans("：。？！，（）", ":.?!,()")
SAYS_THE_SAME = {"Copyright © %1. All rights reserved.", "Total: 0 GB"}
PROBE = ("Zandrove::Cli::Options", "End after the first transfer.")


class Message:
    def __init__(self, context, element):
        self.context = context
        self.source = element.findtext("source")
        self.comment = element.findtext("comment") or ""
        self.counted = element.get("numerus") == "yes"
        translation = element.find("translation")
        forms = translation.findall("numerusform") if self.counted else [translation]
        self.forms = [form.text or "" for form in forms]
        self.finished = translation.get("type") is None and all(self.forms) and bool(self.forms)

    def key(self):
        return self.context, self.source, self.comment, self.counted

    def __str__(self):
        return f"[{self.context}] {self.source!r}"


def messages(file):
    return [Message(context.findtext("name"), element)
            for context in ElementTree.parse(file).getroot().iter("context")
            for element in context.iter("message")]


def symbols(text):
    return [letter for letter in text if ord(letter) > 0x2000 and unicodedata.category(letter) in ("So", "Sm")]


def last_mark(text):
    text = text.strip().translate(FULL_WIDTH).replace("……", "...").replace("…", "...")
    found = re.search(r"(\.\.\.|[:.?])$", text)
    return found[0] if found else ""


# What a translation keeps of its source, whatever the language.
KEPT = {
    "placeholders": lambda text: sorted(re.findall(r"%(?:L?\d+|n)", text)),
    "percent signs": lambda text: text.count("%"),
    "markup": lambda text: re.findall(r"</?[a-z][^>]*>", text),
    "blanks at the ends": lambda text: (text[:len(text) - len(text.lstrip())], text[len(text.rstrip()):]),
    "line breaks": lambda text: text.count("\n"),
    "symbols": symbols,
    "last mark": last_mark,
    "accelerator key": lambda text: len(re.findall(r"&\w", text)),
    "options": lambda text: sorted(re.findall(r"--[a-z]+|\[(?:DIR|y/N)\]", text)),
    "product name": lambda text: text.count("Zandrove"),
}


def problems(message, language):
    """Yields what is wrong with one message."""
    if not message.finished:
        yield "is not translated"
        return
    for text in message.forms:
        for what, part in KEPT.items():
            if message.counted and what == "placeholders":
                continue  # a form for one need not say the number
            if part(text) != part(message.source):
                yield f"{what} differ: {text!r}"
        is_english = language == "en" and not IDEOGRAPH.search(message.source)
        if is_english and not message.counted and text != message.source:
            yield f"English differs from its source: {text!r}"
        if language != "en" and text == message.source and len(text.split()) > 2 and text not in SAYS_THE_SAME:
            yield "is the same as its source"
        if language not in ("zh_TW", "ja") and IDEOGRAPH.search(text):
            yield f"has ideographs: {text!r}"


def stale(by_language):
    """Yields what scripts/update-translations.sh would change."""
    with tempfile.TemporaryDirectory() as scratch:
        for language in by_language:
            shutil.copy(ROOT / f"translations/Zandrove_{language}.ts", scratch)
        # English is always there for the script to fill in.
        shutil.copy(ROOT / "translations/Zandrove_en.ts", scratch)
        script = ROOT / "scripts/update-translations.sh"
        update = subprocess.run([script, scratch], capture_output=True, encoding="utf-8")
        if update.returncode != 0:
            yield update.stderr.strip()
            return
        for language, current in by_language.items():
            wanted = {message.key() for message in messages(f"{scratch}/Zandrove_{language}.ts")}
            there = {message.key() for message in current}
            for context, source, *_ in sorted(wanted - there):
                yield f"{language}: new in the sources: [{context}] {source!r}"
            for context, source, *_ in sorted(there - wanted):
                yield f"{language}: gone from the sources: [{context}] {source!r}"


def squeezed(text):
    """Without blanks and line breaks."""
    return "".join(text.split())


def help_text(program, language):
    """What the program prints in a language of the system."""
    with tempfile.TemporaryDirectory() as home:
        environment = {"PATH": os.environ["PATH"], "HOME": home, "XDG_CONFIG_HOME": home, "LC_ALL": f"{language}.UTF-8"}
        run = subprocess.run([program, "receive", "--help"], env=environment, capture_output=True, check=True,
                             encoding="utf-8")
    return run.stdout


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--program")
    parser.add_argument("--languages", nargs="+", choices=LANGUAGES, default=LANGUAGES)
    arguments = parser.parse_args()

    by_language = {language: messages(ROOT / f"translations/Zandrove_{language}.ts")
                   for language in arguments.languages}
    print("language  texts  finished  missing")
    for language, texts in by_language.items():
        finished = sum(message.finished for message in texts)
        print(f"{language:8} {len(texts):6} {finished:9} {len(texts) - finished:8}")

    failures = [f"{language}: {message} {problem}" for language, texts in by_language.items() for message in texts
                for problem in problems(message, language)]
    failures += stale(by_language)
    for language, texts in by_language.items() if arguments.program else ():
        probe = next((message.forms[0] for message in texts if (message.context, message.source) == PROBE), None)
        if not probe or squeezed(probe) not in squeezed(help_text(arguments.program, language)):
            failures.append(f"{language}: {arguments.program} --help does not say {probe!r}")
    print("\n".join(failures))
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
