#include "feedserver/log.h"

#include <gtest/gtest.h>

#include "base/guard.h"

namespace skyloft::feed {
namespace {

TEST(Log, LineIsOneObject) {
  const LogEntry entry{"GET", "/forecast.asp", "d=meta", "HTTP/1.0", "Skyloft", 200, 330};
  EXPECT_EQ(LogLine(entry, "2003-03-07T14:05:00.123Z"),
            R"({"time":"2003-03-07T14:05:00.123Z","method":"GET","path":"/forecast.asp","query":"d=meta",)"
            R"("http":"HTTP/1.0","agent":"Skyloft","status":200,"bytes":330})");
}

TEST(Log, TextsAreEscaped) {
  LogEntry entry;
  entry.agent = "a\"b\\c\n\x01\xE9";
  EXPECT_NE(LogLine(entry, "").find("\"agent\":\"a\\\"b\\\\c\\u000a\\u0001\xC3\xA9\""), std::string::npos);
}

TEST(Log, FileThatCannotBeWrittenRaises) { EXPECT_THROW(RequestLog("/no/such/folder/log"), RuntimeError); }

}  // namespace
}  // namespace skyloft::feed
