#!/usr/bin/env python3
"""The figures of the sample division, worked out apart from the program, as an engineer would on paper.

    work_out.py             writes <sample>.tsv, division.tsv, division-15.tsv and worksheets/<sample>.txt beside this file
    work_out.py --check     works them out again and compares with the files that are there
    work_out.py --selftest  holds this calculator against worked examples and sums done by hand (worked_examples.py)

In: cells/<sample>.<table>.tsv, the cells of the data files as a grid shows them. Out: one line a box, "screen, object
name, text" parted by tabs, as the boxes stand after Compute (frmStart: after Proceed).

One function a screen, in the order of the screens: what it imports, then what its Compute does. A later screen takes
the TEXT of an earlier one, so what a picture rounds away is gone for good; README.md names the places.
"""

import sys

from sheet import HERE, MAN_YEAR, Grid, Screen, added, count_of, f32, picture, seven_digits, whole
from summary_sheet import Summary

#        file                 Sr SE                gauge  suburban
SAMPLES = (
    ("1-ambapur",         "Sr SE Ambapur",         "BG", False),
    ("2-eklahra",         "Sr SE Eklahra",         "BG", False),
    ("3-jamunia",         "Sr SE Jamunia",         "BG", True),
    ("4-mandar-hill",     "Sr SE Mandar Hill",     "MG", False),
    ("5-parasnath-ghat",  "Sr SE Parasnath Ghat",  "NG", False),
)  # fmt: skip
RAILWAY, DIVISION = "Sample Railway", "Sample Division"
SECTION, JURISDICTION = "Sample Section", "Km 0 to 100"

TURNOUT = 0.1  # km of track for one equivalent turnout


# ------------------------------------------------------------------------------------------------------ start, track


def frmStart(name, index, number_of_sr_ses):
    start = Screen("frmStart")
    start["txtT1(5)"] = RAILWAY
    start["txtT1(2)"] = DIVISION
    count, text = count_of(number_of_sr_ses, 15)
    start["txtT1(3)"] = text if count >= 1 else ""
    start["txtT1(0)"] = name
    start["txtT1(4)"] = str(index)
    return start


def frmT1(start, grid, gauge, suburban):
    t1 = Screen("frmT1")
    t1["txtT1(0)"] = SECTION
    t1["txtT1(1)"] = start["txtT1(0)"]
    t1["txtT1(2)"] = JURISDICTION
    t1["txtT1(3)"] = gauge  # by its option, or by the suburban box, which selects BG
    t1["txtT1(4)"] = start["txtT1(4)"]
    t1.suburban = suburban
    t1.lwr_total = 0.0

    # The gauge was chosen when there were no rows yet, so it forced no method; the count then forces "Machine Packed" on
    # the rows of a suburban section, and the copy writes the file's own method over that.
    t1.count, t1["txtNSeg"] = count_of(grid(1, 2), 16)
    columns = (("txtSS", 3), ("cboLn", 4), ("txtKmf", 5), ("txtKmt", 6), ("txtKm1", 7), ("txtConc1", 8), ("txtConc2", 9),
               ("txtTout", 10), ("txtGmt", 11), ("txtLWR", 12), ("cboMtc", 13))  # fmt: skip
    for i in range(t1.count):
        for box, column in columns:
            t1[f"{box}({i})"] = grid(i + 1, column)

    computeT1(t1)
    return t1


def computeT1(t1):
    """Length and equivalent length of each segment [km]; answers the rows whose limits stand the wrong way round."""
    refused = []
    for i in range(t1.count):
        float(t1[f"txtSS({i})"])  # the one strict reading: a segment number that is no number stops here
        km_from, km_to = t1.value(f"txtKmf({i})"), t1.value(f"txtKmt({i})")
        if km_to < km_from:
            refused.append(i)
            continue
        extra, turnouts = t1.value(f"txtKm1({i})"), t1.value(f"txtTout({i})")
        total = (km_to - km_from) + extra
        equivalent = turnouts * TURNOUT + total
        lwr = f32(t1.value(f"txtLWR({i})"))
        t1.lwr_total = f32(t1.lwr_total + lwr)  # never cleared by a further Compute
        t1[f"txtTkm({i})"] = picture(total, "####.##")
        t1[f"txtEqtkm({i})"] = picture(equivalent, "####.##")
        t1.note(f"segment {i + 1}: ({km_to!r} - {km_from!r}) + {extra!r} = {total!r} km;"
                f" {turnouts!r} x 0.1 + that = {equivalent!r} km; LWR so far {t1.lwr_total!r} km")  # fmt: skip
    return refused


