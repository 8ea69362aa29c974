#pragma once

#include <QByteArray>

#include <array>
#include <cstdint>
#include <cstring>

/// One of a control's two blocks: a signed 32-bit word, or a text of up to 255 bytes and a zero.
/// Both shapes share the bytes, as in a union; every block begins as zero.
class CtrlDataBlk {
public:
    static constexpr uint32_t kWordSize = 4;
    static constexpr uint32_t kTextSize = 256;

    /// @param size  kWordSize or kTextSize
    explicit CtrlDataBlk(uint32_t size) : m_size(size <= kTextSize ? size : kTextSize) {}

    uint32_t size() const { return m_size; }
    int32_t word() const {
        int32_t value;
        std::memcpy(&value, m_bytes.data(), sizeof value);
        return value;
    }
    void setWord(int32_t value) { std::memcpy(m_bytes.data(), &value, sizeof value); }
    /// The text up to its zero byte.
    const char *text() const { return m_bytes.data(); }
    void clear() { m_bytes.fill(0); }
    /// Copies bytes to the block's start, as many as fit; what a text block had behind them goes.
    void copyFrom(const void *bytes, uint32_t length) {
        const bool text = m_size > kWordSize;
        const uint32_t room = text ? m_size - 1 : m_size;
        if (text)
            clear();
        std::memcpy(m_bytes.data(), bytes, length < room ? length : room);
    }
    const char *bytes() const { return m_bytes.data(); }

private:
    std::array<char, kTextSize> m_bytes{};
    uint32_t m_size;
};
