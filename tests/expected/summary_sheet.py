"""The division summary: one row a Sr SE, its strength, and the grand total."""

import math

from sheet import MAN_YEAR, Screen, f32, picture, whole


class Summary(Screen):
    """frmSummary: the one screen that lives through all the Sr SEs."""

    COLUMNS = ("txtSN", "txtSSE", "txtTkm", "txtTR", "txtM", "txtS", "txtTMan", "txtKey", "txtLR", "txtCS", "txtSS",
               "txtSDC", "txtEx")  # fmt: skip

    def __init__(self, start):
        super().__init__("frmSummary")
        self["txtRly(0)"] = start["txtT1(5)"]
        self["txtRly(1)"] = start["txtT1(2)"]
        self["txtSSN"] = start["txtT1(3)"]
        self.count = min(int(self.value("txtSSN")), 15)

    def transfer(self, start, t1, t4, m2, s2, s2_grid):
        self.row = r = int(start.value("txtT1(4)")) - 1
        self[f"txtSSE({r})"] = t1["txtT1(1)"]
        self[f"txtSN({r})"] = t1["txtT1(4)"]
        self[f"txtTkm({r})"] = t1.boxes.get(f"txtTkm({r})", "")  # of the SEGMENT of that number; empty beyond the last
        self[f"txtTR({r})"] = t4["txtMan3(16)"]
        self[f"txtM({r})"] = m2["txtMan9"]
        self[f"txtS({r})"] = s2["txtMan20"]
        self[f"txtKey({r})"] = s2_grid(2, 18)
        self[f"txtLR({r})"] = s2_grid(2, 19)
        self[f"txtSS({r})"] = s2_grid(2, 20)
        self[f"txtSDC({r})"] = s2_grid(2, 21)

    def compute(self, r):
        mandays = self.value(f"txtTR({r})") + self.value(f"txtM({r})") + self.value(f"txtS({r})")
        men = f32((mandays + 0.125 * (mandays + self.value(f"txtKey({r})"))) / MAN_YEAR)
        strength = f32(math.floor(f32(men + 0.9)))  # a single as well: 7.1 men are 8
        excess = (self.value(f"txtSDC({r})") + self.value(f"txtSS({r})")) - strength
        self[f"txtTMan({r})"] = picture(mandays, "#####.##")
        self[f"txtCS({r})"] = picture(strength, "####")
        self[f"txtEx({r})"] = picture(excess, "####")
        self.note(f"row {r}: {mandays!r} mandays; {men!r} men, so {strength:g}; excess {excess:g}")

    def grand_total(self):
        for column, pattern in (("txtTkm", "#####.##"), ("txtTR", "#####.##"), ("txtM", "#####.##"), ("txtS", "#####.##"),
                                ("txtTMan", "#####.##"), ("txtCS", "#####.##"), ("txtKey", "#####"), ("txtLR", "#####"),
                                ("txtSS", "#####"), ("txtSDC", "#####"), ("txtEx", "#####")):  # fmt: skip
            total = 0
            for i in range(self.count):
                total += self.value(f"{column}({i})")
                if column == "txtCS":
                    total = f32(total)
                if column == "txtSDC":
                    total = whole(total)
            self[f"{column}(15)"] = picture(total, pattern)
        self["txtSN(15)"] = "Total"

    def lines(self, rows):
        yield from (f"frmSummary\t{box}\t{self[box]}" for box in ("txtRly(0)", "txtRly(1)", "txtSSN"))
        boxes = (f"{column}({r})" for r in rows for column in self.COLUMNS)
        yield from (f"frmSummary\t{box}\t{self[box]}" for box in boxes if box in self.boxes)
