#include "screens/controls/caption.h"

#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

using controls::Caption;

namespace {

constexpr int Wide = 2000;

int lineHeight()
{
    const Caption one("GMT");
    return one.heightForWidth(Wide);
}

struct Heading {
    const char* name;
    const char* text;
    int lines;
    const char* spoken;
};

class CaptionLines : public testing::TestWithParam<Heading> {};

TEST_P(CaptionLines, BreakWhereThreeBlanksOrMoreStand)
{
    const Caption caption(GetParam().text);
    EXPECT_EQ(caption.text().toStdString(), GetParam().text);
    EXPECT_EQ(caption.spoken().toStdString(), GetParam().spoken);
    EXPECT_EQ(caption.accessibleName().toStdString(), GetParam().spoken);
    EXPECT_EQ(caption.heightForWidth(Wide), GetParam().lines * lineHeight());
    EXPECT_EQ(caption.sizeHint().height(), GetParam().lines * lineHeight());
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Texts, CaptionLines, testing::Values(
    //      name          text                                    lines  spoken
    Heading{"Plain",      "Km From",                               1,    "Km From"},
    Heading{"TwoBlanks",  " Line  dn/up",                          1,    "Line dn/up"},
    Heading{"Runs",       "  Extra      Kms      if  any",         3,    "Extra Kms if any"},
    Heading{"ThreeBlanks"," Method   of    Maintenance",           3,    "Method of Maintenance"},
    Heading{"AtTheEnds",  "     Date (mm-dd-yyyy)     ",           1,    "Date (mm-dd-yyyy)"}),
    [](const auto& tested) { return tested.param.name; });
// clang-format on

TEST(CaptionTest, WhatIsTooWideWrapsAtItsWords)
{
    const Caption caption("Length and no  of Eq.t/outs on conc Sleepers");
    const int narrow = caption.minimumSizeHint().width();
    EXPECT_EQ(caption.heightForWidth(caption.sizeHint().width()), lineHeight());
    EXPECT_GT(caption.heightForWidth(narrow), 3 * lineHeight());
    EXPECT_LT(narrow, caption.sizeHint().width() / 2);
    EXPECT_GE(narrow, caption.fontMetrics().horizontalAdvance("Eq.t/outs")) << "no word is cut";
}

TEST(CaptionTest, AHeadingOverColumnsShowsItsLinesCellByCell)
{
    Caption caption("Formation  Shrinkable         unstable      km    T/outs     Km    T/outs    ");
    caption.setLines({{"Formation"}, {"Shrinkable", "unstable"}, {"km", "T/outs", "Km", "T/outs"}});
    EXPECT_EQ(caption.text().toStdString(),
              "Formation  Shrinkable         unstable      km    T/outs     Km    T/outs    ");
    EXPECT_EQ(caption.heightForWidth(Wide), 3 * lineHeight());
    EXPECT_GE(caption.sizeHint().width(), 2 * caption.fontMetrics().horizontalAdvance("Shrinkable"));
}

TEST(CaptionTest, CellsArePaintedEachInItsPartOfTheWidth)
{
    Caption caption("A              C");
    caption.setAlignment(Qt::AlignHCenter | Qt::AlignBottom);
    caption.setLines({{"", "I", "", ""}});
    caption.resize(400, 40);
    QImage image(caption.size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    caption.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    int left = image.width();
    int right = -1;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qGray(image.pixel(x, y)) < 128) {
                left = std::min(left, x);
                right = std::max(right, x);
            }
    EXPECT_GE(left, 130);  // in the middle of 100 to 200
    EXPECT_LE(right, 170);
}

}  // namespace
