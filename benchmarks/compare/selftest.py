# SPDX-License-Identifier: MIT
"""Holds against the rules what decides about the figures: python3 selftest.py"""

import os
import signal
import sys
import unittest
from unittest import mock

sys.dont_write_bytecode = True

import comparison  # noqa: E402
import runs  # noqa: E402
import table  # noqa: E402
import tools  # noqa: E402

LIMIT = 0.05


def fake_tool(name, results):
    """A tool whose runs take what is listed, as pairs of seconds and disturbance."""
    left = iter(results)
    return tools.Tool(name, lambda folder: runs.Run(*next(left)), ["true"])


class RepeatingTest(unittest.TestCase):
    def test_a_disturbed_run_is_repeated_until_a_calm_one(self):
        left = iter([runs.Run(9, 0.5), runs.Run(2, 0.01), runs.Run(1, 0.0)])
        result, repeated = runs.undisturbed(lambda: next(left), LIMIT)
        self.assertEqual((result.seconds, repeated), (2, 1))

    def test_repeating_ends_with_the_least_disturbed_run(self):
        left = iter([runs.Run(9, 0.5), runs.Run(7, 0.2), runs.Run(8, 0.3)])
        result, repeated = runs.undisturbed(lambda: next(left), LIMIT)
        self.assertEqual((result.seconds, repeated), (7, runs.ATTEMPTS - 1))


class ComparisonTest(unittest.TestCase):
    def measured(self, results, rounds, is_cold=True):
        compared = comparison.Comparison("/folder", rounds, LIMIT, is_cold)
        with mock.patch.object(runs, "drop_caches") as self.dropping, mock.patch("sys.stderr"):
            return compared.measure([fake_tool(name, runs) for name, runs in results.items()])

    def test_a_disturbed_run_is_not_in_the_median(self):
        restless = [(90, 0.5)] * runs.ATTEMPTS
        scan = self.measured({"a": [(1, 0), *restless, (2, 0), (3, 0)]}, rounds=4)
        self.assertEqual(scan.median("a"), 2)

    def test_disturbed_runs_count_where_there_are_no_others(self):
        scan = self.measured({"a": [(5, 0.5)] * runs.ATTEMPTS}, rounds=1)
        self.assertEqual(scan.median("a"), 5)
        self.assertIn("/folder: every run of a was disturbed.", list(scan.notes()))

    def test_a_warm_comparison_begins_with_runs_that_do_not_count(self):
        scan = self.measured({"a": [(100, 0), (1, 0)], "b": [(100, 0), (2, 0)]}, 1, is_cold=False)
        self.assertEqual((scan.median("a"), scan.median("b")), (1, 2))
        self.dropping.assert_not_called()

    def test_the_caches_are_dropped_before_every_cold_run(self):
        self.measured({"a": [(1, 0)] * 2, "b": [(1, 0)] * 2}, rounds=2)
        self.assertEqual(self.dropping.call_count, 4)


class TerminalTest(unittest.TestCase):
    def test_a_program_is_measured_at_its_screen_while_it_waits_for_a_key(self):
        script = "printf 'Total '; printf 'disk usage'; read -r key"
        result = runs.run_to_screen(["sh", "-c", script], b"Total disk usage", b"q\n")
        self.assertGreater(result.peak_bytes, 0)

    def test_a_program_that_ends_without_the_screen_has_failed(self):
        with self.assertRaises(runs.RunFailed):
            runs.run_to_screen(["sh", "-c", "echo no"], b"Total disk usage", b"q")

    def test_a_program_that_does_not_exist_has_failed(self):
        with self.assertRaises(runs.RunFailed):
            runs.run_to_screen(["/nonexistent/program"], b"Total disk usage", b"q")


class StatusTest(unittest.TestCase):
    def test_what_a_program_leaves_running_is_not_waited_for(self):
        left = int(runs.run_to_end(["sh", "-c", "sleep 600 & echo $!"]).output)
        os.kill(left, signal.SIGKILL)  # fails when it has ended

    def test_only_accepted_statuses_are_results(self):
        self.assertGreater(runs.run_to_end(["sh", "-c", "exit 1"], accepted=(0, 1)).seconds, 0)
        with self.assertRaises(runs.RunFailed):
            runs.run_to_end(["sh", "-c", "exit 1"])


class GoalTest(unittest.TestCase):
    def test_at_most_allows_the_goal_itself_and_under_does_not(self):
        self.assertTrue(table.Row("", "", "", 0.55, 0.55).is_reached)
        self.assertFalse(table.Row("", "", "", 1.0, 1, " ms", is_strict=True).is_reached)

    def test_at_least_allows_the_goal_itself_and_less_misses(self):
        self.assertTrue(table.Row("", "", "", 55, 55, is_least=True).is_reached)
        self.assertFalse(table.Row("", "", "", 54.9, 55, is_least=True).is_reached)
        self.assertIn("at least 55", table.Row("", "", "", 55, 55, is_least=True).cells())


class XServerTest(unittest.TestCase):
    def test_programs_see_the_server_and_its_end(self):
        script = 'test -n "$DISPLAY" && test "$QT_QPA_PLATFORM" = xcb'
        result = runs.run_on_x_server(["sh", "-c", script], "640x480")
        self.assertGreater(result.seconds, 0)

    def test_a_failure_on_the_server_is_one(self):
        with self.assertRaises(runs.RunFailed):
            runs.run_on_x_server(["false"], "640x480")


if __name__ == "__main__":
    unittest.main()
