"""A Windows PC for the end-to-end tests: the cross-built program under Wine, in a prefix of its own.

Taken from the environment: ZANDROVE_CLI_WINDOWS, the program; ZANDROVE_WINE_TEMPLATE, a fresh prefix that is copied for
each PC; ZANDROVE_QT_MINGW, the Qt whose libraries the program needs; ZANDROVE_PACKAGES, the folder with the portable zip
and the installer.
"""

import os
import pathlib
import shlex
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


def package(ending):
    """The package of that kind, as it would be downloaded."""
    found, = pathlib.Path(os.environ["ZANDROVE_PACKAGES"]).glob(f"Zandrove-*-windows-x64{ending}")
    return found


class BarePc(WindowsPc):
    """A Windows PC that has nothing of the build. Its firewall's program only notes what it is asked for."""

    def __init__(self, name, folder):
        super().__init__(name, folder)
        self.folder = self.drive / "Program Files" / "Zandrove"
        firewall = self.drive / "windows" / "system32" / "netsh.exe"
        subprocess.run(["makensis", "-V1", f"-DOUTPUT={firewall}", pathlib.Path(__file__).with_name("netsh.nsi")], check=True)

    @property
    def environment(self):
        plain = {key: value for key, value in super().environment.items() if not key.startswith("ZANDROVE_")}
        return plain | {"WINEARCH": "win64", "WINEDEBUG": "-all",
                        "WINEDLLOVERRIDES": "mscoree=;mshtml=;winemenubuilder.exe=;netsh.exe=n"}

    def program(self):
        return [WINE, str(self.folder / "zandrove-cli.exe")]

    def set_up(self, program, *options):
        """Runs an installer or uninstaller silently; returns its exit code."""
        return subprocess.run(self.command(WINE, program, "/S", *options), env=self.environment, timeout=60).returncode

    def wait_for_all(self):
        """Waits until nothing runs any more: an uninstaller goes on in a copy of itself."""
        subprocess.run(self.command("/usr/lib/wine/wineserver", "--wait"), env=self.environment, timeout=60, check=True)

    def files(self):
        """The files of this PC that are neither the system's own nor temporary."""
        return {path for path in self.drive.rglob("*")
                if not {"windows", "Temp"} & set(path.relative_to(self.drive).parts) and path.name != "netsh.log"}

    def registry_lines(self):
        """What the registry says of the program."""
        return [line for line in (self.prefix / "system.reg").read_text(errors="replace").splitlines() if "Zandrove" in line]

    def firewall_calls(self):
        """What the firewall's program was asked for since the last time, without its own name and the fixed words."""
        log = self.drive / "netsh.log"
        lines = log.read_text(encoding="utf-16-le").splitlines() if log.exists() else []
        log.unlink(missing_ok=True)
        return [shlex.split(line.replace("\\", "/"))[3:] for line in lines]


class PackagedPc(BarePc):
    """The zip has been unpacked there, and that is all."""

    def __init__(self, name, folder):
        super().__init__(name, folder)
        with zipfile.ZipFile(package(".zip")) as archive:
            archive.extractall(self.home / "Desktop")
        self.folder, = (self.home / "Desktop").glob("Zandrove-*")


class InstalledPc(BarePc):
    """The installer has run there, and that is all."""

    def __init__(self, name, folder):
        super().__init__(name, folder)
        if self.set_up(package("-setup.exe")) != 0:
            raise RuntimeError("the installer failed")
