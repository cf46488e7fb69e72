#!/usr/bin/env python3
"""Checks the Kubernetes recipe of docs/recipes.md against the schema of the Kubernetes API.

kubernetes_schema.py NODE_FOLDER RECIPES

The schema's validator checks values and required fields; it accepts unknown fields, which a cluster
would ignore or refuse. TypeScript, with the same schema as types, finds those. Jobs with an error
each prove that errors are found.
"""

import copy
import json
import pathlib
import re
import subprocess
import sys
import tempfile

import yaml

VALIDATOR = pathlib.Path(__file__).with_suffix(".mjs")
COMPILER = "node_modules/typescript/bin/tsc"
OPTIONS = ("--noEmit", "--strict", "--skipLibCheck", "--target", "es2022", "--module", "nodenext",
           "--moduleResolution", "nodenext")


def output(node_folder, *command, text=None):
    """What a command prints. Nothing means that it found nothing."""
    done = subprocess.run(["node", *command], cwd=node_folder, check=False, input=text,
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
    if done.returncode != 0 and not done.stdout:
        sys.exit(f"status {done.returncode} of {command}")
    return done.stdout


def errors_of_types(node_folder, jobs):
    """For each of the jobs, what the compiler reports."""
    with tempfile.TemporaryDirectory(dir=node_folder) as folder:
        files = []
        for number, job in enumerate(jobs):
            files.append(pathlib.Path(folder, f"job{number}.mts"))
            files[-1].write_text('import type { IJob } from "kubernetes-models/batch/v1";\n'
                                 f"export const job: IJob = {json.dumps(job)};\n", encoding="utf-8")
        found = output(node_folder, COMPILER, *OPTIONS, *map(str, files))
        lines = found.splitlines()
        errors = [[line for line in lines if f"job{number}.mts" in line]
                  for number in range(len(jobs))]
        # Errors elsewhere mean that the types themselves are not understood.
        others = [line for line in lines if "error" in line and "job" not in line]
        if others:
            sys.exit("\n".join(others[:20]))
        return errors


def errors_of_values(node_folder, job):
    return output(node_folder, str(VALIDATOR), text=json.dumps(job))


def changed(job, path, value):
    """A copy of the job in which the field at a path has another value, or none."""
    result = copy.deepcopy(job)
    *parents, last = path
    inner = result
    for step in parents:
        inner = inner[step]
    if value is None:
        del inner[last]
    else:
        inner[last] = value
    return result


def main():
    node_folder = sys.argv[1]
    text = pathlib.Path(sys.argv[2]).read_text(encoding="utf-8")
    below = text.split("\n## Kubernetes\n", 1)[1].split("\n## ", 1)[0]
    job = yaml.safe_load(re.search(r"```yaml\n(.*?)```", below, re.DOTALL).group(1))
    container = ("spec", "template", "spec", "containers", 0)
    unknown_fields = [changed(job, ("spec", "completion"), 16),
                      changed(job, (*container, "volumeMount"), []),
                      changed(job, (*container, "securityContext", "readOnlyRoot"), True)]
    wrong_values = [changed(job, ("spec", "completions"), "sixteen"),
                    changed(job, ("spec", "completionMode"), "Index"),
                    changed(job, ("apiVersion",), "batch/v2"),
                    changed(job, (*container, "resources", "limits", "memory"), "8 GB"),
                    changed(job, (*container, "name"), None)]

    by_types, *wrong = errors_of_types(node_folder, [job, *unknown_fields])
    by_values = errors_of_values(node_folder, job)
    if by_types or by_values:
        sys.exit("The recipe does not match the API's schema:\n" + "\n".join(by_types) + by_values)
    for number, errors in enumerate(wrong):
        if not errors:
            sys.exit(f"unknown field {number} was not found")
    for number, wrong_job in enumerate(wrong_values):
        if not errors_of_values(node_folder, wrong_job):
            sys.exit(f"wrong value {number} was not found")
    print(f"valid; {len(unknown_fields)} unknown fields and {len(wrong_values)} wrong values were found")
    return 0


if __name__ == "__main__":
    sys.exit(main())
