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
    report = json.load(file)

validator_class = jsonschema.validators.validator_for(schema)
assert validator_class is jsonschema.Draft202012Validator, validator_class
validator_class.check_schema(schema)
validator = validator_class(schema)
validator.validate(report)
assert len(report["files"]) > 20, "the report is to hold real labels"
assert report["totals"]["files"] == len(report["files"])
assert any(entry["lost"] for entry in report["files"]), "some label loses something"
assert any(entry["datasources"] for entry in report["files"])


def breaks(change):
    broken = copy.deepcopy(report)
    change(broken)
    return not validator.is_valid(broken)


assert breaks(lambda r: r.pop("totals"))
assert breaks(lambda r: r.update(version=2))
assert breaks(lambda r: r["files"][0].update(status="fine"))
assert breaks(lambda r: r["files"][0].pop("objects"))
assert breaks(lambda r: r["files"][0].update(surprise=1))
assert breaks(lambda r: r["totals"].update(whole=-1))
print(f"{len(report['files'])} files fit the schema")
