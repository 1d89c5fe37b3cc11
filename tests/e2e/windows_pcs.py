"""A Windows PC for the end-to-end tests: the cross-built program under Wine, in a prefix of its own.

Taken from the environment: ZANDROVE_CLI_WINDOWS, the program; ZANDROVE_WINE_TEMPLATE, a fresh prefix that is copied for
each PC; ZANDROVE_QT_MINGW, the Qt whose libraries the program needs; ZANDROVE_PACKAGES, the folder with the portable zip.
"""

import os
import pathlib
import subprocess
import zipfile

import pcs

WINE = "/usr/lib/wine/wine64"
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


class PackagedPc(WindowsPc):
    """A Windows PC that has nothing of the build: the zip has been unpacked there, and that is all."""

    def __init__(self, name, folder):
        super().__init__(name, folder)
        archive, = pathlib.Path(os.environ["ZANDROVE_PACKAGES"]).glob("*-windows-x64.zip")
        with zipfile.ZipFile(archive) as package:
            package.extractall(self.home / "Desktop")
        self.folder, = (self.home / "Desktop").glob("Zandrove-*")

    @property
    def environment(self):
        plain = {key: value for key, value in super().environment.items() if not key.startswith("ZANDROVE_")}
        return plain | {"WINEARCH": "win64", "WINEDEBUG": "-all", "WINEDLLOVERRIDES": "mscoree=;mshtml="}

    def program(self):
        return [WINE, str(self.folder / "zandrove-cli.exe")]
