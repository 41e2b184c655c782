"""Drives the real kelvo executable for the shell tests: plain runs with
pipes, and sessions on a pseudo-terminal that type keys and read the screen
text back."""

import os
import pty
import re
import select
import signal
import subprocess
import sys
import tempfile
import time
import unittest

# The executable under test: the first argument of the test script.
KELVO = os.path.abspath(sys.argv.pop(1)) if len(sys.argv) > 1 else None
DATA = os.path.normpath(os.path.join(os.path.dirname(__file__), "..", "data"))


def run(args, stdin_text=None, cwd=None, env=None, timeout=60):
    """Runs kelvo with pipes; returns (status, stdout, stderr)."""
    full_env = dict(os.environ)
    full_env.update(env or {})
    proc = subprocess.run([KELVO] + list(args), input=stdin_text, capture_output=True,
                          text=True, cwd=cwd, env=full_env, timeout=timeout)
    return proc.returncode, proc.stdout, proc.stderr


def run_script(text, cwd=None, env=None, args=(), timeout=60):
    """Writes `text` to a script file in `cwd` (a fresh folder by default)
    and runs it; returns (status, stdout, stderr)."""
    folder = cwd or tempfile.mkdtemp(prefix="kelvo_shell_")
    path = os.path.join(folder, "script.tcl")
    with open(path, "w") as script:
        script.write(text)
    return run([path] + list(args), cwd=folder, env=env, timeout=timeout)


ANSI = re.compile(r"\x1b\[[0-9;?]*[A-Za-z]|\x1b[()][A-Za-z0-9]|\x1b[=>]|[\x01\x02\x07]")


def plain(text):
    """Screen text without terminal control sequences."""
    return ANSI.sub("", text).replace("\r", "")


class Terminal:
    """kelvo on a pseudo-terminal: type keys, wait for text to show."""

    def __init__(self, args=(), env=None, cwd=None, home=None):
        self.home = home or tempfile.mkdtemp(prefix="kelvo_home_")
        full_env = dict(os.environ)
        full_env.update({"HOME": self.home, "TERM": "xterm", "COLUMNS": "100", "LINES": "40"})
        full_env.update(env or {})
        self.pid, self.fd = pty.fork()
        if self.pid == 0:
            if cwd:
                os.chdir(cwd)
            os.execve(KELVO, [KELVO] + list(args), full_env)
        self.output = ""
        self.status = None

    def type(self, keys, pause=0.05):
        os.write(self.fd, keys.encode() if isinstance(keys, str) else keys)
        time.sleep(pause)

    def read_some(self, timeout):
        ready, _, _ = select.select([self.fd], [], [], timeout)
        if not ready:
            return False
        try:
            chunk = os.read(self.fd, 65536)
        except OSError:
            return None
        if not chunk:
            return None
        self.output += chunk.decode(errors="replace")
        return True

    def expect(self, pattern, timeout=20):
        """Waits until the plain screen text from the start matches `pattern`
        (a regular expression); returns the match."""
        deadline = time.time() + timeout
        while True:
            found = re.search(pattern, plain(self.output), re.S)
            if found:
                return found
            left = deadline - time.time()
            if left <= 0 or self.read_some(left) is None:
                found = re.search(pattern, plain(self.output), re.S)
                if found:
                    return found
                raise AssertionError("waited for %r; the screen shows:\n%s" %
                                     (pattern, plain(self.output)[-3000:]))

    def mark(self):
        """Forgets the text so far: later expects look at new text only."""
        while self.read_some(0.05):
            pass
        self.output = ""

    def interrupt(self):
        self.type(b"\x03")

    def wait(self, timeout=20):
        """Waits for the shell to end; returns its exit status (negative for
        a signal)."""
        deadline = time.time() + timeout
        while time.time() < deadline:
            self.read_some(0.1)
            done, status = os.waitpid(self.pid, os.WNOHANG)
            if done:
                self.status = os.waitstatus_to_exitcode(status)
                while self.read_some(0.05):
                    pass
                return self.status
        self.kill()
        raise AssertionError("the shell did not end; screen:\n" + plain(self.output)[-3000:])

    def kill(self):
        if self.status is None:
            try:
                os.kill(self.pid, signal.SIGKILL)
                os.waitpid(self.pid, 0)
            except OSError:
                pass
            self.status = -9

    def close(self):
        self.kill()
        try:
            os.close(self.fd)
        except OSError:
            pass


def main():
    unittest.main(verbosity=2)
