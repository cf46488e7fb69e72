#!/usr/bin/env python3
"""plain_english.py SOURCE    checks texts, comments and documents for words of our old dialect
plain_english.py --try       checks that the check works

Each pattern finds phrases that readers had to decode. The remedy names the usual replacement.
Comments, string literals and documents are checked for phrases, identifiers of C++ for words.
"""

import pathlib
import re
import sys

PATTERNS = {
    r"\btells?\b|\btold\b|\btelling\b": "report, print, log, show, say which",
    r"\bwhoever\b|\bnobody\b|\bwhosoever\b": "the caller, the user, no code",
    r"\bgets? on\b|\bgetting on\b": "makes progress",
    r"\bpass(?:ed|es)? over\b": "skip, ignore",
    r"(?<!there )\b(?:is|are) no (?!longer|more|less|smaller|larger)[a-z]+": "is not a",
    r"\b(?:is|are|was|were) to be\b": "must",
    r"\bmend(?:s|ed|ing)?\b": "fix, correct",
    r"\bput(?:s|ting)? right\b": "correct",
    r"\bcosts? only\b": "affects only",
    r"\b(?:comes?|came|coming) over\b": "is imported",
    r"\bcarr(?:y|ies|ied) over\b(?! to)": "import, keep",
    r"\bgo(?:es)? on\b|\bgoing on\b|\bwent on\b": "continue",
    r"\bto be had\b": "available",
    r"\bfor want of\b|\bwant of\b": "out of, for lack of",
    r"\banew\b": "again",
    r"\bgive(?:s|n)? (?:\w+ )?up\b|\bgave (?:\w+ )?up\b": "abort",
    r"\bhears? of\b|\bheard of\b": "is notified, receives",
    r"\bwhat (?:it|they|he|she|one) (?:is|are) (?:good|worth)\b": "name the thing",
    r"\bstands? (?:in|at|for|on|beside|behind|before|below|above|there|where|alone|between)\b":
        "is in, follows, precedes, represents",
    r"\blies? (?:in|at|on|beside|behind|below|above|there|between)\b": "is in, is below",
    r"\bthe worse for\b|\bnone the\b": "say what happens",
    r"\bas (?:it|they) stands?\b": "unchanged",
    r"\bever so\b|\bat all events\b|\bby and by\b": "delete",
    r"\bis good to\b|\bmakes? nothing of\b": "say what happens",
    r"\bfurther to the\b|\bto the (?:left|right) of it\b(?=.*\bknows\b)": "depends on",
    r"\bits? own word\b|\bthe last word\b|\bin disorder\b": "the latest record; invalid",
    r"\ba riddle\b|\bto keep us busy\b|\bdeaf to\b": "say what happens",
    r"colour|\bcentre\b|\bcentred\b|millimetre|\bmetres?\b|\blicence\b|behaviour|\bgrey\b|favour":
        "American spelling",
    r"\b\w+(?:recogn|normal|optim|serial|initial|organ|minim|maxim|summar)is(?:e|es|ed|ing|ation)\b|"
    r"\b(?:recogn|normal|optim|serial|initial|organ|minim|maxim|summar)is(?:e|es|ed|ing|ation)\b":
        "American spelling",
    r"\bcancelled\b|\bcancelling\b|\blabelled\b|\blabelling\b|\bsignalled\b|\bbevelled\b|"
    r"\bserialiser\b|\bcentres\b": "American spelling",
    r"\bfor a person\b": "user-visible",
    r"\bfor good\b": "permanently, irrevocably",
    r"\b(?:any|some)body\b": "the user, another program",
    r"\bwhose turn\b": "the next",
    r"\bas the reader understands\b|\breader understands\b": "supports",
    r"\bwhat (?:is|was) (?:wanted|asked for)\b": "the requested value",
}
# Words that no identifier contains, in any case: "tellHost", "TickRank::Labelled".
ODD_NAMES = {
    "tell": "report", "tells": "reports", "told": "reported", "teller": "reporter",
    "nobody": "none", "somebody": "a user", "somebodys": "foreign", "whoever": "any",
    "anew": "again", "afresh": "again", "fate": "outcome", "fates": "outcomes", "tamed": "limited",
    "reel": "loader", "desk": "session", "veil": "dimming", "veiled": "dimmed",
    "judge": "check, classify", "judges": "checks", "judged": "checked", "gravest": "mostSevere",
    "want": "request", "wants": "needs", "stands": "is", "stood": "was",
    "troubles": "warnings", "deed": "action", "deeds": "actions", "knee": "limit",
    "centre": "center", "centres": "centers", "centred": "centered", "labelled": "labeled",
    "signalled": "signaled", "cancelled": "canceled", "bevelled": "beveled", "behaviour": "behavior",
    "serialiser": "serializer", "misspelt": "misspelled", "favourite": "favorite",
}
WORD = re.compile(r"[A-Z]?[a-z]+|[A-Z]+(?![a-z])")
RULES = [(re.compile(pattern, re.IGNORECASE), remedy) for pattern, remedy in PATTERNS.items()]

