"""What both sides say and do when not everything can go well."""

import os
import pathlib
import pty
import select
import subprocess

import pcs


def read_until(terminal, text, within=20):
    """What a terminal shows until `text` appears."""
    shown = b""
    while text.encode() not in shown:
        if not select.select([terminal], [], [], within)[0]:
            raise AssertionError(f"{text!r} does not appear: {shown!r}")
        shown += os.read(terminal, 4096)
    return shown.decode()


class Outcomes(pcs.TestCase):
    def setUp(self):
        self.pair = self.two_pcs()

    def test_an_existing_file_is_skipped_and_untouched(self):
        folder = pcs.small_tree(self.pair.old.home / "things")
        existing = self.pair.new.received("things") / "part 1" / "file 1.bin"
        pcs.write_file(existing, 77, seed="mine")
        before = existing.read_bytes()
        receiver = self.pair.new.receive("--yes", "--once")
        sender = self.pair.old.send("NewBox", folder)

        for program in (receiver, sender):
            report = program.wait_for("report")
            self.assertReport(report, success=29, skipped=1)
            self.assertEqual([pathlib.Path(file["path"]).name for file in report["differentFiles"]], ["file 1.bin"])
            self.assertExits(4, program)
        self.assertEqual(existing.read_bytes(), before)
        copied, source = pcs.tree(self.pair.new.received("things")), pcs.tree(folder)
        del copied["part 1/file 1.bin"], source["part 1/file 1.bin"]
        self.assertEqual(copied, source)

    def test_an_unreadable_file_fails_alone(self):
        folder = pcs.small_tree(self.pair.old.home / "things")
        (folder / "part 2" / "file 2.bin").chmod(0)
        receiver = self.pair.new.receive("--yes", "--once")
        sender = self.pair.old.send("NewBox", folder, obeys_permissions=True)

        self.assertReport(sender.wait_for("report"), success=29, failed=1)
        self.assertReport(receiver.wait_for("report"), success=29, failed=1)  # announced, and never came
        self.assertExits(4, sender)
        self.assertExits(4, receiver)
        failed = [event for event in sender.events if event["event"] == "file" and event["status"] == "failed"]
        self.assertEqual([event["name"] for event in failed], ["file 2.bin"])
        self.assertIn("Cannot open file", failed[0]["reason"])
        source = pcs.tree(folder)
        del source["part 2/file 2.bin"]
        self.assertEqual(pcs.tree(self.pair.new.received("things")), source)

    def test_an_empty_folder_is_a_complete_run(self):
        folder = self.pair.old.home / "nothing"
        folder.mkdir()
        receiver = self.pair.new.receive("--yes", "--once")
        sender = self.pair.old.send("NewBox", folder)
        self.assertReport(sender.wait_for("report"), success=0)
        self.assertReport(receiver.wait_for("report"), success=0)
        self.assertExits(0, sender)
        self.assertExits(0, receiver)

    def test_a_refused_request_and_then_an_admitted_one(self):
        folder = pcs.small_tree(self.pair.old.home / "things")
        receiver = self.pair.new.receive("--control")
        sender = self.pair.old.send("NewBox", folder)
        self.assertEqual(receiver.wait_for("request"), {"event": "request", "name": "OldBox", "ip": "192.168.77.1", "question": 1, "asks": True})
        receiver.say("no")
        self.assertExits(1, sender)
        self.assertIn("rejected", sender.stderr)
        self.assertFalse(self.pair.new.received("things").exists())

        sender = self.pair.old.send("NewBox", folder)
        receiver.wait_for("request")
        receiver.say("yes")
        self.assertReport(sender.wait_for("report"), success=30)
        self.assertReport(receiver.wait_for("report"), success=30)
        self.assertExits(0, sender)
        self.assertSameTree(folder, self.pair.new.received("things"))

    def test_nobody_to_ask_means_no(self):
        receiver = self.pair.new.receive()
        receiver.process.stdin.close()
        sender = self.pair.old.send("NewBox", self.pair.old.home)
        self.assertIn("--yes", receiver.wait_for("refused")["reason"])
        self.assertExits(1, sender)

    def test_waiting_ends_in_time(self):
        sender = self.pair.old.send("Elsewhere", self.pair.old.home, options=("--timeout", "1"))
        receiver = self.pair.new.receive("--timeout", "1")
        self.assertExits(3, sender)
        self.assertExits(3, receiver)

        receiver = self.pair.new.receive("--control")
        sender = self.pair.old.send("NewBox", self.pair.old.home, options=("--timeout", "2"))
        receiver.wait_for("request")
        self.assertExits(3, sender)
        receiver.wait_for("warning")  # the one that asked has gone
        receiver.say("yes")
        receiver.say("end")
        self.assertExits(0, receiver)
        self.assertEqual(receiver.count("connected"), 0)

    def test_discover_lists_peers_and_lets_nobody_in(self):
        watcher = self.pair.new.start("discover", "--role", "new", "--seconds", "4")
        sender = self.pair.old.send("NewBox", self.pair.old.home)
        seen = watcher.wait_for("peer")
        self.assertEqual((seen["name"], seen["ip"]), ("OldBox", "192.168.77.1"))
        self.assertRegex(seen["code"], r"^\d{4}$")
        self.assertTrue(seen["os"])
        self.assertExits(1, sender)
        self.assertExits(0, watcher)

    def test_two_interrupts_end_at_once(self):
        receiver = self.pair.new.receive()
        receiver.wait_for("code")
        receiver.interrupt()
        receiver.interrupt()
        self.assertExits(130, receiver)

    def test_wrong_usage_is_told_before_any_wait(self):
        plain = self.pair.old.home / "file"
        plain.write_text("no folder")
        closed = self.pair.old.home / "closed"
        closed.mkdir(mode=0)
        for words in (["send", "--to", "NewBox"], ["send", "--to", "NewBox", "--folder", plain],
                      ["send", "--to", "NewBox", "--folder", closed], ["receive", "--fast"], []):
            with self.subTest(words=words):
                ended = subprocess.run(self.pair.old.command(pcs.cli_path(), *words, obeys_permissions=True),
                                       env=self.pair.old.environment, capture_output=True, text=True, timeout=10)
                self.assertEqual(ended.returncode, 2)
                self.assertEqual(ended.stderr.count("\n"), 1, ended.stderr)
                self.assertEqual(ended.stdout, "")

    def test_a_person_at_a_terminal_is_asked_and_sees_the_progress(self):
        folder = self.pair.old.home / "things"
        pcs.write_file(folder / "large.bin", 50_000_000)
        person, terminal = pty.openpty()
        self.addCleanup(os.close, person)
        receiver = self.pair.new.popen(pcs.cli_path(), "receive", "--once", stdin=terminal, stdout=terminal,
                                       stderr=terminal)
        os.close(terminal)
        sender = self.pair.old.send("NewBox", folder)
        self.assertIn("Allow OldBox (192.168.77.1) to connect? [y/N] ", read_until(person, "[y/N] "))
        os.write(person, b"y\n")
        shown = read_until(person, "Files saved:")

        self.assertExits(0, sender)
        self.assertEqual(receiver.wait(10), 0)
        self.assertRegex(shown, r"\rReceiving +\d+%  [\d.]+ .B/s .*large\.bin\x1b\[K")
        self.assertRegex(shown, r"\r\x1b\[KDone in ")

    def test_a_person_reads_lines(self):
        folder = pcs.small_tree(self.pair.old.home / "things")
        receiver = self.pair.new.popen(pcs.cli_path(), "receive", "--yes", "--once", stdout=subprocess.PIPE,
                                       text=True, encoding="utf-8")
        sender = self.pair.old.run(pcs.cli_path(), "send", "--to", "NewBox", "--folder", folder, text=True,
                                   encoding="utf-8", timeout=20)
        said = receiver.communicate(timeout=20)[0]
        self.assertRegex(said, r"code of this PC is \d{4}")
        self.assertIn("Files: 30 arrived, 0 failed, 0 were there before.", said)
        self.assertIn(os.fspath(self.pair.new.home / "Downloads" / "Zandrove"), said)
        self.assertIn("Files: 30 arrived, 0 failed, 0 were there before.", sender.stdout)
        self.assertNotIn("\x1b", said + sender.stdout)
        self.assertEqual(sender.stderr, "")


if __name__ == "__main__":
    pcs.main()
