#pragma once
#include <QString>

/// How the example is to be worked.
struct Division {
    QString samples;  ///< folder of the data files
    QString output;   ///< folder for print-outs and pictures
    int srSes = 5;    ///< 1 to 15; from the sixth on the samples come round again
    bool printOuts = true;
    bool guide = false;  ///< pictures of the first Sr SE's screens empty, filled and computed, and of nothing else
};

/// Works the division and prints its summary to the terminal. Throws std::runtime_error where it cannot go on.
void workDivision(const Division& division);
