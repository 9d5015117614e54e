"""Worked examples of the norms, and sums done by hand: what work_out.py itself is held against (--selftest).

The first half feeds single screens with figures small enough to follow. The second half takes figures of the sample
division and shows beside each the sum that an engineer would do on paper, in decimals; those sums were done by hand and
with bc, not with this program, so they prove the reading of the cells as well as the formulas.
"""

import work_out
from sheet import HERE, Grid, Screen, count_of, f32, picture, val, whole
from summary_sheet import Summary
from work_out import rates

checked = 0


def same(what, got, expected):
    global checked
    checked += 1
    if got != expected:
        raise SystemExit(f"{what}: {got!r}, not {expected!r}")


def numbers():
    for value, pattern, text in (
        (12.5,    "####.##",   "12.5"),
        (0.25,    "####.##",   ".25"),      # no leading zero
        (7,       "####.##",   "7."),       # always the point
        (0,       "####.##",   "."),
        (0,       "####",      ""),
        (1234,    "#####.##",  "1234."),
        (1.005,   "####.##",   "1.01"),     # a half, on the shortest decimal of the double
        (-0.001,  "####.##",   "."),        # what rounds to zero has no sign
        (-0.5,    "####",      "-1"),       # away from zero
        (2.5,     "####",      "3"),
        (-5,      "####",      "-5"),
        (1e22,    "####",      "1" + "0" * 22),
        (1.05,    "#.######",  "1.05"),
        (1,       "#.######",  "1."),
        (123456,  "#.######",  "123456."),  # more digits than places
    ):  # fmt: skip
        same(f"picture of {value} under {pattern}", picture(value, pattern), text)
    for text, value in (("", 0), ("Line", 0), ("  12.5 km", 12.5), ("759.", 759), (".06", 0.06), (".", 0), ("-3", -3),
                        ("1e3", 1000), ("1e", 1), ("1,5", 1)):  # fmt: skip
        same(f"value of '{text}'", val(text), value)
    for value, number in ((0.5, 0), (1.5, 2), (2.5, 2), (-1.5, -2)):
        same(f"whole number of {value}", whole(value), number)
    for text, limit, after in (("20", 16, (16, "16")), ("16", 16, (16, "16")), ("15", 12, (12, "12")), ("13", 12, (12, "12")),
                               ("10", 8, (8, "8")), ("12", 9, (9, "9")), ("7", 6, (6, "6")), ("", 12, (0, ""))):  # fmt: skip
        same(f"count '{text}', at most {limit}", count_of(text, limit), after)
    for text, after in (("20", "15"), ("15", "15"), ("1", "1"), ("0", ""), ("many", "")):
        same(f"'{text}' Sr SEs", work_out.frmStart("", 1, text)["txtT1(3)"], after)


# ---------------------------------------------------------------------------------------------------------- track


def segments(*rows):
    t1 = Screen("frmT1")
    t1.count, t1.lwr_total = len(rows), 0.0
    for i, row in enumerate(rows):
        t1[f"txtSS({i})"] = str(i + 1)
        for box, text in zip(("txtKmf", "txtKmt", "txtKm1", "txtTout", "txtLWR"), row):
            t1[f"{box}({i})"] = text
    return t1


