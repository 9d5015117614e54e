// What can go wrong on the way to paper. Each ends Print quietly: no box, no figure touched, and Next still reminds.

#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QTemporaryDir>
#include <csignal>
#include <map>

#include <sys/resource.h>

#include "support/screen_test.h"
#include "track/frmT1.h"

namespace {

/// A disk with room for so many bytes a file, for as long as this stands.
class NearlyFullDisk {
public:
    explicit NearlyFullDisk(rlim_t room) : m_signal(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit small{.rlim_cur = room, .rlim_max = m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
    }
    ~NearlyFullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_signal);
    }
    NearlyFullDisk(const NearlyFullDisk&) = delete;
    NearlyFullDisk& operator=(const NearlyFullDisk&) = delete;

private:
    rlimit m_before{};
    void (*m_signal)(int);
};

class PrintFailure : public ScreenTest {  // slow
protected:
    PrintFailure()
    {
        on<frmT1>();
        click("optBG");
        putRecords("TrGrid", {{"", "1", "1", "UP", "10", "25", "1.5", "", "", "12", "10", "3", "Machine Packed"}});
        click("cmdCopy");
        click("cmdCompute");
    }

    std::map<std::string, std::string> figures()
    {
        std::map<std::string, std::string> texts;
        const frmT1& form = chain.get<frmT1>();
        for (const auto* box : form.findChildren<QLineEdit*>())
            texts[box->objectName().toStdString()] += box->text().toStdString() + "|";
        for (const auto* box : form.findChildren<QComboBox*>())
            texts[box->objectName().toStdString()] += box->currentText().toStdString() + "|";
        return texts;
    }

    void expectQuietEnd(const std::string& path, int copies = 1)
    {
        const auto before = figures();
        EXPECT_EQ(before.at("txtTkm(0)"), "16.5|");  // 25 - 10 + 1.5
        dialogs.expectPrint({.firstPage = 1, .lastPage = 1, .copies = copies}, path);
        click("cmdPrint");  // a box would fail the test
        EXPECT_EQ(dialogs.open(), 0U) << path;
        EXPECT_EQ(chain.get<frmT1>().Printed, 0) << path;
        EXPECT_EQ(figures(), before) << path;
        EXPECT_TRUE(enabled("cmdPrint") && enabled("cmdNext")) << path;
    }

    std::string in(const std::string& name) const
    {
        return folder.filePath(QString::fromStdString(name)).toStdString();
    }

    QTemporaryDir folder;
};

TEST_F(PrintFailure, AFullDiskIsOneFromTheStart)
{
    expectQuietEnd("/dev/full");
}

TEST_F(PrintFailure, ADiskThatFillsOnTheWayIsOneToo)
{
    // A sheet is some 20,000 bytes with its fonts: each of these ends it somewhere else.
    for (const rlim_t room : {1, 100, 4'096, 10'000}) {
        const NearlyFullDisk disk(room);
        expectQuietEnd(in("print.pdf"));
    }
    dialogs.expectPrint({.firstPage = 1, .lastPage = 1, .copies = 1}, in("print.pdf"));
    click("cmdPrint");
    EXPECT_GT(QFile(QString::fromStdString(in("print.pdf"))).size(), 10'000) << "the largest room was not too small";
    EXPECT_EQ(chain.get<frmT1>().Printed, 1) << "Print can be repeated";
}

TEST_F(PrintFailure, AFileThatWasPrintedBeforeDoesNotPassForTheNewPrintOut)
{
    const std::string path = in("print.pdf");
    dialogs.expectPrint({.firstPage = 1, .lastPage = 1, .copies = 1}, path);
    click("cmdPrint");
    ASSERT_EQ(chain.get<frmT1>().Printed, 1);
    chain.get<frmT1>().Printed = 0;
    const NearlyFullDisk disk(4'096);
    expectQuietEnd(path);
}

TEST_F(PrintFailure, APlaceThatCannotBeWrittenIsOne)
{
    for (const std::string& path : {in("no-such-folder/print.pdf"), folder.path().toStdString(),
                                    std::string("/proc/x.pdf"), "/" + std::string(5'000, 'x')})
        expectQuietEnd(path);
}

TEST_F(PrintFailure, AMissingPrinterIsOne)
{
    expectQuietEnd("");  // no file either
}

TEST_F(PrintFailure, ManyCopiesOnAFullDiskEndAsQuietly)
{
    const NearlyFullDisk disk(10'000);
    expectQuietEnd(in("print.pdf"), 50);
}

}  // namespace
