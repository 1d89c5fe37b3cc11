"""Two people move a PC with the window alone."""

import pathlib
import signal
import time
import unittest

import pcs
import test_environment
import wizard
from equipped_pcs import EquippedPc, place_for_pcs

FILM = 24 << 20
SLOW = 40  # megabit a second
CLOSING = 6.0  # seconds that the end of a window may take


class WizardTest(pcs.TestCase):
    def setUp(self):
        self.pair = self.two_pcs()
        home = self.pair.old.home
        self.work = pcs.small_tree(home / "Documents" / "Work")
        pcs.write_file(self.work / "film.bin", FILM)
        self.album = pcs.small_tree(home / "Documents" / "Größe 写真", count=12, seed=7)
        pcs.small_tree(home / "Documents" / "Not ticked", count=3)

    def window(self, pc, **rights):
        window = wizard.Wizard(pc, pc.name, **rights)
        self.addCleanup(window.end)
        return window

    def both(self):
        return self.window(self.pair.old), self.window(self.pair.new)

    def to_connection(self, window, role):
        window.picture("0-welcome")
        window.click("Next")
        window.wait(page=1)
        window.click(role)
        window.picture("1-role")
        window.click("Next")
        window.wait(page=2)

    def pair_up(self, old, new):
        """From the first page to a link: the Old PC's user types the code, the New PC's user says yes."""
        self.to_connection(new, "New PC")
        self.to_connection(old, "Old PC")
        old.wait(text="NewBox")
        old.click("Their code, character 1")
        old.type(new.code())
        old.picture("2-connection")
        old.click("Connect")
        new.wait(dialog="Connection Request", text="OldBox", enabled="Yes")
        new.picture("2-question")
        new.click("Yes")

    def to_selection(self, old, new):
        self.pair_up(old, new)
        new.wait(page=5, text="Waiting for Data")
        old.picture("3-scanning")
        old.wait(page=4)
        old.picture("4-applications")

    def tick(self, old, *folders):
        """From the tab of the applications on."""
        old.click(next(text for text in old.tabs() if text.startswith("Files")))
        old.do("clickListEntry", "My Documents")
        for folder in folders:
            old.do("clickFolder", folder)
        old.wait(enabled="Next")
        old.picture("4-files")

    def choose_language(self, window, menu, language, title):
        """From the menu to the restarted program. The names are those of the language before."""
        window.click(menu[0])
        window.wait(text=menu[1])
        window.click(menu[1])
        window.wait(text=language)
        window.picture("language-menu")
        window.click(language)
        window.wait(dialog=title)
        window.picture("language-dialog")
        window.restart_by("OK")

    def assertMoved(self, folder):
        self.assertSameTree(folder, self.pair.new.home / "Documents" / folder.name)

    def assertCloses(self, *windows, by_system=False):
        for window in windows:
            began = time.monotonic()
            code = window.close_by_system() if by_system else window.close()
            self.assertEqual(code, 0, window.log[-4000:])
            self.assertLess(time.monotonic() - began, CLOSING)

    def test_by_mouse_with_pause_and_a_second_transfer(self):
        old, new = self.both()
        self.to_selection(old, new)
        new.picture("5-waiting")
        self.tick(old, self.work)
        self.pair.limit_speed(SLOW)
        old.click("Next")
        for window, title in ((old, "Sending"), (new, "Receiving")):
            window.wait(page=5, text=f"^{title} Data - [1-9]")
            window.picture("5-transfer")

        old.click("Pause")
        new.wait(text="Receiving Paused", enabled="Resume")
        new.picture("5-paused")
        old.picture("5-paused")
        new.click("Resume")
        old.wait(enabled="Pause")
        self.pair.free_speed()
        old.wait(page=6, text="Transfer Complete!")
        new.wait(page=6, text="Files saved to:")
        for window in (old, new):
            window.picture("6-complete")
        self.assertMoved(self.work)

        old.click("Send More Files...")
        old.wait(page=4)
        new.wait(page=5, text=r"^Waiting\.\.\.$")
        old.click("Clear")
        self.tick(old, self.album)
        old.click("Next")
        for window in (old, new):
            window.wait(page=6, text="Transfer Complete!")
        self.assertMoved(self.album)
        self.assertFalse((self.pair.new.home / "Documents" / "Not ticked").exists())

        old.click("Finished")
        for window in (old, new):
            window.wait(page=1)
        self.assertCloses(old, new)

    def test_by_keyboard(self):
        old, new = self.both()
        for window, role in ((new, "New PC"), (old, "Old PC")):
            window.tab_to("Next")
            window.key("Return")
            window.wait(page=1)
            window.tab_to(role)
            window.key("Space")
            window.picture("keyboard-1-role")
            window.tab_to("Next")
            window.key("Space")
        old.wait(text="NewBox")
        old.tab_to("Their code, character 1")
        old.type(new.code())
        self.assertEqual(old.do("state")["focus"], "Connect")
        old.key("Return")
        new.wait(dialog="Connection Request", enabled="Yes")
        new.tab_to("Yes")
        new.key("Return")
        new.wait(page=5)

        old.wait(page=4)
        old.tab_to(old.tabs()[0])
        old.key("Right")
        old.tab_to("Quick Access")
        old.key("Home", "Return")
        old.tab_to("Select folders to transfer")
        old.key("Home", "Down", "Space")
        old.wait(enabled="Next")
        old.picture("keyboard-4-files")
        old.tab_to("Next")
        old.key("Return")
        for window in (old, new):
            window.wait(page=6)
        old.tab_to("Finished")
        old.key("Return")
        for window in (old, new):
            window.wait(page=1)
        self.assertMoved(self.album)

    def test_cancel_by_either_side(self):
        old, new = self.both()
        self.to_selection(old, new)
        self.tick(old, self.work)
        self.pair.limit_speed(SLOW)
        old.click("Next")
        new.wait(page=5, text="^Receiving Data - [1-9]")
        new.click("Cancel")
        new.wait(dialog="Cancel Transfer")
        new.picture("5-cancel-question")
        new.click("Yes, Cancel")
        old.wait(page=4)
        new.wait(page=5, text="Waiting for Data")

        old.click("Next")
        old.wait(page=5, text="^Sending Data - [1-9]")
        old.click("Cancel", "Yes, Cancel")
        old.wait(page=4)
        new.wait(page=5, text="Sender cancelled")

        self.pair.free_speed()
        old.click("Next")
        for window in (old, new):
            window.wait(page=6)
        self.assertMoved(self.work)

    def test_another_language_and_back(self):
        old = self.window(self.pair.old)
        settings = self.pair.old.home / ".config" / "Ostrelin" / "Zandrove.conf"
        self.choose_language(old, ("Menu", "🌐  Language"), "🇩🇪  Deutsch", "Language Changed")
        old.wait(text="^Weiter →$", enabled="Weiter")
        old.picture("language-german")
        self.assertIn("language=de\n", settings.read_text())
        self.choose_language(old, ("Menü", "🌐  Sprache"), "🇺🇸  English", "Sprache geändert")
        old.wait(text="^Next →$", enabled="Next")
        self.assertIn("language=en\n", settings.read_text())

    def test_another_language_in_mid_transfer(self):
        old, new = self.both()
        self.to_selection(old, new)
        self.tick(old, self.work)
        self.pair.limit_speed(SLOW)
        old.click("Next")
        new.wait(page=5, text="^Receiving Data - [1-9]")
        self.choose_language(new, ("Menu", "🌐  Language"), "🇳🇱  Nederlands", "Language Changed")
        new.wait(text="^Volgende →$")

    def test_close_on_the_pages_before_the_link(self):
        old, new = self.both()
        self.assertCloses(old)
        old = self.window(self.pair.old)
        old.click("Next")
        self.assertCloses(old)
        old = self.window(self.pair.old)
        self.to_connection(old, "Old PC")
        self.to_connection(new, "New PC")
        old.click("Can't find the other PC?")
        old.wait(text="NewBox .* is heard as New PC, and answers")
        old.wait(text="stands in the way")
        old.picture("2-diagnosis")
        old.click("Enter an address instead")
        old.type("192.168.77.2")
        old.key("Return")
        old.wait(text="^Waiting for (NewBox|192.168.77.2): somebody has to press Yes there")
        new.wait(dialog="Connection Request", text="192.168.77.1")
        self.assertCloses(old)
        new.wait(dialog="", text="The other PC is no longer waiting")
        self.assertCloses(new, by_system=True)

    def test_close_while_scanning_and_choosing(self):
        old, new = self.both()
        self.pair_up(old, new)
        old.wait(page=3)
        self.assertCloses(old)
        new.wait(page=2, text="^The connection to .* is lost")
        self.assertCloses(new)

        old, new = self.both()
        self.to_selection(old, new)
        self.assertCloses(new, old)

    def test_what_does_not_arrive_and_then_does(self):
        closed = self.work / "part 1"
        closed.chmod(0)
        disk = self.enterContext(self.pair.new.small_disk(self.pair.new.home / "Documents", 8))
        old, new = self.window(self.pair.old, obeys_permissions=True), self.window(self.pair.new)
        self.to_selection(old, new)
        self.tick(old, self.work)
        old.click("Next")
        for window, headline in ((old, "Transfer finished, 2 of 22"), (new, "Transfer finished, 1 of 21")):
            window.wait(page=6, text=headline)
            window.wait(text="^no space left on .* of NewBox: 1 files, 24.0 MB did not fit")
            window.picture("6-not-all")
        closed.chmod(0o755)
        disk.grow(50)
        old.click("Send More Files...")
        old.wait(page=4, enabled="Next")
        new.wait(page=5)
        old.click("Next")
        for window in (old, new):
            window.wait(page=6, text="^Files: 11 arrived, 20 were there already and identical")
        self.assertSameTree(self.work, pathlib.Path(f"{disk.root}{self.pair.new.home}") / "Documents" / "Work")
        self.assertCloses(old, new)

    def end_in_mid_transfer(self, window, how):
        if how == "Close":
            window.click("Close")
            window.wait(dialog="Close Zandrove")
            window._tell("click", "Cancel and Close")
        else:
            window.process.send_signal(how)
        self.assertEqual(window.exit_code(), -how if how == signal.SIGKILL else 0, window.log[-4000:])
        reports = list((window.pc.home / "Documents").glob("Zandrove report *.html"))
        self.assertEqual(len(reports), 0 if how == signal.SIGKILL else 1)
        for report in reports:
            self.assertIn("Transfer cancelled", report.read_text())
            report.unlink()

    def test_ends_in_mid_transfer(self):
        """After each the other PC says so, and a second transfer completes the tree."""
        half = lambda: list(self.pair.new.home.rglob("*.zandrove-part"))
        for ends_old, how in ((True, "Close"), (False, "Close"), (True, signal.SIGHUP), (False, signal.SIGTERM), (False, signal.SIGKILL)):
            with self.subTest(ends_old=ends_old, how=how):
                old, new = self.both()
                self.to_selection(old, new)
                self.tick(old, self.work)
                self.pair.limit_speed(SLOW)
                old.click("Next")
                old.wait(page=5, text="^Sending Data - [1-9]")
                new.wait(page=5, text="^Receiving Data - [1-9]")
                first, second = (old, new) if ends_old else (new, old)
                self.end_in_mid_transfer(first, how)
                second.wait(text="is lost")
                self.pair.free_speed()
                if how == signal.SIGKILL:
                    self.moves_what_is_missing(old)
                else:
                    pcs.wait_until(lambda: not half(), "half files are removed")
                self.assertCloses(second)
        self.assertMoved(self.work)
        self.assertEqual(half(), [])

    def moves_what_is_missing(self, old):
        """From the page of the lost link: the New PC's window is opened anew, and the selection still stands."""
        old.wait(text="31 files arrived; nothing was deleted on the Old PC", enabled="Back to connections")
        old.picture("5-lost")
        new = self.window(self.pair.new)
        self.to_connection(new, "New PC")
        old.click("Back to connections")
        old.wait(text="NewBox")
        old.click("Their code, character 1")
        old.type(new.code())
        old.click("Connect")
        new.wait(dialog="Connection Request", text="OldBox", enabled="Yes")
        new.click("Yes")
        old.wait(page=4, enabled="Next")
        old.click("Next")
        for window in (old, new):
            window.wait(page=6, text="Transfer [Cf]")
            window.picture("6-after-a-loss")
        self.assertCloses(new)


