"""The Windows program under Wine: between two Windows PCs, and between Windows and Linux."""

import os
import zipfile

import pcs
import test_move
from windows_pcs import BarePc, InstalledPc, PackagedPc, WindowsPc, package

KINDS = {"linux": pcs.Pc, "windows": WindowsPc, "bare": BarePc, "packaged": PackagedPc, "installed": InstalledPc}

# Names that Linux knows and Windows does not: none may reach a device, another file, or a hidden stream.
NAMES_NOT_FOR_WINDOWS = ("colon: here.txt", "CON", "NUL.txt", "com1.log", "ends with a dot.", "ends with a blank ", "... ",
                         'quote " and more.txt', "star*.txt", "less < more >.txt", "pipe | line.txt", "what?.txt")


class Windows(pcs.TestCase):
    def pair_of(self, old, new):
        return self.two_pcs(old_kind=KINDS[old], new_kind=KINDS[new])

    def odd_tree(self, folder, kinds):
        """The odd names, without what Windows cannot name."""
        test_move.odd_tree(folder)
        if kinds != ("linux", "linux"):
            for path in folder.rglob('*"*'):
                path.unlink()
        return folder

    def move(self, old, new):
        pair = self.pair_of(old, new)
        first = pcs.small_tree(pair.old.home / "Family – Größe 写真", count=200)
        second = self.odd_tree(pair.old.home / "Documents" / "Work 仕事", (old, new))
        receiver = pair.new.receive("--yes", "--once")
        code = receiver.wait_for("code", within=60)["code"]
        sender = pair.old.send(code, first, second)
        sent = sender.wait_for("report", within=120)
        received = receiver.wait_for("report", within=120)
        files = len(pcs.tree(first)) + len(pcs.tree(second))
        for report in (sent, received):
            self.assertReport(report, success=files)
        self.assertExits(0, sender)
        self.assertExits(0, receiver)
        self.assertSameTree(first, pair.new.received(first.name))
        self.assertSameTree(second, pair.new.home / "Documents" / "Work 仕事")

    def test_windows_to_windows(self):
        self.move("windows", "windows")

    def test_linux_to_windows(self):
        self.move("linux", "windows")

    def test_windows_to_linux(self):
        self.move("windows", "linux")

    def test_names_that_windows_cannot_have(self):
        pair = self.pair_of("linux", "windows")
        folder = pair.old.home / "names"
        for index, name in enumerate(NAMES_NOT_FOR_WINDOWS):
            pcs.write_file(folder / name, 50 + index)
        pcs.write_file(folder / "ends with a dot", 7)
        pcs.write_file(folder / "pair \U0001F600.txt", 8)
        deep = folder.joinpath(*["a folder with a long name" for _ in range(15)])  # beyond 260 characters
        pcs.write_file(deep / "deep.txt", 9)
        receiver = pair.new.receive("--yes", "--once")
        receiver.wait_for("code", within=60)
        sender = pair.old.send("NewBox", folder)
        self.assertExits(4, sender)
        report = receiver.wait_for("report")
        arrived = pcs.tree(pair.new.received("names"))
        source = pcs.tree(folder)
        for name in ("ends with a dot", "pair \U0001F600.txt", str((deep / "deep.txt").relative_to(folder))):
            self.assertEqual(arrived.get(name), source[name], name)
        self.assertEqual(report["filesSuccess"], len(arrived), arrived)
        for name, content in arrived.items():
            self.assertEqual(content, source.get(name), name)
        self.assertNotIn("colon", "".join(path.name for path in pair.new.received("names").iterdir()))
        self.assertExits(4, receiver)

    def test_zip_and_installer_on_empty_pcs(self):
        self.move("packaged", "installed")

    def assertVersion(self, pc):
        code, output = pc.run_windows("--version")
        self.assertEqual((code, output.strip()), (0, "zandrove-cli " + os.environ.get("ZANDROVE_VERSION", "5.0")))

    def test_installer_removes_what_it_has_brought(self):
        pc = self.pair_of("bare", "linux").old
        files, registry = pc.files(), pc.registry_lines()

        for run in ("first", "over the first"):
            self.assertEqual(pc.set_up(package("-setup.exe")), 0, run)
        self.assertVersion(pc)
        pc.wait_for_all()
        with zipfile.ZipFile(package(".zip")) as archive:
            packed = {name.partition("/")[2] for name in archive.namelist() if not name.endswith("/")}
        self.assertEqual(set(pcs.sizes(pc.folder)), packed | {"uninstall.exe"})
        self.assertTrue(any("DisplayName" in line for line in pc.registry_lines()))
        shortcuts = [path.name for path in pc.files() - files if path.suffix == ".lnk"]
        self.assertEqual(shortcuts, ["Zandrove.lnk"] if (pc.folder / "zandrove.exe").exists() else [])

        own = pc.folder / "notes of the user.txt"
        own.write_text("mine")
        pc.set_up(pc.folder / "uninstall.exe")
        pc.wait_for_all()
        self.assertEqual(pc.files() - files, {pc.folder, own})
        self.assertEqual(pc.registry_lines(), registry)

    def test_installer_adds_the_rules_that_the_program_adds(self):
        pc = self.pair_of("bare", "linux").old
        self.assertEqual(pc.set_up(package("-setup.exe"), "/NOFIREWALL"), 0)
        self.assertEqual(pc.firewall_calls(), [])
        pc.run_windows("discover", "--role", "old", "--seconds", "1")
        added = [call for call in pc.firewall_calls() if call[0] == "add"]
        self.assertEqual(len(added), 2)
        pc.set_up(package("-setup.exe"))
        self.assertEqual([call for call in pc.firewall_calls() if call[0] == "add"], added)
        pc.set_up(pc.folder / "uninstall.exe")
        pc.wait_for_all()
        self.assertEqual(pc.firewall_calls(), [["delete", "rule", call[2]] for call in added])

    def test_installer_leaves_a_running_program_alone(self):
        pc = self.pair_of("bare", "linux").old
        pc.folder = pc.drive / "Tools"
        self.assertEqual(pc.set_up(package("-setup.exe"), r"/D=C:\Tools"), 0)
        running = pc.receive("--yes")
        running.wait_for("code", within=60)
        before = pcs.sizes(pc.folder)
        for command in ([package("-setup.exe")], [pc.folder / "uninstall.exe", r"_?=C:\Tools"]):
            self.assertEqual((pc.set_up(*command), pcs.sizes(pc.folder)), (2, before), command)

    def test_console_program(self):
        pair = self.pair_of("packaged", "linux")
        self.assertVersion(pair.old)
        code, _ = pair.old.run_windows("send")
        self.assertEqual(code, 2)
        receiver = pair.new.receive("--yes")
        code = receiver.wait_for("code")["code"]
        _, output = pair.old.run_windows("discover", "--role", "old", "--seconds", "3")
        self.assertIn("NewBox", output)
        self.assertIn(code, output)


if __name__ == "__main__":
    pcs.main()
