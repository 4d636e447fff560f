"""Measures quillet-cli beside cp and its peers, and beside its own ciphers in memory; see compare.sh.

Every program gets the same data, in turns, and every output is flushed to the disk within its time. All
times are seconds, all speeds millions of bytes a second.
"""

import argparse
import collections
import datetime
import json
import os
import pathlib
import shutil
import statistics
import subprocess
import sys
import tempfile

import plot

UNITS = {"K": 1 << 10, "M": 1 << 20, "G": 1 << 30}
ROUNDS = {"1K": 40, "10M": 15, "1G": 5}
DIRECTIONS = ("encrypt", "decrypt")
CIPHER = "the cipher, in memory"
OURS = "quillet-cli"

Peer = collections.namedtuple("Peer", "name encrypt decrypt flushes", defaults=(False,))
Sample = collections.namedtuple("Sample", "seconds memory")


def size_in_bytes(text):
    return int(text[:-1]) * UNITS[text[-1]] if text[-1] in UNITS else int(text)


report = []


def say(line):
    print(line, flush=True)
    report.append(line)


class Bench:
    def __init__(self, programs):
        self.programs = pathlib.Path(programs).resolve()
        self.peak = 0

    def run(self, command, output, flushes):
        """One run from start to flushed output, with nothing left to write from the one before."""
        if os.path.exists(output):
            os.remove(output)
        os.sync()
        timed = subprocess.run([self.programs / "timed_run", "-" if flushes else output, *command],
                               capture_output=True, text=True)
        if timed.returncode != 0:
            sys.exit(f"failed: {' '.join(command)}")
        seconds, kibibytes = timed.stdout.split()
        return Sample(float(seconds), int(kibibytes) / 1024)

    def cipher(self, direction, algorithm, size):
        command = [self.programs / "cipher_speed", direction, algorithm, str(size)]
        return Sample(float(subprocess.run(command, check=True, capture_output=True).stdout), 0)

    def ours(self, direction, algorithm, source, output, prefix=()):
        command = [*prefix, str(self.programs / OURS), direction, "--algorithm", algorithm, "--password-file", "password",
                   "--output", output, source]
        sample = self.run(command, output, True)
        self.peak = max(self.peak, sample.memory)
        return sample

    def peers(self):
        """Those that are installed, without compression; openssl gets the key itself, age a key pair."""
        key = ["-K", "5a" * 32, "-iv", "00" * 16]
        gpg = ["gpg", "--batch", "--quiet", "--homedir", "gnupg", "--pinentry-mode", "loopback", "--passphrase-file",
               "password", "-z", "0", "--cipher-algo", "AES256", "-o"]
        cli = [str(self.programs / OURS)]
        seven = next((name for name in ("7z", "7zz", "7za") if shutil.which(name)), "7z")
        found = [
            Peer(OURS, [*cli, "encrypt", "--password-file", "password", "--output", "sealed", "plain"],
                 [*cli, "decrypt", "--password-file", "password", "--output", "opened", "sealed"], True),
            Peer("cp", ["cp", "plain", "sealed"], ["cp", "sealed", "opened"]),
            Peer("openssl enc", ["openssl", "enc", "-aes-256-cbc", *key, "-in", "plain", "-out", "sealed"],
                 ["openssl", "enc", "-d", "-aes-256-cbc", *key, "-in", "sealed", "-out", "opened"]),
            Peer("gpg", [*gpg, "sealed", "--symmetric", "plain"], [*gpg, "opened", "--decrypt", "sealed"]),
            Peer("7z", [seven, "a", "-t7z", "-mx=0", "-ppassword", "sealed.7z", "plain"],
                 [seven, "x", "-y", "-ppassword", "-oopened.7z", "sealed.7z"]),
        ]
        if shutil.which("age"):
            subprocess.run(["age-keygen", "-o", "age.key"], check=True, capture_output=True)
            public = subprocess.run(["age-keygen", "-y", "age.key"], check=True, capture_output=True, text=True)
            found.insert(3, Peer("age", ["age", "-r", public.stdout.strip(), "-o", "sealed", "plain"],
                                 ["age", "-d", "-i", "age.key", "-o", "opened", "sealed"]))
        return [peer for peer in found if shutil.which(peer.encrypt[0])]


