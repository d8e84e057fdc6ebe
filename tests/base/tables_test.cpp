#include "base/tables.h"

#include <gtest/gtest.h>

#include <limits>

namespace skyloft {
namespace {

TEST(Tables, CellsAreEmptyAtFirst) {
  const Table<int, 3> numbers;
  for (const int number : numbers) EXPECT_EQ(number, 0);
  const Table<std::string, 2> texts;
  EXPECT_EQ(texts[1], "");
  EXPECT_EQ(texts.Size(), 2);
}

TEST(Tables, IndexOutOfBoundsRaises) {
  Table<int, 3> numbers;
  numbers[2] = 7;
  EXPECT_EQ(numbers[2], 7);
  for (const long long index :
       {-1LL, 3LL, std::numeric_limits<long long>::max(), std::numeric_limits<long long>::min()}) {
    EXPECT_THROW(numbers[index], RuntimeError) << index;
  }
}

TEST(Tables, GridChecksRowAndColumn) {
  Grid<int, 2, 3> grid;
  grid[1][2] = 5;
  EXPECT_EQ(grid[1][2], 5);
  EXPECT_EQ(grid[0][2], 0);
  EXPECT_THROW(grid[2][0], RuntimeError);
  EXPECT_THROW(grid[0][3], RuntimeError);
}

TEST(Tables, EqualTablesHaveEqualCells) {
  Table<int, 2> one, other;
  EXPECT_EQ(one, other);
  other[1] = 1;
  EXPECT_NE(one, other);
}

TEST(Tables, ViewWritesIntoItsTable) {
  Table<int, 4> numbers;
  const TableView<int> view(numbers);
  view[3] = 9;
  EXPECT_EQ(numbers[3], 9);
  EXPECT_EQ(view.Size(), 4);
  EXPECT_THROW(view[4], RuntimeError);
  EXPECT_THROW(view[-1], RuntimeError);
}

}  // namespace
}  // namespace skyloft
