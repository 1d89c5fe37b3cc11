"""Two PCs on one Linux machine, joined by one cable, for end-to-end tests and measurements.

A PC is a network and a host-name namespace with a home folder of its own. Both namespaces live only as long as
a holder process in them, and the holders end with the process that made them, so nothing is ever left behind
and any number of pairs can stand side by side.
"""

import contextlib
import hashlib
import json
import os
import pathlib
import random
import shutil
import signal
import subprocess
import sys
import tempfile
import threading
import time
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
EVENT_DEADLINE = 30.0  # seconds
SKIPPED = 77  # exit code by which CTest sees that nothing could be tested
LINK = "cable"  # the network adapter in either PC
SWITCH = "switch"  # takes its place in the Old PC where there are more than two


def cli_path():
    """The program under test: $ZANDROVE_CLI, else the newest build in the tree."""
    chosen = os.environ.get("ZANDROVE_CLI")
    if chosen:
        return chosen
    builds = [ROOT / "build" / preset / "bin" / "zandrove-cli" for preset in ("release", "debug", "asan")]
    builds = [build for build in builds if build.exists()]
    if not builds:
        raise SystemExit("zandrove-cli is not built; set ZANDROVE_CLI.")
    return str(max(builds, key=lambda build: build.stat().st_mtime))


def namespace_problem():
    """Why no namespaces can be made here; empty when they can."""
    for tool in ("unshare", "nsenter", "setpriv", "ip", "hostname"):
        if not shutil.which(tool):
            return f"the program {tool} is missing"
    probe = subprocess.run(["unshare", "--net", "--uts", "ip", "link", "add", "a0", "type", "veth", "peer",
                            "name", "a1"], capture_output=True, text=True)
    return "" if probe.returncode == 0 else probe.stderr.strip() or "unshare failed"


class Program:
    """One zandrove-cli --json: its events as they come, its standard error, and its standard input."""

    def __init__(self, process, title):
        self.process = process
        self.title = title
        self.events = []
        self.stderr = ""
        self._seen = 0
        self._news = threading.Condition()
        self._closed = False
        self._readers = [threading.Thread(target=reader, daemon=True)
                         for reader in (self._read_events, self._read_errors)]
        for reader in self._readers:
            reader.start()

    def _read_events(self):
        for line in self.process.stdout:
            try:
                event = json.loads(line)
            except ValueError:
                event = {"event": "NOT JSON", "line": line}
            with self._news:
                self.events.append(event)
                self._news.notify_all()
        with self._news:
            self._closed = True
            self._news.notify_all()

    def _read_errors(self):
        for line in self.process.stderr:
            self.stderr += line

    def wait_for(self, kind, where=lambda event: True, within=EVENT_DEADLINE):
        """The next event of that kind after the last one that was waited for."""
        deadline = time.monotonic() + within
        with self._news:
            while True:
                for index in range(self._seen, len(self.events)):
                    event = self.events[index]
                    if event["event"] == kind and where(event):
                        self._seen = index + 1
                        return event
                left = deadline - time.monotonic()
                if self._closed or left <= 0:
                    raise AssertionError(f"no event {kind!r} from {self.title}\n{self.transcript()}")
                self._news.wait(left)

    def wait_for_bytes(self, count, **options):
        """Waits until that many bytes of a run have moved."""
        return self.wait_for("progress", lambda event: event["transferredBytes"] >= count, **options)

    def count(self, kind, where=lambda event: True):
        with self._news:
            return sum(1 for event in self.events if event["event"] == kind and where(event))

    def say(self, line):
        """One command for --control."""
        self.process.stdin.write(line + "\n")
        self.process.stdin.flush()

    def interrupt(self):
        self.process.send_signal(signal.SIGINT)

    def kill(self):
        self.process.kill()
        self.process.wait()

    def exit_code(self, within=EVENT_DEADLINE):
        try:
            code = self.process.wait(within)
        except subprocess.TimeoutExpired:
            raise AssertionError(f"{self.title} did not end\n{self.transcript()}") from None
        for reader in self._readers:
            reader.join(within)
        return code

    def transcript(self):
        shown = [event for event in self.events if event["event"] != "file"][-25:]
        lines = "\n".join(json.dumps(event, ensure_ascii=False) for event in shown)
        return f"--- {self.title}, last events:\n{lines}\n--- standard error:\n{self.stderr[-4000:]}"

    def close(self):
        if self.process.poll() is None:
            self.kill()
        for reader in self._readers:
            reader.join(5)
        for stream in (self.process.stdin, self.process.stdout, self.process.stderr):
            with contextlib.suppress(OSError):
                stream.close()