class EquippedWizardTest(WizardTest):
    """The same with applications and settings to tick."""

    def setUp(self):
        self.pair = self.two_pcs(old_kind=EquippedPc, new_kind=EquippedPc, place=place_for_pcs())
        test_environment.furnish(self.pair.old)
        test_environment.set_up(self.pair.old)

    def assertCounts(self, window, **wanted):
        """What the cards of the report come to show: the last setting may be applied behind the report."""
        deadline = time.monotonic() + wizard.DEADLINE
        while True:
            texts = window.do("state")["texts"]
            shown = {title: texts[texts.index(title) - 1] for title in wanted}
            if shown == wanted or time.monotonic() > deadline:
                break
            time.sleep(0.05)
        self.assertEqual(shown, wanted)

    def test_an_application_and_a_setting(self):
        old, new = self.both()
        self.to_selection(old, new)
        old.click(test_environment.NOTES)
        old.click(next(text for text in old.tabs() if text.startswith("Settings")))
        old.wait(text="Mouse Settings")
        old.click("Mouse Settings")
        old.picture("4-settings")
        old.click("Next")
        for window in (old, new):
            window.wait(page=6, text="Transfer Complete!")
            self.assertCounts(window, Apps="1", Settings="1")
            window.picture("6-with-applications")
        jotpad = self.pair.new.local / "Programs" / test_environment.NOTES / "jotpad.exe"
        self.assertEqual(jotpad.read_text(), "jotpad")
        self.assertFalse((self.pair.new.drive / "Program Files" / "Writer").exists())
        self.assertCloses(old, new)


def load_tests(loader, _standard, _pattern):
    """Each test once: the second class has the first one's helpers, not its tests."""
    return unittest.TestSuite([loader.loadTestsFromTestCase(WizardTest),
                               EquippedWizardTest("test_an_application_and_a_setting")])


if __name__ == "__main__":
    pcs.main()