def outputs(peer):
    return ("sealed.7z", "opened.7z/plain") if peer.name == "7z" else ("sealed", "opened")


def make_data(size):
    with open("plain", "wb") as file:
        for start in range(0, size, 1 << 20):
            file.write(os.urandom(min(1 << 20, size - start)))
    os.sync()


def measure_peers(bench, size_text, rounds):
    """Samples by program and direction, each round one of every program."""
    size = size_in_bytes(size_text)
    make_data(size)
    samples = collections.defaultdict(list)
    for _ in range(rounds):
        for direction in DIRECTIONS:
            samples[CIPHER, direction].append(bench.cipher(direction, "AES-256", size))
        for peer in bench.peers_found:
            sealed, opened = outputs(peer)
            samples[peer.name, "encrypt"].append(bench.run(peer.encrypt, sealed, peer.flushes))
            samples[peer.name, "decrypt"].append(bench.run(peer.decrypt, opened, peer.flushes))
            if pathlib.Path(opened).stat().st_size != size:
                sys.exit(f"{peer.name} did not give the data back")
            os.remove(sealed)
            os.remove(opened)
    return samples


def tell_peers(size_text, rounds, samples):
    best = {key: min(sample.seconds for sample in runs) for key, runs in samples.items()}
    say(f"\n### {size_text}, AES-256, {rounds} rounds\n")
    say("| Program | encrypt: median | least | ratio | MB | decrypt: median | least | ratio | MB |")
    say("|---|--:|--:|--:|--:|--:|--:|--:|--:|")
    for name in dict.fromkeys(name for name, _ in samples):
        if name == CIPHER and size_in_bytes(size_text) < UNITS["M"]:
            continue
        cells = []
        for direction in DIRECTIONS:
            runs = samples[name, direction]
            memory = max(sample.memory for sample in runs)
            cells += [f"{statistics.median(sample.seconds for sample in runs):.4g}", f"{best[name, direction]:.4g}",
                      f"{best[name, direction] / best[OURS, direction]:.2f}", f"{memory:.0f}" if memory else ""]
        say(f"| {name} | {' | '.join(cells)} |")
    if best[CIPHER, "decrypt"] > 0.001:  # else the process is what takes its time
        say(f"\nOur encryption takes {best[OURS, 'encrypt'] / best[CIPHER, 'encrypt']:.2f} times the cipher in "
              f"memory, our decryption {best[OURS, 'decrypt'] / best['cp', 'decrypt']:.2f} times cp.")
    return {f"{name}, {direction}": seconds for (name, direction), seconds in best.items()}


def measure_algorithm(bench, name, size, rounds):
    best = collections.defaultdict(lambda: float("inf"))
    for _ in range(rounds):
        for direction, source, output in (("encrypt", "plain", "sealed"), ("decrypt", "sealed", "opened")):
            memory = bench.cipher(direction, name, size).seconds
            whole = bench.ours(direction, name, source, output).seconds
            best[direction, "cipher"] = min(best[direction, "cipher"], memory)
            best[direction, "file"] = min(best[direction, "file"], whole)
    return {" ".join(key): size / seconds / 1e6 for key, seconds in best.items()}


def measure_algorithms(bench, size_text, rounds, chosen):
    listed = subprocess.run([bench.programs / OURS, "algorithms", "--json"], check=True, capture_output=True)
    size = size_in_bytes(size_text)
    make_data(size)
    say(f"\n### Every algorithm, {size_text}, the best of {rounds} rounds, MB/s\n")
    say("| Algorithm | encrypt: cipher | file | ratio | decrypt: cipher | file | ratio |")
    say("|---|--:|--:|--:|--:|--:|--:|")
    rows = {}
    for name in (row["name"] for row in json.loads(listed.stdout) if not chosen or row["name"] in chosen):
        rows[name] = row = measure_algorithm(bench, name, size, rounds)
        cells = []
        for direction in DIRECTIONS:
            cipher, whole = row[f"{direction} cipher"], row[f"{direction} file"]
            cells += [f"{cipher:.0f}", f"{whole:.0f}", f"{whole / cipher:.2f}"]
        say(f"| {name} | {' | '.join(cells)} |")
    slow = {name: row["encrypt file"] / row["encrypt cipher"] for name, row in rows.items()
            if row["encrypt cipher"] < 1000}
    name = min(slow, key=slow.get)
    say(f"\nBelow 1 GB/s the least ratio of encryption is {slow[name]:.2f} ({name}).")
    return rows


