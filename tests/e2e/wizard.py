"""The window of the program on a PC of pcs.py, worked by clicks and key strokes alone."""

import contextlib
import itertools
import json
import os
import pathlib
import queue
import subprocess
import threading

import pcs

DEADLINE = 30.0  # seconds
GREETING = 0  # what a window that has just opened answers


def driver_path():
    chosen = os.environ.get("ZANDROVE_WIZARD")
    if chosen:
        return chosen
    return str(pathlib.Path(pcs.cli_path()).with_name("zandrove-wizard-driver"))


class Wizard:
    """One window with a pair of hands. Pictures go to the folder $ZANDROVE_PICTURES, if there is one."""

    def __init__(self, pc, title, obeys_permissions=False):
        self.pc = pc
        self.title = title
        self.state = {}
        self.log = ""
        self._pictures = os.environ.get("ZANDROVE_PICTURES")
        self.process = pc.popen(*pc.program()[:-1], "env", "QT_QPA_PLATFORM=offscreen", driver_path(),
                                obeys_permissions=obeys_permissions, stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                stderr=subprocess.PIPE, text=True, encoding="utf-8")
        self._numbers = itertools.count(GREETING + 1)
        self._answers = queue.Queue()
        self._readers = [threading.Thread(target=reader, daemon=True) for reader in (self._read_answers, self._read_log)]
        for reader in self._readers:
            reader.start()
        self._greeted()

    def _read_answers(self):
        for line in self.process.stdout:
            self._answers.put(line)
        self._answers.put("")

    def _read_log(self):
        for line in self.process.stderr:
            self.log += line

    def _tell(self, action, name="", **details):
        command = {"do": action, "name": str(name), "number": next(self._numbers), **details}
        self.process.stdin.write(json.dumps(command) + "\n")
        self.process.stdin.flush()
        return command["number"]

    def _take(self, number, within=0):
        """The answer of that number. Those before it may still come: who tells does not always wait."""
        with contextlib.suppress(queue.Empty):
            while answer := self._answers.get(timeout=DEADLINE + within):
                state = json.loads(answer)
                if state["number"] == number:
                    return state
        return None

    def _greeted(self):
        self.state = self._take(GREETING)
        if not self.state:
            raise AssertionError(f"{self.title}: no window\n{self.log[-4000:]}")

    def do(self, action, name="", **details):
        """One command. Gives what can be seen afterwards."""
        state = None
        with contextlib.suppress(OSError):
            state = self._take(self._tell(action, name, **details), details.get("within", 0))
        if not state:
            raise AssertionError(f"{self.title}: no answer to {action} {name!r} {details}\n{self.log[-4000:]}")
        self.state = state
        if not state["ok"]:
            self.picture("failed")
            raise AssertionError(f"{self.title}: {action} {name!r} {details} failed\n{json.dumps(state, indent=1)}\n{self.log[-4000:]}")
        return state

    def click(self, *names):
        for name in names:
            self.do("click", name)

    def key(self, *names):
        for name in names:
            self.do("key", name)

    def type(self, text):
        self.do("type", text)

    def wait(self, within=DEADLINE, **wanted):
        """Until the window shows the page, the dialog, a text that matches, or an enabled control."""
        return self.do("await", within=within, **wanted)

    def picture(self, name):
        if self._pictures:
            target = pathlib.Path(self._pictures) / f"{name}-{self.pc.name}.png"
            target.parent.mkdir(parents=True, exist_ok=True)
            self.do("picture", target)

    def tabs(self):
        return self.do("state")["tabs"]

    def tab_to(self, name):
        """Goes on by Tab until the control of that name has the focus."""
        for _ in range(60):
            if self.state["focus"] == name:
                return
            self.key("Tab")
        raise AssertionError(f"{self.title}: Tab never reaches {name!r}: {self.state}")

    def code(self):
        """What the connection page shows as this PC's own code."""
        texts = self.wait(page=2, text="^[0-9]$")["texts"]
        first = texts.index("Your Verification Code") + 1
        return "".join(texts[first:first + 4])

    def close(self):
        """Closes the window by its own button. Gives the exit code."""
        self._tell("click", "Close")
        return self.exit_code()

    def close_by_system(self):
        """What the window's system does when the window is closed from outside."""
        self._tell("close")
        return self.exit_code()

    def exit_code(self):
        try:
            return self.process.wait(pcs.EVENT_DEADLINE)
        except subprocess.TimeoutExpired:
            raise AssertionError(f"{self.title} did not end\n{self.log[-4000:]}") from None

    def restart_by(self, name):
        """A click by which the program ends and another one takes its place, in the same hands."""
        self._tell("click", name)
        self._greeted()

    def end(self):
        with contextlib.suppress(OSError):
            self.process.stdin.close()
        if self.process.poll() is None:
            self.process.kill()
            self.process.wait()
        for reader in self._readers:
            reader.join(5)
        for stream in (self.process.stdin, self.process.stdout, self.process.stderr):
            stream.close()
