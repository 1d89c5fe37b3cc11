"""Random pauses, cancels, kills and reconnects during transfers of a mixed tree, for as long as one likes.

    python3 scripts/soak.py --seeds 200 --first 1

After each mishap the reports are held against the trees, and at the end of each seed a clean run must complete the
tree and leave nothing temporary on either PC. Ends with the number of the seeds that failed.
"""

import argparse
import pathlib
import random
import sys
import time
import traceback

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "tests" / "e2e"))
import pcs
from test_truth import Truth

STEPS = ("pause", "cancel", "again", "end", "kill", "interrupt", "cut")


class Soak(Truth):
    def runTest(self):
        """Without it the class has no instance outside a test runner."""

    def run_seed(self, seed):
        chance = random.Random(seed)
        self.prepare()
        for index in range(chance.randrange(1, 4)):
            pcs.write_file(self.folder / f"film {index}.bin", chance.randrange(1, 12_000_000), seed)
        for index in range(chance.randrange(0, 400)):
            pcs.write_file(self.folder / f"many {index % 7}" / f"{index}.txt", chance.randrange(0, 3000), seed)
        self.pair.limit_speed(chance.choice((30, 100, 300)))
        steps = []
        for _ in range(chance.randrange(1, 4)):
            steps.append(self.disturbed_run(chance))
        try:
            self.completes()
        except AssertionError as error:
            raise AssertionError(f"after {steps}: {error}") from error

    def disturbed_run(self, chance):
        """One run with mishaps; whatever either side reports of it is held against the trees."""
        steps = []
        self.start(receive=("--yes", "--control"), send=("--control",))
        self.sender.wait_for("connected")
        while len(steps) < 4 and not any(program.process.poll() is not None for program in (self.sender, self.receiver)):
            time.sleep(chance.choice((0.05, 0.3, 1.0, 1.5)))
            side, step = chance.choice((self.sender, self.receiver)), chance.choice(STEPS)
            steps.append(f"{side.title[:6]} {step}")
            self.take(side, step, chance)
        self.settle()
        for program in (self.sender, self.receiver):
            reports = [event for event in program.events if event["event"] == "report"]
            if reports:  # earlier ones were true of an earlier state of the disk
                self.hold(program, reports, steps)
        for program in (self.sender, self.receiver):
            program.close()
        return steps

    def take(self, side, step, chance):
        if step == "kill":
            side.kill()
        elif step == "interrupt":
            side.interrupt()
        elif step == "cut":
            self.pair.new.run("ip", "link", "set", pcs.LINK, "down")
            time.sleep(chance.choice((0.5, 3.0)))
            self.pair.new.run("ip", "link", "set", pcs.LINK, "up")
        else:
            try:
                side.say(step)
                if step == "pause":
                    time.sleep(chance.choice((0.1, 0.7)))
                    side.say("resume")
            except OSError:
                pass  # it has ended meanwhile

    def settle(self):
        """Lets both come to an end: what still runs may finish."""
        for program in (self.sender, self.receiver):
            if program.process.poll() is None:
                try:
                    program.say("resume")
                    program.say("end")
                except OSError:
                    pass
        deadline = time.monotonic() + 45
        for program in (self.sender, self.receiver):
            while program.process.poll() is None and time.monotonic() < deadline:
                time.sleep(0.1)
        for program in (self.sender, self.receiver):
            if program.process.poll() is None:
                raise AssertionError(f"{program.title} does not end\n{program.transcript()}")

    def hold(self, program, reports, steps):
        """What a report doesn't name has arrived, whatever came after it: nothing that has arrived goes again."""
        source, copy = pcs.tree(self.folder), self.copied()
        for report in reports:
            named = {entry["path"] for entry in report["failedFiles"] + report["differentFiles"]}
            counted = report["filesSuccess"] + report["filesFailed"] + report["filesSkipped"]
            right = sum(copy.get(place) == file for place, file in source.items())
            assert report["filesSuccess"] <= right, (steps, report, right)
            if program is self.sender:
                assert counted == len(source), (steps, report)
                lost = [place for place in source
                        if str(self.folder / place) not in named and copy.get(place) != source[place]]
                assert not lost, (steps, "count as moved", lost, report)
        assert all(copy[place] == source.get(place) for place in copy), (steps, "a file is not what it was")


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--seeds", type=int, default=200)
    parser.add_argument("--first", type=int, default=1)
    chosen = parser.parse_args()
    failed = []
    for seed in range(chosen.first, chosen.first + chosen.seeds):
        soak = Soak()
        started = time.monotonic()
        try:
            soak.run_seed(seed)
            print(f"seed {seed}: right, {time.monotonic() - started:.0f} s", flush=True)
        except Exception:
            failed.append(seed)
            print(f"seed {seed}: WRONG\n{traceback.format_exc()}", flush=True)
        finally:
            soak.doCleanups()
    print(f"{chosen.seeds - len(failed)} of {chosen.seeds} seeds were right; wrong: {failed or 'none'}")
    return min(len(failed), 1)


if __name__ == "__main__":
    sys.exit(main())
