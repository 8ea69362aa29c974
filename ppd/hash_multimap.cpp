#include "ppd/hash_multimap.h"

#include <array>

namespace {

// The bucket counts of the classic chained tables: primes, each near twice the one before.
constexpr std::array<uint64_t, 28> kPrimes = {
    53,        97,        193,       389,       769,        1543,       3079,
    6151,      12289,     24593,     49157,     98317,      196613,     393241,
    786433,    1572869,   3145739,   6291469,   12582917,   25165843,   50331653,
    100663319, 201326611, 402653189, 805306457, 1610612741, 3221225473, 4294967291};

uint64_t primeNotBelow(uint64_t n) {
    const auto prime = std::ranges::lower_bound(kPrimes, n);
    return prime == kPrimes.end() ? kPrimes.back() : *prime;
}

/// The entries of one key, next to each other in their chain.
class Run {
public:
    /// Puts a value directly behind the first one.
    void insert(x_constraints value) {
        if (m_reversed) {
            m_values.push_back(value);
            if (m_values.size() > 1)
                std::swap(m_values.back(), *(m_values.end() - 2));
        } else {
            m_values.push_front(value);
            if (m_values.size() > 1)
                std::swap(m_values[0], m_values[1]);
        }
    }
    void reverse() { m_reversed = !m_reversed; }
    std::deque<x_constraints> take() {
        if (m_reversed)
            std::ranges::reverse(m_values);
        return std::move(m_values);
    }

private:
    std::deque<x_constraints> m_values;
    bool m_reversed = false; ///< the first of the run is the last of m_values
};

} // namespace

size_t constraintHash::operator()(std::string_view key) const {
    size_t h = 0;
    for (char c : key) {
        if (c == '\0')
            break;
        h = h * 5 + static_cast<size_t>(static_cast<signed char>(c));
    }
    return h;
}

hash_multimap::hash_multimap(size_t n) : m_initialBuckets(primeNotBelow(n)) {}

uint64_t hash_multimap::bucket_count() const {
    return m_size > m_initialBuckets ? primeNotBelow(m_size) : m_initialBuckets;
}

void hash_multimap::clear() {
    m_initialBuckets = bucket_count();
    m_size = 0;
    m_index = {};
    m_keys.clear();
    m_targets.clear();
    m_valueLists.clear();
    m_log.clear();
}

hash_multimap::KeyPlace &hash_multimap::placeOf(std::string_view name) {
    if (KeyPlace *found = m_index.find(name))
        return *found;
    m_keys.push_back({std::string(name), {}});
    return m_index.insert(m_keys.back().name, {static_cast<uint32_t>(m_keys.size() - 1), kNone});
}

uint32_t hash_multimap::addTarget(std::vector<uint32_t> keys) {
    const auto index = static_cast<uint32_t>(m_targets.size());
    for (uint32_t key : keys) {
        std::vector<uint32_t> &targets = m_keys[key].targets;
        if (targets.empty() || targets.back() != index)
            targets.push_back(index);
    }
    m_targets.push_back({std::move(keys), {}, {}});
    return index;
}

hash_multimap::KeyList hash_multimap::keyList(std::string_view name) {
    KeyPlace &place = placeOf(name);
    if (place.own == kNone)
        place.own = addTarget({place.key});
    return KeyList{place.own};
}

hash_multimap::KeyList hash_multimap::keyList(const std::vector<std::string> &names) {
    std::vector<uint32_t> keys;
    keys.reserve(names.size());
    for (const std::string &name : names)
        keys.push_back(placeOf(name).key);
    return KeyList{addTarget(std::move(keys))};
}

hash_multimap::ValueList hash_multimap::valueList(std::vector<x_constraints> values) {
    m_valueLists.push_back(std::move(values));
    return ValueList{static_cast<uint32_t>(m_valueLists.size() - 1)};
}

void hash_multimap::insert(KeyList keys, x_constraints value) {
    const auto index = static_cast<uint32_t>(keys);
    Target &target = m_targets[index];
    target.values.add(value);
    m_log.push_back({index, kNone, value});
    m_size += target.keys.size();
}

void hash_multimap::insert(KeyList keys, ValueList values) {
    const auto index = static_cast<uint32_t>(keys);
    const auto list = static_cast<uint32_t>(values);
    Target &target = m_targets[index];
    target.lists.add(list);
    m_log.push_back({index, list, {}});
    m_size += target.keys.size() * m_valueLists[list].size();
}

/// Plays the log again, to find where the entries stand.
///
/// Entries are counted from 0 in the order of their insertion. The table grows when the number of
/// an entry reaches the bucket count, so the growths are the primes below its size.
struct hash_multimap::Replay {
    struct Step {
        uint64_t start; ///< number of the first entry
        const Insertion *insertion;
    };

