#pragma once

#include <cstdint>

// A ticket value in a scrambled and printable form: a fixed mask, then Base64 (RFC 4648). Lengths
// and capacities are in bytes; no text is ended by a NUL. Results: 0 success, -1 a required pointer
// is null, -2 a length is out of range, -3 the output is too small. `out` may not overlap `in`,
// other than being the same in VLTEncrypt and VLTB64ToBin.

/// The mask, applied to little-endian 32-bit words.
inline constexpr uint32_t kVLTMask = 0x2C91D4A7;

/// Scrambles; a second run gives the input back.
/// @param outLength  receives the bytes written, also with -3, when the whole words that fit stand
int32_t VLTEncrypt(const unsigned char *in, int32_t inLength, unsigned char *out,
                   int32_t *outLength, int32_t capacity);
/// Encodes, with padding and without line breaks.
/// @param outLength  receives the characters made; with -3 the size needed
/// @param capacity   0 asks for the size needed, and `out` may then be null
int32_t VLTBinToB64(const unsigned char *in, int32_t inLength, unsigned char *out,
                    int32_t *outLength, int32_t capacity);
/// Decodes groups of four characters, with white space anywhere between them.
///
/// Ends at a zero byte, at "=" in the third or fourth place of a group, or with the input; the
/// whole bytes of a group begun are made. A character outside the alphabet counts as 255, so that
/// its bytes have no meaning.
/// @param inLength   a multiple of four
/// @param outLength  receives the bytes made; with -3 the size needed, which for an input of many
///                   "=" is below 0. Nothing is written past the capacity
/// @param capacity   0 asks for the size needed, and `out` may then be null
int32_t VLTB64ToBin(const unsigned char *in, int32_t inLength, unsigned char *out,
                    int32_t *outLength, int32_t capacity);
