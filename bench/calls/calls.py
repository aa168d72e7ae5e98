"""As calls.cpp, in Python."""

import pathlib
import sys
import time

import folivar


def read_rows(path):
    lines = pathlib.Path(path).read_text().splitlines()[:60]
    return [(line, 750.5 - 11.75 * number) for number, line in enumerate(lines)]


def draw(rows, page_count):
    document = folivar.PDFDocument()
    pages = [document.Pages.Add() for _ in range(page_count)]

    start = time.perf_counter_ns()
    for page in pages:
        for line, y in rows:
            page.DrawText(line, 72, y)
    return time.perf_counter_ns() - start


lines_file, page_count = sys.argv[1:]
print(draw(read_rows(lines_file), int(page_count)))
