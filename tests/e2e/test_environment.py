"""Applications and settings move between two equipped PCs."""

import signal

import pcs
from equipped_pcs import EquippedPc, place_for_pcs

UNINSTALL = r"HKEY_LOCAL_MACHINE\SOFTWARE\Microsoft\Windows\CurrentVersion\Uninstall"
USER_UNINSTALL = r"HKEY_CURRENT_USER\SOFTWARE\Microsoft\Windows\CurrentVersion\Uninstall"

WRITER = "Quillon Writer"  # below its vendor's folder in Program Files
NOTES = "Jotpad"  # in the user's own folder
LEDGER = "Tallybook"  # nothing but data
RELIC = "Vexatron"  # nothing but a registry key
ODD = "Zephyr: Deluxe"  # a name that no folder can have

OLD_REGISTRY = rf"""
[{UNINSTALL}\{WRITER}]
"DisplayName"="{WRITER}"
"DisplayVersion"="7.1"
"InstallLocation"="C:/Program Files/Quillon/Writer"

[HKEY_CURRENT_USER\Software\Quillon]
"Home"="C:\\Users\\alice\\Documents"
"Templates"="C:/Users/alice/Documents/Templates"
"Count"=dword:00000007

[{USER_UNINSTALL}\{NOTES}]
"DisplayName"="{NOTES}"
"InstallLocation"="C:/Users/alice/AppData/Local/Programs/{NOTES}"

[{UNINSTALL}\{LEDGER}]
"DisplayName"="{LEDGER}"
"DisplayVersion"="3"

[HKEY_CURRENT_USER\Software\{RELIC}]
"First"="left"
"Second"="over"
"Third"="keys"

[{UNINSTALL}\Zephyr]
"DisplayName"="{ODD}"
"InstallLocation"="C:/Program Files/Zephyr"
"""


def furnish(pc):
    """Five applications on the Old PC."""
    pc.write_registry(OLD_REGISTRY)
    pc.write("C:/Program Files/Quillon/Writer/writer.exe", "writer")
    pc.write("C:/Program Files/Quillon/Writer/lib/spell.dll", "spell")
    pc.write("C:/Program Files/Quillon/Writer/cache/heap.bin", "stays behind")
    pc.write("C:/ProgramData/Quillon/shared.dat", "shared")
    (pc.roaming / "Quillon Writer").mkdir()
    (pc.roaming / "Quillon Writer" / "words.dic").write_text("words")
    pc.write_link(pc.start_menu / "Quillon Writer.lnk", "C:/Program Files/Quillon/Writer/writer.exe",
                  working="C:/Program Files/Quillon/Writer", arguments="/new", description="Writes")
    (pc.local / "Programs" / NOTES).mkdir(parents=True)
    (pc.local / "Programs" / NOTES / "jotpad.exe").write_text("jotpad")
    pc.write_link(pc.home / "Desktop" / "Jotpad.lnk", f"C:/Users/alice/AppData/Local/Programs/{NOTES}/jotpad.exe")
    (pc.roaming / LEDGER).mkdir()
    (pc.roaming / LEDGER / "2026.book").write_text("entries")
    pc.write("C:/Program Files/Zephyr/zephyr.exe", "zephyr")


# What lands on the New PC, file by file. The word "Quillon" claims the vendor's whole folders beside the installation's own.
LANDS = {
    "C:/Program Files/Writer/writer.exe": "writer",
    "C:/Program Files/Writer/lib/spell.dll": "spell",
    "C:/Program Files/Writer/Writer/writer.exe": "writer",
    "C:/Program Files/Writer/Writer/lib/spell.dll": "spell",
    "C:/ProgramData/Quillon/shared.dat": "shared",
    "C:/Users/bob/AppData/Roaming/Quillon Writer/words.dic": "words",
    "C:/Users/bob/AppData/Local/Programs/Jotpad/jotpad.exe": "jotpad",
    "C:/Users/bob/AppData/Roaming/Tallybook/2026.book": "entries",
}

