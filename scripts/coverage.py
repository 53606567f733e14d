#!/usr/bin/env python3
"""Adds up what gcov knows about a build: coverage.py BUILD-DIRECTORY GOAL-IN-PERCENT."""
import collections
import json
import pathlib
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
SOURCE = ROOT / "src"
NOT_MEASURED = "qt/"


def reports(build):
    """What gcov says about each object file that was run or could have been."""
    notes = sorted(str(p) for p in (build / "src").rglob("*.gcno"))
    for start in range(0, len(notes), 20):
        output = subprocess.run(["gcov", "--json-format", "--stdout", *notes[start:start + 20]],
                                check=True, capture_output=True, text=True, cwd=build).stdout
        for line in output.splitlines():
            yield json.loads(line)


def counts(build):
    """How often each line ran, by file and line: the most of all object files that hold it."""
    lines = collections.defaultdict(dict)
    for report in reports(build):
        for file in report["files"]:
            path = pathlib.Path(report["current_working_directory"], file["file"]).resolve()
            if not path.is_relative_to(SOURCE):
                continue
            name = str(path.relative_to(SOURCE))
            if name.startswith(NOT_MEASURED):
                continue
            for line in file["lines"]:
                number = line["line_number"]
                lines[name][number] = max(line["count"], lines[name].get(number, 0))
    return lines


def main():
    build, goal = pathlib.Path(sys.argv[1]).resolve(), float(sys.argv[2])
    lines = counts(build)
    folders = collections.defaultdict(lambda: [0, 0])
    for name, numbers in lines.items():
        for total in (folders[name.split("/")[0]], folders["all"]):
            total[0] += sum(1 for count in numbers.values() if count)
            total[1] += len(numbers)
    for folder in sorted(folders, key=lambda f: (f == "all", f)):
        run, there = folders[folder]
        print(f"{folder:12} {run:5} of {there:5} lines  {100 * run / there:6.2f} %")
    print("\nNot run:")
    for name in sorted(lines):
        text = (SOURCE / name).read_text(errors="replace").splitlines()
        for number in sorted(n for n, count in lines[name].items() if not count):
            print(f"  {name}:{number}: {text[number - 1].strip()}")
    run, there = folders["all"]
    return 100 * run / there < goal


if __name__ == "__main__":
    sys.exit(main())
