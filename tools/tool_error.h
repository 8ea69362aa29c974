#pragma once

#include "platform/command_error.h"

namespace cdf {

/// One line on standard error, and exit code 2.
using ToolError = CommandError;

/// Ends a command that a signal asked to stop, so that it leaves no temporary file.
struct Stopped {
    int signal;
};

} // namespace cdf