SETTINGS = ("wallpaper", "taskbar", "explorer", "mouse", "keyboard", "power", "environment", "sound", "display")
EXPLORER = r"HKEY_CURRENT_USER\Software\Microsoft\Windows\CurrentVersion\Explorer"
OLD_SETTINGS = rf"""
[HKEY_CURRENT_USER\Control Panel\Desktop]
"WallpaperStyle"="6"
"TileWallpaper"="1"
"Wallpaper"="C:/Users/alice/Pictures/sea.jpg"

[{EXPLORER}\StuckRects3]
"Settings"=hex:30,00

[{EXPLORER}\Advanced]
"HideFileExt"=dword:00000000

[HKEY_CURRENT_USER\Control Panel\Mouse]
"MouseSpeed"="2"

[HKEY_CURRENT_USER\Control Panel\Keyboard]
"KeyboardDelay"="0"
"KeyboardSpeed"="20"

[HKEY_CURRENT_USER\Environment]
"EDITOR"="quill"
"Path"="C:/Users/alice/bin"

[HKEY_CURRENT_USER\AppEvents\Schemes]
@="Soft"

[HKEY_CURRENT_USER\Software\Microsoft\Windows\CurrentVersion\Themes\Personalize]
"AppsUseLightTheme"=dword:00000000
"""
OLD_PLACES = {  # key to what it holds on the New PC afterwards
    rf"{EXPLORER}\StuckRects3": ['"Settings"=hex:30,00'],
    rf"{EXPLORER}\Advanced": ['"HideFileExt"=dword:00000000'],
    r"HKEY_CURRENT_USER\Control Panel\Mouse": ['"MouseSpeed"="2"'],
    r"HKEY_CURRENT_USER\Control Panel\Keyboard": ['"KeyboardDelay"="0"', '"KeyboardSpeed"="20"'],
    r"HKEY_CURRENT_USER\Environment": ['"EDITOR"="quill"', '"Path"="C:/Users/alice/bin"'],
    r"HKEY_CURRENT_USER\AppEvents\Schemes": ['@="Soft"'],
    r"HKEY_CURRENT_USER\Software\Microsoft\Windows\CurrentVersion\Themes\Personalize":
        ['"AppsUseLightTheme"=dword:00000000'],
}
WALLPAPER_SIZE = 2 * 524288 + 1


def set_up(pc):
    """The nine settings on the Old PC."""
    pc.write_registry(OLD_SETTINGS + OLD_REGISTRY)
    pcs.write_file(pc.home / "Pictures" / "sea.jpg", WALLPAPER_SIZE)


