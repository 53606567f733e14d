#!/usr/bin/env python3
"""Changes one line of a source at a time and looks whether a test notices.

The sources stay as they are: a mutant is a file of its own, compiled and linked in front of the library, or in the
place of the program's own file, first into the tests of its folder, then into those that use it; and into the
programs that these tests start. Prints every survivor, and the score at the end. MUTATE_BUILD names a build that is
there already and compiles every file alone; the default is made under build/mutate.

The sample depends on count, seed, folders and sources only: --list shows it, and --only tries parts of it.
"""
import argparse
import concurrent.futures
import contextlib
import json
import os
import pathlib
import random
import re
import resource
import shlex
import shutil
import signal
import subprocess
import sys
import tempfile
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
BUILD = pathlib.Path(os.environ.get("MUTATE_BUILD", ROOT / "build" / "mutate")).resolve()
LOGIC = ["control", "documents", "colouring", "tools", "words", "settings", "randomizer", "converter"]
FOLDERS = [*LOGIC, "safekeeping", "cli", "host"]
# After the tests of the folder itself come those that use it.
NEIGHBOURS = {"control": ["documents", "settings"], "documents": ["control", "colouring"], "colouring": ["documents"],
              "settings": ["randomizer", "data"], "converter": ["data"], "safekeeping": ["faults", "cli", "host"],
              "host": ["automation"]}
# The programs that tests start, and the variable that names another one to them.
STARTED = {"test_cli": [("src/cli/tessel", "TESSEL_PROGRAM")],
           "test_host": [("src/host/zanth-manager", "TESSEL_HOST_PROGRAM")]}
# Left out: what measures time, which is no fault of the mutant's, and what takes minutes.
FILTERS = {"test_safekeeping": "-*TakesNoTime*", "test_cli": "-*Scaling*",
           "test_faults": "-SizeTest.*:KillTest.*:*Locale*:FileThatOthersChange.*"}
QT_FOLDERS = {"host", "automation"}
SECONDS_TO_TEST = 60  # at least
TIMES_AS_LONG = 5
BYTES_OF_MEMORY = 16 << 30

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


def limit_memory():
    resource.setrlimit(resource.RLIMIT_AS, (BYTES_OF_MEMORY, BYTES_OF_MEMORY))


def exit_status(command, seconds, environment=None, prepare=None):
    """None when it takes longer than that; what it has started ends with it."""
    process = subprocess.Popen(command, cwd=BUILD, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                               stderr=subprocess.DEVNULL, env=environment, process_group=0, preexec_fn=prepare)
    try:
        return process.wait(seconds)
    except subprocess.TimeoutExpired:
        return None
    finally:
        with contextlib.suppress(ProcessLookupError):
            os.killpg(process.pid, signal.SIGKILL)
        process.wait()


def run(command, seconds=600):
    return exit_status(command, seconds) == 0


def programs_for(folder):
    return [f"test_{name}" for name in [folder, *NEIGHBOURS.get(folder, [])]]


def fastest_linker():
    return next((f"-fuse-ld={name}" for name in ["mold", "lld"] if shutil.which(name)), "")


def programs_of(folders):
    return sorted({program for folder in folders for program in programs_for(folder)})


def configure(folders):
    BUILD.mkdir(parents=True, exist_ok=True)
    with_qt = any(f"test_{folder}" in programs_of(folders) for folder in QT_FOLDERS)
    linker = [f"-DCMAKE_{kind}_LINKER_FLAGS={fastest_linker()}" for kind in ["EXE", "MODULE", "SHARED"]]
    if not run(["cmake", "-S", str(ROOT), "-B", str(BUILD), "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Debug",
                "-DCMAKE_CXX_FLAGS_DEBUG=-O0", "-DTESSEL_HARDENING=OFF", "-DTESSEL_TESTS=ON",
                f"-DTESSEL_QT={'ON' if with_qt else 'OFF'}", *linker]):
        sys.exit("The build cannot be configured.")


def build_tests(folders):
    if not run(["cmake", "--build", str(BUILD), "--target", *programs_of(folders)], 7200):
        sys.exit("The tree does not build as it is.")


class Build:
    """How the tree is compiled and linked."""

    def __init__(self):
        entries = json.loads((BUILD / "compile_commands.json").read_text())
        self.compiles = {entry["file"]: entry["command"] for entry in entries if "/tests/" not in entry["file"]}
        self.links = {}

    def link_of(self, target):
        if target not in self.links:
            commands = subprocess.run(["ninja", "-t", "commands", target], cwd=BUILD, check=True,
                                      capture_output=True, text=True).stdout.splitlines()
            # The link stands between other commands of the same line.
            link = next(c for c in commands[-1].split(" && ") if f" -o {target} " in c)
            self.links[target] = shlex.split(link)
        return self.links[target]

    def with_mutant(self, target, source, mutant, output):
        """The link of a program with the mutant in the place of the source; None for one without that source."""
        words = list(self.link_of(target))
        compiled = shlex.split(self.compiles[str(source)])
        own_object = compiled[compiled.index("-o") + 1]
        library = re.sub(r"CMakeFiles/(.*)\.dir/.*", r"lib\1.a", own_object)
        words[words.index("-o") + 1] = output
        if own_object in words:
            words[words.index(own_object)] = mutant
        elif library in words:
            words.insert(words.index("-o") + 2, mutant)
        else:
            return None
        return words


