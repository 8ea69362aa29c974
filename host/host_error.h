#pragma once

#include "platform/command_error.h"

namespace host {

using HostError = CommandError;

} // namespace host
