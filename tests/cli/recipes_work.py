#!/usr/bin/env python3
"""Runs the recipes of docs/recipes.md as they stand, each over a small archive.

recipes_work.py BIN RECIPES SAMPLES

What a recipe's parts write must be what one import writes, and so must the merged report.
"""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

MERGE = "labelport report merge parts/*.json --to report.json --to report.html"


def block(text, heading, kind):
    """The first block of code of this kind below a heading."""
    below = text.split(f"\n## {heading}\n", 1)[1]
    return re.search(rf"```{kind}\n(.*?)```", below, re.DOTALL).group(1)


def run(script, folder, programs, **environment):
    environment = dict(os.environ, PATH=f"{programs}:{os.environ['PATH']}", **environment)
    done = subprocess.run(["bash", "-c", script], cwd=folder, env=environment, check=False,
                          capture_output=True, text=True)
    if done.returncode:
        sys.exit(f"status {done.returncode} of\n{script}\n{done.stdout}{done.stderr}")


def parallel(text, folder, programs):
    if not shutil.which("parallel"):
        print("SKIPPED: there is no GNU Parallel")
        return False
    (folder / "home").mkdir()
    run(block(text, "GNU Parallel", "sh"), folder, programs, HOME=str(folder / "home"))
    return True


def slurm(text, folder, programs):
    script = block(text, "Slurm", "sh")
    count = 4  # the scheduler sets this for each task
    for number in range(1, count + 1):
        run(script, folder, programs, SLURM_ARRAY_TASK_ID=str(number),
            SLURM_ARRAY_TASK_COUNT=str(count), SLURM_CPUS_PER_TASK="1")
    run(MERGE, folder, programs)
    return True


def kubernetes(text, folder, programs):
    job = block(text, "Kubernetes", "yaml")
    count = int(re.search(r"completions: (\d+)", job).group(1))
    script = re.search(r"args:\n\s+- \|\n(.*?)\n {10}\w", job, re.DOTALL).group(1)
    for index in range(count):
        run(script, folder, programs, JOB_COMPLETION_INDEX=str(index))
    run(MERGE, folder, programs)
    return True


def contents(folder):
    return {str(path.relative_to(folder)) for path in (folder / "new").rglob("*")
            if path.suffix in (".png", ".label")}


def main():
    programs, text = sys.argv[1], pathlib.Path(sys.argv[2]).read_text(encoding="utf-8")
    samples = pathlib.Path(sys.argv[3])
    with tempfile.TemporaryDirectory() as work:
        whole = pathlib.Path(work, "whole")
        # None of these shows the time, which would not stand still between two imports.
        shutil.copytree(samples / "tavrel", whole / "archive" / "tavrel")
        shutil.copytree(samples / "opendocument", whole / "archive" / "opendocument")
        run("labelport import archive --output-dir new --to label,png --quiet "
            "--report report.json --report report.html", whole, programs)
        for recipe in (parallel, slurm, kubernetes):
            folder = pathlib.Path(work, recipe.__name__)
            shutil.copytree(whole / "archive", folder / "archive")
            if not recipe(text, folder, programs):
                continue
            if contents(folder) != contents(whole) or not contents(whole):
                sys.exit(f"{recipe.__name__}: the parts wrote other files than one import")
            for report in ("report.json", "report.html"):
                if (folder / report).read_bytes() != (whole / report).read_bytes():
                    sys.exit(f"{recipe.__name__}: {report} is not that of one import")
            print(f"{recipe.__name__}: {len(contents(folder))} files, and the report of one import")
    return 0


if __name__ == "__main__":
    sys.exit(main())
