#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <utility>
#include <vector>

/// Compares texts byte by byte.
struct ExactText {
    static constexpr uint64_t kIgnoredBits = 0;
    static bool equal(std::string_view a, std::string_view b) { return a == b; }
};

/// Compares PPD keywords without regard to case. They are ASCII (PPD 4.3, 2.2), and the locale is
/// never asked: in Turkish "PRINT" and "print" would differ.
struct FoldedText {
    /// The bit that tells the cases of a letter apart. Other bytes that differ in it collide
    /// merely.
    static constexpr uint64_t kIgnoredBits = 0x2020202020202020u;
    static constexpr char fold(char c) { return c >= 'A' && c <= 'Z' ? char(c + ('a' - 'A')) : c; }
    static bool equal(std::string_view a, std::string_view b) {
        if (a.size() != b.size())
            return false;
        if (std::memcmp(a.data(), b.data(), a.size()) == 0)
            return true;
        for (size_t i = 0; i < a.size(); ++i)
            if (fold(a[i]) != fold(b[i]))
                return false;
        return true;
    }
};

/// From texts to small values, found by open addressing, a few nanoseconds a question. Nothing is
/// ever taken out. The texts are borrowed and must outlive the index.
template <typename Value, typename Text = ExactText>
class FlatIndex {
public:
    /// @return the value, valid until the next insertion, or null
    const Value *find(std::string_view key) const {
        if (m_count == 0)
            return nullptr;
        const Slot &slot = m_slots[slotOf(key, hashOf(key))];
        return slot.used ? &slot.value : nullptr;
    }
    Value *find(std::string_view key) {
        return const_cast<Value *>(std::as_const(*this).find(key));
    }
    /// Puts the value in unless the key is there already.
    /// @return the value that is there now
    Value &insert(std::string_view key, const Value &value) {
        if (2 * (m_count + 1) > m_slots.size())
            grow();
        const size_t hash = hashOf(key);
        Slot &slot = m_slots[slotOf(key, hash)];
        if (!slot.used) {
            slot = {key, hash, value, true};
            ++m_count;
        }
        return slot.value;
    }

private:
    struct Slot {
        std::string_view key;
        size_t hash = 0;
        Value value{};
        bool used = false;
    };

    template <typename Word>
    static uint64_t load(const char *at) {
        Word word;
        std::memcpy(&word, at, sizeof word);
        return word;
    }
    /// Eight bytes at a time; the last ones may overlap those before.
    static size_t hashOf(std::string_view text) {
        const size_t size = text.size();
        const char *const end = text.data() + size;
        uint64_t h = size;
        const auto mix = [&h](uint64_t word) {
            h = (h ^ (word | Text::kIgnoredBits)) * 0x9E3779B97F4A7C15u;
            h ^= h >> 32;
        };
        for (const char *at = text.data(); end - at > 8; at += 8)
            mix(load<uint64_t>(at));
        if (size >= 8)
            mix(load<uint64_t>(end - 8));
        else if (size >= 4)
            mix(load<uint32_t>(end - size) | load<uint32_t>(end - 4) << 32);
        else if (size > 0)
            mix(load<uint8_t>(end - size) | load<uint8_t>(end - size + size / 2) << 8 |
                load<uint8_t>(end - 1) << 16);
        return h;
    }
    /// Where the key is, or the free slot where it belongs.
    size_t slotOf(std::string_view key, size_t hash) const {
        size_t i = hash & (m_slots.size() - 1);
        while (m_slots[i].used && (m_slots[i].hash != hash || !Text::equal(m_slots[i].key, key)))
            i = (i + 1) & (m_slots.size() - 1);
        return i;
    }
    void grow() {
        std::vector<Slot> old(std::max<size_t>(16, 2 * m_slots.size()));
        old.swap(m_slots);
        for (const Slot &slot : old)
            if (slot.used)
                m_slots[slotOf(slot.key, slot.hash)] = slot;
    }

    std::vector<Slot> m_slots; ///< a power of two, at most half used
    size_t m_count = 0;
};
