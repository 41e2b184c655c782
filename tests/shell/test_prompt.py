"""The interactive prompt on a terminal, with the shell's own editor and,
where it is installed, with tclreadline: editing with the arrows, history
and Ctrl-R, Tab completion of commands, options, files and objects that
never runs anything, and Ctrl-C that drops the line."""

import os
import shutil
import tempfile
import time
import unittest

import kelvoshell as ks

UP, LEFT, RIGHT, HOME = "\x1b[A", "\x1b[D", "\x1b[C", "\x1b[H"
CTRL_C, CTRL_D, CTRL_R, TAB = "\x03", "\x04", "\x12", "\t"


def tclreadline_installed():
    status, out, _ = ks.run(["-c", "puts [catch {package require tclreadline}]"])
    return status == 0 and out.strip() == "0"


class PromptCases:
    """The same cases for each line editor (EDITOR in the subclass)."""

    EDITOR = None

    def setUp(self):
        self.dir = tempfile.mkdtemp(prefix="kelvo_prompt_")
        for name in ("rpt_small.lib", "rpt_small.v"):
            shutil.copy(os.path.join(ks.DATA, name), self.dir)
        self.term = ks.Terminal(env={"KELVO_LINE_EDITOR": self.EDITOR}, cwd=self.dir)
        self.term.expect("kelvo> ")
        self.term.type("puts \"editor=[get_app_var line_editor]\"\r")
        self.term.expect("editor=" + self.EDITOR)

    def tearDown(self):
        self.term.close()
        shutil.rmtree(self.dir)
        shutil.rmtree(self.term.home)

    def run_line(self, keys, shows, pause=0.15):
        self.term.mark()
        self.term.type(keys, pause)
        return self.term.expect(shows)

    def test_arrows_edit_the_line_and_recall_history(self):
        t = self.term
        self.run_line("puts abc" + LEFT * 3 + "X" + RIGHT + "Y\r", r"\nXaYbc\n")
        # Up recalls the line (no escape text is inserted); edit it again.
        self.run_line(UP + "\x7f\x7fZ\r", r"\nXaYZ\n")
        self.run_line(UP + UP + HOME + RIGHT * 4 + "s\r", r"\nputss? XaYbc|invalid command name \"putss\"")
        # Ctrl-R finds an older line by a piece of it.
        self.run_line(CTRL_R + "XaYZ\r", r"\nXaYZ\n")
        t.type("exit\r")
        self.assertEqual(t.wait(), 0)
        with open(os.path.join(t.home, ".kelvo_history")) as history:
            lines = history.read()
        self.assertIn("puts abc", lines.replace("puts XaYbc", "puts abc"))

    def test_tab_completes_commands_and_options(self):
        self.run_line("report_uni" + TAB, r"report_units ")
        self.run_line("\r", r"report_units command must be used after a design is loaded")
        self.run_line("redirect -app" + TAB + "-var" + TAB + "v {puts captured}\r", r"kelvo> ")
        self.run_line("puts \"v=[string trim $v]\"\r", r"v=captured\n")

    def test_tab_never_runs_the_command(self):
        self.run_line("proc count_me {args} {incr ::ran; return {x}}\r", r"kelvo> ")
        # A command being typed, its options, a nested command: nothing runs.
        self.run_line("count_me [count_me " + TAB + TAB, r"count_me \[count_me ")
        self.run_line(CTRL_C, r"kelvo> ")
        self.run_line("read_liberty rpt_small.lib\r", r"kelvo> ")
        self.run_line("report_area -hi" + TAB, r"report_area -hierarchy ")
        time.sleep(0.3)
        self.assertNotIn("Report : area", ks.plain(self.term.output))
        self.run_line(CTRL_C + "puts \"ran=[info exists ::ran]\"\r", r"ran=0\n")

    def test_tab_completes_files_and_objects(self):
        self.run_line("read_verilog rpt_sm" + TAB, r"read_verilog rpt_small\.")
        self.run_line("v" + TAB + "\r", r"\n(\{)?sub add_op bbox mid")
        self.run_line("read_liberty rpt_small.lib; link_design top\r", r"kelvo> ")
        self.run_line("get_cells -hi" + TAB + "s_t" + TAB, r"get_cells -hierarchical s_top ")
        self.run_line(CTRL_C + "current_design t" + TAB + "\r", r"\ntop\n")

    def test_ctrl_c_drops_the_line_and_a_command_begun(self):
        self.run_line("puts partial" + CTRL_C, r"kelvo> ")
        self.run_line("puts fresh\r", r"\nfresh\n")
        self.assertNotIn("partialfresh", ks.plain(self.term.output))
        self.run_line("puts {\r", r"> ")
        self.run_line(CTRL_C, r"kelvo> ")
        self.run_line("puts after\r", r"\nafter\n")

    def test_ctrl_d_ends_the_shell(self):
        self.term.type(CTRL_D)
        self.assertEqual(self.term.wait(), 0)


class BuiltinEditor(PromptCases, unittest.TestCase):
    EDITOR = "builtin"


@unittest.skipUnless(tclreadline_installed(), "tclreadline is not installed")
class TclreadlineEditor(PromptCases, unittest.TestCase):
    EDITOR = "tclreadline"


if __name__ == "__main__":
    ks.main()
