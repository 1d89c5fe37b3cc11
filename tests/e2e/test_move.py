"""Two PCs find each other, pair, and whole trees cross."""

import subprocess
import sys

import pcs

BOUNDARY_SIZES = (524287, 524288, 524289, 4194304, 52428800)
LARGE_FILE = 300 * 1000 * 1000
UNCONFIRMED_FILE = (1 << 30) + (64 << 20)  # above 1 GiB no answer of the New PC is waited for
ODD_NAMES = ("with blanks .txt", "Größe ä ö ü.txt", "写真 音楽.txt", "right\u200fto left \u05d0.txt",
             "percent %1 %20.txt", "quote ' and \".txt")


def large_tree(folder):
    """1,500 small files in nested folders and one of 300 MB."""
    for index in range(1500):
        place = folder / f"year {2000 + index % 15}" / f"month {index % 12}"
        pcs.write_file(place / f"small {index}.dat", index * 6 % 9217, index)
    pcs.write_file(folder / "film.bin", LARGE_FILE)
    return folder


def odd_tree(folder):
    """The sizes at which chunks and buffers end, odd names, and a deep path."""
    for size in BOUNDARY_SIZES:
        pcs.write_file(folder / "sizes" / f"{size}.bin", size)
    pcs.write_file(folder / "empty.txt", 0)
    deep = folder
    for level in range(25):
        deep = deep / f"level {level} ü"
    for index, name in enumerate(ODD_NAMES):
        pcs.write_file(folder / "names" / name, 100 + index)
        pcs.write_file(deep / name, 200 + index)
    return folder


class Move(pcs.TestCase):
    def check_both(self, sender, receiver, count, size=None):
        """Both sides report the same success and end with 0."""
        sent = sender.wait_for("report", within=120)
        received = receiver.wait_for("report", within=120)
        for report in (sent, received):
            self.assertReport(report, success=count)
            if size is not None:
                self.assertEqual(report["totalBytes"], size)
        self.assertEqual(sum(received["savedFolderCounts"].values()), count)
        self.assertExits(0, sender)
        self.assertExits(0, receiver)
        for program in (sender, receiver):
            self.assertEqual(program.count("NOT JSON"), 0, program.transcript())
            self.assertEqual(program.stderr, "")

    def test_whole_trees_by_name(self):
        pair = self.two_pcs()
        first = large_tree(pair.old.home / "Family album – Größe")
        second = odd_tree(pair.old.home / "Documents" / "Work 仕事")
        receiver = pair.new.receive("--yes", "--once")
        sender = pair.old.send("NewBox", first, second)

        files = pcs.tree(first) | pcs.tree(second)
        self.check_both(sender, receiver, len(files), sum(size for size, _ in files.values()))
        self.assertSameTree(first, pair.new.received(first.name))
        self.assertSameTree(second, pair.new.home / "Documents" / "Work 仕事")
        saved = receiver.events[-1] if receiver.events[-1]["event"] == "report" else next(
            event for event in receiver.events if event["event"] == "report")
        self.assertEqual(saved["savedFolderPaths"]["Documents"], str(pair.new.home / "Documents"))
        self.assertEqual(sender.count("file", lambda event: event["status"] == "completed"), len(files))

    def test_by_code(self):
        pair = self.two_pcs()
        folder = pcs.small_tree(pair.old.home / "things")
        receiver = pair.new.receive("--yes", "--once")
        code = receiver.wait_for("code")["code"]
        self.assertRegex(code, r"^\d{4}$")
        sender = pair.old.send(code, folder)

        self.assertEqual(sender.wait_for("connected")["name"], "NewBox")
        self.assertEqual(receiver.wait_for("connected")["name"], "OldBox")
        self.check_both(sender, receiver, 30)
        self.assertSameTree(folder, pair.new.received("things"))

    def test_by_name_in_another_case_with_the_sender_first(self):
        pair = self.two_pcs()
        folder = pcs.small_tree(pair.old.home / "things")
        sender = pair.old.send("nEWbOX", folder, options=("--timeout", "20"))
        receiver = pair.new.receive("--yes", "--once")
        self.check_both(sender, receiver, 30)
        self.assertSameTree(folder, pair.new.received("things"))

    def test_by_address(self):
        pair = self.two_pcs()
        folder = pcs.small_tree(pair.old.home / "things")
        receiver = pair.new.receive("--yes", "--once")
        sender = pair.old.send("192.168.77.2", folder)
        self.check_both(sender, receiver, 30)
        self.assertSameTree(folder, pair.new.received("things"))

    def test_cable_by_scan_alone(self):
        """Nothing of a broadcast reaches the Old PC, and the peer is not in its own /24: only the sweep's second
        layer can find it."""
        pair = self.two_pcs(old_address="169.254.10.20/16", new_address="169.254.11.30/16")
        deaf = pair.old.popen(sys.executable, "-c", DEAFEN, stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        self.addCleanup(deaf.communicate)
        self.assertEqual(deaf.stdout.readline(), b"deaf\n")
        folder = pcs.small_tree(pair.old.home / "things")
        receiver = pair.new.receive("--yes", "--once", "--mode", "cable")
        receiver.wait_for("code")
        sender = pair.old.send("169.254.11.30", folder, options=("--mode", "cable"))

        found = sender.wait_for("peer")
        self.assertEqual((found["id"], found["code"]), ("169.254.11.30", ""))
        self.check_both(sender, receiver, 30)
        self.assertSameTree(folder, pair.new.received("things"))

    def test_cable_by_name(self):
        pair = self.two_pcs(old_address="169.254.3.1/16", new_address="169.254.3.2/16")
        folder = pcs.small_tree(pair.old.home / "things")
        receiver = pair.new.receive("--yes", "--once", "--mode", "cable")
        sender = pair.old.send("NewBox", folder, options=("--mode", "cable"))
        self.check_both(sender, receiver, 30)
        self.assertSameTree(folder, pair.new.received("things"))


    def test_the_end_of_an_unconfirmed_file_over_a_link_that_turns_slow(self):
        """The Old PC is through with such a file long before the New PC has it, and must not cut it off."""
        pair = self.two_pcs()
        folder = pair.old.home / "huge"
        folder.mkdir()
        with (folder / "one.bin").open("wb") as file:
            file.truncate(UNCONFIRMED_FILE)
        receiver = pair.new.receive("--yes", "--once")
        sender = pair.old.send("NewBox", folder)
        sender.wait_for_bytes(UNCONFIRMED_FILE - (32 << 20), within=90)
        pair.limit_speed(20)

        self.check_both(sender, receiver, 1, UNCONFIRMED_FILE)
        self.assertSameTree(folder, pair.new.received("huge"))


# Holds the discovery port for itself, so that the program beside it hears no datagram.
DEAFEN = """
import socket, sys
holder = socket.socket(socket.AF_INET, socket.SOCK_DGRAM)
holder.bind(("0.0.0.0", 52025))
print("deaf", flush=True)
sys.stdin.read()
"""

if __name__ == "__main__":
    pcs.main()
