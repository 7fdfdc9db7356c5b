#!/usr/bin/env python3
"""Checks that the README and the manual fit the program: check_manual.py PROJECT_FOLDER

- each page and picture that they name exists, and each picture is shown on some page;
- what the manual prints in bold is a text of the program, as it stands on its screens;
- pictures are small, and lines are short.
"""

import pathlib
import re
import sys

LARGEST_PICTURE = 120 * 1024  # bytes
LARGEST_ALBUM = 3 * 1024 * 1024
LONGEST_LINE = 100  # characters, but for tables

ESCAPES = {"n": "\n", "t": "\t", '"': '"', "\\": "\\", "'": "'"}

# A comment, a character, or texts that follow one another and are one.
TEXTS = re.compile(
    r"""//[^\n]*|/\*.*?\*/|'(?:[^'\\\n]|\\.)'|((?:"(?:[^"\\\n]|\\.)*"\s*)+)""", re.S)
LINK = re.compile(r"\]\(([^)#]+)[^)]*\)")
BOLD = re.compile(r"\*\*(.+?)\*\*", re.S)
CODE = re.compile(r"`[^`\n]*`")


def program_texts(folder):
    """All texts in the program's sources, without the blanks around them."""
    texts = set()
    for source in sorted(folder.rglob("*.cpp")) + sorted(folder.rglob("*.h")):
        for match in TEXTS.finditer(source.read_text(encoding="utf-8")):
            if not match.group(1):
                continue
            parts = re.findall(r'"((?:[^"\\\n]|\\.)*)"', match.group(1))
            text = re.sub(r"\\(.)", lambda m: ESCAPES.get(m.group(1), m.group(0)), "".join(parts))
            texts.add(text.strip())
    return texts


def captions(page):
    """What a page prints in bold, its lines joined."""
    for bold in BOLD.findall(CODE.sub("", page)):
        yield re.sub(r"\\([<>*_])", r"\1", re.sub(r"\s+", " ", bold)).strip()


def check(project):
    faults = []
    manual = [project / "docs" / "manual.md", *sorted((project / "docs" / "manual").glob("*.md"))]
    texts = program_texts(project / "src")
    named = set()
    for page in [project / "README.md", *manual]:
        name = page.relative_to(project)
        text = page.read_text(encoding="utf-8")
        for link in LINK.findall(text):
            if "://" in link:
                continue
            target = (page.parent / link).resolve()
            named.add(target)
            if not target.is_file():
                faults.append(f"{name}: there is no {link}")
        for number, line in enumerate(text.splitlines(), 1):
            if len(line) > LONGEST_LINE and not line.startswith("|"):
                faults.append(f"{name}:{number}: longer than {LONGEST_LINE} characters")
        if page in manual:
            faults += [f'{name}: the program has no "{caption}"'
                       for caption in captions(text) if caption not in texts]
    for page in manual:
        if page.resolve() not in named:
            faults.append(f"no page leads to {page.relative_to(project)}")
    pictures = sorted((project / "docs" / "pictures").iterdir())
    for picture in pictures:
        name = picture.relative_to(project)
        if picture.resolve() not in named:
            faults.append(f"no page shows {name}")
        if picture.stat().st_size > LARGEST_PICTURE:
            faults.append(f"{name} has {picture.stat().st_size} bytes")
    if sum(picture.stat().st_size for picture in pictures) > LARGEST_ALBUM:
        faults.append("the pictures together are too large")
    return faults


def main():
    if len(sys.argv) != 2:
        print(__doc__, file=sys.stderr)
        return 2
    faults = check(pathlib.Path(sys.argv[1]).resolve())
    for fault in faults:
        print(fault)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
