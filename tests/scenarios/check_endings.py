#!/usr/bin/env python3
"""How the scenario driver ends: its exit statuses, what it says of a faulty script, what it leaves.

check_endings.py DRIVER
"""

import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

DRIVER = sys.argv.pop(1)
START = "setting Values sound 0\nstart\n"


class Endings(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory(prefix="velmora-endings-")
        self.addCleanup(self.folder.cleanup)
        self.temporary = Path(self.folder.name) / "tmp"
        self.work = Path(self.folder.name) / "work"
        self.temporary.mkdir()
        self.work.mkdir()

    def drive(self, script, *options):
        environment = dict(os.environ, TMPDIR=str(self.temporary))
        return subprocess.run([DRIVER, *options, "-"], input=script.encode("utf-8"),
                              capture_output=True, env=environment, timeout=100, check=False)

    def assert_fault(self, script, line, *parts):
        done = self.drive(script)
        said = done.stderr.decode("utf-8").strip()
        self.assertEqual(done.returncode, 2, said)
        self.assertTrue(said.startswith(f"line {line}: "), said)
        for part in parts:
            self.assertIn(part, said)
        return done.stdout.decode("utf-8")

    def test_an_empty_script_ends_well(self):
        done = self.drive("# nothing\n\n")
        self.assertEqual((done.returncode, done.stdout, done.stderr), (0, b"", b""))

    def test_a_script_ends_well_inside_a_modal_window(self):
        done = self.drive(START + "write a.scr \"pline\\r\\n0,0\\r\\n1,0\\r\\n1,1\\r\\n\"\n"
                          "pick a.scr\nmenu mnu_openfile\nmenu mnu_scale_xy\n")
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertTrue(done.stdout.endswith(b"window Scale_xy open\n"), done.stdout)

    def test_faults_that_need_no_window(self):
        for line in ("walk", "locale ;", "setting Values sound", "answer x", "answer 5", "answer",
                     "pick", "font Sans big", "font Sans 8 wide", "cad walk", "cad line 0 0 1 1",
                     "copy missing.dat a.dat", "delete", "show values Nothing",
                     "show", "show wings", "trace maybe", "write a \"\\q\"", "type \"open",
                     "shape a.dat ala", "shape a.dat ala 1", "program-file a.txt move",
                     "menu mnu_exit", "close Velmora",
                     "show text Velmora.pic", "row 0", "wait -1"):
            with self.subTest(line):
                printed = self.assert_fault(f"# first\n{line}\nanswer 1\n", 2)
                self.assertEqual(printed, f"> {line}\n")

    def test_faults_of_windows(self):
        for line, part in (("start", "started"),
                           ("locale ,", "before start"),
                           ("menu mnu_nothing", "mnu_nothing"),
                           ("menu mnu_Archivo", "mnu_Archivo"),
                           ("tool K_NOTHING", "K_NOTHING"),
                           ("click setup.cmd_ok", "setup"),
                           ("click Velmora.cmd_ok", "cmd_ok"),
                           ("set wininfo.chk_wininfo x", "chk_wininfo"),
                           ("key Velmora.pic Nothing", "Nothing"),
                           ("row 7", "7"),
                           ("tab winoptions.SSTab1 9", "9"),
                           ("tab Velmora.pic 0", "pic"),
                           ("pointer down middle 0 0", "pointer"),
                           ("pointer up left 0", "pointer"),
                           ("pointer up left 0 x", "x"),
                           ("pointer up left 0 0 shift", "pointer"),
                           ("show pixel 2000 0", "pixel"),
                           ("show checked Velmora.TxtDescDat", "TxtDescDat")):
            with self.subTest(line):
                self.assert_fault(START + line + "\n", 3, part)

    def test_a_window_behind_a_modal_one_is_out_of_reach(self):
        script = START + ("write a.scr \"pline\\r\\n0,0\\r\\n1,0\\r\\n1,1\\r\\n\"\npick a.scr\n"
                          "menu mnu_openfile\nmenu mnu_scale_xy\n")
        self.assert_fault(script + "menu mnu_exit\n", 7, "Scale_xy")
        self.assert_fault(script + "click winoptions.ChkSCR\n", 7, "Scale_xy")

    def test_no_pick_for_the_cad(self):
        self.assert_fault("cad running AutoCAD 15\ncad document a.dwg\n" + START
                          + "menu menu_select_orig\n", 5, "GetPoint")

    def test_a_run_time_error_ends_with_1(self):
        done = self.drive("setting Values Def_Dec muchos\nstart\nshow list\n")
        self.assertEqual(done.returncode, 1)
        self.assertIn("\nfault 13 ", done.stdout.decode("utf-8"))
        self.assertNotIn("show list", done.stdout.decode("utf-8"))

    def test_the_program_ending_by_itself_ends_with_0(self):
        done = self.drive(START + "close Velmora\nwalk\n")
        self.assertEqual(done.returncode, 0)
        self.assertTrue(done.stdout.endswith(b"ended\n"), done.stdout)

    def test_what_was_made_is_taken_away(self):
        for script in (START, START + "walk\n", START + "close Velmora\n",
                       "setting Values Def_Dec muchos\nstart\n"):
            self.drive(script + "write a.txt x\n")
            self.assertEqual(list(self.temporary.iterdir()), [])

    def test_a_file_makes_its_folder(self):
        done = self.drive("write sub/deep/a.txt 1\ncopy sub/deep/a.txt other/b.txt\n"
                          "append third/c.txt 2\nshow files sub\nshow file other/b.txt\n"
                          "show file third/c.txt\n")
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertTrue(done.stdout.endswith(
            b"files sub\ndeep\n> show file other/b.txt\nfile other/b.txt 1\n\"1\"\n"
            b"> show file third/c.txt\nfile third/c.txt 1\n\"2\"\n"), done.stdout)

    def test_keep_leaves_the_work_folder(self):
        self.drive("write a.txt \"1 2\"\n", "--keep")
        self.assertEqual([path.read_text() for path in self.temporary.rglob("a.txt")], ["1 2"])

    def test_a_given_work_folder_stays(self):
        done = self.drive("write a.txt 1\nshow files .\nshow file a.txt\n", "--work", self.work)
        self.assertEqual((self.work / "a.txt").read_text(), "1")
        self.assertIn("files .\na.txt\n", done.stdout.decode("utf-8"))
        self.assertEqual(list(self.temporary.iterdir()), [])

    def test_wrong_options(self):
        for options in (["--work"], ["--nothing", "a"], [], ["a", "b"], ["/nowhere/a.scenario"]):
            with self.subTest(options):
                done = subprocess.run([DRIVER, *options], capture_output=True, timeout=60,
                                      stdin=subprocess.DEVNULL, check=False)
                self.assertEqual(done.returncode, 2)
                self.assertNotEqual(done.stderr, b"")


if __name__ == "__main__":
    unittest.main()
