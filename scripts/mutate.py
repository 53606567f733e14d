#!/usr/bin/env python3
"""Changes one line of the logic at a time and looks whether a test notices: scripts/mutate.py [COUNT [SEED]]

Works on a copy of the tree under build/mutate. Each mutant is built and judged by the tests of its folder,
then by those of the whole control. Prints every survivor, and the score at the end.
"""
import pathlib
import random
import re
import shutil
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
WORK = ROOT / "build" / "mutate"
TREE = WORK / "tree"
BUILD = WORK / "build"
FOLDERS = ["control", "documents", "colouring", "tools", "words", "settings", "randomizer", "converter"]
# After the tests of the folder itself come those that use it.
NEIGHBOURS = {"control": ["documents", "settings"], "documents": ["control", "colouring"], "colouring": ["documents"],
              "settings": ["randomizer", "data"], "converter": ["data"]}
SECONDS_TO_BUILD, SECONDS_TO_TEST = 600, 60

# What is looked for, and what takes its place.
REPLACEMENTS = [
    (r" == ", " != "), (r" != ", " == "), (r" < ", " <= "), (r" <= ", " < "), (r" > ", " >= "), (r" >= ", " > "),
    (r" && ", " || "), (r" \|\| ", " && "), (r"\btrue\b", "false"), (r"\bfalse\b", "true"),
    (r" \+ 1\b", " + 2"), (r" - 1\b", " - 2"), (r" \+ (?=[\w(])", " - "), (r"\b0\b(?!x)", "1"), (r"!(?=\w)", ""),
    (r"\bif \((?!const|auto)", "if (false && "),
]
STATEMENT = re.compile(r"^\s+[\w.>\-\[\]:]+(\(.*\)| = .*| [+\-]= .*);$")


def mutants_of(path):
    """Every mutant of a file: line number (from 1), the changed line."""
    for number, line in enumerate(path.read_text().splitlines(), 1):
        code = line.split("//")[0]
        if not code.startswith("  ") or "static_assert" in code or "template" in code:
            continue
        for sought, replacement in REPLACEMENTS:
            for match in re.finditer(sought, code):
                if code[:match.start()].count('"') % 2 == 0:
                    yield number, line[:match.start()] + replacement + line[match.end():]
        if STATEMENT.match(code) and "return" not in code:
            yield number, "  // dropped"


def run(command, seconds):
    try:
        done = subprocess.run(command, cwd=TREE, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, timeout=seconds)
    except subprocess.TimeoutExpired:
        return False
    return done.returncode == 0


def build(programs):
    return run(["nice", "-n", "10", "cmake", "--build", str(BUILD), "-j1", "--target", *programs], SECONDS_TO_BUILD)


def programs_for(folder):
    return [f"test_{name}" for name in [folder, *NEIGHBOURS.get(folder, [])]]


def prepare():
    shutil.rmtree(TREE, ignore_errors=True)
    files = subprocess.run(["git", "ls-files"], cwd=ROOT, check=True, capture_output=True, text=True).stdout.split("\n")
    for name in filter(None, files):
        if (ROOT / name).exists():
            (TREE / name).parent.mkdir(parents=True, exist_ok=True)
            shutil.copy2(ROOT / name, TREE / name)
    configured = run(["cmake", "-S", str(TREE), "-B", str(BUILD), "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Debug",
                      "-DCMAKE_CXX_FLAGS_DEBUG=-O0 -Wno-error", "-DTESSEL_QT=OFF"], 120)
    if not configured or not build([f"test_{f}" for f in [*FOLDERS, "data"]]):
        sys.exit("The tree does not build as it is.")
    for folder in FOLDERS:
        if not survives(folder):
            sys.exit(f"The tests of {folder} fail as they are.")


def survives(folder):
    return all(run([str(BUILD / "tests" / program), "--gtest_brief=1"], SECONDS_TO_TEST)
               for program in programs_for(folder))


def judge(path, folder, number, line):
    original = path.read_text()
    lines = original.splitlines()
    lines[number - 1] = line
    path.write_text("\n".join(lines) + "\n")
    try:
        if not build(programs_for(folder)):
            return "does not build"
        return "survived" if survives(folder) else "killed"
    finally:
        path.write_text(original)


def main():
    count = int(sys.argv[1]) if len(sys.argv) > 1 else 80
    seed = int(sys.argv[2]) if len(sys.argv) > 2 else 1
    prepare()
    everything = [(path, folder, *mutant) for folder in FOLDERS for path in sorted((TREE / "src" / folder).glob("*.cpp"))
                  for mutant in mutants_of(path)]
    print(f"{len(everything)} mutants, of which {count} are tried", flush=True)
    results = {"killed": 0, "survived": 0, "does not build": 0}
    for path, folder, number, line in random.Random(seed).sample(everything, min(count, len(everything))):
        result = judge(path, folder, number, line)
        results[result] += 1
        if result == "survived":
            print(f"survived: {path.relative_to(TREE)}:{number}: {line.strip()}", flush=True)
    judged = results["killed"] + results["survived"]
    print(f"{results['killed']} of {judged} killed ({100 * results['killed'] / max(judged, 1):.1f} %), "
          f"{results['does not build']} did not build")


if __name__ == "__main__":
    main()
