#include "feedserver/query.h"

#include <gtest/gtest.h>

namespace skyloft::feed {
namespace {

TEST(Query, ValuesKeepTheirOrder) {
  const Query query("pc=66044&d=meta&pc=33131&pc=");
  EXPECT_EQ(query.All("pc"), (std::vector<std::string_view>{"66044", "33131", ""}));
  EXPECT_EQ(query.First("d"), "meta");
  EXPECT_EQ(query.First("x"), "");
  EXPECT_FALSE(query.Has("x"));
}

TEST(Query, EscapesAreResolved) {
  EXPECT_EQ(Query("st=3%2F7%2F03+9%3A00%3A00+PM").First("st"), "3/7/03 9:00:00 PM");
  EXPECT_EQ(Query("a%3Db=c%26d").First("a=b"), "c&d");
  EXPECT_EQ(ResolveEscapes("100%"), "100%");
  EXPECT_EQ(ResolveEscapes("%4"), "%4");
  EXPECT_EQ(ResolveEscapes("%zz%-1%41"), "%zz%-1A");
}

TEST(Query, OddTextsAreNoTrouble) {
  EXPECT_TRUE(Query("").All("").empty());
  EXPECT_TRUE(Query("pc").Has("pc"));
  EXPECT_EQ(Query("&&pc=1&").First("pc"), "1");
  EXPECT_EQ(Query("a=b=c").First("a"), "b=c");
}

}  // namespace
}  // namespace skyloft::feed
