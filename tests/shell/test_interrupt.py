"""Ctrl-C: a long Tcl loop and the read of a large file stop with
"Interrupted" and the shell goes on with its data as before; a script run
from the command line ends with status 1; a second Ctrl-C while a command
does not answer ends the shell."""

import os
import shutil
import signal
import tempfile
import time
import unittest

import kelvoshell as ks


def write_large_netlist(path, cells=800000):
    """A chain of buffers: about 48 MB of Verilog, read in 2-3 s, so that
    Ctrl-C lands well inside the read even on a loaded machine (progress
    shows only after half a second)."""
    with open(path, "w") as netlist:
        netlist.write("module big (a, y);\n  input a;\n  output y;\n")
        netlist.write("".join("  wire w%d;\n" % i for i in range(cells)))
        netlist.write("  BUF_X1 u0 (.A(a), .Z(w0));\n")
        netlist.write("".join("  BUF_X1 u%d (.A(w%d), .Z(w%d));\n" % (i, i - 1, i)
                              for i in range(1, cells)))
        netlist.write("  BUF_X1 ul (.A(w%d), .Z(y));\nendmodule\n" % (cells - 1))


class Interrupts(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.dir = tempfile.mkdtemp(prefix="kelvo_interrupt_")
        cls.large = os.path.join(cls.dir, "big.v")
        write_large_netlist(cls.large)

    @classmethod
    def tearDownClass(cls):
        shutil.rmtree(cls.dir)

    def setUp(self):
        self.term = ks.Terminal(env={"KELVO_LINE_EDITOR": "builtin"}, cwd=self.dir)
        self.term.expect("kelvo> ")

    def tearDown(self):
        self.term.close()
        shutil.rmtree(self.term.home)

    def test_long_loop_stops_and_the_shell_goes_on(self):
        t = self.term
        t.type("set kept 7; set n 0; while 1 {incr n}\r")
        time.sleep(0.5)
        t.interrupt()
        t.expect(r"Interrupted\n")
        t.type("puts \"kept=$kept counted=[expr {$n > 0}]\"\r")
        t.expect(r"kept=7 counted=1")
        t.type("exit\r")
        self.assertEqual(t.wait(), 0)

    def test_read_of_a_large_file_stops_and_reads_nothing(self):
        t = self.term
        t.type("read_verilog big.v\r")
        t.expect(r"Reading big\.v: +\d+%")  # well into the read
        t.interrupt()
        t.expect(r"Interrupted\n")
        t.type("puts \"[catch {current_design big} m] $m\"\r")
        t.expect(r"1 Error: current_design: ")
        t.type("exit\r")
        self.assertEqual(t.wait(), 0)

    def test_second_ctrl_c_ends_a_shell_that_does_not_answer(self):
        t = self.term
        # The shell waits for a program that does not stop at Ctrl-C.
        t.type("exec sh -c {trap '' INT; sleep 20}\r")
        time.sleep(0.5)
        t.interrupt()
        time.sleep(0.2)
        t.interrupt()
        self.assertEqual(t.wait(timeout=10), 130)
        self.assertIn("interrupted twice", ks.plain(t.output))

    def test_single_ctrl_c_stops_after_a_command_that_finishes(self):
        t = self.term
        t.type("exec sh -c {trap '' INT; sleep 1}; puts not_reached\r")
        time.sleep(0.4)
        t.interrupt()
        t.expect(r"Interrupted\n")
        self.assertNotIn("not_reached\n", ks.plain(t.output).replace("puts not_reached", ""))


class ScriptInterrupt(unittest.TestCase):
    def test_script_ends_with_status_1(self):
        folder = tempfile.mkdtemp(prefix="kelvo_interrupt_")
        script = os.path.join(folder, "loop.tcl")
        with open(script, "w") as text:
            text.write("puts started\nwhile 1 {}\n")
        t = ks.Terminal(args=[script])
        try:
            t.expect("started")
            time.sleep(0.3)
            os.kill(t.pid, signal.SIGINT)
            self.assertEqual(t.wait(), 1)
            self.assertIn("Interrupted", ks.plain(t.output))
        finally:
            t.close()
            shutil.rmtree(folder)
            shutil.rmtree(t.home)


if __name__ == "__main__":
    ks.main()
