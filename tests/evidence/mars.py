"""MARS after C. Burwick et al., MARS - a candidate cipher for AES, IBM, revised in September 1999.

It shares no code with the program, and the key schedule is the revised one. The S-box is made of SHA-1; which nine of
its words are multiplied by 3 was seen in the table of Crypto++, and a rule that the paper's design criteria suggest
gives just these. IBM's answers are in tests/data/vectors/mars.txt; exchange.py checks them first."""
import hashlib
import itertools
import struct

MASK = 0xFFFFFFFF


def s_box():
    """512 words of SHA-1; of two in one half that share two bytes, the first is multiplied by 3."""
    words = [word for i in range(0, 515, 5) for word in struct.unpack(
        "<5I", hashlib.sha1(struct.pack("<4I", i, 0xB7E15162, 0x243F6A88, 0x02917D59)).digest())]
    for half in (range(256), range(256, 512)):
        for i, j in itertools.combinations(half, 2):
            if struct.pack("<I", words[i] ^ words[j]).count(0) >= 2:
                words[i] = words[i] * 3 & MASK
    return words[:512]


S = s_box()
S0, S1 = S[:256], S[256:]
B = S[265:269]


def rol(x, n):
    n %= 32
    return (x << n | x >> (32 - n)) & MASK


def runs_mask(w):
    """The inner bits of runs of at least ten equal bits, without the lowest two and the highest."""
    mask = 0
    for start in range(23):
        if w >> start & 0x3FF in (0, 0x3FF):
            mask |= 0xFF << (start + 1)
    return mask & 0x7FFFFFFC


def expanded(key):
    n = len(key) // 4
    t, k = list(struct.unpack(f"<{n}I", key)) + [n] + [0] * (14 - n), []
    for j in range(4):
        for i in range(15):
            t[i] ^= rol(t[i - 7] ^ t[i - 2], 3) ^ (4 * i + j)
        for i in list(range(15)) * 4:
            t[i] = rol(t[i] + S[t[i - 1] & 511] & MASK, 9)
        k += [t[4 * i % 15] for i in range(10)]
    for i in range(5, 37, 2):
        w = k[i] | 3
        k[i] = w ^ rol(B[k[i] & 3], k[i - 1]) & runs_mask(w)
    return k


def core(a, k1, k2):
    m, r = a + k1 & MASK, rol(rol(a, 13) * k2 & MASK, 5)
    left = S[m & 511] ^ r
    m, r = rol(m, r & 31), rol(r, 5)
    return rol(left ^ r, r & 31), m, r


class Mars:
    def __init__(self, key):
        self.k = expanded(key)

    def encrypted(self, block):
        k = self.k
        a, b, c, d = (x + y & MASK for x, y in zip(struct.unpack("<4I", block), k))
        for i in range(8):
            b = (b ^ S0[a & 255]) + S1[a >> 8 & 255] & MASK
            c, d = c + S0[a >> 16 & 255] & MASK, d ^ S1[a >> 24]
            a = rol(a, 8) + (d, b, 0, 0)[i % 4] & MASK
            a, b, c, d = b, c, d, a
        for i in range(16):
            left, m, r = core(a, k[2 * i + 4], k[2 * i + 5])
            if i < 8:
                b, c, d = b + left & MASK, c + m & MASK, d ^ r
            else:
                b, c, d = b ^ r, c + m & MASK, d + left & MASK
            a, b, c, d = b, c, d, rol(a, 13)
        for i in range(8):
            a = a - (0, 0, d, b)[i % 4] & MASK
            b, c = b ^ S1[a & 255], c - S0[a >> 24] & MASK
            d = (d - S1[a >> 16 & 255] & MASK) ^ S0[a >> 8 & 255]
            a, b, c, d = b, c, d, rol(a, 24)
        return struct.pack("<4I", *(x - y & MASK for x, y in zip((a, b, c, d), k[36:])))
