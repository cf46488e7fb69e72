#!/usr/bin/env python3
"""Finds user-visible texts in the code that are not marked for translation.

texts_are_marked.py SOURCE   prints each of them, and fails if there is one
texts_are_marked.py --try    checks the rules with examples

A text is user-visible if it is a phrase (at least two words, the second in small letters; names of
fonts and kinds of barcode are none) or if it is passed to a function that shows texts. It is marked
if it is in tr(), translate() or one of Qt's macros for tables. Logs are for developers and stay
English, as do the readers of the formats: their few user-visible texts have tests of their own.
"""

import pathlib
import re
import sys
import xml.etree.ElementTree

FOLDERS = ["library/importer", "hosts/workbench", "tools", "programs"]

# The relevant tokens of the code.
TOKEN = re.compile(
    r"""(?P<comment>//[^\n]*|/\*.*?\*/)
      | (?P<letter>(?<!\w)u?8?'(?:[^'\\\n]|\\.)+')
      | u?8?R"(?P<mark>[^(\s]{0,16})\((?P<raw>.*?)\)(?P=mark)"
      | u?8?"(?P<text>(?:[^"\\\n]|\\.)*)"
    """, re.DOTALL | re.VERBOSE)
PHRASE = re.compile(r"[A-Za-z’']{2,}[,;:.]? +[a-z’']{2,}")

# MARKS are the callees of marked texts: the last name before the enclosing open bracket.
# Files may define a shorter name for such a mark.
MACRO = re.compile(r'#define (\w+)\(\w+\) QT_TRANSLATE_NOOP\(')
# A function of a file that translates its argument. lupdate does not see the texts passed to it, so
# they must be marked elsewhere.
HELPER = re.compile(r'(\w+)\(const char\* (\w+)\)\s*\{[^{}]*translate\(\s*"[^"]+",\s*\2\b')
MARKS = {"tr", "translate", "QT_TRANSLATE_NOOP", "QT_TR_NOOP", "QT_TRANSLATE_NOOP3",
         "QT_TRANSLATE_N_NOOP"}
# Callees that show any text to the user, even a single word.
SHOWN = {"setText", "setWindowTitle", "setToolTip", "setStatusTip", "setTitle", "addButton",
         "addAction", "addMenu", "setAccessibleName", "setPlaceholderText", "printMessage",
         "complain", "setLabelText", "addRow", "setInformativeText"}
# Callees whose texts are for developers or for other programs.
FOR_MACHINES = {"write", "writeLog", "logError", "logDebug", "logWarning", "log", "QRegularExpression",
                "static_assert", "CuteMessageLogger", "setDescription", "setCreator",
                "horizontalAdvance", "setApplicationName", "include", "png_error", "qFatal"}
# Callees that only create a string.
WRAPPERS = {"", "QStringLiteral", "QLatin1String", "QString", "QStringView", "QLatin1StringView",
            "QByteArrayLiteral", "fromUtf8", "fromLatin1"}
# Lines with a reason for not translating: "no translation: the program's own marks".
EXCUSE = "no translation:"
# Texts in another language of code, for example SQL or HTML.
CODE = re.compile(r"^labelport( [a-z]+)?$|^(tavrel|png)\b|^(SELECT|PRAGMA|INSERT|CREATE|<|\s*[\[{.#@*&]|[a-z-]+=|.*[{}]|.*=['\"\\]|Mozilla)|"
                  r"xmlns|-src |^\^|\$$")


def split(code):
    """The code with comments and letters made blank, and its texts: (place, words).

    Texts that stand side by side are one, as they are for the compiler."""
    texts = []
    end = 0
    bare = list(code)
    for match in TOKEN.finditer(code):
        words = match.group("raw") if match.group("raw") is not None else match.group("text")
        if words is None:
            bare[match.start():match.end()] = blank(match.group(0))
        elif texts and not "".join(bare[end:match.start()]).strip():
            texts[-1] = (texts[-1][0], texts[-1][1] + words)
            bare[match.start():match.end()] = blank(match.group(0))
            end = match.end()
        else:
            texts.append((match.start(), words))
            bare[match.start():match.end()] = blank(match.group(0))
            end = match.end()
    return "".join(bare), texts


