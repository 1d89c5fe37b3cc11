"""Connections from others, before and during a run."""

import subprocess
import sys

import pcs

STRANGER = "192.168.77.9"
SPEED = 300  # megabit per second
MIDDLE = 16 * 1000 * 1000  # bytes

# Dials the New PC from an address of its own: "idle" holds 30 connections, "sweep" makes one each 20 ms, "ask" asks.
SCRIPT = """
import contextlib, socket, struct, sys, time
def dial():
    return socket.create_connection(("192.168.77.2", 52024), 5, ("192.168.77.9", 0))
if sys.argv[1] == "sweep":
    print("ready", flush=True)
    with contextlib.suppress(OSError):
        while True:
            dial().close()
            time.sleep(0.02)
    sys.exit()
if sys.argv[1] == "idle":
    held = [dial() for _ in range(30)]
else:
    held = dial()
    name = b'{"name":"STRANGER","os":"x"}'
    held.sendall(struct.pack(">IHHIII", 0x5A445256, 1, 16, len(name), 1, 0) + name)
print("ready", flush=True)
if sys.argv[1] == "ask":
    print(struct.unpack(">IHHIII", held.recv(20))[2], flush=True)
time.sleep(60)
"""


class Strangers(pcs.TestCase):
    def setUp(self):
        self.pair = self.two_pcs()
        self.pair.old.run("ip", "address", "add", STRANGER + "/24", "dev", pcs.LINK)
        self.big = self.pair.old.home / "big"
        pcs.write_file(self.big / "one.bin", 80 * 1000 * 1000)

    def stranger(self, what):
        process = self.pair.old.popen(sys.executable, "-c", SCRIPT, what, stdout=subprocess.PIPE, text=True)

        def end():
            process.kill()
            process.wait()
            process.stdout.close()

        self.addCleanup(end)
        self.assertEqual(process.stdout.readline(), "ready\n")
        return process

    def assertArrives(self, receiver, sender):
        self.assertReport(sender.wait_for("report"), success=1)
        self.assertExits(0, sender)
        self.assertSameTree(self.big, self.pair.new.received("big"))
        self.assertEqual((receiver.count("connected"), receiver.count("request")), (1, 1), receiver.transcript())

    def test_connections_that_ask_nothing_cost_a_run_nothing(self):
        self.pair.limit_speed(SPEED)
        receiver = self.pair.new.receive("--yes", "--once")
        receiver.wait_for("code")
        self.stranger("idle")
        self.stranger("sweep")
        sender = self.pair.old.send("192.168.77.2", self.big)
        sender.wait_for_bytes(MIDDLE)
        self.assertEqual(self.stranger("ask").stdout.readline(), "18\n", "busy is not answered at once")
        self.pair.free_speed()
        self.assertArrives(receiver, sender)
        self.assertExits(0, receiver)

    def test_answer_belongs_to_its_question(self):
        receiver = self.pair.new.receive("--control", "--once")
        receiver.wait_for("code")
        stranger = self.stranger("ask")
        first = receiver.wait_for("request")
        self.assertEqual((first["name"], first["ip"]), ("STRANGER", STRANGER))
        sender = self.pair.old.send("NewBox", self.big)
        second = receiver.wait_for("request")
        self.assertEqual((second["name"], second["ip"]), ("OldBox", "192.168.77.1"))
        receiver.say(f"yes {second['question']}")
        self.assertEqual(receiver.wait_for("connected")["ip"], "192.168.77.1")
        self.assertEqual(stranger.stdout.readline(), "18\n")
        self.assertReport(sender.wait_for("report"), success=1)
        self.assertExits(0, sender)

    def test_answer_to_a_question_that_has_gone_admits_nobody(self):
        receiver = self.pair.new.receive("--control")
        receiver.wait_for("code")
        receiver.say("yes")
        receiver.wait_for("warning")
        stranger = self.stranger("ask")
        receiver.wait_for("request")
        sender = self.pair.old.send("NewBox", self.big)
        receiver.wait_for("request")
        stranger.kill()
        receiver.wait_for("warning")
        receiver.say("yes")
        receiver.wait_for("warning")
        self.assertEqual(receiver.wait_for("request")["name"], "OldBox")
        receiver.say("yes")
        self.assertEqual(receiver.wait_for("connected")["ip"], "192.168.77.1")
        self.assertReport(sender.wait_for("report"), success=1)


if __name__ == "__main__":
    pcs.main()
