#!/usr/bin/python3
"""Starts the program, an empty window and a window with one word on it by turns, each until its
window is painted, and prints what they take.

    bench/start/compare.py BENCH_FOLDER PROGRAM_FOLDER [RUNS]

With no display it starts an Xvfb of its own: an offscreen window speaks to no window system, and
one without a word reads no fonts.
Columns: milliseconds from the start to the painted window, their median and the best of all runs
(what else the machine does disturbs that least); the median time to the end of the process, which
for a window without a word includes reading the fonts after all; the largest memory.
"""

import contextlib
import os
import shutil
import statistics
import subprocess
import sys
import tempfile
import time
from pathlib import Path

PROGRAMS = ("empty_window", "word_window", "menu")


@contextlib.contextmanager
def display():
    """The name of the display, or of one that is there as long as this."""
    if os.environ.get("DISPLAY"):
        yield os.environ["DISPLAY"]
        return
    if shutil.which("Xvfb") is None:
        sys.exit("This takes a display, or Xvfb (the package xvfb).")
    server = subprocess.Popen(["Xvfb", "-displayfd", "1", "-screen", "0", "1280x1024x24"],
                              stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
    try:
        yield ":" + server.stdout.readline().strip()
    finally:
        server.terminate()
        server.wait()


def run_once(program, folder, shown_on):
    """Milliseconds to the painted window, to the end of the process, and megabytes."""
    began = time.monotonic()
    process = subprocess.Popen([program], cwd=folder, env=dict(os.environ, DISPLAY=shown_on),
                               stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
    printed = process.stdout.read()
    _, status, usage = os.wait4(process.pid, 0)
    if status != 0:
        sys.exit(f"{program} ended with status {status}")
    ended = time.monotonic()
    return (float(printed) - began) * 1000, (ended - began) * 1000, usage.ru_maxrss / 1024


def compare(bench, program_folder, runs=20):
    """By program: painted (median and best), ended, memory."""
    bench = Path(bench).resolve()
    measured = {name: [] for name in PROGRAMS}
    with tempfile.TemporaryDirectory() as temp, display() as shown_on:
        folder = Path(temp) / "program"
        shutil.copytree(program_folder, folder)
        for _ in range(runs + 1):
            for name, results in measured.items():
                results.append(run_once(bench / name, folder, shown_on))
    figures = {}
    for name, results in measured.items():
        # The first start fills the caches of the system.
        painted, ended, memory = zip(*results[1:])
        figures[name] = (statistics.median(painted), min(painted), statistics.median(ended),
                         statistics.median(memory))
    return figures


def main():
    if len(sys.argv) not in (3, 4):
        sys.exit(__doc__)
    figures = compare(*sys.argv[1:3], runs=int(sys.argv[3]) if len(sys.argv) == 4 else 20)
    print(f"{'':13} {'painted':>8} {'best':>8} {'ended':>8} {'memory':>8}")
    for name in PROGRAMS:
        print(f"{name:13} " + " ".join(f"{figure:8.1f}" for figure in figures[name]))
    for name in ("empty_window", "word_window"):
        ratios = [ours / theirs for ours, theirs in zip(figures["menu"], figures[name])]
        print(f"menu / {name.removesuffix('_window'):6} " +
              " ".join(f"{ratio:8.2f}" for ratio in ratios))


if __name__ == "__main__":
    main()
