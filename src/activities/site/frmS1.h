#pragma once
#include <array>

#include "activities/site/site_norms.h"
#include "screens/controls/section.h"
#include "screens/flow/data_screen.h"

class frmStart;
class frmT1;

/// The site-specific activities S.1 to S.4 of one Sr SE: tunnels, bridge substructures, long girders, sharp curves.
class frmS1 : public flow::ImportScreen {
public:
    static constexpr int Kinds = 3;                     ///< of structures: S.1, S.2, S.3
    static constexpr int TrackCounts = 4;               ///< each kind with one to four tracks
    static constexpr int Curves = Kinds * TrackCounts;  ///< the element of txtND that is S.4's

    frmS1(flow::Chain& chain, const frmStart& start, const frmT1& t1);

    // What later screens read.
    /// S.1 to S.4 as computed, 0 until then, S.5 to S.10 0; read by frmS2.
    site::SiteMandays mandays;

    /// 0 section, 1 Sr SE, 2 jurisdiction.
    controls::ControlArray<controls::TextBox> txtT1{"txtT1", 3};

    /// Number of tracks, fixed, and length [m] of the structures that carry so many: four elements for each kind.
    controls::ControlArray<controls::TextBox> txtTB{"txtTB", Curves};
    /// Element 12 is the length of sharp curves [km].
    controls::ControlArray<controls::TextBox> txtND{"txtND", Curves + 1};

    controls::TextBox txtman10{"txtman10"};  ///< S.1
    controls::TextBox txtMan11{"txtMan11"};  ///< S.2
    controls::TextBox txtMan12{"txtMan12"};  ///< S.3
    controls::TextBox txtMan13{"txtMan13"};  ///< S.4

    controls::Button cmdData{"cmdData", "&Data from File"};
    controls::Button cmdCompute{"cmdCompute", "&Compute"};

    QWidget* firstBox() override { return &txtND(0); }

private:
    void cmdData_Click();
    void cmdCompute_Click();

    QWidget* boxOf(const figures::RunTimeError& error) override { return &txtND(error.row()); }

    void layOut(const frmT1& t1);
    controls::Section* structures(int kind, const QString& heading, const QString& lengthCaption,
                                  controls::TextBox& result);
    controls::Section* sharpCurves();
    float lengthOf(int i) const;

    // What every Compute adds to, since the screen was loaded.
    std::array<double, Kinds> m_trackMetres{};  ///< [m of track]
};