class SmallDisk:
    """Context manager: a disk that only the programs of one PC find in that folder, in place of what lies there."""

    def __init__(self, folder, megabytes):
        folder.mkdir(parents=True, exist_ok=True)
        self.folder = folder
        self.holder = subprocess.Popen(
            ["unshare", "--mount", "sh", "-c",
             'mount -t tmpfs -o "size=$1m" none "$0" && echo ready && exec cat', folder, str(megabytes)],
            stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        if self.holder.stdout.readline() != b"ready\n":
            raise RuntimeError("no small disk can be made")
        self.enter = ["nsenter", "--target", self.holder.pid, "--mount"]
        self.root = f"/proc/{self.holder.pid}/root"  # the files of the PC, with the disk

    def grow(self, megabytes):
        subprocess.run([*map(str, self.enter), "mount", "-o", f"remount,size={megabytes}m", self.folder], check=True)

    def __enter__(self):
        return self

    def __exit__(self, *exc_info):
        self.holder.communicate()


class Pc:
    """One PC: a host name, a home folder, and programs that run there."""

    def __init__(self, name, folder):
        self.name = name
        self.home = folder / "home"
        self.temp = folder / "tmp"
        for path in (self.home, self.temp):
            path.mkdir(parents=True)
        self.programs = []
        self.holder = subprocess.Popen(
            ["unshare", "--net", "--uts", "sh", "-c",
             'hostname "$0" && ip link set lo up && echo ready && exec cat', name],
            stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        if self.holder.stdout.readline() != b"ready\n":
            raise RuntimeError("the namespace of a PC could not be made")

    @property
    def environment(self):
        kept = {key: value for key, value in os.environ.items()
                if key == "PATH" or key.endswith("SAN_OPTIONS")}
        return kept | {"HOME": str(self.home), "XDG_CONFIG_HOME": str(self.home / ".config"),
                       "TMPDIR": str(self.temp), "LANG": "C.UTF-8", "LC_ALL": "C.UTF-8"}

    def command(self, *words, obeys_permissions=False):
        """The words that run `words` on this PC. Whatever runs ends with the caller's process."""
        rights = ["--bounding-set=-dac_override,-dac_read_search", "--inh-caps=-all"] if obeys_permissions else []
        return ["nsenter", "--target", str(self.holder.pid), "--net", "--uts", "--", "setpriv", *rights,
                "--pdeathsig", "KILL", "--", *map(str, words)]

    def run(self, *words, **options):
        return subprocess.run(self.command(*words), check=True, capture_output=True, env=self.environment,
                              **options)

    def popen(self, *words, obeys_permissions=False, **options):
        return subprocess.Popen(self.command(*words, obeys_permissions=obeys_permissions),
                                env=self.environment, **options)

    def program(self):
        """The words that begin a command line of zandrove-cli."""
        return [cli_path()]

    def small_disk(self, folder, megabytes):
        """Gives the programs that start from now on a small disk at `folder`."""
        disk = SmallDisk(folder, megabytes)
        self.program = lambda: [*disk.enter, f"--wdns={folder.parent}", "--", cli_path()]
        return disk

    def own_path(self, path):
        """The path of a file of this PC as its programs name it."""
        return path

    def start(self, *arguments, obeys_permissions=False):
        """Starts zandrove-cli --json here."""
        process = self.popen(*self.program(), "--json", *arguments, obeys_permissions=obeys_permissions,
                             stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True,
                             encoding="utf-8")
        program = Program(process, f"{self.name}: {' '.join(map(str, arguments))}")
        self.programs.append(program)
        return program

    def receive(self, *arguments):
        return self.start("receive", *arguments)

    def send(self, target, *folders, options=(), obeys_permissions=False):
        named = [word for folder in folders for word in ("--folder", self.own_path(folder))]
        return self.start("send", "--to", target, *named, *options, obeys_permissions=obeys_permissions)

    def received(self, name):
        """Where a folder lands whose name is that of no standard folder."""
        return self.home / "Downloads" / "Zandrove" / name

    def close(self):
        for program in self.programs:
            program.close()
        self.holder.stdin.close()
        self.holder.wait(5)
        self.holder.stdout.close()


class TwoPcs:
    """Context manager: an old and a new PC that can reach each other, and a scratch folder that goes with them."""

    def __init__(self, old_address="192.168.77.1/24", new_address="192.168.77.2/24", old_kind=Pc, new_kind=Pc,
                 place=None):
        self._addresses = (old_address, new_address)
        self._kinds = (old_kind, new_kind)
        self._place = place
        self._others = []

    def __enter__(self):
        self._stack = contextlib.ExitStack()
        try:
            self._set_up()
        except BaseException:
            self._stack.close()
            raise
        return self

    def _set_up(self):
        self.folder = pathlib.Path(self._stack.enter_context(
            tempfile.TemporaryDirectory(prefix="zandrove-pcs-", dir=self._place, ignore_cleanup_errors=True)))
        self.old = self._made_pc(self._kinds[0], "OldBox")
        self.new = self._made_pc(self._kinds[1], "NewBox")
        self.old.run("ip", "link", "add", LINK, "type", "veth", "peer", "name", LINK, "netns",
                     self.new.holder.pid)
        for pc, address in zip((self.old, self.new), self._addresses):
            pc.run("ip", "address", "add", address, "broadcast", "+", "dev", LINK)
            pc.run("ip", "link", "set", LINK, "up")
        for pc in (self.old, self.new):
            deadline = time.monotonic() + 5
            while b"state UP" not in pc.run("ip", "link", "show", LINK).stdout:
                if time.monotonic() > deadline:
                    raise RuntimeError("the cable between the PCs does not come up")
                time.sleep(0.02)

    def _made_pc(self, kind, name):
        pc = kind(name, self.folder / name)
        self._stack.callback(pc.close)
        return pc

    def add_pc(self, name, address):
        """A further PC, on a switch in place of the cable."""
        holder = self.old.holder.pid
        pc = self._made_pc(Pc, name)
        if not self._others:
            self.old.run("ip", "link", "add", SWITCH, "type", "bridge")
            self.old.run("ip", "link", "set", SWITCH, "up")
            self.old.run("ip", "address", "flush", "dev", LINK)
            self.old.run("ip", "link", "set", LINK, "master", SWITCH)
            self.old.run("ip", "address", "add", self._addresses[0], "broadcast", "+", "dev", SWITCH)
        self._others.append(name)
        port = f"port{len(self._others)}"
        pc.run("ip", "link", "add", LINK, "type", "veth", "peer", "name", port, "netns", holder)
        self.old.run("ip", "link", "set", port, "up", "master", SWITCH)
        pc.run("ip", "address", "add", address, "broadcast", "+", "dev", LINK)
        pc.run("ip", "link", "set", LINK, "up")
        return pc

    def __exit__(self, *exc_info):
        self._stack.close()

    def limit_speed(self, megabit):
        """Makes the cable slow, so that a transfer can be met in its middle."""
        for pc in (self.old, self.new):
            pc.run("tc", "qdisc", "replace", "dev", LINK, "root", "tbf", "rate", f"{megabit}mbit", "burst",
                   "256k", "latency", "100ms")

    def free_speed(self):
        for pc in (self.old, self.new):
            pc.run("tc", "qdisc", "delete", "dev", LINK, "root")


def wait_until(condition, what, within=10):
    deadline = time.monotonic() + within
    while not condition():
        if time.monotonic() > deadline:
            raise AssertionError(f"not within {within} s: {what}")
        time.sleep(0.05)


def write_file(path, size, seed=0):
    """A file of that size with content that differs from place to place and from seed to seed."""
    path.parent.mkdir(parents=True, exist_ok=True)
    block = random.Random(f"{seed} {path.name}").randbytes(min(size, 1 << 20))
    with path.open("wb") as file:
        for index in range(size >> 20):
            file.write(index.to_bytes(8, "big") + block[8:])
        file.write(block[:size & ((1 << 20) - 1)])


def small_tree(folder, count=30, seed=0):
    for index in range(count):
        write_file(folder / f"part {index % 3}" / f"file {index}.bin", (index * 977) % 9000, seed)
    return folder


def tree(folder):
    """Relative path to size and digest, for every file below `folder`."""
    found = {}
    for path in sorted(folder.rglob("*")):
        if path.is_file():
            with path.open("rb") as file:
                digest = hashlib.file_digest(file, "sha256").hexdigest()
            found[str(path.relative_to(folder))] = (path.stat().st_size, digest)
    return found


def sizes(folder):
    """Relative path to size, of a folder that may be changing."""
    found = {}
    for path in folder.rglob("*"):
        with contextlib.suppress(FileNotFoundError):
            if path.is_file():
                found[str(path.relative_to(folder))] = path.stat().st_size
    return found


class TestCase(unittest.TestCase):
    """A test on two PCs."""

    maxDiff = 2000

    @classmethod
    def setUpClass(cls):
        problem = namespace_problem()
        if problem and os.environ.get("ZANDROVE_REQUIRE_NAMESPACES") == "1":
            raise AssertionError(f"No namespaces can be made here: {problem}")
        if problem:
            raise unittest.SkipTest(f"no namespaces can be made here: {problem}")

    def two_pcs(self, **options):
        return self.enterContext(TwoPcs(**options))

    def assertSameTree(self, source, copy):
        self.assertEqual(tree(source), tree(copy))

    def assertReport(self, report, *, success, failed=0, skipped=0):
        self.assertEqual((report["filesSuccess"], report["filesFailed"], report["filesSkipped"]),
                         (success, failed, skipped), report)

    def assertExits(self, code, program):
        self.assertEqual(program.exit_code(), code, program.transcript())


def main():
    """Runs the tests of the calling script; without root, in a user namespace where that is allowed."""
    if os.geteuid() != 0 and "ZANDROVE_USER_NAMESPACE" not in os.environ:
        wrapper = ["unshare", "--user", "--map-root-user"]
        if shutil.which("unshare") and subprocess.run([*wrapper, "true"], capture_output=True).returncode == 0:
            os.environ["ZANDROVE_USER_NAMESPACE"] = "1"
            os.execvp(wrapper[0], [*wrapper, sys.executable, *sys.argv])
    result = unittest.main(verbosity=2, exit=False).result
    if not result.wasSuccessful():
        sys.exit(1)
    if result.skipped and result.testsRun == 0:
        sys.exit(SKIPPED)
