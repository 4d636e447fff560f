#!/usr/bin/env python3
"""Has other implementations read what the console program writes, and the program read what they write.

What the format is stands here a second time, from docs/FILE_FORMAT.md; no code of the program is used. For the
algorithms that data/evidence.txt names, lengths from nothing to beyond two chunks. Arguments: program, folder of the
data, names of algorithms (else all)."""
import functools
import hashlib
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


class Botan:
    def __init__(self, key, iv, block, name):
        self.arguments = key, iv, name + ("/CBC/NoPadding" if block else "")

    def run(self, data, encrypts):
        key, iv, name = self.arguments
        cipher = botan2.SymmetricCipher(name, encrypts)
        cipher.set_key(key)
        cipher.start(iv)
        return cipher.finish(data)


class CryptX:
    def __init__(self, key, iv, _block, name):
        script = pathlib.Path(__file__).with_name("cryptx.pl").absolute()
        self.perl = subprocess.Popen(["/usr/bin/perl", script, name, key.hex(), iv.hex()], stdin=subprocess.PIPE,
                                     stdout=subprocess.PIPE, text=True)

    def run(self, data, encrypts):
        print("encrypt" if encrypts else "decrypt", data.hex(), file=self.perl.stdin, flush=True)
        return bytes.fromhex(self.perl.stdout.readline())


class Mars:
    def __init__(self, key, iv, _block, _name):
        self.cipher, self.iv = mars.Mars(key), iv

    def run(self, data, encrypts):
        result, last = [], self.iv
        for at in range(0, len(data), 16):
            block = data[at:at + 16]
            if encrypts:
                last = self.cipher.encrypted(xor(block, last))
                result.append(last)
            else:
                result.append(xor(self.cipher.decrypted(block), last))
                last = block
        return b"".join(result)


class Panama:
    def __init__(self, key, iv, _block, _name):
        self.key_stream = functools.partial(panama.key_stream, key, iv)

    def run(self, data, _encrypts):
        return xor(data, self.key_stream(len(data)))


READERS = {"Botan": Botan, "CryptX": CryptX, "mars.py": Mars, "panama.py": Panama}


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


def written(number, block, cipher, data):
    plain = header(number, len(data)) + data if data else b""
    return cipher.run(plain + bytes(-len(plain) % max(block, 1)), True) if data else b""


def read(number, block, cipher, file):
    """The data; the filler must be there, as the program was told to salt."""
    if not file:
        return b""
    plain = cipher.run(file, False)
    length = int.from_bytes(plain[40:48], "little")
    assert plain[:48] + bytes(6) + plain[54:56] == header(number, length), f"{number}: header"
    assert plain[48:54] != bytes(6), f"{number}: salt"
    padding = plain[HEADER + length:]
    assert len(padding) < max(block, 1) and not any(padding), f"{number}: padding"
    return plain[HEADER:HEADER + length]


def exchange(program, number, name, key_length, block, iv_length, reader, name_there):
    lengths = {0, 1, 7, 8, 9, 15, 16, 17, block, 2 * block, 3 * block + 8, CHUNK - HEADER, CHUNK - HEADER + 1}
    if reader != "mars.py":  # which takes its time
        lengths |= {edge + by for edge in (CHUNK, 2 * CHUNK) for by in (-HEADER - 1, -HEADER, -HEADER + 1, -1, 0, 1)}
    plain = {f"{length}": hashlib.shake_128(name.encode()).digest(length) for length in sorted(lengths)}
    key, iv = hashlib.shake_128(b"key of " + name.encode()).digest(key_length), os.urandom(iv_length)
    files = {"key": key.hex(), "iv": iv.hex(), "password": PASSWORD}
    for file, data in {**plain, **{file: text.encode() for file, text in files.items()}}.items():
        pathlib.Path(file).write_bytes(data)
    call = functools.partial(subprocess.run, check=True, timeout=120)

    call([program, "encrypt", "-q", "--salt", "--algorithm", name, "--password-file", "password", *plain])
    cipher = READERS[reader](key_of(PASSWORD.encode(), key_length), bytes(iv_length), block, name_there)
    for file, data in plain.items():
        path = pathlib.Path(file + ".enc")
        assert read(number, block, cipher, path.read_bytes()) == data, f"{name}: {reader} reads {file} bytes otherwise"
        path.unlink()

    cipher = READERS[reader](key, iv, block, name_there)
    for file, data in plain.items():
        pathlib.Path(file + ".enc").write_bytes(written(number, block, cipher, data))
    call([program, "decrypt", "-q", "--algorithm", name, "--key-file", "key", "--iv-file", "iv",
          *(file + ".enc" for file in plain)])
    for file, data in plain.items():
        assert pathlib.Path(file + ".dec").read_bytes() == data, f"{name}: {reader}'s {file} bytes are read otherwise"
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

    catalogue = {name: (int(number), name, *map(int, sizes[:3]))
                 for number, name, *sizes in rows(data / "algorithms.txt")}
    done = files = 0
    for name, _, reader, name_there in rows(data / "evidence.txt"):
        if reader != "-" and name in (sys.argv[3:] or catalogue):
            with tempfile.TemporaryDirectory() as folder:
                os.chdir(folder)
                files += exchange(program, *catalogue[name], reader, name_there)
                os.chdir("/")
            done += 1
    assert done
    print(f"{done} algorithms, {files} files each way")


main()
