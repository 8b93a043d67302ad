#include "TW/Guid.hpp"
#include "TW/HashSet.hpp"
#include "TW/HashTable.hpp"
#include "Text.hpp"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <new>
#include <random>
#include <stdexcept>
#include <unordered_map>
#include <vector>

namespace {

using TW::HashSet;
using TW::HashTable;

struct ConstantHash {
  std::size_t operator()(std::uint64_t) const { return 7; }
};

struct CountingHash {
  static inline unsigned int calls = 0;
  std::size_t operator()(std::uint64_t key) const {
    ++calls;
    return key;
  }
};

template <class Table>
std::vector<std::pair<std::uint64_t, int>> Listed(const Table& table) {
  std::vector<std::pair<std::uint64_t, int>> list;
  for (const auto& entry : table) list.emplace_back(entry.key, entry.value);
  return list;
}

using List = std::vector<std::pair<std::uint64_t, int>>;

TEST(HashTable, KeepsTheFirstValueUnlessToldToReplaceIt) {
  HashTable<std::uint64_t, int> table;
  EXPECT_TRUE(table.IsEmpty());
  EXPECT_EQ(table.Find(1), nullptr);
  EXPECT_FALSE(table.Remove(1));
  EXPECT_TRUE(table.begin() == table.end());

  EXPECT_TRUE(table.Add(3, 30));
  EXPECT_TRUE(table.Add(1, 10));
  EXPECT_FALSE(table.Add(3, 31));
  table.Put(2, 20);
  table.Put(1, 11);
  EXPECT_EQ(Listed(table), (List{{3, 30}, {1, 11}, {2, 20}}));
  EXPECT_EQ(table.begin()->value, 30);

  table.Get(2) = 21;
  for (auto entry : table) entry.value += 100;
  EXPECT_EQ(Listed(table), (List{{3, 130}, {1, 111}, {2, 121}}));
  EXPECT_EQ(*std::as_const(table).Find(2), 121);
  EXPECT_THROW(table.Get(4), TW::IllegalReferenceException);
  EXPECT_THROW(std::as_const(table).Get(4), TW::IllegalReferenceException);
  EXPECT_EQ(table.GetSize(), 3U);
}

TEST(HashTable, RemovingLeavesTheOrderOfTheOthers) {
  struct Row {
    std::vector<std::uint64_t> removed;
    std::vector<std::uint64_t> left;
  };
  const Row rows[] = {
      {{}, {0, 1, 2, 3, 4}}, {{0}, {1, 2, 3, 4}}, {{4}, {0, 1, 2, 3}},   {{2}, {0, 1, 3, 4}},       {{1, 2, 3}, {0, 4}},
      {{3, 4, 0}, {1, 2}},   {{1, 0, 3, 4}, {2}}, {{0, 1, 2, 4, 3}, {}}, {{2, 2, 7}, {0, 1, 3, 4}},
  };
  for (const Row& row : rows) {
    HashSet<std::uint64_t> set;
    for (std::uint64_t key = 0; key < 5; ++key) EXPECT_TRUE(set.Add(key));
    for (std::uint64_t key : row.removed) set.Remove(key);
    std::vector<std::uint64_t> expected = row.left;
    EXPECT_EQ(std::vector<std::uint64_t>(set.begin(), set.end()), expected);
    // A key that comes back comes last, also when the array has to grow.
    for (std::uint64_t key = 10; key < 20; ++key) EXPECT_TRUE(set.Add(key));
    for (std::uint64_t key : row.removed)
      if (set.Add(key)) expected.push_back(key);
    for (std::uint64_t key = 10; key < 20; ++key) EXPECT_TRUE(set.Remove(key));
    EXPECT_EQ(std::vector<std::uint64_t>(set.begin(), set.end()), expected);
  }
}

/// The plain way of doing the same: a map, and the keys in a list.
struct Model {
  std::unordered_map<std::uint64_t, int> values;
  std::vector<std::uint64_t> order;

  bool Add(std::uint64_t key, int value) {
    const bool added = values.emplace(key, value).second;
    if (added) order.push_back(key);
    return added;
  }
  bool Remove(std::uint64_t key) {
    std::erase(order, key);
    return values.erase(key) != 0;
  }
  List GetList() const {
    List list;
    for (std::uint64_t key : order) list.emplace_back(key, values.at(key));
    return list;
  }
};

/// Does the same random things to a table and to the model.
template <class Table>
class Comparison {
 public:
  Comparison(unsigned int seed, std::uint64_t keyCount, std::uint64_t keyStep)
      : random_(seed), keyCount_(keyCount), keyStep_(keyStep) {}

