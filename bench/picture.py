#!/usr/bin/env python3
"""Draws what each piece of work takes for tables of 100 to 10^6 values, as docs/pictures/speed.svg.

    bench/picture.py [FOLDER]      where the benchmark programs are; build/release/bin unless told

Both axes are logarithmic, so that what takes time in proportion to its size is a straight line, parallel to the grey
ones.
"""
import json
import math
import os
import pathlib
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
WORKS = [  # program, benchmark, its name in the picture, colour
    ("bench_candela", "pastedToRedrawnPlot", "pasted, to the redrawn plot", "#0072b2"),
    ("bench_candela", "pastedIntoTheTable", "pasted into the table", "#56b4e9"),
    ("bench_table", "tableWithCommas", "Paste Table, decimal commas", "#cc79a7"),
    ("bench_iesreader", "BM_readerAgainstFromChars", "IES file read", "#009e73"),
    ("bench_writer", "BM_writerAgainstToChars", "IES file written", "#d55e00"),
    ("bench_review", "smoothTable", "figures and remarks", "#e69f00"),
    ("bench_plot", "curvesFound", "the plot's curves", "#000000"),
]
MILLISECONDS = {"ns": 1e-6, "us": 1e-3, "ms": 1, "s": 1e3}
WIDTH, HEIGHT = 860, 520
LEFT, RIGHT, TOP, BOTTOM = 80, 230, 30, 60
VALUES = (2, 6)      # powers of ten along the bottom
TIMES = (-3, 3)      # of milliseconds, along the side


def measured(folder, program, name):
    """Pairs of values in the table and milliseconds."""
    run = subprocess.run([os.path.join(folder, program), f"--benchmark_filter=^{name}/", "--benchmark_format=json"],
                         check=True, capture_output=True, text=True)
    points = []
    for row in json.loads(run.stdout)["benchmarks"]:
        side = int(row["name"].split("/")[1])
        points.append((side * side, row["real_time"] * MILLISECONDS[row["time_unit"]]))
    return points


def across(values):
    return LEFT + (math.log10(values) - VALUES[0]) / (VALUES[1] - VALUES[0]) * (WIDTH - LEFT - RIGHT)


def down(milliseconds):
    share = (math.log10(milliseconds) - TIMES[0]) / (TIMES[1] - TIMES[0])
    return HEIGHT - BOTTOM - share * (HEIGHT - TOP - BOTTOM)


def line(x1, y1, x2, y2, look):
    return f'<line x1="{x1:.1f}" y1="{y1:.1f}" x2="{x2:.1f}" y2="{y2:.1f}" {look}/>'


def text(x, y, words, look=""):
    return f'<text x="{x:.1f}" y="{y:.1f}" {look}>{words}</text>'


def ground():
    parts = [f'<svg xmlns="http://www.w3.org/2000/svg" width="{WIDTH}" height="{HEIGHT}" font-family="sans-serif" '
             'font-size="13" fill="#333">', '<rect width="100%" height="100%" fill="#fff"/>']
    for power in range(VALUES[0], VALUES[1] + 1):
        x = across(10 ** power)
        parts.append(line(x, TOP, x, HEIGHT - BOTTOM, 'stroke="#e4e4e4"'))
        parts.append(text(x, HEIGHT - BOTTOM + 20, f"{10 ** power:,}", 'text-anchor="middle"'))
    names = {-3: "1 µs", -2: "10 µs", -1: "0.1 ms", 0: "1 ms", 1: "10 ms", 2: "0.1 s", 3: "1 s"}
    for power in range(TIMES[0], TIMES[1] + 1):
        y = down(10 ** power)
        parts.append(line(LEFT, y, WIDTH - RIGHT, y, 'stroke="#e4e4e4"'))
        parts.append(text(LEFT - 8, y + 4, names[power], 'text-anchor="end"'))
    for power in range(TIMES[0] - 4, TIMES[1]):
        begin = max(VALUES[0], TIMES[0] - power + VALUES[0])
        end = min(VALUES[1], TIMES[1] - power + VALUES[0])
        if begin < end:
            parts.append(line(across(10 ** begin), down(10 ** (power + begin - VALUES[0])), across(10 ** end),
                              down(10 ** (power + end - VALUES[0])), 'stroke="#e4e4e4" stroke-dasharray="3 4"'))
    middle = LEFT + (WIDTH - LEFT - RIGHT) / 2
    parts.append(text(middle, HEIGHT - 16, "candela values in the table", 'text-anchor="middle"'))
    return parts


def curves(works):
    """The lines, and their names at the right end, pushed apart where they would touch."""
    parts = []
    names = sorted((down(points[-1][1]), name, colour) for name, colour, points in works)
    below = -math.inf
    for y, name, colour in names:
        below = max(y, below + 18)
        parts.append(text(WIDTH - RIGHT + 12, below + 4, name, f'fill="{colour}"'))
    for _, colour, points in works:
        path = " ".join(f"{across(values):.1f},{down(time):.1f}" for values, time in points)
        parts.append(f'<polyline points="{path}" fill="none" stroke="{colour}" stroke-width="2"/>')
        parts += [f'<circle cx="{across(values):.1f}" cy="{down(time):.1f}" r="3" fill="{colour}"/>'
                  for values, time in points]
    return parts


def main():
    folder = sys.argv[1] if len(sys.argv) > 1 else ROOT / "build" / "release" / "bin"
    works = [(name, colour, measured(folder, program, benchmark)) for program, benchmark, name, colour in WORKS]
    picture = "\n".join(ground() + curves(works) + ["</svg>"]) + "\n"
    (ROOT / "docs" / "pictures" / "speed.svg").write_text(picture)


main()
