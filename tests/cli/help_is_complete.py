#!/usr/bin/env python3
"""Completion and manual pages know every option that --help shows, and none that it does not.

help_is_complete.py BIN GENERATED MAN

BIN is the folder of the programs, GENERATED has the completion and the manual page of labelport,
MAN the other manual pages. Shells that are not installed are named and skipped.
"""

import os
import pathlib
import re
import shutil
import subprocess
import sys

COMMANDS = ["import", "print", "inspect", "records", "list", "report", "formats", "trace"]
OPTION = re.compile(r"(?<![\w-])--([a-z][a-z0-9-]*)")
errors = []


def run(*command):
    environment = dict(os.environ, QT_QPA_PLATFORM="offscreen", LC_ALL="C.UTF-8")
    return subprocess.run(command, env=environment, capture_output=True, text=True, check=False)


def options_of(program, *command):
    """Long options at the beginning of the lines of a help text."""
    text = run(program, *command, "--help").stdout
    found = set(re.findall(r"^  (?:-\w, )?--([a-z0-9-]+)", text, re.MULTILINE))
    if not found:
        errors.append(f"{program} {command} shows no options")
    return found


def expect(offered, shown, where):
    for option in sorted(shown - offered):
        errors.append(f"{where} does not know --{option}")
    for option in sorted(offered - shown):
        errors.append(f"{where} knows --{option}, which does not exist")


def check_bash(folder, command, shown):
    script = f"""source {folder}/labelport.bash
        COMP_WORDS=(labelport {command} --); COMP_CWORD=2; _labelport; printf '%s\\n' "${{COMPREPLY[@]}}" """
    expect(set(OPTION.findall(run("bash", "-c", script).stdout)), shown, f"bash, {command}")


def check_bash_values(folder, work):
    (work / "a.odg").touch()
    (work / "a.txt").touch()
    cases = [(("labelport", "i"), {"import", "inspect"}),
             (("labelport", "import", "--to", "p"), {"png", "pdf"}),
             (("labelport", "import", "--to", "png,s"), {"png,svg"}),
             (("labelport", "import", "--reader", ""), {"tavrel", "orvanta", "opendocument"}),
             (("labelport", "report", ""), {"merge"}),
             (("labelport", "import", f"{work}/a"), {f"{work}/a.odg"})]
    for words, expected in cases:
        line = " ".join(f"'{word}'" for word in words)
        script = f"""source {folder}/labelport.bash
            COMP_WORDS=({line}); COMP_CWORD={len(words) - 1}; _labelport 2>/dev/null
            printf '%s\\n' "${{COMPREPLY[@]}}" """
        offered = set(run("bash", "-c", script).stdout.split())
        if offered != expected:
            errors.append(f"bash completes {words} with {offered}")


def check_fish(folder, command, shown):
    script = f"source {folder}/labelport.fish; complete -C 'labelport {command} --'"
    offered = set(OPTION.findall("\n".join(
        line.split("\t")[0] for line in run("fish", "-c", script).stdout.splitlines())))
    expect(offered, shown, f"fish, {command}")


def check_zsh(folder, command, shown):
    text = (folder / "_labelport").read_text(encoding="utf-8")
    part = re.search(rf"^{command}\)\n(.*?);;", text, re.DOTALL | re.MULTILINE).group(1)
    expect(set(re.findall(r"""['"]\*?--([a-z0-9-]+)\[""", part)), shown, f"zsh, {command}")


def check_manual(page, shown):
    if shutil.which("groff"):
        done = run("groff", "-man", "-ww", "-z", str(page))
        if done.returncode or done.stderr:
            errors.append(f"{page.name}: {done.stderr}")
    else:
        print("SKIPPED: there is no groff")
    offered = set(OPTION.findall(page.read_text(encoding="utf-8").replace("\\-", "-")))
    expect(offered, shown, page.name)


def main():
    programs, completion, manual = (pathlib.Path(argument) for argument in sys.argv[1:4])
    labelport = str(programs / "labelport")
    shown = {command: options_of(labelport, command) for command in COMMANDS}
    for command, options in shown.items():
        check_bash(completion, command, options)
        check_zsh(completion, command, options)
        if shutil.which("fish"):
            check_fish(completion, command, options)
    check_bash_values(completion, pathlib.Path.cwd())
    for shell in ("zsh", "fish"):
        if not shutil.which(shell):
            print(f"SKIPPED: there is no {shell}")
        elif run(shell, "-n", str(completion / ("_labelport" if shell == "zsh" else
                                                "labelport.fish"))).returncode:
            errors.append(f"{shell} cannot read its completion")
    of_all = set().union(*shown.values()) | options_of(labelport)
    check_manual(completion / "labelport.1", of_all)
    for name in ("labelport-trace", "labelport-workbench"):
        # --help-all lists Qt's own options.
        check_manual(manual / f"{name}.1", options_of(str(programs / name)) - {"help-all"})
    print("\n".join(errors) or "completion and manual pages know all that --help shows")
    return 1 if errors else 0


if __name__ == "__main__":
    sys.exit(main())