def track():
    #                from  to   extra turnouts LWR
    t1 = segments(("10", "25", "1.5", "12", "3"), ("25", "10", "", "", "4"), ("8", "8", "", "", ""))
    same("refused rows", work_out.computeT1(t1), [1])  # 10 < 25; equal limits pass
    same("total km", t1["txtTkm(0)"], "16.5")  # 25 - 10 + 1.5
    same("equivalent length", t1["txtEqtkm(0)"], "17.7")  # + 12 x 0.1
    same("no length", (t1["txtTkm(2)"], t1["txtEqtkm(2)"]), (".", "."))
    same("refused row keeps its outputs", "txtTkm(1)" in t1.boxes, False)
    t1["txtKmt(1)"] = "40"
    same("corrected", work_out.computeT1(t1), [])
    same("LWR after a failed Compute", t1.lwr_total, 10.0)  # 3 + 3 + 4
    t1 = segments(("0", "5", "", "", "3"), ("5", "9", "", "", "4"))
    work_out.computeT1(t1)
    same("LWR", t1.lwr_total, 7.0)  # 3 + 4

    for boxes, expected in (
        #  km   shrink  t/o  unstable t/o  1-2   >2    eq    rain       A        B          C
        (("10",  "2",  "5",   "1",  "0",  "0",  "0",   "0",   "0"),  ("txtA", ".06")),      # (.2 x 2.5 + .1 x 1) / 10
        (("5",   "",   "",    "",   "",   "2",  "1.5", "0.4", ""),   ("txtB", ".07")),      # (.25 x 2 x .5 + .1) / 5
        (("5",   "",   "",    "",   "",   "2",  "0",   "0",   ""),   ("txtB", "-.1")),      # .25 x 2 x -1 / 5, not cut to 0
        (("1",   "",   "",    "",   "",   "",   "",    "",  "149.9"), ("txtC", ".")),
        (("1",   "",   "",    "",   "",   "",   "",    "",  "150"),  ("txtC", ".")),
        (("1",   "",   "",    "",   "",   "",   "",    "",  "225"),  ("txtC", ".1")),       # .2 x 75 / 150
        (("1",   "",   "",    "",   "",   "",   "",    "",  "299.9"), ("txtC", ".199867")),  # .2 x 149.9 / 150
        (("1",   "",   "",    "",   "",   "",   "",    "",  "300"),  ("txtC", ".2")),
        (("1",   "",   "",    "",   "",   "",   "",    "",  "400"),  ("txtC", ".2")),
        (("1",   "0",  "0",   "0",  "0",  "0",  "0",   "0", "0"),    ("txtABC", "1.")),
    ):  # fmt: skip
        names = ("txtEqtkm", "txtSoil1", "txtTout1", "txtSoil2", "txtTout2", "txtCur1", "txtcur2", "txtCur3", "txtRain")
        t2 = Screen("frmT2", **{f"{name}(0)": text for name, text in zip(names, boxes)})
        t2.count = 1
        work_out.computeT2(t2)
        same(f"augmentation of {boxes}", t2[f"{expected[0]}(0)"], expected[1])
    t2["txtEqtkm(0)"] = "."
    try:
        work_out.computeT2(t2)
        same("a segment without length", "worked out", "division by zero")
    except ZeroDivisionError:
        pass

    for gauge, suburban, method, boxes, t, r in (
        #                               km   GMT   factor  conc  t/o      T        R
        ("BG", True,  "Machine Packed",  ("5",  "10", "1.1",  "",   ""),   "759.",   "1990."),  # 138 x 1.1 x 5; 398 x 5
        ("BG", False, "Manually Packed", ("10", "0",  "1",    "4",  "10"), "2230.",  "1820."),  # 168 x 5 + 196 x 5
        ("BG", False, "Machine packed",  ("10", "0",  "1",    "4",  "10"), "800.",   "1730."),  # 159 x 5 + 187 x 5
        ("MG", True,  "Machine Packed",  ("1",  "10", "1",    "",   ""),   "295.6",  "128."),   # 160 + 135.6
        ("NG", False, "",                ("1",  ".5", "1",    "",   ""),   "180.",   "91."),    # 199, at most 180
        ("NG", False, "",                ("1",  ".4", "1",    "",   ""),   "180.",   "91."),    # 180.2
        ("NG", False, "",                ("1",  ".3", "1",    "",   ""),   "161.4",  "91."),    # 105 + 56.4
        ("bg", False, "",                ("5",  "10", "1.1",  "",   ""),   ".",      "."),
        (" BG", False, "",               ("5",  "10", "1.1",  "",   ""),   ".",      "."),
    ):  # fmt: skip
        names = ("txtEqtkm", "txtGmt", "txtABC", "txtConc1", "txtConc2")
        t4 = Screen("frmT4", **{f"{name}(0)": text for name, text in zip(names, boxes)}, **{"txtTmc(0)": method})
        t4.gauge, t4.suburban, t4.count = gauge, suburban, 1
        work_out.computeT4(t4)
        same(f"T and R, {gauge} {suburban} {method}", (t4["txtMan1(0)"], t4["txtMan2(0)"]), (t, r))
    same("no gauge, total", t4["txtMan3(16)"], ".")
    t4.count = 0
    work_out.computeT4(t4)
    same("no segments, total", t4["txtMan3(16)"], ".")
    same("rate just below the narrow gauge's limit", rates("NG", False, "", 0.3)[0], f32(161.4))


