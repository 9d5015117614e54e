#pragma once
#include <QSize>
#include <array>

#include "division/steps.h"
#include "screens/flow/chain.h"

namespace monkey {

/// The places of the screens in their order.
enum Place : std::size_t { Start, T1, T2, T4, Y, M1, M2, S1, S2, Summary, Places };
static_assert(division::Steps.size() == Places);

/// What the desktop in memory makes of a window whose size it forgot: one that was closed while it was maximised, say.
inline constexpr QSize ForgottenSize(1, 1);

/// The screens that are loaded; nullptr for the others.
using Screens = std::array<flow::Screen*, Places>;

inline Screens loadedOf(const flow::Chain& chain)
{
    Screens screens{};
    for (std::size_t i = 0; i < Places; ++i)
        screens[i] = chain.find(division::Steps[i].form);
    return screens;
}

}  // namespace monkey