def frmT2(t1, grid):
    t2 = Screen("frmT2")
    t2.copy(("txtT1(1)", "txtT1(4)"), t1)
    t2.count = t1.count
    columns = (("txtRain", 2), ("txtSoil1", 3), ("txtTout1", 4), ("txtSoil2", 5), ("txtTout2", 6), ("txtCur1", 7),
               ("txtcur2", 8), ("txtCur3", 9))  # fmt: skip
    for i in range(t2.count):
        t2.copy((f"txtSS({i})", f"txtEqtkm({i})"), t1)
        for box, column in columns:
            t2[f"{box}({i})"] = grid(i + 1, column)
    computeT2(t2)
    return t2


def computeT2(t2):
    """Augmentation for formation (A), alignment (B) and rainfall (C), pure numbers; the lengths are km, the rain cm."""
    for i in range(t2.count):
        k, soil1, soil2 = t2.value(f"txtEqtkm({i})"), t2.value(f"txtSoil1({i})"), t2.value(f"txtSoil2({i})")
        cur1, cur2 = t2.value(f"txtCur1({i})"), t2.value(f"txtcur2({i})")
        tout1, tout2, cur3, rain = (f32(t2.value(f"{box}({i})")) for box in ("txtTout1", "txtTout2", "txtCur3", "txtRain"))
        a = (0.2 * (soil1 + TURNOUT * tout1) + 0.1 * (soil2 + TURNOUT * tout2)) / k
        b = (0.25 * cur1 * (cur2 - 1) + 0.25 * cur3) / k
        if rain < 150:
            c = 0
        elif rain < 300:
            c = 0.2 * (rain - 150) / 150
        else:
            c = 0.2
        factor = ((1 + a) + b) + c
        for box, figure in (("txtA", a), ("txtB", b), ("txtC", c), ("txtABC", factor)):
            t2[f"{box}({i})"] = picture(figure, "#.######")
        t2.note(f"segment {i + 1}: length read back {k!r} km")
        t2.note(f"    A = (0.2 x ({soil1!r} + 0.1 x {tout1!r}) + 0.1 x ({soil2!r} + 0.1 x {tout2!r})) / {k!r} = {a!r}")
        t2.note(f"    B = (0.25 x {cur1!r} x ({cur2!r} - 1) + 0.25 x {cur3!r}) / {k!r} = {b!r}")
        t2.note(f"    C = {c!r} at {rain!r} cm; 1 + A + B + C = {factor!r}")


def frmT4(t1, t2):
    t4 = Screen("frmT4")
    t4.copy((f"txtT1({j})" for j in range(5)), t1)
    t4.copy(("txtNSeg",), t1)
    for i in range(t1.count):
        t4.copy((f"{box}({i})" for box in ("txtSS", "txtEqtkm", "txtGmt", "txtConc1", "txtConc2", "txtTout")), t1)
        t4[f"txtTmc({i})"] = t1[f"cboMtc({i})"]
        t4.copy((f"txtABC({i})",), t2)
    t4.gauge, t4.suburban, t4.count = t1["txtT1(3)"], t1.suburban, t1.count
    computeT4(t4)
    return t4


def rates(gauge, suburban, method, gmt):
    """Mandays per km and year: 'T' before the factor, 'R' off and on concrete sleepers."""
    if gauge == "MG":
        return 160 + 13.56 * gmt, 128, 128
    if gauge == "NG":
        return min(f32(105 + 188 * gmt), 180.0), 91, 91
    if suburban:
        return 115 + 2.3 * gmt, 398, 398
    if method == "Manually Packed":
        return 223 + 8.24 * gmt, 168, 196
    return 80 + 2.3 * gmt, 159, 187


