#!/usr/bin/env python3
"""Has other implementations write the same files as the console program, byte for byte, and the program read them.

What the format is stands here a second time, from docs/FILE_FORMAT.md; no code of the program is used. For the
algorithms that data/evidence.txt names, lengths from nothing to beyond two chunks. Arguments: program, folder of the
data, names of algorithms (else all)."""
import functools
import hashlib
import itertools
import os
import pathlib
import subprocess
import sys
import tempfile

import botan2

import mars
import panama

CHUNK, HEADER = 32768, 56
PASSWORD = "Žluťoučký kůň"


def botan(key, iv, block, name, data):
    cipher = botan2.SymmetricCipher(name + ("/CBC/NoPadding" if block else ""), True)
    cipher.set_key(key)
    cipher.start(iv)
    return cipher.finish(data)


@functools.cache
def perl(name, key, iv):
    script = pathlib.Path(__file__).with_name("cryptx.pl").absolute()
    return subprocess.Popen(["/usr/bin/perl", script, name, key.hex(), iv.hex()], stdin=subprocess.PIPE,
                            stdout=subprocess.PIPE, text=True)


def cryptx(key, iv, _block, name, data):
    process = perl(name, key, iv)
    print(data.hex(), file=process.stdin, flush=True)
    return bytes.fromhex(process.stdout.readline())


def mars_cbc(key, iv, _block, _name, data):
    cipher = mars.Mars(key)
    blocks = (data[at:at + 16] for at in range(0, len(data), 16))
    chain = itertools.accumulate(blocks, lambda last, block: cipher.encrypted(xor(block, last)), initial=iv)
    return b"".join(chain)[16:]


def panama_stream(key, iv, _block, _name, data):
    return xor(data, panama.key_stream(key, iv, len(data)))


WRITERS = {"Botan": botan, "CryptX": cryptx, "mars.py": mars_cbc, "panama.py": panama_stream}


def xor(first, second):
    return (int.from_bytes(first, "big") ^ int.from_bytes(second, "big")).to_bytes(len(first), "big")


def key_of(password, length):
    """Up to 64 bytes; no longer key is needed here."""
    name = next(f"sha3_{bits}" for bits, most in ((224, 28), (256, 32), (384, 48), (512, 999)) if length <= most)
    return hashlib.new(name, password).digest()[:length]


def header(number, length):
    known = number.to_bytes(4, "little") + length.to_bytes(8, "little") + b"tessaly-tag"
    check_value = hashlib.sha3_256(known.ljust(256, b"\0")).digest()
    return (b"\2\0" + check_value + bytes(6) + length.to_bytes(8, "little")).ljust(HEADER, b"\0")


def exchange(program, number, name, key_length, block, iv_length, writer, name_there):
    lengths = {0, 1, 7, 8, 9, 15, 16, 17, block, 2 * block, 3 * block + 8, CHUNK - HEADER, CHUNK - HEADER + 1}
    if writer != "mars.py":  # which takes its time
        lengths |= {edge + by for edge in (CHUNK, 2 * CHUNK) for by in (-HEADER - 1, -HEADER, -HEADER + 1, -1, 0, 1)}
    plain = {f"{length}": hashlib.shake_128(name.encode()).digest(length) for length in sorted(lengths)}
    key, iv = hashlib.shake_128(b"key of " + name.encode()).digest(key_length), os.urandom(iv_length)
    secrets = {"key": key.hex().encode(), "iv": iv.hex().encode(), "password": PASSWORD.encode()}
    for file, data in (plain | secrets).items():
        pathlib.Path(file).write_bytes(data)

    def written(data, key, iv):
        inner = header(number, len(data)) + data
        return WRITERS[writer](key, iv, block, name_there, inner + bytes(-len(inner) % max(block, 1))) if data else b""

    def run(command, *words):
        subprocess.run([program, command, "-q", "--algorithm", name, *words], check=True, timeout=120)

    run("encrypt", "--password-file", "password", *plain)
    for file, data in plain.items():
        path = pathlib.Path(file + ".enc")
        by_password = written(data, key_of(PASSWORD.encode(), key_length), bytes(iv_length))
        assert path.read_bytes() == by_password, f"{name}: {writer} writes {file} bytes otherwise"
        path.write_bytes(written(data, key, iv))

    run("decrypt", "--key-file", "key", "--iv-file", "iv", *(file + ".enc" for file in plain))
    for file, data in plain.items():
        assert pathlib.Path(file + ".dec").read_bytes() == data, f"{name}: {writer}'s {file} bytes are read otherwise"
    return len(plain)


def rows(path):
    return [line.split() for line in path.read_text().splitlines() if not line.startswith("#")]


def main():
    program, data = map(pathlib.Path.absolute, map(pathlib.Path, sys.argv[1:3]))
    for name, key, block, answer in rows(data / "vectors" / "mars.txt"):
        cipher = mars.Mars(bytes.fromhex(key))
        assert cipher.encrypted(bytes.fromhex(block)).hex() == answer, f"mars.py: {name}"
    for _, key, iv, answer in rows(data / "vectors" / "panama.txt"):
        assert panama.key_stream(bytes.fromhex(key), bytes.fromhex(iv), len(answer) // 2).hex() == answer, "panama.py"

    catalogue = {row[1]: (int(row[0]), row[1], *map(int, row[2:5])) for row in rows(data / "algorithms.txt")}
    done = files = 0
    for name, _, writer, name_there in rows(data / "evidence.txt"):
        if writer != "-" and name in (sys.argv[3:] or catalogue):
            with tempfile.TemporaryDirectory() as folder:
                os.chdir(folder)
                files += exchange(program, *catalogue[name], writer, name_there)
                os.chdir("/")
            done += 1
    assert done
    print(f"{done} algorithms, {files} files each way")


main()
