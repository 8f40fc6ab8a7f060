#!/usr/bin/env python3
"""Makes docs/fidelity.md from the comments of the sources.

usage: fidelity.py            writes the page
       fidelity.py --check    exits with 1 when the page is not what the comments say

A comment, or a sentence of one, that begins with kept:, bounded: or settled: is an
entry; it ends with its comment, or where the next one begins.
"""
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
PAGE = ROOT / "docs" / "fidelity.md"

ROOMS = [
    ("shell", "Shell"),
    ("filetools", "File tools"),
    ("mail_music", "Mail and music"),
    ("scenario", "Scenario world"),
    ("schedule", "Schedule"),
    ("clock_calendar", "Clock and calendar"),
    ("character", "Character"),
    ("world", "World characters"),
    ("services", "Services"),
    ("platform", "Platform"),
    ("resources", "Resources"),
]

KINDS = [
    ("kept", "Kept", """Old ways that look like mistakes. They are kept on purpose: the data files are
shared with sibling programs, and the user knows them."""),
    ("bounded", "Bounded", """Where an old way would have run past a table, what the user saw of it is kept and
the table is not left; what a file claims about its own size is never trusted."""),
    ("settled", "Settled", """Where more than one way would do, this one was taken."""),
]

INTRO = """# Fidelity

<!-- Made by scripts/fidelity.py from the comments in src/; change those. -->

Mirrell shares its data files with sibling programs, and its user knows its ways. Some
of those ways look like mistakes. This page gathers them from the comments at the places
that make them so, that nobody mends one by accident.
"""

MARK = re.compile(r"\b(kept|bounded|settled): ")


def comments(text):
    """The comments of a file, each as one line of text, with neighbours joined."""
    block = []
    for line in text.split("\n"):
        stripped = line.strip()
        match = re.match(r"(?://|/?\*+)\s?(.*?)(?:\*/)?$", stripped)
        whole = bool(match)
        if not match:
            match = re.search(r"//\s?(.*)$", line)
        if match and match.group(1).strip() and not re.match(r"\s*\d+\s", match.group(1)):
            if not whole and block:
                yield " ".join(block)
                block = []
            block.append(match.group(1).strip())
            if whole:
                continue
        if block:
            yield " ".join(block)
            block = []
    if block:
        yield " ".join(block)


def entries():
    found = {}
    for path in sorted((ROOT / "src").rglob("*")):
        if path.suffix not in (".h", ".cpp", ".inc", ".rc"):
            continue
        name = path.relative_to(ROOT / "src").as_posix()
        for comment in comments(path.read_text(encoding="utf-8")):
            marks = list(MARK.finditer(comment))
            for mark, following in zip(marks, marks[1:] + [None]):
                text = comment[mark.end():following.start() if following else None].strip()
                text = text[:1].upper() + text[1:]
                if not text.endswith((".", "?", "!")):
                    text += "."
                found.setdefault((mark.group(1), name.split("/")[0]), []).append((name, text))
    return found


def wrapped(text, width=90):
    lines, line = [], "-"
    for word in text.split():
        if len(line) + 1 + len(word) > width:
            lines.append(line)
            line = " "
        line += " " + word
    return "\n".join(lines + [line])


def page():
    found = entries()
    parts = [INTRO]
    for kind, title, intro in KINDS:
        parts.append(f"## {title}\n\n{intro}\n")
        for room, heading in ROOMS:
            rows = found.get((kind, room))
            if rows:
                parts.append(f"### {heading}\n\n" + "\n".join(wrapped(f"`{n}`: {t}") for n, t in rows) + "\n")
    return "\n".join(parts)


def main():
    if sys.argv[1:] == ["--check"]:
        sys.exit(0 if PAGE.exists() and PAGE.read_text(encoding="utf-8") == page() else 1)
    if sys.argv[1:]:
        sys.exit(__doc__)
    PAGE.write_text(page(), encoding="utf-8")


main()
