#!/usr/bin/env python3
"""The console on a terminal and with signals: its prompt, its progress, and its end. Argument: the program."""

import fcntl
import os
import pty
import resource
import select
import signal
import struct
import subprocess
import sys
import tempfile
import termios
import time
import unittest
from pathlib import Path

CLI = os.path.abspath(sys.argv.pop(1))
PROMPT = b"assword: "
SECRET = b"hunter2"
ENCRYPT = [CLI, "encrypt", "--password-file", "pw"]


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


class Case(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.addCleanup(os.chdir, os.getcwd())
        os.chdir(scratch.name)
        for name, data in ("pw", SECRET), ("plain", b"0123456789" * 10000), ("large", b""):
            Path(name).write_bytes(data)
        os.truncate("large", 8 << 30)


class Prompt(Case):
    def start(self, *words, in_front=True, stdin=None):
        self.shell, self.terminal = pty.fork()
        if self.shell == 0:
            run_as_job([CLI, *(words or ("decrypt", "pw"))], in_front, stdin)
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

    def answer(self, *answers, code):
        """To each question; then it ends."""
        for answer in answers[:-1]:
            os.write(self.terminal, answer + b"\n")
            self.wait_for(PROMPT)
        os.write(self.terminal, answers[-1] + b"\n")
        self.wait_for(b"ended with %d." % code)
        self.assertNotIn(SECRET, self.shown)

    def has_echo(self):
        return bool(termios.tcgetattr(self.terminal)[3] & termios.ECHO)

    def assert_echo(self, on):
        wait_until = time.monotonic() + 60
        while self.has_echo() != on:
            self.assertLess(time.monotonic(), wait_until, "the echo is " + ("off" if on else "on"))
            time.sleep(0.01)

    def test_asks_and_shows_how_far_it_is(self):
        for line, answers, code, keys_made, shown in (
                ("encrypt plain", 2 * [SECRET], 0, 0, b"Confirm password: "),
                ("decrypt plain.enc", [SECRET], 0, 0, b""),
                ("encrypt --seal --force -q plain", 2 * [SECRET], 0, 0, b""),
                ("encrypt --seal --force plain", 2 * [SECRET], 0, 1, b""),
                ("decrypt -fo opened plain.enc", [SECRET], 0, 1, b""),  # which the search for the algorithm has made
                ("decrypt -o- plain.enc", [SECRET], 0, 0, b"0123456789"),  # which goes to the terminal, too
                ("encrypt --force plain", [SECRET, b"hunter3"], 1, 0, b"do not match")):
            with self.subTest(line):
                self.start(*line.split())
                self.answer(*answers, code=code)
                self.assertEqual(self.shown.count(b"Making the key of the password"), keys_made)
                self.assertIn(shown, self.shown)
        self.assertEqual(Path("plain.dec").read_bytes(), Path("plain").read_bytes())

    def test_output_that_appears_during_the_question_stays(self):
        subprocess.run([*ENCRYPT, "plain"], check=True)
        self.start("decrypt", "plain.enc")
        Path("plain.dec").write_bytes(b"precious")
        self.answer(SECRET, code=1)
        self.assertIn(b"File exists", self.shown)
        self.assertEqual(Path("plain.dec").read_bytes(), b"precious")

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
        self.answer(SECRET, code=3)
        self.assert_echo(True)

    def test_waits_in_the_background(self):
        for in_front in (True, False):
            with self.subTest(in_front=in_front):
                self.start(in_front=in_front)
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
        for end, code in ((b"\x03", 130), (b"\x04", 2), (b"\x1c", -signal.SIGQUIT),
                          (signal.SIGTERM, 130), (signal.SIGHUP, 130)):
            with self.subTest(end):
                self.start()
                os.write(self.terminal, end) if isinstance(end, bytes) else os.kill(self.job, end)
                self.wait_for(b"ended with %d." % code)
                self.assert_echo(True)

    def test_takes_what_is_typed_at_the_terminal_as_it_is(self):
        for stdin in ("/dev/null", "plain"):
            self.start(stdin=stdin)
            self.answer(SECRET, code=3)
        self.start()
        self.answer(b"a\0b", code=1)
        self.assertIn(b"control character", self.shown)


class Interrupt(Case):
    def wait_until_busy(self, process):
        """Until it has worked for a moment; the output has no name by which it could be seen."""
        while process.poll() is None:
            fields = Path(f"/proc/{process.pid}/stat").read_text().rpartition(")")[2].split()
            if int(fields[11]) > 20:  # user time in 1/100 s
                return
            time.sleep(0.01)
        self.fail("it ended on its own")

    def test_leaves_nothing(self):
        for sent, rest, expected in (
                (signal.SIGINT, ["plain"], (130, b"quillet-cli: interrupted in large; 1 file not tried\n")),
                (signal.SIGTERM, ["pw", "plain"], (130, b"quillet-cli: interrupted in large; 2 files not tried\n")),
                (signal.SIGKILL, [], (-signal.SIGKILL, b""))):
            running = subprocess.Popen([*ENCRYPT, "large", *rest], stderr=subprocess.PIPE)
            self.wait_until_busy(running)
            self.assertEqual(resource.prlimit(running.pid, resource.RLIMIT_CORE), (0, 0))
            running.send_signal(sent)
            self.assertEqual((running.wait(60), running.communicate()[1]), expected)
            self.assertEqual(sorted(os.listdir()), ["large", "plain", "pw"])

    def test_ends_the_search_for_the_algorithm(self):
        subprocess.run([*ENCRYPT, "--seal", "-q", "plain"], check=True)
        os.remove("plain")
        running = subprocess.Popen([CLI, "decrypt", "--password-file", "pw", "plain.enc"], stderr=subprocess.PIPE)
        self.wait_until_busy(running)  # with the password's key
        running.send_signal(signal.SIGINT)
        self.assertEqual((running.wait(60), running.communicate()[1]), (130, b"quillet-cli: interrupted\n"))
        self.assertEqual(sorted(os.listdir()), ["large", "plain.enc", "pw"])

    def test_at_standard_input_unless_it_was_ignored(self):
        for sent, expected in ((signal.SIGTERM, (130, b"quillet-cli: interrupted\n")), (signal.SIGHUP, (0, b""))):
            reader = subprocess.Popen([*ENCRYPT, "-"], stdin=subprocess.PIPE, stdout=subprocess.DEVNULL,
                                      stderr=subprocess.PIPE,
                                      preexec_fn=lambda: signal.signal(signal.SIGHUP, signal.SIG_IGN))
            os.write(reader.stdin.fileno(), b"x")
            while struct.unpack("i", fcntl.ioctl(reader.stdin, termios.FIONREAD, bytes(4)))[0]:
                time.sleep(0.01)
            reader.send_signal(sent)
            if sent == signal.SIGTERM:
                reader.wait(60)
            told = reader.communicate(timeout=60)[1]
            self.assertEqual((reader.returncode, told), expected)


if __name__ == "__main__":
    for key in signal.SIGINT, signal.SIGQUIT:  # ignored below a shell that does other work meanwhile
        signal.signal(key, signal.SIG_DFL)
    unittest.main()
