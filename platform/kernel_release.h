#pragma once

#include "platform/export.h"

#include <functional>
#include <optional>
#include <string>

/// The kernel release that the system version is worked out from, at most 15 bytes. "19.6.0" unless
/// a caller has set another, so that the branches for current systems run by default.
/// @return nothing when the release was set as unreadable
PDE_PLATFORM_EXPORT std::optional<std::string> kernelRelease();
/// Sets the release; nothing makes it unreadable. What was worked out from a former one is dropped.
PDE_PLATFORM_EXPORT void setKernelRelease(const std::optional<std::string> &release);
/// Counts the calls of setKernelRelease, for those who keep what they worked out.
PDE_PLATFORM_EXPORT unsigned kernelReleaseGeneration();
