"""Which PC is meant among several, at which address, and what is said where none comes."""

import subprocess
import sys

import pcs

# Announces a New PC, as its arguments "NAME ADDRESS CODE" say, from wherever it runs, and tells of each connection.
SPOOFER = """
import json, socket, struct, sys, threading, time
name, address, code = sys.argv[1:]
server = socket.create_server(("", 52024))
said = {"id": name, "name": name, "ip": address, "port": 52024, "os": "x", "role": 1, "code": code}
payload = json.dumps(said).encode()
frame = struct.pack(">IHHIII", 0x5A445256, 1, 1, len(payload), 1, 0) + payload
speaker = socket.socket(socket.AF_INET, socket.SOCK_DGRAM)
speaker.setsockopt(socket.SOL_SOCKET, socket.SO_BROADCAST, 1)
def announce():
    while True:
        speaker.sendto(frame, ("10.9.0.255", 52025))
        time.sleep(0.1)
threading.Thread(target=announce, daemon=True).start()
print("ready", flush=True)
while True:
    link, _ = server.accept()
    link.sendall(struct.pack(">IHHIII", 0x5A445256, 1, 17, 0, 1, 0))
    print("reached", flush=True)
"""

# A New PC that dials whoever dials it, and then says yes to the one that it was to wait for.
EAGER = """
import socket, struct, sys
server = socket.create_server(("", 52024))
print("ready", flush=True)
link, peer = server.accept()
own = socket.create_connection((peer[0], 52024), 5)
name = b'{"name":"Eager","os":"x"}'
own.sendall(struct.pack(">IHHIII", 0x5A445256, 1, 16, len(name), 1, 0) + name)
own.settimeout(1)
try:
    print(own.recv(20)[7], flush=True)
except TimeoutError:
    print("waits", flush=True)
link.sendall(struct.pack(">IHHIII", 0x5A445256, 1, 17, 0, 1, 0))
own.settimeout(10)
print(own.recv(20)[7], flush=True)
sys.stdin.read()
"""


