#!/usr/bin/env python3
"""Runs the recipes of docs/recipes.md as they stand, each over a small archive.

recipes_work.py BIN RECIPES SAMPLES

What the parts of an archive write must be what one import writes, and so must the merged report. The
other recipes have checks of their own. Recipes for clusters are in tests/clusters.
"""

import csv
import os
import pathlib
import re
import shutil
import socket
import subprocess
import sys
import tempfile
import threading

MERGE = "labelport report merge parts/*.json --to report.json --to report.html"


def block(text, heading, kind):
    """The first block of code of this kind below a heading."""
    below = text.split(f"\n## {heading}\n", 1)[1]
    return re.search(rf"```{kind}\n(.*?)```", below, re.DOTALL).group(1)


def run(script, folder, programs, expected=0, **environment):
    """Runs a script and returns its output; ends the test if its status is another one."""
    environment = dict(os.environ, PATH=f"{programs}:{os.environ['PATH']}", **environment)
    done = subprocess.run(["bash", "-c", script], cwd=folder, env=environment, check=False,
                          capture_output=True, text=True)
    if done.returncode != expected:
        sys.exit(f"status {done.returncode} of\n{script}\n{done.stdout}{done.stderr}")
    return done.stdout


def expect(condition, message):
    if not condition:
        sys.exit(message)


def parallel(text, folder, programs):
    if not shutil.which("parallel"):
        print("SKIPPED: there is no GNU Parallel")
        return False
    (folder / "home").mkdir()
    run(block(text, "GNU Parallel", "sh"), folder, programs, HOME=str(folder / "home"))
    return True


def kubernetes(text, folder, programs):
    job = block(text, "Kubernetes", "yaml")
    count = int(re.search(r"completions: (\d+)", job).group(1))
    script = re.search(r"args:\n\s+- \|\n(.*?)\n {10}\w", job, re.DOTALL).group(1)
    for index in range(count):
        run(script, folder, programs, JOB_COMPLETION_INDEX=str(index))
    run(MERGE, folder, programs)
    return True


