#include "start/frmStart.h"

#include <QFileInfo>
#include <QGridLayout>
#include <algorithm>
#include <array>
#include <cmath>

#include "figures/conversions.h"
#include "figures/numeric_text.h"
#include "screens/controls/drawing.h"
#include "screens/controls/tool_tip.h"
#include "screens/flow/chain.h"

using controls::Caption;
using controls::TextBox;

namespace {

const QString EmptyAtStart(18, ' ');

const char* const Introduction =
    "An interactive program for the computation of manpower and the review of strength, by the norms of the "
    "PLKTM Committee's report.\n"
    "Go through the screens once for each Sr SE: fill them from the Sr SE's data file or by hand, compute, print, and "
    "go on. The last screen sums up the division.";

}  // namespace

frmStart::frmStart(flow::Chain& owner)
    : Screen(owner, "frmStart", "Calculations of Crewmark Based on PLKTN Commitees's Report")
{
    txtT1(0).setText(EmptyAtStart);
    txtT1(1).setText(EmptyAtStart);
    txtT1(4).setText("1");
    txtT1(1).setLocked(true);
    txtT1(4).setLocked(true);
    txtT1(3).setLimit(MaxSrSes);
    cmdProceed.setEnabled(false);
    cmdPrint.setToolTip(flow::LockTip);
    layOut();

    for (int i = 0; i < txtT1.size(); ++i)
        onChange(txtT1(i), &frmStart::txtT1_Change);
    txtT1_Change();
    onPress(cmdFile, &frmStart::cmdFile_Click);
    onPress(cmdProceed, &frmStart::cmdProceed_Click);
}

QWidget* frmStart::titles()
{
    auto* place = new QWidget;
    auto* down = new QVBoxLayout(place);
    down->setContentsMargins(0, 0, 0, 0);
    auto* introduction = new Caption(Introduction);
    introduction->setObjectName("lblTitle(0)");
    // The label once mirrored these cells of a spreadsheet; there is no such link on this platform.
    introduction->setProperty("LinkTopic", "Excel|D:\\QVK\\[MANPOWER.xls]INSTRUCTIONS");
    introduction->setProperty("LinkItem", "R4C1:R13C9");
    auto* title = new Caption("Calculations of Crewmark\nBased on PLKTM Committee's Report");
    title->setObjectName("lblTitle(1)");
    title->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    QFont serif("Times New Roman");
    serif.setPointSizeF(title->font().pointSizeF() * 1.75);
    serif.setBold(true);
    title->setFont(serif);
    down->addWidget(title);
    down->addWidget(introduction);
    return place;
}

void frmStart::layOut()
{
    addDate(form.headerLine());

    auto* content = new QWidget;
    auto* across = new QHBoxLayout(content);
    across->setSpacing(24);
    auto* image = new controls::Drawing("Image1", ":/image1.svg");
    image->setAccessibleName("A gang at work on the track");
    across->addWidget(image, 1);

    auto* down = new QVBoxLayout;
    down->setSpacing(12);
    across->addLayout(down, 1);
    down->addWidget(titles());

    auto* fields = new QGridLayout;
    fields->setVerticalSpacing(6);
    fields->setHorizontalSpacing(6);
    down->addLayout(fields);
    int row = 0;
    const auto field = [&](const QString& caption, TextBox& box, int characters) {
        auto* label = new Caption(caption);
        label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        label->setBuddy(&box);
        label->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Preferred);
        fields->addWidget(label, row, 0);
        box.setAccessibleName(label->spoken());
        if (characters > 0)
            box.setFixedWidth(controls::widthOf(box, characters));
        fields->addWidget(&box, row, 1, 1, 3);
        ++row;
    };
    field("Railway ?", txtT1(5), 36);
    field("Division ?", txtT1(2), 36);
    field("No of Sr SE's on the Division            (Not to excced 15)", txtT1(3), 5);
    field("Sr SE", txtT1(0), 36);
    auto* pathLabel = new Caption(" Data File of the Sr S.E.      ");
    pathLabel->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    fields->addWidget(pathLabel, row, 0);
    txtT1(1).setAccessibleName(pathLabel->spoken());
    fields->addWidget(&txtT1(1), row, 1);
    fields->addWidget(&cmdFile, row, 2);
    auto* index = new QHBoxLayout;
    index->setSpacing(6);
    index->setContentsMargins(12, 0, 0, 0);
    controls::addField(*index, "Index", txtT1(4), 4);
    fields->addLayout(index, row, 3);
    fields->setColumnStretch(1, 1);
    down->addStretch();

    form.addBelow(content);
    auto* updated = new Caption("Program updated on 31-03-2008");
    updated->setObjectName("lblUpdate");
    form.lineBelow().addWidget(updated);
    form.buttons({&cmdPrint, &cmdProceed});
}

bool frmStart::holdsFigures() const
{
    constexpr std::array entered = {0, 1, 2, 3, 5};
    return std::any_of(entered.begin(), entered.end(), [this](int i) { return !txtT1(i).text().trimmed().isEmpty(); });
}

void frmStart::cmdFile_Click()
{
    const QString path = chain.dialogs().openFile(*this, "File Open", "Access Files(*.mdb)|*.mdb", m_folder);
    if (!path.isEmpty())
        m_folder = QFileInfo(path).absolutePath();
    txtT1(1).setText(path);
    cmdProceed.setEnabled(true);
    cmdProceed.setFocus();
}

void frmStart::txtT1_Change()
{
    chain.setSrSe({.railway = txtT1(5).text(),
                   .division = txtT1(2).text(),
                   .index = txtT1(4).text(),
                   .name = txtT1(0).text(),
                   .dataFile = txtT1(1).text()});
    showDataFile();
    // Whichever box changed: the number of Sr SEs is kept from 1 to 15.
    const double read = figures::countUpTo(MaxSrSes + 1, txtT1(3).text().toStdString());
    SrSeCount = figures::toInt16(std::trunc(std::max(read, -1.0)), "the number of Sr SEs");
    if (SrSeCount < 1)
        controls::rewrite(txtT1(3), "");
    else if (SrSeCount > MaxSrSes)
        controls::rewrite(txtT1(3), QString::number(MaxSrSes));
}

void frmStart::showDataFile()
{
    const QString path = txtT1(1).text();
    const bool chosen = !path.trimmed().isEmpty();  // the box starts with blanks
    txtT1(1).setToolTip(chosen ? controls::plainTip(path) : QString());
    txtT1(1).end(false);  // of a long path the file's name is worth more than its first folders
    setDefaultButton(chosen ? &cmdProceed : &cmdFile);
}

void frmStart::cmdProceed_Click()
{
    SrSeName = txtT1(0).text();
    for (const int fact : {5, 3, 2})
        txtT1(fact).setLocked(true);
    SrSeIndex = valueOf(txtT1(4));
    chain.showNextAfter(*this);
}
