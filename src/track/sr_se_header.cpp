#include "track/sr_se_header.h"

#include "screens/controls/form_layout.h"
#include "track/frmT1.h"

namespace track {

namespace {
constexpr int SrSeCharacters = 30;
constexpr int NameCharacters = 24;
constexpr int Gauge = 3;  // the element of the track screen's header
}  // namespace

void addHeader(QBoxLayout& line, const frmT1& t1, controls::ControlArray<controls::TextBox>& txtT1)
{
    controls::addField(line, "Section-", txtT1(0), NameCharacters);
    controls::addField(line, "Sr S.E. with index-", txtT1(1), SrSeCharacters);
    controls::addField(line, "Jurisdiction -", txtT1(2), NameCharacters);
    for (int i = 0; i < txtT1.size(); ++i) {
        txtT1(i).setText(t1.txtT1(i).text());
        txtT1(i).setLocked(true);
    }
    line.addWidget(new controls::Caption("Gauge"));
    line.addWidget(new controls::Caption(t1.txtT1(Gauge).text()));
}

}  // namespace track
