#!/usr/bin/python3
"""Checks a report against the schema, and the schema against reports that break it.

    schema_test.py SCHEMA REPORT
"""

import copy
import json
import sys

import jsonschema

schema_file, report_file = sys.argv[1:]
with open(schema_file, encoding="utf-8") as file:
    schema = json.load(file)
with open(report_file, encoding="utf-8") as file:
    lines = [json.loads(line) for line in file]

validator_class = jsonschema.validators.validator_for(schema)
assert validator_class is jsonschema.Draft202012Validator, validator_class
validator_class.check_schema(schema)
validator = validator_class(schema)
for line in lines:
    validator.validate(line)
first, *files, last = lines
assert first["format"] == "labelport-report"
assert len(files) > 20, "real labels are in the report"
assert last["totals"]["files"] == len(files)
assert any(entry["lost"] for entry in files), "some label loses something"
assert any(entry["datasources"] for entry in files)


def breaks(line, change):
    broken = copy.deepcopy(line)
    change(broken)
    return not validator.is_valid(broken)


assert breaks(last, lambda line: line.pop("totals"))
assert breaks(last, lambda line: line["totals"].update(whole=-1))
assert breaks(first, lambda line: line.update(version=2))
assert breaks(files[0], lambda line: line.update(status="fine"))
assert breaks(files[0], lambda line: line.pop("objects"))
assert breaks(files[0], lambda line: line.update(surprise=1))
print(f"{len(files)} files match the schema")
