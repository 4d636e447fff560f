#!/usr/bin/env python3
"""The console on a terminal and with signals: its prompt, its progress, and its end. Argument: the program."""

import fcntl
import os
import pty
import re
import resource
import select
import signal
import struct
import subprocess
import sys
import tempfile
import termios
import time
import tty
import unittest
from pathlib import Path

CLI = os.path.abspath(sys.argv.pop(1))
PROMPT = b"assword: "
SECRET = b"hunter2"
ENCRYPT = [CLI, "encrypt", "--password-file", "pw"]
ROWS = [line.split(" | ") for line in Path(__file__).parent.joinpath("../data/prompts.txt").read_text().splitlines()
        if line[0] != "#"]


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
    def start(self, *words, in_front=True, stdin=None, is_raw=False):
        self.shell, self.terminal = pty.fork()
        if self.shell == 0:
            if is_raw:
                tty.setraw(0)
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
            self.send(answer + b"\n")
            self.wait_for(PROMPT)
        self.send(answers[-1] + b"\n")
        self.wait_for(b"ended with %d." % code)
        self.assertNotIn(SECRET, self.shown)

    def send(self, sent):
        """Keys, or a signal."""
        os.write(self.terminal, sent) if isinstance(sent, bytes) else os.kill(self.job, sent)

    def has_echo(self):
        return bool(termios.tcgetattr(self.terminal)[3] & termios.ECHO)

    def assert_echo(self, on):
        wait_until = time.monotonic() + 60
        while self.has_echo() != on:
            self.assertLess(time.monotonic(), wait_until, "the echo is " + ("off" if on else "on"))
            time.sleep(0.01)

    def test_asks_and_shows_how_far_it_is(self):
        for line, answers, code, keys_made, shown in ROWS:
            with self.subTest(line):
                self.start(*line.split())
                self.answer(*answers.encode().split(), code=int(code))
                self.assertEqual(self.shown.count(b"Making the key of the password"), int(keys_made))
                self.assertIn(shown.encode(), self.shown)
                self.assertNotRegex(self.shown, rb"[a-z ]quillet-cli: ", "a message behind the progress")
        self.assertEqual(Path("plain.dec").read_bytes(), Path("plain").read_bytes())

    def test_output_that_appears_during_the_question_stays(self):
        subprocess.run([*ENCRYPT, "plain"], check=True)
        self.start("decrypt", "plain.enc")
        Path("plain.dec").write_bytes(b"precious")
        self.answer(SECRET, code=1)
        self.assertIn(b"File exists", self.shown)
        self.assertEqual(Path("plain.dec").read_bytes(), b"precious")

    def test_is_hidden_again_after_a_stop(self):
        """In the background it stops, until it comes in front."""
        keys = SECRET + b"\x1a"
        for stop, in_background in ((keys, False), (signal.SIGSTOP, False), (keys, True), (None, True)):
            with self.subTest(stop, in_background=in_background):
                self.start(in_front=stop is not None)
                if stop:
                    self.send(stop)
                    self.wait_for(b"stopped.")
                    self.assert_echo(stop != signal.SIGSTOP)
                if in_background:
                    if stop:
                        os.kill(self.shell, signal.SIGUSR2)
                    self.wait_for(b"stopped.")
                os.kill(self.shell, signal.SIGUSR1)
                self.wait_for(PROMPT)
                self.assert_echo(False)
                self.send(SECRET + b"\r")
                self.wait_for(b"ended with 3.")
                self.assertNotIn(SECRET, self.shown)
                self.assert_echo(True)
                settings = termios.tcgetattr(self.terminal)
                self.assertTrue(settings[0] & termios.ICRNL and settings[3] & termios.ICANON)

    def test_forgets_what_was_typed_before_a_stop(self):
        subprocess.run([*ENCRYPT, "-q", "plain"], check=True)
        self.start("decrypt", "plain.enc")
        self.send(b"begun\x04")  # which hands it over
        time.sleep(0.2)  # until it has been read; else the stop takes it away
        self.send(b"\x1a")
        self.wait_for(b"stopped.")
        os.kill(self.shell, signal.SIGUSR1)
        self.wait_for(PROMPT)
        self.answer(SECRET, code=0)

    def test_takes_keys_at_a_terminal_that_was_left_raw(self):
        subprocess.run([*ENCRYPT, "-q", "plain"], check=True)
        for keys, code in ((b"x\x7f" + SECRET + b"\r", 0), (b"\x03", 130)):
            with self.subTest(keys):
                self.start("decrypt", "--force", "plain.enc", is_raw=True)
                self.send(keys)
                self.wait_for(b"ended with %d." % code)

    def test_ends_with_the_echo_back(self):
        for end, code in ((b"\x03", 130), (b"\x04", 2), (b"\x1c", -signal.SIGQUIT),
                          (signal.SIGTERM, 130), (signal.SIGHUP, 130)):
            with self.subTest(end):
                self.start()
                self.send(end)
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
    def test_leaves_nothing(self):
        subprocess.run([*ENCRYPT, "--seal", "-q", "-o", "sealed", "plain"], check=True)
        there = sorted(os.listdir())
        for sent, words, code, told in (
                (signal.SIGINT, "encrypt large plain", 130, "interrupted in large; 1 file not tried"),
                (signal.SIGTERM, "encrypt large pw plain", 130, "interrupted in large; 2 files not tried"),
                (signal.SIGINT, "decrypt sealed", 130, "interrupted"),  # while it searches for the algorithm
                (signal.SIGKILL, "encrypt large", -signal.SIGKILL, "")):
            before = resource.getrusage(resource.RUSAGE_CHILDREN).ru_utime
            running = subprocess.Popen([CLI, *words.split(), "--password-file", "pw"], stderr=subprocess.PIPE, text=True)
            # For a moment; the output has no name by which it could be seen.
            while int(Path(f"/proc/{running.pid}/stat").read_text().rpartition(")")[2].split()[11]) <= 20:  # 1/100 s
                self.assertIsNone(running.poll(), "it ended on its own")
                time.sleep(0.01)
            self.assertEqual(resource.prlimit(running.pid, resource.RLIMIT_CORE), (0, 0))
            running.send_signal(sent)
            self.assertEqual(running.communicate(timeout=60)[1], told and f"quillet-cli: {told}\n")
            self.assertEqual(running.returncode, code)
            self.assertLess(resource.getrusage(resource.RUSAGE_CHILDREN).ru_utime, before + 4, "it goes on to the end")
            self.assertEqual(sorted(os.listdir()), there)

    def test_while_a_password_file_waits_for_its_writer(self):
        os.mkfifo("fifo")
        reader = subprocess.Popen([CLI, "encrypt", "--password-file", "fifo", "plain"], stderr=subprocess.PIPE)
        self.addCleanup(reader.communicate)
        self.addCleanup(reader.kill)
        status = Path(f"/proc/{reader.pid}/status")
        while not int(re.search(r"SigCgt:\s*(\w+)", status.read_text())[1], 16) & 1 << signal.SIGTERM - 1:
            time.sleep(0.01)
        wait_until = time.monotonic() + 60
        while reader.poll() is None and time.monotonic() < wait_until:
            reader.terminate()  # again: one that comes just before the file is opened ends no wait
            time.sleep(0.05)
        self.assertEqual(reader.returncode, 130)
        self.assertEqual(reader.stderr.read(), b"quillet-cli: interrupted\n")

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
