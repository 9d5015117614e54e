#pragma once
#include <QString>
#include <QStringList>

#include "samples.h"

/// Each of these starts whole processes and waits for them; std::runtime_error if one fails.
namespace jobs {

/// How long until the first window of the program is painted [ms], from before the process is made.
double start(const QString& program, const QStringList& arguments = {});

/// Runs the program and takes what it reports, each name under `prefix`.
void report(Samples& samples, const QString& prefix, const QString& program, const QStringList& arguments);

/// How long the program takes from start to end [s], and under "cpu " and the figure's name how much of it the
/// processor worked.
void run(Samples& samples, const QString& figure, const QString& program, const QStringList& arguments);

/// Google Benchmark's times of the pure functions [ns of the processor].
void figures(Samples& samples, const QString& program, bool brief);

/// One Sr SE's track by a headless spreadsheet: the sums, and one page of PDF, into the folder [s]; as run().
void spreadsheet(Samples& samples, const QString& soffice, const QString& folder);

/// What an installation puts on the disk [KiB].
double installedSize(const QString& build, const QString& folder);

}  // namespace jobs
