#!/usr/bin/env python3
"""Runs the fuzz targets of a build, and tells for each how often it ran and what of our code.

    run.py BUILD SECONDS [TARGET...]

SECONDS are for all targets together, on all processors. What an earlier run found new stands in
BUILD/corpus/ and is gone on from; the seeds in fuzz/seeds/ and the sample queues come to it. An
input that breaks something is kept as BUILD/faults/TARGET-... and ends the run with 1: to see it
again, give it to BUILD/bin/fuzz_TARGET.
"""

import json
import os
import re
import shutil
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

HERE = Path(__file__).resolve().parent
ROOT = HERE.parent
WANTED = 80  # percent of the lines of each of these
FOLDERS = ("ppd", "services")


def names():
    return sorted(file.stem for file in HERE.glob("*.cpp") if file.stem != "fuzz")


def corpora(build, name):
    own = build / "corpus" / name
    own.mkdir(parents=True, exist_ok=True)
    found = [own, HERE / "seeds" / name]
    seeds = build / "corpus" / f"{name}-samples"
    pattern = {"ppd_walk": "*.ppd", "cache": "*.cdf"}.get(name)
    if pattern:
        seeds.mkdir(exist_ok=True)
        for file in (build / "samples").glob(pattern):
            if file.stat().st_size < 200_000:  # a large one is the same again and again
                shutil.copy(file, seeds)
        found.append(seeds)
    return [folder for folder in found if folder.is_dir()]


def run(build, name, seconds):
    """Executions, and what it said where it found a fault."""
    faults = build / "faults"
    faults.mkdir(exist_ok=True)
    words = HERE / f"{name}.dict"
    profile = build / f"{name}.profraw"
    profile.unlink(missing_ok=True)
    command = [build / "bin" / f"fuzz_{name}", f"-max_total_time={seconds}", "-timeout=25",
               "-rss_limit_mb=3072", "-print_final_stats=1", f"-artifact_prefix={faults}/{name}-",
               *([f"-dict={words}"] if words.exists() else []), *corpora(build, name)]
    environment = dict(os.environ, LLVM_PROFILE_FILE=str(profile), LC_ALL="C.UTF-8",
                       LSAN_OPTIONS=f"suppressions={HERE}/lsan.supp:print_suppressions=0",
                       UBSAN_OPTIONS="print_stacktrace=1")
    done = subprocess.run(command, env=environment, stdin=subprocess.DEVNULL,
                          stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, errors="replace")
    count = re.search(r"stat::number_of_executed_units:\s*(\d+)", done.stderr)
    return int(count[1]) if count else 0, "" if done.returncode == 0 else done.stderr[-6000:]


def lines(build, targets, profiles):
    """Lines of our code by file, as (covered, all)."""
    merged = build / "fuzz.profdata"
    subprocess.run(["llvm-profdata", "merge", "-sparse", *profiles, "-o", merged], check=True)
    programs = [build / "bin" / f"fuzz_{name}" for name in targets]
    programs += sorted(build.glob("lib/*.so")) + sorted(build.glob("ImageOptions.pde/**/*.so"))
    objects = [part for program in programs[1:] for part in ("-object", program)]
    report = subprocess.run(["llvm-cov", "export", "-summary-only", f"-instr-profile={merged}",
                             programs[0], *objects], check=True, stdout=subprocess.PIPE,
                            stderr=subprocess.DEVNULL)
    found = {}
    for file in json.loads(report.stdout)["data"][0]["files"]:
        path = Path(file["filename"])
        if path.is_relative_to(ROOT) and not path.is_relative_to(build):
            told = file["summary"]["lines"]
            found[path.relative_to(ROOT)] = (told["covered"], told["count"])
    return found


def share(found, folders):
    counted = [told for path, told in found.items() if path.parts[0] in folders]
    covered, whole = (sum(column) for column in zip(*counted)) if counted else (0, 0)
    return covered, whole, 100 * covered / whole if whole else 0.0


def main():
    build, seconds = Path(sys.argv[1]).resolve(), float(sys.argv[2])
    targets = sys.argv[3:] or names()
    workers = max(1, os.cpu_count() or 1)
    each = max(2, int(seconds * workers / len(targets)))
    with ThreadPoolExecutor(workers) as pool:
        results = list(pool.map(lambda name: run(build, name, each), targets))
    ours = {path.parts[0] for path in map(Path, subprocess.run(
        ["git", "-C", ROOT, "ls-files"], check=True, capture_output=True,
        text=True).stdout.split("\n")) if len(path.parts) > 1} - {"fuzz", "tests", "bench"}
    print(f"{'target':<14}{'executions':>12}{'lines of our code':>20}")
    broken = False
    profiles = []
    for name, (executions, fault) in zip(targets, results):
        profile = build / f"{name}.profraw"
        covered = share(lines(build, [name], [profile]), ours)[0] if profile.exists() else 0
        profiles += [profile] if profile.exists() else []
        print(f"{name:<14}{executions:>12,}{covered:>20,}{'  FAULT' if fault else ''}")
        if fault:
            broken = True
            print(fault)
    if targets == names() and profiles:
        found = lines(build, targets, profiles)
        for folder in FOLDERS:
            covered, whole, percent = share(found, {folder})
            short = percent < WANTED
            broken |= short
            print(f"{folder + '/':<14}{covered:,} of {whole:,} lines, {percent:.1f} %"
                  f"{f', {WANTED} are wanted' if short else ''}")
    sys.exit(1 if broken else 0)


if __name__ == "__main__":
    main()
