"""podman with all its files in one folder, on machines where little is permitted."""

import os
import pathlib
import resource
import subprocess

# No cgroups of its own: a test machine may not permit them. Limits not above the machine's.
STORAGE = """\
[storage]
driver = "vfs"
graphroot = "{folder}/storage"
runroot = "{folder}/run"
"""
CONTAINERS = """\
[containers]
cgroups = "disabled"
log_driver = "none"
default_ulimits = ["nofile={files}:{files}", "nproc={processes}:{processes}"]
[engine]
cgroup_manager = "cgroupfs"
events_logger = "none"
runtime = "crun"
tmp_dir = "{folder}/tmp"
"""

# crun accepts either version of cgroups, but not a mix of both, and needs a root that is a mount
# point, which that of a chroot is not. Both are arranged in a mount namespace of the command's own.
PREPARED = """\
if unshare --mount true 2>/dev/null; then
    exec unshare --mount sh -c '
        [ ! -d /sys/fs/cgroup/unified ] || mount -t cgroup2 none /sys/fs/cgroup || exit
        exec "$@"' sh "$@"
fi
exec unshare --mount --propagation unchanged sh -c '
    root=$1 && shift && mkdir -p "$root" && mount --rbind / "$root" || exit
    [ ! -d /sys/fs/cgroup/unified ] || mount -t cgroup2 none "$root/sys/fs/cgroup" || exit
    exec chroot "$root" sh -c "cd \\"\\$0\\" && exec \\"\\$@\\"" "$PWD" "$@"' sh "{folder}/root" "$@"
"""


class Podman:
    def __init__(self, folder):
        self.folder = pathlib.Path(folder)
        self.folder.mkdir()
        limit = min(4096, *(hard for hard in (resource.getrlimit(kind)[1] for kind in (
            resource.RLIMIT_NOFILE, resource.RLIMIT_NPROC)) if hard > 0))
        values = {"folder": self.folder, "files": limit, "processes": limit}
        for name, text in (("storage", STORAGE), ("containers", CONTAINERS)):
            (self.folder / f"{name}.conf").write_text(text.format(**values), encoding="utf-8")
        self.environment = dict(os.environ,
                                CONTAINERS_STORAGE_CONF=str(self.folder / "storage.conf"),
                                CONTAINERS_CONF=str(self.folder / "containers.conf"))

    def run(self, *command, folder=None):
        """Runs a command, such as a script that calls podman. Returns status, output and errors."""
        done = subprocess.run(
            ["sh", "-c", PREPARED.replace("{folder}", str(self.folder)), "sh", *command],
            cwd=folder, env=self.environment, check=False, capture_output=True, text=True)
        return done.returncode, done.stdout, done.stderr
