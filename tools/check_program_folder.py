#!/usr/bin/env python3
"""Checks the files of a fresh installation: settings, sample lists, riddles and pictures.

    tools/check_program_folder.py [FOLDER]

FOLDER defaults to program_folder beside this script's own folder. Every problem is
printed on a line of its own; the status is 1 if there is any. Needs the standard
library alone.
"""

import struct
import sys
from pathlib import Path

SEPARATOR = "<New List>"
RESERVED_LINES = {SEPARATOR, "No Lists"}

LISTS_AT_LEAST = 12
WORDS_PER_LIST = range(8, 81)
LONG_LIST_ABOVE = 75            # a word search takes no more words than this
WORD_LENGTH = range(2, 18)      # a word search and a crossword take up to 17 characters
HANDY_LENGTH = range(3, 14)     # a riddle sheet takes up to 13
HANDY_SHARE = 0.8
MEANING_LENGTH_MAX = 60         # one line on a sheet
NOT_IN_A_TITLE = set('\\/:*?"<>|')  # a list's name is offered as the name of a saved sheet

RIDDLES = 60
RIDDLE_LENGTH_MAX = 110
ANSWER_LENGTH = range(2, 61)
LONG_ANSWER = range(55, 61)
# They stand next to A and Z in the code page, where a cryptoquip's clue can't take them.
NO_CLUE_FOR = set("@[")

PICTURES = {"titleback.jpg": 250_000, "brindlepagebackground.jpg": 150_000}
PICTURE_AT_LEAST = (1600, 1000)


def read_lines(path, problems):
    """The lines of a text file; its line ends and its code page are checked on the way."""
    try:
        data = path.read_bytes()
    except OSError as error:
        problems.append(f"{path.name}: {error.strerror}")
        return []
    if not data.endswith(b"\r\n"):
        problems.append(f"{path.name}: the last line has no line end")
    rest = data.replace(b"\r\n", b"")
    if b"\r" in rest or b"\n" in rest:
        problems.append(f"{path.name}: a line does not end in carriage return and line feed")
    try:
        text = data.decode("cp1252")
    except UnicodeDecodeError as error:
        problems.append(f"{path.name}: byte {error.start} is not in the code page")
        return []
    if "\u00c3" in text or "\u00e2\u20ac" in text:
        problems.append(f"{path.name}: looks like UTF-8, not Windows-1252")
    lines = text.split("\r\n")
    if lines[-1] == "":
        lines.pop()
    for number, line in enumerate(lines, 1):
        check_line(f"{path.name}:{number}", line, problems)
    return lines


def check_line(where, line, problems):
    if not line:
        problems.append(f"{where}: empty line")
    elif line != line.strip() or "  " in line:
        problems.append(f"{where}: stray blanks in {line!r}")
    if any(not character.isprintable() for character in line):
        problems.append(f"{where}: a character that can't be printed in {line!r}")


def check_settings(path, problems):
    lines = read_lines(path, problems)
    if len(lines) != 4:
        problems.append(f"{path.name}: {len(lines)} lines, not 4")
    elif lines[2:] != ["+++++", "listpath"]:
        problems.append(f"{path.name}: lines 3 and 4 are not those of a fresh installation")


def split_lists(lines):
    """The lists of a file, each with its lines: the name, then words and meanings in turn."""
    lists = [[]]
    for line in lines:
        if line == SEPARATOR:
            lists.append([])
        else:
            lists[-1].append(line)
    return lists


