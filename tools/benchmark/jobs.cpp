#include "jobs.h"

#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <ctime>
#include <stdexcept>

#include <sys/resource.h>

namespace jobs {

namespace {

constexpr int LongestMs = 120'000;

double now()  // [ms]
{
    timespec time{};
    clock_gettime(CLOCK_MONOTONIC, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) * 1e-6;
}

// Of the processes that have ended, and theirs [s].
double workedByChildren()
{
    rusage used{};
    getrusage(RUSAGE_CHILDREN, &used);
    const auto seconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
    };
    return seconds(used.ru_utime) + seconds(used.ru_stime);
}

QByteArray outputOf(QProcess& process, const QString& program, const QStringList& arguments)
{
    process.start(program, arguments, QIODevice::ReadOnly);
    const bool ended = process.waitForFinished(LongestMs);
    if (!ended || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        throw std::runtime_error((program + " " + arguments.join(' ') + " failed\n").toStdString() +
                                 process.readAllStandardError().toStdString());
    return process.readAllStandardOutput();
}

QByteArray outputOf(const QString& program, const QStringList& arguments)
{
    QProcess process;
    return outputOf(process, program, arguments);
}

}  // namespace

double start(const QString& program, const QStringList& arguments)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_QPA_GENERIC_PLUGINS", "firstpaint");
    environment.insert("QT_PLUGIN_PATH", CREWMARK_BUILD "/bench-plugins");
    process.setProcessEnvironment(environment);
    const double before = now();
    return outputOf(process, program, arguments).trimmed().toDouble() * 1e-6 - before;
}

void report(Samples& samples, const QString& prefix, const QString& program, const QStringList& arguments)
{
    for (const QByteArray& line : outputOf(program, arguments).split('\n'))
        if (const QList<QByteArray> words = line.split('\t'); words.size() == 2)
            samples.add(prefix + QString::fromUtf8(words[0]), words[1].toDouble());
}

void run(Samples& samples, const QString& figure, const QString& program, const QStringList& arguments)
{
    const double before = now();
    const double workedBefore = workedByChildren();
    outputOf(program, arguments);
    samples.add(figure, (now() - before) * 1e-3);
    samples.add("cpu " + figure, workedByChildren() - workedBefore);
}

void figures(Samples& samples, const QString& program, bool brief)
{
    // name,iterations,real_time,cpu_time,time_unit,...
    const QStringList arguments = {"--benchmark_format=csv",
                                   brief ? "--benchmark_min_time=0.001" : "--benchmark_min_time=0.1"};
    for (const QByteArray& line : outputOf(program, arguments).split('\n'))
        if (const QList<QByteArray> cells = line.split(','); cells.size() > 4 && cells[4] == "ns")
            samples.add(QString::fromUtf8(cells[0]).remove('"'), cells[3].toDouble());
}

void spreadsheet(Samples& samples, const QString& soffice, const QString& folder)
{
    const QString sheet = folder + "/track.csv";
    if (QFile file(sheet); file.open(QIODevice::WriteOnly)) {
        // From, to, extra km, turnouts; total km and equivalent length, 1 km for 10 turnouts.
        for (int row = 1; row <= 16; ++row)
            file.write(
                QString("%1,%2,0.5,3,=B%3-A%3+C%3,=E%3+D%3*0.1\n").arg(row * 10).arg(row * 10 + 9).arg(row).toUtf8());
        file.write(",,,,=SUM(E1:E16),=SUM(F1:F16)\n");
    }
    QFile::remove(folder + "/track.pdf");
    run(samples, "spreadsheet", soffice,
        {"-env:UserInstallation=file://" + folder + "/profile", "--headless", "--convert-to", "pdf", "--outdir", folder,
         sheet});
    if (!QFile::exists(folder + "/track.pdf"))
        throw std::runtime_error("the spreadsheet made no page");
}

double installedSize(const QString& build, const QString& folder)
{
    outputOf("cmake", {"--install", build, "--strip", "--prefix", folder});
    qint64 bytes = 0;
    QDirIterator all(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (all.hasNext()) {
        all.next();
        bytes += all.fileInfo().size();
    }
    return static_cast<double>(bytes) / 1024.0;
}

}  // namespace jobs
