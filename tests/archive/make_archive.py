#!/usr/bin/env python3
"""Makes an archive of many labels, imports it, and does to the import what a bad day would do.

make_archive.py make FOLDER COUNT SOURCE...
    writes COUNT labels below FOLDER, in subfolders: copies of those found below the SOURCEs with
    small changes that keep them readable; 1 in 50 is damaged

make_archive.py check OUTPUT SUFFIX
    checks that every output is whole: pictures decode to their last row, saved labels are whole
    JSON; that nothing half done lies about; tells how many outputs there are

make_archive.py torment PROGRAM FOLDER OUTPUT [OPTION...]
    imports with --resume again and again; kills workers and, in the end, the import itself
    with SIGKILL at random moments, until an import comes to its end; then checks as above

Everything random comes from the COUNT or the seed in LABELPORT_SEED, so that an archive is the
same every time.
"""

import json
import os
import pathlib
import random
import signal
import subprocess
import sys
import tempfile
import time
import zlib

SUFFIXES = {".cnv", ".roc", ".qmtx", ".odt", ".odg"}
DAMAGED_EVERY = 50


def samples(sources):
    found = []
    for source in sources:
        found += [path for path in sorted(pathlib.Path(source).rglob("*"))
                  if path.is_file() and path.suffix.lower() in SUFFIXES]
    if not found:
        sys.exit("there are no labels in " + " ".join(map(str, sources)))
    return found


def varied(content, suffix, number):
    """The label with a small change that every reader takes."""
    if suffix == ".qmtx" and b"\0" not in content:  # some are in UTF-16
        return content + b"<!-- %d -->\n" % number
    return content


def damaged(content, chance):
    """The label cut off, or with some bytes changed, or with nothing of it left."""
    kind = chance.randrange(3)
    if kind == 0:
        return content[:chance.randrange(len(content))]
    if kind == 1:
        changed = bytearray(content)
        for _ in range(20):
            changed[chance.randrange(len(changed))] = chance.randrange(256)
        return bytes(changed)
    return bytes(chance.randrange(256) for _ in range(200))


def make(folder, count, sources):
    chance = random.Random(count)
    originals = [(path.suffix, path.read_bytes()) for path in samples(sources)]
    for number in range(count):
        suffix, content = originals[number % len(originals)]
        content = varied(content, suffix, number)
        if number % DAMAGED_EVERY == DAMAGED_EVERY - 1:
            content = damaged(content, chance)
        path = pathlib.Path(folder, f"shelf{number % 97:02}", f"box{number % 7}",
                            f"label{number:06}{suffix}")
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(content)
    print(f"{count} labels, {count // DAMAGED_EVERY} of them damaged")


def picture_error(content):
    """Why a PNG picture is not whole; None when it is."""
    if not content.startswith(b"\x89PNG\r\n\x1a\n"):
        return "is not a picture"
    place, data, last = 8, b"", b""
    while place + 12 <= len(content):
        length = int.from_bytes(content[place:place + 4], "big")
        last = content[place + 4:place + 8]
        body = content[place + 4:place + 8 + length]
        if zlib.crc32(body) != int.from_bytes(content[place + 8 + length:place + 12 + length], "big"):
            return "has a damaged part"
        if last == b"IDAT":
            data += body[4:]
        place += 12 + length
    if last != b"IEND" or place != len(content):
        return "has no end"
    zlib.decompress(data)
    return None


def output_error(path):
    content = path.read_bytes()
    try:
        if path.suffix == ".png":
            return picture_error(content)
        if path.suffix == ".label":
            json.loads(content)
        return None
    except (ValueError, zlib.error) as error:
        return str(error)


def check(output, suffix):
    """Names what is not whole; the number of outputs."""
    outputs, errors = 0, []
    for path in sorted(pathlib.Path(output).rglob("*")):
        if path.is_dir():
            if path.name.startswith(".labelport-work"):
                errors.append(f"{path} was left behind")
        elif path.suffix == suffix:
            outputs += 1
            error = output_error(path)
            if error:
                errors.append(f"{path} {error}")
        elif not path.name.startswith(".labelport-journal"):
            errors.append(f"{path} is none of ours")
    for error in errors:
        print(error)
    print(f"{outputs} outputs, {len(errors)} of them incomplete or unexpected")
    return 1 if errors or not outputs else 0


def children_of(pid):
    try:
        return [int(child) for child in
                pathlib.Path(f"/proc/{pid}/task/{pid}/children").read_text().split()]
    except OSError:
        return []


def kill(pid):
    try:
        os.kill(pid, signal.SIGKILL)
    except ProcessLookupError:
        pass


def peak_memory(pid):
    """KiB that a process held at most; 0 when it is gone."""
    try:
        for line in pathlib.Path(f"/proc/{pid}/status").read_text().splitlines():
            if line.startswith("VmHWM:"):
                return int(line.split()[1])
    except OSError:
        pass
    return 0


def torment(program, folder, output, options):
    chance = random.Random(int(os.environ.get("LABELPORT_SEED", "1")))
    rounds = int(os.environ.get("LABELPORT_ROUNDS", "3"))
    kills = deaths = 0
    peaks = {"coordinator": 0, "worker": 0}
    while True:
        command = [program, "import", folder, "--output-dir", output, "--resume", "--quiet", *options]
        # A file, not a pipe: a pipe would fill up, because it is read only at the end.
        said = tempfile.TemporaryFile()
        process = subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=said)
        while process.poll() is None:
            time.sleep(chance.uniform(0.02, 0.3))
            workers = children_of(process.pid)
            peaks["coordinator"] = max(peaks["coordinator"], peak_memory(process.pid))
            for worker in workers:
                peaks["worker"] = max(peaks["worker"], peak_memory(worker))
            if rounds and chance.random() < 0.03:
                kill(process.pid)
                rounds -= 1
                deaths += 1
                break
            # Rarely enough that no file meets it twice: that would count as its own crash.
            if rounds and workers and chance.random() < 0.2:
                kill(chance.choice(workers))
                kills += 1
        process.wait()
        said.seek(0)
        messages = said.read().decode(errors="replace")
        if process.returncode in (0, 1):
            break
    print(f"killed: {kills} workers, {deaths} imports; peak memory in KiB: {peaks}")
    print(messages[-200:].strip())
    suffix = "." + (options[options.index("--to") + 1] if "--to" in options else "png")
    return check(output, suffix)


def main():
    if len(sys.argv) > 4 and sys.argv[1] == "make":
        return make(sys.argv[2], int(sys.argv[3]), sys.argv[4:])
    if len(sys.argv) == 4 and sys.argv[1] == "check":
        return check(sys.argv[2], sys.argv[3])
    if len(sys.argv) > 4 and sys.argv[1] == "torment":
        return torment(sys.argv[2], sys.argv[3], sys.argv[4], sys.argv[5:])
    sys.exit(__doc__)


if __name__ == "__main__":
    sys.exit(main())
