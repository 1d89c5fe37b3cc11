"""Applications and settings move between two Windows PCs with users of different names, under Wine."""

import pcs
from windows_pcs import UserPc

UNINSTALL = r"Software\Microsoft\Windows\CurrentVersion\Uninstall"

REGISTRY = rf"""
[HKEY_LOCAL_MACHINE\{UNINSTALL}\Zapper]
"DisplayName"="Zapper"
"DisplayVersion"="2.0"
"InstallLocation"="C:\\Program Files\\Zapper"

[HKEY_CURRENT_USER\Software\Zapper]
"Templates"="C:/users/alice/Documents/Templates"
"Home"="C:\\users\\alice\\Documents"
"Level"=dword:0000000b

[HKEY_CURRENT_USER\{UNINSTALL}\Jotpad]
"DisplayName"="Jotpad"
"InstallLocation"="C:\\users\\alice\\AppData\\Local\\Programs\\Jotpad"

[HKEY_LOCAL_MACHINE\{UNINSTALL}\Tallybook]
"DisplayName"="Tallybook"
"DisplayVersion"="3"

[HKEY_CURRENT_USER\Control Panel\Mouse]
"DoubleClickSpeed"="731"

[HKEY_CURRENT_USER\Environment]
"EDITOR"="quill"

[HKEY_CURRENT_USER\Control Panel\Desktop]
"WallpaperStyle"="6"
"TileWallpaper"="1"
"""


class WindowsEnvironment(pcs.TestCase):
    def test_applications_and_settings(self):
        pair = self.two_pcs(old_kind=UserPc, new_kind=UserPc)
        old, new = pair.old, pair.new
        old.add_registry(REGISTRY)
        old.write("Program Files/Zapper/zapper.exe", "zapper")
        old.write("Program Files/Zapper/data/list.txt", "list")
        old.write_link(old.start_menu / "Zapper.lnk", r"C:\Program Files\Zapper\zapper.exe", r"C:\Program Files\Zapper",
                       "/fast")
        jotpad = old.home / "AppData/Local/Programs/Jotpad"
        jotpad.mkdir(parents=True)
        (jotpad / "jotpad.exe").write_text("jotpad")
        old.write_link(old.home / "Desktop" / "Jotpad.lnk", r"C:\users\alice\AppData\Local\Programs\Jotpad\jotpad.exe")
        book = old.home / "AppData/Roaming/Tallybook/2026.book"
        book.parent.mkdir(parents=True)
        book.write_text("entries")

        receiver = new.receive("--yes", "--once")
        receiver.wait_for("code", within=60)
        apps = ("Zapper", "Jotpad", "Tallybook")
        settings = ("mouse", "environment")
        sender = old.send("NewBox", options=(*(word for app in apps for word in ("--app", app)),
                                             *(word for setting in settings for word in ("--setting", setting))))
        for program in (sender, receiver):
            report = program.wait_for("report", within=120)
            self.assertEqual(sorted((app["name"], app["success"]) for app in report["apps"]),
                             sorted((app, True) for app in apps))
            self.assertEqual((report["settingsSuccess"], report["settingsFailed"]), (len(settings), 0), report)
            self.assertExits(0, program)

        files = {"Program Files/Zapper/zapper.exe": "zapper", "Program Files/Zapper/data/list.txt": "list",
                 "users/bob/AppData/Local/Programs/Jotpad/jotpad.exe": "jotpad",
                 "users/bob/AppData/Roaming/Tallybook/2026.book": "entries"}
        for place, content in files.items():
            self.assertEqual((new.drive / place).read_text(), content)
        self.assertFalse((new.drive / "users" / "alice").exists())
        self.assertEqual(new.value(r"HKCU\Software\Zapper", "Level"), "0xb")
        self.assertEqual(new.value(r"HKCU\Software\Zapper", "Templates"), "C:/Users/bob/Documents/Templates")
        # Doubled backslashes in the text of an export are no path of the user's for the rewriting.
        self.assertEqual(new.value(r"HKCU\Software\Zapper", "Home"), r"C:\users\alice\Documents")
        self.assertEqual(new.value(rf"HKLM\{UNINSTALL}\Zapper", "DisplayVersion"), "2.0")
        self.assertEqual(new.link(new.start_menu / "Zapper.lnk"),
                         [r"C:\Program Files\Zapper\zapper.exe", r"C:\Program Files\Zapper", "/fast", "there"])
        self.assertEqual([field.lower() for field in new.link(new.home / "Desktop" / "Jotpad.lnk")],
                         [r"c:\users\bob\appdata\local\programs\jotpad\jotpad.exe", "", "", "there"])
        self.assertEqual(new.value(r"HKCU\Control Panel\Mouse", "DoubleClickSpeed"), "731")
        self.assertEqual(new.value(r"HKCU\Environment", "EDITOR"), "quill")


if __name__ == "__main__":
    pcs.main()
