#!/usr/bin/env python3
"""Changes one line of the logic at a time and looks whether a test notices: scripts/mutate.py [COUNT [SEED [FOLDER...]]]

The sources stay as they are: a mutant is a file of its own, compiled and linked in front of the library, first into
the tests of its folder, then into those that use it. Prints every survivor, and the score at the end. MUTATE_BUILD
names a build that is there already and compiles every file alone; the default is made under build/mutate.
"""
import contextlib
import json
import os
import pathlib
import random
import re
import shlex
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent
BUILD = pathlib.Path(os.environ.get("MUTATE_BUILD", ROOT / "build" / "mutate")).resolve()
FOLDERS = ["control", "documents", "colouring", "tools", "words", "settings", "randomizer", "converter",
           "safekeeping"]
# After the tests of the folder itself come those that use it.
NEIGHBOURS = {"control": ["documents", "settings"], "documents": ["control", "colouring"], "colouring": ["documents"],
              "settings": ["randomizer", "data"], "converter": ["data"]}
SECONDS_TO_TEST = 60

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


def run(command, seconds=600):
    try:
        done = subprocess.run(command, cwd=BUILD, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, timeout=seconds)
    except subprocess.TimeoutExpired:
        return False
    return done.returncode == 0


def programs_for(folder):
    return [f"test_{name}" for name in [folder, *NEIGHBOURS.get(folder, [])]]


def prepare(folders):
    if "MUTATE_BUILD" in os.environ:
        return
    BUILD.mkdir(parents=True, exist_ok=True)
    programs = sorted({program for folder in folders for program in programs_for(folder)})
    if not run(["cmake", "-S", str(ROOT), "-B", str(BUILD), "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Debug",
                "-DCMAKE_CXX_FLAGS_DEBUG=-O0", "-DTESSEL_QT=OFF"]):
        sys.exit("The build cannot be configured.")
    if not run(["cmake", "--build", str(BUILD), "--target", *programs], 3600):
        sys.exit("The tree does not build as it is.")


def compile_commands():
    return {entry["file"]: entry["command"] for entry in json.loads((BUILD / "compile_commands.json").read_text())}


class Compiler:
    """Compiles a mutant in a source's place, and links it into test programs."""

    def __init__(self, place):
        self.place = pathlib.Path(place)
        self.commands = compile_commands()
        self.links = {}

    def compile(self, source, text):
        mutant = self.place / source.name
        mutant.write_text(text)
        words = [word for word in shlex.split(self.commands[str(source)]) if "ccache" not in word]
        words[words.index("-o") + 1] = str(self.place / "mutant.o")
        words = [str(mutant) if word == str(source) else word for word in words]
        return run([*words, "-O0", "-Wno-error"])

    def link(self, program, mutated):
        if program not in self.links:
            commands = subprocess.run(["ninja", "-t", "commands", f"tests/{program}"], cwd=BUILD, check=True,
                                      capture_output=True, text=True).stdout.splitlines()
            # The link stands between other commands of the same line.
            self.links[program] = next(c for c in commands[-1].split(" && ") if f" -o tests/{program} " in c)
        words = shlex.split(self.links[program])
        output = words.index("-o") + 1
        words[output] = str(self.place / program)
        if mutated:
            words.insert(output + 1, str(self.place / "mutant.o"))
        return run(words)

    def passes(self, program):
        return run([str(self.place / program), "--gtest_brief=1"], SECONDS_TO_TEST)


def judge(compiler, path, folder, number, line):
    lines = path.read_text().splitlines()
    lines[number - 1] = line
    if not compiler.compile(path, "\n".join(lines) + "\n"):
        return "does not build"
    for program in programs_for(folder):
        if not compiler.link(program, mutated=True):
            return "does not build"
        if not compiler.passes(program):
            return "killed"
    return "survived"


def main():
    count = int(sys.argv[1]) if len(sys.argv) > 1 else 80
    seed = int(sys.argv[2]) if len(sys.argv) > 2 else 1
    folders = sys.argv[3:] or FOLDERS
    prepare(folders)
    built = compile_commands()
    everything = [(path, folder, *mutant) for folder in folders for path in sorted((ROOT / "src" / folder).glob("*.cpp"))
                  if str(path) in built for mutant in mutants_of(path)]
    results = {"killed": 0, "survived": 0, "does not build": 0}
    with tempfile.TemporaryDirectory() as place, contextlib.suppress(KeyboardInterrupt):
        compiler = Compiler(place)
        for program in {program for folder in folders for program in programs_for(folder)}:
            if not compiler.link(program, mutated=False) or not compiler.passes(program):
                sys.exit(f"{program} fails as it is.")
        print(f"{len(everything)} mutants, of which {count} are tried", flush=True)
        for path, folder, number, line in random.Random(seed).sample(everything, min(count, len(everything))):
            result = judge(compiler, path, folder, number, line)
            results[result] += 1
            if result == "survived":
                print(f"survived: {path.relative_to(ROOT)}:{number}: {line.strip()}", flush=True)
    judged = results["killed"] + results["survived"]
    print(f"{results['killed']} of {judged} killed ({100 * results['killed'] / max(judged, 1):.1f} %), "
          f"{results['does not build']} did not build")


if __name__ == "__main__":
    main()
