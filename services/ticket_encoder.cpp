#include "services/ticket_encoder.h"

#include <array>
#include <limits>

namespace {

constexpr int32_t kNullPointer = -1;
constexpr int32_t kBadLength = -2;
constexpr int32_t kTooSmall = -3;

constexpr char B64CHR[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

/// The 6-bit value of each 7-bit code, 255 outside the alphabet.
constexpr auto B64TBL = [] {
    std::array<unsigned char, 128> table{};
    table.fill(255);
    for (unsigned char i = 0; i < 64; ++i)
        table[static_cast<unsigned char>(B64CHR[i])] = i;
    return table;
}();

unsigned char sextet(unsigned char c) {
    return c < B64TBL.size() ? B64TBL[c] : 255;
}

bool isWhiteSpace(unsigned char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}

unsigned char maskByte(int32_t i) {
    return static_cast<unsigned char>(kVLTMask >> (8 * (i % 4)));
}

} // namespace

int32_t VLTEncrypt(const unsigned char *in, int32_t inLength, unsigned char *out,
                   int32_t *outLength, int32_t capacity) {
    if (!in || !out || !outLength)
        return kNullPointer;
    if (inLength < 1 || capacity < 1)
        return kBadLength;
    *outLength = 0;
    while (*outLength < inLength) {
        const int32_t start = *outLength;
        const int32_t size = inLength - start < 4 ? inLength - start : 4;
        if (capacity - start < size)
            return kTooSmall;
        for (int32_t i = start; i < start + size; ++i)
            out[i] = in[i] ^ maskByte(i);
        *outLength += size;
    }
    return 0;
}

int32_t VLTBinToB64(const unsigned char *in, int32_t inLength, unsigned char *out,
                    int32_t *outLength, int32_t capacity) {
    if (!in || !outLength || (capacity != 0 && !out))
        return kNullPointer;
    const int64_t needed = (inLength / 3 + int64_t(inLength % 3 != 0)) * 4;
    if (inLength < 1 || capacity < 0 || needed > std::numeric_limits<int32_t>::max())
        return kBadLength;
    *outLength = static_cast<int32_t>(needed);
    if (capacity < needed) // a capacity of 0 too
        return kTooSmall;
    for (int32_t i = 0; i < inLength; i += 3) {
        const int32_t rest = inLength - i;
        const uint32_t group = uint32_t(in[i]) << 16 | (rest > 1 ? uint32_t(in[i + 1]) << 8 : 0) |
                               (rest > 2 ? uint32_t(in[i + 2]) : 0);
        *out++ = B64CHR[group >> 18];
        *out++ = B64CHR[group >> 12 & 63];
        *out++ = rest > 1 ? B64CHR[group >> 6 & 63] : '=';
        *out++ = rest > 2 ? B64CHR[group & 63] : '=';
    }
    return 0;
}

int32_t VLTB64ToBin(const unsigned char *in, int32_t inLength, unsigned char *out,
                    int32_t *outLength, int32_t capacity) {
    if (!in || !outLength || (capacity != 0 && !out))
        return kNullPointer;
    if (inLength < 1 || capacity < 0 || inLength % 4 != 0)
        return kBadLength;
    int32_t pads = 0;
    while (pads < inLength && in[inLength - 1 - pads] == '=')
        ++pads;
    const int32_t needed = inLength / 4 * 3 - pads;
    if (capacity == 0 || capacity < needed) {
        *outLength = needed;
        return kTooSmall;
    }
    // Pads inside the input make more bytes than the size needed tells: each byte asks for room,
    // and those without it are only counted.
    int32_t made = 0;
    unsigned char former = 0;
    int place = 0;
    for (int32_t i = 0; i < inLength; ++i) {
        const unsigned char c = in[i];
        if (isWhiteSpace(c))
            continue;
        if (c == 0 || (c == '=' && place >= 2))
            break;
        const unsigned char value = sextet(c);
        if (place > 0) {
            const unsigned joined = unsigned(former) << 8 | unsigned(value) << 2;
            if (made < capacity)
                out[made] = static_cast<unsigned char>(joined >> (8 - 2 * place));
            ++made;
        }
        former = value;
        place = (place + 1) % 4;
    }
    *outLength = made;
    return made > capacity ? kTooSmall : 0;
}
