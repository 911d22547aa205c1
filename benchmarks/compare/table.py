# SPDX-License-Identifier: MIT
"""Figures beside their goals."""

import dataclasses


@dataclasses.dataclass
class Row:
    what: str
    on: str
    measured: str  # with its unit, and what it came from
    figure: float
    goal: float
    unit: str = ""
    is_strict: bool = False  # the goal itself misses
    is_least: bool = False  # more is better

    @property
    def is_reached(self):
        if self.is_least:
            return self.figure >= self.goal
        return self.figure < self.goal if self.is_strict else self.figure <= self.goal

    def cells(self):
        bound = "at least" if self.is_least else "under" if self.is_strict else "at most"
        goal = f"{bound} {self.goal:g}{self.unit}"
        return [self.what, self.on, self.measured, goal, "ok" if self.is_reached else "MISSED"]


HEADS = ["what", "on", "measured", "goal", ""]


def as_text(rows):
    lines = [HEADS] + [row.cells() for row in rows]
    widths = [max(len(line[column]) for line in lines) for column in range(len(HEADS))]
    return "\n".join(
        "  ".join(cell.ljust(width) for cell, width in zip(line, widths)).rstrip() for line in lines
    )


def as_markdown(rows):
    lines = [HEADS, ["---"] * len(HEADS)] + [row.cells() for row in rows]
    return "\n".join("| " + " | ".join(line) + " |" for line in lines)
