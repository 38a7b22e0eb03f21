# SPDX-License-Identifier: MIT
"""The control of the calls that fail, as a file that the program maps (fault_points.h)."""
import mmap
import struct

OPEN, WRITE, SYNC, NAME, CLOSE, REMOVE, FOLDER, TRUNCATE, MODE, LOCK, READ, MEMORY = (1 << bit for bit in range(12))
FILE_KINDS = MEMORY - 1
ONCE, ONWARD, KILL, SHORT = range(4)

# Armed, Kinds, How, Error, At, Calls, Failed, Last, Folder, Least
LAYOUT = struct.Struct("=IIIiqqqI256s4xQ")
FAILED = struct.Struct("=q")
FAILED_AT = struct.calcsize("=IIIiqq")


class Faults:
    def __init__(self, path):
        self.path = path
        path.write_bytes(bytes(LAYOUT.size))
        with open(path, "r+b") as file:
            self.control = mmap.mmap(file.fileno(), LAYOUT.size)

    def arm(self, kinds, how, error, at, folder="", least=0):
        """The call of this number among those on files whose path begins with `folder`; for memory, among the
        pieces of at least so many bytes."""
        values = LAYOUT.pack(1, kinds, how, error, at, 0, 0, 0, folder.encode(), least)
        # Armed comes last.
        self.control[4:] = values[4:]
        self.control[:4] = values[:4]

    def disarm(self):
        self.control[:4] = bytes(4)

    def failed(self):
        return FAILED.unpack_from(self.control, FAILED_AT)[0]
