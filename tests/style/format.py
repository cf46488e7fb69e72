#!/usr/bin/env python3
"""format.py CLANG_FORMAT PROJECT: fails if clang-format would change a C++ file of the project."""

import os
import pathlib
import re
import subprocess
import sys

FOLDERS = ("library", "hosts", "tools", "programs", "translations", "samples", "examples", "tests",
           "fuzz", "bench")


def main():
    clang_format, project = sys.argv[1], pathlib.Path(sys.argv[2]).resolve()
    files = sorted(str(path) for folder in FOLDERS for path in (project / folder).rglob("*.[ch]*")
                   if path.suffix in (".h", ".cpp"))
    if len(files) < 500:
        sys.exit(f"only {len(files)} files in {project}")
    # A few processes, each with a part of the files.
    parts = [files[i::os.cpu_count()] for i in range(os.cpu_count())]
    running = [subprocess.Popen([clang_format, "--dry-run", *part], stderr=subprocess.PIPE, text=True)
               for part in parts]
    output = "".join(process.communicate()[1] for process in running)
    if any(process.returncode for process in running):
        sys.exit(output)
    faulty = sorted(set(re.findall(r"^(/[^:\n]+):\d+:\d+: warning", output, re.MULTILINE)))
    if faulty:
        names = "\n  ".join(os.path.relpath(name, project) for name in faulty)
        sys.exit(f"Not formatted:\n  {names}\nRun: {clang_format} -i FILE...")


main()
