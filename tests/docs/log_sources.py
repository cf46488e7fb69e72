#!/usr/bin/env python3
"""Checks the source names in log calls: each is the name of the calling file, without extension.

log_sources.py SOURCE   fails on a log call that names another file, or if it finds no log call
log_sources.py --try    runs the check on examples
"""

import pathlib
import re
import sys
import tempfile

# The source name is the argument after the level, or the first of the reader's own function.
LOG_CALL = re.compile(r'(?:Logger::[A-Z]\w+,|\blogDebug\()\s*"([^"]*)"')


def log_calls(source):
    """(file, source name) of every log call with a literal source name."""
    for house in ("library", "hosts", "tools", "programs"):
        for path in sorted((source / house).rglob("*.cpp")):
            for name in LOG_CALL.findall(path.read_text(encoding="utf-8")):
                yield path, name


def wrong_names(source):
    return [(path, name) for path, name in log_calls(source) if name != path.stem]


def try_examples():
    with tempfile.TemporaryDirectory() as folder:
        source = pathlib.Path(folder)
        (source / "library/room").mkdir(parents=True)
        (source / "library/room/reader.cpp").write_text(
            'CuteMessageLogger(logger(), Logger::Error, "reader", 1, "f()").write("%s", "other");\n'
            'CuteMessageLogger(logger(), Logger::Debug,\n    "reader.cpp", 1, "f()");\n'
            'logDebug("builder", 1, "f()", text);\nlogDebug(\n    "reader", 1, "f()", text);\n')
        names = [name for _, name in wrong_names(source)]
        return 0 if names == ["reader.cpp", "builder"] else f"found {names}"


def main():
    if sys.argv[1:] == ["--try"]:
        return try_examples()
    source = pathlib.Path(sys.argv[1])
    if not list(log_calls(source)):
        return "no log calls found"
    wrong = wrong_names(source)
    for path, name in wrong:
        print(f"{path.relative_to(source)}: a log call names the source \"{name}\"")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
