#!/usr/bin/env python3
"""Collects the translatable texts of the code.

collect_texts.py LUPDATE SOURCE TARGET FOLDER...

All of them go into TARGET/labelport_template.ts, and what is new into each
TARGET/labelport_XX.ts, to be translated there. Texts that the code has no longer go. Places in the
code are not kept: they would change with every line.

lupdate does not see through a macro, and would put a text into another context than the one in
which the program looks for it. So it gets a copy of the code in which the short form that files
define for tables is written out:

    #define TEXT(text) QT_TRANSLATE_NOOP("context", text)
"""

import pathlib
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree

MACRO = re.compile(r'#define (\w+)\((\w+)\) QT_TRANSLATE_NOOP\("([^"]+)", \2\)')


def written_out(code):
    """The code with the short form that it defines written out where it is used."""
    for macro in list(MACRO.finditer(code)):
        name, _, context = macro.groups()
        code = code.replace(macro.group(0), "")
        code = re.sub(rf'(?<!\w){name}\((?=\s*")', f'QT_TRANSLATE_NOOP("{context}", ', code)
    return code


def fill_english_plurals(path):
    """Fills in the English forms of "%n file(s)": "%n file" and "%n files"."""
    tree = xml.etree.ElementTree.parse(path)
    for message in tree.iter("message"):
        text = message.findtext("source")
        translation = message.find("translation")
        translation.attrib.pop("type", None)
        singular, plural = translation.findall("numerusform")
        singular.text, plural.text = text.replace("(s)", ""), text.replace("(s)", "s")
    body = xml.etree.ElementTree.tostring(tree.getroot(), encoding="unicode")
    path.write_text('<?xml version="1.0" encoding="utf-8"?>\n<!DOCTYPE TS>\n' + body + "\n",
                    encoding="utf-8")


def copy(source, folders, target):
    for folder in folders:
        for path in sorted((source / folder).rglob("*")):
            if path.suffix in (".cpp", ".h"):
                to = target / path.relative_to(source)
                to.parent.mkdir(parents=True, exist_ok=True)
                to.write_text(written_out(path.read_text(encoding="utf-8")), encoding="utf-8")


def main():
    lupdate, source, target = sys.argv[1], pathlib.Path(sys.argv[2]), pathlib.Path(sys.argv[3])
    folders = sys.argv[4:]
    files = [str(path.resolve()) for path in sorted(target.glob("labelport_*.ts"))]
    english = [file for file in files if file.endswith("labelport_en.ts")]
    others = [file for file in files if file not in english]
    failed = False
    with tempfile.TemporaryDirectory() as work:
        copy(source, folders, pathlib.Path(work))
        # English needs only the forms of texts with a number: "1 file", "2 files".
        for flags, targets in ([], others), (["-pluralonly"], english):
            if not targets:
                continue
            done = subprocess.run(
                [lupdate, "-silent", *flags, "-no-obsolete", "-locations", "none", "-no-ui-lines",
                 "-source-language", "en", "-I", ".", "-recursive", *folders, "-ts", *targets],
                cwd=work, stderr=subprocess.PIPE, text=True, check=False)
            # Warnings are about texts in contexts that do not exist when the program runs.
            sys.stderr.write(done.stderr)
            failed = failed or done.returncode or done.stderr.strip()
    for file in english:
        fill_english_plurals(pathlib.Path(file))
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
