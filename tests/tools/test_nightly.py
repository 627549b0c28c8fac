# SPDX-License-Identifier: LGPL-2.1-or-later
"""What tools/nightly, tools/tidy, tools/check_benchmarks and tools/bench_report make of steps and programs that fail,
hang or answer."""

import contextlib
import importlib.machinery
import importlib.util
import io
import json
import sys
import tempfile
import time
import unittest
from pathlib import Path

TOOLS = Path(__file__).resolve().parents[2] / "tools"


def tool(name):
    loader = importlib.machinery.SourceFileLoader(name, str(TOOLS / name))
    module = importlib.util.module_from_spec(importlib.util.spec_from_loader(name, loader))
    loader.exec_module(module)
    return module


class Nightly(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        self.nightly = tool("nightly")
        self.nightly.LOGS = self.folder / "logs"

    def run_part(self, *steps, name="part", options=()):
        def work(part, _):
            for step in steps:
                part.run("sh", "-c", step)
        self.nightly.PARTS = {name: work, "other": lambda part, _: None}
        with contextlib.redirect_stdout(io.StringIO()) as said:
            sys.argv = ["nightly", *options]
            code = self.nightly.main()
        return code, said.getvalue()

    def test_results(self):
        for name, steps, code, words in (
            ("all well", ["true", "echo error-free"], 0, ["part   passed", "other  passed"]),
            ("a step fails", ["echo x.cpp:1: error: bad; exit 3", "touch " + str(self.folder / "after")], 1,
             ["part   FAILED", "exit code 3", "x.cpp:1: error: bad", "other  passed"]),
        ):
            with self.subTest(name):
                result, said = self.run_part(*steps)
                self.assertEqual(result, code, said)
                for word in words:
                    self.assertIn(word, said)
        self.assertFalse((self.folder / "after").exists())

    def test_time_is_up(self):
        survivor = self.folder / "survivor"
        code, said = self.run_part(f"(sleep 2; touch {survivor}) & wait", options=["--minutes", "0"])
        self.assertEqual(code, 1)
        self.assertIn("not done after", said)
        time.sleep(1.5)
        self.assertFalse(survivor.exists(), "children end with their step")

    def test_tidy(self):
        tidy = tool("tidy")
        texts = {"a.cpp": "namespace {\n\nint sum(int)\n{\n}\n\n} // namespace\n",
                 "b.cpp": "static constexpr double width = 2;\nint main()\n{\n}\n",
                 "c.cpp": "namespace {\n\nclass Row\n{\n    int sum;\n};\nconst QString sum = u\"x\"_s;\n\n} // namespace\n"}
        sources = []
        for name, text in texts.items():
            (self.folder / name).write_text(text, encoding="utf-8")
            entry = {"file": str(self.folder / name), "command": f"c++ -DA -I/i/{name} -Wall -o {name}.o -c {name}"}
            sources.append(tidy.Source(entry))
        groups = tidy.grouped(sources, 10)
        self.assertEqual([[one.path.name for one in group.sources] for group in groups], [["a.cpp", "b.cpp"], ["c.cpp"]])
        self.assertEqual(groups[0].flags(), [["-Wall"], ["-DA"], ["-I/i/a.cpp", "-I/i/b.cpp"]])
        path = self.folder / "together.cpp"
        groups[0].write(path)
        line = path.read_text(encoding="utf-8").split("\n").index("int main()") + 1
        told = groups[0].told(f"{path}:{line}:5: error: bad [x]\n/h.h:1:2: note: here\n", path)
        self.assertEqual(told, f"{self.folder}/b.cpp:2:5: error: bad [x]\n/h.h:1:2: note: here\n")
        tidy.ROOT = self.folder
        self.assertEqual(tidy.findings(f"12 warnings.\n{told}/usr/q.h:1:1: error: not ours\n{told}"), [told.strip()] * 2)

    def bench_program(self, name, runs):
        program = self.folder / "bin" / name
        program.parent.mkdir(exist_ok=True)
        program.write_text(f"#!/bin/sh\ncat <<'END'\n{json.dumps({'benchmarks': runs})}\nEND\n", encoding="utf-8")
        program.chmod(0o755)
        return program

    def test_benchmarks(self):
        times = {"fast": 2.0, "slow": 8.0}
        runs = [{"run_type": "iteration", "run_name": name, "real_time": time_ * factor, "ratio": 3.0}
                for name, time_ in times.items() for factor in (1.0, 1.1, 50.0)]
        runs.append({"run_type": "aggregate", "run_name": "fast", "real_time": 1000.0})
        program = self.bench_program("bench", runs)
        bench = tool("check_benchmarks")
        for benchmark, what, low, high, expected in (
            ("slow", ":fast", 3.9, 4.1, 0), ("slow", ":fast", 1, 3, 1), ("slow", ":fast", 5, 9, 1),
            ("slow", "ratio", 3, 3, 0), ("slow", "other", 0, 9, 1), ("gone", ":fast", 0, 9, 1), ("slow", ":gone", 0, 9, 1),
        ):
            with self.subTest(f"{benchmark} {what} {low}"), contextlib.redirect_stdout(io.StringIO()):
                ratios = bench.stored(["# comment", f"bench {benchmark} {what} {low} {high}"])["bench"]
                self.assertEqual(bench.compare("bench", ratios, bench.measure(program, ratios)), expected)

    def report(self, *words):
        sys.argv = ["bench_report", "--build", str(self.folder), "--rounds", "1", *words]
        with contextlib.redirect_stdout(io.StringIO()) as said:
            code = tool("bench_report").main()
        return code, said.getvalue().splitlines()[2:]

    def test_report(self):
        for elided, heading, verdict, code in ((9.0, 9.5, "aim", 0), (9.0, 11.0, "yes", 0), (9.0, 12.5, "NO", 1)):
            self.bench_program("bench_LongLines", [
                {"run_type": "iteration", "run_name": f"{name}/iterations:1", "ratio": ratio}
                for name, ratio in (("elided", elided), ("fitted", 5.0), ("heading", heading))])
            with self.subTest(heading):
                self.assertEqual(self.report("letters"), (code, [
                    "| line of 10,000 letters / 1,000 letters: shortened; fitted; as heading | 80 | 12 | 10 "
                    f"| {elided:g}; 5; {heading:g} | {verdict} |"]))
        code, rows = self.report("one setEvents", "empty Qt GUI")
        self.assertEqual(code, 0, "what is not measured is not missed")
        self.assertIn("| not measured: process_months is not built | - |", rows[0])
        self.assertIn("| not measured: bench_Entries is not built | - |", rows[1])
        for name in ("process_months", "process_gui"):
            (self.folder / "bin" / name).write_text("#!/bin/sh\necho no fonts here >&2\nexit 3\n", encoding="utf-8")
            (self.folder / "bin" / name).chmod(0o755)
        with contextlib.redirect_stderr(io.StringIO()) as said:
            code, rows = self.report("empty Qt GUI", "letters")
        self.assertEqual((code, len(rows)), (1, 2), "other rows are measured all the same")
        self.assertRegex(rows[0], r"failed: .*process_months: exit code 3 \| NO \|")
        self.assertIn("no fonts here", said.getvalue())


if __name__ == "__main__":
    unittest.main()
