# SPDX-License-Identifier: MIT
"""The installed designer, started by the desktop as for a double click, in the home of somebody new."""
import json
import os
import pathlib
import subprocess
import sys
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "e2e"))
from window import Failed, Program, wait_for, xdotool  # noqa: E402

TYPES = {".kev": "application/x-kev-template", ".kex": "application/x-kev-records",
         ".ked": "application/x-kev-variables"}


class Installed(Program):
    """`prefix` stands before each command that is to run where the program is installed; `root` is that place as
    it is seen from here, and all paths are those inside."""

    options = ""

    def __init__(self, home, prefix=(), root=""):
        self.prefix, self.root, self.home = list(prefix), root, pathlib.Path(home)
        self.process, self.pid, self.zoom, self.origin = None, None, 1.0, None

    def outside(self, path):
        return pathlib.Path(self.root + str(path))

    def inside(self, *command):
        done = subprocess.run([*self.prefix, *map(str, command)], capture_output=True, text=True)
        if done.returncode != 0:
            raise Failed(f"{' '.join(map(str, command))} ended with {done.returncode}: {done.stdout}{done.stderr}")
        return done.stdout

    def type_of(self, path):
        """What the desktop takes a file for."""
        return self.inside("env", "XDG_CURRENT_DESKTOP=GNOME", "xdg-mime", "query", "filetype", path).strip()

    def double_click(self, path, address=None):
        """Has the desktop open a file, or an address that means it, with whatever program is registered."""
        self.path = self.outside(path)
        with open(self.outside(self.home) / "said", "ab") as said:
            self.process = subprocess.Popen([*self.prefix, "gio", "open", address or str(path)], stdout=said,
                                            stderr=said)
        self.said = self.outside(self.home) / "said"
        wait_for(f"the window of {path}", self.is_open)
        self.pid = int(xdotool("getactivewindow", "getwindowpid"))

    def is_open(self):
        if self.process.poll():
            raise Failed("the desktop opens nothing: " + self.said.read_text(errors="replace"))
        return self.title().startswith(self.path.name + " - Kev Visual Editor")

    def command_line(self):
        return pathlib.Path(f"/proc/{self.pid}/cmdline").read_bytes().decode().split("\0")[:-1]

    def dump(self, path=None):
        inside = str(path or self.path).removeprefix(self.root)
        return json.loads(self.inside("kevtool", "dump", "--geometry", inside))

    def retype(self, old, new):
        """Clicks on the label, types another text over it and saves."""
        label = self.label(self.dump(), old)
        inside = str(self.path).removeprefix(self.root)
        left = float(self.inside("kevtool", "eval", inside, label["XValue"]))
        self.find_page()
        self.click(left + label["Width"] / 2, label["AbsoluteY"] + label["Height"] / 2)
        self.key("F2", "ctrl+a")
        self.type(new)
        self.key("Return")
        self.label(self.saved(), new)

    def label(self, dump, text):
        found = [o for o in dump["objects"] if o["Content"] == text]
        if len(found) != 1:
            raise Failed(f"{len(found)} objects say \"{text}\"")
        return found[0]

    def ended(self):
        """One that has ended, but that nobody has asked for its status, still has its folder and no arguments."""
        return self.pid is None or not os.path.exists(f"/proc/{self.pid}") or not any(self.command_line())

    def quit(self):
        self.key("ctrl+q")
        wait_for("the program's end", self.ended)
        self.pid = None

    def close(self):
        if not self.ended():
            os.kill(self.pid, 15)
            time.sleep(0.5)
