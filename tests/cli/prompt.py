#!/usr/bin/env python3
"""The console's password prompt on a terminal, with signals in between. Argument: the program."""

import os
import pty
import select
import signal
import sys
import tempfile
import termios
import time
import unittest

CLI = os.path.abspath(sys.argv.pop(1))
PROMPT = b"Password: "
SECRET = b"hunter2"


def run_as_job(program, in_front, stdin):
    """What a shell does with a command: a process group of its own, in front or not; tells how it fares.
    In front itself, it takes the keys one by one. SIGUSR1 and SIGUSR2 are its commands fg and bg."""
    signal.signal(signal.SIGTTOU, signal.SIG_IGN)
    settings = termios.tcgetattr(0)

    def take_front():
        os.tcsetpgrp(0, os.getpid())
        keys = termios.tcgetattr(0)
        keys[0] &= ~termios.ICRNL
        keys[3] &= ~termios.ICANON
        termios.tcsetattr(0, termios.TCSANOW, keys)

    def continue_job(number, _):
        if number == signal.SIGUSR1:
            termios.tcsetattr(0, termios.TCSANOW, settings)
            os.tcsetpgrp(0, job)
        os.kill(job, signal.SIGCONT)

    if not in_front:
        take_front()
    job = os.fork()
    if job == 0:
        os.setpgid(0, 0)
        if in_front:
            os.tcsetpgrp(0, os.getpid())
        signal.signal(signal.SIGTTOU, signal.SIG_DFL)
        if stdin:
            os.dup2(os.open(stdin, os.O_RDONLY), 0)
        os.execv(program[0], program)
    for number in (signal.SIGUSR1, signal.SIGUSR2):
        signal.signal(number, continue_job)
    os.write(1, b"job %d.\n" % job)
    while os.WIFSTOPPED(status := os.waitpid(job, os.WUNTRACED)[1]):
        take_front()
        os.write(1, b"stopped.\n")
    os.write(1, b"ended with %d.\n" % os.waitstatus_to_exitcode(status))


class Prompt(unittest.TestCase):
    def start(self, in_front=True, stdin=None):
        self.shell, self.terminal = pty.fork()
        if self.shell == 0:
            run_as_job([CLI, "decrypt", sys.argv[0]], in_front, stdin)
            os._exit(0)
        self.addCleanup(os.waitpid, self.shell, 0)
        self.addCleanup(os.close, self.terminal)
        self.unread = self.shown = b""
        self.wait_for(b"job ")
        self.job = int(self.wait_for(b"."))
        if in_front:
            self.wait_for(PROMPT)
            self.assertFalse(self.has_echo(), "off before the prompt is shown")

    def wait_for(self, text):
        """Reads until the text comes; gives what came before it."""
        while text not in self.unread:
            self.assertTrue(select.select([self.terminal], [], [], 120)[0], self.unread)
            self.unread += os.read(self.terminal, 1024)
        before, _, self.unread = self.unread.partition(text)
        self.shown += before + text
        return before

    def has_echo(self):
        return bool(termios.tcgetattr(self.terminal)[3] & termios.ECHO)

    def assert_echo(self, on):
        wait_until = time.monotonic() + 60
        while self.has_echo() != on:
            self.assertLess(time.monotonic(), wait_until, "the echo is " + ("off" if on else "on"))
            time.sleep(0.01)

    def test_is_hidden_again_after_a_stop(self):
        self.start()
        for stop, gives_echo_back in ((lambda: os.write(self.terminal, SECRET + b"\x1a"), True),
                                      (lambda: os.kill(self.job, signal.SIGSTOP), False)):
            stop()
            self.wait_for(b"stopped.")
            self.assert_echo(gives_echo_back)
            os.kill(self.shell, signal.SIGUSR1)
            self.wait_for(PROMPT)
            self.assert_echo(False)
        os.write(self.terminal, SECRET + b"\n")
        self.wait_for(b"ended with 3.")
        self.assert_echo(True)
        self.assertNotIn(SECRET, self.shown)

    def test_waits_in_the_background(self):
        for in_front in (True, False):
            with self.subTest(in_front=in_front):
                self.start(in_front)
                if in_front:
                    os.write(self.terminal, b"\x1a")
                    self.wait_for(b"stopped.")
                    os.kill(self.shell, signal.SIGUSR2)
                self.wait_for(b"stopped.")
                os.kill(self.shell, signal.SIGUSR1)
                self.wait_for(PROMPT)
                self.assert_echo(False)
                os.write(self.terminal, SECRET + b"\r")
                self.wait_for(b"ended with 3.")
                self.assert_echo(True)
                settings = termios.tcgetattr(self.terminal)
                self.assertTrue(settings[0] & termios.ICRNL and settings[3] & termios.ICANON)

    def test_ends_with_the_echo_back(self):
        for end, code in ((b"\x03", 130), (b"\x1c", -signal.SIGQUIT), (signal.SIGTERM, 130), (signal.SIGHUP, 130)):
            with self.subTest(end):
                self.start()
                os.write(self.terminal, end) if isinstance(end, bytes) else os.kill(self.job, end)
                self.wait_for(b"ended with %d." % code)
                self.assert_echo(True)

    def test_asks_at_the_terminal_when_standard_input_is_something_else(self):
        for stdin in ("/dev/null", sys.argv[0]):
            self.start(stdin=stdin)
            os.write(self.terminal, SECRET + b"\n")
            self.wait_for(b"ended with 3.")
            self.assertNotIn(SECRET, self.shown)

    def test_takes_every_character_for_what_it_is(self):
        self.start()
        os.write(self.terminal, b"a\0b\n")
        self.wait_for(b"control character")
        self.wait_for(b"ended with 1.")


if __name__ == "__main__":
    unittest.main()
