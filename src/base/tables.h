// Fixed tables whose index is checked: out of bounds is a run-time error, and nothing grows or wraps.
#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "base/guard.h"

namespace skyloft {

[[noreturn]] inline void RaiseIndex(long long index, std::size_t size) {
  throw RuntimeError("index " + std::to_string(index) + " outside 0 to " + std::to_string(size) + " - 1");
}

// Raises unless 0 <= index < size; returns the index for use in an array.
inline std::size_t CheckedIndex(long long index, std::size_t size) {
  if (index < 0 || static_cast<std::size_t>(index) >= size) RaiseIndex(index, size);
  return static_cast<std::size_t>(index);
}

// A table of N cells, all empty at first.
template <class T, std::size_t N>
class Table {
 public:
  T& operator[](long long index) { return cells_[CheckedIndex(index, N)]; }
  const T& operator[](long long index) const { return cells_[CheckedIndex(index, N)]; }
  static constexpr int Size() { return static_cast<int>(N); }
  auto begin() { return cells_.begin(); }
  auto end() { return cells_.end(); }
  auto begin() const { return cells_.begin(); }
  auto end() const { return cells_.end(); }
  T* Data() { return cells_.data(); }
  bool operator==(const Table&) const = default;

 private:
  std::array<T, N> cells_{};
};

// A grid of Rows by Columns cells: grid[row][column].
template <class T, std::size_t Rows, std::size_t Columns>
using Grid = Table<Table<T, Columns>, Rows>;

// A view of a table of any size, for procedures that fill tables of several sizes.
template <class T>
class TableView {
 public:
  template <std::size_t N>
  TableView(Table<T, N>& table) : cells_(table.Data()), size_(N) {}
  T& operator[](long long index) const { return cells_[CheckedIndex(index, size_)]; }
  int Size() const { return static_cast<int>(size_); }

 private:
  T* cells_;
  std::size_t size_;
};

}  // namespace skyloft
