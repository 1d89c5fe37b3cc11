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


class UserPc(WindowsPc):
    """A Windows PC that was set up by a user of its own."""

    USERS = {"OldBox": "alice", "NewBox": "bob"}

    def __init__(self, name, folder):
        pcs.Pc.__init__(self, name, folder)
        self.user = self.USERS[name]
        self.prefix = folder / "prefix"
        subprocess.run([str(RUNNER.parent / "prefix.sh"), str(self.prefix)], check=True, env=self.environment)
        self.drive = self.prefix / "drive_c"
        self.home = self.drive / "users" / self.user
        self.start_menu = self.home / "AppData/Roaming/Microsoft/Windows/Start Menu/Programs"

    @property
    def environment(self):
        return super().environment | {key: self.user for key in ("USER", "LOGNAME", "WINEUSERNAME")}

    def tool(self, *words):
        """Runs a program of this PC to its end and returns what it says."""
        done = subprocess.run(self.command(str(RUNNER), *words), env=self.environment, capture_output=True, text=True,
                              encoding="utf-8", errors="replace", timeout=60)
        if done.returncode != 0:
            raise AssertionError(f"{words}: {done.returncode}\n{done.stdout}{done.stderr}")
        return done.stdout

    def write(self, place, content="x"):
        path = self.drive / place
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(content, encoding="utf-8")
        return path

    def add_registry(self, text):
        path = self.write("registry.reg")
        path.write_bytes(b"\xff\xfe" + f"Windows Registry Editor Version 5.00\n\n{text}".encode("utf-16-le"))
        self.tool("reg", "import", "C:\\registry.reg")
        path.unlink()

    def value(self, key, name):
        """A value of the registry as reg.exe shows it."""
        shown = self.tool("reg", "query", key, "/v", name)
        return next(line for line in shown.splitlines() if line.strip().startswith(name)).split(None, 2)[2].strip()

    def write_link(self, path, target, working="", arguments=""):
        self.tool(os.environ["ZANDROVE_SHELL_LINK"], "write", self.own_path(path), target, working, arguments)

    def link(self, path):
        """Target, working folder, arguments, and "there" or "missing"."""
        return self.tool(os.environ["ZANDROVE_SHELL_LINK"], "read", self.own_path(path)).splitlines()


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