def check_lists(path, problems):
    lines = read_lines(path, problems)
    lists = split_lists(lines)
    if len(lists) < LISTS_AT_LEAST:
        problems.append(f"{path.name}: {len(lists)} lists, fewer than {LISTS_AT_LEAST}")
    names = [entry[0] if entry else "" for entry in lists]
    report_doubles(f"{path.name}: list name", names, problems)
    for name, entry in zip(names, lists):
        check_list(f"{path.name}: {name!r}", entry, names, problems)

    all_words = [word for entry in lists for word in entry[1::2]]
    wanted = {
        "a list of more than 75 words": any(len(e) // 2 > LONG_LIST_ABOVE for e in lists),
        "an entry of two words": any(" " in word for word in all_words),
        "an entry with a hyphen": any("-" in word for word in all_words),
        "an entry with an accent": any(not word.isascii() for word in all_words),
    }
    problems += [f"{path.name}: {what} is missing" for what, there in wanted.items() if not there]


def check_list(where, entry, names, problems):
    if not entry:
        problems.append(f"{where}: no name")
        return
    if entry[0] in RESERVED_LINES or NOT_IN_A_TITLE & set(entry[0]):
        problems.append(f"{where}: the name can't be used")
    if len(entry) % 2 == 0:
        problems.append(f"{where}: a word without a meaning")
        return
    words, meanings = entry[1::2], entry[2::2]
    if len(words) not in WORDS_PER_LIST:
        problems.append(f"{where}: {len(words)} words")
    report_doubles(f"{where}: word", words, problems)
    report_doubles(f"{where}: meaning", meanings, problems)
    for line in words + meanings:
        if line in RESERVED_LINES or line in names:
            problems.append(f"{where}: {line!r} is reserved or the name of a list")
    for word, meaning in zip(words, meanings):
        check_pair(where, word, meaning, problems)
    handy = sum(len(word) in HANDY_LENGTH for word in words)
    if handy < HANDY_SHARE * len(words):
        problems.append(f"{where}: only {handy} of {len(words)} words suit every activity")


def check_pair(where, word, meaning, problems):
    if len(word) not in WORD_LENGTH:
        problems.append(f"{where}: {word!r} has {len(word)} characters")
    if not all(character.isalpha() or character in " -'" for character in word):
        problems.append(f"{where}: {word!r} has more than letters, blanks and hyphens")
    if len(meaning) > MEANING_LENGTH_MAX:
        problems.append(f"{where}: the meaning of {word!r} has {len(meaning)} characters")
    if word.casefold() in meaning.casefold().replace(",", " ").replace(".", " ").split():
        problems.append(f"{where}: the meaning of {word!r} gives the word away")


def report_doubles(what, texts, problems):
    """Blanks and case don't make a difference: a puzzle drops the ones and ignores the other."""
    seen = set()
    for text in texts:
        key = text.casefold().replace(" ", "")
        if key in seen:
            problems.append(f"{what} {text!r} stands there twice")
        seen.add(key)


def check_riddles(path, problems):
    lines = read_lines(path, problems)
    if len(lines) % 2:
        problems.append(f"{path.name}: a riddle without an answer")
    riddles, answers = lines[0::2], lines[1::2]
    if len(riddles) != RIDDLES:
        problems.append(f"{path.name}: {len(riddles)} riddles, not {RIDDLES}")
    report_doubles(f"{path.name}: riddle", riddles, problems)
    report_doubles(f"{path.name}: answer", answers, problems)
    for riddle, answer in zip(riddles, answers):
        check_riddle(path.name, riddle, answer, problems)
    lengths = [count_letters(answer) for answer in answers]
    if 2 not in lengths:
        problems.append(f"{path.name}: no answer of two letters")
    if not any(length in LONG_ANSWER for length in lengths):
        problems.append(f"{path.name}: no answer of 55 to 60 letters")


def check_riddle(where, riddle, answer, problems):
    if len(riddle) > RIDDLE_LENGTH_MAX:
        problems.append(f"{where}: {riddle!r} is too long for its box")
    if not riddle.endswith("?"):
        problems.append(f"{where}: {riddle!r} asks nothing")
    if len(answer) not in ANSWER_LENGTH or count_letters(answer) not in ANSWER_LENGTH:
        problems.append(f"{where}: {answer!r} has {len(answer)} characters")
    letters = {character for character in answer.upper() if "A" <= character <= "Z"}
    if len(letters) < 2 or NO_CLUE_FOR & set(answer):
        problems.append(f"{where}: a cryptoquip finds no two clues in {answer!r}")
    if not answer.isascii():
        problems.append(f"{where}: {answer!r} has a letter that no code hides")


def count_letters(text):
    return sum(character.isalpha() for character in text)


def jpeg_size(data):
    """Width and height in pixels, from the frame header; None if data is no JPEG picture."""
    if data[:2] != b"\xff\xd8":
        return None
    at = 2
    while at + 9 <= len(data) and data[at] == 0xFF:
        marker, length = data[at + 1], struct.unpack_from(">H", data, at + 2)[0]
        if 0xC0 <= marker <= 0xCF and marker not in (0xC4, 0xC8, 0xCC):
            height, width = struct.unpack_from(">HH", data, at + 5)
            return width, height
        at += 2 + length
    return None


def check_picture(path, bytes_max, problems):
    try:
        data = path.read_bytes()
    except OSError as error:
        problems.append(f"{path.name}: {error.strerror}")
        return
    if len(data) > bytes_max:
        problems.append(f"{path.name}: {len(data)} bytes, more than {bytes_max}")
    size = jpeg_size(data)
    if size is None:
        problems.append(f"{path.name}: not a JPEG picture")
    elif size[0] < PICTURE_AT_LEAST[0] or size[1] < PICTURE_AT_LEAST[1]:
        problems.append(f"{path.name}: only {size[0]} by {size[1]} pixels")


def check_folder(folder):
    problems = []
    check_settings(folder / "brindlepage.dat", problems)
    check_lists(folder / "TheLists.dat", problems)
    check_riddles(folder / "Riddles.dat", problems)
    for name, bytes_max in PICTURES.items():
        check_picture(folder / name, bytes_max, problems)
    return problems


def main():
    default = Path(__file__).resolve().parent.parent / "program_folder"
    folder = Path(sys.argv[1]) if len(sys.argv) > 1 else default
    problems = check_folder(folder)
    for problem in problems:
        print(problem)
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
