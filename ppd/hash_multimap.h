#pragma once

#include "ppd/flat_index.h"

#include <algorithm>
#include <compare>
#include <cstdint>
#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

/// A choice that forbids another one, by its place in the parsed PPD.
struct x_constraints {
    uint16_t groupIndex = 0;  ///< among the PPD's top-level groups
    uint16_t optionIndex = 0; ///< among the group's options
    uint16_t choiceIndex = 0; ///< among the option's choices

    auto operator<=>(const x_constraints &) const = default;
};

/// h = h * 5 + byte, over the bytes as signed characters up to the first NUL.
struct constraintHash {
    size_t operator()(std::string_view key) const;
};

/// A chained hash multimap from "option:choice" to the choices that forbid it, which keeps every
/// repeat.
///
/// The layout that a walk shows is this. Bucket counts are primes, each about twice the one before;
/// a key's bucket is constraintHash modulo the count. Entries of one key stand together in their
/// chain: an entry goes directly behind the first of its key, or to the chain's head when its key
/// is new. An insertion that would make more entries than buckets first takes the next prime and
/// moves the nodes bucket by bucket, chain by chain, each to the head of its new chain, so that the
/// order within a chain turns round.
///
/// A PPD line without choices stands for the product of two options' choices, and a thousand such
/// lines for many millions of entries. Therefore no node exists: what is kept is a log of the
/// insertions, one record for a whole product, and for each key its distinct values. Counts follow
/// by arithmetic, and a walk plays the log again, one key at a time. The entries of one key are in
/// memory while it is walked, no others.
///
/// Not safe for use by two threads while one of them inserts.
class hash_multimap {
public:
    enum class KeyList : uint32_t {};   ///< names a list of keys of this table
    enum class ValueList : uint32_t {}; ///< names a list of values of this table
    using Visitor = std::function<void(std::string_view key, x_constraints value)>;

    /// @param n  the buckets asked for; the first prime not below it is taken
    explicit hash_multimap(size_t n = 100);
    hash_multimap(const hash_multimap &) = delete;
    hash_multimap &operator=(const hash_multimap &) = delete;

    void insert(std::string_view key, x_constraints value) { insert(keyList(key), value); }
    /// Makes room for the records of so many insertions.
    void reserve(size_t insertions) { m_log.reserve(m_log.size() + insertions); }
    /// Inserts one entry for each key of the list, in order.
    void insert(KeyList keys, x_constraints value);
    /// Inserts every pair: for each value in order, one entry for each key in order. Takes the same
    /// time and memory for lists of any length.
    void insert(KeyList keys, ValueList values);

    /// The list that holds just this key; the same at each call until the table is cleared.
    KeyList keyList(std::string_view key);
    /// Makes a list of keys for insert(); a key may stand in it twice. Valid until clear().
    KeyList keyList(const std::vector<std::string> &keys);
    /// Makes a list of values for insert(). Valid until clear().
    ValueList valueList(std::vector<x_constraints> values);

    /// Entries, each repeat counted.
    uint64_t size() const { return m_size; }
    uint64_t bucket_count() const;
    /// Drops all entries and lists. The buckets stay.
    void clear();

    /// Visits all entries, bucket by bucket and chain by chain.
    void forEach(const Visitor &visit) const;
    /// @return the key's entries in the order of their chain
    std::deque<x_constraints> equal_range(std::string_view key) const;
    /// Whether the predicate holds for the value of any entry of the key. Repeats are passed over
    /// where that is cheap, and the order is no particular one.
    template <typename Predicate>
    bool anyOf(std::string_view key, Predicate predicate) const {
        const KeyPlace *found = m_index.find(key);
        if (!found)
            return false;
        for (uint32_t t : m_keys[found->key].targets) {
            const Target &target = m_targets[t];
            if (std::ranges::any_of(target.values.items, predicate))
                return true;
            for (uint32_t list : target.lists.items)
                if (std::ranges::any_of(m_valueLists[list], predicate))
                    return true;
        }
        return false;
    }

private:
    static constexpr uint32_t kNone = UINT32_MAX;

    /// Items of a set, each once, in the order of their first coming; found by open addressing.
    template <typename T>
    struct Distinct {
        std::vector<T> items;
        std::vector<uint32_t> numbers; ///< of items from 1, 0 where free; a power of two

        void add(const T &item) {
            if (2 * (items.size() + 1) > numbers.size())
                grow();
            uint32_t &number = numberOf(item);
            if (number == 0) {
                items.push_back(item);
                number = static_cast<uint32_t>(items.size());
            }
        }
        void grow() {
            numbers.assign(std::max<size_t>(8, 2 * numbers.size()), 0);
            for (size_t i = 0; i < items.size(); ++i)
                numberOf(items[i]) = static_cast<uint32_t>(i + 1);
        }
        uint32_t &numberOf(const T &item) {
            size_t i = packed(item) * 0x9E3779B97F4A7C15u >> 32;
            while (numbers[i &= numbers.size() - 1] != 0 && items[numbers[i] - 1] != item)
                ++i;
            return numbers[i];
        }
        static uint64_t packed(uint32_t list) { return list; }
        static uint64_t packed(const x_constraints &at) {
            return uint64_t{at.groupIndex} << 32 | uint64_t{at.optionIndex} << 16 | at.choiceIndex;
        }
    };
    /// A list of keys, and all that was inserted for it.
    struct Target {
        std::vector<uint32_t> keys;
        Distinct<x_constraints> values;
        Distinct<uint32_t> lists;
    };
    struct Key {
        std::string name;
        std::vector<uint32_t> targets; ///< the lists that the key stands in
    };
    struct KeyPlace {
        uint32_t key = kNone;
        uint32_t own = kNone; ///< the list that holds just this key
    };
    struct Insertion {
        uint32_t target;
        uint32_t list; ///< kNone for the single value
        x_constraints value;
    };
    struct Replay;

    KeyPlace &placeOf(std::string_view name);
    uint32_t addTarget(std::vector<uint32_t> keys);

    uint64_t m_initialBuckets;
    uint64_t m_size = 0;
    std::deque<Key> m_keys; ///< a deque, since m_index looks into the names
    FlatIndex<KeyPlace> m_index;
    std::vector<Target> m_targets;
    std::vector<std::vector<x_constraints>> m_valueLists;
    std::vector<Insertion> m_log;
};
