#pragma once
#include <QTest>
#include <QVBoxLayout>
#include <gtest/gtest.h>

#include "screens/controls/button.h"
#include "screens/controls/combo_box.h"
#include "screens/controls/control_array.h"
#include "screens/controls/row_sheet.h"
#include "screens/controls/text_box.h"

/// Three rows: from, to, method, computed, GMT; and a button behind them.
class EntryRows : public testing::Test {
protected:
    static constexpr int Count = 3;

    EntryRows()
    {
        auto* sheet = new controls::RowSheet("row", Count);
        sheet->textEntry(from, 8).textEntry(to, 8).choice(method, 16, {}, "").textResult(computed, 8).textEntry(gmt, 8);
        sheet->finish();
        sheet->showRows(Count);
        auto* down = new QVBoxLayout(&form);
        down->addWidget(sheet);
        down->addWidget(&compute);
        form.resize(500, 300);
        form.show();
        form.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&form));
        from(0).setFocus();
    }

    void press(Qt::Key key) { QTest::keyClick(form.focusWidget(), key); }
    std::string focus() { return form.focusWidget()->objectName().toStdString(); }

    std::string row(int i)
    {
        return (from(i).text() + "|" + to(i).text() + "|" + method(i).text() + "|" + computed(i).text() + "|" +
                gmt(i).text())
            .toStdString();
    }

    QWidget form;  // outlives the boxes that it is lent
    controls::ControlArray<controls::TextBox> from{"from", Count};
    controls::ControlArray<controls::TextBox> to{"to", Count};
    controls::ControlArray<controls::ComboBox> method{"method", Count};
    controls::ControlArray<controls::TextBox> computed{"computed", Count};
    controls::ControlArray<controls::TextBox> gmt{"gmt", Count};
    controls::Button compute{"compute", "&Compute"};
};
