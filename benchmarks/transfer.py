#!/usr/bin/env python3
"""Measures whole transfers between two simulated PCs, each beside rsync to an rsync daemon over the same cable.

Two loads: one file of 1 GiB, and 10,000 files of 4 KiB. Both programs read what is already in the page cache and write
to the same disk. The time of zandrove-cli is that of the run as the Old PC reports it, without discovery and pairing;
that of rsync is the whole life of its client. Needs root or user namespaces, and rsync.
"""

import argparse
import contextlib
import dataclasses
import datetime
import os
import pathlib
import shutil
import subprocess
import sys
import threading
import time

ROOT = pathlib.Path(__file__).resolve().parents[1]
sys.path.insert(0, str(ROOT / "tests" / "e2e"))
sys.dont_write_bytecode = True

import pcs  # noqa: E402

MIB = 1 << 20
RSYNC_PORT = 8730
RUN_DEADLINE = 600  # seconds


@dataclasses.dataclass
class Side:
    """What one PC spent."""
    cpu: float  # seconds
    peak: float  # MiB, summed over the processes


@dataclasses.dataclass
class Result:
    seconds: float
    old: Side
    new: Side


class PeakMemory:
    """Watches the high-water mark of the resident memory of a process and its descendants."""

    def __init__(self, pid):
        self._pid = pid
        self._peaks = {}
        self._done = threading.Event()
        self._thread = threading.Thread(target=self._watch, daemon=True)
        self._thread.start()

    def _watch(self):
        while not self._done.wait(0.01):
            self._sample(self._pid)

    def _sample(self, pid):
        with contextlib.suppress(OSError):
            for line in pathlib.Path(f"/proc/{pid}/status").read_text().splitlines():
                if line.startswith("VmHWM:"):
                    self._peaks[pid] = int(line.split()[1]) / 1024
            for child in pathlib.Path(f"/proc/{pid}/task/{pid}/children").read_text().split():
                self._sample(int(child))

    def stop(self):
        self._done.set()
        self._thread.join()
        return sum(self._peaks.values())


def cost_of(process, peak):
    """Waits for the end of a process and says what it and its children spent."""
    _, status, usage = os.wait4(process.pid, 0)
    process.returncode = os.waitstatus_to_exitcode(status)
    return Side(usage.ru_utime + usage.ru_stime, peak.stop())


def seconds_of(report):
    times = [datetime.datetime.fromisoformat(report[key]) for key in ("startTime", "endTime")]
    return (times[1] - times[0]).total_seconds()


def move_by_zandrove(pair, folder):
    receiver = pair.new.receive("--yes", "--once")
    receiver.wait_for("code")
    peaks = {receiver: PeakMemory(receiver.process.pid)}
    sender = pair.old.send("NewBox", folder)
    peaks[sender] = PeakMemory(sender.process.pid)
    report = sender.wait_for("report", within=RUN_DEADLINE)
    receiver.wait_for("report", within=RUN_DEADLINE)
    old, new = (cost_of(program.process, peaks[program]) for program in (sender, receiver))
    if (sender.process.returncode, receiver.process.returncode) != (0, 0):
        raise SystemExit(f"a transfer failed\n{sender.transcript()}\n{receiver.transcript()}")
    return Result(seconds_of(report), old, new), pair.new.received(folder.name)


def start_rsync_daemon(pair, target):
    config = pair.folder / "rsyncd.conf"
    config.write_text(f"use chroot = no\nuid = {os.getuid()}\ngid = {os.getgid()}\nlog file = /dev/null\n"
                      f"[in]\npath = {target}\nread only = no\n")
    daemon = pair.new.popen("rsync", "--daemon", "--no-detach", f"--port={RSYNC_PORT}", f"--config={config}",
                            stdin=subprocess.DEVNULL)
    for _ in range(100):
        probe = pair.old.popen("rsync", f"rsync://192.168.77.2:{RSYNC_PORT}/", stdout=subprocess.DEVNULL,
                               stderr=subprocess.DEVNULL)
        if probe.wait() == 0:
            return daemon
        time.sleep(0.05)
    raise SystemExit("the rsync daemon does not answer")


def move_by_rsync(pair, folder):
    target = pair.new.home / "rsync"
    target.mkdir()
    daemon = start_rsync_daemon(pair, target)
    daemon_peak = PeakMemory(daemon.pid)
    begin = time.monotonic()
    client = pair.old.popen("rsync", "-a", folder, f"rsync://192.168.77.2:{RSYNC_PORT}/in/")
    old = cost_of(client, PeakMemory(client.pid))
    seconds = time.monotonic() - begin
    if client.returncode != 0:
        raise SystemExit("rsync failed")
    daemon.terminate()
    return Result(seconds, old, cost_of(daemon, daemon_peak)), target / folder.name


def print_line(title, result, files, size):
    print(f"  {title:<9} {result.seconds:8.2f} {size / 1e6 / result.seconds:9.1f} {files / result.seconds:9.0f}"
          f" {result.old.cpu:9.2f} {result.new.cpu:9.2f} {result.old.peak:9.1f} {result.new.peak:9.1f}")


def measure(pair, folder, runs):
    source = pcs.tree(folder)  # also brings everything into the page cache
    size = sum(entry[0] for entry in source.values())
    for _ in range(runs):
        for title, move in (("zandrove", move_by_zandrove), ("rsync", move_by_rsync)):
            os.sync()
            result, copy = move(pair, folder)
            if pcs.tree(copy) != source:
                raise SystemExit(f"{title}: the copy differs")
            shutil.rmtree(copy.parent)
            print_line(title, result, len(source), size)


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n\n")[0])
    parser.add_argument("--runs", type=int, default=1, help="how often each transfer is made (default 1)")
    parser.add_argument("--big", type=int, default=1024, metavar="MIB", help="size of the one file (default 1024)")
    parser.add_argument("--files", type=int, default=10_000, help="number of small files (default 10000)")
    arguments = parser.parse_args()
    problem = pcs.namespace_problem() or ("" if shutil.which("rsync") else "the program rsync is missing")
    if problem:
        raise SystemExit(f"Two PCs can't be simulated here: {problem}")

    with pcs.TwoPcs() as pair:
        big = pair.old.home / "big"
        pcs.write_file(big / "one.bin", arguments.big * MIB)
        small = pair.old.home / "small"
        for index in range(arguments.files):
            pcs.write_file(small / f"folder {index % 100}" / f"{index}.bin", 4096, index)
        print(f"  {'':<9} {'seconds':>8} {'MB/s':>9} {'files/s':>9} {'CPU s old':>9} {'CPU s new':>9}"
              f" {'MiB old':>9} {'MiB new':>9}")
        print(f"One file of {arguments.big} MiB")
        measure(pair, big, arguments.runs)
        print(f"{arguments.files} files of 4 KiB")
        measure(pair, small, arguments.runs)


if __name__ == "__main__":
    main()
