#include "services/ticket_encoder.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using namespace std::string_literals;
using Coder = int32_t(const unsigned char *, int32_t, unsigned char *, int32_t *, int32_t);
using Outcome = std::tuple<int32_t, int32_t, std::string>; ///< status, length told, bytes written

/// Runs a coder on exact copies, so that a sanitizer sees each byte too many.
Outcome run(Coder *coder, const std::string &in, int32_t capacity) {
    const std::vector<unsigned char> input(in.begin(), in.end());
    std::vector<unsigned char> output(capacity + 4, '#');
    int32_t length = 99;
    const int32_t status = coder(input.data(), input.size(), output.data(), &length, capacity);
    EXPECT_EQ(std::string(output.end() - 4, output.end()), "####") << "written past the capacity";
    const int32_t made = status == -2 ? 0 : std::clamp(length, 0, capacity);
    return {status, length, std::string(output.begin(), output.begin() + made)};
}

TEST(TicketEncoder, TakesWhateverComes) {
    const std::string mask = "\xA7\xD4\x91\x2C\xA7\xD4\x91";
    const std::tuple<Coder *, std::string, int32_t, Outcome> rows[] = {
        {VLTB64ToBin, "====", 0, {-3, -1, ""}},   // the walk over the pads stops at the start
        {VLTB64ToBin, "====", 4, {0, 1, "\xFF"}}, // neither of the first two is in the alphabet
        {VLTB64ToBin, "AAAA====", 2, {-3, 4, "\0\0"s}}, // more bytes than the size tells
        {VLTB64ToBin, "QUJD", 2, {-3, 3, "##"}},
        {VLTB64ToBin, " Q\nU\tJD ", 8, {0, 3, "ABC"}},
        {VLTB64ToBin, "QQ==QUJD", 8, {0, 1, "A"}},
        {VLTB64ToBin, "\xC3\xA9QQ", 8, {0, 3, "\xFF\xF4\x10"}}, // above the 7-bit codes
        {VLTB64ToBin, "QUJDQ", 8, {-2, 99, ""}},
        {VLTBinToB64, std::string(190, 'x'), 255, {-3, 256, std::string(255, '#')}},
        {VLTEncrypt, mask, 7, {0, 7, std::string(7, '\0')}},
        {VLTEncrypt, std::string(7, '\0'), 6, {-3, 4, mask.substr(0, 4)}},
    };
    for (const auto &[coder, in, capacity, outcome] : rows)
        EXPECT_EQ(run(coder, in, capacity), outcome) << testing::PrintToString(in);
    const std::pair<std::string, std::string> vectors[] = {
        {"f", "Zg=="}, {"fo", "Zm8="}, {"foob", "Zm9vYg=="}, {"\xFB\xFF\xFE", "+//+"}};
    for (const auto &[plain, encoded] : vectors) {
        const int32_t size = encoded.size();
        EXPECT_EQ(run(VLTBinToB64, plain, size), Outcome(0, size, encoded));
        EXPECT_EQ(run(VLTB64ToBin, encoded, plain.size()), Outcome(0, plain.size(), plain));
    }
}

TEST(TicketEncoder, RefusesWhatItCannotUse) {
    unsigned char byte = 'A';
    int32_t length = 99;
    for (Coder *coder : {VLTEncrypt, VLTBinToB64, VLTB64ToBin}) {
        EXPECT_EQ(coder(nullptr, 4, &byte, &length, 4), -1);
        EXPECT_EQ(coder(&byte, 4, &byte, nullptr, 4), -1);
        EXPECT_EQ(coder(&byte, 0, &byte, &length, 4), -2);
        EXPECT_EQ(coder(&byte, 4, &byte, &length, -1), -2);
    }
    EXPECT_EQ(VLTBinToB64(&byte, INT32_MAX, &byte, &length, INT32_MAX), -2);
    EXPECT_EQ(length, 99);
}

} // namespace
