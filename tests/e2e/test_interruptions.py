"""Runs that are paused, cancelled, followed by another one, or cut off."""

import time

import pcs

FILE = 80 * 1000 * 1000  # bytes
SPEED = 300  # megabit per second: the file takes some 2 s
MIDDLE = 16 * 1000 * 1000  # bytes after which a test steps in


class Interruptions(pcs.TestCase):
    def setUp(self):
        self.pair = self.two_pcs()
        self.pair.limit_speed(SPEED)
        self.big = self.pair.old.home / "big"
        pcs.write_file(self.big / "one.bin", FILE)
        self.copy = self.pair.new.received("big")

    def start(self, receive=("--yes",), send=()):
        self.receiver = self.pair.new.receive(*receive)
        self.sender = self.pair.old.send("NewBox", self.big, options=send)

    def middle(self):
        """Waits until both sides are in the middle of the big file."""
        self.receiver.wait_for_bytes(MIDDLE)
        self.sender.wait_for_bytes(MIDDLE)

    def assertNothingHalfWritten(self):
        deadline = time.monotonic() + 10
        while pcs.sizes(self.copy):
            self.assertLess(time.monotonic(), deadline, "a half-written file stays behind")
            time.sleep(0.1)

    def assertComplete(self, *programs):
        """They report a complete run, maybe behind one that was called off."""
        for program in programs:
            self.assertReport(program.wait_for("report", lambda event: event["end"] == "complete"), success=1)

    def sends_again(self, receiver=None):
        """A fresh sender reaches the same receiver and everything arrives."""
        self.pair.free_speed()
        sender = self.pair.old.send("NewBox", self.big, options=("--timeout", "30"))
        self.assertComplete(sender, receiver or self.receiver)
        self.assertExits(0, sender)
        self.assertSameTree(self.big, self.copy)

    def test_second_run_on_the_same_link(self):
        more = pcs.small_tree(self.pair.old.home / "more things")
        self.start(receive=("--yes", "--control"), send=("--control",))
        self.assertReport(self.sender.wait_for("report"), success=1)
        self.assertReport(self.receiver.wait_for("report"), success=1)
        self.sender.say(f"again {more}")
        self.assertReport(self.sender.wait_for("report"), success=30)
        self.assertReport(self.receiver.wait_for("report"), success=30)
        self.sender.say("end")
        self.assertExits(0, self.sender)
        self.receiver.wait_for("code")
        self.receiver.say("end")
        self.assertExits(0, self.receiver)

        self.assertEqual(self.sender.count("connected"), 1)
        self.assertSameTree(self.big, self.copy)
        self.assertSameTree(more, self.pair.new.received("more things"))

    def test_cancel_by_the_sender_then_complete_on_the_same_link(self):
        self.start(receive=("--yes", "--control"), send=("--control",))
        self.middle()
        self.sender.say("cancel")
        self.assertEqual(self.sender.wait_for("cancelled")["by"], "here")
        self.assertEqual(self.receiver.wait_for("cancelled")["by"], "peer")
        self.assertNothingHalfWritten()
        self.complete_on_the_same_link()

    def test_cancel_by_the_receiver_then_complete_on_the_same_link(self):
        self.start(receive=("--yes", "--control"), send=("--control",))
        self.middle()
        self.receiver.say("cancel")
        self.assertEqual(self.receiver.wait_for("cancelled")["by"], "here")
        self.assertEqual(self.sender.wait_for("cancelled")["by"], "peer")
        self.assertNothingHalfWritten()
        self.complete_on_the_same_link()

    def test_again_at_once_after_a_cancel(self):
        self.start(receive=("--yes", "--control"), send=("--control",))
        self.middle()
        self.pair.free_speed()
        self.sender.say("cancel")
        self.sender.say("again")
        self.complete_on_the_same_link(say_again=False)

    def complete_on_the_same_link(self, say_again=True):
        if say_again:
            self.pair.free_speed()
            self.sender.say("again")
        self.assertComplete(self.sender, self.receiver)
        self.sender.say("end")
        self.assertExits(0, self.sender)
        self.receiver.wait_for("disconnected")
        self.receiver.say("end")
        self.assertExits(0, self.receiver)
        self.assertSameTree(self.big, self.copy)

    def test_ctrl_c_of_the_sender(self):
        self.start()
        self.middle()
        self.sender.interrupt()
        self.assertExits(130, self.sender)
        self.assertEqual(self.receiver.wait_for("cancelled")["by"], "peer")
        self.assertNothingHalfWritten()
        self.sends_again()
        self.receiver.interrupt()
        self.assertExits(130, self.receiver)

    def test_ctrl_c_of_the_receiver(self):
        self.start()
        self.middle()
        self.receiver.interrupt()
        self.assertEqual(self.sender.wait_for("cancelled")["by"], "peer")
        self.assertExits(1, self.sender)
        self.assertExits(130, self.receiver)
        self.assertNothingHalfWritten()

    def test_a_cancel_ends_a_receiver_that_runs_once(self):
        self.start(receive=("--yes", "--once"))
        self.middle()
        self.sender.interrupt()
        self.assertExits(130, self.sender)
        self.assertExits(1, self.receiver)
        self.assertNothingHalfWritten()

    def test_pause_and_resume_by_the_sender(self):
        self.start(receive=("--yes", "--control"), send=("--control",))
        self.pauses_and_completes(self.sender, self.receiver)

    def test_pause_and_resume_by_the_receiver(self):
        self.start(receive=("--yes", "--control"), send=("--control",))
        self.pauses_and_completes(self.receiver, self.sender)

    def test_one_side_pauses_and_the_other_resumes(self):
        self.start(receive=("--yes", "--control"), send=("--control",))
        self.pauses_and_completes(self.sender, self.receiver, resumed_by=self.receiver)

    def pauses_and_completes(self, pauser, peer, resumed_by=None):
        self.middle()
        pauser.say("pause")
        self.assertEqual(pauser.wait_for("paused")["by"], "here")
        self.assertEqual(peer.wait_for("paused")["by"], "peer")
        self.assertStandsStill()

        resumer = resumed_by or pauser
        follower = peer if resumer is pauser else pauser
        resumer.say("resume")
        self.assertEqual(resumer.wait_for("resumed")["by"], "here")
        self.assertEqual(follower.wait_for("resumed")["by"], "peer")
        self.sender.say("end")
        self.assertReport(self.sender.wait_for("report"), success=1)
        self.assertReport(self.receiver.wait_for("report"), success=1)
        self.assertExits(0, self.sender)
        self.assertSameTree(self.big, self.copy)

    def assertStandsStill(self):
        """What was on its way when the pause was given lands; from then on not a byte moves."""
        for program in (self.sender, self.receiver):
            settled = 0
            last = None
            deadline = time.monotonic() + 10
            while settled < 5:
                self.assertLess(time.monotonic(), deadline, "the run goes on in its pause")
                time.sleep(0.2)
                now = (pcs.sizes(self.copy), program.count("progress"))
                settled = settled + 1 if now == last else 0
                last = now

    def test_killed_sender(self):
        self.start()
        self.middle()
        self.sender.kill()
        self.receiver.wait_for("error")
        self.receiver.wait_for("disconnected")
        self.assertNothingHalfWritten()
        self.receiver.wait_for("code")
        self.sends_again()

    def test_killed_receiver(self):
        self.start()
        self.middle()
        self.receiver.kill()
        self.sender.wait_for("error")
        self.assertExits(1, self.sender)
        # A killed program cleans nothing up, but what it leaves does not bear the name of the file.
        self.assertFalse((self.copy / "one.bin").exists())
        receiver = self.pair.new.receive("--yes")
        self.sends_again(receiver)

    def test_killed_sender_while_paused(self):
        self.start(send=("--control",))
        self.middle()
        self.sender.say("pause")
        self.receiver.wait_for("paused")
        self.sender.kill()
        self.receiver.wait_for("error")
        self.receiver.wait_for("code")
        self.assertNothingHalfWritten()
        self.sends_again()


if __name__ == "__main__":
    pcs.main()
