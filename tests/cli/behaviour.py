#!/usr/bin/env python3
"""What quillet-cli does on real files, and what it leaves behind. Argument: the program."""

import json
import os
import pty
import resource
import signal
import stat
import subprocess
import sys
import tempfile
import time
import unittest

CLI = os.path.abspath(sys.argv.pop(1))
DATA = os.path.join(os.path.dirname(os.path.abspath(__file__)), "../data")
PASSWORD = "correct horse"


class Behaviour(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.addCleanup(os.chdir, os.getcwd())
        os.chdir(scratch.name)
        self.write("pw", PASSWORD + "\r\nsecond line")
        self.write("plain", os.urandom(100000))

    def write(self, name, data):
        with open(name, "wb") as file:
            file.write(data if isinstance(data, bytes) else data.encode())

    def read(self, name):
        with open(name, "rb") as file:
            return file.read()

    def run_cli(self, *arguments, code=0, stdin=b"", lines=None, **options):
        """What it tells: on standard output, or after a failure on standard error."""
        done = subprocess.run([CLI, *arguments], input=stdin, capture_output=True, timeout=120, start_new_session=True,
                              **options)
        error = done.stderr.decode()
        self.assertEqual(done.returncode, code, error)
        lines = (1 if code else 0) if lines is None else lines
        self.assertRegex(error, r"\A(quillet-cli: [^\n]+\n){%d}\Z" % lines, "no progress without a terminal")
        self.told = error
        return done.stdout.decode(errors="replace") if code == 0 else error

    def encrypt(self, *arguments, **options):
        return self.run_cli("encrypt", "--password-file", "pw", *arguments, **options)

    def decrypt(self, *arguments, **options):
        return self.run_cli("decrypt", "--quiet", "--password-file", "pw", *arguments, **options)

    def assert_files(self, *names):
        self.assertEqual(sorted(os.listdir()), sorted(("pw", "plain") + names))

    def test_lists_the_algorithms(self):
        algorithms = json.loads(self.run_cli("algorithms", "--json"))
        table = self.run_cli("algorithms").splitlines()
        self.assertEqual(table[0].split(), ["id", "name", "key", "block", "IV", "mode"])
        with open(os.path.join(DATA, "algorithms.txt")) as known:
            rows = [line.split()[:5] for line in known if line[0] != "#"]
        modes = ["Stream" if row[3] == "0" else "CBC" for row in rows]
        self.assertEqual([line.split() for line in table[1:]], [[*row, mode] for row, mode in zip(rows, modes)])
        self.assertEqual([[str(value) for value in row.values()] for row in algorithms],
                         [[*row, mode] for row, mode in zip(rows, modes)])
        self.assertEqual(list(algorithms[0]), ["id", "name", "keyBytes", "blockBytes", "ivBytes", "mode"])

    def test_every_algorithm_by_password_and_by_key(self):
        algorithms = json.loads(self.run_cli("algorithms", "--json"))
        for row in algorithms:
            with self.subTest(row["name"]):
                self.write("key", os.urandom(row["keyBytes"]).hex(" "))
                self.write("iv", os.urandom(row["ivBytes"]).hex().upper() + "\n")
                for secret in (["--password-file", "pw"], ["--key-file", "key", "--iv-file", "iv"]):
                    common = ["--algorithm", row["name"].lower(), *secret, "--force", "--output"]
                    self.run_cli("encrypt", *common, "sealed", "plain")
                    self.run_cli("decrypt", *common, "opened", "sealed")
                    self.assertEqual(self.read("opened"), self.read("plain"))
                    self.assertNotIn(self.read("plain")[:64], self.read("sealed"))

    def test_default_names_and_modes(self):
        os.umask(0o022)
        self.run_cli("encrypt", "--password-file", "-", "plain", stdin=PASSWORD.encode())
        self.encrypt("--salt", "--output", "salted", "plain")
        self.decrypt("plain.enc")
        self.assert_files("plain.enc", "plain.dec", "salted")
        self.assertEqual(self.read("plain.dec"), self.read("plain"))
        self.assertNotEqual(self.read("plain.enc"), self.read("salted"))
        self.assertEqual(stat.S_IMODE(os.stat("plain.enc").st_mode), 0o644)
        self.assertEqual(stat.S_IMODE(os.stat("plain.dec").st_mode), 0o600)

    def test_knows_the_extension_of_the_settings(self):
        os.makedirs("config/Tessaly")
        self.write("config/Tessaly/Quillet.conf", "[General]\nEncFileNameExt=secret\n")
        self.encrypt("-o", "new.Secret", "plain")
        self.decrypt("new.Secret", env={"XDG_CONFIG_HOME": os.path.abspath("config")})
        self.decrypt("new.Secret")
        self.assert_files("config", "new", "new.Secret", "new.Secret.dec")

    def test_empty_file_whose_name_is_not_utf8(self):
        name = b"caf\xe9 \xff"
        self.write(name, "")
        self.encrypt(os.fsdecode(name))
        self.decrypt(os.fsdecode(name + b".enc"))
        self.assertEqual((self.read(name + b".enc"), self.read(name + b".dec")), (b"", b""))

    def test_wrong_secret_or_damage_is_3_and_creates_nothing(self):
        self.encrypt("plain")
        sealed = self.read("plain.enc")
        self.write("damaged.enc", b"x" * 16 + sealed[16:])
        self.write("cut.enc", sealed[:-1])
        self.write("short.enc", sealed[:55])
        for arguments, number in ((["damaged.enc"], 4003), (["cut.enc"], 4005), (["short.enc"], 4004),
                                  (["--algorithm", "AES-128", "plain.enc"], 4003)):
            self.assertIn(f"(error: 5/{number})", self.decrypt(*arguments, code=3))
        self.write("pw", "wrong")
        self.decrypt("plain.enc", code=3)
        self.assert_files("plain.enc", "damaged.enc", "cut.enc", "short.enc")

    def test_a_sealed_file_shows_every_change(self):
        self.encrypt("--seal", "plain")
        sealed = self.read("plain.enc")
        self.assertEqual(len(sealed), 100064 + 32 + 2 * 16)
        self.write("changed.enc", sealed[:90000] + b"x" + sealed[90001:])
        self.assertIn("The file is damaged or has been changed (error: 5/4010)", self.decrypt("changed.enc", code=3))
        self.assert_files("plain.enc", "changed.enc")
        self.decrypt("plain.enc")
        self.assertEqual(self.read("plain.dec"), self.read("plain"))

    def test_existing_output(self):
        self.write("out", "precious")
        self.encrypt("--output", "out", "plain", code=1)
        self.assertEqual(self.read("out"), b"precious")
        self.encrypt("--output", "out", "--force", "plain")
        self.assertEqual(len(self.read("out")), 100064)
        self.assert_files("out")

    def test_refused_paths_change_nothing(self):
        os.link("plain", "hard")
        os.symlink("nowhere", "dangling")
        os.mkfifo("fifo")
        os.mkdir("folder")
        files = sorted(os.listdir())
        before = self.read("plain")
        for output in ("plain", "./PLAIN", "hard", "dangling", "fifo", "folder", "/dev/full"):
            with self.subTest(output=output):
                self.encrypt("--force", "--output", output, "plain", code=1)
        for source in ("folder", "fifo", "/dev/zero", "missing", "dangling"):
            with self.subTest(input=source):
                self.encrypt("--output", "out", source, code=1)
        self.assertEqual(self.read("plain"), before)
        self.assertEqual(sorted(os.listdir()), files)

    def test_file_size_limit_leaves_nothing(self):
        limit = lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (50000, 50000))
        error = self.encrypt("plain", code=1, preexec_fn=limit)
        self.assertIn("File too large (error: 1/27)", error)
        self.assert_files()

    def test_finds_the_algorithm(self):
        self.write("key", "5a" * 32)
        self.write("iv", "a5" * 16)
        self.write("short", "5a" * 31)
        key = ["--key-file", "key", "--iv-file", "iv"]
        password = ["--password-file", "pw"]
        fits = "the password fits, the algorithm is Serpent-256, "
        for name, made, opened, verdict in (
                ("plain", password, password, fits + "the length is right; the plain format cannot tell whether the data was changed"),
                ("sealed", ["-s", *password], password, fits + "the file is sealed, whole and unchanged"),
                ("by key", ["-s", *key], key, "key and IV fit, the algorithm is Serpent-256, the file is sealed, whole and unchanged")):
            with self.subTest(name):
                self.run_cli("encrypt", *made, "-a", "serpent-256", "-fo", "out", "plain")
                files = sorted(os.listdir())
                self.assertEqual(self.run_cli("verify", *opened, "out"), f"out: {verdict}\n")
                self.assertEqual(self.run_cli("verify", "-q", *opened, "out"), "")
                self.assertIn(": the file was encrypted with Serpent-256, not with AES-256. The file out could",
                              self.run_cli("decrypt", *opened, "-a", "AES-256", "-fo", "opened", "out", code=3))
                self.assertEqual(sorted(os.listdir()), files)
                self.run_cli("decrypt", *opened, "-fo", "opened", "out", lines=1)
                self.assertEqual(self.told, "quillet-cli: out was encrypted with Serpent-256\n")
                self.assertEqual(self.read("opened"), self.read("plain"))
        self.assertIn("no algorithm takes a key of 31 bytes (short)",
                      self.run_cli("verify", "--key-file", "short", "--iv-file", "iv", "out", code=1))
        self.write("changed", self.read("out")[:-1] + b"x")
        self.run_cli("verify", *key, "changed", code=3)
        self.write("empty", "")
        self.assertIn("empty: the file is empty", self.run_cli("verify", *password, "empty"))

    def test_several_files(self):
        os.mkdir("folder")
        self.write("PLAIN", "")
        names = ["plain", "[a,b]", "-dash", "c.txt"]
        for name in names[1:]:
            self.write(name, name)
        error = self.encrypt("-a", "XTEA", "plain", "folder", "[a,b]", "missing", "c.txt", "--", "-dash", code=1, lines=2)
        self.assertIn("input is a folder: folder", error)
        os.remove("c.txt")
        os.remove("[a,b]")
        self.write("plain.enc", b"x" * 64)
        error = self.decrypt("plain.enc", "[a,b].enc", "c.txt.enc", "./-dash.enc", "missing", code=3, lines=2)
        self.assertRegex(error, r"(?s)missing.*plain\.enc")
        self.assertEqual([self.read(name) for name in ("[a,b]", "c.txt", "-dash.dec")], [b"[a,b]", b"c.txt", b"-dash"])
        os.rename("c.txt.enc", "-.enc")
        self.decrypt("--", "-.enc")
        self.assertEqual(self.read("-"), b"c.txt", "no standard output")
        os.rename("-.enc", "d.ENC")
        self.decrypt("d.ENC")
        for arguments, word in ((["--force", "plain", "./plain"], "that of another input already: ./plain.enc"),
                                (["--force", "plain", "./PLAIN"], "that of another input already: ./PLAIN.enc"),
                                (["--force", "d", "d.enc"], "output is another input: d.enc")):
            self.write("d.enc", "precious")
            self.assertIn(word, self.encrypt(*arguments, code=1, lines=2 if "d" in arguments else 1))
            self.assertEqual(self.read("d.enc"), b"precious")

    def test_thousands_of_files_are_planned_at_once(self):
        names = ["many%d" % i for i in range(3000)]
        for name in names:
            self.write(name, "")
        limit = lambda: resource.setrlimit(resource.RLIMIT_CPU, (3, 3))
        self.run_cli("encrypt", "--password-file", "missing", *names, code=1, preexec_fn=limit)

    def test_streams(self):
        plain = self.read("plain")
        run = lambda *words, stdin: subprocess.run([CLI, *words, "--password-file", "pw", "-q"], input=stdin,
                                                           capture_output=True, timeout=60)
        for options in (["encrypt"], ["encrypt", "--seal"]):
            encrypted = run(*options, "-", stdin=plain).stdout
            self.assertGreater(len(encrypted), len(plain))
            self.assertEqual(run("decrypt", "-", stdin=encrypted).stdout, plain)
        self.assertEqual(run("verify", "-", stdin=encrypted).returncode, 0)
        self.encrypt("plain", "--output", "-")
        for damaged, told in ((encrypted[:-1] + b"x", True), (b"x" + encrypted[1:], False)):
            done = run("decrypt", "-", stdin=damaged)
            self.assertEqual((done.returncode, plain.startswith(done.stdout), done.stdout != b""), (3, True, told))
            self.assertEqual(b"What was written to standard output is incomplete." in done.stderr, told)
        self.assertIn("(standard input)", done.stderr.decode())
        self.write("encrypted", encrypted)
        self.assertEqual(self.decrypt("-o", "-", "encrypted").encode(), plain.decode(errors="replace").encode())
        self.assert_files("encrypted")

        self.assertIn("could not be kept in the folder /nowhere",
                      self.run_cli("encrypt", "--password-file", "pw", "-", code=1, env={"TMPDIR": "/nowhere"}))
        shown, code = self.on_terminal(["encrypt", "-o", "-", "plain"], [])
        self.assertIn("not written to a terminal", shown)
        self.assertEqual(code, 1)

        reader, writer = os.pipe()
        os.close(reader)
        for words in (["algorithms"], ["decrypt", "--password-file", "pw", "-q", "-o", "-", "encrypted"]):
            done = subprocess.run([CLI, *words], stdout=writer, stderr=subprocess.PIPE, timeout=60)
            self.assertEqual((done.returncode, done.stderr), (1, b""), "ends silently")
        os.close(writer)
        for closed in (0, 1):
            done = subprocess.run([CLI, "decrypt", "--password-file", "pw", "-q", "-o", "-", "-" if closed == 0 else "encrypted"],
                                  stderr=subprocess.PIPE, timeout=60, preexec_fn=lambda: os.close(closed))
            self.assertEqual(done.returncode, 1)

        waiting = subprocess.Popen([CLI, "encrypt", "--password-file", "pw", "-o", "out", "-"], stdin=subprocess.PIPE,
                                   stderr=subprocess.PIPE)
        waiting.stdin.write(b"x")
        waiting.stdin.flush()
        time.sleep(0.3)
        waiting.send_signal(signal.SIGTERM)
        self.assertEqual(waiting.wait(60), 130)
        self.assertEqual(waiting.communicate()[1], b"quillet-cli: interrupted\n")

    def test_advice(self):
        for line, word in {
            "encrpyt x": "did you mean encrypt?", "help": "unknown command help; see --help",
            "encrypt --algoritm AES-256 x": "unknown option --algoritm; did you mean --algorithm?",
            "encrypt -a Serpent x": "did you mean Serpent-128, Serpent-192 or Serpent-256?",
            "encrypt -a aes265 x": "did you mean AES-256?", "encrypt -a ROT13 x": '"ROT13"; see quillet-cli algorithms',
            "encrypt -fz x": "unknown option -z", "encrypt --force=7 x": "--force takes no value",
            "encrypt -o": "-o needs a value: FILE", "encrypt -o --force x": "-o needs a value",
            "encrypt -ox -o y z": "-o is given twice", "algorithms x": "unexpected argument x", "": "no command",
            "encrypt": "no file", "encrypt -o z x y": "--output z names one file, and there are 2",
            "decrypt - x": "cannot stand among other files", "encrypt --password-file - -": "standard input is the file",
            "encrypt - --key-file - --iv-file i -o o": "--key-file -: standard input is the file already",
            "verify --key-file k --iv-file - -": "--iv-file -: standard input is the file already",
            "verify --iv-file - --key-file - x": "--iv-file -: standard input is the key file already",
            "encrypt --iv-file k x": "--iv-file needs --key-file", "decrypt --salt x": "unknown option --salt",
            "encrypt --seal --salt x": "--salt cannot go with --seal", "encrypt plain": "no password",
            "encrypt --key-file k --iv-file i --password-file p x": "--password-file cannot go with --key-file",
        }.items():
            with self.subTest(line):
                self.assertIn(word, self.run_cli(*line.split(), code=2))
        for arguments in (["-h"], ["encrypt", "--help"], ["verify", "-qh"]):
            shown = self.run_cli(*arguments)
            self.assertIn("Usage: quillet-cli", shown)
            self.assertLessEqual(max(map(len, shown.splitlines())), 80)
        self.assertRegex(self.run_cli("-V"), r"^quillet-cli \d")

    def test_unusable_secrets(self):
        self.write("key", "00" * 32)
        self.write("iv", "00" * 15)
        self.run_cli("encrypt", "--output", "", "--password-file", "pw", "plain", code=2)
        self.assertIn("no IV", self.run_cli("encrypt", "--key-file", "key", "plain", code=1))
        self.assertIn("has 15 bytes", self.run_cli("encrypt", "--key-file", "key", "--iv-file", "iv", "plain", code=1))
        self.assertIn("the IV in iv has 15 bytes, the algorithm takes 16",
                      self.run_cli("encrypt", "--key-file", "key", "--iv-file", "iv", "plain", code=1))
        self.assertIn("the key file pw is not hex", self.run_cli("encrypt", "--key-file", "pw", "--iv-file", "iv", "plain", code=1))
        self.assertIn("cannot read the key file /", self.run_cli("encrypt", "--key-file", "/", "--iv-file", "iv", "plain", code=1))
        self.assertIn("cannot read the password file /", self.run_cli("encrypt", "--password-file", "/", "plain", code=1))
        for password, word in (("", "empty"), ("zero\0byte", "control character"), ("a\rb", "line break"), ("\t", "tab")):
            self.write("pw", password)
            self.assertIn("password file pw: the password ".lower(), self.encrypt("plain", code=1).lower())
            self.assertIn(word, self.encrypt("plain", code=1))
        self.write("pw", "x" * (1 << 20) + "x")
        self.assertIn("cannot read the password file pw", self.encrypt("plain", code=1))
        self.assert_files("key", "iv")
        self.write("pw", "x" * (1 << 20) + "\n")
        self.encrypt("plain")

    def test_reads_what_the_window_saved(self):
        self.write("key", "0011" * 16)
        self.write("iv", "22" * 16)
        self.write("saved", "Quillet key and initialization vector\r\nAlgorithm: AES-256\r\n"
                            "Initialization vector (IV): %s\r\nKey: %s\r\n" % ("22222222 " * 4, "00110011 " * 8))
        self.run_cli("encrypt", "--key-file", "saved", "--output", "e", "plain")
        for secret in (["key", "--iv-file", "iv"], ["saved", "--iv-file", "saved"], ["key", "--iv-file", "saved"]):
            self.run_cli("decrypt", "--key-file", *secret, "--force", "--output", "d", "e", lines=1)
            self.assertEqual(self.read("d"), self.read("plain"))

    def test_messages_show_names_as_they_are(self):
        for name, shown in ((b"a\nb", r"a\nb"), (b"\x1b[2J\xff", r"\x1B[2J\xFF"), ("\x9b\u202egnp.exe".encode(),
                             r"\xC2\x9B\xE2\x80\xAEgnp.exe"), ("ä ☂".encode(), "ä ☂")):
            self.assertIn(shown + "\n", self.encrypt(os.fsdecode(name), code=1))
            self.write(name, "")
            self.assertTrue(self.run_cli("verify", "--password-file", "pw", os.fsdecode(name)).startswith(shown + ": "))

    def test_closed_output_is_an_error(self):
        with open("/dev/full", "wb") as full:
            self.assertEqual(subprocess.run([CLI, "algorithms"], stdout=full, stderr=subprocess.DEVNULL).returncode, 1)
            done = subprocess.run([CLI, "encrypt", "--password-file", "pw", "-qo-", "plain"], stdout=full, stderr=subprocess.PIPE)
            self.assertEqual((done.returncode, done.stderr),
                             (1, b"quillet-cli: No space left on device (error: 1/28). The output file (standard output) could "
                                 b"not be written.\n"))

    def on_terminal(self, arguments, answers):
        """Runs on a terminal of its own, giving each answer at its prompt; what was shown, and the exit code."""
        child, terminal = pty.fork()
        if child == 0:
            os.execv(CLI, [CLI, *arguments])
        shown = b""
        for prompt, answer in answers:
            while not shown.endswith(prompt):
                shown += os.read(terminal, 1024)
            os.write(terminal, answer() if callable(answer) else answer)
        try:
            while piece := os.read(terminal, 1024):
                shown += piece
        except OSError:
            pass
        return shown.decode(errors="replace"), os.waitstatus_to_exitcode(os.waitpid(child, 0)[1])

    def test_asks_on_a_terminal_without_echo(self):
        secret = b"hunter2\n"
        shown, code = self.on_terminal(["encrypt", "plain"], [(b"Password: ", secret), (b"Confirm password: ", secret)])
        self.assertEqual(code, 0, shown)
        shown_again, code = self.on_terminal(["decrypt", "plain.enc"], [(b"Password: ", secret)])
        self.assertEqual(code, 0, shown_again)
        self.assertEqual(self.read("plain.dec"), self.read("plain"))
        self.assertNotIn("hunter2", shown + shown_again)
        self.assertNotIn("Making the key", shown + shown_again)
        for quiet in ([], ["-q"]):
            shown, code = self.on_terminal(["encrypt", "--seal", "--force", *quiet, "plain"],
                                           [(b"Password: ", secret), (b"Confirm password: ", secret)])
            self.assertEqual("Making the key of the password" in shown, not quiet)
            self.assertEqual(code, 0, shown)
        shown, code = self.on_terminal(["decrypt", "-o-", "plain.enc"], [(b"Password: ", secret)])
        self.assertNotIn("Making the key", shown, "the output goes there")
        shown, code = self.on_terminal(["decrypt", "-fo", "opened", "plain.enc"], [(b"Password: ", secret)])
        self.assertEqual((shown.count("Making the key"), code), (1, 0), "the search has made it")
        shown, code = self.on_terminal(["encrypt", "--force", "plain"],
                                       [(b"Password: ", secret), (b"Confirm password: ", b"hunter3\n")])
        self.assertIn("do not match", shown)
        self.assertEqual(code, 1)
        shown, code = self.on_terminal(["encrypt", "--force", "plain"], [(b"Password: ", b"\x03")])
        self.assertEqual(code, 130, shown)

    def test_output_that_appears_during_the_question_stays(self):
        self.encrypt("plain")

        def answer():
            self.write("plain.dec", "precious")
            return PASSWORD.encode() + b"\n"

        shown, code = self.on_terminal(["decrypt", "plain.enc"], [(b"Password: ", answer)])
        self.assertIn("File exists", shown)
        self.assertEqual((code, self.read("plain.dec")), (1, b"precious"))

    def wait_until_busy(self, process):
        """Until it has worked for a moment; the output has no name by which it could be seen."""
        while process.poll() is None:
            with open(f"/proc/{process.pid}/stat") as stat_file:
                if int(stat_file.read().rpartition(")")[2].split()[11]) > 20:  # user time in 1/100 s
                    return
            time.sleep(0.01)
        self.fail("it ended on its own")

    def test_no_password_in_memory_while_it_works_and_no_core_dump(self):
        with open("large", "wb") as file:
            file.truncate(8 << 30)
        running = subprocess.Popen([CLI, "encrypt", "--password-file", "pw", "large"], stderr=subprocess.DEVNULL)
        self.addCleanup(running.wait)
        self.addCleanup(running.kill)
        self.wait_until_busy(running)
        with open(f"/proc/{running.pid}/limits") as limits:
            self.assertRegex(limits.read(), r"Max core file size +0 +0 ")
        try:
            memory = open(f"/proc/{running.pid}/mem", "rb", 0)
        except PermissionError:
            self.skipTest("only root may look into a process without core dumps")
        with memory, open(f"/proc/{running.pid}/maps") as maps:
            for line in maps:
                area, rights = line.split()[:2]
                if not rights.startswith("rw"):
                    continue
                begin, end = (int(number, 16) for number in area.split("-"))
                memory.seek(begin)
                self.assertNotIn(PASSWORD.encode(), memory.read(end - begin), line)

    def test_interrupt_leaves_nothing(self):
        with open("large", "wb") as file:
            file.truncate(8 << 30)
        for sent, code, rest, told in (
                (signal.SIGINT, 130, ["plain"], b"quillet-cli: interrupted in large; 1 file not tried\n"),
                (signal.SIGTERM, 130, ["pw", "plain"], b"quillet-cli: interrupted in large; 2 files not tried\n"),
                (signal.SIGKILL, -9, [], b"")):
            running = subprocess.Popen([CLI, "encrypt", "--password-file", "pw", "large", *rest], stderr=subprocess.PIPE)
            self.wait_until_busy(running)
            running.send_signal(sent)
            self.assertEqual((running.communicate(timeout=60)[1], running.returncode), (told, code))
            self.assert_files("large")
        nohup = subprocess.Popen([CLI, "encrypt", "--password-file", "pw", "plain"], stdin=subprocess.DEVNULL,
                                 preexec_fn=lambda: signal.signal(signal.SIGHUP, signal.SIG_IGN))
        nohup.send_signal(signal.SIGHUP)
        self.assertEqual(nohup.wait(60), 0, "what was ignored stays ignored")

    def test_the_secret_that_comes_from_standard_input_is_no_output(self):
        with open("pw", "rb") as stdin:
            done = subprocess.run([CLI, "encrypt", "--force", "--password-file", "-", "--output", "pw", "plain"],
                                  stdin=stdin, capture_output=True, timeout=60)
        self.assertEqual(done.returncode, 1)
        self.assertTrue(self.read("pw").startswith(PASSWORD.encode()))

    def test_force_keeps_the_former_output_until_the_new_one_is_whole(self):
        self.encrypt("plain")
        self.write("empty.enc", "short")
        self.assertIn("folder not found: nowhere", self.encrypt("--output", "nowhere/out", "plain", code=1))
        for name, arguments in {
            "wrong password": ["decrypt", "--password-file", "wrong", "plain.enc"],
            "no encrypted file": ["decrypt", "--password-file", "pw", "empty.enc"],
            "hides its size": ["encrypt", "--password-file", "pw", "/proc/self/status"],
            "output is the password file": ["encrypt", "--password-file", "out", "plain"],
            "output is the key file": ["encrypt", "--key-file", "out", "--iv-file", "wrong", "plain"],
            "output is the IV file": ["encrypt", "--key-file", "wrong", "--iv-file", "out", "plain"],
            "cannot be opened": ["decrypt", "--password-file", "pw", "/proc/sys/vm/compact_memory"],
        }.items():
            with self.subTest(name):
                self.write("wrong", "incorrect horse")
                self.write("out", "precious")
                command, *rest = arguments
                error = self.run_cli(command, "--force", "--output", "out", *rest,
                                     code=3 if command == "decrypt" and name[0] != "c" else 1)
                self.assertEqual("could not be opened" in error, name == "cannot be opened" or name[0] == "h")
                self.assertEqual(self.read("out"), b"precious")
                self.assertRegex(error, r"/proc/s|plain\.enc|empty\.enc|out", "the file is named")


if __name__ == "__main__":
    unittest.main()
