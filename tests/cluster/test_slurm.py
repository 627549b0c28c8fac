# SPDX-License-Identifier: LGPL-2.1-or-later
"""An array of shards on Slurm, controller and two nodes on this computer; one node dies in the middle.

test_slurm.py BUILD_FOLDER
"""

import os
import signal
import socket
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

import orders

PROGRAM = Path(sys.argv.pop()).resolve() / "bin" / "mvcalendar"
SHARDS, EACH = 4, 200

CONFIGURATION = """
ClusterName=calendars
SlurmctldHost={host}(127.0.0.1)
SlurmUser={user}
SlurmdUser={user}
SlurmctldPort={controller}
AuthType=auth/none
CredType=cred/none
AuthInfo=cred_expire=15
ProctrackType=proctrack/pgid
TaskPlugin=task/none
MpiDefault=none
SelectType=select/cons_tres
SchedulerParameters=sched_interval=5
SlurmdTimeout=15
ReturnToService=2
StateSaveLocation={folder}/state
SlurmdSpoolDir={folder}/spool-%n
SlurmctldPidFile={folder}/controller.pid
SlurmdPidFile={folder}/%n.pid
SlurmctldLogFile={folder}/controller.log
SlurmdLogFile={folder}/%n.log
NodeName=n1 NodeHostname={host} NodeAddr=127.0.0.1 Port={n1} CPUs=1 RealMemory=1000
NodeName=n2 NodeHostname={host} NodeAddr=127.0.0.1 Port={n2} CPUs=1 RealMemory=1000
PartitionName=all Nodes=ALL Default=YES State=UP OverSubscribe=NO
"""


def children(process):
    """The processes below one, the nearest first."""
    found = subprocess.run(["pgrep", "-P", str(process)], capture_output=True, text=True).stdout.split()
    return [child for pid in found for child in [int(pid), *children(int(pid))]]


class Slurm(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        orders.need("slurmctld", "slurmd", "sbatch", "squeue", "scontrol", "pgrep")
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.folder = Path(folder.name)
        configuration = cls.folder / "slurm.conf"
        configuration.write_text(CONFIGURATION.format(
            folder=cls.folder, host=socket.gethostname(), user=os.environ.get("USER") or "root",
            controller=orders.free_port(), n1=orders.free_port(), n2=orders.free_port()))
        (cls.folder / "state").mkdir()
        cls.environment = os.environ | {"SLURM_CONF": str(configuration), "MVCALENDAR": str(PROGRAM),
                                        "PATH": os.environ["PATH"] + ":/usr/sbin"}
        cls.controller = cls.daemon("slurmctld", "-D", "-i")
        cls.nodes = {name: cls.daemon("slurmd", "-D", "-N", name) for name in ("n1", "n2")}
        if not orders.wait_for(lambda: cls.say("sinfo", "-h", "-o", "%T %D").strip() == "idle 2", 60):
            logs = "\n".join(log.read_text()[-2000:] for log in cls.folder.glob("*.log"))
            raise unittest.SkipTest(f"Slurm does not run here: {cls.say('sinfo')}\n{logs}")

    @classmethod
    def daemon(cls, *command):
        process = subprocess.Popen(command, env=cls.environment, cwd=cls.folder, stdout=subprocess.DEVNULL,
                                   stderr=subprocess.DEVNULL)
        cls.addClassCleanup(process.wait)
        cls.addClassCleanup(process.terminate)
        return process

    @classmethod
    def say(cls, *command):
        return subprocess.run(command, env=cls.environment, cwd=cls.folder, capture_output=True, text=True).stdout

    def killable(self):
        """A shard that is under way on n2: its array number, once some of its calendars are done."""
        for line in self.say("squeue", "-h", "-t", "R", "-w", "n2", "-o", "%K").split():
            report = self.folder / f"report-{line}.jsonl"
            if report.exists() and 5 < len(report.read_text().splitlines()) < EACH - 50:
                return int(line)
        return None

    def test_node_dies(self):
        orders.write(self.folder, SHARDS * EACH)
        said = self.say("sbatch", f"--array=1-{SHARDS}", str(orders.EXAMPLES / "orders.sbatch"), "orders.jsonl")
        self.assertIn("Submitted batch job", said)
        shard = orders.wait_for(self.killable, 120, 0.1)
        self.assertTrue(shard, self.say("squeue"))
        # the node goes as a computer does that loses its power: first who could tell, then the work
        node = self.nodes["n2"]
        below = [pid for step in self.say("pgrep", "-f", r"^slurmstepd: \[").split() if self.is_on(step, "n2")
                 for pid in [int(step), *children(int(step))]]
        self.assertTrue(below, self.say("squeue"))
        for pid in (node.pid, *below):
            os.kill(pid, signal.SIGKILL)
        node.wait()
        done_before = len((self.folder / f"report-{shard}.jsonl").read_text().splitlines())
        self.assertTrue(orders.wait_for(lambda: "n2" in self.say("sinfo", "-h", "-N", "-t", "down", "-o", "%N"), 120))
        type(self).nodes["n2"] = self.daemon("slurmd", "-D", "-N", "n2")
        self.assertTrue(orders.wait_for(lambda: not self.say("squeue", "-h").strip(), 900, 2), self.say("squeue"))
        orders.assert_whole(self, self.folder, SHARDS * EACH)
        log = (self.folder / f"batch-{shard}.log").read_text(encoding="utf-8")
        self.assertRegex(log, f"unverändert {done_before}|unchanged {done_before}", "the second begin has gone on")

    def is_on(self, step, node):
        """A step's own processes say where they run, and for which Slurm."""
        wanted = {f"SLURMD_NODENAME={node}".encode(), f"SLURM_CONF={self.environment['SLURM_CONF']}".encode()}
        return any(wanted <= set(Path(f"/proc/{pid}/environ").read_bytes().split(b"\0"))
                   for pid in children(int(step)))


if __name__ == "__main__":
    unittest.main()
