#include "ppd/hash_multimap.h"

#include <gtest/gtest.h>

#include <random>

namespace {

using Entry = std::pair<std::string, x_constraints>;

/// The layout built node by node, as the class describes it.
struct PlainTable {
    explicit PlainTable(size_t n) {
        const size_t primes[] = {53, 97, 193, 389, 769, 1543, 3079, 6151, 12289, 24593, 49157};
        buckets.resize(*std::ranges::lower_bound(primes, n));
    }
    std::deque<Entry> &chain(const std::string &key) {
        return buckets[constraintHash()(key) % buckets.size()];
    }
    void insert(const std::string &key, x_constraints value) {
        if (size + 1 > buckets.size()) {
            auto old = std::exchange(buckets, PlainTable(size + 1).buckets);
            for (const auto &nodes : old)
                for (const Entry &node : nodes)
                    chain(node.first).push_front(node);
        }
        std::deque<Entry> &nodes = chain(key);
        auto first = std::ranges::find(nodes, key, &Entry::first);
        nodes.insert(first == nodes.end() ? nodes.begin() : first + 1, {key, value});
        ++size;
    }
    std::vector<Entry> walk() const {
        std::vector<Entry> entries;
        for (const auto &nodes : buckets)
            entries.insert(entries.end(), nodes.begin(), nodes.end());
        return entries;
    }

    std::vector<std::deque<Entry>> buckets;
    uint64_t size = 0;
};

} // namespace

TEST(HashMultimap, HashesSignedBytesUpToNulIntoPrimes) {
    EXPECT_EQ(constraintHash()(std::string_view("AB\0C", 4)), 65u * 5 + 66);
    EXPECT_EQ(constraintHash()("\xff"), SIZE_MAX);
    EXPECT_EQ(hash_multimap().bucket_count(), 193u);
    EXPECT_EQ(hash_multimap(SIZE_MAX).bucket_count(), 4294967291u);
}

TEST(HashMultimap, WalksAsATableOfNodesWould) {
    std::mt19937 random(7);
    const auto below = [&](int n) { return static_cast<uint16_t>(random() % n); };
    for (int round = 0; round < 20; ++round) {
        const size_t asked = below(120);
        hash_multimap table(asked);
        PlainTable plain(asked);
        const int names = round % 3 ? 1 + below(60) : 1; // one key: repeats are thinned out
        const auto key = [&] { return "Option:" + std::to_string(below(names)); };
        const auto value = [&] { return x_constraints{below(3), below(3), below(3)}; };

        if (round % 4 == 0) { // what was there before leaves only its buckets behind
            for (int i = below(400); i > 0; --i)
                table.insert(key(), value());
            table.clear();
            plain = PlainTable(table.bucket_count());
        }
        std::vector<std::string> keys;
        std::vector<x_constraints> values;
        hash_multimap::KeyList keyList = table.keyList(keys);
        hash_multimap::ValueList valueList = table.valueList(values);
        for (int step = below(600); step >= 0; --step) {
            if (keys.empty() || step % 8 == 0) {
                std::ranges::generate(keys = std::vector<std::string>(below(8)), key);
                std::ranges::generate(values = std::vector<x_constraints>(below(8)), value);
                keyList = table.keyList(keys);
                valueList = table.valueList(values);
            }
            table.insert(keyList, valueList);
            for (const x_constraints &one : values)
                for (const std::string &name : keys)
                    plain.insert(name, one);
            const Entry one(key(), value());
            table.insert(one.first, one.second);
            plain.insert(one.first, one.second);
        }
        ASSERT_EQ(table.size(), plain.size);
        ASSERT_EQ(table.bucket_count(), plain.buckets.size());
        const std::vector<Entry> expected = plain.walk();
        std::vector<Entry> walked;
        table.forEach([&](auto name, x_constraints one) { walked.emplace_back(name, one); });
        ASSERT_EQ(walked, expected) << "round " << round;
        for (int i = 0; i < 9; ++i) {
            const std::string name = key();
            std::deque<x_constraints> ofName;
            for (const Entry &entry : expected)
                if (entry.first == name)
                    ofName.push_back(entry.second);
            ASSERT_EQ(table.equal_range(name), ofName);
            const x_constraints sought = value();
            ASSERT_EQ(table.anyOf(name, [&](x_constraints v) { return v == sought; }),
                      std::ranges::find(ofName, sought) != ofName.end());
        }
    }
}
