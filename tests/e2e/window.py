# SPDX-License-Identifier: MIT
"""The real program in a real window: a virtual display, real pointer and keys, and what is then saved."""
import json
import os
import pathlib
import shutil
import subprocess
import tempfile
import time

EDGE = (188, 191, 197)  # the line around the page
UNITS = 15              # twips in a pixel at 100 %


class Failed(Exception):
    pass


def wait_for(what, condition, limit=60):
    end = time.monotonic() + limit
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > end:
            raise Failed(f"waited in vain for {what}")
        time.sleep(0.03)


class Display:
    """A virtual screen with a window manager.

    The server must not reset itself when its last client leaves: in the moment between a first client and the
    window manager it would throw out whoever is just arriving, and that program ends for want of a display."""

    def __init__(self, size="1280x860"):
        self.size = size

    def __enter__(self):
        read, write = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write), "-screen", "0", f"{self.size}x24", "-nolisten", "tcp", "-noreset"],
            pass_fds=[write], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(write)
        with os.fdopen(read) as numbers:
            os.environ["DISPLAY"] = ":" + numbers.readline().strip()
        self.manager = subprocess.Popen(["openbox"], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        wait_for("the window manager", lambda: "window id" in subprocess.run(
            ["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"], capture_output=True, text=True).stdout)
        return self

    def __exit__(self, *_):
        for process in (self.manager, self.server):
            process.terminate()
            process.wait()


def xdotool(*arguments):
    return subprocess.run(["xdotool", *map(str, arguments)], capture_output=True, text=True).stdout.strip()


def screen(window="root"):
    """The pixels: width, height, bytes of red, green, blue."""
    data = subprocess.run(["import", "-window", window, "-depth", "8", "ppm:-"], capture_output=True,
                          check=True).stdout
    head, size, depth, pixels = data.split(b"\n", 3)
    assert head == b"P6" and depth == b"255"
    width, height = map(int, size.split())
    return width, height, pixels


class Program:
    """One run of the designer in a home of its own."""

    # The welcome screen and the quick panel would lie over what a test wants to click on.
    options = "SHOWWELCOME=0\r\nSHOWQUICKPROPS=0\r\n"

    def __init__(self, binaries, home=None):
        self.binaries = pathlib.Path(binaries).resolve()
        self.home = pathlib.Path(home or tempfile.mkdtemp(prefix="kev-e2e-"))
        for folder in ("temp/Kev/Cache", "temp/Kev/Temp", "data/Kev/temp", "work"):
            (self.home / folder).mkdir(parents=True, exist_ok=True)
        last_run = self.home / "data/Kev/LASTRV.DAT"
        if self.options and not last_run.exists():
            last_run.write_bytes(self.options.encode())
        self.process = None
        self.zoom = 1.0
        self.origin = None

    def launch(self, *arguments):
        """Starts the program; what it says on its outputs is kept for the message of a failure."""
        environment = dict(os.environ, TEMP=str(self.home / "temp"), appdata=str(self.home / "data"))
        with open(self.home / "said", "ab") as said:
            self.process = subprocess.Popen([str(self.binaries / "kev"), *map(str, arguments)], env=environment,
                                            stdout=said, stderr=said)

    def start(self, path):
        self.path = pathlib.Path(path)
        self.launch(path)
        self.wait_title(self.path.name + " - Kev Visual Editor")
        self.find_page()

    def title(self):
        return xdotool("getactivewindow", "getwindowname")

    def wait_title(self, start):
        try:
            wait_for(f"the window \"{start}\"", lambda: self.title().startswith(start)
                     and xdotool("getwindowfocus", "getwindowname") == self.title())
        except Failed as failure:
            ended = self.process.poll()
            state = "runs" if ended is None else f"ended with {ended}"
            said = (self.home / "said").read_text(errors="replace")[-2000:]
            raise Failed(f"{failure}; there is \"{self.title()}\", and the program {state}\n{said}") from None

    # --- Where the page is -----------------------------------------------------------------------------------

    def find_page(self):
        """The corner of the page's frame on the screen, once it is painted."""
        self.picture_settles()
        self.origin = wait_for("the page", self.corner)

    def corner(self):
        width, height, pixels = screen()
        edge, row = bytes(EDGE), width * 3
        run = edge * 60
        for y in range(height - 61):
            at = pixels.find(run, y * row, (y + 1) * row)
            while at >= 0 and (at - y * row) % 3:
                at = pixels.find(run, at + 1, (y + 1) * row)
            if at < 0:
                continue
            x = (at - y * row) // 3
            if all(pixels[(y + k) * row + x * 3:(y + k) * row + x * 3 + 3] == edge for k in range(60)):
                return x + 1, y + 1
        return None

    def at(self, x, y):
        """The screen's pixel of a place on the page, in twips of the document."""
        left, top = self.origin
        return (round(left + (x + self.margin) * self.zoom / UNITS), round(top + y * self.zoom / UNITS))

    margin = 0

    # --- Pointer and keys --------------------------------------------------------------------------------------

    def click(self, x, y, button=1, repeat=1, shift=None):
        px, py = self.at(x, y)
        keys = (["keydown", shift], ["keyup", shift]) if shift else ([], [])
        xdotool(*keys[0], "mousemove", px, py, "click", "--repeat", repeat, "--delay", 60, button, *keys[1])

    def drag(self, x1, y1, x2, y2, shift=None, release=True):
        (px, py), (qx, qy) = self.at(x1, y1), self.at(x2, y2)
        steps = 8
        moves = []
        for step in range(1, steps + 1):
            moves += ["mousemove", px + (qx - px) * step // steps, py + (qy - py) * step // steps, "sleep", 0.01]
        keys = (["keydown", shift], ["keyup", shift]) if shift else ([], [])
        xdotool("mousemove", px, py, *keys[0], "mousedown", 1, *moves, *(["mouseup", 1] if release else []), *keys[1])

    def pause(self):
        """Long enough for the next press not to make a double click of two."""
        time.sleep(0.6)

    def key(self, *names):
        for name in names:
            xdotool("key", "--clearmodifiers", name)

    def type(self, text):
        xdotool("type", "--clearmodifiers", "--delay", 8, text)

    def set_zoom(self, percent):
        self.key("alt+z", "ctrl+a")
        self.type(str(percent))
        self.key("Return")
        self.zoom = percent / 100
        # Up and to the left, as far as it goes.
        xdotool("mousemove", 500, 500, "click", "--repeat", 40, "--delay", 5, 4, "click", "--repeat", 40, "--delay", 5, 6)
        self.find_page()

    def picture_settles(self):
        before, same = None, 0
        while same < 3:
            now = screen()
            same = same + 1 if now == before else 0
            before = now
            time.sleep(0.05)

    def picture(self, folder, name):
        os.makedirs(folder, exist_ok=True)
        subprocess.run(["import", "-window", "root", f"{folder}/{name}.png"], check=True)

    # --- What is saved -----------------------------------------------------------------------------------------

    def dump(self, path=None):
        """The document as a file holds it."""
        out = subprocess.run([str(self.binaries / "kevtool"), "dump", "--geometry", str(path or self.path)],
                             capture_output=True)
        if out.returncode != 0:
            raise Failed(out.stderr.decode())
        return json.loads(out.stdout)

    def saved(self):
        """Saves, and gives what the file then holds."""
        before = self.path.stat().st_mtime_ns
        self.key("ctrl+s")
        wait_for("the save", lambda: self.path.stat().st_mtime_ns != before and
                 "[Modified]" not in self.title())
        return self.dump()

    def alive(self):
        return self.process is not None and self.process.poll() is None

    def quit(self):
        self.key("ctrl+q")
        self.process.wait(timeout=60)
        self.process = None

    def close(self):
        if self.alive():
            self.process.kill()
            self.process.wait()
        shutil.rmtree(self.home, ignore_errors=True)
