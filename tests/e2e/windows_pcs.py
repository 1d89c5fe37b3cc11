"""A Windows PC for the end-to-end tests: the cross-built program under Wine, in a prefix of its own.

Taken from the environment: ZANDROVE_CLI_WINDOWS, the program; ZANDROVE_WINE_TEMPLATE, a fresh prefix that is copied for
each PC; ZANDROVE_QT_MINGW, the Qt whose libraries the program needs.
"""

import os
import pathlib
import subprocess

import pcs

RUNNER = pcs.ROOT / "scripts" / "windows" / "run.sh"
STOP_DEADLINE = 20.0  # seconds


class WindowsPc(pcs.Pc):
    def __init__(self, name, folder):
        super().__init__(name, folder)
        self.prefix = folder / "prefix"
        subprocess.run(["cp", "-a", "--reflink=auto", os.environ["ZANDROVE_WINE_TEMPLATE"], self.prefix], check=True)
        self.drive = self.prefix / "drive_c"
        user = next(path for path in (self.drive / "users").iterdir() if path.name != "Public")
        self.home = user

    @property
    def environment(self):
        return super().environment | {"HOME": str(self.temp), "WINEPREFIX": str(self.prefix),
                                      "ZANDROVE_QT_MINGW": os.environ["ZANDROVE_QT_MINGW"]}

    def program(self):
        return [str(RUNNER), os.environ["ZANDROVE_CLI_WINDOWS"]]

    def own_path(self, path):
        return "C:/" + str(pathlib.Path(path).relative_to(self.drive))

    def run_windows(self, *words):
        """Runs the program to its end, without --json; returns exit code and standard output."""
        done = subprocess.run(self.command(*self.program(), *words), env=self.environment, capture_output=True,
                              text=True, encoding="utf-8", timeout=60)
        return done.returncode, done.stdout

    def close(self):
        # The programs of a prefix live on in its server: it ends them all.
        subprocess.run(self.command("/usr/lib/wine/wineserver", "--kill"), env=self.environment, timeout=STOP_DEADLINE)
        super().close()
