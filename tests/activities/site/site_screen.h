#pragma once
#include <QScrollArea>
#include <QScrollBar>
#include <vector>

#include "activities/site/frmS1.h"
#include "activities/site/frmS2.h"
#include "start/frmStart.h"
#include "support/lock_tip.h"
#include "support/screen_test.h"
#include "track/frmT1.h"

/// frmS1 and frmS2 as Next shows them.
class SiteScreen : public ScreenTest {
protected:
    /// Under an Sr SE of this name, with the data file at `path`.
    template <class Form>
    Form& open(const std::string& path = "")
    {
        auto& start = chain.get<frmStart>();
        start.txtT1(0).setText("Sr SE Ambapur");
        start.txtT1(1).setText(QString::fromStdString(path));
        auto& t1 = chain.get<frmT1>();
        t1.txtT1(0).setText("Sample Section");
        t1.txtT1(2).setText("Km 0 to 100");
        t1.txtT1(3).setText("MG");
        return on<Form>();
    }

    /// Records in which every cell tells its own place: "3.02" in row 3, column 2.
    static std::vector<std::vector<std::string>> places(int records, int fields)
    {
        std::vector<std::vector<std::string>> table;
        for (int row = 1; row <= records; ++row) {
            table.emplace_back();
            for (int column = 1; column <= fields; ++column)
                table.back().push_back(std::to_string(row) + (column < 10 ? ".0" : ".") + std::to_string(column));
        }
        return table;
    }

    /// Of the screen at the size that a 1366x768 display leaves it.
    void expectNoScrolling(QWidget& form)
    {
        form.resize(flow::OpeningSize);
        for (int i = 0; i < 3; ++i)
            settle();
        const auto* rows = form.findChild<QScrollArea*>("rows");
        EXPECT_EQ(rows->verticalScrollBar()->maximum(), 0);
        EXPECT_EQ(rows->horizontalScrollBar()->maximum(), 0);
    }
};

/// frmS2.
class SecondSiteScreen : public SiteScreen {
protected:
    static constexpr const char* Title = "Data Entry for Site Specefic Activities 'S' (Continued)";

    /// S.5 to S.10, then the total.
    std::string results()
    {
        std::string all;
        for (int i = 14; i <= 20; ++i)
            all += (i > 14 ? "|" : "") + text("txtMan" + std::to_string(i));
        return all;
    }

    /// With the suburban box of the track screen ticked.
    frmS2& openSuburban(const std::string& path = "")
    {
        chain.get<frmT1>().chkSub.setChecked(true);
        return open<frmS2>(path);
    }
};
