#!/usr/bin/python3
"""Measures every speed that the program has an aim for, and prints the aims beside the figures.

    bench/speeds.py BENCH_FOLDER PROGRAM_FOLDER [--page docs/speed.md]

BENCH_FOLDER is where the preset `bench` built, build/bench/bench. With --page the table is also
written as a page, with a description of the machine. The status is 1 if an aim was missed.
"""

import argparse
import datetime
import json
import os
import platform
import re
import subprocess
import sys
from dataclasses import dataclass
from pathlib import Path
from typing import Callable

sys.path.insert(0, str(Path(__file__).resolve().parent / "start"))
import compare  # noqa: E402  (bench/start/compare.py)

MILLISECONDS = {"ns": 1e-6, "us": 1e-3, "ms": 1, "s": 1e3}


@dataclass
class Aim:
    what: str
    measure: Callable[["Figures"], float]
    limit: float
    unit: str
    at_least: bool = False

    def met(self, figure):
        return figure >= self.limit if self.at_least else figure <= self.limit


class Figures:
    """What was measured: the benchmarks by their names, the start by program, and how many clicks
    took longer than a frame."""

    def __init__(self, benchmarks, start, slow_clicks):
        self.benchmarks = benchmarks
        self.start = start
        self.slow_clicks = slow_clicks

    def milliseconds(self, name, time="cpu_time"):
        benchmark = self.benchmarks[name]
        return benchmark[time] * MILLISECONDS[benchmark["time_unit"]]


def time_of(name):
    return lambda figures: figures.milliseconds(name)


def slowest_of(pattern):
    return lambda figures: max(
        figures.milliseconds(name) for name in figures.benchmarks if re.search(pattern, name))


def counter(name, which, scale=1.0):
    return lambda figures: figures.benchmarks[name][which] * scale


def times_as_long(name, other, time="cpu_time"):
    return lambda figures: figures.milliseconds(name, time) / figures.milliseconds(other, time)


def menu_beside(other, column):
    return lambda figures: figures.start["menu"][column] / figures.start[other][column]


def insertions(what, kind):
    return Aim(f"10,000 insertions in the middle of a long document, {what}: QTextDocument's time "
               "in ours", times_as_long(f"QTextDocument{kind}", f"RichText{kind}"), 10, "times",
               at_least=True)


def crossword(what, name):
    return [Aim(f"Crossword, {what}: the middle one of 200 builds",
                counter(name, "median_ms"), 100, "ms"),
            Aim(f"Crossword, {what}: the slowest of them", counter(name, "worst_ms"), 1000, "ms")]


AIMS = [
    Aim("Study sheet of 300 words", time_of("ComposeStudySheetOf300Words"), 5, "ms"),
    insertions("words", "Words"),
    insertions("lines", "Lines"),
    insertions("words in two formats", "WordsInTwoFormats"),
    insertions("words in rows of blanks", "WordsInRowsOfBlanks"),
    Aim("List file of 32,767 lines read and rewritten: times a copy of the file",
        times_as_long("ListFile/ReadAndRewrite", "ListFile/CopyByTheSystem", "real_time"), 3,
        "times"),
    Aim("List of 300 words edited and saved in that file",
        time_of("ListFile/EditAndSaveAListOfThreeHundredWords"), 20, "ms"),
    Aim("RTF of a sheet of 300 questions: writing", counter("RtfWriteQuiz", "bytes_per_second",
                                                            1e-6), 100, "MB/s", at_least=True),
    Aim("RTF of a sheet of 300 questions: reading", counter("RtfReadQuiz", "bytes_per_second",
                                                            1e-6), 100, "MB/s", at_least=True),
    Aim("RTF of 5 MB with pictures: reading", time_of("RtfReadPictures"), 1000, "ms"),
    Aim("Quizzes, 300 marked words of 300: the slowest kind",
        slowest_of("^ComposeQuizOfKind.*marked:300$"), 10, "ms"),
    Aim("Quizzes, one marked word of 300: the slowest kind",
        slowest_of("^ComposeQuizOfKind.*marked:1$"), 10, "ms"),
    Aim("Word search, 75 words of 4 to 12 letters from 20 by 20, growing",
        time_of("PlaceWordsFrom20By20"), 1, "ms"),
    Aim("Word search, the same words at 30 by 30", time_of("PlaceWordsAt30By30"), 1, "ms"),
    Aim("Word search, 75 words of 17 letters from 10 by 10",
        time_of("PlaceWordsOf17LettersFrom10By10"), 5, "ms"),
    Aim("Word search, words that can't fit up to 36 by 36",
        time_of("GiveUpHopelessWordsAt36By36"), 50, "ms"),
    *crossword("50 words by hand, slider at 120", "BuildManualCrossword/50/120"),
    *crossword("50 words by hand, slider at 200", "BuildManualCrossword/50/200"),
    *crossword("50 words at best", "BuildBestCrossword/50/200"),
    *crossword("75 words at best", "BuildBestCrossword/75/200"),
    *crossword("300 words at best", "BuildBestCrossword/300/200"),
    *crossword("300 words at best, word 2 first", "BuildBestCrosswordWithWordTwoFirst/300/200"),
    Aim("300 words scrambled", time_of("Scramble300Words"), 5, "ms"),
    Aim("300 meanings of 200 letters in code", time_of("Code300MeaningsOf200Letters"), 5, "ms"),
    Aim("A riddle of 300 letters that stand in none of 150 words",
        time_of("RiddleOf300LettersInNoneOf150Words"), 50, "ms"),
    Aim("From the start to the painted menu: times an empty window of its size",
        menu_beside("empty_window", 0), 1.5, "times"),
    Aim("From the start to the painted menu: times a window with one word",
        menu_beside("word_window", 0), 1.5, "times"),
    Aim("Memory with the menu open: times an empty window", menu_beside("empty_window", 3), 1.5,
        "times"),
    Aim("Memory with the menu open: times a window with one word", menu_beside("word_window", 3),
        1.5, "times"),
    Aim("Clicks through every activity at its limits that answer later than a frame of 16 ms",
        lambda figures: figures.slow_clicks, 0, "clicks"),
]


