#!/usr/bin/env python3
"""Starts Zanth Manager, the least program with the same widget, and the editors that are installed, in turn with the
same file on a display of their own: bench/peers.py BUILD [--megabytes 0.06 10] [--rounds 5]

Prints the medians over the rounds, each also as a multiple of the least program's:
painted  milliseconds from the start until the last change of one pixel in a hundred (so neither a blinking caret nor
         small marks count)
CPU      milliseconds of the processor until the picture has stood still for a while
PSS      memory in MiB then, shared pages in parts
"""
import argparse
import mmap
import operator
import os
import pathlib
import shutil
import signal
import statistics
import struct
import subprocess
import sys
import tempfile
import time

PEERS = {"SciTE": ["scite"], "FeatherPad": ["featherpad", "--standalone"], "Geany": ["geany", "-i"],
         "Kate": ["kate", "-n"], "Mousepad": ["mousepad"]}
WIDTH, HEIGHT = 1024, 700
PIXELS_FOR_ONE_CHANGE = 100
SECONDS_OF_REST = 2
SECONDS_AT_MOST = 60


class Display:
    """A virtual screen whose pixels lie in a file."""

    def __init__(self, number, folder):
        self.name = f":{number}"
        self.server = subprocess.Popen(["Xvfb", self.name, "-screen", "0", f"{WIDTH}x{HEIGHT}x24", "-fbdir", folder,
                                        "-nolisten", "tcp"], stderr=subprocess.DEVNULL)
        path = pathlib.Path(folder, "Xvfb_screen0")
        size = WIDTH * HEIGHT * 4
        give_up = time.monotonic() + 10
        while not path.exists() or path.stat().st_size <= size or not pathlib.Path(f"/tmp/.X11-unix/X{number}").exists():
            if time.monotonic() > give_up:
                sys.exit("Xvfb does not start.")
            time.sleep(0.05)
        with open(path, "rb") as screen:
            self.memory = mmap.mmap(screen.fileno(), 0, prot=mmap.PROT_READ)
        # An X window dump begins with its header's length; its 20th number counts the colours behind the header.
        header = struct.unpack(">20I", self.memory[:80])
        begin = header[0] + 12 * header[19]
        self.pixels = slice(begin, begin + size)

    def picture(self):
        return self.memory[self.pixels]

    def close(self):
        self.server.terminate()
        self.server.wait()


def is_another(before, after):
    """Whether one pixel in a hundred differs, of some that stand for all."""
    if before == after:
        return False
    before, after = (memoryview(picture).cast("I")[::7] for picture in (before, after))
    return sum(map(operator.ne, before, after)) * PIXELS_FOR_ONE_CHANGE > len(before)


def seconds_to_painted(display, begin):
    picture, painted = display.picture(), None
    while time.monotonic() - (painted or begin) < (SECONDS_OF_REST if painted else SECONDS_AT_MOST):
        now, shown = time.monotonic(), display.picture()
        if is_another(picture, shown):
            picture, painted = shown, now
        time.sleep(0.002)
    return painted - begin if painted else None


def family(pid):
    """A process and those that it has started."""
    parents = {}
    for entry in filter(str.isdigit, os.listdir("/proc")):
        try:
            stat = pathlib.Path("/proc", entry, "stat").read_text()
            parents[int(entry)] = int(stat.rsplit(")", 1)[1].split()[1])
        except OSError:
            pass  # it has ended
    found = [pid]
    for member in found:
        found += [child for child, parent in parents.items() if parent == member]
    return found


def cpu_seconds(pid):
    fields = pathlib.Path(f"/proc/{pid}/stat").read_text().rsplit(")", 1)[1].split()
    return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")


def mebibytes(pid):
    lines = pathlib.Path(f"/proc/{pid}/smaps_rollup").read_text().splitlines()
    return next(int(line.split()[1]) for line in lines if line.startswith("Pss:")) / 1024


def measure(command, display):
    """painted, CPU, PSS"""
    with tempfile.TemporaryDirectory() as home:
        environment = {**os.environ, "DISPLAY": display.name, "HOME": home, "QT_QPA_PLATFORM": "xcb",
                       "NO_AT_BRIDGE": "1",
                       **{f"XDG_{kind}_HOME": f"{home}/{kind}" for kind in ["CONFIG", "DATA", "STATE", "CACHE"]}}
        begin = time.monotonic()
        process = subprocess.Popen(command, env=environment, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                                   stderr=subprocess.DEVNULL, start_new_session=True)
        try:
            painted = seconds_to_painted(display, begin)
            if painted is None or process.poll() is not None:
                sys.exit(f"{command[0]} shows nothing.")
            members = family(process.pid)
            return 1000 * painted, 1000 * sum(map(cpu_seconds, members)), sum(map(mebibytes, members))
        finally:
            os.killpg(process.pid, signal.SIGKILL)
            process.wait()
            time.sleep(0.3)  # its windows go


def text_of(tessel, size):
    """Templates, one behind the other, as often as they make up the size."""
    templates = b"".join(subprocess.run([tessel, "new", name], stdout=subprocess.PIPE, check=True).stdout
                         for name in ["13DU", "13DG"])
    return (templates * (size // len(templates) + 1))[:size]


def print_table(results):
    least = results["least program"]
    print(f"{'':16}" + "".join(f"{title:>16}" for title in ["painted", "CPU", "PSS"]))
    for name, figures in results.items():
        print(f"{name:16}" + "".join(f"{figure:8.0f} ({figure / base:4.1f})"
                                     for figure, base in zip(figures, least)), flush=True)


def arguments():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("build", type=pathlib.Path)
    parser.add_argument("--megabytes", type=float, nargs="+", default=[0.06, 10])
    parser.add_argument("--rounds", type=int, default=5)
    parser.add_argument("--display", type=int, default=77)
    return parser.parse_args()


def main():
    asked = arguments()
    build = asked.build.resolve()
    with tempfile.TemporaryDirectory() as folder:
        programs = {"Zanth Manager": [build / "src/host/zanth-manager", "--store", f"{folder}/settings"],
                    "least program": [build / "bench/least_editor"],
                    **{name: command for name, command in PEERS.items() if shutil.which(command[0])}}
        display = Display(asked.display, folder)
        try:
            for size in asked.megabytes:
                path = pathlib.Path(folder, "User.con")
                path.write_bytes(text_of(build / "src/cli/tessel", int(size * 1e6)))
                rounds = [{name: measure([*command, path], display) for name, command in programs.items()}
                          for _ in range(asked.rounds)]
                print(f"\n{size:g} MB, load {os.getloadavg()[0]:.0f}")
                print_table({name: [statistics.median(figures) for figures in zip(*(r[name] for r in rounds))]
                             for name in programs})
        finally:
            display.close()


if __name__ == "__main__":
    main()