def computeT4(t4):
    total = 0.0
    for i in range(t4.count):
        k, gmt = t4.value(f"txtEqtkm({i})"), t4.value(f"txtGmt({i})")
        factor = f32(t4.value(f"txtABC({i})"))
        concrete = t4.value(f"txtConc1({i})") + TURNOUT * t4.value(f"txtConc2({i})")  # km
        if t4.gauge not in ("BG", "MG", "NG"):
            t, r = 0.0, 0.0
        else:
            rate, off, on = rates(t4.gauge, t4.suburban, t4[f"txtTmc({i})"], gmt)
            t = k * f32(factor * rate) if t4.gauge == "NG" else rate * factor * k
            r = off * k if off == on else off * (k - concrete) + on * concrete
            t4.note(f"segment {i + 1}: read back {k!r} km, factor {factor!r}; {concrete!r} km on concrete sleepers")
            t4.note(f"    T = {k!r} x single({factor!r} x {rate!r}) = {t!r}" if t4.gauge == "NG" else
                    f"    T = {rate!r} x {factor!r} x {k!r} = {t!r}")  # fmt: skip
            t4.note(f"    R = {off} x {k!r} = {r!r}" if off == on else
                    f"    R = {off} x ({k!r} - {concrete!r}) + {on} x {concrete!r} = {r!r}")  # fmt: skip
        t4[f"txtMan1({i})"] = picture(t, "####.##")
        t4[f"txtMan2({i})"] = picture(r, "####.##")
        t4[f"txtMan3({i})"] = picture(t + r, "####.##")
        total = f32(total + (t + r))
        t4.note(f"    T + R = {t + r!r}; total so far {total!r}")
    t4["txtMan3(16)"] = picture(total, "######.##")


# ------------------------------------------------------------------------------------------------------------- yards

YARD_BOXES = ("txtM1", "txtM2", "TXTM3", "TXTM4", "txtM5", "txtM6")


def frmY(t1, grid):
    y = Screen("frmY")
    y.copy(("txtT1(1)", "txtT1(3)", "txtT1(4)"), t1)
    y.count, y["txtNYd"] = count_of(grid(1, 2), 12)
    for i in range(y.count):
        y[f"txtStn({i})"] = grid(i + 1, 3)
        for column, box in enumerate(YARD_BOXES, 4):
            y[f"{box}({i})"] = grid(i + 1, column)
    computeY(y)
    return y


def computeY(y):
    """Mandays of the yards; the first three columns are km, the others turnouts."""
    sums = [0.0] * 6
    for i in range(y.count):
        for column, box in enumerate(YARD_BOXES):
            sums[column] += y.value(f"{box}({i})")
        sums[5] = f32(sums[5])
    for box, total in zip(YARD_BOXES, sums):
        y[f"{box}(12)"] = picture(total, "####.##")
    a, b, c = (sums[j] + TURNOUT * sums[j + 3] for j in range(3))  # machine running, manual running, manual non-running
    manual = b + 2 * c / 3
    gauge = y["txtT1(3)"]
    mandays = f32(177 * a + 297 * manual if gauge == "BG" else 228 * manual if gauge == "MG" else 153 * manual)
    y["txtYd4"] = picture(mandays, "#####.##")
    y.note(f"a = {a!r}, b = {b!r}, c = {c!r} km; b + 2c/3 = {manual!r}; {gauge}: {mandays!r}")


# ------------------------------------------------------------------------------------------ miscellaneous activities


def frmM1(t1, grid):
    m1 = Screen("frmM1")
    m1.copy(("txtT1(0)", "txtT1(1)", "txtT1(2)"), t1)
    m1["txtHLWR"] = m1["txtCLWR"] = seven_digits(t1.lwr_total)
    m1.beats, m1["txtNB"] = count_of(grid(2, 2) or "0", 12)
    m1.locations, m1["txtVL"] = count_of(grid(8, 2) or "0", 12)
    for i in range(m1.beats):
        m1[f"txtTB({i})"] = str(i + 1)
        for box, row in (("txtND", 3), ("txtNS", 4), ("txtBL", 5), ("txtNM", 6)):
            m1[f"{box}({i})"] = grid(row, 3 + i)
    for i in range(m1.locations):
        m1[f"txtNVL({i})"] = str(i + 1)
        for box, row in (("txtDV", 9), ("txtDS", 10)):
            m1[f"{box}({i})"] = grid(row, 3 + i)
    computeM1(m1, t1.lwr_total)
    return m1


