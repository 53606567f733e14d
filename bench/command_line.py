#!/usr/bin/env python3
"""Times tessel beside cat and grep on the same file: bench/command_line.py TESSEL [MEGABYTES]

Prints for each command the processor's seconds, the least of three runs, how many times as long as
"cat" and "grep -c" that is, and the most memory as a multiple of the file.
"""
import os
import subprocess
import sys
import tempfile

RUNS = 3
COMMANDS = [
    ["get", "FILE", "MAXPLAYERHEALTH"],
    ["set", "FILE", "MAXPLAYERHEALTH=5"],
    ["settings", "FILE"],
    ["levels", "FILE"],
    ["randomize", "FILE", "--section", "All", "--lower", "1", "--upper", "5"],
    ["convert", "FILE"],
    ["check", "FILE"],
    ["check", "GAME"],
]


def measured(command):
    """Seconds of the processor and bytes of memory, the least of several runs."""
    results = []
    for _ in range(RUNS):
        # Not to the null device: grep would read no further than its first hit.
        with tempfile.TemporaryFile() as output:
            process = subprocess.Popen(command, stdout=output, stderr=subprocess.PIPE)
            complaint = process.stderr.read().decode(errors="replace")
            _, status, used = os.wait4(process.pid, 0)
            process.returncode = os.waitstatus_to_exitcode(status)
        if process.returncode != 0:
            sys.exit(f"{' '.join(command)}: {complaint}")
        results.append((used.ru_utime + used.ru_stime, used.ru_maxrss * 1024))
    return min(seconds for seconds, _ in results), min(memory for _, memory in results)


def put_file(tessel, path, size):
    """A template, once, and behind it as many other defines as make up the size."""
    text = subprocess.run([tessel, "new", "13DU"], stdout=subprocess.PIPE, check=True).stdout
    with open(path, "wb") as file:
        file.write(text)
        number = 0
        while file.tell() < size:
            file.write(b"".join(b"define OTHERNAME%d %d  // of a mod\r\n" % (i, i)
                                for i in range(number, number + 10000)))
            number += 10000


BLOCK = b"""action WALKS# 0 4 5 1 12
move RUNS# 160 -8
ai SEEKS# WALKS# RUNS# seekplayer

// Something hits it.
state hit#
  ifwasweapon ICEBOLT
  {
    sound ICE_CRACKING
    spritepal PAL_FROZEN
    strength 0
    resetcount
  }
  else
    ifrnd 64
      soundonce TROOP_PAIN
ends

actor 1# TROOPSTRENGTH WALKS#
  fall
  ifai 0
    ai SEEKS#
  ifpdistl RETRIEVEDISTANCE
    ifcanseetarget
      addphealth -2
  ifhitweapon
    state hit#
enda

""".replace(b"\n", b"\r\n")


def put_game(tessel, path, size):
    """A template, once, and behind it as many other actors as make up the size."""
    text = subprocess.run([tessel, "new", "13DG"], stdout=subprocess.PIPE, check=True).stdout
    with open(path, "wb") as file:
        file.write(text)
        number = 0
        while file.tell() < size:
            file.write(b"".join(BLOCK.replace(b"#", b"%d" % i) for i in range(number, number + 1000)))
            number += 1000


def main():
    tessel = os.path.abspath(sys.argv[1])
    size = int(sys.argv[2] if len(sys.argv) > 2 else 50) * 1_000_000
    with tempfile.TemporaryDirectory() as folder:
        path = os.path.join(folder, "large.con")
        put_file(tessel, path, size)
        game = os.path.join(folder, "game.con")
        put_game(tessel, game, size)
        size = os.path.getsize(path)
        cat, _ = measured(["cat", path])
        grep, _ = measured(["grep", "-c", "MAXPLAYERHEALTH", path])
        print(f"{size / 1e6:.0f} MB: cat {cat:.3f} s, grep -c {grep:.3f} s")
        for command in COMMANDS:
            words = [{"FILE": path, "GAME": game}.get(word, word) for word in command]
            seconds, memory = measured([tessel, *words])
            print(f"{command[0]:10} {command[1]:5} {seconds:6.3f} s {seconds / max(cat, 1e-3):6.0f} cat "
                  f"{seconds / max(grep, 1e-3):6.1f} grep {size / 1e6 / seconds:6.0f} MB/s "
                  f"{memory / size:5.1f} files of memory")


main()