def glabels(text, folder, programs, samples):
    (folder / "archive").mkdir()
    shutil.copy(samples / "orvanta" / "asset_tag.qmtx", folder / "archive")
    shutil.copy(samples / "opendocument" / "sample_vial.odg", folder / "archive")
    run(block(text, "A folder to gLabels", "sh"), folder, programs)
    sheets = folder / "sheets"
    with open(sheets / "asset_tag.glabels.csv", encoding="utf-8", newline="") as file:
        labels = len(list(csv.reader(file))) - 1
    facts = subprocess.run(["pdfinfo", sheets / "asset_tag.pdf"], check=True, capture_output=True,
                           text=True).stdout
    pages = int(re.search(r"Pages: +(\d+)", facts).group(1))
    expect(labels > 14 and pages == -(-labels // 14), f"glabels: {labels} labels, {pages} pages")
    expect("A4" in re.search(r"Page size: .*", facts).group(0), "glabels: the paper")
    expect((sheets / "sample_vial.pdf").is_file(), "glabels: a label without records")
    expect(not (sheets / "sample_vial.glabels.csv").exists(), "glabels: a table without records")
    return f"{labels} labels on {pages} sheets"


def lists(text, folder, programs):
    run(block(text, "Millions of files", "sh").replace("100", "5"), folder, programs)
    expect(len(list((folder / "lists").iterdir())) == 5, "lists: number")
    return True


def records(text, folder, programs, samples):
    (folder / "archive").mkdir()
    shutil.copy(samples / "orvanta" / "asset_tag.qmtx", folder / "archive")
    shutil.copy(samples / "opendocument" / "sample_vial.odg", folder / "archive")
    run(block(text, "A CSV file of records", "sh"), folder, programs)
    with open(folder / "records" / "asset_tag.csv", encoding="utf-8", newline="") as file:
        header, *lines = csv.reader(file)
    expect(header[0] == "record" and len(header) > 1, f"records: the columns are {header}")
    expect(len(lines) > 10 and all(len(line) == len(header) for line in lines), "records: lines")
    expect([line[0] for line in lines] == [str(number + 1) for number in range(len(lines))],
           "records: numbers")
    expect(lines[0][1:] != lines[1][1:], "records: the counter does not advance")
    expect((folder / "records" / "sample_vial.csv").read_bytes() == b"record\r\n1\r\n",
           "records: a label without data sources")
    return f"{len(lines)} records"


def printer(text, folder, programs, samples):
    shutil.copy(samples / "orvanta" / "asset_tag.qmtx", folder / "asset.qmtx")
    received = []

    def listen(server):
        connection, _ = server.accept()
        with connection:
            while data := connection.recv(65536):
                received.append(data)

    with socket.create_server(("127.0.0.1", 0)) as server:
        server.settimeout(300)
        thread = threading.Thread(target=listen, args=(server,))
        thread.start()
        run(block(text, "ZPL to a printer's port", "sh"), folder, programs, PRINTER="127.0.0.1",
            PORT=str(server.getsockname()[1]))
        thread.join()
    labels = b"".join(received)
    run("labelport import asset.qmtx --to zpl --dpi 203 --records 1-20", folder, programs)
    expect(labels == (folder / "asset.zpl").read_bytes(), "printer: received something else")
    expect(labels.count(b"^XA") == labels.count(b"^XZ") == 20, "printer: 20 labels")
    return f"{len(labels)} bytes"


def nightly(text, folder, programs, samples):
    script = block(text, "A nightly job", "sh")
    inbox = folder / "inbox"
    inbox.mkdir()
    shutil.copy(samples / "opendocument" / "sample_vial.odg", inbox)
    expect(run(script, folder, programs, LABELS=str(folder)) == "", "nightly: prints too much")
    (inbox / "lossy.qmtx").write_text(
        "<qmtx><controls><rich_box/><transparent_label/></controls></qmtx>", encoding="utf-8")
    expect("report.html" in run(script, folder, programs, expected=3, LABELS=str(folder)),
           "nightly: does not report the loss")
    (inbox / "broken.odg").write_text("no zip", encoding="utf-8")
    expect("broken.odg" in run(script, folder, programs, expected=1, LABELS=str(folder)),
           "nightly: does not name the broken file")
    for name in ("sample_vial.label", "sample_vial.pdf", "lossy.pdf"):
        expect((folder / "new" / name).is_file(), f"nightly: {name} is missing")
    return "statuses 0, 3 and 1"


def documents(text, folder, programs, samples):
    shutil.copytree(samples / "opendocument", folder / "archive")
    run(block(text, "An archive as PDF", "sh"), folder, programs)
    expect((folder / "not-embedded.txt").read_text(encoding="utf-8") == "",
           "documents: fonts are not embedded")
    files = list((folder / "documents").glob("*.pdf"))
    expect(len(files) == len(list((folder / "archive").glob("*.od?"))), "documents: files")
    fonts = 0
    for file in files:
        lines = subprocess.run(["pdffonts", file], check=True, capture_output=True,
                               text=True).stdout.splitlines()[2:]
        fonts += len(lines)
        expect(all(line.split()[-5] == "yes" for line in lines), f"documents: {file}")
    expect(fonts > 0, "documents: no fonts at all")
    return f"{fonts} embedded fonts in {len(files)} documents"


def contents(folder):
    return {str(path.relative_to(folder)) for path in (folder / "new").rglob("*")
            if path.suffix in (".png", ".label")}


def main():
    programs, text = sys.argv[1], pathlib.Path(sys.argv[2]).read_text(encoding="utf-8")
    samples = pathlib.Path(sys.argv[3])
    with tempfile.TemporaryDirectory() as work:
        whole = pathlib.Path(work, "whole")
        # None of these shows the time, which would differ between two imports.
        shutil.copytree(samples / "tavrel", whole / "archive" / "tavrel")
        shutil.copytree(samples / "opendocument", whole / "archive" / "opendocument")
        run("labelport import archive --output-dir new --to label,png --quiet "
            "--report report.json --report report.html", whole, programs)
        for recipe in (parallel, kubernetes, lists):
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
        for recipe in (glabels, records, printer, nightly, documents):
            folder = pathlib.Path(work, recipe.__name__)
            folder.mkdir()
            print(f"{recipe.__name__}: {recipe(text, folder, programs, samples)}")
    return 0


if __name__ == "__main__":
    sys.exit(main())
