#pragma once
#include "figures/figure.h"

#include <string>

/// A box that a figure is read from: "GMT" of "segment 2". `control` is its object name, `name` where none is given.
figures::SourcePtr box(const std::string& name, const std::string& of = {}, const std::string& control = {});

/// A figure read from such a box.
figures::Figure typed(double value, const std::string& name, const std::string& of = {},
                      const std::string& control = {});

/// Expects that the line in figures, worked out anew, gives the figure to the last bit, and so does that of each named
/// step that it is made of.
void expectReworks(const figures::Figure& figure);