# ---------------------------------------------------------------------------------------------- yards, activities


def yards():
    t1 = Screen("frmT1", **{"txtT1(1)": "", "txtT1(4)": "1"})
    #                 ID  no.  station RYL  RYL  NRYL  t/o  t/o  t/o
    grid = Grid([[], ["1", "1", "Yard", "2", "1", "3", "10", "5", "0"]])
    #                           a = 2 + 1, b = 1 + .5, c = 3: b + 2c/3 = 3.5
    for gauge, text in (("BG", "1570.5"), ("MG", "798."), ("NG", "535.5")):  # 531 + 297 x 3.5; 228 x 3.5; 153 x 3.5
        t1["txtT1(3)"] = gauge
        same(f"yards, {gauge}", work_out.frmY(t1, grid)["txtYd4"], text)
    none = work_out.frmY(t1, Grid([[], ["1", "0"]]))
    same("no yards", (none["txtM1(12)"], none["txtYd4"]), (".", "."))


def activities():
    m1 = Screen("frmM1")
    m1.beats = m1.locations = 0
    work_out.computeM1(m1, 0.0)
    same("nothing to patrol", [m1[box] for box in ("txtman1", "txtMan2", "txtMan3", "txtMan4")], [""] * 4)

    def second(posts, crossings, beats, gangs, stores, first=0.0):
        m2 = Screen("frmM2", txtNLC=posts, txtKbeats=beats, txtNG=gangs, txtSL=stores)
        for k in range(3):
            m2[f"txtLCS({k})"], m2[f"txtLCN({k})"] = str(k + 1), crossings[k]
        work_out.computeM2(m2, first)
        return m2

    m2 = second("2", ("1", "", ""), "", "", "5")
    same("more posts than crossings", m2["txtman5"], "-223")  # 365 - 588
    same("five stores", (m2["txtSL"], m2["txtMan8"]), ("2", "2190"))  # 2 x 1095
    m2 = second("", ("", "", ""), "", "", "", 736.0)
    same("nothing to guard", [m2[box] for box in ("txtman5", "txtMan6", "txtMan7", "txtMan8")], [""] * 4)
    same("the first screen's total alone", m2["txtMan9"], "736")
    same("no total", second("", ("", "", ""), "", "", "")["txtMan9"], "")

    def lengths(texts):
        s1 = Screen("frmS1")
        for i in range(13):
            s1[f"txtTB({i})"], s1[f"txtND({i})"] = str(i % 4 + 1), texts.get(i, "")
        work_out.computeS1(s1)
        return s1

    s1 = lengths({0: "100", 1: "100", 4: "1", 12: "0.5"})
    same("tunnels", s1["txtman10"], "104")  # .348 x (100 + 2 x 100) = 104.4
    same("a metre of bridge", s1["txtMan11"], "")  # .319
    same("sharp curves", s1["txtMan13"], "147")  # 294 x .5

    def site(counts, texts):
        s2 = Screen("frmS2", txtTB3="")
        s2.formations, s2.gangs, s2.levels = counts
        for i in range(44):
            s2[f"txtND({i})"] = texts.get(i, "")
        work_out.computeS2(s2, [0.0] * 4)
        return s2

    s2 = site((0, 1, 0), {8: "2", 17: "8", 26: "300", 27: "330", 28: "360"})
    same("look-out men", s2["txtMan15"], "74")  # 294 x 2/8 = 73.5
    same("fog signals", s2["txtMan16"], "330")
    same("no water levels", s2["txtMan19"], "")
    same("water levels count in any section", site((0, 0, 1), {32: "3", 38: "122"})["txtMan20"], "366")
    try:
        site((0, 1, 0), {8: "2"})
        same("a gang without length", "worked out", "division by zero")
    except ZeroDivisionError:
        pass