def run_benchmarks(program):
    environment = dict(os.environ, QT_QPA_PLATFORM="offscreen")
    out = subprocess.run([program, "--benchmark_format=json"], env=environment, check=True,
                         stdout=subprocess.PIPE).stdout
    return {benchmark["name"]: benchmark for benchmark in json.loads(out)["benchmarks"]}


def count_slow_clicks(program, program_folder):
    out = subprocess.run([program, program_folder], check=True, stdout=subprocess.PIPE,
                         text=True).stdout
    return int(re.search(r"of which (\d+) answer", out)[1])


def machine():
    """The machine in a line: processor, cores, memory, system, compiler."""
    processor = re.search(r"model name\s*:\s*(.*)", Path("/proc/cpuinfo").read_text())
    memory = re.search(r"MemTotal:\s*(\d+)", Path("/proc/meminfo").read_text())
    system = re.search(r'PRETTY_NAME="(.*)"', Path("/etc/os-release").read_text())
    compiler = subprocess.run(["c++", "--version"], check=True, stdout=subprocess.PIPE,
                              text=True).stdout.splitlines()[0]
    return (f"{processor[1] if processor else platform.machine()}, {os.cpu_count()} cores, "
            f"{int(memory[1]) / 2**20:.0f} GB of memory, {system[1]}, {compiler}")


def number(figure):
    return f"{figure:,.0f}" if figure >= 100 else f"{figure:.3g}"


def table(figures):
    rows = []
    for aim in AIMS:
        figure = aim.measure(figures)
        word = "at least" if aim.at_least else "at most"
        rows.append((aim.what, f"{word} {number(aim.limit)} {aim.unit}",
                     f"{number(figure)} {aim.unit}", "" if aim.met(figure) else "MISSED"))
    return rows


def page(rows, today):
    lines = ["# Speed", "",
             "Written by `bench/speeds.py build/bench/bench program_folder --page docs/speed.md`",
             "after `cmake --preset bench && cmake --build --preset bench`.", "",
             f"Measured on {today}: {machine()}.", "",
             "| What | Aim | Measured | |", "|---|---|---:|---|"]
    lines += [f"| {' | '.join(row)} |" for row in rows]
    return "\n".join(lines) + "\n"


def main():
    parser = argparse.ArgumentParser(usage=__doc__)
    parser.add_argument("bench_folder", type=Path)
    parser.add_argument("program_folder", type=Path)
    parser.add_argument("--page", type=Path)
    arguments = parser.parse_args()
    figures = Figures(run_benchmarks(arguments.bench_folder / "brindlepage_bench"),
                      compare.compare(arguments.bench_folder, arguments.program_folder),
                      count_slow_clicks(arguments.bench_folder / "clicks",
                                        arguments.program_folder))
    rows = table(figures)
    widths = [max(len(row[column]) for row in rows) for column in range(3)]
    for what, aim, measured, missed in rows:
        print(f"{what:{widths[0]}}  {aim:>{widths[1]}}  {measured:>{widths[2]}}  {missed}")
    if arguments.page:
        arguments.page.write_text(page(rows, datetime.date.today().isoformat()))
    sys.exit(any(row[3] for row in rows))


if __name__ == "__main__":
    main()
