#!/usr/bin/python3
"""Checks the events of labelport import --json against their schema, and the schema against others.

events_schema.py PROGRAM SCHEMA SAMPLES
"""

import copy
import json
import pathlib
import shutil
import subprocess
import sys
import tempfile

import jsonschema

program, schema_file, samples = sys.argv[1:]
schema = json.loads(pathlib.Path(schema_file).read_text(encoding="utf-8"))
jsonschema.Draft202012Validator.check_schema(schema)
validator = jsonschema.Draft202012Validator(schema)

with tempfile.TemporaryDirectory() as work:
    archive = pathlib.Path(work, "archive")
    archive.mkdir()
    for label in pathlib.Path(samples, "orvanta").glob("*.qmtx"):
        shutil.copy(label, archive)
    (archive / "broken.odg").write_text("no zip")
    (archive / "readme.txt").write_text("no label")
    done = subprocess.run([program, "import", "archive", "--dpi", "30", "--json", "--fail-on-loss"],
                          cwd=work, capture_output=True, text=True, check=False)
    events = [json.loads(line) for line in done.stdout.splitlines()]
    for event in events:
        validator.validate(event)
    *files, end = events
    assert [event["event"] for event in events] == ["file"] * len(files) + ["end"]
    assert end["status"] == done.returncode == 1, done
    assert end["failed"] == 1 and end["ignored"] == 1
    assert end["imported"] == len(files) - 1 > 3
    for event in files:
        assert (event["status"] == "imported") == (event["file"] != "archive/broken.odg"), event
        for output in event["outputs"]:
            assert pathlib.Path(work, output).is_file(), output


def breaks(event, change):
    broken = copy.deepcopy(event)
    change(broken)
    return not validator.is_valid(broken)


assert breaks(end, lambda event: event.pop("status"))
assert breaks(end, lambda event: event.update(version=2))
assert breaks(files[0], lambda event: event.update(status="done"))
assert breaks(files[0], lambda event: event.update(event="end"))
assert breaks(files[0], lambda event: event["outputs"].append(1))
print(f"{len(events)} events")
