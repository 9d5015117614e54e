#pragma once
#include <QJsonObject>
#include <QString>
#include <stdexcept>
#include <vector>

#include "division/act.h"

namespace division {

/// What was entered on one screen, in order.
struct KeptScreen {
    QString form;  ///< object name
    std::vector<Act> acts;
    bool operator==(const KeptScreen&) const = default;
};

/// The way of one Sr SE.
struct KeptWorking {
    QString name;
    QString dataFile;  ///< path, "" for none
    QString note;
    std::vector<KeptScreen> screens;  ///< in the order of the chain; a screen that is missing has not been worked yet
    bool operator==(const KeptWorking&) const = default;
};

/// A division as it was entered. Worked again through the same screens it gives the same figures.
struct KeptDivision {
    QString railway;
    QString division;
    int srSes = 0;                      ///< 0 to 15
    std::vector<KeptWorking> workings;  ///< by index, 15 at most
    std::vector<Act> totals;            ///< on the summary, behind the last Sr SE
    QJsonObject results;                ///< of the program that kept it; only to compare with
    bool operator==(const KeptDivision&) const = default;
};

/// The file cannot be read or is none of this kind. The message says where: "Sr SE 2, frmT1, act 4: ...".
struct KeptFileError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Reads the text of a kept file. Members that it does not know are ignored. Data files keep their paths as they stand.
KeptDivision parseKeptDivision(const QByteArray& json);

/// Reads a kept file of 4 MiB at most. A data file's path starts where the kept file lies unless it is absolute: it is
/// returned with that folder before it, as `path` gives it.
KeptDivision readKeptFile(const QString& path);

}  // namespace division
