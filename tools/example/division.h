#pragma once
#include "division/kept_file.h"

/// What is to be had of a division beside its summary.
struct Output {
    QString folder;  ///< for print-outs and pictures
    bool printOuts = true;
    bool guide = false;  ///< pictures of the first Sr SE's screens empty, filled and computed, and of nothing else
};

/// The same division with so many Sr SEs, 1 to 15. Those that there are come round; from the second round on their
/// names carry the index: "Sr SE Ambapur 6". Throws std::runtime_error for another number, or where there are none.
division::KeptDivision repeated(division::KeptDivision division, int srSes);

/// Works the division through the program's screens and prints its summary to the terminal. Throws std::runtime_error
/// where it cannot go on or a screen reports an error.
void workDivision(const division::KeptDivision& division, const Output& output);
