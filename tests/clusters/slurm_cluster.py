"""A Slurm cluster of one machine, for the time of a `with` statement.

munged, slurmctld and slurmd run as the current user, on free ports, with all their files in one
folder. They end with this process, even if it is killed.
"""

import contextlib
import os
import pathlib
import pwd
import secrets
import shutil
import socket
import subprocess
import time

PROGRAMS = ("munged", "slurmctld", "slurmd", "sbatch", "scancel", "scontrol", "sinfo", "squeue")
SECONDS = 120  # until a daemon answers; a second is usual

# The node has more processors than the machine, so that tasks run side by side on a small one.
# cred_expire is also the delay before a requeued task starts again; less than 5 s is not accepted.
SETTINGS = """\
ClusterName=labels
SlurmctldHost={host}(127.0.0.1)
SlurmctldPort={controller_port}
SlurmdPort={node_port}
SlurmUser={user}
SlurmdUser={user}
AuthType=auth/munge
AuthInfo=socket={folder}/munge/socket,cred_expire=5
CredType=cred/munge
MpiDefault=none
ProctrackType=proctrack/linuxproc
TaskPlugin=task/none
SelectType=select/cons_tres
SelectTypeParameters=CR_Core
SchedulerType=sched/backfill
SchedulerParameters=sched_interval=2,bf_interval=2
JobAcctGatherType=jobacct_gather/none
AccountingStorageType=accounting_storage/none
SlurmdParameters=config_overrides
ReturnToService=2
KillWait=5
StateSaveLocation={folder}/state
SlurmdSpoolDir={folder}/spool
SlurmctldPidFile={folder}/slurmctld.pid
SlurmdPidFile={folder}/slurmd.pid
SlurmctldLogFile={folder}/slurmctld.log
SlurmdLogFile={folder}/slurmd.log
NodeName={host} NodeAddr=127.0.0.1 CPUs=16 RealMemory=65536
PartitionName=labels Nodes={host} Default=YES MaxTime=INFINITE State=UP
"""


class Unavailable(Exception):
    """The cluster cannot run here. The text contains the reason and the logs' ends."""


def until(holds, what, seconds=SECONDS):
    """Waits until the function returns something true, and returns that."""
    end = time.monotonic() + seconds
    while not (result := holds()):
        if time.monotonic() > end:
            raise TimeoutError(f"{what}: not after {seconds} seconds")
        time.sleep(0.05)
    return result


def free_ports(count):
    with contextlib.ExitStack() as stack:
        servers = [stack.enter_context(socket.create_server(("127.0.0.1", 0)))
                   for _ in range(count)]
        return [server.getsockname()[1] for server in servers]


def find_programs():
    """Daemons are in /usr/sbin, which is not in the PATH of every user."""
    path = os.environ["PATH"] + ":/usr/sbin:/sbin"
    found = {name: shutil.which(name, path=path) for name in PROGRAMS}
    if missing := [name for name, file in found.items() if not file]:
        raise Unavailable(f"install the Debian packages slurm-wlm and munge: no {missing}")
    return found


class Cluster:
    def __init__(self, folder):
        self.folder = pathlib.Path(folder)
        self.programs = find_programs()
        self.settings = {"SLURM_CONF": str(self.folder / "slurm.conf")}  # for the client programs
        self.environment = dict(os.environ, **self.settings)
        self.daemons = []

    def __enter__(self):
        try:
            self.start()
        except BaseException:
            self.stop()
            raise
        return self

    def __exit__(self, *_):
        self.stop()

    def start(self):
        munge = self.folder / "munge"
        for folder in (munge, self.folder / "state", self.folder / "spool"):
            folder.mkdir(mode=0o755)
        key = munge / "key"
        key.touch(mode=0o600)
        key.write_bytes(secrets.token_bytes(128))
        controller_port, node_port = free_ports(2)
        (self.folder / "slurm.conf").write_text(SETTINGS.format(
            host=socket.gethostname().split(".")[0], folder=self.folder, user=pwd.getpwuid(os.getuid()).pw_name,
            controller_port=controller_port, node_port=node_port), encoding="utf-8")

        # By force, because it otherwise refuses a root folder that other users cannot enter.
        self.daemon("munged", "--foreground", "--force", f"--key-file={key}", f"--socket={munge}/socket",
                    f"--pid-file={munge}/pid", f"--log-file={munge}/log",
                    f"--seed-file={munge}/seed")
        self.await_state((munge / "socket").exists, "munged")
        self.daemon("slurmctld", "-D", "-i")
        self.await_state(lambda: "UP" in self.output("scontrol", "ping"), "slurmctld")
        self.daemon("slurmd", "-D")
        self.await_state(lambda: "idle" in self.output("sinfo", "-h", "-o", "%T").split(), "slurmd")

    def daemon(self, name, *arguments):
        log = open(self.folder / f"{name}.out", "wb")
        with log:
            self.daemons.append(subprocess.Popen(
                ["setpriv", "--pdeathsig", "KILL", self.programs[name], *arguments],
                env=self.environment, cwd=self.folder, stdin=subprocess.DEVNULL, stdout=log,
                stderr=subprocess.STDOUT))

    def await_state(self, holds, name):
        try:
            until(lambda: self.daemons[-1].poll() is not None or holds(), name)
        except TimeoutError as error:
            raise Unavailable(f"{error}\n{self.logs()}") from error
        if self.daemons[-1].poll() is not None:
            raise Unavailable(f"{name} ended\n{self.logs()}")

    def logs(self):
        files = sorted((*self.folder.glob("*.log"), *self.folder.glob("*.out"),
                        *self.folder.glob("munge/log")))
        return "\n".join(f"== {file.name}\n{file.read_text(errors='replace')[-3000:]}"
                         for file in files)

    def output(self, name, *arguments):
        """What a client program prints, which may fail."""
        done = subprocess.run([self.programs[name], *arguments], env=self.environment, check=False,
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
        return done.stdout

    def stop(self):
        """Ends all jobs, then the daemons in the reverse order."""
        if len(self.daemons) == 3:
            self.output("scancel", "--partition=labels")
            try:
                until(lambda: not self.output("squeue", "-h"), "the jobs' end", 30)
            except TimeoutError:
                pass  # slurmd kills what still runs
        for daemon in reversed(self.daemons):
            daemon.terminate()
            try:
                daemon.wait(20)
            except subprocess.TimeoutExpired:
                daemon.kill()
                daemon.wait()
        self.daemons.clear()
