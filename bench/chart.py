#!/usr/bin/env python3
"""Draws what zorcs_bench wrote as CSV: chart.py TABLE.csv CHART.svg"""

import csv
import sys
from xml.sax.saxutils import escape

INPUTS = ("headphones", "random")
GROUPS = (
    ("bytes to struct", ("bytes to struct", "parse", "bare parse", "bytes to struct, protozero by hand",
                         "bytes to struct, protobuf-c and copy", "bytes to struct, nanopb")),
    ("struct to bytes", ("struct to bytes", "struct to bytes, protozero by hand",
                         "struct to bytes, protobuf-c and copy", "struct to bytes, nanopb")),
    ("message to struct", ("message to struct", "floor: copy through", "floor: copy twice")),
    ("struct to message", ("struct to message", "floor: copy once")),
)
LABEL_WIDTH, BAR_WIDTH, VALUE_WIDTH, LINE = 240, 420, 90, 18
OURS, OTHERS, TEXT = "#2a6f97", "#b8c4cc", "#222222"


def read(name):
    """Nanoseconds by input and road."""
    times = {}
    with open(name, newline="", encoding="utf-8") as file:
        for row in csv.reader(file):
            if len(row) < 3:
                break  # the end of the times
            if row[0] != "input":
                times[row[0], row[1]] = float(row[2])
    return times


def text(x, y, content, anchor="start", weight="normal"):
    return (f'<text x="{x}" y="{y}" text-anchor="{anchor}" font-weight="{weight}" fill="{TEXT}">'
            f"{escape(content)}</text>")


def draw(times):
    """One group of bars a road and input; the bars of a group share a scale."""
    parts, y = [], 8
    for input_name in INPUTS:
        for title, roads in GROUPS:
            found = [(road, times[input_name, road]) for road in roads
                     if (input_name, road) in times]
            if not found:
                continue
            y += LINE
            parts.append(text(8, y, f"{title}, {input_name}", weight="bold"))
            longest = max(time for _, time in found)
            for road, time in found:
                y += LINE
                width = BAR_WIDTH * time / longest
                colour = OURS if road == title else OTHERS
                label = "this library" if road == title else road.replace(title + ", ", "")
                parts.append(text(LABEL_WIDTH - 8, y, label, anchor="end"))
                parts.append(f'<rect x="{LABEL_WIDTH}" y="{y - 12}" width="{width:.1f}" '
                             f'height="{LINE - 4}" fill="{colour}"/>')
                parts.append(text(LABEL_WIDTH + width + 6, y, f"{time / 1000:.1f} µs"))
            y += LINE // 2
    width, height = LABEL_WIDTH + BAR_WIDTH + VALUE_WIDTH, y + LINE // 2
    return (f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}" '
            f'viewBox="0 0 {width} {height}" font-family="sans-serif" font-size="12">\n'
            f'<rect width="100%" height="100%" fill="#ffffff"/>\n' + "\n".join(parts) + "\n</svg>\n")


def main():
    if len(sys.argv) != 3:
        sys.exit("usage: chart.py TABLE.csv CHART.svg")
    with open(sys.argv[2], "w", encoding="utf-8") as file:
        file.write(draw(read(sys.argv[1])))


if __name__ == "__main__":
    main()
