#!/usr/bin/env python3
"""terminal_names.py PROGRAM SAMPLE

Control characters in file names must not reach a terminal, where they could change its colors, its
title or its input. In a pipe, names are printed byte for byte, for other programs.
"""

import os
import pty
import shutil
import subprocess
import sys
import tempfile

# The progress line has colors of its own, but not this one.
ESCAPE = b"\x1b[35m"


def on_terminal(command, folder):
    """What the command prints on a terminal."""
    terminal, side = pty.openpty()
    with subprocess.Popen(command, cwd=folder, stdin=subprocess.DEVNULL, stdout=side,
                          stderr=side) as process:
        os.close(side)
        printed = b""
        while True:
            try:
                block = os.read(terminal, 65536)
            except OSError:  # the program has closed its end
                break
            if not block:
                break
            printed += block
        process.wait()
    os.close(terminal)
    return printed


def main():
    program, sample = sys.argv[1:]
    with tempfile.TemporaryDirectory() as folder:
        good = b"esc" + ESCAPE + b"RED.cnv"
        bad = b"bad" + ESCAPE + b"RED.cnv"
        shutil.copy(sample, os.path.join(os.fsencode(folder), good))
        with open(os.path.join(os.fsencode(folder), bad), "wb") as damaged:
            damaged.write(b"not a label")
        command = [program, "import", good, bad, "--output-dir", "new"]

        shown = on_terminal(command, folder)
        if b"RED.png" not in shown or b"bad" not in shown:
            sys.exit(f"names are missing: {shown!r}")
        if ESCAPE in shown:
            sys.exit(f"an escape sequence of a name reached the terminal: {shown!r}")

        piped = subprocess.run(command + ["--force"], cwd=folder, check=False, capture_output=True)
        if ESCAPE not in piped.stdout:
            sys.exit(f"a pipe must get the name unchanged: {piped.stdout!r}")


if __name__ == "__main__":
    main()
