#!/usr/bin/env python3
"""Records per second of kovrel.to_dataframe against `kovrel decode --format csv`.

    python3 bench/python_bench.py [BUILD_DIR] [MEGABYTES]

BUILD_DIR (default build-bench) holds the tool, bench/kovrel_make_recording
and the Python package (python/); the recording (default 100 MB of CAT048)
is made once and kept there. Both sides produce the tool's default CSV
columns; each is timed three times and the best run is shown.
"""

import os
import subprocess
import sys
import time

build = sys.argv[1] if len(sys.argv) > 1 else "build-bench"
megabytes = sys.argv[2] if len(sys.argv) > 2 else "100"
sys.path.insert(0, os.path.join(build, "python"))
import kovrel  # noqa: E402

tool = os.path.join(build, "tools", "kovrel", "kovrel")
recording = os.path.join(build, "bench", f"recording-048-{megabytes}mb.ast")
if not os.path.exists(recording):
    subprocess.run([os.path.join(build, "bench", "kovrel_make_recording"), recording, megabytes], check=True)
size = os.path.getsize(recording) / 1e6


def best(run):
    times = []
    for _ in range(3):
        start = time.perf_counter()
        result = run()
        times.append(time.perf_counter() - start)
    return min(times), result


def tool_csv():
    with open(os.devnull, "wb") as sink:
        subprocess.run([tool, "decode", "--format", "csv", recording], stdout=sink, check=True)


cli, _ = best(tool_csv)
py, frame = best(lambda: kovrel.to_dataframe(recording))
rows = len(frame)
print(f"recording: {recording}, {size:.0f} MB, {rows} records")
print(f"kovrel decode --format csv   {cli:7.2f} s  {rows / cli / 1e6:6.2f} M records/s")
print(f"kovrel.to_dataframe          {py:7.2f} s  {rows / py / 1e6:6.2f} M records/s  ({cli / py:.2f}x the CLI)")
