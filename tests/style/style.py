#!/usr/bin/env python3
"""style.py PROJECT: checks the rules of style that clang-format cannot check.

Constants are written in CamelCase without a prefix. Statements have braces. Texts are u"..."_s, not
QStringLiteral. clang-tidy checks the first two more exactly (see .clang-tidy), but has to compile
every file for it; this takes a second.
"""

import pathlib
import re
import sys

ROOMS = ("library", "hosts", "tools", "programs", "translations", "tests", "fuzz", "bench", "examples")

PREFIX, BRACES, LITERAL = "constant with a prefix", "statement without braces", "QStringLiteral"

CONSTANT = re.compile(r"\bk[A-Z][A-Za-z0-9]*\b")
BRACELESS = re.compile(r"^\s*(?:\} )?(?:(?:if|for|while)\b.*\)|else)\s*$")


def without_texts(line):
    """The line without its texts and comments."""
    line = re.sub(r'"(?:\\.|[^"\\])*"', '""', line)
    return re.sub(r"//.*", "", line)


def closes_all(line):
    return line.count("(") == line.count(")")


def faults_of(lines):
    code = [without_texts(line) for line in lines]
    open_statement = False  # an if, for or while whose condition continues on this line
    for number, line in enumerate(code):
        for name in CONSTANT.findall(line):
            yield number + 1, PREFIX, name
        # u"..."_s cannot be made of a macro.
        if re.search(r"QStringLiteral\((?![A-Z_]+\b)", line):
            yield number + 1, LITERAL, 'write u"..."_s'
        starts = re.match(r"\s*(?:\} else )?(?:if|for|while)\b", line) is not None
        if starts and not line.rstrip().endswith(("{", ";")) and not closes_all(line):
            open_statement = True
        elif open_statement and line.rstrip().endswith("{"):
            open_statement = False
        elif open_statement and line.rstrip().endswith(")") and (number + 1 < len(code)):
            if not re.match(r"\s*[&|?:+<>=.-]", code[number + 1]):
                yield number + 1, BRACES, line.strip()
                open_statement = False
        elif BRACELESS.match(line) and closes_all(line):
            yield number + 1, BRACES, line.strip()
        if open_statement and line.rstrip().endswith(";") and not starts:
            open_statement = False


def try_it():
    bad = ["constexpr int kMost = 3;", "    if (a)", "    for (int i : list)", "} else",
           'const QString a = QStringLiteral("b");']
    good = ["constexpr int Most = 3;", "    if (a) {", "// kMost and QStringLiteral(", "int kind = 1;",
            'f("kMost");', "} while (a);", "    return;"]
    for line in bad:
        if not list(faults_of([line, "x();"])):
            sys.exit(f"not found: {line}")
    found = list(faults_of(good))
    if found:
        sys.exit(f"found in correct lines: {found}")


def main():
    if sys.argv[1] == "--try":
        try_it()
        return
    project = pathlib.Path(sys.argv[1])
    files = sorted(path for room in ROOMS for path in (project / room).rglob("*")
                   if path.suffix in (".h", ".cpp"))
    if len(files) < 300:
        sys.exit(f"only {len(files)} files in {project}")
    faults = []
    for path in files:
        name = path.relative_to(project).as_posix()
        with open(path, encoding="utf-8") as lines:
            for number, rule, what in faults_of(lines.read().splitlines()):
                faults.append(f"{name}:{number}: {rule}: {what}")
    if faults:
        sys.exit("\n".join(faults))


main()
