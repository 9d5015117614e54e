#pragma once
#include <string_view>

#include "store/data_file.h"
#include "store/refusal.h"

namespace store {

/// Reads the reader's output, of which nothing is trusted: any bytes give an open table or a reason.
Reading parseReaderOutput(std::string_view bytes, const Asked& asked);

/// No table, and the reason in plain words.
Reading failedReading(Refusal refusal, const Asked& asked);

}  // namespace store
