#!/usr/bin/python3
"""Starts the program and an empty window by turns, each until its first window is painted, and
prints time and memory of both.

    bench/start/compare.py BENCH_FOLDER PROGRAM_FOLDER [RUNS]

With no display the library's offscreen one is used, or: xvfb-run bench/start/compare.py ...
"""

import os
import shutil
import statistics
import subprocess
import sys
import tempfile
import time
from pathlib import Path


def run_once(program, folder):
    """Seconds to the end of the process, and its largest memory in megabytes."""
    environment = dict(os.environ)
    if not environment.get("DISPLAY"):
        environment["QT_QPA_PLATFORM"] = "offscreen"
    began = time.perf_counter()
    process = subprocess.Popen([program], cwd=folder, env=environment, stderr=subprocess.DEVNULL)
    _, status, usage = os.wait4(process.pid, 0)
    if status != 0:
        sys.exit(f"{program} ended with status {status}")
    return time.perf_counter() - began, usage.ru_maxrss / 1024


def main():
    if len(sys.argv) not in (3, 4):
        sys.exit(__doc__)
    bench = Path(sys.argv[1]).resolve()
    runs = int(sys.argv[3]) if len(sys.argv) == 4 else 20
    measured = {"empty_window": [], "menu": []}
    with tempfile.TemporaryDirectory() as temp:
        folder = Path(temp) / "program"
        shutil.copytree(sys.argv[2], folder)
        for _ in range(runs + 1):
            for name, results in measured.items():
                results.append(run_once(bench / name, folder))
    medians = {}
    for name, results in measured.items():
        # The first start fills the caches of the system.
        seconds, memory = (statistics.median(column) for column in zip(*results[1:]))
        medians[name] = (seconds, memory)
        print(f"{name:13} {seconds * 1000:7.1f} ms {memory:7.1f} MB")
    empty, menu = medians["empty_window"], medians["menu"]
    print(f"{'ratio':13} {menu[0] / empty[0]:7.2f}    {menu[1] / empty[1]:7.2f}")


main()