def computeM1(m1, lwr):
    patrolling = watching = 0.0
    for i in range(m1.beats):
        days, shifts, beats = m1.value(f"txtND({i})"), m1.value(f"txtNS({i})"), m1.value(f"txtBL({i})")
        men = whole(m1.value(f"txtNM({i})"))
        patrolling += days * shifts * beats * men
        m1.note(f"M.1 beat length {i + 1}: {days:g} x {shifts:g} x {beats:g} x {men}; so far {patrolling!r}")
    hot, cold = f32(lwr * 30), f32(lwr * 12)  # from the single itself, not from the text that shows it
    for i in range(m1.locations):
        watching = f32(watching + m1.value(f"txtDV({i})") * m1.value(f"txtDS({i})"))
    m1.total = f32(patrolling + hot + cold + watching)
    m1.note(f"M.2 = {lwr!r} x 30 = {hot!r}; M.3 = {lwr!r} x 12 = {cold!r}; M.4 = {watching!r}; sum {m1.total!r}")
    for box, mandays in (("txtman1", patrolling), ("txtMan2", hot), ("txtMan3", cold), ("txtMan4", watching)):
        m1[box] = picture(mandays, "####")


def frmM2(t1, m1, grid):
    m2 = Screen("frmM2")
    m2.copy(("txtT1(0)", "txtT1(1)", "txtT1(2)"), t1)
    m2["txtNLC"] = grid(2, 2)
    for k in range(3):
        m2[f"txtLCS({k})"] = str(k + 1)
        m2[f"txtLCN({k})"] = grid(3, 3 + k)
    m2["txtKbeats"] = grid(5, 2)
    m2["txtNG"] = grid(7, 2)
    m2["txtSL"] = grid(9, 2)
    computeM2(m2, m1.total)
    return m2


def computeM2(m2, m1_total):
    if m2.value("txtSL") > 2:
        m2["txtSL"] = "2"
    gates = added(m2.value(f"txtLCN({k})") * 365 * whole(m2.value(f"txtLCS({k})")) for k in range(3))
    gates -= MAN_YEAR * m2.value("txtNLC")
    keymen = 71 * m2.value("txtKbeats")
    water = MAN_YEAR * m2.value("txtNG")
    store = f32(m2.value("txtSL") * 3 * 365)
    m2.total = f32(gates + keymen + water + store + m1_total)
    m2.note(f"M.5 = {gates!r}; M.6 = {keymen!r}; M.7 = {water!r}; M.8 = {store!r}; with M.1 to M.4 {m2.total!r}")
    for box, mandays in (("txtman5", gates), ("txtMan6", keymen), ("txtMan7", water), ("txtMan8", store)):
        m2[box] = picture(mandays, "####")
    m2["txtMan9"] = picture(m2.total, "#####")


# ------------------------------------------------------------------------------------------ site-specific activities


