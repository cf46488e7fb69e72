#!/usr/bin/env python3
"""opens_nothing_outside.py PROGRAM VIEWER SAMPLES

Imports labels that name other files in every way their formats have, with every system call
written down by strace, and fails when one of those files was opened or looked at, or when
anything but a local socket was made.

PROGRAM is labelport; VIEWER shows files without any care, which proves that the test sees what
it looks for. Ends with 77, for "skipped", where strace is missing or not allowed.
"""

import pathlib
import re
import subprocess
import sys
import tempfile

import hostile_labels

SKIPPED = 77
SYSTEM_CALLS = "%file,%network"
NETWORK = re.compile(r"\b(socket|connect|sendto|bind)\(.*\bAF_(?!UNIX|LOCAL|UNSPEC)[A-Z0-9]+")
FILE_CALL = re.compile(r"\b(open|openat|openat2|creat|stat|lstat|newfstatat|statx|access|faccessat"
                       r"|faccessat2|readlink|readlinkat|execve|inotify_add_watch)\(")


def traced(command, log, **options):
    """Runs a command under strace. Gives its status and the lines of the trace."""
    done = subprocess.run(["strace", "-f", "-qq", "-s", "65536", "-e", f"trace={SYSTEM_CALLS}",
                           "-o", log, *command], stdout=subprocess.PIPE, stderr=subprocess.PIPE,
                          timeout=300, check=False, **options)
    lines = log.read_text(errors="replace").splitlines() if log.exists() else []
    return done, lines


def offences(lines):
    """The lines in which a canary is touched or the network asked for. What a program writes or
    reads is no offence: a message may well name a file."""
    return [line for line in lines
            if NETWORK.search(line) or (FILE_CALL.search(line) and "canary" in line)]


def why_it_cannot_run(folder):
    try:
        done, lines = traced(["true"], folder / "probe.strace")
    except FileNotFoundError:
        return "strace is not installed"
    if done.returncode != 0 or not any("execve(" in line for line in lines):
        return "strace may trace nothing here: " + done.stderr.decode(errors="replace").strip()
    return ""


def write_labels(folder, names, samples, program):
    """All hostile labels, and as many as that."""
    labels = []

    def add(suffix):
        labels.append(folder / f"label{len(labels)}.{suffix}")
        return labels[-1]

    for text in hostile_labels.xml_labels(names):
        add("qmtx").write_bytes(text)
    hostile_labels.packages(names, add)
    add("cnv").write_bytes(hostile_labels.canvas_file(names))
    for sample in ("orvanta/warning_sign.qmtx", "orvanta/book_label.qmtx",
                   "opendocument/rating_plate.odg", "opendocument/shelf_label.odg"):
        subprocess.run([program, "import", samples / sample, "--to", "label", "--force",
                        "--output-dir", folder], check=True, stdout=subprocess.DEVNULL)
        saved = folder / f"{pathlib.Path(sample).stem}.label"
        add("label").write_bytes(hostile_labels.saved_label(names, saved.read_bytes()))
    return labels


def check_viewer(viewer, folder, names):
    """The viewer must be caught, by each of the ways in which a file can be."""
    failures = []
    drawing, text, plain = (folder / name for name in ("seen.svg", "seen.html", "plain.html"))
    drawing.write_bytes(hostile_labels.svg(names, prolog=False))
    text.write_text(hostile_labels.html(names))
    plain.write_text("<p>nothing</p>")
    for file, is_hostile in ((drawing, True), (text, True), (plain, False)):
        _, lines = traced([viewer, file], folder / "viewer.strace", cwd=folder)
        if bool(offences(lines)) != is_hostile:
            failures.append(f"the careless viewer {'was not' if is_hostile else 'was'} caught with "
                            f"{file.name}: the test proves nothing")
    connect = "import socket; socket.socket().connect_ex(('127.0.0.1', 9))"
    _, lines = traced([sys.executable, "-c", connect], folder / "viewer.strace")
    if not offences(lines):
        failures.append("a connection was not noticed: the test proves nothing")
    return failures


def check_labels(program, labels, folder):
    failures = []
    (folder / "out").mkdir()
    command = [program, "import", *labels, "--to", "png,label,svg,pdf", "--dpi", "50",
               "--output-dir", folder / "out"]
    done, lines = traced(command, folder / "import.strace", cwd=folder)
    failures += [f"touched: {line[:300]}" for line in offences(lines)]
    for label in labels:
        if not any(FILE_CALL.search(line) and f"/{label.name}\"" in line for line in lines):
            failures.append(f"{label.name} itself was not opened: the trace is not whole")
    written = {path.stem for path in (folder / "out").glob("*.png")}
    print(f"{len(labels)} labels, {len(written)} imported, {len(lines)} calls, status "
          f"{done.returncode}")
    kinds = {label.suffix for label in labels if label.stem in written}
    if kinds != {".qmtx", ".odg", ".odt", ".cnv", ".label"}:
        failures.append(f"of some formats nothing was imported, only of {sorted(kinds)}: "
                        + done.stderr.decode(errors="replace")[:2000])
    if b"canary-content" in b"".join(path.read_bytes() for path in (folder / "out").iterdir()):
        failures.append("the content of a foreign file is in an output")
    return failures


def main():
    program, viewer, samples = (pathlib.Path(argument).resolve() for argument in sys.argv[1:4])
    with tempfile.TemporaryDirectory(prefix="labelport-outside-") as name:
        folder = pathlib.Path(name)
        reason = why_it_cannot_run(folder)
        if reason:
            print(f"SKIPPED: {reason}. Nothing was tested.")
            return SKIPPED
        names = hostile_labels.Names(folder)
        failures = check_viewer(viewer, folder, names)
        failures += check_labels(program, write_labels(folder, names, samples, program), folder)
    for failure in failures[:40]:
        print(failure)
    print(f"{len(failures)} failures" if failures else "nothing outside was touched")
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
