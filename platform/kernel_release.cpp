#include "platform/kernel_release.h"

namespace {

constexpr std::size_t kLongestRelease = 15;

std::optional<std::string> current = "19.6.0";
unsigned generation = 0;

} // namespace

std::optional<std::string> kernelRelease() {
    return current;
}

void setKernelRelease(const std::optional<std::string> &release) {
    current = release ? std::optional(release->substr(0, kLongestRelease)) : std::nullopt;
    ++generation;
}

unsigned kernelReleaseGeneration() {
    return generation;
}
