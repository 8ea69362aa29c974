#include "services/system_version.h"

#include "platform/kernel_release.h"

#include <cstdio>
#include <cstdlib>

namespace {

constexpr uint32_t kUnread = 0xFFFFFFFF;
constexpr uint32_t kSystem10 = 0x1000;
constexpr uint32_t kMajorShift = 192; // release 10 is the system's second number 6

uint32_t versionOfRelease() {
    uint32_t version = kSystem10;
    const auto release = kernelRelease();
    if (!release)
        return version;
    const size_t point = release->find('.');
    const long major = std::strtol(release->substr(0, point).c_str(), nullptr, 10);
    if (major > 0)
        version += ((static_cast<uint32_t>(major) << 4) + kMajorShift) & 255;
    if (point == std::string::npos)
        return version;
    const long minor = std::strtol(release->c_str() + point + 1, nullptr, 10);
    if (minor > 0)
        version += minor & 15;
    return version;
}

uint32_t currentVersion() {
    static uint32_t osVersion = kUnread;
    static unsigned generation = 0;
    if (osVersion == kUnread || generation != kernelReleaseGeneration()) {
        generation = kernelReleaseGeneration();
        osVersion = versionOfRelease();
    }
    return osVersion;
}

} // namespace

int32_t Gestalt_ALT(uint32_t selector, int32_t *out) {
    const uint32_t v = currentVersion();
    uint32_t answer = 0;
    switch (selector) {
    case kSelectorSysv:
        answer = v;
        break;
    case kSelectorSys1:
        answer = ((v >> 12) & 15) * 10 + ((v >> 8) & 15);
        break;
    case kSelectorSys2:
        answer = (v >> 4) & 15;
        break;
    case kSelectorSys3:
        answer = v & 15;
        break;
    default:
        std::fprintf(stderr, "Gestalt_ALT : selector '%x' not supported.\n", selector);
        return -1;
    }
    if (!out)
        return -1;
    *out = static_cast<int32_t>(answer);
    return 0;
}

int32_t systemVersion() {
    return static_cast<int32_t>(currentVersion());
}
