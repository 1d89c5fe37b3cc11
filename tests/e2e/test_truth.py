"""Whatever goes wrong, both reports say what stands on the disk, and a second run completes the tree."""

import contextlib
import json
import os
import pathlib
import signal
import subprocess
import time

import pcs
from equipped_pcs import EquippedPc, place_for_pcs
from test_environment import NOTES, furnish

BIG = 24 * 1000 * 1000  # bytes
SPEED = 100  # megabit per second: the big file takes some 2 s
TEMPORARY = ("*.zandrove-part", ".~zd*", "Zandrove/ReceivedApps/*", "Zandrove_Apps/*")


class Truth(pcs.TestCase):
    def prepare(self, equipped=False, film=False):
        kind = EquippedPc if equipped else pcs.Pc
        self.pair = self.two_pcs(old_kind=kind, new_kind=kind, place=place_for_pcs() if equipped else None)
        self.folder = pcs.small_tree(self.pair.old.home / "things", count=60)
        self.copy = self.pair.new.received("things")
        if film:
            pcs.write_file(self.folder / "film.bin", BIG)
            self.pair.limit_speed(SPEED)

    def start(self, *folders, receive=("--yes",), send=(), obeys_permissions=False):
        self.before = self.copied()
        self.receiver = self.pair.new.start("receive", *receive, obeys_permissions=obeys_permissions)
        self.sender = self.pair.old.send("NewBox", *(folders or (self.folder,)), options=send,
                                         obeys_permissions=obeys_permissions)

    def copied(self):
        """What stands on the New PC under names of its own."""
        return {place: file for place, file in pcs.tree(self.copy).items() if not place.endswith(".zandrove-part")}

    def middle(self):
        for program in (self.sender, self.receiver):
            program.wait_for_bytes(BIG // 4)

    def assertHonest(self, program, report=None):
        """Holds the report against both trees: what isn't named stands there, byte for byte."""
        report = report or program.wait_for("report", within=60)
        source, copy = pcs.tree(self.folder), self.copied()
        named = {entry["path"] for entry in report["failedFiles"] + report["differentFiles"]}
        right = {place for place in copy if copy[place] == source.get(place)}
        if program is self.sender:
            paths = {os.fsencode(self.folder / place).decode(errors="replace"): place for place in source}
            folders = named - set(paths)
            self.assertTrue(all(pathlib.Path(path).is_dir() for path in folders), f"names strangers: {folders}")
            for path, place in paths.items():
                if path not in named and str(pathlib.Path(path).parent) not in folders:
                    self.assertEqual(copy.get(place), source[place], f"{place} counts as moved")
            if not folders:
                self.assertEqual(sum(report[f"files{kind}"] for kind in ("Success", "Failed", "Skipped")), len(source), report)
        else:
            arrived = {place for place in right if place not in self.before}
            self.assertEqual(report["filesSuccess"], len(arrived), report)
            self.assertEqual({place for place in arrived if str(self.copy / place) in named}, set())
        self.assertFalse([place for place in copy if place not in source], "a file that the Old PC doesn't have")
        return report

    def completes(self):
        """Once the cause is gone, a second run of the selection completes the tree and leaves nothing behind."""
        for program in (self.receiver, self.sender):
            program.close()
        with contextlib.suppress(subprocess.CalledProcessError):  # of a cable that has its full speed
            self.pair.free_speed()
        self.start(receive=("--yes", "--once"))
        for program in (self.sender, self.receiver):
            report = self.assertHonest(program)
            self.assertEqual((report["end"], report["filesFailed"], report["filesSkipped"]),
                             ("complete", 0, len(self.before)), report)
            self.assertExits(4 if self.before else 0, program)
        self.assertSameTree(self.folder, self.copy)
        self.assertNothingTemporary()

    def assertNothingTemporary(self):
        for pc in (self.pair.old, self.pair.new):
            left = [path for pattern in TEMPORARY for path in pc.home.parent.rglob(pattern)]
            self.assertEqual(left, [])

    # What ends a run, and who lives to tell of it

    def step_in(self, how):
        """Lets `how` happen in the middle of a big file. Returns who tells of which end, with the exit code."""
        old, new = self.sender, self.receiver
        if how == "New PC killed between two files":
            new.wait_for("file", lambda event: event["status"] == "completed")
        else:
            self.middle()
        if how == "both end at once":
            for program in (old, new):
                program.say("end")
            return ((old, 0, "complete"), (new, 0, "complete"))
        if how.startswith("cable"):
            seconds = int(how.split()[-2])
            lost = seconds > 120
            if lost:  # only of a peer whose heartbeat was heard
                self.pair.limit_speed(SPEED // 20)
                time.sleep(6)
            for state, wait in (("down", seconds), ("up", 0)):
                self.pair.new.run("ip", "link", "set", pcs.LINK, state)
                time.sleep(wait)
            self.assertEqual([program.count("warning", lambda event: event["message"].startswith("No answer from"))
                              for program in (old, new)], [int(seconds > 15)] * 2)
            return ((old, int(lost), "linkLost" if lost else "complete"), (new, None, "linkLost" if lost else "complete"))
        victim, other = (old, new) if how.startswith("Old PC") else (new, old)
        if "killed" in how:
            if how.endswith("awaited"):
                victim.process.send_signal(signal.SIGSTOP)
                time.sleep(3)
            victim.kill()
            return ((other, None if other is new else 1, "linkLost"),)
        victim.process.send_signal(getattr(signal, how.split(" gets ")[1]))
        self.assertExits(130, victim)
        self.assertEqual(other.wait_for("cancelled")["by"], "peer")
        for program, name in ((old, "sent"), (new, "got")):  # a cancelled run has its report in the file alone
            written = self.pair.folder / f"{name}.json"
            pcs.wait_until(written.exists, "a report is written")
            kept = json.loads(written.read_text())
            self.assertHonest(program, {"failedFiles": kept["notArrived"], "differentFiles": kept["different"],
                                        "filesSuccess": kept["files"]["arrived"], "filesSkipped": kept["files"]["wasThere"],
                                        "filesFailed": kept["files"]["failed"] + kept["files"]["notConfirmed"]})
        return ()

    def test_runs_that_are_ended(self):
        cables = os.environ.get("ZANDROVE_CABLE_SECONDS", "17").split()  # by hand also "60 140"
        for how in ("New PC killed in a file", "New PC killed between two files",
                    "New PC killed while an answer is awaited", "Old PC killed", "both end at once",
                    "Old PC gets SIGTERM", "Old PC gets SIGHUP", "New PC gets SIGTERM", "New PC gets SIGHUP",
                    *(f"cable down for {seconds} s" for seconds in cables)):
            with self.subTest(how):
                self.prepare(film=True)
                control = ("--control",) if how == "both end at once" else ()
                self.start(receive=("--yes", "--report", self.pair.folder / "got.json", *control),
                           send=("--report", self.pair.folder / "sent.json", *control))
                for teller, code, end in self.step_in(how):
                    if code is not None:
                        self.assertExits(code, teller)
                    self.assertEqual(self.assertHonest(teller)["end"], end)
                    self.assertEqual(teller.count("error"), 0 if end == "complete" else 1, teller.transcript())
                self.completes()

    # What keeps a file from arriving

    def test_full_disk(self):
        self.prepare()
        for index in range(8):
            pcs.write_file(self.folder / f"film {index}.bin", 1 << 20)
        disk = self.enterContext(self.pair.new.small_disk(self.pair.new.home / "Downloads", 4))
        self.copy = pathlib.Path(f"{disk.root}{self.copy}")
        self.start(receive=("--yes", "--once"))
        for program in (self.sender, self.receiver):
            report = self.assertHonest(program)
            self.assertEqual([(full["pc"], full["files"]) for full in report["fullVolumes"]],
                             [("NewBox", report["filesFailed"])])
            self.assertExits(4, program)
        self.assertGreater(self.receiver.count("warning", lambda event: "only" in event["message"]), 0)
        disk.grow(50)
        self.completes()

    def test_files_that_cannot_be_written_or_read(self):
        """Each: what is done to the selection, how many files fail for it, and why."""
        def closed(path, mode):
            self.copy.mkdir(parents=True)
            path.chmod(mode)
            return lambda: path.chmod(0o755)

        def named(name):
            odd = os.fsencode(self.folder) + b"/" + name
            pathlib.Path(os.fsdecode(odd)).write_text("odd")
            return lambda: os.rename(odd, os.fsencode(self.folder / "even"))

        for title, prepare, failed, reason in (
                ("read-only destination", lambda: closed(self.copy, 0o555), 60, "ermission"),
                ("unreadable folder", lambda: closed(self.folder / "part 1", 0), 1, "Cannot list folder"),
                ("unreadable file", lambda: closed(self.folder / "part 1/file 1.bin", 0), 1, "Cannot open file"),
                ("name that is not text", lambda: named(b"caf\xe9"), 1, "not valid text"),
                ("name with a backslash", lambda: named(b"a\\b"), 1, "backslash")):
            with self.subTest(title):
                self.prepare()
                mend = prepare()
                self.start(receive=("--yes", "--once"), obeys_permissions=True)
                report = self.assertHonest(self.sender)
                self.assertEqual((report["filesFailed"], reason in report["failedFiles"][0]["reason"]), (failed, True), report)
                self.assertExits(4, self.sender)
                self.assertHonest(self.receiver)
                mend()
                self.assertFalse((self.copy / "a").exists())
                self.completes()

    # What is there already, and what doesn't stand still

    def assertRuns(self, *folders, codes, **counts):
        """A run that comes to its end; returns the Old PC's report."""
        self.start(*folders, receive=("--yes", "--once"))
        for program, code in zip((self.sender, self.receiver), codes):
            self.assertExits(code, program)
        report = self.sender.wait_for("report")
        self.assertReport(report, **counts)
        return report

    def test_the_same_folder_twice_and_a_file_that_differs(self):
        self.prepare()
        self.assertRuns(codes=(0, 0), success=60)
        report = self.assertRuns(codes=(4, 4), success=0, skipped=60)
        self.assertEqual((report["differentFiles"], report["failedFiles"]), ([], []))
        changed = self.copy / "part 0" / "file 3.bin"
        pcs.write_file(changed, 2931, seed="an older one")
        standing = changed.read_bytes()
        report = self.assertRuns(codes=(4, 4), success=0, skipped=60)
        self.assertEqual([entry["path"] for entry in report["differentFiles"]], [str(self.folder / "part 0" / "file 3.bin")])
        self.assertEqual(changed.read_bytes(), standing)
        self.assertHonest(self.sender, report)
        changed.unlink()
        self.completes()

    def test_two_folders_of_one_name(self):
        self.prepare()
        other = self.pair.old.home / "elsewhere" / "things"
        pcs.write_file(other / "part 0" / "file 3.bin", 10, seed="the other one")
        pcs.write_file(other / "only here.bin", 10)
        report = self.assertRuns(self.folder, other, codes=(4, 0), success=61, failed=1)
        self.assertEqual(report["failedFiles"], [{"path": str(other / "part 0" / "file 3.bin"),
                                                  "reason": "Another ticked folder has a file of this name"}])
        self.assertEqual(pcs.tree(self.copy), pcs.tree(other) | pcs.tree(self.folder))

    def test_a_file_that_changes_while_it_is_sent(self):
        for how in ("grows", "shrinks", "is rewritten"):
            with self.subTest(how):
                self.prepare(film=True)
                film = self.folder / "film.bin"
                self.start(receive=("--yes", "--once"))
                self.middle()
                with film.open("r+b") as file:
                    file.seek(-1000, os.SEEK_END)
                    file.truncate() if how == "shrinks" else file.write(b"x" * (2000 if how == "grows" else 1000))
                report = self.assertHonest(self.sender)
                self.assertEqual([entry["path"] for entry in report["failedFiles"]], [str(film)])
                self.assertIn("changed while it was sent", report["failedFiles"][0]["reason"])
                self.assertHonest(self.receiver)
                for program in (self.sender, self.receiver):
                    self.assertExits(4, program)
                self.completes()

    # Applications and settings

    def start_equipped(self, *options, receive=("--yes",)):
        self.receiver = self.pair.new.receive(*receive)
        self.sender = self.pair.old.send("NewBox", self.folder, options=options)

    def equipped_again(self, *options):
        """A second run of the same selection after a mishap."""
        for program in (self.receiver, self.sender):
            program.close()
        self.start_equipped(*options, receive=("--yes", "--once"))
        for program in (self.sender, self.receiver):
            report = program.wait_for("report", within=60)
            self.assertEqual((report["end"], report["filesFailed"], report["appsFailed"], report["settingsFailed"]),
                             ("complete", 0, 0, 0), report)
            self.assertIn(program.exit_code(), (0, 4))
        self.assertSameTree(self.folder, self.copy)
        self.assertNothingTemporary()

    def test_new_pc_killed_while_installing_or_applying(self):
        for program, options in (("reg.exe", ("--app", "Quillon Writer")), ("powercfg", ("--setting", "power"))):
            with self.subTest(program):
                self.prepare(equipped=True)
                furnish(self.pair.old)
                self.pair.new.slow_down(program, 30)
                self.start_equipped(*options)
                if program == "reg.exe":
                    self.receiver.wait_for("installing")
                time.sleep(3)
                self.receiver.kill()
                report = self.sender.wait_for("report", lambda event: event["end"] == "linkLost")
                for entry in report["apps"] + report["settings"]:  # it can't know more than that it was sent
                    self.assertIn("NewBox was lost before it said", entry["error"])
                self.assertEqual((report["filesFailed"], report["appsFailed"] + report["settingsFailed"]), (0, 1))
                self.assertExits(1, self.sender)
                (self.pair.new.folder / "quick" / program).rename(self.pair.new.programs_folder / program)
                self.equipped_again(*options)

    def test_full_temporary_folder(self):
        self.prepare(equipped=True)
        furnish(self.pair.old)
        pcs.write_file(self.pair.old.local / "Programs" / NOTES / "words.dat", 8 << 20)
        disk = self.enterContext(self.pair.new.small_disk(self.pair.new.temp, 4))
        self.start_equipped("--app", NOTES, receive=("--yes", "--once"))
        for program in (self.sender, self.receiver):
            report = program.wait_for("report", within=60)
            self.assertEqual((report["filesSuccess"] >= 60, report["appsSuccess"], report["appsFailed"]), (True, 0, 1), report)
            self.assertExits(4, program)
        disk.grow(50)
        self.equipped_again("--app", NOTES)
        self.assertSameTree(*(pc.local / "Programs" / NOTES for pc in (self.pair.old, self.pair.new)))


if __name__ == "__main__":
    pcs.main()
