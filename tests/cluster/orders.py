# SPDX-License-Identifier: LGPL-2.1-or-later
"""Orders for a batch, and whether all of them are there, whole."""

import json
import shutil
import socket
import time
import unittest
from pathlib import Path

EXAMPLES = Path(__file__).resolve().parents[2] / "examples" / "batch"


def need(*programs):
    missing = [name for name in programs if not (shutil.which(name) or shutil.which(name, path="/usr/sbin"))]
    if missing:
        raise unittest.SkipTest(f"not installed: {', '.join(missing)} (tools/setup.sh nightly)")


def free_port():
    with socket.socket() as listener:
        listener.bind(("127.0.0.1", 0))
        return listener.getsockname()[1]


def wait_for(what, seconds, pause=0.5):
    """Polls until it is true; the value, or what it was last."""
    end = time.monotonic() + seconds
    while not (value := what()) and time.monotonic() < end:
        time.sleep(pause)
    return value


def write(folder, count):
    """A list of so many calendars, each with entries of its own; gives its name."""
    (folder / "out").mkdir()
    with open(folder / "orders.jsonl", "w", encoding="utf-8") as orders:
        for number in range(count):
            entries = folder / f"{number}.csv"
            entries.write_text("Name;Datum\n" + "".join(
                f"Person {number}-{i};{i % 28 + 1}.{i % 12 + 1}.{1950 + i}\n" for i in range(20)), encoding="utf-8")
            orders.write(json.dumps({"id": number, "year": 2027, "region": "BY", "entries": entries.name,
                                     "output": f"out/{number}.pdf"}) + "\n")
    return "orders.jsonl"


def reported(folder):
    """Calendar -> its state in the last line about it."""
    states = {}
    for report in folder.glob("report-*.jsonl"):
        for line in report.read_text(encoding="utf-8").splitlines():
            result = json.loads(line)
            states[result["id"]] = result["state"]
    return states


def assert_whole(test, folder, count):
    for number in range(count):
        content = (folder / "out" / f"{number}.pdf").read_bytes()
        test.assertTrue(content.startswith(b"%PDF-") and content.rstrip().endswith(b"%%EOF"), number)
    test.assertEqual(len(list((folder / "out").iterdir())), count, "no file beside the calendars")
    states = reported(folder)
    test.assertEqual(len(states), count)
    test.assertLessEqual(set(states.values()), {"done", "skipped"})
