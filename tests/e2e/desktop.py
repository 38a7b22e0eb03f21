# SPDX-License-Identifier: MIT
"""A desktop of its own, in which a stub is registered as the viewer of reports."""
import json
import os
import pathlib
import tempfile
import time

from window import Failed, wait_for

TAIL = "?/&&!H!~!"
# Keeps its arguments, and the file that the last of them names as it is at that moment.
STUB = """#!/usr/bin/env python3
import json, os, pathlib, sys
named = sys.argv[-1].removeprefix("ViewKevReport:").removesuffix({tail!r})
file = pathlib.Path(named)
text = file.read_bytes().decode("cp1252") if file.is_file() else None
log = {log!r}
with open(log + ".part", "w") as out:
    json.dump({{"arguments": sys.argv[1:], "text": text}}, out)
os.rename(log + ".part", log)
"""


class Desktop:
    """A home whose names are as awkward as names can be, and what is registered there."""

    def __init__(self):
        self.home = pathlib.Path(tempfile.mkdtemp(prefix="kev-e2e-")) / "my home\\$x;%20'&"
        self.home.mkdir()
        self.config, self.data = self.home / "config", self.home / "share"
        (self.data / "applications").mkdir(parents=True)
        self.config.mkdir()
        os.environ.update(XDG_CONFIG_HOME=str(self.config), XDG_DATA_HOME=str(self.data),
                          XDG_CONFIG_DIRS=str(self.home / "none"), XDG_DATA_DIRS="/usr/share")
        os.environ.pop("XDG_CURRENT_DESKTOP", None)
        os.environ.pop("BROWSER", None)

    def stub(self, name):
        path = self.home.parent / name
        path.write_text(STUB.format(tail=TAIL, log=str(path) + ".log"))
        path.chmod(0o755)
        return path

    def register(self, program):
        (self.data / "applications/viewer.desktop").write_text(
            f"[Desktop Entry]\nType=Application\nName=Viewer\nExec=\"{program}\" --report %u\n")
        (self.config / "mimeapps.list").write_text(
            "[Default Applications]\nx-scheme-handler/viewkevreport=viewer.desktop\n")

    def register_editor(self, program):
        (self.data / "applications/typer.desktop").write_text(
            f"[Desktop Entry]\nType=Application\nName=Typer\nExec=\"{program}\" --text %f\n")
        (self.config / "mimeapps.list").write_text("[Default Applications]\ntext/plain=typer.desktop\n")

    def forget(self):
        (self.config / "mimeapps.list").unlink()


def received(stub):
    log = pathlib.Path(str(stub) + ".log")
    wait_for(f"the call of {stub.name}", log.exists)
    call = json.loads(log.read_text())
    log.unlink()
    return call


def silent(stub):
    time.sleep(1.5)
    if pathlib.Path(str(stub) + ".log").exists():
        raise Failed(f"{stub.name} was called")
