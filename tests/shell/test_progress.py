"""Progress lines: a file of more than 20 MB shows percent and time on a
terminal, and nothing when standard error is a pipe or progress is off."""

import os
import shutil
import tempfile
import unittest

import kelvoshell as ks
from test_interrupt import write_large_netlist


class Progress(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.dir = tempfile.mkdtemp(prefix="kelvo_progress_")
        # Large enough that reading outlasts the first draw on a fast machine.
        write_large_netlist(os.path.join(cls.dir, "big.v"), cells=1200000)
        with open(os.path.join(cls.dir, "small.v"), "w") as small:
            small.write("module small (a);\n  input a;\nendmodule\n")

    @classmethod
    def tearDownClass(cls):
        shutil.rmtree(cls.dir)

    def session(self, keys):
        t = ks.Terminal(env={"KELVO_LINE_EDITOR": "builtin"}, cwd=self.dir)
        try:
            t.expect("kelvo> ")
            t.type(keys + "; puts finished\r")
            t.expect(r"\nfinished\n", timeout=120)
            t.type("exit\r")
            t.wait()
            return ks.plain(t.output)
        finally:
            t.close()
            shutil.rmtree(t.home)

    def test_shown_on_a_terminal(self):
        screen = self.session("read_verilog small.v big.v")
        self.assertRegex(screen, r"Reading big\.v: +\d+%, \d+\.\d s")
        self.assertRegex(screen, r"Reading big\.v: done, \d+\.\d s\n")
        self.assertNotIn("Reading small.v", screen)

    def test_absent_when_turned_off(self):
        screen = self.session("set_app_var show_progress 0; read_verilog big.v")
        self.assertNotIn("Reading", screen)

    def test_absent_in_a_pipe(self):
        status, out, err = ks.run(["-c", "read_verilog big.v; puts finished"], cwd=self.dir,
                                  timeout=120)
        self.assertEqual(status, 0, err)
        self.assertEqual(out, "finished\n")
        self.assertEqual(err, "")


if __name__ == "__main__":
    ks.main()
