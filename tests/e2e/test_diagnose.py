"""What zandrove-cli diagnose says of PCs in a known state, and that it accuses nothing else."""

import os
import subprocess
import sys

import pcs

OLD, NEW = "192.168.77.1", "192.168.77.2"
TCP_PORT, UDP_PORT = 52024, 52025
# The kinds of adapters stand in a /sys that belongs to the PC's own network.
OWN_SYS = ("unshare", "--mount", "sh", "-c", 'mount -t sysfs none /sys && exec "$@"', "sh")
NOBODY = ("setpriv", "--reuid=65534", "--regid=65534", "--clear-groups", "--inh-caps=-all", "--")
HOLD = "import socket, sys, time\n" \
       "held = socket.socket(type=getattr(socket, sys.argv[1]))\n" \
       "held.bind(('', int(sys.argv[2])))\n" \
       "if sys.argv[1] == 'SOCK_STREAM': held.listen()\n" \
       "print('ready', flush=True); time.sleep(60)\n"


def drop(pc, hook, rule):
    pc.run("nft", f"add table inet f; add chain inet f c {{ type filter hook {hook} priority 0; }}; "
                  f"add rule inet f c {rule} drop")


def allow_all(pc):
    pc.run("nft", "flush ruleset")


class Diagnose(pcs.TestCase):
    def setUp(self):
        self.use()

    def use(self, **addresses):
        self.pair = self.two_pcs(**addresses)
        self.receiver = self.pair.new.receive("--control")
        self.receiver.wait_for("code")

    def hold(self, kind, port):
        process = self.pair.old.popen(sys.executable, "-c", HOLD, kind, str(port), stdout=subprocess.PIPE)
        self.assertEqual(process.stdout.readline(), b"ready\n")
        self.addCleanup(process.stdout.close)
        self.addCleanup(process.wait)
        self.addCleanup(process.kill)
        return process

    def assertFinds(self, expected, *options, rights=(), says=""):
        """`expected`: severity, test and subject of all that isn't well, `says`: a part of what is told of it."""
        self.pair.old.program = lambda: [*OWN_SYS, *rights, pcs.cli_path()]
        program = self.pair.old.start("diagnose", "--role", "old", "--seconds", "2", *options)
        problems = sum(severity == "problem" for severity, *_ in expected)
        self.assertExits(4 if problems else 0, program)
        findings = [event for event in program.events if event["event"] == "finding"]
        worth_a_word = [event for event in findings if event["severity"] != "ok"]
        self.assertEqual({(event["severity"], event["id"], event["subject"]) for event in worth_a_word},
                         set(expected), program.transcript())
        self.assertEqual(program.events[-1], {"event": "diagnosis", "problems": problems})
        self.assertTrue(all(event["sentence"] and event["advice"] for event in worth_a_word), worth_a_word)
        self.assertIn(says, " ".join(" ".join(event.values()) for event in worth_a_word or findings))

    def test_all_is_well(self):
        self.assertFinds([], says=f"{pcs.LINK} (virtual) has the address {OLD}, and broadcasts leave by it.")
        self.assertFinds([], "--to", NEW, says=f"NewBox ({NEW}) is heard as New PC, and answers.")
        self.assertEqual(self.receiver.count("request") + self.receiver.count("warning"), 0)
        other_copy = self.pair.old.receive()
        other_copy.wait_for("code")
        self.assertFinds([], says="TCP port 52024 is held by Zandrove")

    def test_blocked_datagrams(self):
        here = ("problem", "firewall", "nftables")
        silent = ("problem", "target", NEW)
        drop(self.pair.old, "input", f"udp dport {UDP_PORT}")
        self.assertFinds([here], says=f"nft insert rule inet f c udp dport {UDP_PORT} accept")
        self.assertFinds([here, silent], "--to", NEW)
        if "ZANDROVE_USER_NAMESPACE" not in os.environ:  # where root is the only user
            self.assertFinds([("hint", "firewall", "nftables"), ("problem", "deaf", pcs.LINK)], rights=NOBODY,
                             says="sudo nft list ruleset")
        allow_all(self.pair.old)
        drop(self.pair.new, "output", f"udp dport {UDP_PORT}")
        self.assertFinds([silent], "--to", NEW, says="answers on TCP port 52024, but is not heard")
        self.assertFinds([("problem", "nobody", "")])

    def test_blocked_connections(self):
        drop(self.pair.new, "input", f"tcp dport {TCP_PORT}")
        self.assertFinds([("problem", "peer", NEW)], says="is heard as New PC, but does not answer on TCP port")
        drop(self.pair.old, "input", f"tcp dport {TCP_PORT}")
        allow_all(self.pair.new)
        self.assertFinds([("problem", "firewall", "nftables")], says="keeps out TCP port 52024.")

    def test_taken_ports(self):
        name = "python3"
        self.hold("SOCK_STREAM", TCP_PORT)
        self.assertFinds([("problem", "port", str(TCP_PORT))], says=f"TCP port 52024 is taken by {name}")
        self.hold("SOCK_DGRAM", UDP_PORT)
        self.assertFinds([("problem", "port", str(TCP_PORT)), ("problem", "port", str(UDP_PORT))])

    def test_an_adapter_that_leads_nowhere(self):
        old = self.pair.old
        old.run("ip", "link", "add", "spare", "type", "veth", "peer", "name", "far", "netns", self.pair.new.holder.pid)
        old.run("ip", "address", "add", "10.9.9.1/24", "broadcast", "+", "dev", "spare")
        old.run("ip", "link", "set", "spare", "up")
        self.assertFinds([("hint", "adapter", "spare")], says="10.9.9.1, but is connected to nothing")
        self.pair.new.run("ip", "link", "set", "far", "up")
        self.assertFinds([("hint", "nowhere", "spare")])

    def test_same_role(self):
        self.receiver.kill()
        self.pair.new.start("discover", "--role", "old")
        self.assertFinds([("problem", "sameRole", NEW)], says="NewBox is here too, but also as Old PC.")

    def test_no_address_yet(self):
        self.pair.old.run("ip", "address", "flush", "dev", pcs.LINK)
        self.assertFinds([("problem", "address", pcs.LINK)])
        self.pair.old.run("ip", "link", "set", pcs.LINK, "down")
        self.assertFinds([("problem", "network", "")], "--to", NEW)

    def test_only_link_local(self):
        self.use(old_address="169.254.7.1/16", new_address="169.254.7.2/16")
        self.assertFinds([("hint", "linkLocal", "169.254.7.1")])

    def test_vpn(self):
        old = self.pair.old
        old.run("ip", "tuntap", "add", "tun0", "mode", "tun")
        old.run("ip", "address", "add", "10.8.0.2/24", "dev", "tun0")
        old.run("ip", "link", "set", "tun0", "up")
        old.run("ip", "route", "add", "default", "dev", "tun0")
        self.assertFinds([("hint", "vpn", "tun0")])
        for half in ("192.168.77.0/25", "192.168.77.128/25"):
            old.run("ip", "route", "add", half, "dev", "tun0")
        self.assertFinds([("problem", "vpn", "tun0"), ("problem", "peer", NEW)],
                         says="takes what is meant for the network 192.168.77.0/24 of cable")


if __name__ == "__main__":
    pcs.main()