def callees(text, place):
    """Names before the brackets that are open at the place, the innermost first."""
    names = []
    depth = 0
    for at in range(place - 1, max(0, place - 1500), -1):
        letter = text[at]
        if letter in ")]}":
            depth += 1
        elif letter in "([{":
            if depth == 0:
                name = re.search(r"(\w+)\s*$", text[max(0, at - 80):at])
                names.append(name.group(1) if name else "")
            else:
                depth -= 1
        elif letter == ";" and depth == 0:
            break
    return names


def blank(text):
    return re.sub(r"[^\n]", " ", text)


def examine(code, known=frozenset()):
    """(line, words) of every text for people that is not marked.

    An excuse in a comment holds for its line and the next. Known texts are those that are marked
    somewhere."""
    lines = code.split("\n")
    marks = MARKS | set(MACRO.findall(code))
    helpers = {name for name, _ in HELPER.findall(code)}
    bare, texts = split(code)
    found = []
    for place, words in texts:
        callee = next((name for name in callees(bare, place) if name not in WRAPPERS), "")
        line = code.count("\n", 0, place)
        is_excused = any(EXCUSE in each.lower() for each in lines[max(0, line - 1):line + 1])
        if callee in marks or callee in FOR_MACHINES or is_excused:
            continue
        if callee in helpers and words.replace(r"\n", "\n").replace(r"\"", '"') in known:
            continue
        is_shown = callee in SHOWN and re.search(r"[A-Za-z]{2,}", words)
        is_phrase = PHRASE.search(words) and not CODE.search(words)
        if is_shown or is_phrase:
            found.append((line + 1, words))
    return found


def try_examples():
    """A mark, an excuse and a log are taken for what they are; all else is found."""
    good = [
        'return tr("The file is empty.");',
        'return Tr::tr("%1 is not %2"\n    " at all").arg(Path, name);',
        '{1, QT_TRANSLATE_NOOP("workbench::X", "does not fit")},',
        'QCoreApplication::translate("main", "opens a label");',
        'log("could not open %s", name);',
        '#define TEXT(text) QT_TRANSLATE_NOOP("x", text)\nRow{1, TEXT("was left out")},',
        'query.exec(QStringLiteral("SELECT svg FROM symbols"));',
        'path(u"M3 19V6a1");  // a comment with several words',
        'setObjectName(QStringLiteral("items"));',
        '// no translation: a mark in our files\nkey = QStringLiteral("made by us");',
    ]
    bad = [
        'return QStringLiteral("The file is empty.");',
        'fail(u"it has no table");',
        'words = "is missing here";',
        'box.setText(QStringLiteral("Stop"));',
        'printMessage(QStringLiteral("%1: nothing to do").arg(name));',
        'const char* const Help = R"(Usage: labelport COMMAND)";'.replace("labelport", "it is"),
        'QString say(const char* x) { return translate("c", x); } say("not marked anywhere");',
        'f(tr("good words here"), QStringLiteral("bad words here"));',
    ]
    failures = [code for code in good if examine(code)]
    helper = 'QString say(const char* x) { return translate("c", x); } say("is marked elsewhere");'
    failures += [helper] if examine(helper, {"is marked elsewhere"}) else []
    failures += [code for code in bad if len(examine(code)) != 1]
    for code in failures:
        print("wrong result:", code)
    return 1 if failures else 0


def main():
    if sys.argv[1:] == ["--try"]:
        return try_examples()
    source = pathlib.Path(sys.argv[1])
    template = xml.etree.ElementTree.parse(source / "translations/labelport_template.ts")
    known = {each.text for each in template.iter("source")}
    count = files = 0
    for folder in FOLDERS:
        for path in sorted((source / folder).rglob("*")):
            if path.suffix not in (".cpp", ".h"):
                continue
            files += 1
            for line, text in examine(path.read_text(encoding="utf-8"), known):
                print(f"{path.relative_to(source)}:{line}: not marked for translation: {text}")
                count += 1
    if files < 100:
        print(f"only {files} files were looked at")
        return 1
    return 1 if count else 0


if __name__ == "__main__":
    sys.exit(main())
