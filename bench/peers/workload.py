"""The work that every program for Python is given: pages of text as in Workload.h.

    SCRIPT LINES_FILE PAGES FILE
"""

import pathlib
import sys

LEFT, TOP, LEADING = 72, 750.5, 11.75
ROWS = [TOP - LEADING * number for number in range(60)]

lines_file, page_count, file = sys.argv[1:]
page_count = int(page_count)

lines = pathlib.Path(lines_file).read_text().splitlines()
# So that no page's lines go over the end.
repeated = lines + lines[:len(ROWS)]


def lines_of(page):
    first = page % len(lines)
    return repeated[first:first + len(ROWS)]
