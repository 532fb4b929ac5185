#!/usr/bin/python3
"""Runs all benchmarks in turn, round after round, and prints one table of ratios; `./run bench` calls it.

A round runs each measurement once, in a process of its own; every second round goes backwards. A ratio is that of two
neighbours of one round, and the table has the median over the rounds: what the machine does meanwhile hits both.
"""

import argparse
import json
import os
import platform
import shlex
import statistics
import subprocess
import sys
import tempfile
from pathlib import Path

import measurements
import sizes

HERE = Path(__file__).resolve().parent
PARTS = ("load", "write", "parsed")
NANOSECONDS = {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}


class Programs:
    """Runs the programs on the generated jobs."""

    def __init__(self, build, folder, through, least_seconds):
        self.build = build
        self.through = through
        self.least_seconds = least_seconds
        self.environment = dict(os.environ, ORVEL_BENCHMARK_FOLDER=str(folder))
        self.folder = folder

    def output(self, *command):
        result = subprocess.run([*self.through, *map(str, command)], env=self.environment, text=True,
                                stdout=subprocess.PIPE, stderr=subprocess.PIPE, check=False)
        if result.returncode != 0:
            sys.exit(f"{shlex.join(map(str, command))} ended with {result.returncode}:\n{result.stderr}")
        return result.stdout

    def make_jobs(self, job_sizes):
        self.output(self.build / "make_jobs", *sorted({*job_sizes, 2500}))

    def nanoseconds(self, measurement):
        if measurement.program == "h5py":
            file = self.folder / measurement.benchmark / "parfile_storage.hdf5"
            return 1e9 * float(self.output("/usr/bin/python3", HERE / "peers/read_with_h5py.py", file))
        report = json.loads(self.output(
            self.build / measurement.program, f"--benchmark_filter=^{measurement.benchmark}$",
            f"--benchmark_min_time={self.least_seconds}", "--benchmark_format=json"))
        (result,) = report["benchmarks"]
        if "items_per_second" in result:
            return 1e9 / result["items_per_second"]
        return result["cpu_time"] * NANOSECONDS[result["time_unit"]]

    def growth(self, job_sizes):
        return json.loads(self.output(self.build / "growth_by_call", *job_sizes))


def measure(programs, all_measurements, rounds):
    times = {measurement.name: [] for measurement in all_measurements}
    for number in range(rounds):
        print(f"round {number + 1} of {rounds}", file=sys.stderr, flush=True)
        for measurement in all_measurements if number % 2 == 0 else reversed(all_measurements):
            times[measurement.name].append(programs.nanoseconds(measurement))
    return times


def summarise(times, ratios):
    rows = []
    for ratio in ratios:
        values = [of / to for of, to in zip(times[ratio.of], times[ratio.to])]
        median = statistics.median(values)
        rows.append({"group": ratio.group, "what": ratio.what, "ratio": median, "least": min(values),
                     "most": max(values), "nanoseconds": statistics.median(times[ratio.of]),
                     "nanoseconds_of_peer": statistics.median(times[ratio.to]), "goal": ratio.goal(),
                     "meets_goal": ratio.meets_goal(median)})
    return rows


def readable(nanoseconds):
    for unit, size in reversed(NANOSECONDS.items()):
        if nanoseconds >= size:
            return f"{nanoseconds / size:.3g} {unit}"
    return f"{nanoseconds:.3g} ns"


def print_table(rows):
    group = None
    for row in rows:
        if row["group"] != group:
            group = row["group"]
            print(f"\n| {group} | ratio | first | second | goal |  |\n|---|---|---|---|---|---|")
        verdict = "" if not row["goal"] else "met" if row["meets_goal"] else "missed"
        print(f"| {row['what']} | {row['ratio']:.2f} | {readable(row['nanoseconds'])} | "
              f"{readable(row['nanoseconds_of_peer'])} | {row['goal']} | {verdict} |")


def print_growth(growth):
    print("\n| calls of one load, and microseconds for each | " + " | ".join(f"{size} commands" for size in growth) +
          " |\n|---|" + "---|" * len(growth))
    for operation in sorted({name for of_size in growth.values() for name in of_size}):
        cells = [f"{of_size[operation]['calls']} x {of_size[operation]['nanoseconds'] / of_size[operation]['calls'] / 1e3:.1f}"
                 for of_size in growth.values()]
        print(f"| {operation} | " + " | ".join(cells) + " |")


def print_sizes(all_sizes):
    print("\n| size |  |\n|---|---|")
    for name, value in all_sizes.items():
        print(f"| {name} | {value} |")


def machine():
    model = next((line.split(":", 1)[1].strip() for line in Path("/proc/cpuinfo").read_text().splitlines()
                  if line.startswith("model name")), platform.machine())
    return f"{model}, {os.cpu_count()} cores, {platform.system()} {platform.release()}"


def parse_arguments():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--build", type=Path, required=True, help="the folder of the build")
    parser.add_argument("--output", type=Path, required=True, help="the JSON file to write")
    parser.add_argument("--rounds", type=int, default=15)
    parser.add_argument("--sizes", type=int, nargs="+", default=measurements.SIZES, help="jobs in files, in commands")
    parser.add_argument("--parts", nargs="+", choices=PARTS, default=PARTS, help="leave out the others")
    parser.add_argument("--quick", action="store_true", help="one short round with small jobs: shows only that it runs")
    parser.add_argument("--through", type=shlex.split, default=[], help="a command that runs each program")
    return parser.parse_args()


def main():
    arguments = parse_arguments()
    rounds, job_sizes, written, least_seconds = arguments.rounds, arguments.sizes, 2500, 0.1
    if arguments.quick:
        rounds, job_sizes, written, least_seconds = 1, (25,), 250, 0.001
    parts = {"load": (measurements.file_measurements(job_sizes), measurements.file_ratios(job_sizes)),
             "write": (measurements.write_measurements(written), measurements.write_ratios(written)),
             "parsed": (measurements.parsed_measurements(), measurements.parsed_ratios())}
    all_measurements = [measurement for part in arguments.parts for measurement in parts[part][0]]
    ratios = [ratio for part in arguments.parts for ratio in parts[part][1]]
    with tempfile.TemporaryDirectory(prefix="orvel-bench-") as folder:
        programs = Programs(arguments.build / "benchmarks", Path(folder), arguments.through, least_seconds)
        programs.make_jobs(job_sizes)
        rows = summarise(measure(programs, all_measurements, rounds), ratios)
        growth = programs.growth(job_sizes)
    all_sizes = sizes.collect(arguments.build)
    report = {"machine": machine(), "rounds": rounds, "ratios": rows, "growth": growth, "sizes": all_sizes}
    arguments.output.write_text(json.dumps(report, indent=1) + "\n", encoding="utf-8")
    print(f"{report['machine']}; medians of {rounds} rounds, processor time")
    print_table(rows)
    print_growth(growth)
    print_sizes(all_sizes)
    print(f"\nbench: wrote {arguments.output}")


if __name__ == "__main__":
    main()