  void Run(int operations) {
    for (int i = 0; i < operations; ++i) {
      // The shares of adding and removing change, so that the table grows, shrinks and is churned.
      if (i % 1000 == 0) removing_ = Draw(10);
      if (Draw(400) == 0)
        ChangeWhole();
      else
        ChangeEntry(i);
      const std::uint64_t asked = DrawKey();
      const int* found = table_.Find(asked);
      const auto known = model_.values.find(asked);
      ASSERT_EQ(found == nullptr ? -1 : *found, known == model_.values.end() ? -1 : known->second);
      ASSERT_EQ(table_.GetSize(), model_.order.size());
      if (i % 512 == 0 || i == operations - 1) {
        ASSERT_EQ(Listed(table_), model_.GetList());
      }
    }
  }

 private:
  unsigned int Draw(unsigned int count) { return static_cast<unsigned int>(random_() % count); }
  std::uint64_t DrawKey() { return random_() % keyCount_ * keyStep_; }

  void ChangeEntry(int value) {
    const std::uint64_t key = DrawKey();
    if (Draw(10) < removing_) {
      ASSERT_EQ(table_.Remove(key), model_.Remove(key));
    } else if (Draw(2) == 0) {
      ASSERT_EQ(table_.Add(key, value), model_.Add(key, value));
    } else {
      table_.Put(key, value);
      if (!model_.Add(key, value)) model_.values[key] = value;
    }
  }

  void ChangeWhole() {
    switch (Draw(8)) {
      case 0:
        table_.Clear();
        model_ = Model();
        return;
      case 1:
        table_.Reserve(Draw(1000));
        return;
      case 2: {
        Table moved = std::move(table_);
        ASSERT_TRUE(table_.IsEmpty());
        table_.Add(DrawKey(), 1);
        swap(table_, moved);
        return;
      }
      default: {
        const Table copy = table_;
        ASSERT_EQ(copy, table_);
        ASSERT_EQ(Listed(copy), model_.GetList());
        if (Draw(2) == 0) table_ = copy;
      }
    }
  }

