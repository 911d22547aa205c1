# SPDX-License-Identifier: MIT
"""The programs that are measured side by side, all through the same few calls."""

import dataclasses
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
from collections.abc import Callable

import runs

LARGEST_MAP = "3840x2400"  # that ZoomBench shows
SCREEN = "1920x1200"

@dataclasses.dataclass
class Tool:
    """A program that goes through a folder."""

    name: str
    run: Callable[[str], runs.Run]  # with the folder
    idle_command: list[str]  # starts the program and ends at once

    def load(self):
        """Gets the program file into memory, so that a cold run reads the folder alone."""
        with open(os.devnull, "r+b") as nothing:
            subprocess.run(
                self.idle_command, stdin=nothing, stdout=nothing, stderr=nothing, check=False
            )


def figures(output):
    """What our own programs print: names and values in turn."""
    words = output.split()
    return {name: float(value) for name, value in zip(words[::2], words[1::2])}


def own_tool(name, program):
    def run(folder):
        result = runs.run_to_end([program, folder])
        result.seconds = figures(result.output)["seconds"]
        return result

    return Tool(name, run, [program])


def peer(name, command, idle_command):
    def run(folder):
        # They exit with 1 when some folder could not be read, which is none of our concern.
        return runs.run_to_end([*command, folder], accepted=(0, 1))

    return Tool(name, run, idle_command)


def ncdu():
    def run(folder):
        return runs.run_to_screen(["ncdu", "--ignore-config", folder], b"Total disk usage", b"q")

    return Tool("ncdu", run, ["ncdu", "-v"])


def duc():
    def run(folder):
        with tempfile.TemporaryDirectory(prefix="tessera-bench-") as place:
            database = os.path.join(place, "duc.db")
            return runs.run_to_end(
                ["duc", "index", "--database", database, folder], accepted=(0, 1)
            )

    return Tool("duc index", run, ["duc", "--version"])


def scan_tools(programs):
    """Ours first, then what it is compared with, as far as it is installed."""
    peers = [
        peer("du -s", ["du", "-s"], ["du", "--version"]),
        ncdu(),
        peer("gdu -n -p -s", ["gdu", "-n", "-p", "-s"], ["gdu", "-v"]),
        duc(),
    ]
    own = [own_tool("Tessera", str(programs / "Scanning" / "ScanBench"))]
    bare = own_tool("bare walk", str(programs / "Scanning" / "BareWalk"))
    installed = [tool for tool in peers if shutil.which(tool.idle_command[0])]
    for tool in peers:
        if tool not in installed:
            print(f"scripts/bench: {tool.name} is not installed: left out", file=sys.stderr)
    return own + installed + [bare]


def count_items(programs, folder):
    walk = runs.run_to_end([str(programs / "Scanning" / "BareWalk"), folder])
    return int(figures(walk.output)["items"])


def prepare_tree(programs, folder, items):
    """Generates the tree, or checks that the one that is there is the right one."""
    if folder.exists():
        found = count_items(programs, str(folder))
        if found != items:
            sys.exit(f"scripts/bench: {folder} holds {found} items instead of {items}; remove it")
        return
    print(f"scripts/bench: generating {items} items in {folder}", file=sys.stderr)
    folder.parent.mkdir(parents=True, exist_ok=True)
    # Renamed when complete, so that what an interrupted run leaves is never taken for the tree.
    unfinished = folder.with_name(folder.name + ".unfinished")
    if unfinished.exists():
        shutil.rmtree(unfinished)
    subprocess.run(
        [str(programs / "Scanning" / "GenerateTree"), str(unfinished), str(items)], check=True
    )
    unfinished.rename(folder)


class OwnBenches:
    """Our programs that measure by themselves, most of them on trees that they make in memory."""

    def __init__(self, programs, items, limit):
        self.programs, self.items, self.limit = programs, items, limit
        self.disturbed = []

    def output(self, program, *arguments):
        command = [str(self.programs / program), str(self.items), *map(str, arguments)]
        result, _ = runs.undisturbed(lambda: runs.run_to_end(command), self.limit)
        if result.disturbance > self.limit:
            self.disturbed.append(program)
        return result.output

    def changes(self):
        """Milliseconds for releasing a tree and what else is done to a whole one or a large folder."""
        pattern = r"(releasing|replacing|removing|adding up) [^,]*? ([\d.]+) ms"
        found = re.findall(pattern, self.output("Model/TreeBench"))
        return {name: float(value) for name, value in found}

    def pictures(self, rounds):
        """Milliseconds for each picture that PaintBench made, by what it calls it."""
        pattern = r"^(\w+ \d+x\d+@[\d.]+) .*renderTree +([\d.]+) ms"
        found = re.findall(pattern, self.output("TreeScreen/PaintBench", rounds), re.M)
        return {name: float(value) for name, value in found}

    def hovers(self, moves):
        """Median and 95th percentile in milliseconds, by picture and kind of move."""
        pattern = r"^(\w+ \w+ box) .*median ([\d.]+) ms, 95th percentile ([\d.]+) ms"
        found = re.findall(pattern, self.output("TreeScreen/HoverBench", moves), re.M)
        return {kind: (float(median), float(high)) for kind, median, high in found}

    def on_screen(self, program, *arguments, size):
        """What a program prints that shows windows, on an X server and a session bus of its own:
        the user's may know a Tessera that runs already."""
        command = [str(self.programs / program), *map(str, arguments)]
        if shutil.which("dbus-run-session"):
            command = ["dbus-run-session", "--", *command]
        result, _ = runs.undisturbed(lambda: runs.run_on_x_server(command, size), self.limit)
        if result.disturbance > self.limit:
            self.disturbed.append(program)
        return result.output

    def longest_hold(self, folder, files):
        """For how many milliseconds the main thread was out of reach at the worst, and when."""
        output = self.on_screen("Start/WatchdogBench", folder, files, size=SCREEN)
        found = re.search(r"^longest ([\d.]+) ms, .*: (.+)$", output, re.M)
        return float(found[1]), found[2]

    def starts(self, rounds):
        """Median milliseconds until the screen stays as it is, by the name of the program."""
        started = [self.programs.parent / "src" / "tessera", self.programs / "Start" / "BareWindow"]
        output = self.on_screen("Start/StartBench", rounds, *started, size=SCREEN)
        found = re.findall(r"^(\S+) median ([\d.]+) ms", output, re.M)
        return {name: float(median) for name, median in found}

    def zooms(self, folder, count):
        """Pictures a second in the slowest of some zooms, median and 95th percentile of the time
        from one picture to the next in milliseconds; by the size of the map."""
        output = self.on_screen("TreeScreen/ZoomBench", folder, count, size=LARGEST_MAP)
        pattern = (
            r"^zoom (\d+x\d+) .*least ([\d.]+) .*"
            r"median ([\d.]+) ms, 95th percentile ([\d.]+) ms, longest"
        )
        found = re.findall(pattern, output, re.M)
        return {size: tuple(map(float, figures)) for size, *figures in found}


def file_system_of(folder):
    command = ["df", "--output=fstype", str(folder)]
    done = subprocess.run(command, stdout=subprocess.PIPE, text=True, check=True)
    return done.stdout.split()[-1]


def processor_name():
    for line in pathlib.Path("/proc/cpuinfo").read_text().splitlines():
        if line.startswith("model name"):
            return line.split(":", 1)[1].strip()
    return "unknown processor"