def frmS1(t1, grid):
    s1 = Screen("frmS1")
    s1.copy(("txtT1(0)", "txtT1(1)", "txtT1(2)"), t1)
    for i in range(12):
        s1[f"txtTB({i})"] = str(i % 4 + 1)  # tracks
        s1[f"txtND({i})"] = grid(3 + 2 * (i // 4), 2 + i % 4)  # metres
    s1["txtND(12)"] = grid(9, 2)  # km of sharp curve
    computeS1(s1)
    return s1


def computeS1(s1):
    s1.results = []
    for rate, first in ((0.348, 0), (0.319, 4), (0.64, 8)):  # mandays per metre and track
        metres = added(s1.value(f"txtTB({i})") * f32(s1.value(f"txtND({i})")) for i in range(first, first + 4))
        s1.results.append(rate * metres)
        s1.note(f"{rate} x {metres!r} = {s1.results[-1]!r}")
    s1.results.append(f32(MAN_YEAR * f32(s1.value("txtND(12)"))))
    s1.note(f"S.4 = {s1.results[-1]!r}")
    for box, mandays in zip(("txtman10", "txtMan11", "txtMan12", "txtMan13"), s1.results):
        s1[box] = picture(mandays, "#####")


def frmS2(t1, s1, grid):
    s2 = Screen("frmS2")
    s2.copy(("txtT1(0)", "txtT1(1)", "txtT1(2)"), t1)
    s2.formations, s2["txtTB1"] = count_of(grid(2, 2), 8)
    s2.gangs, s2["txtTB2"] = count_of(grid(5, 2), 9)
    s2["txtTB3"] = grid(11, 2)
    s2.levels, s2["txtTB4"] = count_of(grid(15, 2), 6)
    for row, first, last in ((3, 0, 7), (6, 8, 16), (7, 17, 25), (9, 26, 28), (13, 29, 31), (16, 32, 37), (17, 38, 43)):
        for i in range(first, last + 1):
            s2[f"txtND({i})"] = grid(row, 3 + i - first)
    computeS2(s2, s1.results)
    return s2


def computeS2(s2, s1_results):
    figure = [f32(s2.value(f"txtND({i})")) for i in range(44)]
    formations = 0.6 * added(figure[: s2.formations])
    shares = [f32(figure[g] / figure[g + 9]) for g in range(8, 8 + s2.gangs)]  # a gang without length stops here
    lookout = MAN_YEAR * added(shares)
    fog = f32(f32(f32(figure[26] + figure[27]) + figure[28]) / 3)
    filth = MAN_YEAR * s2.value("txtTB3")
    security = f32(f32(f32(figure[29] + figure[30]) + figure[31]) / 3)
    levels = added(f32(figure[k] * figure[k + 6]) for k in range(32, 32 + s2.levels))
    first, second, third, fourth = s1_results
    s2.total = f32(levels + security + filth + fog + lookout + formations + first + second + third + fourth)
    s2.note(f"S.5 = {formations!r}; S.6 = 294 x the sum of {shares} = {lookout!r}; S.7 = {fog!r}; S.8 = {filth!r}")
    s2.note(f"S.9 = {security!r}; S.10 = {levels!r}; with S.1 to S.4 {s2.total!r}")
    results = (formations, lookout, fog, filth, security, levels, s2.total)
    for number, mandays in enumerate(results, 14):
        s2[f"txtMan{number}"] = picture(mandays, "####")


# -------------------------------------------------------------------------------------------------------- the outputs


def work_out_division(names, number):
    """All Sr SEs in order, the samples over and over; answers the summary and each Sr SE's other screens."""
    summary, runs = None, []
    for index in range(1, number + 1):
        sample, name, gauge, suburban = SAMPLES[(index - 1) % len(SAMPLES)]
        start = frmStart(names(name, index), index, str(number))
        grids = {table: Grid.read(sample, table) for table in ("TR", "CS", "YD", "M1", "M2", "S1", "S2")}
        t1 = frmT1(start, grids["TR"], gauge, suburban)
        t2 = frmT2(t1, grids["CS"])
        t4 = frmT4(t1, t2)
        y = frmY(t1, grids["YD"])
        m1 = frmM1(t1, grids["M1"])
        m2 = frmM2(t1, m1, grids["M2"])
        s1 = frmS1(t1, grids["S1"])
        s2 = frmS2(t1, s1, grids["S2"])
        summary = summary or Summary(start)
        summary.transfer(start, t1, t4, m2, s2, grids["S2"])
        summary.compute(summary.row)
        runs.append((start, t1, t2, t4, y, m1, m2, s1, s2))
    summary.grand_total()
    return summary, runs


def outputs():
    """Text of every file by its path below this folder."""
    files = {}
    summary, runs = work_out_division(lambda name, index: name, 5)
    for r, (sample, screens) in enumerate(zip((s[0] for s in SAMPLES), runs)):
        lines = [f"{screen.name}\t{box}\t{text}" for screen in screens for box, text in screen.boxes.items()]
        files[f"{sample}.tsv"] = lines + list(summary.lines([r]))
        steps = [line for screen in screens if screen.steps for line in (f"\n{screen.name}", *screen.steps)]
        files[f"worksheets/{sample}.txt"] = [f"{sample}: what the pictures have not rounded yet"] + steps
        files[f"worksheets/{sample}.txt"] += ["\nfrmSummary", summary.steps[r]]
    files["division.tsv"] = list(summary.lines((*range(5), 15)))
    fifteen, _ = work_out_division(lambda name, index: name if index <= 5 else f"{name} {index}", 15)
    files["division-15.tsv"] = list(fifteen.lines(range(16)))
    return {path: "\n".join(lines) + "\n" for path, lines in files.items()}


def main():
    if sys.argv[1:] == ["--selftest"]:
        import worked_examples

        worked_examples.run()
        return
    check = sys.argv[1:] == ["--check"]
    for path, text in outputs().items():
        if not check:
            (HERE / path).parent.mkdir(exist_ok=True)
            (HERE / path).write_text(text, encoding="utf-8", newline="\n")
        elif (HERE / path).read_text(encoding="utf-8") != text:
            raise SystemExit(f"{path} differs")
    print("figures: as they stand" if check else "figures: written")


if __name__ == "__main__":
    main()
