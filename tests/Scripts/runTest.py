# SPDX-License-Identifier: MIT
"""scripts/run, with stand-ins for what it calls: nothing is installed or built."""

import contextlib
import pathlib
import shutil
import socket
import subprocess
import tempfile
import unittest

SCRIPTS = pathlib.Path(__file__).resolve().parents[2] / "scripts"
X_SOCKETS = pathlib.Path("/tmp/.X11-unix")
FREE_DISPLAYS = range(7300, 7400)
NOTHING = "#!/bin/sh\n"
PROGRAM = """#!/bin/sh
echo "started: $*"
"""


class Run(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="tessera-run-"))
        self.addCleanup(shutil.rmtree, self.folder)
        (self.folder / "scripts").mkdir()
        shutil.copy(SCRIPTS / "run", self.folder / "scripts")
        self.add_program("scripts/setup", NOTHING)
        self.add_program("scripts/configure", NOTHING)
        self.add_program("programs/cmake", NOTHING)
        self.add_program("build/release/src/tessera", PROGRAM)

    def add_program(self, path, text):
        path = self.folder / path
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text)
        path.chmod(0o755)

    def run_script(self, **variables):
        done = subprocess.run(
            [self.folder / "scripts" / "run"], cwd=self.folder, capture_output=True, text=True,
            env={"PATH": f"{self.folder}/programs:/usr/bin:/bin", "HOME": str(self.folder),
                 **variables})
        self.assertEqual(done.returncode, 0, done.stderr)
        return done.stdout

    def assert_opens_a_window(self, **variables):
        self.assertEqual(self.run_script(**variables), "started: \n")

    def assert_draws_a_picture(self, **variables):
        output = self.run_script(**variables)
        self.assertIn(f"started: --picture {self.folder}/tessera.png {self.folder}", output)
        self.assertIn("No display answers here", output)

    @contextlib.contextmanager
    def listening_on(self, path):
        with socket.socket(socket.AF_UNIX) as server:
            server.bind(str(path))
            self.addCleanup(path.unlink, missing_ok=True)
            server.listen()
            yield

    def free_display(self):
        X_SOCKETS.mkdir(mode=0o1777, exist_ok=True)
        return next(n for n in FREE_DISPLAYS if not (X_SOCKETS / f"X{n}").exists())

    def test_without_a_display_draws_a_picture(self):
        self.assert_draws_a_picture()

    def test_on_an_x_server_that_answers_opens_a_window(self):
        number = self.free_display()
        with self.listening_on(X_SOCKETS / f"X{number}"):
            self.assert_opens_a_window(DISPLAY=f":{number}.0")

    def test_on_an_x_server_that_is_gone_draws_a_picture(self):
        self.assert_draws_a_picture(DISPLAY=f":{self.free_display()}")

    def test_on_the_socket_of_an_x_server_that_crashed_draws_a_picture(self):
        number = self.free_display()
        with self.listening_on(X_SOCKETS / f"X{number}"):
            pass
        self.assertTrue((X_SOCKETS / f"X{number}").exists())
        self.assert_draws_a_picture(DISPLAY=f":{number}")

    def test_on_a_forwarded_display_that_answers_opens_a_window(self):
        with socket.socket() as server:
            number = next(n for n in FREE_DISPLAYS if self.is_bound(server, 6000 + n))
            server.listen()
            self.assert_opens_a_window(DISPLAY=f"localhost:{number}.0")

    @staticmethod
    def is_bound(server, port):
        try:
            server.bind(("127.0.0.1", port))
        except OSError:
            return False
        return True

    def test_on_a_forwarded_display_whose_connection_has_ended_draws_a_picture(self):
        self.assert_draws_a_picture(DISPLAY=f"localhost:{self.free_display()}.0")

    def test_on_a_wayland_compositor_that_answers_opens_a_window(self):
        with self.listening_on(self.folder / "wayland-7"):
            self.assert_opens_a_window(
                WAYLAND_DISPLAY="wayland-7", XDG_RUNTIME_DIR=str(self.folder))

    def test_on_a_wayland_compositor_that_is_gone_draws_a_picture(self):
        self.assert_draws_a_picture(
            WAYLAND_DISPLAY="wayland-7", XDG_RUNTIME_DIR=str(self.folder))

    def test_where_the_compositor_is_gone_an_x_server_will_do(self):
        number = self.free_display()
        with self.listening_on(X_SOCKETS / f"X{number}"):
            self.assert_opens_a_window(
                WAYLAND_DISPLAY="wayland-7", XDG_RUNTIME_DIR=str(self.folder),
                DISPLAY=f":{number}")


if __name__ == "__main__":
    unittest.main()
