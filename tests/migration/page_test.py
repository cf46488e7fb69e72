#!/usr/bin/python3
"""Opens a report in a real browser and looks at what it shows.

    page_test.py CHROMIUM REPORT.html REPORT.jsonl FOLDER
"""

import html.parser
import json
import os
import subprocess
import sys
import urllib.parse

chromium, page, data, folder = sys.argv[1:]
with open(data, encoding="utf-8") as file:
    lines = [json.loads(line) for line in file]
files = [line for line in lines if "file" in line]


class Cards(html.parser.HTMLParser):
    """The cards of the page: those that are shown, in their order, and all."""

    def __init__(self):
        super().__init__()
        self.shown, self.all, self.said, self.in_output = [], 0, "", False
        self.scripts = 0
        self.opening = []

    def handle_starttag(self, tag, attributes):
        attributes = dict(attributes)
        if tag == "article":
            self.all += 1
            if "hidden" not in attributes:
                self.shown.append(attributes["data-name"])
        self.scripts += tag == "script"
        if tag == "a" and attributes.get("href", "").startswith("labelport:"):
            self.opening.append(attributes["href"])
        self.in_output = tag == "output"

    def handle_endtag(self, tag):
        self.in_output = False

    def handle_data(self, text):
        if self.in_output:
            self.said += text


def browser(*arguments):
    command = [chromium, "--headless", "--no-sandbox", "--disable-gpu", "--disable-dev-shm-usage",
               "--no-first-run", "--user-data-dir=" + os.path.join(folder, "profile"),
               "--virtual-time-budget=5000", *arguments]
    environment = dict(os.environ, HOME=folder, XDG_CONFIG_HOME=folder, XDG_CACHE_HOME=folder)
    return subprocess.run(command, capture_output=True, text=True, timeout=240, check=True,
                          env=environment).stdout


def view(state):
    cards = Cards()
    cards.feed(browser("--dump-dom", f"file://{os.path.abspath(page)}#{state}"))
    assert cards.all == len(files), (cards.all, len(files))
    assert cards.scripts == 1, "only the page's own script"
    return cards


def lost(entry):
    objects = entry["objects"]
    return 0 if objects["inFile"] is None else max(0, objects["inFile"] - objects["imported"])


def names(wanted):
    return [entry["file"] for entry in wanted]


def expect(state, wanted):
    shown = view(state).shown
    assert shown == wanted, f"{state}:\n  shown  {shown}\n  wanted {wanted}"


everything = view("")
assert everything.shown == names(files), everything.shown
assert everything.said == f"{len(files)} of {len(files)} shown", everything.said

originals = [os.path.abspath(os.path.join(os.path.dirname(os.path.abspath(page)), entry["file"]))
             for entry in files]
wanted = ["labelport://" + urllib.parse.quote(file) for file in originals if os.path.exists(file)]
assert wanted, "the report has originals"
assert everything.opening == wanted, (everything.opening, wanted)

failed = [entry for entry in files if entry["verdict"] == "failed"]
assert failed
expect("status=failed&sort=lost", names(sorted(failed, key=lambda entry: -lost(entry))))
expect("status=timed-out", ["slow.odg"])
expect("sort=lost", names(sorted(files, key=lambda entry: -lost(entry))))
expect("status=lossy&reader=orvanta",
       names(entry for entry in files if entry["verdict"] == "lossy"
             and entry["reader"] == "orvanta"))
code = next(finding["code"] for entry in files for finding in entry["changed"])
expect("code=" + code,
       names(entry for entry in files
             if code in [finding["code"] for finding in entry["changed"] + entry["lost"]]))
expect("q=crashed+%3Cb%3E", ["crashed <b>.cnv"])
expect("q=no+label+has+these+words", [])
print("the page shows what it is asked for")
