#include "ppd/hash_multimap.h"

#include <gtest/gtest.h>

#include <random>

namespace {

using Entry = std::pair<std::string, x_constraints>;

/// The layout built node by node, as the class describes it.
struct PlainTable {
    static uint64_t primeNotBelow(uint64_t n) {
        for (uint64_t prime : {53, 97, 193, 389, 769, 1543, 3079, 6151, 12289, 24593})
            if (prime >= n)
                return prime;
        return 0;
    }
    explicit PlainTable(size_t n) : buckets(primeNotBelow(n)) {}

    std::deque<Entry> &chain(const std::string &key) {
        return buckets[constraintHash()(key) % buckets.size()];
    }
    void insert(const std::string &key, x_constraints value) {
        if (size + 1 > buckets.size()) {
            std::vector<std::deque<Entry>> old(primeNotBelow(size + 1));
            old.swap(buckets);
            for (const auto &nodes : old)
                for (const Entry &node : nodes)
                    chain(node.first).push_front(node);
        }
        std::deque<Entry> &nodes = chain(key);
        auto first =
            std::ranges::find_if(nodes, [&](const Entry &node) { return node.first == key; });
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

std::vector<Entry> walk(const hash_multimap &table) {
    std::vector<Entry> entries;
    table.forEach(
        [&](std::string_view key, x_constraints value) { entries.emplace_back(key, value); });
    return entries;
}

} // namespace

TEST(HashMultimap, HashReadsSignedBytesUpToNul) {
    EXPECT_EQ(constraintHash()(""), 0u);
    EXPECT_EQ(constraintHash()("AB"), 65u * 5 + 66);
    EXPECT_EQ(constraintHash()(std::string_view("AB\0C", 4)), 65u * 5 + 66);
    EXPECT_EQ(constraintHash()("\xff"), SIZE_MAX);
}

TEST(HashMultimap, GrowsToTheNextPrime) {
    EXPECT_EQ(hash_multimap(0).bucket_count(), 53u);
    EXPECT_EQ(hash_multimap(97).bucket_count(), 97u);
    EXPECT_EQ(hash_multimap(SIZE_MAX).bucket_count(), 4294967291u);
    hash_multimap table;
    PlainTable plain(100);
    for (int i = 1; i <= 194; ++i) {
        const std::string key = "A:" + std::to_string(i % 31);
        table.insert(key, {0, 0, static_cast<uint16_t>(i)});
        plain.insert(key, {0, 0, static_cast<uint16_t>(i)});
        ASSERT_EQ(table.bucket_count(), i <= 193 ? 193u : 389u);
        ASSERT_EQ(walk(table), plain.walk()) << i << " entries";
    }
    table.clear();
    EXPECT_EQ(table.size(), 0u);
    EXPECT_EQ(table.bucket_count(), 389u);
    EXPECT_FALSE(table.anyOf("A:1", [](x_constraints) { return true; }));
}

TEST(HashMultimap, WalksAsATableOfNodesWould) {
    std::mt19937 random(7);
    const auto below = [&](int n) { return static_cast<uint16_t>(random() % n); };
    for (int round = 0; round < 40; ++round) {
        const size_t asked = below(120);
        hash_multimap table(asked);
        PlainTable plain(asked);
        const int names = 1 + below(60);
        const auto key = [&] { return "Option:" + std::to_string(below(names)); };
        const auto value = [&] { return x_constraints{below(3), below(3), below(3)}; };

        if (round % 4 == 0) { // what was there before leaves only its buckets behind
            for (int i = below(400); i > 0; --i)
                table.insert(key(), value());
            table.clear();
            plain = PlainTable(table.bucket_count());
        }
        std::vector<std::vector<std::string>> keys(3);
        std::vector<std::vector<x_constraints>> values(3);
        std::vector<hash_multimap::KeyList> keyLists;
        std::vector<hash_multimap::ValueList> valueLists;
        for (int i = 0; i < 3; ++i) {
            std::ranges::generate(keys[i] = std::vector<std::string>(below(12)), key);
            std::ranges::generate(values[i] = std::vector<x_constraints>(below(12)), value);
            keyLists.push_back(table.keyList(keys[i]));
            valueLists.push_back(table.valueList(values[i]));
        }
        for (int step = below(120); step > 0; --step) {
            const int k = below(3), v = below(3);
            if (below(2)) {
                table.insert(keyLists[k], valueLists[v]);
                for (const x_constraints &one : values[v])
                    for (const std::string &name : keys[k])
                        plain.insert(name, one);
            } else {
                const std::string name = key();
                const x_constraints one = value();
                table.insert(name, one);
                plain.insert(name, one);
            }
        }
        ASSERT_EQ(table.size(), plain.size);
        ASSERT_EQ(table.bucket_count(), plain.buckets.size());
        const std::vector<Entry> expected = plain.walk();
        ASSERT_EQ(walk(table), expected) << "round " << round;
        for (int i = 0; i < names; ++i) {
            const std::string name = "Option:" + std::to_string(i);
            std::deque<x_constraints> ofName;
            for (const Entry &entry : expected)
                if (entry.first == name)
                    ofName.push_back(entry.second);
            ASSERT_EQ(table.equal_range(name), ofName);
            for (uint16_t place = 0; place < 3; ++place) {
                const x_constraints sought{place, place, place};
                ASSERT_EQ(table.anyOf(name, [&](x_constraints v) { return v == sought; }),
                          std::ranges::find(ofName, sought) != ofName.end());
            }
        }
    }
}

TEST(HashMultimap, KeepsDistinctValuesAmongManyRepeats) {
    hash_multimap table;
    for (int i = 0; i < 5000; ++i)
        table.insert("A:x", {0, 0, static_cast<uint16_t>(i % 700)});
    int asked = 0;
    EXPECT_FALSE(table.anyOf("A:x", [&](x_constraints) { return ++asked < 0; }));
    EXPECT_LE(asked, 1400);
    for (uint16_t i = 0; i < 700; ++i)
        EXPECT_TRUE(table.anyOf("A:x", [&](x_constraints v) { return v.choiceIndex == i; }));
}
