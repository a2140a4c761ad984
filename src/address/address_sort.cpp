// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "address/address_sort.h"

#include "address/address_book.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace orvalis {

namespace {

/// Counts at places 0 to n - 1, with sums over the first of them.
class Counts {
public:
    explicit Counts(int size)
        : m_tree(static_cast<std::size_t>(size) + 1) {}

    void add(int place, int count) {
        for (std::size_t i = static_cast<std::size_t>(place) + 1; i < m_tree.size(); i += i & -i)
            m_tree[i] += count;
    }
    int sumBefore(int place) const {
        int sum = 0;
        for (auto i = static_cast<std::size_t>(place); i > 0; i -= i & -i)
            sum += m_tree[i];
        return sum;
    }
    /// The place of which sumBefore() is at most \a sum while that of the next one is above it.
    int placeOf(int sum) const {
        std::size_t step = 1;
        while (step * 2 < m_tree.size())
            step *= 2;
        std::size_t place = 0;
        for (; step > 0; step /= 2)
            if (place + step < m_tree.size() && m_tree[place + step] <= sum) {
                place += step;
                sum -= m_tree[place];
            }
        return static_cast<int>(place);
    }

private:
    std::vector<int> m_tree;
};

/// Elements of one key in the order in which they came, each with the number of smaller elements
/// that were there already.
struct Group {
    struct Member {
        int index;
        int smaller;
    };
    std::vector<Member> members;
    int smallerInAll = 0;
};

/// The numbers of the keys in their order; equal keys have the same one.
std::vector<int> ranksOf(std::span<const QStringView> keys) {
    std::vector<int> sorted(keys.size());
    std::iota(sorted.begin(), sorted.end(), 0);
    const auto key = [&](int index) { return keys[static_cast<std::size_t>(index)]; };
    std::sort(sorted.begin(), sorted.end(), [&](int a, int b) { return key(a) < key(b); });
    std::vector<int> ranks(keys.size());
    int rank = 0;
    for (std::size_t i = 0; i < sorted.size(); ++i) {
        if (i > 0 && key(sorted[i - 1]) != key(sorted[i]))
            ++rank;
        ranks[static_cast<std::size_t>(sorted[i])] = rank;
    }
    return ranks;
}

std::vector<Group> groupsOf(const std::vector<int>& ranks) {
    const int most = ranks.empty() ? 0 : *std::max_element(ranks.begin(), ranks.end()) + 1;
    std::vector<Group> groups(static_cast<std::size_t>(most));
    Counts counts(most);
    for (std::size_t index = 0; index < ranks.size(); ++index) {
        const int rank = ranks[index];
        groups[static_cast<std::size_t>(rank)].members.push_back(
            {static_cast<int>(index), counts.sumBefore(rank)});
        counts.add(rank, 1);
    }
    for (int rank = 0; rank < most; ++rank)
        groups[static_cast<std::size_t>(rank)].smallerInAll = counts.sumBefore(rank);
    return groups;
}

/// Lays a group's members down in their final order. Going back from the end: the latest member
/// stood last when it came, and every smaller one that came after it brought the first one of the
/// group behind the others.
void layDown(const Group& group, std::span<int> places) {
    const auto size = static_cast<int>(group.members.size());
    Counts free(size);
    for (int place = 0; place < size; ++place)
        free.add(place, 1);
    int first = 0; // which of the free places, round in a circle, is the first one
    int smallerLater = group.smallerInAll;
    for (int count = size; count > 0; --count) {
        const Group::Member& member = group.members[static_cast<std::size_t>(count - 1)];
        const int turns = (smallerLater - member.smaller) % count;
        const int taken = (first + count - 1 - turns + count) % count;
        const int place = free.placeOf(taken);
        places[static_cast<std::size_t>(place)] = member.index;
        free.add(place, -1);
        first = count > 1 ? taken % (count - 1) : 0;
        smallerLater = member.smaller;
    }
}

} // namespace

// Pass i carries the element of place i along the places behind it; place j takes it over where it
// is the greater one. Seen from place j, the elements that the passes 0 to j - 1 carry by are the
// places before j in order, and its own element goes in among them: behind all that are not
// greater. Of the greater ones those of one key move up by one, but the first of them is held back
// and comes out behind the others. So the sort is one of insertion in which each group of equal
// keys that is greater than what goes in turns by one.
std::vector<int> exchangeOrder(std::span<const QStringView> keys) {
    std::vector<int> order(keys.size());
    std::span<int> places(order);
    for (const Group& group : groupsOf(ranksOf(keys))) {
        layDown(group, places.first(group.members.size()));
        places = places.subspan(group.members.size());
    }
    return order;
}

void SwapRecords(AddressBook& book, int a, int b) {
    std::swap(book.record(a), book.record(b));
}

void sortRecords(AddressBook& book, QString AddressRecord::*key) {
    std::vector<QStringView> keys;
    keys.reserve(book.records().size());
    for (const AddressRecord& record : book.records())
        keys.emplace_back(record.*key);
    std::vector<int> order = exchangeOrder(keys);
    // Round each circle of records that take one another's places.
    for (int start = 0; start < static_cast<int>(order.size()); ++start)
        for (int place = start; order[static_cast<std::size_t>(place)] != place;) {
            const int from = std::exchange(order[static_cast<std::size_t>(place)], place);
            if (order[static_cast<std::size_t>(from)] != from)
                SwapRecords(book, place, from);
            place = from;
        }
}

} // namespace orvalis