def summary():
    def row(tr, m, s, key, sanctioned="", decasualised=""):
        table = Summary(work_out.frmStart("", 1, "1"))
        table.boxes.update({"txtTkm(0)": "", "txtTR(0)": tr, "txtM(0)": m, "txtS(0)": s, "txtKey(0)": key, "txtLR(0)": "",
                            "txtSS(0)": sanctioned, "txtSDC(0)": decasualised})  # fmt: skip
        table.compute(0)
        return table

    table = row("10000", "2000", "1000", "10", "40", "5")
    same("mandays", table["txtTMan(0)"], "13000.")
    same("strength", table["txtCS(0)"], "50")  # (13000 + .125 x 13010) / 294 = 49.75, and .9, whole part
    same("shortage", table["txtEx(0)"], "-5")  # 45 - 50
    same("nothing", row("", "", "", "")["txtCS(0)"], "")  # whole part of .9
    # 294 x 15.1 = 4439.4 = 1.125 x 3946.133333; 294 x 15.05 = 4424.7 = 1.125 x 3933.066667; so for 15.09
    for mandays, strength in (("3946.133333", "16"), ("3946.14", "16"), ("3933.066667", "15"), ("3943.52", "15")):
        same(f"strength of {mandays} mandays", row(mandays, "", "", "")["txtCS(0)"], strength)
    # (1854.8 + .125 x 1860.8) / 294 = 7.1; (1852.186667 + .125 x 1858.186667) / 294 = 2084.46 / 294 = 7.09
    for mandays, strength in (("1854.8", "8"), ("1852.186667", "7")):
        same(f"strength of {mandays} mandays, 6 keymen", row(mandays, "", "", "6")["txtCS(0)"], strength)

    same("at most 15 rows", Summary(Screen("frmStart", **{"txtT1(5)": "", "txtT1(2)": "", "txtT1(3)": "20"})).count, 15)
    table = Summary(work_out.frmStart("", 1, "2"))
    for r, posts in enumerate(("0.5", "1.5")):
        table.boxes.update({f"{column}({r})": "" for column in Summary.COLUMNS})
        table[f"txtSDC({r})"], table[f"txtTMan({r})"] = posts, "100"
    table["txtTMan(1)"] = "250.5"  # typed over
    table.grand_total()
    same("decasualised posts", table["txtSDC(15)"], "2")  # 0 + .5 is 0, 0 + 1.5 is 2
    same("typed figures are totalled", table["txtTMan(15)"], "350.5")
    same("a column of zeros", (table["txtTkm(15)"], table["txtKey(15)"]), (".", ""))


# ------------------------------------------------------------------------------------------------ the sample division

