# SPDX-License-Identifier: LGPL-2.1-or-later
"""Shards over ssh by GNU parallel, to a daemon of the test's own; one is killed in the middle.

test_parallel.py BUILD_FOLDER
"""

import getpass
import os
import signal
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

import orders

PROGRAM = Path(sys.argv.pop()).resolve() / "bin" / "mvcalendar"
SHARDS, COUNT = 6, 180


class Parallel(unittest.TestCase):
    def setUp(self):
        orders.need("parallel", "sshd", "ssh", "ssh-keygen", "pgrep")
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        keys = self.folder / "keys"
        keys.mkdir(mode=0o700)
        for name in ("host", "own"):
            subprocess.run(["ssh-keygen", "-q", "-t", "ed25519", "-N", "", "-f", keys / name], check=True)
        port = orders.free_port()
        (keys / "sshd.conf").write_text(
            f"Port {port}\nListenAddress 127.0.0.1\nHostKey {keys}/host\nAuthorizedKeysFile {keys}/own.pub\n"
            f"PidFile none\nStrictModes no\nUsePAM no\nPasswordAuthentication no\nPermitRootLogin prohibit-password\n"
            "AcceptEnv LC_* MVCALENDAR*\n")
        (keys / "ssh.conf").write_text(
            f"Host first second\nHostName 127.0.0.1\nPort {port}\nUser {getpass.getuser()}\nIdentityFile {keys}/own\n"
            "IdentitiesOnly yes\nStrictHostKeyChecking no\nLogLevel ERROR\n"
            f"UserKnownHostsFile {keys}/known\n")
        (self.folder / "hosts").write_text(f"1/ssh -F {keys}/ssh.conf first\n1/ssh -F {keys}/ssh.conf second\n")
        if os.geteuid() == 0:
            os.makedirs("/run/sshd", mode=0o755, exist_ok=True)
        daemon = subprocess.Popen(["/usr/sbin/sshd", "-D", "-f", keys / "sshd.conf"], stderr=subprocess.DEVNULL)
        self.addCleanup(daemon.wait)
        self.addCleanup(daemon.terminate)
        login = ["ssh", "-F", str(keys / "ssh.conf"), "first", "true"]
        if not orders.wait_for(lambda: subprocess.run(login, capture_output=True).returncode == 0, 15):
            self.skipTest(f"no ssh to this computer: {subprocess.run(login, capture_output=True, text=True).stderr}")

    def test_one_is_killed(self):
        orders.write(self.folder, COUNT)
        run = subprocess.Popen([orders.EXAMPLES / "over_ssh.sh", "orders.jsonl", "hosts", str(SHARDS)],
                               cwd=self.folder, env=os.environ | {"MVCALENDAR": str(PROGRAM)})
        report = self.folder / "report-2.jsonl"
        self.assertTrue(orders.wait_for(lambda: report.exists() and report.read_text().count("\n") > 3, 120, 0.02))
        victims = subprocess.run(["pgrep", "-f", f"^{PROGRAM} batch .*--shard 2/{SHARDS}"], capture_output=True,
                                 text=True).stdout.split()
        self.assertEqual(len(victims), 1)
        os.kill(int(victims[0]), signal.SIGKILL)
        self.assertEqual(run.wait(600), 0)
        orders.assert_whole(self, self.folder, COUNT)
        hosts = {line.split("\t")[1] for line in (self.folder / "parallel.log").read_text().splitlines()[1:]}
        self.assertEqual(len(hosts), 2, "both computers have worked")


if __name__ == "__main__":
    unittest.main()
