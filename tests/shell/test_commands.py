"""The shell's own commands as users type them: -help and option prefixes
everywhere, help with globs, redirect and its short forms, source -echo and
-verbose, printvar, app variables, exit with a status, version."""

import os
import tempfile
import unittest

import kelvoshell as ks


class Commands(unittest.TestCase):
    def script(self, text, **kwargs):
        self.dir = tempfile.mkdtemp(prefix="kelvo_commands_")
        return ks.run_script(text, cwd=self.dir, **kwargs)

    def test_help_forms(self):
        status, out, err = self.script(
            "help report_u*\nputs ---\nhelp -v redirect\nputs ---\nredirect -help\nputs ---\n"
            "puts [catch {help nosuch*} m]$m\n")
        self.assertEqual(status, 0, err)
        first, second, third, fourth = out.split("---\n")
        self.assertEqual(first.split(), ["report_units", "#", "displays", "the", "units", "used",
                                         "by", "the", "current", "design."])
        self.assertTrue(second.startswith("Usage: redirect"))
        self.assertEqual(second, third)
        self.assertEqual(fourth.strip(), "1Error: help: no command matches 'nosuch*'")
        # Every shell command answers -help.
        for command in ("help", "redirect", "source", "exit", "version", "printvar",
                        "set_app_var", "get_app_var", "get_message_count", "set_message_limit"):
            status, out, err = ks.run(["-c", command + " -help"])
            self.assertEqual(status, 0, command + err)
            self.assertTrue(out.startswith("Usage: " + command), command)

    def test_redirect_prefixes_puts_and_short_forms(self):
        status, out, err = self.script(
            "redirect -var v {puts one; report_units}\n"
            "redirect -app -var v {puts two}\n"
            "puts \"<$v>\"\n"
            "report_units > units.txt\nreport_units >> units.txt\n"
            "redirect -tee f.txt {puts shown}\n"
            "set f [open units.txt]; set t [read $f]; close $f\n"
            "puts \"units lines: [llength [split [string trim $t] \\n]]\"\n"
            "puts [catch {report_units > /nonexistent/x} m]\n")
        self.assertEqual(status, 0, err)
        self.assertIn("<one\nreport_units command must", out)
        self.assertIn("\ntwo\n>", out)
        self.assertIn("units lines: 2", out)
        self.assertIn("shown\n", out)
        with open(os.path.join(self.dir, "f.txt")) as tee:
            self.assertEqual(tee.read(), "shown\n")
        self.assertTrue(out.rstrip().endswith("1"))

    def test_source_echo_and_verbose(self):
        folder = tempfile.mkdtemp(prefix="kelvo_source_")
        with open(os.path.join(folder, "inner.tcl"), "w") as inner:
            inner.write("set a 5\n\n# a comment\nputs \"a is $a\"\nexpr {$a * 2}\n")
        status, out, err = ks.run_script(
            "source -ec -verb inner.tcl\nputs ---\nsource inner.tcl\nputs \"a=$a\"\n", cwd=folder)
        self.assertEqual(status, 0, err)
        echoed, plain = out.split("---\n")
        self.assertEqual(echoed, "set a 5\n5\nputs \"a is $a\"\na is 5\nexpr {$a * 2}\n10\n")
        self.assertEqual(plain, "a is 5\na=5\n")
        # An error names the file and line of the echoed command.
        with open(os.path.join(folder, "bad.tcl"), "w") as bad:
            bad.write("set x 1\nerror boom\n")
        status, out, err = ks.run_script("source -echo bad.tcl\n", cwd=folder)
        self.assertEqual(status, 1)
        self.assertIn('(file "bad.tcl" line 2)', err)

    def test_printvar_and_app_vars(self):
        status, out, err = self.script(
            "set my_var {a b}\narray set my_arr {k1 v1}\nprintvar my_*\n"
            "puts [get_app_var message_limit]\n"
            "puts [set_app_var message_limit 5]\n"
            "puts $message_limit\n"
            "puts [catch {set_app_var message_limit many} m]$m\n"
            "puts [catch {set message_limit -7} m]$m\n"
            "puts [get_app_var message_limit]\n"
            "puts [catch {get_app_var nosuch} m]$m\n"
            "puts [catch {set_app_var line_editor x} m]$m\n"
            "puts [get_app_var -list message*]\n")
        self.assertEqual(status, 0, err)
        lines = out.splitlines()
        self.assertEqual(lines[:2], ['my_arr(k1) = "v1"', 'my_var = "a b"'])
        self.assertEqual(lines[2:5], ["100", "5", "5"])
        self.assertRegex(lines[5], r"^1Error: set_app_var: message_limit is -1 .*'many'")
        self.assertRegex(lines[6], r"^1can't set \"message_limit\": message_limit is -1")
        self.assertEqual(lines[7], "5")
        self.assertEqual(lines[8], "1Error: get_app_var: 'nosuch' is not a setting of the shell")
        self.assertEqual(lines[9], "1Error: set_app_var: 'line_editor' cannot be set")
        self.assertEqual(lines[10], "message_limit messages_to_stderr")

    def test_exit_status_and_version(self):
        status, out, _ = self.script("puts [version]\nputs [-version]\nexit 4\nputs never\n")
        self.assertEqual(status, 4)
        self.assertEqual(out, "kelvo 0.1.0\nkelvo 0.1.0\n")
        status, _, err = ks.run(["-c", "exit nine"])
        self.assertEqual(status, 1)
        self.assertIn("expects an integer", err)
        status, out, _ = ks.run([], stdin_text="puts hi\nexit 6\n")
        self.assertEqual((status, out), (6, "hi\n"))


if __name__ == "__main__":
    ks.main()