# Files whose text is not ours to choose: required wordings, formats, samples, the license.
SKIPPED = ("samples/", "fuzz/seeds/", "fuzz/findings/", "fuzz/dictionaries/", "translations/",
           "tests/traces/", "LICENSE", "packaging/debian/copyright",
           "tests/docs/plain_english.py", ".clang-")
COMMENTED = {".cpp": "//", ".h": "//", ".js": "//", ".cmake": "#", ".py": "#", ".txt": "#", "": "#"}
LITERAL = re.compile(r'"(?:[^"\\\n]|\\.)*"')
# A line that ends in this comment keeps a wording that is required or that belongs to a format.
KEPT = "required wording"


def prose_of(path, text):
    """The lines that people read, with their numbers."""
    if path.suffix in (".md", ".1", ".html", ".xml", ".desktop"):
        yield from enumerate(text.splitlines(), 1)
        return
    mark = COMMENTED.get(path.suffix)
    if mark is None:
        return
    for number, line in enumerate(text.splitlines(), 1):
        if KEPT in line or line.lstrip().startswith("#include"):
            continue
        prose = " ".join(LITERAL.findall(line))
        code = LITERAL.sub('""', line)
        if mark in code:
            prose += " " + code.split(mark, 1)[1]
        yield number, prose


def names_of(path, text):
    """The identifiers of C++ source, with their lines."""
    if path.suffix not in (".cpp", ".h"):
        return
    for number, line in enumerate(text.splitlines(), 1):
        if KEPT in line:
            continue
        code = LITERAL.sub('""', line).split("//", 1)[0]
        for name in re.findall(r"[A-Za-z_]\w+", code):
            yield number, name


def complaints_of(path, text):
    for number, line in prose_of(path, text):
        for pattern, remedy in RULES:
            found = pattern.search(line)
            if found:
                yield f'{path}:{number}: "{found.group(0)}": {remedy}'
    for number, name in names_of(path, text):
        for word in WORD.findall(name):
            if word.lower() in ODD_NAMES:
                yield f"{path}:{number}: {name}: {ODD_NAMES[word.lower()]}"


def sources(source):
    """The project's files. Builds, outputs and hidden folders are not part of it."""
    names = (path.relative_to(source) for path in sorted(source.rglob("*")) if path.is_file())
    return [str(name) for name in names
            if name.parts[0] not in ("build", "out") and not name.parts[0].startswith(".")]


def check(source):
    complaints = []
    for name in sources(source):
        path = source / name
        if name.startswith(SKIPPED) or not path.is_file():
            continue
        try:
            text = path.read_text(encoding="utf-8")
        except UnicodeDecodeError:
            continue
        complaints += complaints_of(pathlib.Path(name), text)
    return complaints


def check_itself():
    bad = {"x.cpp": '// Whoever reads it.\nfail("The file is no label.");\n',
           "x.md": "A bad file costs only itself.\n",
           "y.h": "void letLabelGoAnew();\nenum class Rank { Labelled };\nvoid judgeFile();\n",
           "x.py": "# the colour\n"}
    good = {"x.cpp": 'int standard = 1; // There is no file.\nsay("not a label"); // required wording: is no\n',
            "x.md": "A bad file does not affect the others.\n"}
    for name, text in bad.items():
        lines = len(text.splitlines())
        found = list(complaints_of(pathlib.Path(name), text))
        if len(found) < lines:
            sys.exit(f"overlooked in {name}: {text}")
    for name, text in good.items():
        found = list(complaints_of(pathlib.Path(name), text))
        if found:
            sys.exit(f"wrongly found: {found}")


def main():
    if sys.argv[1] == "--try":
        check_itself()
        return
    complaints = check(pathlib.Path(sys.argv[1]))
    print("\n".join(complaints))
    if complaints:
        sys.exit(f"{len(complaints)} complaints")


if __name__ == "__main__":
    main()
