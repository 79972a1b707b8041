#!/usr/bin/env python3
"""What an adjustment does where the language database can't hold its list: the report of its
fault, the command stopped alone, and no file of the user's changed.

check_language_database.py DRIVER
"""

import os
import shutil
import sqlite3
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

DRIVER = Path(sys.argv.pop(1)).resolve()


def record(first, second=""):
    return f"{first:21}{second:21}\r\n"


def side(points):
    """A sync file of these points; the first one is the sync point."""
    outline = "".join(record(x, y) for x, y in [*points, points[0]])
    return (record("Fichero DAT(KMR)2002", "lado") + record("SLATEWORKS") + outline
            + record("Puntos Sincronismo") + record("") + record(*points[0])).encode("ascii")


BEFORE = {"a.dat": side([("0", "0"), ("4", "0"), ("4", "4")]),
          "b.dat": side([("0", "0"), ("4", "0"), ("4", "4"), ("0", "4")]),
          "a2.DAT": b"de antes"}

SCRIPT = """setting Values sound 0
program-file VELMORA.MDB copy {database}
start
menu mnu_corrpoltrap
pick a.dat
click ajuste.cmd_selA
pick b.dat
click ajuste.cmd_selB
click ajuste.cmd_opt
set ajuste_opt.txt_X 100
set ajuste_opt.txt_Y 50
set ajuste_opt.txt_Z 400
click ajuste_opt.cmb_ok
{before}trace on
click ajuste.Cmd_Ajuste
click ajuste.Cmd_save
"""


class LanguageDatabase(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="velmora-database-")
        self.addCleanup(folder.cleanup)
        self.temporary = Path(folder.name) / "tmp"
        self.work = Path(folder.name) / "work"
        self.database = Path(folder.name) / "lengua.mdb"
        self.temporary.mkdir()
        self.work.mkdir()
        for name, content in BEFORE.items():
            (self.work / name).write_bytes(content)
        shutil.copy(DRIVER.parent / "VELMORA.MDB", self.database)

    def execute(self, statement):
        connection = sqlite3.connect(self.database)
        connection.execute(statement)
        connection.commit()
        connection.close()

    def programs_database(self):
        return next(self.temporary.glob("velmora-scenario-*/program/VELMORA.MDB"))

    def drive(self, before="", meanwhile=None):
        """Runs the script; `meanwhile` is called while it waits before the adjustment."""
        script = SCRIPT.format(database=self.database, before=before)
        with subprocess.Popen([DRIVER, "--work", self.work, "-"], stdin=subprocess.PIPE,
                              stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                              env=dict(os.environ, TMPDIR=str(self.temporary))) as driver:
            driver.stdin.write(script.encode("utf-8"))
            driver.stdin.close()
            printed = []
            for line in driver.stdout:
                printed.append(line.decode("utf-8").rstrip("\n"))
                if meanwhile and printed[-1].startswith("> wait"):
                    meanwhile()
            driver.wait(timeout=100)
        return driver.returncode, printed

    def assert_stopped(self, outcome, number):
        status, printed = outcome
        self.assertEqual(status, 0, printed)
        behind = printed[printed.index("> click ajuste.Cmd_Ajuste") + 1:]
        self.assertEqual(behind[0], "pointer 11")
        self.assertTrue(behind[1].startswith(f"fault {number} "), behind)
        self.assertEqual(behind[2:], ["> click ajuste.Cmd_save"])
        self.assert_files_as_before()

    def assert_files_as_before(self):
        found = {path.name: path.read_bytes() for path in self.work.iterdir()}
        self.assertEqual(found, BEFORE)

    def test_whole_it_serves(self):
        status, printed = self.drive()
        self.assertEqual((status, printed[-1]), (0, "pointer 0"))
        self.assertTrue((self.work / "b2.DAT").exists())
        self.assertNotEqual((self.work / "a2.DAT").read_bytes(), BEFORE["a2.DAT"])

    def test_damaged_another_one_stands_in(self):
        whole = self.database.read_bytes()
        self.database.write_bytes(whole[:len(whole) // 2])
        status, printed = self.drive()
        self.assertEqual((status, printed[-1]), (0, "pointer 0"))
        self.assertTrue((self.work / "b2.DAT").exists())

    def test_without_the_table(self):
        self.execute("DROP TABLE TEMP_AJUSTE")
        self.assert_stopped(self.drive(), 3078)

    def test_locked_by_another_program(self):
        others = []

        def lock():
            others.append(sqlite3.connect(self.programs_database()))
            others[0].execute("BEGIN IMMEDIATE")

        outcome = self.drive("wait 1500\n", lock)
        others[0].close()
        self.assert_stopped(outcome, 3008)

    def test_in_a_folder_that_takes_no_journal(self):
        # As a read-only folder does; its own rights would not stop an administrator.
        def block():
            Path(f"{self.programs_database()}-journal").symlink_to("/missing/folder/journal")

        self.assert_stopped(self.drive("wait 1500\n", block), 3051)

    def test_that_refuses_a_row_in_the_middle(self):
        self.execute("CREATE TRIGGER full BEFORE INSERT ON TEMP_AJUSTE WHEN NEW.ORDEN = 2 "
                     "BEGIN SELECT RAISE(ABORT, 'full'); END")
        status, printed = self.drive()
        self.assertEqual(status, 0, printed)
        self.assertTrue(printed[-2].startswith("fault "), printed)
        self.assertEqual(printed[-1], "> click ajuste.Cmd_save")
        self.assert_files_as_before()


if __name__ == "__main__":
    unittest.main()
