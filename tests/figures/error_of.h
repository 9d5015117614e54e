#pragma once
#include "figures/run_time_error.h"

#include <stdexcept>

/// The run-time error that the work ends with; work that ends well fails the test.
template <typename Work>
figures::RunTimeError errorOf(Work work)
{
    try {
        work();
    } catch (const figures::RunTimeError& error) {
        return error;
    }
    throw std::logic_error("the work ended without a run-time error");
}