class Trial:
    """Compiles a mutant, links it into test programs and what they start, and runs these."""

    def __init__(self, build, place, seconds):
        self.build = build
        self.place = pathlib.Path(place)
        self.seconds = seconds

    def compile(self, source, text):
        mutant = self.place / source.name
        mutant.write_text(text)
        words = [word for word in shlex.split(self.build.compiles[str(source)]) if "ccache" not in word]
        words[words.index("-o") + 1] = str(self.place / "mutant.o")
        words = [str(mutant) if word == str(source) else word for word in words]
        return run([*words, "-O0", "-Wno-error"])

    def link(self, target, source):
        """Whether it can be linked, and the program to run."""
        output = self.place / pathlib.Path(target).name
        words = self.build.with_mutant(target, source, str(self.place / "mutant.o"), str(output))
        return (True, BUILD / target) if words is None else (run(words), output)

    def test(self, program, source):
        """What becomes of the mutant."""
        linked, path = self.link(f"tests/{program}", source)
        environment = dict(os.environ)
        for target, variable in STARTED.get(program, []):
            linked_too, environment[variable] = self.link(target, source)
            linked = linked and linked_too
        if not linked:
            return "does not build"
        status = run_tests(program, path, environment, self.seconds[program])
        return {0: "survived", None: "took too long"}.get(status, "failed a test")


def run_tests(program, path, environment, seconds):
    with tempfile.TemporaryDirectory() as files:
        os.chmod(files, 0o755)
        return exit_status([str(path), "--gtest_brief=1", "--gtest_fail_fast",
                            f"--gtest_filter={FILTERS.get(program, '*')}"],
                           seconds, {**environment, "TMPDIR": files}, limit_memory)


def seconds_for(program):
    """How long it may take with a mutant."""
    start = time.monotonic()
    if run_tests(program, BUILD / "tests" / program, os.environ, 600) != 0:
        sys.exit(f"{program} fails as it is.")
    return max(SECONDS_TO_TEST, TIMES_AS_LONG * (time.monotonic() - start))


def judge(build, seconds, path, folder, number, line):
    lines = path.read_text().splitlines()
    lines[number - 1] = line
    # Programs find the templates from where those of the build are.
    with tempfile.TemporaryDirectory(prefix="mutant-", dir=BUILD / "src") as place:
        trial = Trial(build, place, seconds)
        if not trial.compile(path, "\n".join(lines) + "\n"):
            return "does not build"
        for program in programs_for(folder):
            result = trial.test(program, path)
            if result != "survived":
                return result
    return "survived"


def numbers_in(ranges):
    """1-3,7 are 1, 2, 3 and 7."""
    for part in ranges.split(","):
        first, _, last = part.partition("-")
        yield from range(int(first), int(last or first) + 1)


def arguments():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("count", nargs="?", type=int, default=80)
    parser.add_argument("seed", nargs="?", type=int, default=1)
    parser.add_argument("folders", nargs="*", metavar="folder", help=f"of {', '.join(FOLDERS)}; all")
    parser.add_argument("--list", action="store_true", help="show the sample and try nothing")
    parser.add_argument("--only", metavar="1-3,7", help="try these numbers of the list only")
    parser.add_argument("--jobs", type=int, default=1, help="how many at a time")
    return parser.parse_args()


def main():
    asked = arguments()
    folders = asked.folders or FOLDERS
    if "MUTATE_BUILD" not in os.environ:
        configure(folders)
    build = Build()
    everything = [(path, folder, *mutant) for folder in folders
                  for path in sorted((ROOT / "src" / folder).rglob("*.cpp"))
                  if str(path) in build.compiles for mutant in mutants_of(path)]
    sample = random.Random(asked.seed).sample(everything, min(asked.count, len(everything)))
    print(f"{len(everything)} mutants, of which {len(sample)} are the sample", flush=True)
    chosen = sorted(set(numbers_in(asked.only))) if asked.only else range(1, len(sample) + 1)

    def told(index):
        path, _, number, line = sample[index - 1]
        return f"{index}: {path.relative_to(ROOT)}:{number}: {line.strip()}"

    if asked.list:
        print(*map(told, chosen), sep="\n")
        return
    if "MUTATE_BUILD" not in os.environ:
        build_tests(folders)
    seconds = {program: seconds_for(program) for program in programs_of({folder for _, folder, *_ in sample})}
    results = {"failed a test": 0, "took too long": 0, "survived": 0, "does not build": 0}
    with concurrent.futures.ThreadPoolExecutor(asked.jobs) as pool:
        tried = {pool.submit(judge, build, seconds, *sample[index - 1]): index for index in chosen}
        for trial in concurrent.futures.as_completed(tried):
            results[trial.result()] += 1
            if trial.result() == "survived":
                print(f"survived: {told(tried[trial])}", flush=True)
    killed = results["failed a test"] + results["took too long"]
    judged = killed + results["survived"]
    print(f"{killed} of {judged} killed ({100 * killed / max(judged, 1):.1f} %), {results['took too long']} of them by "
          f"taking too long; {results['does not build']} did not build")


if __name__ == "__main__":
    main()
