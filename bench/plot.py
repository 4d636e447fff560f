"""Pictures what compare.py measured: seconds of each program on the largest file, and the speed of each
algorithm on files beside that of its cipher in memory."""

import math

BARS = (("encrypt", "#2f6db3"), ("decrypt", "#7fb37f"))
SCALE = (5, 5000)  # MB/s, from the left or bottom edge to the other one
SIDE = 400


def text(x, y, content, extra=""):
    return f'<text x="{x:.0f}" y="{y:.0f}" {extra}>{content}</text>'


def bars(seconds):
    """One pair of bars a program; what is off the picture is cut and keeps its number."""
    names = list(dict.fromkeys(name.rsplit(", ", 1)[0] for name in seconds))
    longest = 3 * seconds["quillet-cli, encrypt"]
    parts = []
    for row, name in enumerate(names):
        y = 40 + row * SIDE / len(names)
        parts.append(text(0, y + 18, name))
        for index, (direction, colour) in enumerate(BARS):
            value = seconds[f"{name}, {direction}"]
            width = 200 * min(value / longest, 1)
            parts.append(f'<rect x="150" y="{y + 15 * index:.0f}" width="{width:.0f}" height="13" fill="{colour}"/>')
            parts.append(text(155 + width, y + 11 + 15 * index, f"{value:.2f} s", 'font-size="11"'))
    return parts


def place(speed):
    low, high = (math.log(edge) for edge in SCALE)
    return SIDE * (math.log(min(max(speed, SCALE[0]), SCALE[1])) - low) / (high - low)


def scatter(rows):
    parts = [f'<rect x="0" y="40" width="{SIDE}" height="{SIDE}" fill="none" stroke="#888"/>',
             f'<line x1="0" y1="{40 + SIDE}" x2="{SIDE}" y2="40" stroke="#bbb"/>']
    for speed in (10, 30, 100, 300, 1000, 3000):
        parts.append(text(place(speed), 56 + SIDE, speed, 'text-anchor="middle" font-size="11"'))
        parts.append(text(-6, 44 + SIDE - place(speed), speed, 'text-anchor="end" font-size="11"'))
    for row in rows.values():
        for direction, colour in BARS:
            parts.append(f'<circle cx="{place(row[direction + " cipher"]):.1f}" '
                         f'cy="{40 + SIDE - place(row[direction + " file"]):.1f}" r="4" fill="{colour}" '
                         'fill-opacity="0.7"/>')
    parts.append(text(SIDE / 2, 76 + SIDE, "the cipher in memory on one core, MB/s", 'text-anchor="middle"'))
    return parts


def svg(seconds, size, rows):
    left = "".join([text(0, 20, f"{size}, AES-256: seconds to encrypt and to decrypt"), *bars(seconds)])
    right = "".join([text(0, 20, f"{len(rows)} algorithms: a file, MB/s, beside the cipher"), *scatter(rows)])
    legend = "".join(f'<rect x="{150 + 90 * index}" y="{65 + SIDE}" width="13" height="13" fill="{colour}"/>'
                     + text(170 + 90 * index, 76 + SIDE, direction) for index, (direction, colour) in enumerate(BARS))
    return ('<svg xmlns="http://www.w3.org/2000/svg" width="920" height="500" font-family="sans-serif" font-size="13">'
            '<rect width="920" height="500" fill="white"/>'
            f'<g transform="translate(20,0)">{left}{legend}</g><g transform="translate(490,0)">{right}</g></svg>\n')
