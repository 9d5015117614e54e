#pragma once
#include <QSize>
#include <array>

#include "activities/misc/frmM1.h"
#include "activities/misc/frmM2.h"
#include "activities/site/frmS1.h"
#include "activities/site/frmS2.h"
#include "screens/flow/chain.h"
#include "start/frmStart.h"
#include "summary/frmSummary.h"
#include "track/frmT1.h"
#include "track/frmT2.h"
#include "track/frmT4.h"
#include "yards/frmY.h"

namespace monkey {

/// The places of the screens in their order.
enum Place : std::size_t { Start, T1, T2, T4, Y, M1, M2, S1, S2, Summary, Places };

/// What the desktop in memory makes of a window whose size it forgot: one that was closed while it was maximised, say.
inline constexpr QSize ForgottenSize(1, 1);

/// The screens that are loaded; nullptr for the others.
using Screens = std::array<flow::Screen*, Places>;

inline Screens loadedOf(flow::Chain& chain)
{
    const auto ifLoaded = [&]<class Form>(Form*) -> flow::Screen* {
        return chain.isLoaded<Form>() ? &chain.get<Form>() : nullptr;
    };
    return {ifLoaded(static_cast<frmStart*>(nullptr)), ifLoaded(static_cast<frmT1*>(nullptr)),
            ifLoaded(static_cast<frmT2*>(nullptr)),    ifLoaded(static_cast<frmT4*>(nullptr)),
            ifLoaded(static_cast<frmY*>(nullptr)),     ifLoaded(static_cast<frmM1*>(nullptr)),
            ifLoaded(static_cast<frmM2*>(nullptr)),    ifLoaded(static_cast<frmS1*>(nullptr)),
            ifLoaded(static_cast<frmS2*>(nullptr)),    ifLoaded(static_cast<frmSummary*>(nullptr))};
}

}  // namespace monkey
