"""Read commands with several files: words, Tcl lists and globs; a bad file
stops the read with its name, files before it stay read, and a missing file
reads nothing at all."""

import os
import shutil
import tempfile
import unittest

import kelvoshell as ks

BAD_VERILOG = "module broken (a);\n  input a\n  wire w;\nendmodule\n"
TOP_VERILOG = "module top2 (x);\n  input x;\nendmodule\n"


class ManyFiles(unittest.TestCase):
    def setUp(self):
        self.dir = tempfile.mkdtemp(prefix="kelvo_reads_")
        for name in ("rpt_small.lib", "timer_small.lib", "rpt_small.v", "hier_small.v"):
            shutil.copy(os.path.join(ks.DATA, name), self.dir)
        with open(os.path.join(self.dir, "bad.v"), "w") as bad:
            bad.write(BAD_VERILOG)
        with open(os.path.join(self.dir, "top2.v"), "w") as top:
            top.write(TOP_VERILOG)

    def tearDown(self):
        shutil.rmtree(self.dir)

    def script(self, text):
        return ks.run_script(text, cwd=self.dir)

    def test_liberty_words_lists_and_glob(self):
        status, out, err = self.script(
            "puts [llength [read_liberty rpt_small.lib timer_small.lib]]\n"
            "puts [llength [read_liberty [list rpt_small.lib timer_small.lib]]]\n"
            "puts [llength [read_liberty [lsort [glob *.lib]]]]\n"
            "puts [llength [get_libs]]\n")
        self.assertEqual(status, 0, err)
        self.assertEqual(out.split(), ["2", "2", "2", "2"])

    def test_verilog_several_files_give_all_modules(self):
        status, out, err = self.script("puts [read_verilog rpt_small.v top2.v]\n")
        self.assertEqual(status, 0, err)
        self.assertEqual(out.split()[-1], "top2")
        self.assertGreater(len(out.split()), 1)

    def test_bad_file_named_and_earlier_files_stay(self):
        status, out, err = self.script(
            "set failed [catch {read_verilog top2.v bad.v rpt_small.v} message]\n"
            "puts \"failed=$failed\"\nputs $message\n"
            "puts \"modules: [catch {current_design top2}] [catch {link_design top2}]\"\n")
        self.assertEqual(status, 0, err)
        self.assertIn("failed=1", out)
        self.assertRegex(out, r"read_verilog: bad\.v:\d+: ")
        self.assertIn("read before it: top2.v", out)
        self.assertIn("not read: rpt_small.v", out)
        self.assertIn("modules: 0 0", out)  # top2 was read

    def test_missing_file_reads_nothing(self):
        status, out, err = self.script(
            "catch {read_verilog top2.v nosuch.v} message\nputs $message\n"
            "puts [catch {link_design top2}]\n")
        self.assertEqual(status, 0, err)
        self.assertIn("cannot open 'nosuch.v'", out)
        self.assertIn("no file was read", out)
        self.assertEqual(out.split()[-1], "1")  # top2 was not read either

    def test_folder_and_empty_list(self):
        status, out, err = self.script(
            "catch {read_liberty .} m1\nputs $m1\n"
            "catch {read_liberty [glob -nocomplain *.none]} m2\nputs $m2\n")
        self.assertEqual(status, 0, err)
        self.assertIn("cannot read '.': it is a directory", out)
        self.assertIn("read_liberty: no file given", out)

    def test_file_name_with_blank_is_one_file(self):
        shutil.copy(os.path.join(self.dir, "top2.v"), os.path.join(self.dir, "my top.v"))
        status, out, err = self.script("puts [read_verilog {my top.v}]\n")
        self.assertEqual(status, 0, err)
        self.assertEqual(out.strip(), "top2")


if __name__ == "__main__":
    ks.main()
