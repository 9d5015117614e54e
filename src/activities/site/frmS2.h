#pragma once
#include <array>

#include "screens/controls/section.h"
#include "screens/flow/data_screen.h"

class frmS1;
class frmStart;
class frmT1;

/// The site-specific activities S.5 to S.10 of one Sr SE, and the total of all that are site-specific.
class frmS2 : public flow::ImportScreen {
public:
    static constexpr int Values = 44;  ///< elements of txtND

    frmS2(flow::Chain& chain, const frmStart& start, const frmT1& t1, const frmS1& s1);

    // What later screens read.
    controls::TextBox txtMan20{"txtMan20"};  ///< all of 'S'; read by frmSummary
    /// The data file's table. frmSummary reads row 2: column 18 mates and keymen, 19 leave reserve, 20 sanctioned
    /// strength, 21 decasualised posts.
    const controls::DataGrid& GridS2 = grid;

    /// 0 section, 1 Sr SE, 2 jurisdiction.
    controls::ControlArray<controls::TextBox> txtT1{"txtT1", 3};

    controls::TextBox txtTB1{"txtTB1"};  ///< S.5 locations
    controls::TextBox txtTB2{"txtTB2"};  ///< S.6 gangs
    controls::TextBox txtTB3{"txtTB3"};  ///< S.8 gangs
    controls::TextBox txtTB4{"txtTB4"};  ///< S.10 locations

    /// | elements | activity | each                                  |
    /// |----------|----------|---------------------------------------|
    /// |  0 -  7  | S.5      | length of a location [m]              |
    /// |  8 - 16  | S.6      | poor visibility in a gang [km]        |
    /// | 17 - 25  | S.6      | length of that gang [km]              |
    /// | 26 - 28  | S.7      | mandays used in a past year           |
    /// | 29 - 31  | S.9      | mandays used in a past year           |
    /// | 32 - 37  | S.10     | shifts at a location                  |
    /// | 38 - 43  | S.10     | days at that location                 |
    controls::ControlArray<controls::TextBox> txtND{"txtND", Values};

    controls::TextBox txtMan14{"txtMan14"};  ///< S.5
    controls::TextBox txtMan15{"txtMan15"};  ///< S.6
    controls::TextBox txtMan16{"txtMan16"};  ///< S.7
    controls::TextBox txtMan17{"txtMan17"};  ///< S.8
    controls::TextBox txtMan18{"txtMan18"};  ///< S.9
    controls::TextBox txtMan19{"txtMan19"};  ///< S.10

    controls::Button cmdData{"cmdData", "&Data from File"};
    controls::Button cmdCompute{"cmdCompute", "&Compute"};

    /// S.1 to S.10 [manday/year], a single; 0 until computed.
    float TotalMandays = 0.0F;

    QWidget* firstBox() override { return &txtTB1; }

private:
    void txtTB1_Change();
    void txtTB2_Change();
    void txtTB4_Change();
    void cmdData_Click();
    void cmdCompute_Click();

    QWidget* boxOf(const figures::RunTimeError& error) override { return &txtND(m_firstInWork + error.row()); }

    void layOut(const frmT1& t1);
    controls::Section* badFormations();
    controls::Section* lookOut();
    controls::Section* filthRemoval();
    /// S.7, S.9.
    controls::Section* pastYears(const QString& heading, const QString& caption, int first, controls::TextBox& result);
    controls::Section* waterLevels(bool suburban);
    std::array<float, Values> readValues();

    const frmS1& m_s1;
    int m_locations = 0;       // S.5, 8 at most
    int m_gangs = 0;           // S.6, 9 at most
    int m_waterLocations = 0;  // S.10, 6 at most
    int m_firstInWork = 0;     // the element of txtND from which a failing step of Compute counts its rows
};
