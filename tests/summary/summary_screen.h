#pragma once
#include <QEvent>
#include <span>
#include <string>
#include <vector>

#include "activities/misc/frmM2.h"
#include "activities/site/frmS2.h"
#include "start/frmStart.h"
#include "summary/frmSummary.h"
#include "support/screen_test.h"
#include "track/frmT4.h"

/// frmSummary, behind screens that hold what a test wants them to.
class SummaryScreen : public ScreenTest {  // slow
protected:
    static constexpr const char* Title = "Manpower Requirement Summary for the Division";
    static constexpr const char* Columns[] = {"txtSN",  "txtSSE", "txtTkm", "txtTR", "txtM",   "txtS", "txtTMan",
                                              "txtKey", "txtLR",  "txtCS",  "txtSS", "txtSDC", "txtEx"};

    /// In a division of so many Sr SEs.
    frmSummary& open(const std::string& number)
    {
        auto& start = chain.get<frmStart>();
        start.txtT1(5).setText("Sample Railway");
        start.txtT1(2).setText("Sample Division");
        start.txtT1(3).setText(QString::fromStdString(number));
        start.txtT1(0).setText("Sr SE Ambapur");
        return on<frmSummary>();
    }

    static std::string cell(const std::string& column, int row) { return column + "(" + std::to_string(row) + ")"; }

    /// Row `row` of the table from the index to the excess, "a|b|...".
    std::string row(int row)
    {
        std::string all = text(cell(Columns[0], row));
        for (const char* column : std::span(Columns).subspan(1))
            all += "|" + text(cell(column, row));
        return all;
    }

    void typeInto(const std::string& column, int row, const std::string& typed) { type(cell(column, row), typed); }

    /// The establishment figures in the last data screen's table: mates and keymen, leave reserve, sanctioned
    /// strength, decasualised posts.
    void establish(const std::vector<std::string>& figures)
    {
        std::vector<std::vector<std::string>> records(2, std::vector<std::string>(21, "-"));
        for (std::size_t i = 0; i < figures.size(); ++i)
            records[1][17 + i] = figures[i];
        on<frmS2>();
        putRecords("GridS2", records);
        on<frmSummary>();
    }

    /// What Transfer takes for the Sr SE of this index: mandays of 'T'+'R', 'M' and 'S', and the establishment figures.
    void work(const std::string& index, const std::vector<std::string>& mandays,
              const std::vector<std::string>& establishment)
    {
        chain.get<frmStart>().txtT1(4).setText(QString::fromStdString(index));
        chain.get<frmT4>().txtMan3(16).setText(QString::fromStdString(mandays[0]));
        chain.get<frmM2>().txtMan9.setText(QString::fromStdString(mandays[1]));
        chain.get<frmS2>().txtMan20.setText(QString::fromStdString(mandays[2]));
        establish(establishment);
    }

    /// Shows all screens and writes the name of each into `departed` when it is taken off.
    void watchDepartures()
    {
        for (flow::Screen* screen : onAll())
            screen->installEventFilter(&m_watcher);
    }

    void transferAndComputeLast()
    {
        click("cmdTransfer");
        dialogs.expectMessage("Calculations for all Sr SSE's are over", "Now Total up the figures");
        click("cmdCompute");
    }

    std::string departed;

private:
    class Watcher : public QObject {
    public:
        explicit Watcher(std::string& departed) : m_departed(departed) {}

    protected:
        bool eventFilter(QObject* screen, QEvent* event) override
        {
            if (event->type() == QEvent::Hide)
                m_departed += screen->objectName().toStdString() + " ";
            return false;
        }

    private:
        std::string& m_departed;
    };

    Watcher m_watcher{departed};
};
