"""Two PCs with what a Windows PC has: a C drive, a registry, shell links, and stand-ins for the programs of Windows.

The programs see it through their environment (see docs/architecture.md, the platform seam). Taken from the environment:
ZANDROVE_STANDINS, the stand-ins that were built with the tests.
"""

import os
import pathlib

import pcs

USERS = {"OldBox": "alice", "NewBox": "bob"}
FOLDERS = ("Documents", "Pictures", "Music", "Videos", "Downloads", "Desktop")
PROGRAMS = ("reg", "reg.exe", "powercfg", "netsh")
NEVER_MOVED = ("/tmp/", "/temp/", "/temporary/")  # files of an application that lie below such a folder stay behind


def place_for_pcs():
    """A folder whose files are moved, for the PCs of a test."""
    for place in (pcs.ROOT / "build", pathlib.Path.home(), pathlib.Path("/var/lib")):
        if not any(part in f"{place}/".lower() for part in NEVER_MOVED) and os.access(place, os.W_OK):
            return place
    raise RuntimeError("no place for simulated PCs")


class EquippedPc(pcs.Pc):
    def __init__(self, name, folder):
        super().__init__(name, folder)
        self.folder = folder
        self.user = USERS[name]
        self.drive = folder / "C:"
        self.home = self.drive / "Users" / self.user
        self.roaming = self.home / "AppData" / "Roaming"
        self.local = self.home / "AppData" / "Local"
        self.start_menu = self.roaming / "Microsoft" / "Windows" / "Start Menu" / "Programs"
        self.calls = folder / "calls"
        self.registry = folder / "registry.reg"
        for path in (self.start_menu, self.local, self.drive / "ProgramData", self.drive / "Program Files",
                     self.drive / "Program Files (x86)", self.drive / "Windows", self.home / ".config",
                     *(self.home / standard for standard in FOLDERS)):
            path.mkdir(parents=True, exist_ok=True)
        lines = [f'XDG_{"DOWNLOAD" if standard == "Downloads" else standard.upper()}_DIR="$HOME/{standard}"\n'
                 for standard in FOLDERS]
        (self.home / ".config" / "user-dirs.dirs").write_text("".join(lines))
        self.programs_folder = folder / "bin"
        self.programs_folder.mkdir()
        for program in PROGRAMS:
            (self.programs_folder / program).symlink_to(os.environ["ZANDROVE_STANDINS"])
        self.write_registry("")

    @property
    def environment(self):
        plain = super().environment
        return plain | {
            "PATH": f"{self.programs_folder}:{plain['PATH']}", "USER": self.user, "SystemDrive": "C:",
            "LOCALAPPDATA": str(self.local), "APPDATA": str(self.roaming),
            "ProgramData": str(self.drive / "ProgramData"), "ProgramFiles": str(self.drive / "Program Files"),
            "ProgramFiles(x86)": str(self.drive / "Program Files (x86)"), "SystemRoot": str(self.drive / "Windows"),
            "ZANDROVE_REGISTRY": str(self.registry), "ZANDROVE_STANDIN_CALLS": str(self.calls)}

    def popen(self, *words, **options):
        # "C:/Program Files" is looked for as it stands, so the drive lies in the current folder.
        return super().popen(*words, cwd=self.folder, **options)

    def write_registry(self, text):
        whole = "Windows Registry Editor Version 5.00\n\n" + text
        self.registry.write_bytes(b"\xff\xfe" + whole.replace("\n", "\r\n").encode("utf-16-le"))

    def values(self, key):
        """The lines of one key of the registry."""
        text = self.registry.read_bytes().decode("utf-16").replace("\r\n", "\n")
        start = text.lower().find(f"[{key}]\n".lower())  # a key keeps the letter case in which it came first
        return text[start:].partition("\n\n")[0].splitlines()[1:] if start >= 0 else []

    def write(self, place, content="x"):
        path = self.folder / place
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(content)
        return path

    def write_link(self, path, target, working="", icon="", arguments="", description=""):
        path.write_text(f"[ShellLink]\nPath={target}\nArguments={arguments}\nWorkingDirectory={working}\n"
                        f"IconPath={icon}\nIconIndex=0\nDescription={description}\n")

    def link(self, path):
        """The fields of a shell link."""
        lines = path.read_text().splitlines()
        return dict(line.partition("=")[::2] for line in lines[1:])

    def slow_down(self, name, seconds):
        """Makes a program of this PC take its time."""
        program = self.programs_folder / name
        quick = self.folder / "quick" / name
        quick.parent.mkdir(exist_ok=True)
        program.rename(quick)
        program.write_text(f'#!/bin/sh\nsleep {seconds}\nexec "{quick}" "$@"\n')
        program.chmod(0o755)
