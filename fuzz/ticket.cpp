// The ticket encoder: what is encoded decodes to the same, and no input writes past its output.

#include "fuzz.h"

#include "services/ticket_encoder.h"

#include <memory>

namespace {

using Bytes = std::vector<unsigned char>;

/// A buffer of just this size, whose neighbours are guarded.
std::unique_ptr<unsigned char[]> exactly(const Bytes &bytes) {
    std::unique_ptr<unsigned char[]> copy(new unsigned char[bytes.size()]);
    std::copy(bytes.begin(), bytes.end(), copy.get());
    return copy;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    FuzzedDataProvider input(data, size);
    const int32_t room = input.ConsumeIntegralInRange<int32_t>(0, 400);
    const Bytes bytes = input.ConsumeRemainingBytes<unsigned char>();
    const int32_t length = int32_t(bytes.size());
    const auto in = exactly(bytes);

    // Any text, decoded into any room.
    std::unique_ptr<unsigned char[]> out(new unsigned char[size_t(room)]);
    int32_t made = 0;
    VLTB64ToBin(in.get(), length, out.get(), &made, room);
    VLTEncrypt(in.get(), length, out.get(), &made, room);
    VLTBinToB64(in.get(), length, out.get(), &made, room);

    // There and back.
    int32_t needed = 0;
    if (length == 0 || VLTBinToB64(in.get(), length, nullptr, &needed, 0) != 0)
        return 0;
    Bytes text(size_t(needed), 0);
    REQUIRE(VLTBinToB64(in.get(), length, text.data(), &needed, needed) == 0);
    Bytes back(bytes.size() + 3, 0);
    int32_t decoded = 0;
    REQUIRE(VLTB64ToBin(text.data(), needed, back.data(), &decoded, int32_t(back.size())) == 0);
    back.resize(size_t(decoded));
    REQUIRE(back == bytes);

    Bytes masked(bytes.size(), 0), plain(bytes.size(), 0);
    int32_t first = 0, second = 0;
    if (VLTEncrypt(in.get(), length, masked.data(), &first, length) == 0) {
        REQUIRE(VLTEncrypt(masked.data(), first, plain.data(), &second, length) == 0);
        REQUIRE(plain == bytes);
    }
    return 0;
}
