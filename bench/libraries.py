"""Folivar beside two other libraries and the floor: plain writing of as many bytes, for pictures
also plain reading of them.
"""

import dataclasses
import pathlib
import sys

from measuring import Bench, need, print_table
from pictures import make_pictures

LIBRARIES = ["folivar", "haru", "cairo"]
NAMES = {"folivar": "Folivar", "haru": "libharu", "cairo": "cairo", "floor": "floor"}

# Of Debian's package fonts-liberation.
FONT = pathlib.Path("/usr/share/fonts/truetype/liberation/LiberationSans-Regular.ttf")


@dataclasses.dataclass
class Workload:
    title: str
    name: str
    size: int
    runs: int
    programs: list = dataclasses.field(default_factory=lambda: LIBRARIES + ["floor"])
    font: list = dataclasses.field(default_factory=list)  # the file to embed, or none
    has_pictures: bool = False


COMPARED = [
    Workload("text: 1,000 pages of 60 lines of 80 characters", "text", 1000, 25),
    Workload("text: 20,000 pages of 60 lines of 80 characters", "text", 20000, 9),
    Workload("embedded: 1,000 pages of 60 lines of 80 characters in an embedded Liberation Sans",
             "text", 1000, 25, font=[FONT]),
    Workload("vector: 200 pages of 1,000 lines and rectangles", "vector", 200, 25),
    Workload("template: 10,000 pages that place one template", "template", 10000, 25),
    Workload("JPEG: 200 pages placing 20 pictures of about 200 KB", "jpeg", 200, 50,
             has_pictures=True),
    # The other libraries read no bitmaps.
    Workload("BMP: 20 pictures of 4 megapixels at 24 bits", "bmp", 20, 25, ["folivar", "floor"],
             has_pictures=True),
    Workload("rich text: 500 pages of 4,000 characters in two styles, wrapped", "rich", 500, 25),
    Workload("navigation: 1,000 pages with 10,000 bookmarks three deep and 20,000 links",
             "navigation", 1000, 25),
    Workload("small: 2,000 documents of one page with 5 lines", "small", 2000, 25),
    Workload("start-up: one document of one line", "startup", 1, 50),
]

GROWTH = {
    pages: Workload(f"growth: {pages:,} pages of 5 lines", "light", pages, runs, ["folivar"])
    for pages, runs in ((1000, 50), (100000, 7))
}
# A text has 4,000 characters and some 140 runs.
BOXES = {
    texts: Workload(f"text box: {texts * 4000:,} characters", "box", texts, runs, ["folivar"])
    for texts, runs in ((25, 50), (250, 25))
}
SELECTIONS = {
    count: Workload(f"text box: {count:,} selections", "selections", count, 25, ["folivar"])
    for count in (0, 10000)
}
EMPTY = {
    pages: Workload(f"memory: {pages:,} empty pages", "empty", pages, 3, ["folivar"])
    for pages in (1000, 100000)
}


class LibraryBench(Bench):
    """The programs in C++; the floor's is made to write as much as Folivar did."""

    def __init__(self, programs, scratch, is_quick, pictures):
        super().__init__(programs, scratch, is_quick)
        self.pictures = pictures

    def command(self, program, workload, sizes):
        arguments = [workload.name, str(workload.size)]
        if program == "floor":
            output, _ = sizes["folivar"]
            files = workload.size if workload.name == "small" else 1
            arguments = [workload.name if workload.has_pictures else str(files), str(output)]
        arguments += [self.scratch, *workload.font]
        if workload.has_pictures:
            arguments.append(self.pictures)
        return [self.programs / f"{program}_workload", *arguments]


def print_comparison(title, medians):
    print_table(title, medians, NAMES)
    folivar = medians["folivar"]
    peers = "".join(f"{medians[peer].wall / folivar.wall:.2f} times as fast as {NAMES[peer]}, "
                    for peer in ("haru", "cairo") if peer in medians)
    print(f"  Folivar: {peers}{folivar.wall / medians['floor'].wall:.2f} times the floor")


def print_growth(bench, startup):
    """Start-up time is taken off: it would make the pages of the short document look dear."""
    per_page = {}
    for pages, workload in GROWTH.items():
        per_page[pages] = (bench.measure(workload)["folivar"].wall - startup.wall) / pages
    print("\ngrowth: Folivar, pages of 5 lines, start-up time taken off")
    for pages, seconds in per_page.items():
        print(f"  {pages:7,} pages: {seconds * 1e6:.3f} microseconds a page")
    print(f"  ratio: {per_page[100000] / per_page[1000]:.2f}")


def print_box_growth(bench, startup):
    """One box, filled, formatted, laid out and saved; start-up time taken off as above."""
    per_text = {}
    for texts, workload in BOXES.items():
        per_text[texts] = (bench.measure(workload)["folivar"].wall - startup.wall) / texts
    print("\ngrowth: Folivar, one text box in two styles, start-up time taken off")
    for texts, seconds in per_text.items():
        print(f"  {texts * 4000:9,} characters: {seconds / 4 * 1e6:.3f} microseconds a thousand")
    print(f"  ratio: {per_text[250] / per_text[25]:.2f}")


def print_selections(bench):
    """What each selection costs, drawing the runs that it adds included."""
    seconds = {count: bench.measure(workload)["folivar"].wall
               for count, workload in SELECTIONS.items()}
    each = (seconds[10000] - seconds[0]) / 10000
    print("\nselections: Folivar, 10 characters anywhere in a text box of some 10,000 runs coloured")
    print(f"  {each * 1e6:.2f} microseconds each")


def print_memory(bench, startup, text):
    peaks = {pages: bench.measure(workload)["folivar"].memory for pages, workload in EMPTY.items()}
    print("\nmemory: Folivar, at the peak, the save included")
    print(f"  an empty page: {(peaks[100000] - peaks[1000]) / (100000 - 1000):.0f} bytes"
          " (100,000 pages against 1,000)")
    for pages, median in text.items():
        ratio = (median.memory - startup.memory) / median.content
        print(f"  text of {pages:,} pages: {ratio:.3f} times its {median.content / 1e6:.1f} MB of"
              " content, the pages included, an empty process taken off")


def report(build, folder, is_quick, only):
    workloads = [workload for workload in COMPARED if only in (None, workload.name)]
    if not workloads:
        return
    if not FONT.exists():
        raise SystemExit(f"bench: {FONT} is missing; it is in the package fonts-liberation")
    programs = build / "bench"
    for program in [*LIBRARIES, "floor"]:
        need(programs / f"{program}_workload")
    print("\nFolivar and libharu write without compression. cairo always compresses its streams and")
    print("embeds its font. The floor writes as many bytes as Folivar, once it has read the font file")
    print("where there is one, and nothing else; where there are pictures, it reads them and writes")
    print("what they hold.")
    pictures = folder / "pictures"
    make_pictures(pictures)
    bench = LibraryBench(programs, folder / "out", is_quick, pictures)
    text = {}
    for workload in workloads:
        medians = bench.measure(workload)
        print_comparison(workload.title, medians)
        if workload.name == "text" and not workload.font:
            text[workload.size] = medians["folivar"]
        if workload.name == "startup":
            startup = medians["folivar"]
        sys.stdout.flush()
    if only is None:
        print_growth(bench, startup)
        print_box_growth(bench, startup)
        print_selections(bench)
        print_memory(bench, startup, text)
