#pragma once
#include <QLabel>
#include <QTableView>

#include "track/track_screen.h"

/// frmT1 filled from its table.
class TrackImport : public TrackScreen {
protected:
    /// Row i as the table "TR" has it: number, line, from, to, extra, concrete (length, turnouts), turnouts, GMT, LWR,
    /// method.
    std::string record(int i)
    {
        std::string all;
        for (const char* array : {"txtSS", "cboLn", "txtKmf", "txtKmt", "txtKm1", "txtConc1", "txtConc2", "txtTout",
                                  "txtGmt", "txtLWR", "cboMtc"})
            all += (all.empty() ? "" : "|") + text(array + ("(" + std::to_string(i) + ")"));
        return all;
    }

    /// An untouched row.
    static std::string preset(int i) { return std::to_string(i + 1) + "|Line|||||||||Method of Maintenance"; }

    /// What stands in the grid's place, or beside its title.
    bool tells(const std::string& part)
    {
        for (const QLabel* label : find("TrGrid").parentWidget()->findChildren<QLabel*>())
            if (label->isVisible() && label->text().contains(QString::fromStdString(part)))
                return true;
        return false;
    }

    void import()
    {
        if (!enabled("cmdCopy"))
            click("optBG");
        click("cmdCopy");
    }
};

// The first three records of the made-up files, over and over with the segment's number counted on.
inline constexpr const char* Up = "|UP|10|25|1.5|12.3|4|12|23.7|3|Machine Packed";
inline constexpr const char* Down = "|DN|10|25|0.3|12.3|4|12|0.3|4|Machine Packed";
inline constexpr const char* Single = "|SL|25|40.7|0|0|0|6|0.1|0|Manually Packed";

inline std::string madeUp(int i)
{
    return std::to_string(i + 1) + (i % 3 == 0 ? Up : i % 3 == 1 ? Down : Single);
}
