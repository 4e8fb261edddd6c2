#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 Ravel developers
# SPDX-License-Identifier: GPL-2.0-or-later
"""clang-tidy over the product's sources: tools/tidy.py BUILD [FOLDER...]

The sources of a folder are checked as one translation unit, since most of the time goes into the
headers that they share. So a name in an anonymous namespace stands for one thing in its folder.
"""

import bisect
import concurrent.futures
import json
import os
import re
import shlex
import subprocess
import sys

# The largest first, so that all processors are busy to the end.
FOLDERS = (
    "cli", "ui", "network", "repository", "lint", "core", "install", "descriptor", "archive",
    "host", "plume",
)


def compile_arguments(build):
    """What the compiler is given for each source file, without the files themselves."""
    with open(os.path.join(build, "compile_commands.json"), encoding="utf-8") as file:
        for entry in json.load(file):
            arguments = shlex.split(entry["command"])
            start = next(i for i, argument in enumerate(arguments) if argument.endswith("++"))
            arguments = arguments[start:arguments.index("-o")]
            # Those of g++ are none for clang.
            if "-include" in arguments:
                at = arguments.index("-include")
                del arguments[at:at + 2]
            yield entry["file"], arguments


class Unit:
    """The sources of one folder as one file."""

    def __init__(self, root, folder, known, work):
        self.path = os.path.join(work, folder + ".cpp")
        self.sources = sorted(
            path for path in known if os.path.relpath(path, root).split("/")[:-1] == [folder])
        if not self.sources:
            sys.exit(f"tidy: no source in {folder} is built")
        self.arguments = known[self.sources[0]]
        self.starts = []
        line = 1
        with open(self.path, "w", encoding="utf-8") as whole:
            for source in self.sources:
                self.starts.append(line)
                with open(source, encoding="utf-8") as file:
                    text = file.read()
                whole.write(text)
                line += text.count("\n")
                # Those of single programs, such as the version.
                self.arguments += [
                    argument for argument in known[source]
                    if argument.startswith("-D") and argument not in self.arguments]

    def check(self, work):
        result = subprocess.run(
            ["clang-tidy", "-p", work, "--quiet", self.path],
            stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True, check=False)
        if result.returncode != 0:
            print(self.named(result.stdout or result.stderr), end="", flush=True)
        return result.returncode == 0

    def named(self, output):
        """With the lines of the true files."""
        def place(match):
            line = int(match[1])
            index = bisect.bisect_right(self.starts, line) - 1
            return f"{self.sources[index]}:{line - self.starts[index] + 1}:"
        return re.sub(re.escape(self.path) + r":(\d+):", place, output)


def main():
    root = os.path.dirname(os.path.dirname(os.path.realpath(__file__)))
    build = os.path.realpath(sys.argv[1])
    known = dict(compile_arguments(build))
    work = os.path.join(build, "tidy")
    os.makedirs(work, exist_ok=True)
    units = [Unit(root, folder, known, work) for folder in sys.argv[2:] or FOLDERS]
    with open(os.path.join(work, "compile_commands.json"), "w", encoding="utf-8") as file:
        json.dump([{"directory": root, "file": unit.path,
                    "arguments": [*unit.arguments, "-c", unit.path]} for unit in units], file)
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        clean = list(pool.map(lambda unit: unit.check(work), units))
    sys.exit(0 if all(clean) else 1)


if __name__ == "__main__":
    main()
