"""A transfer of 400 MB between two PCs while a third one does to both of them what it can.

    ZANDROVE_CLI=build/release/bin/zandrove-cli python3 scripts/load.py

It holds 400 connections, announces 100,000 made-up PCs, some with hostile names, and asks 20,000 times to be let in. The
transfer has to complete, within 1.2 times its undisturbed time, and neither program may need 40 MB at its peak. Each
time is the best of --turns. Prints what it measured and ends with 1 where a bound is not kept.
"""

import argparse
import json
import pathlib
import resource
import subprocess
import sys
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "tests" / "e2e"))
import pcs

SIZE = 400 * 1000 * 1000  # bytes
PART = 20 * 1000 * 1000  # bytes of one file
MEGABIT = 60  # of the Old PC's way out, so that the attack falls into the transfer
LONGEST = 1.2  # times the undisturbed time
MOST_MEMORY = 40 * 1000 * 1000  # bytes
HELD, MADE_UP, REQUESTS = 400, 100_000, 20_000
SENDERS = 20  # addresses of the third PC

# Arguments: what to do. Everything goes to both PCs, from the addresses 10.9.0.100 and on.
ATTACK = """
import itertools, json, random, resource, socket, struct, sys, time
what, count, senders = sys.argv[1], int(sys.argv[2]), int(sys.argv[3])
resource.setrlimit(resource.RLIMIT_NOFILE, (4096, 4096))
victims = ["10.9.0.1", "10.9.0.2"]
sources = [f"10.9.0.{100 + index}" for index in range(senders)]
def frame(kind, said):
    payload = json.dumps(said, ensure_ascii=False).encode("utf-8", "surrogatepass")
    return struct.pack(">IHHIII", 0x5A445256, 1, kind, len(payload), 1, 0) + payload
def dial(index):
    link = socket.socket()
    link.settimeout(5)
    link.bind((sources[index % senders], 0))
    link.connect((victims[index % 2], 52024))
    return link
HOSTILE = ["../../etc/passwd", "A" * 1200, "<img src=x>\\u202e\\u0000", "\\x1b[2J\\r\\n", "%1 %2 %n", "\\ud83d"]
done = 0
if what == "hold":
    held = []
    for index in range(count):
        try:
            held.append(dial(index))
        except OSError:
            continue
    print(json.dumps({"held": len(held)}), flush=True)
    time.sleep(600)
elif what == "announce":
    speakers = []
    for source in sources:
        speaker = socket.socket(socket.AF_INET, socket.SOCK_DGRAM)
        speaker.bind((source, 0))
        speakers.append(speaker)
    for index in range(count):
        name = HOSTILE[index % len(HOSTILE)] + str(index) if index % 10 == 0 else f"PC{index}"
        said = {"id": name, "name": name, "ip": f"10.9.{index % 200}.{index % 250}", "port": 52024, "os": "x",
                "role": 1 - index % 2, "code": f"{index % 10000:04}"}
        try:
            speakers[index % senders].sendto(frame(1, said), (victims[(index + 1) % 2 if index % 3 else index % 2], 52025))
            done += 1
        except OSError:
            pass
    print(json.dumps({"announced": done}), flush=True)
else:
    for index in range(count):
        try:
            link = dial(index)
            link.sendall(frame(16, {"name": HOSTILE[index % len(HOSTILE)], "os": "x"}))
            link.close()
            done += 1
        except OSError:
            pass
    print(json.dumps({"asked": done}), flush=True)
"""


class Load:
    def __init__(self, pair):
        self.pair = pair
        self.third = pair.add_pc("ThirdBox", "10.9.0.3/24")
        for index in range(SENDERS):
            self.third.run("ip", "address", "add", f"10.9.0.{100 + index}/24", "dev", pcs.LINK)
        self.folder = pair.old.home / "load"
        for index in range(SIZE // PART):
            pcs.write_file(self.folder / f"{index}.bin", PART)
        pair.old.run("tc", "qdisc", "replace", "dev", pcs.LINK, "root", "tbf", "rate", f"{MEGABIT}mbit", "burst",
                     "256k", "latency", "100ms")

    def attacker(self, what, count):
        # Its processor is another PC's.
        return self.third.popen("nice", "-n", "5", sys.executable, "-c", ATTACK, what, str(count), str(SENDERS), stdout=subprocess.PIPE,
                                text=True)

    def transfer(self, disturbed):
        """Seconds from the link to the report, peak memory of sender and receiver, and what the attack has done."""
        receiver = self.pair.new.receive("--yes", "--once")
        code = receiver.wait_for("code")["code"]
        sender = self.pair.old.send(code, self.folder)
        sender.wait_for_bytes(1)
        start = time.monotonic()
        attack = [self.attacker(*step) for step in (("hold", HELD), ("announce", MADE_UP), ("ask", REQUESTS))] if disturbed else []
        memory = [0, 0]
        while not sender.count("report"):
            if time.monotonic() - start > 600 or sender.process.poll() is not None:
                raise SystemExit(f"no report\n{sender.transcript()}\n{receiver.transcript()}")
            memory = [max(size, peak(program.process.pid)) for size, program in zip(memory, (sender, receiver))]
            time.sleep(0.1)
        report = sender.wait_for("report")
        seconds = time.monotonic() - start
        ended = [process.poll() is not None for process in attack[1:]]
        # A rest of the attack may still be on its way; what it has done is told when it is through.
        done = {}
        for process in attack:
            done |= json.loads(process.stdout.readline())
            process.kill()
            process.communicate()
        codes = sender.exit_code(60), receiver.exit_code(60)
        copy = self.pair.new.received("load")
        right = pcs.tree(self.folder) == pcs.tree(copy)
        subprocess.run(["rm", "-r", copy], check=True)
        return {"seconds": round(seconds, 2), "memory": [f"{size / 1e6:.1f} MB" for size in memory],
                "peak": max(memory), "attackWasThrough": ended, "attack": done, "exits": codes,
                "filesSuccess": report["filesSuccess"], "sameTree": right}


def peak(pid):
    try:
        status = pathlib.Path(f"/proc/{pid}/status").read_text()
    except OSError:
        return 0
    return next((int(line.split()[1]) * 1024 for line in status.splitlines() if line.startswith("VmHWM")), 0)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--turns", type=int, default=2)
    turns = parser.parse_args().turns
    hard = resource.getrlimit(resource.RLIMIT_NOFILE)[1]
    resource.setrlimit(resource.RLIMIT_NOFILE, (min(4096, hard), hard))
    with pcs.TwoPcs(old_address="10.9.0.1/24", new_address="10.9.0.2/24") as pair:
        load = Load(pair)
        results = {False: [], True: []}
        for _ in range(turns):
            for disturbed in (False, True):
                results[disturbed].append(load.transfer(disturbed))
                print(json.dumps({"disturbed": disturbed} | results[disturbed][-1]), flush=True)
    best = {disturbed: min(turn["seconds"] for turn in turns) for disturbed, turns in results.items()}
    ratio = best[True] / best[False]
    memory = max(turn["peak"] for turn in results[True])
    whole = all(turn["sameTree"] and turn["exits"] == (0, 0) for turn in results[True])
    print(f"undisturbed {best[False]} s, disturbed {best[True]} s: {ratio:.2f} times; peak {memory / 1e6:.1f} MB")
    sys.exit(0 if whole and ratio <= LONGEST and memory < MOST_MEMORY else 1)


if __name__ == "__main__":
    main()
