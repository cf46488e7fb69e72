#!/usr/bin/env python3
"""Follows the links of the documentation.

links.py SOURCE   fails when a link leads to nothing, or when docs/README.md leaves a page out
links.py --try    proves itself on examples
"""

import pathlib
import re
import sys
import tempfile

LINK = re.compile(r"!?\[[^\]]*\]\(([^)\s]+)\)")
FENCE = re.compile(r"```.*?```|`[^`\n]*`", re.DOTALL)


def anchors(text):
    """Names of the headings, as they are linked to."""
    names = set()
    for heading in re.findall(r"^#+ +(.+?)\s*$", FENCE.sub(lambda m: m.group(0).strip("`"), text),
                              re.MULTILINE):
        words = re.sub(r"[^\w\- ]", "", heading.lower())
        names.add(words.replace(" ", "-"))
    return names


def broken_links(source):
    """(page, link) of every link that leads to nothing."""
    found = []
    for page in pages(source):
        text = page.read_text(encoding="utf-8")
        for link in LINK.findall(FENCE.sub("", text)):
            if re.match(r"[a-z]+:", link):
                continue
            path, _, anchor = link.partition("#")
            target = (page.parent / path) if path else page
            if not target.exists():
                found.append((page, link))
            elif anchor and target.suffix == ".md" and \
                    anchor not in anchors(target.read_text(encoding="utf-8")):
                found.append((page, link))
    return found


def pages(source):
    built = {"build", "out", ".git", "node_modules"}
    return sorted(path for path in source.rglob("*.md")
                  if not built & set(path.relative_to(source).parts))


def left_out(source):
    """Pages under docs/ that docs/README.md does not link."""
    index = source / "docs/README.md"
    linked = {(index.parent / link.partition("#")[0]).resolve()
              for link in LINK.findall(index.read_text(encoding="utf-8"))}
    return [page for page in pages(source / "docs")
            if page.resolve() not in linked and page != index and "api" not in page.parts]


def try_examples():
    with tempfile.TemporaryDirectory() as folder:
        source = pathlib.Path(folder)
        (source / "docs").mkdir()
        (source / "docs/README.md").write_text("[a](a.md)\n")
        (source / "docs/a.md").write_text(
            "# Two words\n[up](../docs/README.md) [here](#two-words) `[no](link.md)`\n"
            "[web](https://example.org) [gone](gone.md) [lost](#three)\n")
        (source / "docs/b.md").write_text("no page links here\n")
        links = [link for _, link in broken_links(source)]
        alone = [page.name for page in left_out(source)]
    if links != ["gone.md", "#three"] or alone != ["b.md"]:
        print("wrong result:", links, alone)
        return 1
    return 0


def main():
    if sys.argv[1:] == ["--try"]:
        return try_examples()
    source = pathlib.Path(sys.argv[1])
    links = broken_links(source)
    for page, link in links:
        print(f"{page.relative_to(source)}: leads to nothing: {link}")
    alone = left_out(source)
    for page in alone:
        print(f"docs/README.md does not lead to {page.relative_to(source)}")
    if len(pages(source)) < 10:
        print("hardly any page was looked at")
        return 1
    return 1 if links or alone else 0


if __name__ == "__main__":
    sys.exit(main())
