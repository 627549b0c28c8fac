# SPDX-License-Identifier: LGPL-2.1-or-later
"""Runs benchmark programs and whole processes, for tools/check_benchmarks and tools/bench_report."""

import json
import os
import re
import statistics
import subprocess
import tempfile
import time
from dataclasses import dataclass


class Failed(Exception):
    """A program that did not come to its end, with its words."""


def run(program, benchmarks, repetitions):
    """Benchmark -> what each of its runs said."""
    wanted = "|".join(re.escape(name) for name in sorted(benchmarks))
    result = subprocess.run([program, "--benchmark_format=json", f"--benchmark_repetitions={repetitions}",
                             f"--benchmark_filter=^({wanted})$"], capture_output=True, text=True)
    if result.returncode:
        raise Failed(f"{program}: exit code {result.returncode}\n{result.stderr}")
    runs = {}
    # a filter that nothing matches gives no list
    for one in json.loads(result.stdout or "{}").get("benchmarks", []):
        if one["run_type"] == "iteration":
            runs.setdefault(one["run_name"], []).append(one)
    return runs


def value(runs, benchmark, what):
    """A counter, or for `:other` the time divided by that of another benchmark; in the middle of the runs. Nothing if
    the program has no such benchmark or counter."""
    key = "real_time" if what.startswith(":") else what
    found = [one[key] for one in runs.get(benchmark, []) if key in one]
    divisors = [one[key] for one in runs.get(what[1:], [])] if what.startswith(":") else [1.0]
    return statistics.median(found) / statistics.median(divisors) if found and divisors else None


@dataclass
class Usage:
    """What a process and its children took."""
    wall: float  # seconds
    cpu: float  # seconds, of all processors
    peak: float  # megabytes, of the largest of them
    others: float  # seconds that other programs had the processors meanwhile


def busy_seconds():
    """How long the processors have worked since the computer started."""
    with open("/proc/stat", encoding="ascii") as stat:
        ticks = [int(number) for number in stat.readline().split()[1:9]]
    return (sum(ticks) - ticks[3] - ticks[4]) / os.sysconf("SC_CLK_TCK")


def usage(command, **environment):
    """Runs a program to its end."""
    with tempfile.TemporaryFile() as said:
        busy, start = busy_seconds(), time.monotonic()
        process = subprocess.Popen([str(word) for word in command], stdin=subprocess.DEVNULL,
                                   stdout=subprocess.DEVNULL, stderr=said, env={**os.environ, **environment})
        _, status, used = os.wait4(process.pid, 0)
        wall = time.monotonic() - start
        process.returncode = os.waitstatus_to_exitcode(status)
        if process.returncode:
            said.seek(0)
            raise Failed(f"{command[0]}: exit code {process.returncode}\n{said.read().decode(errors='replace')}")
    cpu = used.ru_utime + used.ru_stime
    return Usage(wall, cpu, used.ru_maxrss / 1024, max(0.0, busy_seconds() - busy - cpu))


def in_turns(rounds, *works):
    """What each of the works gave, round by round, so that whatever else the computer does falls on all of them alike.
    A first round, which fills caches, does not count."""
    given = [[] for _ in works]
    for number in range(-1, rounds):
        for results, work in zip(given, works):
            result = work()
            if number >= 0:
                results.append(result)
    return given