def measure_cores(bench, size_text, rounds):
    size = size_in_bytes(size_text)
    make_data(size)
    say(f"\n### Decryption of {size_text} on one core and on all, the best of {rounds} rounds\n")
    say("| Algorithm | one core | all | ratio |\n|---|--:|--:|--:|")
    for name in ("Serpent-256", "DES_EDE3"):
        bench.ours("encrypt", name, "plain", "sealed")
        one, both = (min(bench.ours("decrypt", name, "sealed", "opened", prefix).seconds for _ in range(rounds))
                     for prefix in (["taskset", "-c", "0"], []))
        say(f"| {name} | {one:.2f} | {both:.2f} | {one / both:.2f} |")


def first_line(*command):
    return subprocess.run(command, capture_output=True, text=True).stdout.partition("\n")[0].strip()


def tell_machine(folder):
    processor = next((line.partition(":")[2].strip() for line in open("/proc/cpuinfo") if "model name" in line), "")
    disk = subprocess.run(["df", "--output=fstype", folder], capture_output=True, text=True).stdout.split()[-1]
    peers = [first_line("openssl", "version"), first_line("gpg", "--version"), "age " + first_line("age", "--version")]
    say(f"{os.cpu_count()} cores, {processor}; Linux {os.uname().release}, {disk}; {datetime.date.today()}.")
    say("; ".join(peer for peer in peers if peer.strip() != "age") + ".")


def write_page(numbers, largest):
    docs = pathlib.Path(__file__).resolve().parent.parent / "docs"
    page = docs / "PERFORMANCE.md"
    before, mark, rest = page.read_text().partition("<!-- measured -->\n")
    _, end, after = rest.partition("<!-- end of measured -->")
    picture = "![Seconds of each program, and the speed of each algorithm](performance.svg)\n\n"
    page.write_text(before + mark + picture + "\n".join(report) + "\n\n" + end + after)
    (docs / "performance.svg").write_text(plot.svg(numbers[largest], largest, numbers["algorithms"]))


def main():
    parser = argparse.ArgumentParser(prog="bench/compare.sh")
    parser.add_argument("--programs", required=True, help=argparse.SUPPRESS)
    parser.add_argument("--what", default="peers,cores,algorithms", help="any of peers,cores,algorithms")
    parser.add_argument("--sizes", default="1K,10M,1G", help="of the peers' files")
    parser.add_argument("--cores-size", default="512M")
    parser.add_argument("--algorithms-size", default="256M")
    parser.add_argument("--algorithms", help="only these, with commas between")
    parser.add_argument("--rounds", type=int, help="instead of what fits the size")
    parser.add_argument("--folder", default=".", help="where the files are made: the disk to measure")
    parser.add_argument("--write", action="store_true", help="put all of it into docs/PERFORMANCE.md, with a plot")
    arguments = parser.parse_args()
    bench = Bench(arguments.programs)
    wanted = arguments.what.split(",")
    numbers = {}
    tell_machine(arguments.folder)
    with tempfile.TemporaryDirectory(dir=arguments.folder) as folder:
        os.chdir(folder)
        pathlib.Path("password").write_text("correct horse battery staple")
        os.mkdir("gnupg", 0o700)
        if "peers" in wanted:
            bench.peers_found = bench.peers()
            for size in arguments.sizes.split(","):
                rounds = arguments.rounds or ROUNDS.get(size, 5)
                numbers[size] = tell_peers(size, rounds, measure_peers(bench, size, rounds))
        if "cores" in wanted:
            measure_cores(bench, arguments.cores_size, arguments.rounds or 3)
        if "algorithms" in wanted:
            numbers["algorithms"] = measure_algorithms(bench, arguments.algorithms_size, arguments.rounds or 3,
                                                       arguments.algorithms.split(",") if arguments.algorithms else [])
            say(f"Peak memory of quillet-cli in all of these runs: {bench.peak:.1f} MB.")
        subprocess.run(["gpgconf", "--homedir", "gnupg", "--kill", "all"], stderr=subprocess.DEVNULL)
        os.chdir("/")
    if arguments.write:
        write_page(numbers, arguments.sizes.split(",")[-1])


if __name__ == "__main__":
    main()
