"""A CUPS server of its own for a test, with queues that print to files.

It listens on a Unix socket in a temporary folder, and needs neither root nor the system's server.
"""

import contextlib
import getpass
import grp
import os
import pathlib
import select
import shutil
import subprocess
import tempfile
import time

SECONDS = 60

FILES = """ServerRoot {folder}/root
RequestRoot {folder}/spool
CacheDir {folder}/cache
StateDir {folder}/state
TempDir {folder}/spool
ServerBin {folder}/bin
ErrorLog {folder}/error_log
AccessLog {folder}/access_log
PageLog {folder}/page_log
User {user}
Group {group}
SystemGroup {system_group}
"""

SERVER = """Listen {folder}/socket
Browsing Off
DefaultAuthType None
WebInterface No
<Location />
  Allow all
</Location>
<Location /admin>
  Allow all
</Location>
<Policy default>
  JobPrivateAccess all
  JobPrivateValues none
  <Limit All>
    Order deny,allow
    Allow all
  </Limit>
</Policy>
"""

# A backend gets job, user, title, copies, options, and the document.
BACKEND = """#!/bin/sh
[ $# -eq 0 ] && echo 'direct capture "Unknown" "Prints to a file"' && exit
if [ $# -ge 6 ]; then cat "$6"; else cat; fi > {folder}/out/$PRINTER-$1.pdf
printf '%s\\n%s\\n' "$3" "$5" > {folder}/out/$PRINTER-$1.txt
echo "$PRINTER-$1" > {folder}/done
"""


class Printed:
    """A finished job."""

    def __init__(self, document, text):
        self.document = document
        self.title, options = text.splitlines()[:2]
        self.options = dict(word.partition("=")[::2] for word in options.split())

    def pages(self):
        return self.document.count(b"/Type /Page\n")


class CupsServer:
    def __init__(self, folder):
        self.folder = folder
        self.environment = dict(os.environ, CUPS_SERVER=str(folder / "socket"))
        self.done = None

    def start(self):
        for name in ("root", "spool", "cache", "state", "out", "bin/backend"):
            (self.folder / name).mkdir(parents=True)
        for name in ("daemon", "filter"):
            (self.folder / "bin" / name).symlink_to(f"/usr/lib/cups/{name}")
        # A server of root runs filters as another user; backends that only root can read stay root's.
        is_root = os.geteuid() == 0
        own_group = grp.getgrgid(os.getegid()).gr_name
        values = {"folder": self.folder, "user": "lp" if is_root else getpass.getuser(),
                  "group": "lp" if is_root else own_group, "system_group": own_group}
        (self.folder / "cups-files.conf").write_text(FILES.format(**values))
        (self.folder / "cupsd.conf").write_text(SERVER.format(**values))
        backend = self.folder / "bin/backend/capture"
        backend.write_text(BACKEND.format(**values))
        backend.chmod(0o700)
        os.mkfifo(self.folder / "done")
        self.done = os.open(self.folder / "done", os.O_RDWR)
        # A copy, because AppArmor restricts the installed program to the system's folders.
        program = shutil.copy("/usr/sbin/cupsd", self.folder / "cupsd")
        return subprocess.Popen([program, "-f", "-c", self.folder / "cupsd.conf", "-s",
                                 self.folder / "cups-files.conf"])

    def add_queue(self, name):
        """Adds a queue, as soon as the server accepts it."""
        command = ["lpadmin", "-p", name, "-v", "capture:/", "-E"]
        deadline = time.monotonic() + SECONDS
        while True:
            result = subprocess.run(command, env=self.environment, capture_output=True, text=True,
                                    check=False)
            if result.returncode == 0:
                return
            if time.monotonic() > deadline:
                raise RuntimeError(f"the print server does not start: {result.stderr}")
            select.select([], [], [], 0.05)

    def wait_for(self, job):
        """The document of a job, as soon as it is printed."""
        while not (self.folder / "out" / f"{job}.txt").exists():
            if not select.select([self.done], [], [], SECONDS)[0]:
                raise RuntimeError(f"{job} is not printed")
            os.read(self.done, 4096)
        return Printed((self.folder / "out" / f"{job}.pdf").read_bytes(),
                       (self.folder / "out" / f"{job}.txt").read_text(encoding="utf-8"))


@contextlib.contextmanager
def cups_server(*queues):
    """Runs a server with these queues."""
    with tempfile.TemporaryDirectory(prefix="cups-") as name:
        os.chmod(name, 0o755)  # for the user of the filters
        server = CupsServer(pathlib.Path(name))
        process = server.start()
        try:
            for queue in queues:
                server.add_queue(queue)
            yield server
        finally:
            process.terminate()
            process.wait()
            os.close(server.done)
