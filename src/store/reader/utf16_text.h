#pragma once
#include <string>

#include "store/reader/bytes.h"

namespace store {

/// Appends in UTF-8 what Access 2000 and later store as text: UTF-16, low byte first, or its compressed form. A half
/// character (a lone surrogate, an odd byte at the end) becomes U+FFFD.
void appendText(std::string& out, Bytes stored);

}  // namespace store