HAND = """
1-ambapur        frmT1      txtTkm(0)     37.7      248.9 - 212.4 + 1.2
1-ambapur        frmT1      txtEqtkm(0)   39.9      37.7 + 22 x .1
1-ambapur        frmT2      txtA(0)       .015038   (.2 x (2.4 + .3) + .1 x .6) / 39.9 = .0150376
1-ambapur        frmT2      txtB(0)       .016917   (.25 x 4.2 x .5 + .25 x .6) / 39.9 = .0169173
1-ambapur        frmT2      txtC(4)       .002667   .2 x (152 - 150) / 150
1-ambapur        frmT2      txtABC(4)     1.015167  1 + .0125 + 0 + .0026667
1-ambapur        frmT4      txtMan1(0)    7328.33   (80 + 2.3 x 42.6) x 1.031955 x 39.9 = 7328.3273
1-ambapur        frmT4      txtMan2(0)    7380.1    159 x 2.9 + 187 x 37
1-ambapur        frmT4      txtMan1(4)    2695.24   (223 + 8.24 x 6.5) x 1.015167 x 9.6 = 2695.2440
1-ambapur        frmT4      txtMan2(4)    1792.     168 x 3.2 + 196 x 6.4
1-ambapur        frmT4      txtMan3(16)   50464.38  7328.327 + 7380.1 + ... = 50464.386; as singles 14708.42773, 28938.73438, 37551.61328, 45977.14063, 50464.38281
1-ambapur        frmY       txtM1(12)     10.7      2.4 + 4.8 + 1.6 + 1.9
1-ambapur        frmY       txtYd4        8328.     177 x 16.4 + 297 x (7 + 2 x 16.9 / 3) = 2902.8 + 5425.2
1-ambapur        frmM1      txtHLWR       114.4     33.5 + 33.1 + 21.8 + 21.8 + 4.2
1-ambapur        frmM1      txtman1       3860      92 x 2 x 6 x 2 + 92 x 2 x 4 x 2 + 60 x 1 x 3 x 1 = 2208 + 1472 + 180
1-ambapur        frmM1      txtMan2       3432      114.4 x 30
1-ambapur        frmM1      txtMan3       1373      114.4 x 12 = 1372.8
1-ambapur        frmM1      txtMan4       549       92 x 3 + 61 x 3 + 45 x 2
1-ambapur        frmM2      txtman5       5962      365 x (3 + 8 + 15) - 294 x 12 = 9490 - 3528
1-ambapur        frmM2      txtMan9       19911     5962 + 994 + 2646 + 1095 + 3860 + 3432 + 1372.8 + 549 = 19910.8
1-ambapur        frmS1      txtman10      292       .348 x 2 x 420 = 292.32
1-ambapur        frmS1      txtMan11      448       .319 x (180.5 + 2 x 612) = 448.0355
1-ambapur        frmS1      txtMan13      397       294 x 1.35 = 396.9
1-ambapur        frmS2      txtMan15      189       294 x (1.4 / 6.5 + .8 / 6.2 + 2.1 / 7) = 189.4586
1-ambapur        frmS2      txtMan20      2966      159 + 189.4586 + 316 + 588 + 187 + 0 + 292.32 + 448.0355 + 389.12 + 396.9 = 2965.8341
1-ambapur        frmSummary txtTMan(0)    73341.38  50464.38 + 19911 + 2966
1-ambapur        frmSummary txtCS(0)      281       (73341.38 + .125 x 73364.38) / 294 = 280.6528
1-ambapur        frmSummary txtEx(0)      -17       18 + 246 - 281
2-eklahra        frmT1      txtEqtkm(2)   27.25     118.2 - 91.75 + 8 x .1
2-eklahra        frmT4      txtMan1(0)    18006.51  (223 + 8.24 x 12.4) x 1.100888 x 50.3 = 18006.5125
2-eklahra        frmM1      txtCLWR       35.5      9.6 + 0 + 25.9
2-eklahra        frmM2      txtMan8       2190      2 x 3 x 365
2-eklahra        frmS2      txtMan18                no security patrolling
2-eklahra        frmSummary txtTkm(1)     46.85     its SECOND segment: 91.75 - 46.3 + 1.4
3-jamunia        frmT2      txtC(2)       .134667   .2 x 101 / 150
3-jamunia        frmT4      txtMan1(0)    9805.41   (115 + 2.3 x 58.3) x 1.144329 x 34.4 = 9805.4073
3-jamunia        frmT4      txtMan2(0)    13691.2   398 x 34.4
3-jamunia        frmM2      txtman5       3103      365 x (2 + 21) - 294 x 18
3-jamunia        frmM2      txtMan8                 no store
3-jamunia        frmS2      txtMan18      448       (420 + 455 + 468) / 3 = 447.67
3-jamunia        frmS2      txtMan19      916       3 x 122 + 3 x 122 + 2 x 92
3-jamunia        frmS2      txtMan20      4900      916 + 447.6667 + 1470 + 61.3333 + 202.4217 + 54 + 361.92 + 676.28 + 460.8 + 249.9 = 4900.3217
4-mandar-hill    frmT4      txtMan1(0)    13338.91  (160 + 13.56 x 2.6) x 1.038222 x 65.8 = 13338.915124; with the single 1.03822196 it is 13338.914550
4-mandar-hill    frmT4      txtMan2(1)    5939.2    128 x 46.4
4-mandar-hill    frmY       txtYd4        2082.4    228 x (7 + 2 x 3.2 / 3) = 1596 + 486.4
4-mandar-hill    frmS2      txtMan15      62        294 x 2.2 / 10.5 = 61.6
4-mandar-hill    frmSummary txtTkm(3)               there is no fourth segment
5-parasnath-ghat frmT2      txtC(0)       .2        318 cm and more than 300
5-parasnath-ghat frmT4      txtMan1(0)    8576.1    180 x 1.31616 x 36.2 = 8576.0986; 105 + 188 x .42 = 183.96 is too much
5-parasnath-ghat frmT4      txtMan1(1)    5435.15   (105 + 188 x .3) x 1.408996 x 23.9 = 5435.1457
5-parasnath-ghat frmT4      txtMan1(2)    2210.62   (105 + 188 x .12) x 1.293284 x 13.4 = 2210.6155
5-parasnath-ghat frmY       txtYd4        453.9     153 x (2.5 + 2 x .7 / 3) = 382.5 + 71.4
5-parasnath-ghat frmS2      txtMan15      220       294 x (3.4 / 8.6 + 2.9 / 8.2) = 220.2082
5-parasnath-ghat frmSummary txtEx(4)                6 + 108 - 114
division         frmSummary txtTkm(15)    102.75    37.7 + 46.85 + 18.2 + 0 + 0
division         frmSummary txtTR(15)     241407.06 50464.38 + 59915.43 + 70986.99 + 37129.9 + 22910.36
division         frmSummary txtM(15)      62825.    19911 + 16493 + 14837 + 5968 + 5616
division         frmSummary txtS(15)      12768.    2966 + 2702 + 4900 + 998 + 1202
division         frmSummary txtTMan(15)   317000.06 241407.06 + 62825 + 12768
division         frmSummary txtCS(15)     1215.     281 + 303 + 348 + 169 + 114
division         frmSummary txtSDC(15)    74        18 + 24 + 14 + 12 + 6
division         frmSummary txtEx(15)     -25       -17 + 5 - 16 + 3 + 0
division-15      frmSummary txtTkm(15)    102.75    the rows beyond the fifth have no segment of their number
division-15      frmSummary txtTR(15)     724221.18 3 x 241407.06
division-15      frmSummary txtCS(15)     3645.     3 x 1215
"""


def sample_division():
    files = {path: text.splitlines() for path, text in work_out.outputs().items()}
    for line in HAND.strip().splitlines():
        file, screen, box, text = line[:17].strip(), line[17:28].strip(), line[28:42].strip(), line[42:52].strip()
        found = [kept.split("\t")[2] for kept in files[f"{file}.tsv"] if kept.startswith(f"{screen}\t{box}\t")]
        same(f"{file} {screen} {box}", found, [text])
    for path, lines in files.items():
        kept = (HERE / path).read_text(encoding="utf-8").splitlines()
        same(f"{path} as kept", kept, lines)


def run():
    for part in (numbers, track, yards, activities, summary, sample_division):
        part()
    print(f"{checked} comparisons, all the same")
