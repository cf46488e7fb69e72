#!/usr/bin/env python3
"""Runs the recipe for object storage of docs/recipes.md with an S3 server on the loopback interface.

object_store.py NODE_FOLDER BIN RECIPES SAMPLES

Each object must become the picture that a file of the same content becomes, and an object that is not
a label must not become an object.
"""

import os
import pathlib
import re
import shutil
import socket
import subprocess
import sys
import tempfile
import time

# The server's only account.
SETTINGS = """\
[default]
access_key = S3RVER
secret_key = S3RVER
host_base = 127.0.0.1:{port}
host_bucket = 127.0.0.1:{port}
use_https = False
progress_meter = False
"""
SECONDS = 120  # until the server answers; a second is usual


def expect(condition, message):
    if not condition:
        sys.exit(message)


def free_port():
    with socket.create_server(("127.0.0.1", 0)) as server:
        return server.getsockname()[1]


def start(node_folder, work, port):
    """The server, with the bucket "labels". It ends with this process."""
    server = subprocess.Popen(
        ["setpriv", "--pdeathsig", "KILL", "node", f"{node_folder}/node_modules/s3rver/bin/s3rver.js",
         "--directory", str(work / "store"), "--address", "127.0.0.1", "--port", str(port),
         "--configure-bucket", "labels"],
        stdout=(work / "server.log").open("wb"), stderr=subprocess.STDOUT)
    end = time.monotonic() + SECONDS
    while time.monotonic() < end and server.poll() is None:
        try:
            socket.create_connection(("127.0.0.1", port), 1).close()
            return server
        except OSError:
            time.sleep(0.05)
    server.kill()
    sys.exit(f"the S3 server does not run:\n{(work / 'server.log').read_text()}")


class Client:
    def __init__(self, programs, work, port):
        (work / ".s3cfg").write_text(SETTINGS.format(port=port), encoding="utf-8")
        self.environment = dict(os.environ, HOME=str(work), PATH=f"{programs}:{os.environ['PATH']}")

    def run(self, *command, expected=0):
        done = subprocess.run(command, env=self.environment, check=False, capture_output=True)
        expect(done.returncode == expected, f"status {done.returncode} of {command}\n"
               f"{done.stdout[-2000:].decode(errors='replace')}\n{done.stderr.decode()}")
        return done

    def objects(self, prefix):
        """The objects below a prefix: {name: content}."""
        lines = self.run("s3cmd", "ls", "--recursive", prefix).stdout.decode().splitlines()
        names = [re.search(r"s3://.*", line).group() for line in lines]
        return {name.removeprefix(prefix): self.run("s3cmd", "get", name, "-").stdout
                for name in names}


def recipe(text):
    below = text.split("\n## Object storage\n", 1)[1]
    return re.search(r"```sh\n(.*?)```", below, re.DOTALL).group(1)


def import_objects(client, text, samples, work):
    labels = {f"{source.parent.name}/{source.name}": source for source in (
        samples / "tavrel" / "asset_tag_2000020.cnv", samples / "orvanta" / "asset_tag.qmtx",
        samples / "opendocument" / "sample_vial.odg")}
    labels["two  words/é 100%.odg"] = samples / "opendocument" / "address_label.odg"
    for name, source in labels.items():
        client.run("s3cmd", "put", str(source), f"s3://labels/archive/{name}")
    client.run("bash", "-c", recipe(text))
    written = client.objects("s3://labels/new/")
    expect(written.keys() == {f"{name}.png" for name in labels}, f"objects: {list(written)}")
    for name, source in labels.items():
        picture = client.run("labelport", "import", str(source), "--to", "png", "-o", "-").stdout
        expect(picture.startswith(b"\x89PNG") and written[f"{name}.png"] == picture,
               f"{name}: another picture")
    return labels


def refuse_others(client, text, labels, work):
    (work / "text").write_text("no label", encoding="utf-8")
    client.run("s3cmd", "put", str(work / "text"), "s3://labels/archive/a.txt")
    done = client.run("bash", "-c", recipe(text), expected=1)
    expect("s3://labels/archive/a.txt" in done.stderr.decode(), f"messages: {done.stderr.decode()}")
    # The object comes first; those after it are imported all the same.
    expect(client.objects("s3://labels/new/").keys() == {f"{name}.png" for name in labels},
           "an object that is not a label became an object, or others did not")


def main():
    node_folder, programs = sys.argv[1:3]
    text, samples = pathlib.Path(sys.argv[3]).read_text(encoding="utf-8"), pathlib.Path(sys.argv[4])
    for program in ("node", "s3cmd"):
        expect(shutil.which(program), f"install the Debian package of {program}")
    with tempfile.TemporaryDirectory() as folder:
        work, port = pathlib.Path(folder), free_port()
        (work / "store").mkdir()
        server = start(node_folder, work, port)
        try:
            client = Client(programs, work, port)
            labels = import_objects(client, text, samples, work)
            client.run("s3cmd", "del", "--recursive", "--force", "s3://labels/new/")
            refuse_others(client, text, labels, work)
        finally:
            server.kill()
            server.wait()
        print(f"{len(labels)} objects became pictures; another became nothing")
    return 0


if __name__ == "__main__":
    sys.exit(main())
