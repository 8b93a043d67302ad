#include "TW/Guid.hpp"
#include "TW/HashTable.hpp"
#include "TW/UniString.hpp"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <random>
#include <unordered_map>
#include <vector>

// TW::HashTable beside std::unordered_map: the same work on the same keys, Guid and UniString, in small and large
// tables.

namespace {

using TW::Guid;
using TW::UniString;
using Value = std::uint32_t;

Guid MakeKey(std::mt19937_64& random, Guid*) {
  const std::uint64_t halves[] = {random(), random()};
  Guid::Bytes bytes;
  std::memcpy(bytes.data(), halves, sizeof(halves));
  return Guid(bytes);
}

UniString MakeKey(std::mt19937_64& random, UniString*) {
  return UniString(u"Property ") + UniString::FromInteger(static_cast<long long>(random() >> 1));
}

template <class Key>
std::vector<Key> MakeKeys(std::int64_t count, unsigned int seed) {
  std::mt19937_64 random(seed);
  std::vector<Key> keys;
  for (std::int64_t i = 0; i < count; ++i) keys.push_back(MakeKey(random, static_cast<Key*>(nullptr)));
  return keys;
}

template <class Key>
std::vector<Key> Shuffled(std::vector<Key> keys) {
  std::shuffle(keys.begin(), keys.end(), std::mt19937_64(3));
  return keys;
}

/// One vocabulary for the two kinds of table.
template <class Key>
struct Ours {
  using KeyType = Key;
  TW::HashTable<Key, Value> table;

  void Insert(const Key& key, Value value) { table.Add(key, value); }
  const Value* Find(const Key& key) const { return table.Find(key); }
  void Erase(const Key& key) { table.Remove(key); }
  Value Sum() const {
    Value sum = 0;
    for (const auto& entry : table) sum += entry.value;
    return sum;
  }
};

template <class Key>
struct Standard {
  using KeyType = Key;
  std::unordered_map<Key, Value> table;

  void Insert(const Key& key, Value value) { table.emplace(key, value); }
  const Value* Find(const Key& key) const {
    const auto found = table.find(key);
    return found == table.end() ? nullptr : &found->second;
  }
  void Erase(const Key& key) { table.erase(key); }
  Value Sum() const {
    Value sum = 0;
    for (const auto& entry : table) sum += entry.second;
    return sum;
  }
};

template <class Table>
Table Filled(const std::vector<typename Table::KeyType>& keys) {
  Table table;
  for (const auto& key : keys) table.Insert(key, 1);
  return table;
}

void CountItems(benchmark::State& state) { state.SetItemsProcessed(state.iterations() * state.range(0)); }

template <class Table>
void Insert(benchmark::State& state) {
  const auto keys = MakeKeys<typename Table::KeyType>(state.range(0), 1);
  for (auto _ : state) {
    Table table = Filled<Table>(keys);
    benchmark::DoNotOptimize(table);
  }
  CountItems(state);
}

template <class Table>
void FindEach(benchmark::State& state, const Table& table, const std::vector<typename Table::KeyType>& asked) {
  for (auto _ : state)
    for (const auto& key : asked) benchmark::DoNotOptimize(table.Find(key));
  CountItems(state);
}

template <class Table>
void FindHit(benchmark::State& state) {
  const auto keys = MakeKeys<typename Table::KeyType>(state.range(0), 1);
  FindEach(state, Filled<Table>(keys), Shuffled(keys));
}

template <class Table>
void FindMiss(benchmark::State& state) {
  using Key = typename Table::KeyType;
  FindEach(state, Filled<Table>(MakeKeys<Key>(state.range(0), 1)), MakeKeys<Key>(state.range(0), 2));
}

template <class Table>
void Iterate(benchmark::State& state) {
  const Table table = Filled<Table>(MakeKeys<typename Table::KeyType>(state.range(0), 1));
  for (auto _ : state) benchmark::DoNotOptimize(table.Sum());
  CountItems(state);
}

template <class Table>
void Erase(benchmark::State& state) {
  const auto keys = MakeKeys<typename Table::KeyType>(state.range(0), 1);
  const Table full = Filled<Table>(keys);
  const auto removed = Shuffled(keys);
  for (auto _ : state) {
    state.PauseTiming();
    Table table = full;
    state.ResumeTiming();
    for (const auto& key : removed) table.Erase(key);
    benchmark::DoNotOptimize(table);
  }
  CountItems(state);
}

}  // namespace

#define QX_COMPARE(work)                                     \
  BENCHMARK(work<Ours<Guid>>)->Arg(1000)->Arg(1000000);      \
  BENCHMARK(work<Standard<Guid>>)->Arg(1000)->Arg(1000000);  \
  BENCHMARK(work<Ours<UniString>>)->Arg(1000)->Arg(1000000); \
  BENCHMARK(work<Standard<UniString>>)->Arg(1000)->Arg(1000000)

QX_COMPARE(Insert);
QX_COMPARE(FindHit);
QX_COMPARE(FindMiss);
QX_COMPARE(Iterate);
QX_COMPARE(Erase);