    const hash_multimap &table;
    std::vector<uint64_t> growths;        ///< numbers of the entries before which the table grew
    std::vector<std::vector<Step>> steps; ///< by target, in the order of insertion
    std::vector<std::pair<uint32_t, uint64_t>> newKeys; ///< each key with its first entry's number

    explicit Replay(const hash_multimap &map) : table(map), steps(map.m_targets.size()) {
        for (uint64_t prime : kPrimes)
            if (prime >= map.m_initialBuckets && prime < map.m_size && prime != kPrimes.back())
                growths.push_back(prime);
        std::vector<bool> seen(map.m_keys.size());
        uint64_t start = 0;
        for (const Insertion &insertion : map.m_log) {
            const std::vector<uint32_t> &keys = map.m_targets[insertion.target].keys;
            const uint64_t rounds = values(insertion).size();
            if (rounds == 0 || keys.empty())
                continue;
            if (steps[insertion.target].empty())
                for (size_t i = 0; i < keys.size(); ++i)
                    if (!seen[keys[i]]) {
                        seen[keys[i]] = true;
                        newKeys.emplace_back(keys[i], start + i);
                    }
            steps[insertion.target].push_back({start, &insertion});
            start += rounds * keys.size();
        }
    }

    struct Values {
        const x_constraints *first;
        size_t count;
        size_t size() const { return count; }
        const x_constraints *begin() const { return first; }
        const x_constraints *end() const { return first + count; }
    };
    Values values(const Insertion &insertion) const {
        if (insertion.list == kNone)
            return {&insertion.value, 1};
        const std::vector<x_constraints> &list = table.m_valueLists[insertion.list];
        return {list.data(), list.size()};
    }

    /// Keys in the order in which a walk meets their runs.
    std::vector<uint32_t> walkOrder() const {
        std::vector<size_t> hashes(table.m_keys.size());
        for (size_t i = 0; i < hashes.size(); ++i)
            hashes[i] = constraintHash()(table.m_keys[i].name);
        std::vector<uint32_t> order;
        auto newKey = newKeys.begin();
        uint64_t buckets = table.m_initialBuckets;
        for (size_t phase = 0; phase <= growths.size(); ++phase) {
            const bool last = phase == growths.size();
            std::vector<uint32_t> chains; // a new key goes to the head, so the newest stands first
            for (; newKey != newKeys.end() && (last || newKey->second < growths[phase]); ++newKey)
                chains.push_back(newKey->first);
            std::ranges::reverse(chains);
            chains.insert(chains.end(), order.begin(), order.end());
            std::ranges::stable_sort(chains, {},
                                     [&](uint32_t key) { return hashes[key] % buckets; });
            order = std::move(chains);
            if (!last) {
                std::ranges::reverse(order);
                buckets = primeNotBelow(growths[phase] + 1);
            }
        }
        return order;
    }

    /// The entries of one key, in the order of their chain.
    std::deque<x_constraints> run(uint32_t key) const {
        struct Placed {
            Step step;
            const std::vector<size_t> *places; ///< of the key in the step's list of keys
        };
        const std::vector<uint32_t> &targets = table.m_keys[key].targets;
        std::vector<std::vector<size_t>> places(targets.size());
        std::vector<Placed> all;
        for (size_t t = 0; t < targets.size(); ++t) {
            const std::vector<uint32_t> &keys = table.m_targets[targets[t]].keys;
            for (size_t i = 0; i < keys.size(); ++i)
                if (keys[i] == key)
                    places[t].push_back(i);
            for (const Step &step : steps[targets[t]])
                all.push_back({step, &places[t]});
        }
        std::ranges::sort(all, {}, [](const Placed &placed) { return placed.step.start; });

        Run run;
        auto growth = growths.begin();
        const auto growTo = [&](uint64_t entry) {
            for (; growth != growths.end() && *growth <= entry; ++growth)
                run.reverse();
        };
        for (const auto &[step, found] : all) {
            uint64_t entry = step.start;
            for (const x_constraints &value : values(*step.insertion)) {
                for (size_t place : *found) {
                    growTo(entry + place);
                    run.insert(value);
                }
                entry += table.m_targets[step.insertion->target].keys.size();
            }
        }
        growTo(table.m_size);
        return run.take();
    }
};

void hash_multimap::forEach(const Visitor &visit) const {
    const Replay replay(*this);
    for (uint32_t key : replay.walkOrder())
        for (const x_constraints &value : replay.run(key))
            visit(m_keys[key].name, value);
}

std::deque<x_constraints> hash_multimap::equal_range(std::string_view key) const {
    const KeyPlace *found = m_index.find(key);
    return found ? Replay(*this).run(found->key) : std::deque<x_constraints>();
}
