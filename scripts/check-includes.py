#!/usr/bin/env python3
"""Compiles each source of the project alone, without making anything, and names those that lack an include.

The presets compile several sources as one piece, in which a file may live on what its neighbour includes. This
takes several minutes, so it is run by hand, before a release.

    cmake -S . -B build/includes -G Ninja -DCMAKE_EXPORT_COMPILE_COMMANDS=ON -DQUILLON_RUNTIME=OFF
    scripts/check-includes.py build/includes
"""

import concurrent.futures
import json
import os
import pathlib
import shlex
import subprocess
import sys


def compile_alone(entry):
    command = shlex.split(entry["command"])
    output = command.index("-o")
    del command[output : output + 2]
    if pathlib.Path(command[0]).name == "ccache":
        del command[0]
    done = subprocess.run(
        [*command, "-fsyntax-only"], cwd=entry["directory"], capture_output=True, text=True, check=False
    )
    return entry["file"], done.returncode, done.stderr


def main():
    build = pathlib.Path(sys.argv[1])
    entries = json.loads((build / "compile_commands.json").read_text())
    entries = [entry for entry in entries if "CMakeFiles" not in entry["file"]]
    if not entries:
        sys.exit("There is nothing to compile.")
    failed = 0
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for file, code, errors in pool.map(compile_alone, entries):
            if code != 0:
                failed += 1
                print(f"{file}:\n{errors}")
    print(f"{len(entries)} files, {failed} of them do not compile alone")
    sys.exit(failed != 0)


main()