class Environment(pcs.TestCase):
    def pair(self):
        return self.two_pcs(old_kind=EquippedPc, new_kind=EquippedPc, place=place_for_pcs())

    def assertItems(self, report, kind, names):
        self.assertEqual(sorted((item["name"], item["success"], item["error"]) for item in report[kind]),
                         sorted((name, True, "") for name in names))
        self.assertEqual((report[f"{kind}Success"], report[f"{kind}Failed"]), (len(names), 0))

    def assertApplicationsLanded(self, pc):
        landed = {str(path.relative_to(pc.folder)): path.read_text()
                  for top in ("Program Files", "Program Files (x86)", "ProgramData", "Users/bob/AppData")
                  for path in (pc.drive / top).rglob("*") if path.is_file() and path.suffix != ".lnk"}
        self.assertEqual(landed, LANDS)
        writer = pc.link(pc.start_menu / "Quillon Writer.lnk")
        self.assertEqual(writer["Path"], str(pc.drive / "Program Files/Writer/writer.exe"))
        self.assertEqual(writer["WorkingDirectory"], str(pc.drive / "Program Files/Writer"))
        self.assertEqual((writer["Arguments"], writer["Description"]), ("/new", "Writes"))
        self.assertEqual(pc.link(pc.home / "Desktop" / "Jotpad.lnk")["Path"],
                         "C:/Users/bob/AppData/Local/Programs/Jotpad/jotpad.exe")
        # Doubled backslashes are no path of the user's for the rewriting; forward slashes are.
        self.assertEqual(pc.values(r"HKEY_CURRENT_USER\SOFTWARE\Quillon"), [
            '"Count"=dword:00000007', r'"Home"="C:\\Users\\alice\\Documents"',
            '"Templates"="C:/Users/bob/Documents/Templates"'])
        self.assertIn('"DisplayVersion"="7.1"', pc.values(rf"{UNINSTALL}\{WRITER}"))
        self.assertIn('"InstallLocation"="C:/Users/bob/AppData/Local/Programs/Jotpad"',
                      pc.values(rf"{USER_UNINSTALL}\{NOTES}"))
        self.assertEqual([key for key in (RELIC, "Zephyr") if key in pc.registry.read_bytes().decode("utf-16")], [])
        self.assertFalse((pc.temp / "Zandrove" / "ReceivedApps").exists())

    def test_five_applications(self):
        pair = self.pair()
        furnish(pair.old)
        inventory = pair.old.start("scan").wait_for("inventory")
        self.assertEqual({app["name"]: app["canMove"] for app in inventory["apps"]},
                         {WRITER: True, NOTES: True, LEDGER: True, ODD: True, RELIC: False})
        receiver = pair.new.receive("--yes", "--once")
        sender = pair.old.send("NewBox", options=("--all-apps",))
        for program in (sender, receiver):
            self.assertItems(program.wait_for("report", within=60), "apps", (WRITER, NOTES, LEDGER, ODD))
            self.assertExits(0, program)
        self.assertApplicationsLanded(pair.new)

    def test_choice_that_this_pc_does_not_have(self):
        pair = self.pair()
        furnish(pair.old)
        for options, complaint in ((("--app", "Quillon"), "There is no application Quillon on this PC."),
                                   (("--app", RELIC), f"The application {RELIC} cannot be moved."),
                                   (("--setting", "colour"), "There is no setting colour on this PC.")):
            sender = pair.old.send("NewBox", options=options)
            self.assertExits(2, sender)
            self.assertIn(complaint, sender.stderr)

    def test_all_settings(self):
        pair = self.pair()
        set_up(pair.old)
        receiver = pair.new.receive("--yes", "--once")
        sender = pair.old.send("NewBox", options=("--all-settings",))
        for program in (sender, receiver):
            report = program.wait_for("report", within=60)
            self.assertEqual((report["settingsSuccess"], report["settingsFailed"]), (len(SETTINGS), 0), report)
            self.assertEqual(len(report["settings"]), len(SETTINGS))
            self.assertExits(0, program)
        for key, lines in OLD_PLACES.items():
            self.assertEqual(pair.new.values(key), lines, key)
        picture = pair.new.home / "Pictures" / "Zandrove" / "sea.jpg"
        self.assertEqual(picture.read_bytes(), (pair.old.home / "Pictures" / "sea.jpg").read_bytes())
        self.assertEqual(sorted(pair.new.values(r"HKEY_CURRENT_USER\Control Panel\Desktop")),
                         ['"TileWallpaper"="1"', f'"Wallpaper"="{picture}"', '"WallpaperStyle"="6"'])
        calls = [call.split("|")[:2] for call in pair.new.calls.read_text().splitlines() if call.startswith("powercfg")]
        self.assertEqual(calls, [["powercfg", "/import"], ["powercfg", "/setactive"]])
        self.assertEqual([path.name for pc in (pair.old, pair.new) for path in pc.temp.rglob("zandrove_*")], [])

    def test_further_run_while_settings_are_applied(self):
        """Each run has its own report, and the further one moves nothing but its folder."""
        pair = self.pair()
        set_up(pair.old)
        folder = pcs.small_tree(pair.old.home / "things")
        pair.new.slow_down("powercfg", 2)
        receiver = pair.new.receive("--yes")
        sender = pair.old.send("NewBox", options=("--control", "--all-settings"))
        sender.wait_for("report", within=60)
        sender.say(f"again {folder}")
        sender.wait_for("report")
        for count in (len(SETTINGS), 0):
            report = receiver.wait_for("report")
            self.assertEqual((report["settingsSuccess"], len(report["settings"])), (count, count), report)
        self.assertSameTree(folder, pair.new.received("things"))
        sender.say("end")
        self.assertExits(0, sender)

    def test_peer_that_vanishes_behind_its_last_word(self):
        pair = self.pair()
        set_up(pair.old)
        pair.new.slow_down("powercfg", 2)
        receiver = pair.new.receive("--yes", "--once")
        sender = pair.old.send("NewBox", options=("--control", "--setting", "power"))
        sender.wait_for("connected")
        receiver.process.send_signal(signal.SIGSTOP)  # what comes from now on, it hears all at once
        sender.wait_for("report")
        for _ in range(3):  # turns of its event loop, in which all of the run leaves
            sender.say("hello")
            sender.wait_for("warning")
        sender.kill()
        receiver.process.send_signal(signal.SIGCONT)
        self.assertEqual(receiver.wait_for("report")["settingsSuccess"], 1)
        self.assertExits(0, receiver)
        self.assertEqual(receiver.stderr, "")

    def test_end_while_settings_are_applied(self):
        pair = self.pair()
        set_up(pair.old)
        pair.new.slow_down("powercfg", 2)
        receiver = pair.new.receive("--yes", "--control")
        sender = pair.old.send("NewBox", options=("--all-settings",))
        self.assertExits(0, sender)  # the other side has got everything and ended the link
        receiver.say("end")
        self.assertEqual(len(receiver.wait_for("report")["settings"]), len(SETTINGS))
        self.assertExits(0, receiver)

    def test_everything_cancelled_once_and_then_completed(self):
        """The slowest setting holds the run; a slow installation neither breaks the link nor loses what comes behind."""
        pair = self.pair()
        furnish(pair.old)
        set_up(pair.old)
        folder = pcs.small_tree(pair.old.home / "things", count=300)
        pcs.write_file(folder / "film.bin", 30 << 20)
        pair.old.slow_down("powercfg", 3)
        pair.new.slow_down("reg.exe", 2)  # which installs the applications' registry
        pair.limit_speed(100)
        receiver = pair.new.receive("--yes")
        sender = pair.old.send("NewBox", folder, options=("--control", "--all-apps", "--all-settings"))
        for program in (sender, receiver):
            program.wait_for_bytes(2 << 20)
        sender.say("cancel")
        receiver.wait_for("cancelled")
        self.assertEqual(list((pair.new.drive / "Program Files").iterdir()), [])
        pair.free_speed()
        sender.say("again")
        complete = lambda event: event["end"] == "complete"
        sent = sender.wait_for("report", complete, within=90)
        got = receiver.wait_for("report", complete, within=90)
        sender.say("end")
        self.assertExits(0, sender)
        for report in (sent, got):
            self.assertItems(report, "apps", (WRITER, NOTES, LEDGER, ODD))
            self.assertEqual((report["settingsSuccess"], report["settingsFailed"]), (len(SETTINGS), 0), report)
            self.assertEqual(len(report["settings"]), len(SETTINGS), report["settings"])  # each once
            self.assertReport(report, success=sent["filesSuccess"])
        self.assertSameTree(folder, pair.new.received("things"))
        self.assertApplicationsLanded(pair.new)
        receiver.wait_for("disconnected")
        receiver.interrupt()


if __name__ == "__main__":
    pcs.main()
