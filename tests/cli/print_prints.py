#!/usr/bin/env python3
"""print_prints.py PROGRAM SAMPLES

`labelport print` with a real CUPS server, whose queues print to files.
"""

import pathlib
import re
import subprocess
import sys

from cups_server import cups_server

faults = []
TAG = "orvanta/asset_tag.qmtx"  # a counter, 90 x 40 mm
VIAL = "opendocument/sample_vial.odg"


def expect(condition, what):
    if not condition:
        faults.append(what)


class Printing:
    def __init__(self, server, program, samples):
        self.server = server
        self.program = program
        self.samples = samples

    def run(self, *arguments, stdin=None):
        words = [str(self.samples / word) if "/" in word else word for word in arguments]
        return subprocess.run([self.program, "print", *words], env=self.server.environment,
                              input=stdin, capture_output=True, check=False)

    def printed(self, *arguments, stdin=None):
        """The jobs of a command that succeeds."""
        result = self.run(*arguments, stdin=stdin)
        if result.returncode != 0:
            faults.append(f"{arguments}: {result.stderr.decode()}")
        return [self.server.wait_for(job) for job in result.stdout.decode().split()]

    def fails(self, reason, *arguments, stdin=None):
        result = self.run(*arguments, stdin=stdin)
        message = result.stderr.decode()
        expect(result.returncode == 1, f"{arguments}: status {result.returncode}")
        expect(reason in message, f"{arguments}: {message}")
        expect(result.stdout == b"", f"{arguments}: prints {result.stdout}")


def size_of(document):
    """Width and height of the first page in millimeters."""
    box = re.search(rb"/MediaBox \[([0-9. ]+)\]", document).group(1).split()
    left, bottom, right, top = (float(number) / 72 * 25.4 for number in box)
    return right - left, top - bottom


def check_labels(printing):
    jobs = printing.printed(TAG, "--printer", "zebra", "--records", "1-4", "--copies", "2")
    expect(len(jobs) == 1 and jobs[0].pages() == 8, "four records, two copies: 8 pages")
    width, height = size_of(jobs[0].document)
    media = re.fullmatch(r"Custom\.([0-9.]+)x([0-9.]+)mm", jobs[0].options["media"])
    expect(media and abs(float(media[1]) - width) < 0.02 and abs(float(media[2]) - height) < 0.02,
           f"the paper {jobs[0].options['media']} is the label's: {width} x {height} mm")
    expect(jobs[0].options.get("print-scaling") == "none", "labels keep their size")
    expect(jobs[0].title == "asset_tag", f"title {jobs[0].title}")


def check_sheets(printing):
    jobs = printing.printed(TAG, VIAL, "--printer", "office", "--sheet", "A4", "--copies", "3")
    expect(all(job.options["media"] == "A4" for job in jobs), "sheets are A4")
    jobs = printing.printed(TAG, TAG, "--printer", "office", "--sheet", "L7163", "--records",
                            "1-40", "--copies", "2", "--first-position", "3", "--crop-marks")
    expect(len(jobs) == 1 and jobs[0].pages() == 12, "2 + 160 labels of 14 are 12 sheets")


def check_several(printing):
    jobs = printing.printed(TAG, TAG, VIAL, TAG, "--printer", "zebra")
    expect([job.pages() for job in jobs] == [2, 1, 1], "a job for each paper, in order")
    label = (printing.samples / TAG).read_bytes()
    jobs = printing.printed("-", "--printer", "zebra", "--reader", "orvanta", stdin=label)
    expect([job.title for job in jobs] == ["stdin"], "standard input is printed")


def check_failures(printing):
    printing.fails("damaged", TAG, "-", "--printer", "zebra", "--reader", "orvanta", stdin=b"no")
    printing.fails("has only 1 record", TAG, VIAL, "--printer", "zebra", "--records", "2")
    printing.fails('sheet "L4731" are only', TAG, "--printer", "zebra", "--sheet", "L4731")
    printing.fails("no position 15", TAG, "--sheet", "L7163", "--first-position", "15")
    printing.fails("Cannot print: ", TAG, "--printer", "missing")
    printing.fails("default destination", TAG)


def main():
    program, samples = sys.argv[1:]
    with cups_server("zebra", "office") as server:
        printing = Printing(server, program, pathlib.Path(samples))
        check_labels(printing)
        check_sheets(printing)
        check_several(printing)
        check_failures(printing)
    if faults:
        sys.exit("\n".join(faults))


main()
