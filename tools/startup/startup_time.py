#!/usr/bin/env python3
"""startup_time.py BIN_FOLDER [ROUNDS]: from exec to the first paint, the window beside a bare one of the
same toolkit, in turns on one X server; medians and the ratio. Needs Xvfb."""

import os
import statistics
import subprocess
import sys
import tempfile
import time

BIN = os.path.abspath(sys.argv[1])
ROUNDS = int(sys.argv[2]) if len(sys.argv) > 2 else 30

if "STARTUP_INSIDE_X" not in os.environ:
    os.execvpe("xvfb-run", ["xvfb-run", "-a", "-s", "-screen 0 1280x1024x24 -noreset", sys.executable, *sys.argv],
               {**os.environ, "STARTUP_INSIDE_X": "1"})

with tempfile.TemporaryDirectory() as home:
    environment = {**os.environ, "HOME": home, "XDG_RUNTIME_DIR": home, "XDG_CONFIG_HOME": home, "XDG_DATA_HOME": home,
                   "XDG_STATE_HOME": home, "LD_PRELOAD": BIN + "/libfirst_paint.so"}

    def start(program):
        now = str(time.clock_gettime_ns(time.CLOCK_MONOTONIC))
        done = subprocess.run([os.path.join(BIN, program)], env={**environment, "FIRST_PAINT_START": now},
                              capture_output=True, text=True, check=True, timeout=60)
        return [float(number) for number in done.stdout.split()[-2:]]

    figures = {"quillet": [], "bare_window": []}
    for program in figures:
        start(program)
    for _ in range(ROUNDS):
        for program, runs in figures.items():
            runs.append(start(program))

ratios = [q[0] / b[0] for q, b in zip(*figures.values())]
for program, runs in figures.items():
    wall, cpu = zip(*runs)
    print(f"{program}: wall {statistics.median(wall):.1f} ms (least {min(wall):.1f}), "
          f"processor {statistics.median(cpu):.1f} ms (least {min(cpu):.1f})")
print(f"wall ratio: median {statistics.median(ratios):.2f}, of the least {min(r[0] for r in figures['quillet']) / min(r[0] for r in figures['bare_window']):.2f}")
