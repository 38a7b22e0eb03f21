# SPDX-License-Identifier: MIT
"""The tree that a program shows to assistive technology, read from outside of its process."""
import atexit
import os
import shutil
import subprocess
import sys
import tempfile
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

from window import Failed, wait_for  # noqa: E402

# Hold others and are nothing themselves: whoever listens to them hears of what they hold.
LAYOUT = {Atspi.Role.FILLER, Atspi.Role.PANEL, Atspi.Role.VIEWPORT, Atspi.Role.SCROLL_PANE, Atspi.Role.SEPARATOR,
          Atspi.Role.SPLIT_PANE, Atspi.Role.LAYERED_PANE}


def in_own_session(script):
    """Runs the script once more on a message bus of its own, with the accessibility bus beside it.

    That one's socket lies in the folder of the session; in the user's own, two runs at once would share it."""
    if os.environ.get("KEV_TEST_BUS"):
        atexit.register(shutil.rmtree, os.environ["XDG_RUNTIME_DIR"], ignore_errors=True)
        return subprocess.Popen(["/usr/libexec/at-spi-bus-launcher", "--launch-immediately"],
                                stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    environment = dict(os.environ, KEV_TEST_BUS="1", QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", NO_AT_BRIDGE="1",
                       XDG_RUNTIME_DIR=tempfile.mkdtemp(prefix="kev-bus-"))
    os.execvpe("dbus-run-session", ["dbus-run-session", "--", sys.executable, script, *sys.argv[1:]], environment)


def application(name):
    desktop = Atspi.get_desktop(0)
    for index in range(desktop.get_child_count()):
        found = desktop.get_child_at_index(index)
        if found is not None and found.get_name() == name:
            return found
    return None


def children(node):
    return [child for child in (node.get_child_at_index(i) for i in range(node.get_child_count()))
            if child is not None]


def walk(node, path=""):
    """Every node below this one and it itself, each with the way that leads to it."""
    here = f"{path}/{node.get_role_name()} \"{node.get_name()}\""
    yield here, node
    for child in children(node):
        yield from walk(child, here)


def find(node, role, name):
    return next((found for _, found in walk(node) if found.get_role() == role and found.get_name() == name), None)


def rectangle(node):
    place = node.get_extents(Atspi.CoordType.SCREEN)
    return place.x, place.y, place.width, place.height


def has(node, state):
    return node.get_state_set().contains(state)


def fault(node):
    """What is wrong with a node for somebody who only hears of it; nothing where all is well."""
    role = node.get_role()
    if role in (Atspi.Role.INVALID, Atspi.Role.UNKNOWN):
        return "has no role"
    states = node.get_state_set()
    if not node.get_name().strip():
        # A label that is empty says nothing to anybody.
        is_empty = role in LAYOUT or role == Atspi.Role.LABEL
        return "has no name" if not is_empty or states.contains(Atspi.StateType.FOCUSABLE) else None
    if role in LAYOUT:
        return None
    if states.contains(Atspi.StateType.SHOWING) and states.contains(Atspi.StateType.VISIBLE):
        _, _, width, height = rectangle(node)
        if width <= 0 or height <= 0:
            return "has no place"
    return None


def faults(root):
    found, count = [], 0
    for path, node in walk(root):
        count += 1
        wrong = fault(node)
        if wrong:
            found.append(f"{path} {wrong}")
    return found, count
