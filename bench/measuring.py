"""Whole processes, run in turn so that what disturbs the machine disturbs all of them."""

import abc
import dataclasses
import mmap
import re
import shutil
import statistics
import subprocess
import sys


@dataclasses.dataclass
class Median:
    """What one program took for one workload, in the middle of its runs."""

    runs: int
    wall: float  # seconds
    cpu: float  # seconds
    memory: int  # bytes, at the peak
    faults: int  # page faults
    output: int  # bytes
    content: int  # bytes of the content streams, where they are told apart


class Bench(abc.ABC):
    """A workload is any object with a title, its programs and how often they run at most: one that
    has used up its seconds runs no more."""

    environment = None  # of the programs; otherwise that of this process

    def __init__(self, programs, scratch, is_quick):
        self.programs = programs  # the folder of what was built
        self.scratch = scratch
        self.is_quick = is_quick

    @abc.abstractmethod
    def command(self, program, workload, sizes):
        """Runs the program; `sizes` has the bytes of those that have run before."""

    def check(self, program, workload):
        """Looks at what the first run has written."""

    def measure(self, workload):
        """The Median of each program."""
        seconds = 1.0 if self.is_quick else 12.0
        samples = {program: [] for program in workload.programs}
        sizes = {}
        for _ in self.rounds(workload):
            for program in workload.programs:
                if sum(sample[0] for sample in samples[program]) > seconds:
                    continue
                samples[program].append(self.run(program, workload, sizes))
        return {program: self.median(samples[program], sizes[program]) for program in samples}

    def rounds(self, workload):
        count = min(3, workload.runs) if self.is_quick else workload.runs
        for number in range(count):
            progress(f"{workload.title}: round {number + 1} of {count}")
            yield number
        progress("")

    def run(self, program, workload, sizes):
        """One run: wall and CPU seconds, peak memory and page faults."""
        self.scratch.mkdir()
        command = self.command(program, workload, sizes)
        finished = subprocess.run([self.programs / "measure", *command], stdout=subprocess.PIPE,
                                  text=True, env=self.environment)
        if finished.returncode != 0:
            raise SystemExit(f"bench: {' '.join(map(str, command))} failed")
        if program not in sizes:
            self.check(program, workload)
            sizes[program] = self.output_sizes()
        shutil.rmtree(self.scratch)
        wall, cpu, memory, faults = map(int, finished.stdout.split())
        return wall / 1e9, cpu / 1e6, memory * 1024, faults

    def output_sizes(self):
        """The bytes of all files, and of Folivar's content streams in them."""
        output = content = 0
        for path in self.scratch.iterdir():
            output += path.stat().st_size
            with path.open("rb") as file, mmap.mmap(file.fileno(), 0, prot=mmap.PROT_READ) as data:
                content += sum(int(length) for length in re.findall(rb"/Length (\d{10}) ", data))
        return output, content

    @staticmethod
    def median(samples, sizes):
        wall, cpu, memory, faults = (statistics.median(column) for column in zip(*samples))
        return Median(len(samples), wall, cpu, int(memory), int(faults), *sizes)


def need(path):
    if not path.exists():
        raise SystemExit(f"bench: {path} is missing; build it first")


def progress(text):
    """One line on the terminal, replaced by the next; nothing where output is kept."""
    if sys.stderr.isatty():
        print(f"\r\033[K{text}", end="", file=sys.stderr, flush=True)
    elif text:
        print(text, file=sys.stderr, flush=True)


def print_table(title, medians, names):
    print(f"\n{title}")
    print(f"  {'':9} {'runs':>5} {'wall ms':>10} {'CPU ms':>10} {'peak MB':>9} {'faults':>8}"
          f" {'output MB':>10} {'time / Folivar':>15}")
    for program, median in medians.items():
        print(f"  {names[program]:9} {median.runs:5} {median.wall * 1e3:10.2f}"
              f" {median.cpu * 1e3:10.2f} {median.memory / 1e6:9.1f} {median.faults:8}"
              f" {median.output / 1e6:10.3f} {median.wall / medians['folivar'].wall:15.2f}")