  std::mt19937 random_;
  std::uint64_t keyCount_;
  std::uint64_t keyStep_;
  unsigned int removing_ = 0;
  Table table_;
  Model model_;
};

TEST(HashTable, DoesWhatAMapAndAListDo) {
  Comparison<HashTable<std::uint64_t, int>>(1, 2000, 1).Run(100'000);
  Comparison<HashTable<std::uint64_t, int>>(2, 100, std::uint64_t{1} << 48).Run(40'000);
  Comparison<HashTable<std::uint64_t, int>>(3, 6, 16).Run(20'000);
  Comparison<HashTable<std::uint64_t, int, ConstantHash>>(4, 40, 1).Run(20'000);
}

TEST(HashTable, HoldsAMillionEntriesWhateverTheirKeysHaveInCommon) {
  constexpr std::uint64_t Count = 1'000'000;
  for (std::uint64_t step : {0x1ULL, 0x1000ULL, 0x1'0000'0000ULL, 0x1000'0000'0000ULL, 0x1000'0000'1000ULL}) {
    HashTable<std::uint64_t, std::uint64_t, CountingHash> table;
    CountingHash::calls = 0;
    for (std::uint64_t i = 0; i < Count; ++i) ASSERT_TRUE(table.Add(i * step, i));
    EXPECT_EQ(CountingHash::calls, Count) << "growth must not ask for hashes again";
    for (std::uint64_t i = 0; i < Count; ++i) ASSERT_EQ(table.Get(i * step), i);
    EXPECT_EQ(table.Find(Count * step + 1), nullptr);
    std::uint64_t next = 0;
    for (const auto& entry : table) ASSERT_EQ(entry.value, next++);
    EXPECT_EQ(next, Count);
  }
}

// Each of these would take hours if a removal cost as much as the gaps that are there.
TEST(HashTable, EmptiesALargeTableFromEitherEndAndFromWithin) {
  constexpr unsigned int Count = 1'000'000;
  HashSet<unsigned int> full;
  full.Reserve(Count);
  for (unsigned int i = 0; i < Count; ++i) full.Add(i);

  HashSet<unsigned int> set = full;
  while (!set.IsEmpty()) ASSERT_TRUE(set.Remove(*set.begin()));
  set = full;
  for (unsigned int i = Count; i-- > 0;) ASSERT_TRUE(set.Remove(i));
  EXPECT_TRUE(set.begin() == set.end());
  // The first and the last are left: walking over them again and again must not walk over the gaps between.
  set = full;
  for (unsigned int i = 1; i + 1 < Count; ++i) ASSERT_TRUE(set.Remove(i));
  std::uint64_t sum = 0;
  for (unsigned int round = 0; round < Count; ++round)
    for (unsigned int key : set) sum += key + 1;
  EXPECT_EQ(sum, std::uint64_t{Count} * (Count + 1));
  // First in, first out, with a table that stays small.
  HashSet<unsigned int> queue;
  for (unsigned int i = 0; i < Count; ++i) {
    queue.Add(i);
    if (i >= 100) {
      ASSERT_TRUE(queue.Remove(i - 100));
    }
  }
  EXPECT_EQ(queue.GetSize(), 100U);
}

/// Throws from the copy or move after `copiesLeft` others.
struct Throwing {
  static inline int copiesLeft = -1;
  static inline int living = 0;

  explicit Throwing(int number) : value(number) { ++living; }
  Throwing(const Throwing& other) : value(other.value) {
    if (copiesLeft == 0) throw std::runtime_error("copy");
    --copiesLeft;
    ++living;
  }
  Throwing(Throwing&& other) : Throwing(std::as_const(other)) { other.value = -1; }
  Throwing& operator=(const Throwing& other) {
    value = Throwing(other).value;
    return *this;
  }
  ~Throwing() { --living; }
  operator int() const { return value; }

  int value;
};

TEST(HashTable, IsUnchangedWhenAValueThrows) {
  for (int count = 0; count < 24; ++count) {
    for (int copies = 0; copies <= count + 4; ++copies) {
      for (const bool known : {false, true}) {
        HashTable<std::uint64_t, Throwing> table;
        for (int i = 0; i < count; ++i) table.Put(static_cast<std::uint64_t>(i), Throwing(i));
        if (count > 3) table.Remove(1);
        const List before = Listed(table);
        const std::uint64_t key = known ? 0 : 1000;
        const Throwing value(77);
        Throwing::copiesLeft = copies;
        bool thrown = false;
        try {
          table.Put(key, value);
        } catch (const std::runtime_error&) {
          thrown = true;
        }
        Throwing::copiesLeft = -1;
        ASSERT_EQ(thrown ? before == Listed(table) : table.Get(key) == 77, true) << count << ' ' << copies;
        ASSERT_EQ(Throwing::living, static_cast<int>(table.GetSize()) + 1);
        ASSERT_TRUE(thrown || copies > 0);
        for (const auto& [listed, number] : before) ASSERT_TRUE(table.Contains(listed)) << number;
      }
    }
  }
  EXPECT_EQ(Throwing::living, 0);
}

TEST(HashTable, TakesPartsOfItselfAsArguments) {
  HashTable<TW::UniString, TW::UniString> table;
  const TW::UniString text = u"a text that needs the heap to be held";
  table.Add(u"0", text);
  for (int i = 1; i < 100; ++i) ASSERT_TRUE(table.Add(TW::UniString::FromInteger(i), table.Get(u"0")));
  for (const auto& entry : table) ASSERT_EQ(entry.value, text);
  table.Put(u"1", table.Get(u"1"));
  EXPECT_EQ(table.Get(u"1"), text);
  while (!table.IsEmpty()) ASSERT_TRUE(table.Remove(table.begin()->key));
}

TEST(HashTable, FindsTextsByViewAndHoldsWhatCannotBeCopied) {
  HashTable<TW::UniString, std::unique_ptr<int>> table;
  EXPECT_TRUE(table.Add(u"first", std::make_unique<int>(1)));
  auto second = std::make_unique<int>(2);
  EXPECT_TRUE(table.Add(u"second", std::make_unique<int>(2)));
  EXPECT_FALSE(table.Add(u"first", nullptr));
  EXPECT_EQ(**table.Find(std::u16string_view(u"the second one").substr(4, 6)), 2);
  EXPECT_FALSE(table.Contains(u"secon"));
  HashTable<TW::UniString, std::unique_ptr<int>> moved = std::move(table);
  EXPECT_EQ(*moved.Get(u"first"), 1);
  EXPECT_TRUE(moved.Remove(TW::UniString(u"first")));
  EXPECT_EQ(moved.GetSize(), 1U);
}

TEST(HashTable, IsEqualToTheSameEntriesInTheSameOrder) {
  struct Row {
    List left;
    List right;
    bool equal;
  };
  const Row rows[] = {
      {{}, {}, true},
      {{{1, 1}, {2, 2}}, {{1, 1}, {2, 2}}, true},
      {{{1, 1}, {2, 2}}, {{2, 2}, {1, 1}}, false},
      {{{1, 1}, {2, 2}}, {{1, 1}, {2, 3}}, false},
      {{{1, 1}, {2, 2}}, {{1, 1}}, false},
      {{{1, 1}, {2, 2}}, {{1, 1}, {3, 2}}, false},
  };
  for (const Row& row : rows) {
    HashTable<std::uint64_t, int> left;
    HashTable<std::uint64_t, int> right;
    left.Reserve(1000);
    for (const auto& [key, value] : row.left) left.Add(key, value);
    right.Add(99, 99);
    for (const auto& [key, value] : row.right) right.Add(key, value);
    right.Remove(99);
    EXPECT_EQ(left == right, row.equal);
  }
}

TEST(HashTable, RefusesMoreThanItCanHold) {
  HashTable<TW::Guid, int> table;
  table.Add(TW::Guid(), 5);
  EXPECT_THROW(table.Reserve(0x80000000U), std::bad_alloc);
  EXPECT_THROW(table.Reserve(0xFFFFFFFFU), std::bad_alloc);
  EXPECT_EQ(table.Get(TW::Guid()), 5);
}

}  // namespace
