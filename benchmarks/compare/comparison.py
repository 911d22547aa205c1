# SPDX-License-Identifier: MIT
"""Several programs, measured in turns on one folder."""

import statistics
import sys

import runs


class Comparison:
    """Runs of several tools on one folder, tool by tool in turn."""

    def __init__(self, folder, rounds, limit, is_cold):
        self.folder, self.rounds, self.limit, self.is_cold = folder, rounds, limit, is_cold
        self.runs = {}
        self.repeated = 0

    def measure(self, compared):
        self.runs = {tool.name: [] for tool in compared}
        if not self.is_cold:
            for tool in compared:
                tool.run(self.folder)
        for number in range(1, self.rounds + 1):
            for tool in compared:
                self.measure_once(tool)
            state = "cold" if self.is_cold else "warm"
            print(f"scripts/bench: {self.folder} {state}, round {number}", file=sys.stderr)
        return self

    def measure_once(self, tool):
        result, repeated = runs.undisturbed(lambda: self.run(tool), self.limit)
        self.runs[tool.name].append(result)
        self.repeated += repeated

    def run(self, tool):
        if self.is_cold:
            runs.drop_caches()
            tool.load()
        return tool.run(self.folder)

    def kept(self, name):
        """The runs that nobody disturbed; where there is none, all of them."""
        calm = [run for run in self.runs[name] if run.disturbance <= self.limit]
        return calm or self.runs[name]

    def median(self, name):
        return statistics.median(run.seconds for run in self.kept(name))

    def peak(self, name):
        return statistics.median(run.peak_bytes for run in self.kept(name))

    def notes(self):
        yield f"{self.folder}: {self.repeated} disturbed runs were repeated."
        restless = [name for name in self.runs if self.kept(name)[0].disturbance > self.limit]
        if restless:
            yield f"{self.folder}: every run of {', '.join(restless)} was disturbed."