class Neighbours(pcs.TestCase):
    folders = 0

    def segment(self):
        """An Old PC, a New PC and a third one."""
        self.pair = self.two_pcs(old_address="10.9.0.1/24", new_address="10.9.0.2/24")
        self.third = self.pair.add_pc("ThirdBox", "10.9.0.3/24")
        self.folder = pcs.small_tree(self.pair.old.home / "things")

    def more(self):
        """A folder that has not been sent yet."""
        self.folders += 1
        return pcs.small_tree(self.pair.old.home / f"more {self.folders}", 3)

    def python(self, pc, script, *arguments):
        process = pc.popen(sys.executable, "-c", script, *arguments, stdin=subprocess.PIPE,
                           stdout=subprocess.PIPE, text=True)

        def end():
            process.kill()
            process.communicate()

        self.addCleanup(end)
        self.assertEqual(process.stdout.readline(), "ready\n")
        return process

    def assertSent(self, sender, *, address):
        self.assertEqual(sender.wait_for("connected")["ip"], address)
        self.assertExits(0, sender)

    def test_two_new_pcs_with_the_same_virtual_adapter(self):
        self.segment()
        receivers = {}
        for pc in (self.pair.new, self.third):
            pc.run("ip", "link", "add", "vbox", "type", "veth", "peer", "name", "guest")
            pc.run("ip", "address", "add", "192.168.56.1/24", "broadcast", "+", "dev", "vbox")
            pc.run("ip", "link", "set", "vbox", "up")
            pc.run("ip", "link", "set", "guest", "up")
            receivers[pc] = pc.receive("--yes")
        for turn in range(3):
            for pc, address in ((self.pair.new, "10.9.0.2"), (self.third, "10.9.0.3")):
                folder = pcs.small_tree(self.pair.old.home / f"{pc.name} {turn}", 3)
                code = receivers[pc].wait_for("code")["code"]
                self.assertSent(self.pair.old.send(code, folder), address=address)
                self.assertSameTree(folder, pc.received(folder.name))

    def test_foreign_announcement_gets_nothing(self):
        self.segment()
        spoofer = self.python(self.third, SPOOFER, "NewBox", "10.9.0.2", "99999")
        receiver = self.pair.new.receive("--yes")
        code = receiver.wait_for("code")["code"]
        self.assertSent(self.pair.old.send(code, self.folder), address="10.9.0.2")
        self.assertSameTree(self.folder, self.pair.new.received("things"))
        by_name = self.pair.old.send("NewBox", self.folder)
        self.assertExits(2, by_name)
        spoofer.kill()
        self.assertEqual(spoofer.stdout.read(), "", "the stranger was dialled")

        code = receiver.wait_for("code")["code"]
        other = self.python(self.third, SPOOFER, "Other", "10.9.0.2", code)
        both = self.pair.old.send(code, self.folder)
        self.assertExits(2, both)
        for address in ("NewBox (10.9.0.2)", "Other (10.9.0.3)"):
            self.assertIn(address, both.stderr)
        self.assertSent(self.pair.old.send("10.9.0.2", self.more()), address="10.9.0.2")
        other.kill()
        self.assertEqual(other.stdout.read(), "")

    def test_pc_that_changes_its_address_is_found_at_the_new_one(self):
        self.segment()
        looking = self.pair.old.start("discover", "--role", "old")
        receiver = self.pair.new.receive("--yes")
        code = receiver.wait_for("code")["code"]
        before = looking.wait_for("peer", lambda event: event["code"] == code)
        self.pair.new.run("ip", "address", "flush", "dev", pcs.LINK)
        self.pair.new.run("ip", "address", "add", "10.9.0.77/24", "broadcast", "+", "dev", pcs.LINK)
        after = looking.wait_for("peer", within=10)
        self.assertEqual((after["ip"], after["code"], after["key"]), ("10.9.0.77", code, before["key"]))
        self.assertSent(self.pair.old.send(code, self.folder), address="10.9.0.77")

    def test_cable_goes_before_another_network(self):
        pair = self.pair = self.two_pcs(old_address="169.254.7.1/16", new_address="169.254.7.2/16")
        pair.old.run("ip", "link", "add", "air", "type", "veth", "peer", "name", "air", "netns", pair.new.holder.pid)
        for pc, address in ((pair.old, "192.168.5.1/24"), (pair.new, "192.168.5.2/24")):
            pc.run("ip", "address", "add", address, "broadcast", "+", "dev", "air")
            pc.run("ip", "link", "set", "air", "up")
        receiver = pair.new.receive("--yes", "--mode", "cable")
        for _ in range(4):
            receiver.wait_for("code")
            self.assertSent(pair.old.send("NewBox", self.more(), options=("--mode", "cable")), address="169.254.7.2")

    def test_sweep_of_a_third_pc_costs_a_run_nothing(self):
        self.segment()
        pcs.write_file(self.folder / "one.bin", 40 * 1000 * 1000)
        self.pair.limit_speed(100)
        receiver = self.pair.new.receive("--yes", "--once")
        receiver.wait_for("code")
        sender = self.pair.old.send("NewBox", self.folder)
        sender.wait_for_bytes(1000 * 1000)
        sweep = self.third.start("discover", "--role", "old", "--mode", "cable", "--seconds", "5")
        sweep.wait_for("peer", lambda event: event["ip"] == "10.9.0.2")
        self.assertReport(sender.wait_for("report"), success=31)
        self.assertExits(0, sender)
        self.assertEqual((receiver.count("connected"), receiver.count("request")), (1, 1), receiver.transcript())

    def test_address_is_dialled_unheard(self):
        """Where no datagram is heard, nobody is found; what listens at an address can still be reached."""
        pair = self.two_pcs()
        receiver = pair.new.receive("--yes")
        receiver.wait_for("code")
        self.python(pair.old, "import socket; deaf = socket.socket(socket.AF_INET, socket.SOCK_DGRAM);"
                              "deaf.bind(('', 52025)); print('ready', flush=True); input()")
        sender = pair.old.send("192.168.77.2", pcs.small_tree(pair.old.home / "things"))
        self.assertIn("52025 is taken by python3", sender.wait_for("warning")["message"])
        self.assertSent(sender, address="192.168.77.2")

    def test_both_dial_at_once(self):
        pair = self.two_pcs()
        eager = self.python(pair.new, EAGER)
        sender = pair.old.send("192.168.77.2", pcs.small_tree(pair.old.home / "things"))
        self.assertEqual(eager.stdout.readline(), "waits\n", "the Old PC has not held its own dial")
        self.assertEqual(sender.wait_for("connected")["ip"], "192.168.77.2")
        self.assertEqual(eager.stdout.readline(), "18\n")

    def test_what_is_said_in_the_silence(self):
        pair = self.two_pcs()
        holder = self.python(pair.new, "import socket; server = socket.create_server(('', 52024));"
                                       "print('ready', flush=True); input()")
        taken = pair.new.receive()
        self.assertExits(1, taken)
        self.assertRegex(taken.stderr, "52024 is taken by python3")
        holder.communicate("\n")

        receiver = pair.new.receive("--control")
        twin = pair.old.receive()
        said = twin.wait_for("warning", lambda event: "NewBox" in event["message"])
        self.assertEqual(said["message"], "NewBox is here too, but also as New PC: choose Old PC on one of the two")
        twin.interrupt()
        self.assertExits(130, twin)

        code = receiver.wait_for("code")["code"]
        folder = pcs.small_tree(pair.old.home / "things")
        for answer, exit_code in (("no", 1), ("yes", 0)):
            sender = pair.old.send(code, folder)
            self.assertEqual(sender.wait_for("waiting")["name"], "NewBox")
            receiver.wait_for("request")
            receiver.say(answer)
            self.assertExits(exit_code, sender)
        nobody = pair.old.send("0000" if code != "0000" else "0001", folder)
        said = nobody.wait_for("warning", lambda event: "not found" in event["message"], within=30)
        self.assertIn("NewBox (192.168.77.2)", said["message"])


if __name__ == "__main__":
    pcs.main()
