#pragma once

#include <cstdint>

inline constexpr uint32_t kSelectorSysv = 0x73797376; ///< "sysv", the version: 0x10F6 is 10.15.6
inline constexpr uint32_t kSelectorSys1 = 0x73797331; ///< "sys1", its first number, 10
inline constexpr uint32_t kSelectorSys2 = 0x73797332; ///< "sys2", its second number
inline constexpr uint32_t kSelectorSys3 = 0x73797333; ///< "sys3", its third number

/// Tells the system version, worked out from the kernel release: 10.x is 0x106x, 19.6 is 0x10F6.
///
/// The release is read at the first call and again only after setKernelRelease; an unreadable one
/// gives 0x1000. Each number keeps its low four bits.
/// @param out  receives the value that the selector asks for
/// @return 0; -1 for a null `out`; -1 with a line on standard error for any other selector, `out`
///         left alone
int32_t Gestalt_ALT(uint32_t selector, int32_t *out);

/// The "sysv" version, for comparisons with the constants below.
int32_t systemVersion();
/// From this version on, what older systems keep in preferences stands in the print settings.
inline constexpr int32_t kSystemVersion1070 = 0x1070;
/// From this version on, the system itself clears the partner of a radio button.
inline constexpr int32_t kSystemVersion1080 = 0x1080;
