# SPDX-License-Identifier: MIT
"""Runs one program at a time and says how long it took, and what else the machine did meanwhile."""

import dataclasses
import fcntl
import os
import pathlib
import pty
import resource
import select
import signal
import struct
import subprocess
import tempfile
import termios
import time

MAX_DISTURBANCE = 0.05  # of one core; with more, a second thread gains visibly less
ATTEMPTS = 3
TIME_LIMIT_S = 1800
TERMINAL_ROWS_AND_COLUMNS = (24, 80)
TICKS_PER_SECOND = os.sysconf("SC_CLK_TCK")
# In the first line of /proc/stat. Interrupts are left out: it is the measured program, reading from
# the disk, that causes them. Guests count as users already.
WORKING_COLUMNS = {"user": 1, "nice": 2, "system": 3, "steal": 8}


class RunFailed(Exception):
    pass


@dataclasses.dataclass
class Run:
    seconds: float
    disturbance: float  # cores' worth of processor time that others used
    output: str = ""
    peak_bytes: int = 0


def machine_seconds():
    """Processor time that the whole machine has used since it started."""
    fields = pathlib.Path("/proc/stat").read_text().split("\n", 1)[0].split()
    return sum(int(fields[column]) for column in WORKING_COLUMNS.values()) / TICKS_PER_SECOND


def own_seconds():
    """Processor time that this program and the programs it has waited for have used."""
    total = 0.0
    for who in (resource.RUSAGE_SELF, resource.RUSAGE_CHILDREN):
        usage = resource.getrusage(who)
        total += usage.ru_utime + usage.ru_stime
    return total


class Watch:
    """Measures what others do from its making to the call of disturbance()."""

    def __init__(self):
        self.machine, self.own, self.begin = machine_seconds(), own_seconds(), time.monotonic()

    def disturbance(self):
        others = (machine_seconds() - self.machine) - (own_seconds() - self.own)
        return max(others, 0.0) / max(time.monotonic() - self.begin, 1.0 / TICKS_PER_SECOND)


def run_to_end(command, accepted=(0,), environment=None):
    """Times a program from its start to its end, which must come with an accepted status."""
    watch = Watch()
    begin = time.monotonic()
    # A file, for the end of a pipe comes when all have closed it: also what the program's desktop
    # started beside it, which may stay.
    with tempfile.TemporaryFile() as output:
        done = subprocess.run(
            command,
            stdin=subprocess.DEVNULL,
            stdout=output,
            stderr=subprocess.DEVNULL,
            env=environment,
            timeout=TIME_LIMIT_S,
            check=False,
        )
        seconds = time.monotonic() - begin
        if done.returncode not in accepted:
            raise RunFailed(f"{command[0]} ended with status {done.returncode}")
        output.seek(0)
        return Run(seconds, watch.disturbance(), output.read().decode(errors="replace"))


def run_on_x_server(command, size):
    """Runs a program to its end on an X server of its own, whose work counts as the program's."""
    watch = Watch()
    reading, writing = os.pipe()
    server = subprocess.Popen(
        ["Xvfb", "-displayfd", str(writing), "-screen", "0", f"{size}x24", "-nolisten", "tcp"],
        pass_fds=[writing],
        stdin=subprocess.DEVNULL,
        stdout=subprocess.DEVNULL,
        stderr=subprocess.DEVNULL,
    )
    os.close(writing)
    try:
        with os.fdopen(reading) as answer:
            display = answer.readline().strip()  # nothing when the server ended at once
        environment = {**os.environ, "DISPLAY": f":{display}", "QT_QPA_PLATFORM": "xcb"}
        result = run_to_end(command, environment=environment)
    finally:
        server.terminate()
        server.wait()
    # Processor time of another process counts as ours only from its end on.
    result.disturbance = watch.disturbance()
    return result


def run_to_screen(command, wanted, quit_keys):
    """Times a program on a terminal of its own until it shows the text; then has it quit."""
    watch = Watch()
    begin = time.monotonic()
    process, terminal = pty.fork()
    if process == 0:
        become(command)
    try:
        size = struct.pack("HHHH", *TERMINAL_ROWS_AND_COLUMNS, 0, 0)
        fcntl.ioctl(terminal, termios.TIOCSWINSZ, size)
        await_text(terminal, wanted)
        seconds = time.monotonic() - begin
        peak = peak_bytes(process)
        os.write(terminal, quit_keys)
        await_end(terminal)
    except BaseException:
        os.kill(process, signal.SIGKILL)
        raise
    finally:
        os.close(terminal)
        os.waitpid(process, 0)
    return Run(seconds, watch.disturbance(), peak_bytes=peak)


def become(command):
    """Turns this process into another program, or ends it."""
    try:
        os.environ["TERM"] = "xterm"
        os.execvp(command[0], command)
    finally:
        os._exit(127)


def read_terminal(terminal, deadline):
    """What comes next from the terminal; empty at its end."""
    ready, _, _ = select.select([terminal], [], [], max(deadline - time.monotonic(), 0))
    if not ready:
        raise RunFailed("the program on the terminal did not get ready in time")
    try:
        return os.read(terminal, 65536)
    except OSError:  # how Linux reports that the other side has closed
        return b""


def await_text(terminal, wanted):
    deadline = time.monotonic() + TIME_LIMIT_S
    shown = b""
    while wanted not in shown:
        chunk = read_terminal(terminal, deadline)
        if not chunk:
            raise RunFailed("the program on the terminal ended early")
        shown = shown[-len(wanted):] + chunk


def await_end(terminal):
    deadline = time.monotonic() + TIME_LIMIT_S
    while read_terminal(terminal, deadline):
        pass


def peak_bytes(process):
    """The most memory that a running process has used so far."""
    for line in pathlib.Path(f"/proc/{process}/status").read_text().splitlines():
        if line.startswith("VmHWM:"):
            return int(line.split()[1]) * 1024
    raise RunFailed("the system does not say how much memory a process used")


def drop_caches():
    """Makes the next run read from the disk. Takes root."""
    os.sync()
    pathlib.Path("/proc/sys/vm/drop_caches").write_text("3\n")


def undisturbed(run, limit):
    """The first of some attempts that nobody disturbed, or else the one least disturbed; and how
    many attempts were dropped for it."""
    attempts = []
    for _ in range(ATTEMPTS):
        attempts.append(run())
        if attempts[-1].disturbance <= limit:
            break
    return min(attempts, key=lambda attempt: attempt.disturbance), len(attempts) - 1
