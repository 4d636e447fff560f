"""PANAMA after J. Daemen and C. Clapp, Fast Hashing and Stream Encryption with PANAMA, FSE 1998.

It shares no code with the program. The hash function runs the same pushes and pulls as the stream cipher, and digests
of the reference implementation, as Crypto++'s test data has them, are checked whenever this is loaded."""
import struct

ROTATIONS = [i * (i + 1) // 2 % 32 for i in range(17)]


class Panama:
    def __init__(self):
        self.state, self.buffer = [0] * 17, [[0] * 8 for _ in range(32)]

    def step(self, pushed=None):
        """Pushes eight words, or pulls and returns eight."""
        a, b = self.state, self.buffer
        pulled, fed = a[9:], pushed or a[1:9]
        x = [a[i] ^ (a[(i + 1) % 17] | ~a[(i + 2) % 17] & 0xFFFFFFFF) for i in range(17)]  # gamma
        x = [(v << r | v >> (32 - r)) & 0xFFFFFFFF for v, r in ((x[7 * i % 17], ROTATIONS[i]) for i in range(17))]  # pi
        x = [x[i] ^ x[(i + 1) % 17] ^ x[(i + 4) % 17] for i in range(17)]  # theta
        self.state = [v ^ w for v, w in zip(x, [1] + (pushed or b[4]) + b[16])]  # sigma
        last = b[31]
        self.buffer = [[v ^ w for v, w in zip(last, fed)]] + b[:31]  # lambda
        self.buffer[25] = [self.buffer[25][i] ^ last[(i + 2) % 8] for i in range(8)]
        return pulled

    def push(self, data):
        for words in struct.iter_unpack("<8I", data):
            self.step(list(words))

    def pull(self, count):
        return b"".join(struct.pack("<8I", *self.step()) for _ in range(count))


def started(*pushed):
    panama = Panama()
    for data in pushed:
        panama.push(data)
    panama.pull(32)
    return panama


def key_stream(key, iv, length):
    return started(key, iv).pull(-(-length // 32))[:length]


def digest(message):
    return started(message + b"\1" + bytes(-(len(message) + 1) % 32)).pull(1).hex()


assert digest(b"") == "aa0cc954d757d7ac7779ca3342334ca471abd47d5952ac91ed837ecd5b16922b"
assert digest(b"The quick brown fox jumps over the lazy dog") == (
    "5f5ca355b90ac622b0aa7e654ef5f27e9e75111415b48b8afe3add1c6b89cba1")
