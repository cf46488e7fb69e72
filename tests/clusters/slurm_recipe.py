#!/usr/bin/env python3
"""Runs the Slurm recipe of docs/recipes.md as it is printed, on a real Slurm of one machine.

slurm_recipe.py BIN RECIPES SAMPLES

200 files in 8 array tasks. One task is requeued while it imports, which kills it. What the tasks
write must be what one import writes, and so must the merged report.
"""

import os
import pathlib
import re
import shutil
import signal
import subprocess
import sys
import tempfile

from slurm_cluster import Cluster, Unavailable, until

FILES = 200
TASKS = 8
SECONDS = 240  # for all tasks; about 20 are usual


def blocks(text, heading):
    """The blocks of shell code below a heading."""
    below = text.split(f"\n## {heading}\n", 1)[1].split("\n## ", 1)[0]
    return re.findall(r"```sh\n(.*?)```", below, re.DOTALL)


def make_archive(samples, archive):
    """Copies of the samples that do not show the time, which would differ between two imports."""
    sources = sorted(path for folder in ("tavrel", "opendocument")
                     for path in (samples / folder).iterdir()
                     if path.suffix in (".cnv", ".roc", ".odt", ".odg"))
    for number in range(FILES):
        source = sources[number % len(sources)]
        target = archive / f"{number % 5}" / f"{source.stem}-{number}{source.suffix}"
        target.parent.mkdir(parents=True, exist_ok=True)
        shutil.copy(source, target)


def importing_tasks(folder):
    """The processes that import the parts of an archive in a folder: {number of the part: process}."""
    found = {}
    for entry in pathlib.Path("/proc").glob("[0-9]*"):
        try:
            arguments = (entry / "cmdline").read_bytes().decode(errors="replace").split("\0")
            if "--shard" in arguments and os.readlink(entry / "cwd") == str(folder):
                part = int(arguments[arguments.index("--shard") + 1].split("/")[0])
                found[part] = int(entry.name)
        except OSError:
            pass  # it has ended
    return found


def written_by(folder, part):
    """How many files of a part are finished: the lines of its journal."""
    journal = folder / "new" / f".labelport-journal-{part}-of-{TASKS}.jsonl"
    return len(journal.read_bytes().splitlines()) if journal.exists() else 0


def stop_halfway(folder):
    """Stops the first task that has written some of its files, and returns its number."""
    for part, process in importing_tasks(folder).items():
        try:
            os.kill(process, signal.SIGSTOP)
            if 0 < written_by(folder, part) < FILES // TASKS // 2:
                return part
            os.kill(process, signal.SIGCONT)
        except ProcessLookupError:
            pass  # it has ended
    return None


def contents(folder):
    return {str(path.relative_to(folder)): path.read_bytes() for path in (folder / "new").rglob("*")
            if path.suffix in (".png", ".label")}


def expect(condition, message):
    if not condition:
        sys.exit(message)


def run(script, folder, environment):
    """Runs a script, which must succeed, and returns its output."""
    done = subprocess.run(["bash", "-c", script], cwd=folder, env=environment, check=False,
                          capture_output=True, text=True)
    expect(done.returncode == 0, f"status {done.returncode} of\n{script}\n{done.stdout}{done.stderr}")
    return done.stdout


def requeue_one(cluster, job, folder):
    """Requeues a task that has written some of its files. Returns its number."""
    part = until(lambda: stop_halfway(folder), "a task that has written some of its files", 60)
    refused = cluster.output("scontrol", "requeue", f"{job}_{part}")
    # Slurm continues the process itself, then ends it.
    expect(not refused, f"scontrol requeue: {refused}")
    until(lambda: part not in importing_tasks(folder), f"the end of task {part}")
    finished = written_by(folder, part)
    expect(finished < FILES // TASKS, f"task {part} was not interrupted: it wrote {finished} files")
    return part


def import_on(cluster, text, folder, environment):
    script, submit = blocks(text, "Slurm")
    expect(f"--array=1-{TASKS}\n" in script, f"the recipe does not have {TASKS} tasks")
    (folder / "import.sh").write_text(script, encoding="utf-8")
    merge = run(submit, folder, environment).split()[-1]  # Submitted batch job NUMBER
    job = str(int(merge) - 1)
    part = requeue_one(cluster, job, folder)
    description = ""

    def restarted():
        nonlocal description
        description = cluster.output("scontrol", "show", "job", f"{job}_{part}")
        return " Restarts=1 " in description and "JobState=COMPLETED" in description

    try:
        until(restarted, f"the second run of task {part}", SECONDS)
        until(lambda: "JobState=COMPLETED" in cluster.output("scontrol", "show", "job", merge),
              "the merged report", SECONDS)
    except TimeoutError as error:
        outputs = "".join(file.read_text() for file in folder.glob("slurm-*.out"))
        sys.exit(f"{error}\n{description}\n{cluster.output('squeue')}\n{outputs}\n{cluster.logs()}")
    for number in range(1, TASKS + 1):
        state = cluster.output("scontrol", "show", "job", f"{job}_{number}")
        expect("JobState=COMPLETED" in state and "ExitCode=0:0" in state, state)
    return part


def time_out(*_):
    raise TimeoutError("the test takes too long")


def main():
    # Before ctest kills the test: then Slurm's processes would stay.
    signal.signal(signal.SIGALRM, time_out)
    signal.alarm(540)
    programs, text = sys.argv[1], pathlib.Path(sys.argv[2]).read_text(encoding="utf-8")
    environment = dict(os.environ, PATH=f"{programs}:{os.environ['PATH']}")
    with tempfile.TemporaryDirectory() as work:
        whole, parts, daemons = (pathlib.Path(work, name) for name in ("whole", "parts", "slurm"))
        make_archive(pathlib.Path(sys.argv[3]), whole / "archive")
        shutil.copytree(whole / "archive", parts / "archive")
        run("labelport import archive --output-dir new --to label,png --quiet "
            "--report report.json --report report.html", whole, environment)
        # munged refuses folders that others can write to.
        pathlib.Path(work).chmod(0o755)
        daemons.mkdir()
        try:
            with Cluster(daemons) as cluster:
                part = import_on(cluster, text, parts, dict(environment, **cluster.settings))
        except Unavailable as error:
            sys.exit(f"Slurm does not run on this machine: {error}")
        expect(len(contents(whole)) >= 2 * FILES, f"only {len(contents(whole))} outputs")
        expect(contents(parts) == contents(whole), "the tasks wrote other files than one import")
        for report in ("report.json", "report.html"):
            expect((parts / report).read_bytes() == (whole / report).read_bytes(),
                   f"{report} is not that of one import")
        print(f"{FILES} files in {TASKS} tasks, task {part} killed and requeued: "
              f"{len(contents(parts))} outputs and the report of one import")
    return 0


if __name__ == "__main__":
    sys.exit(main())
