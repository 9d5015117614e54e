// The program as the system starts it and ends it, from outside.

#include <QFile>
#include <QProcess>
#include <QTest>
#include <csignal>
#include <gtest/gtest.h>

#include "program/sandbox_home.h"

namespace {

class Program : public testing::Test {
protected:
    void start()
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const auto& [name, value] : house.environment())
            environment.insert(name, value);
        environment.insert("QT_QPA_PLATFORM", "offscreen");
        if (!session)
            environment.remove("XDG_RUNTIME_DIR");
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(house.work());
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(CREWMARK_PROGRAM);
        ASSERT_TRUE(process.waitForStarted());
        ASSERT_TRUE(QTest::qWaitFor([&] { return catches(SIGTERM); }, 20'000)) << "it does not catch signals";
    }

    /// Whether the running program has a handler of its own for the signal.
    bool catches(int signal) const
    {
        QFile status(QString("/proc/%1/status").arg(process.processId()));
        if (!status.open(QIODevice::ReadOnly))
            return false;
        for (const QByteArray& line : status.readAll().split('\n'))
            if (line.startsWith("SigCgt:"))
                return line.mid(7).trimmed().toULongLong(nullptr, 16) >> (signal - 1) & 1U;
        return false;
    }

    void expectEndBy(int signal)
    {
        kill(static_cast<pid_t>(process.processId()), signal);
        ASSERT_TRUE(process.waitForFinished(20'000)) << "it goes on after signal " << signal;
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit) << "signal " << signal << " killed it";
        EXPECT_EQ(process.exitCode(), 0);
    }

    ~Program() override
    {
        if (process.state() != QProcess::NotRunning) {
            process.kill();
            process.waitForFinished();
        }
    }

    SandboxHome house;
    bool session = true;  ///< a desktop's session that gives it a folder for sockets
    QProcess process;
};

TEST_F(Program, EndsWithStatusZeroBySignalsWhileNothingIsEntered)
{
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        start();
        expectEndBy(signal);
    }
}

TEST_F(Program, LeavesNothingBehind)
{
    start();
    expectEndBy(SIGTERM);
    EXPECT_EQ(house.contents(), "");
}

TEST_F(Program, LeavesNothingBehindWhereTheSessionGivesItNoFolderEither)
{
    session = false;
    start();
    EXPECT_NE(house.contents(), "") << "nothing was there to be cleared away";
    expectEndBy(SIGTERM);
    EXPECT_EQ(house.contents(), "");
}

}  // namespace
