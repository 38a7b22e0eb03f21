# SPDX-License-Identifier: MIT
"""The quick panel over the page: where it stands on the screen, and clicks into it."""
from window import screen, wait_for, xdotool

BORDER = bytes((0xB8, 0xC4, 0xD3))
# From the corner of the panel.
VALUE, APPLY, FIELD_1, FIELD_2, FUNCTION_4 = (60, 45), (313, 45), (30, 86), (30, 100), (150, 128)


class PanelOverPage:
    def corner_of_panel(self):
        """Left, top, width of the panel on the screen; None where it is not shown."""
        width, height, pixels = screen()
        run = BORDER * 100
        for y in range(height - 40):
            row = y * width * 3
            at = pixels.find(run, row, row + width * 3)
            while at >= 0 and (at - row) % 3:
                at = pixels.find(run, at + 1, row + width * 3)
            if at < 0:
                continue
            x = (at - row) // 3
            if all(pixels[(y + k) * width * 3 + x * 3:][:3] == BORDER for k in range(30)):
                right = x
                while pixels[row + right * 3:][:3] == BORDER:
                    right += 1
                return x, y, right - x
        return None

    def panel(self):
        self.picture_settles()
        return wait_for("the quick panel", self.corner_of_panel)

    def panel_gone(self):
        self.picture_settles()
        wait_for("no quick panel", lambda: self.corner_of_panel() is None)

    def click_panel(self, place, repeat=1):
        left, top, _ = self.panel()
        xdotool("mousemove", left + place[0], top + place[1], "click", "--repeat", repeat, "--delay", 60, 1)
        self.pause()
