"""Messages: one format with the script's file and line, counts by
severity and id, a limit per id with a note, a copy on standard error, and
the session's log file."""

import os
import shutil
import tempfile
import unittest

import kelvoshell as ks


class Messages(unittest.TestCase):
    def setUp(self):
        self.dir = tempfile.mkdtemp(prefix="kelvo_messages_")
        shutil.copy(os.path.join(ks.DATA, "rpt_small.lib"), self.dir)

    def tearDown(self):
        shutil.rmtree(self.dir)

    def write(self, name, text):
        with open(os.path.join(self.dir, name), "w") as out:
            out.write(text)

    def run_in(self, script, args=()):
        self.write("main.tcl", script)
        return ks.run(list(args) + ["main.tcl"], cwd=self.dir)

    def test_warnings_carry_the_script_file_and_line(self):
        self.write("inner.tcl", "\nget_libs nothing_inner\n")
        status, out, err = self.run_in(
            "read_liberty rpt_small.lib\n"
            "get_libs nosuch\n"
            "proc look {} {\n  get_lib_cells */nosuch\n}\n"
            "look\n"
            "source inner.tcl\n"
            "source -echo inner.tcl\n")
        self.assertEqual(status, 0, err)
        self.assertIn("Warning: main.tcl:2: No libs matched 'nosuch' (QUERY_001)\n", out)
        self.assertIn("Warning: main.tcl:4: No lib_cells matched '*/nosuch' (QUERY_001)\n", out)
        self.assertEqual(out.count("Warning: inner.tcl:2: No libs matched 'nothing_inner' "
                                   "(QUERY_001)\n"), 2)

    def test_reader_errors_name_file_and_line(self):
        self.write("bad.lib", "library (x) {\n  time_unit : \"1ns\" ;\n  cell (a) {\n")
        status, out, err = self.run_in("read_liberty bad.lib\n")
        self.assertEqual(status, 1)
        self.assertRegex(err, r"Error: read_liberty: bad\.lib:\d+: ")

    def test_counts_and_limits(self):
        status, out, err = self.run_in(
            "set_message_limit -id QUERY_001 2\n"
            "foreach n {a b c d} { get_libs $n }\n"
            "catch {read_liberty nosuch.lib}\n"
            "puts \"warnings=[get_message_count -severity warning]\"\n"
            "puts \"errors=[get_message_count -sev error]\"\n"
            "puts \"query=[get_message_count -id QUERY_001]\"\n"
            "puts \"all=[get_message_count -reset] after=[get_message_count]\"\n"
            "puts [catch {get_message_count -severity loud} m]$m\n")
        self.assertEqual(status, 0, err)
        self.assertEqual(out.count("(QUERY_001)"), 2)
        self.assertIn("Information: message QUERY_001 reached its limit of 2; further ones are "
                      "counted but not shown.\n", out)
        self.assertIn("warnings=4\nerrors=1\nquery=4\nall=5 after=0\n", out)
        self.assertIn("1Error: get_message_count: unknown severity 'loud'", out)

    def test_default_limit_applies_to_every_id(self):
        status, out, err = self.run_in(
            "set_app_var message_limit 3\nforeach n {a b c d e} { get_libs $n }\n")
        self.assertEqual(status, 0, err)
        self.assertEqual(out.count("(QUERY_001)"), 3)

    def test_warnings_to_standard_error_as_well(self):
        status, out, err = self.run_in(
            "get_libs quiet_one\nset_app_var messages_to_stderr true\nget_libs loud_one\n")
        self.assertEqual(status, 0, err)
        self.assertIn("quiet_one", out)
        self.assertIn("loud_one", out)
        self.assertNotIn("quiet_one", err)
        self.assertIn("Warning: main.tcl:3: No libs matched 'loud_one' (QUERY_001)", err)

    def test_log_file_keeps_everything(self):
        status, out, err = self.run_in(
            "puts to_stdout\nputs stderr to_stderr\nget_libs nothing\nhelp version\n"
            "set_app_var log_file second.log\nputs in_second\nexit 2\n",
            args=["-log", "first.log"])
        self.assertEqual(status, 2)
        with open(os.path.join(self.dir, "first.log")) as log:
            first = log.read()
        for text in ("to_stdout\n", "to_stderr\n", "No libs matched 'nothing'",
                     "Usage: version"):
            self.assertIn(text, first)
        self.assertNotIn("in_second", first)
        with open(os.path.join(self.dir, "second.log")) as log:
            self.assertEqual(log.read(), "in_second\n")
        status, _, err = ks.run(["-log", "/nonexistent/dir/x.log", "-c", "puts hi"])
        self.assertEqual(status, 1)
        self.assertIn("cannot open '/nonexistent/dir/x.log'", err)

    def test_log_keeps_what_is_typed_at_the_prompt(self):
        log = os.path.join(self.dir, "prompt.log")
        t = ks.Terminal(args=["-log", log], env={"KELVO_LINE_EDITOR": "builtin"})
        try:
            t.expect("kelvo> ")
            t.type("puts typed_here\r")
            t.expect("typed_here\n")
            t.type("exit\r")
            self.assertEqual(t.wait(), 0)
        finally:
            t.close()
            shutil.rmtree(t.home)
        with open(log) as text:
            self.assertIn("kelvo> puts typed_here\ntyped_here\n", text.read())


if __name__ == "__main__":
    ks.main()
