#!/usr/bin/env python3
"""Builds the container image, and runs the recipes of docs/recipes.md with it as they are printed.

container_image.py BUILD PACKAGES BIN RECIPES SAMPLES

The import of a folder must write what labelport writes outside of the container. The container has a
read-only root, no network and no privileges; the test tries all three. The Job's script runs with the
Job's own restrictions.
"""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

import yaml

from podman import Podman

NOBODY = 65534
IMAGE = "localhost/labelport:latest"


def block(text, heading, kind, number=0):
    below = text.split(f"\n## {heading}\n", 1)[1].split("\n## ", 1)[0]
    return re.findall(rf"```{kind}\n(.*?)```", below, re.DOTALL)[number]


def expect(condition, message):
    if not condition:
        sys.exit(message)


def must(result, what):
    status, output, errors = result
    expect(status == 0, f"{what}: status {status}\n{output}\n{errors[-4000:]}")
    return output


def contents(folder):
    return {str(path.relative_to(folder)): path.read_bytes() for path in (folder / "new").rglob("*")
            if path.suffix in (".png", ".label")}


def refuse_missing_packages(build, folder):
    """Without LabelPort's packages, nothing is downloaded or written."""
    done = subprocess.run([build, folder, f"{folder}/image.tar"], check=False, capture_output=True,
                          text=True)
    expect(done.returncode == 1 and "there is no package" in done.stderr
           and not os.listdir(folder), f"without packages: {done.returncode}\n{done.stderr}")


def labels_for_nobody(folder, samples):
    """A folder of labels to which the image's user can write."""
    shutil.copytree(samples / "tavrel", folder / "archive")
    for path in (folder, *folder.rglob("*")):
        path.chmod(0o755 if path.is_dir() else 0o644)
    os.chown(folder, NOBODY, NOBODY)


def outside(programs, folder, samples, *options):
    """What labelport writes without a container."""
    shutil.copytree(samples / "tavrel", folder / "archive")
    subprocess.run([f"{programs}/labelport", "import", "archive", "--output-dir", "new", "--to",
                    "label,png", "--quiet", *options], cwd=folder, check=True)
    return contents(folder)


def import_folder(podman, text, folder):
    must(podman.run("bash", "-c", block(text, "A container", "sh", 1), folder=folder), "the recipe")
    owners = {path.stat().st_uid for path in (folder / "new").rglob("*")}
    expect(owners == {NOBODY}, f"the outputs belong to {owners}")


def try_to_escape(podman, text):
    """The recipe's options prevent what they are meant to prevent."""
    options = re.search(r"podman run (.*?) \\\n *--volume", block(text, "A container", "sh", 1),
                        re.DOTALL).group(1).replace("\\\n", " ").split()
    seen = must(podman.run(
        "podman", "run", *options, "--entrypoint", "sh", IMAGE, "-c",
        "id -u; touch /x || echo read-only; ls /sys/class/net;"
        "grep -E '^(CapEff|CapBnd|NoNewPrivs)' /proc/self/status"), "escape").split()
    expect(seen == [str(NOBODY), "read-only", "lo", "CapBnd:", "0" * 16, "NoNewPrivs:", "1"]
           or seen == [str(NOBODY), "read-only", "lo", "CapEff:", "0" * 16, "CapBnd:", "0" * 16,
                       "NoNewPrivs:", "1"], f"the container permits too much: {seen}")


def job_options(pod):
    """The options of podman that mean what the Job's pod asks for."""
    container = pod["containers"][0]
    context = dict(pod["securityContext"], **container["securityContext"])
    expect(context["readOnlyRootFilesystem"] and context["runAsNonRoot"]
           and not context["allowPrivilegeEscalation"] and context["capabilities"]["drop"] == ["ALL"],
           f"the Job permits too much: {context}")
    return ["--rm", "--network", "none", "--read-only", "--cap-drop", "all", "--security-opt",
            "no-new-privileges", "--user", f"{context['runAsUser']}:{context['runAsGroup']}",
            "--workdir", container["workingDir"], "--entrypoint", container["command"][0]]


def run_job(podman, text, folder):
    job = yaml.safe_load(block(text, "Kubernetes", "yaml"))
    pod = job["spec"]["template"]["spec"]
    container = pod["containers"][0]
    must(podman.run("podman", "run", *job_options(pod), "--env", "JOB_COMPLETION_INDEX=0",
                    "--volume", f"{folder}:{container['volumeMounts'][0]['mountPath']}", IMAGE,
                    *container["command"][1:], *container["args"]), "the Job")
    expect((folder / "parts" / "0.json").is_file(), "the Job wrote no report")
    return job["spec"]["completions"]


def main():
    build, packages, programs = sys.argv[1:4]
    text, samples = pathlib.Path(sys.argv[4]).read_text(encoding="utf-8"), pathlib.Path(sys.argv[5])
    for program in ("mmdebstrap", "umoci", "podman", "crun"):
        expect(shutil.which(program), f"install the Debian package {program}")
    if os.geteuid() != 0:  # ./test uses sudo as well, to install packages
        expect(shutil.which("sudo"), "this test makes containers: run it as root, or install sudo")
        os.execvp("sudo", ["sudo", "-n", sys.executable, *sys.argv])
    # Not in /tmp, which may be small and in memory.
    with tempfile.TemporaryDirectory(dir="/var/tmp") as work:
        pathlib.Path(work).chmod(0o755)
        folders = {name: pathlib.Path(work, name) for name in ("import", "job", "whole", "part")}
        with tempfile.TemporaryDirectory() as empty:
            refuse_missing_packages(build, empty)
        image = pathlib.Path(work, "labelport.tar")
        done = subprocess.run([build, packages, str(image)], check=False, capture_output=True,
                              text=True)
        must((done.returncode, done.stdout, done.stderr), "packaging/container/build")
        podman = Podman(pathlib.Path(work, "podman"))
        expect(IMAGE in must(podman.run("podman", "load", "-i", str(image)), "podman load"),
               "the image has another name")
        try_to_escape(podman, text)
        for name in ("import", "job"):
            labels_for_nobody(folders[name], samples)
        import_folder(podman, text, folders["import"])
        whole = outside(programs, folders["whole"], samples)
        # Names, not contents: the image has other fonts than the machine.
        expect(whole and contents(folders["import"]).keys() == whole.keys(),
               "the container wrote other files")
        parts = run_job(podman, text, folders["job"])
        part = outside(programs, folders["part"], samples, "--shard", f"1/{parts}")
        expect(part and contents(folders["job"]).keys() == part.keys(),
               "the Job wrote other files")
        print(f"image of {image.stat().st_size >> 20} MiB: {len(whole)} files, {len(part)} of the Job")
    return 0


if __name__ == "__main__":
    sys.exit(main())
