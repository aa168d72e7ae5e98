"""Folivar in other languages: what a call costs, and whole processes beside those of others."""

import dataclasses
import os
import pathlib
import re
import shutil
import statistics
import subprocess
import sys

from measuring import Bench, need, print_table

SOURCES = pathlib.Path(__file__).resolve().parent

# As in Workload.h.
LINES_OF_PAGE = 60

NAMES = {"folivar": "Folivar", "reportlab": "ReportLab", "jspdf": "jsPDF", "pdf_lib": "pdf-lib",
         "pdfkit": "PDFKit"}


@dataclasses.dataclass
class Workload:
    title: str
    name: str
    pages: int
    runs: int
    programs: list


CALLS = Workload("calls: DrawText 300,000 times, 60 lines of 80 characters on a page", "calls",
                 5000, 40, ["C++", "C", "Python", "Node"])

TEXTS = [
    Workload("text in Python: 1,000 pages of 60 lines of 80 characters", "python", 1000, 25,
             ["folivar", "reportlab"]),
    Workload("text in Node: 1,000 pages of 60 lines of 80 characters", "node", 1000, 10,
             ["folivar", "jspdf", "pdf_lib", "pdfkit"]),
]


class HostBench(Bench):
    def __init__(self, build, folder, is_quick):
        super().__init__(build / "bench", folder / "out", is_quick)
        modules = [self.programs / "modules", self.programs / "peers/node_modules"]
        for path in [build / "hosts/python/folivar.abi3.so", modules[0] / "folivar/folivar.node",
                     modules[1], self.programs / "lines"]:
            need(path)
        # Without what else Python and Node are told to read when they start, such as certificates.
        self.environment = {name: value for name, value in os.environ.items()
                            if not name.startswith(("NODE_", "PYTHON"))}
        self.environment["PYTHONPATH"] = str(build / "hosts/python")
        self.environment["NODE_PATH"] = ":".join(map(str, modules))
        self.lines = folder / "lines.txt"
        self.lines.write_bytes(output_of(self.programs / "lines"))

    def command(self, program, workload, sizes):
        start = python if workload.name == "python" else node
        return [*start(f"peers/{program}_text"), self.lines, str(workload.pages),
                self.scratch / "0.pdf"]

    def check(self, program, workload):
        """That there are as many pages as wanted, and that the last one has its lines."""
        file, last = self.scratch / "0.pdf", str(workload.pages)
        if re.search(rb"^Pages: +(\d+)$", output_of("pdfinfo", file), re.M)[1] != last.encode():
            raise SystemExit(f"bench: {NAMES[program]} has not written {last} pages")
        text = output_of("pdftotext", "-f", last, "-l", last, file, "-")
        lines = self.lines.read_bytes().splitlines()
        wanted = [lines[(workload.pages - 1 + number) % len(lines)]
                  for number in range(LINES_OF_PAGE)]
        if text.strip().splitlines() != wanted:
            raise SystemExit(f"bench: {NAMES[program]} has not written the lines")

    def calls(self):
        """The nanoseconds that a call took, in each run of each program."""
        commands = {"C++": [self.programs / "cpp_calls"], "C": [self.programs / "c_calls"],
                    "Python": python("calls/calls"), "Node": node("calls/calls")}
        taken = {program: [] for program in CALLS.programs}
        for _ in self.rounds(CALLS):
            for program, samples in taken.items():
                loop = output_of(*commands[program], self.lines, str(CALLS.pages),
                                 environment=self.environment)
                samples.append(int(loop) / (CALLS.pages * LINES_OF_PAGE))
        return taken


def python(script):
    # Debian's own, which its package python3-reportlab is for.
    return ["/usr/bin/python3", "-B", SOURCES / f"{script}.py"]


def node(script):
    return [shutil.which("node"), SOURCES / f"{script}.js"]


def output_of(*command, environment=None):
    finished = subprocess.run(command, stdout=subprocess.PIPE, env=environment)
    if finished.returncode != 0:
        raise SystemExit(f"bench: {' '.join(map(str, command))} failed")
    return finished.stdout


def print_calls(taken):
    print(f"\n{CALLS.title}")
    print(f"  {'':9} {'runs':>5} {'ns a call':>10} {'time / C++':>11}")
    medians = {program: statistics.median(samples) for program, samples in taken.items()}
    for program, median in medians.items():
        print(f"  {program:9} {len(taken[program]):5} {median:10.1f} {median / medians['C++']:11.2f}")


def print_text(title, medians):
    print_table(title, medians, NAMES)
    fastest = min((program for program in medians if program != "folivar"),
                  key=lambda program: medians[program].wall)
    ratio = medians[fastest].wall / medians["folivar"].wall
    print(f"  Folivar: {ratio:.2f} times as fast as {NAMES[fastest]}")


def report(build, folder, is_quick, only):
    texts = [workload for workload in TEXTS if only in (None, workload.name)]
    if only not in (None, CALLS.name) and not texts:
        return
    print("\nOf calls the loop alone is timed, by the program itself. The texts are written without")
    print("compression, but for those of pdf-lib, which has no option for it.")
    bench = HostBench(build, folder, is_quick)
    if only in (None, CALLS.name):
        print_calls(bench.calls())
    for workload in texts:
        print_text(workload.title, bench.measure(workload))
        sys.stdout.flush()
