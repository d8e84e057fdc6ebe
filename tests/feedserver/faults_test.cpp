#include "feedserver/faults.h"

#include <gtest/gtest.h>

#include "base/guard.h"
#include "scan.h"

namespace skyloft::feed {
namespace {

TEST(Faults, AreReadFromTheirText) {
  const Fault plain = ReadFault("/forecast.asp=refuse");
  EXPECT_EQ(plain.path, "/forecast.asp");
  EXPECT_EQ(plain.query_piece, "");
  EXPECT_EQ(plain.kind, FaultKind::Refuse);
  EXPECT_EQ(plain.first, 1);
  const Fault piece = ReadFault("/forecast.asp?d=meta=wrong-count@3");
  EXPECT_EQ(piece.path, "/forecast.asp");
  EXPECT_EQ(piece.query_piece, "d=meta");
  EXPECT_EQ(piece.kind, FaultKind::WrongCount);
  EXPECT_EQ(piece.first, 3);
}

TEST(Faults, OtherTextsRaise) {
  for (const char* text : {"", "/a", "/a=", "/a=boom", "a=cut", "/a=cut@", "/a=cut@0", "/a=cut@-1",
                           "/a=cut@1x", "/a=cut@99999999999"}) {
    EXPECT_THROW(ReadFault(text), RuntimeError) << text;
  }
}

TEST(Faults, BefallMatchingRequestsOnly) {
  FaultBook book;
  book.Add(ReadFault("/forecast.asp?d=meta=500"));
  book.Add(ReadFault("/forecast.asp=cut@2"));
  EXPECT_EQ(book.Befall("/bulletins.asp", "d=meta"), FaultKind::None);
  EXPECT_EQ(book.Befall("/forecast.asp", "d=current"), FaultKind::None);
  EXPECT_EQ(book.Befall("/forecast.asp", "t=xml&d=meta"),
            FaultKind::ServerError);  // the second request of both
  EXPECT_EQ(book.Befall("/forecast.asp", "d=current"), FaultKind::Cut);
}

Reply Sample() {
  return {
      .body =
          "<?xml version=\"1.0\"?>\n<a>\n<b>1</b>\n<b>2</b>\n<b>3</b>\n<b>4</b>\n<b>5</b>\n<b>6</b>\n</a>\n"};
}

TEST(Faults, WrongCountLeavesOutAndDoubles) {
  const Reply wrong = Spoil(FaultKind::WrongCount, Sample());
  EXPECT_EQ(wrong.status, 200);
  EXPECT_EQ(Values(Scan(wrong.body), "b"), (std::vector<std::string>{"1", "3", "4", "4", "5", "6"}));
}

TEST(Faults, GarbageIsNoXml) {
  const Reply garbage = Spoil(FaultKind::Garbage, Sample());
  EXPECT_EQ(garbage.status, 200);
  pugi::xml_document document;
  EXPECT_FALSE(document.load_buffer(garbage.body.data(), garbage.body.size()));
}

TEST(Faults, HugeIsWellFormed) {
  const Reply huge = Spoil(FaultKind::Huge, Sample());
  EXPECT_GE(huge.body.size(), 64u << 20);
  pugi::xml_document document;
  EXPECT_TRUE(document.load_buffer(huge.body.data(), huge.body.size()));
  EXPECT_STREQ(document.document_element().name(), "a");
}

TEST(Faults, HugePictureStaysAPicture) {
  const std::string picture = std::string("\x89PNG\n<a></a>\n</b>\n\0\n", 21);
  EXPECT_TRUE(Spoil(FaultKind::Huge, {.type = "image/png", .body = picture}).body.starts_with(picture));
}

TEST(Faults, ManyAreTheSameElementsAHundredTimesOver) {
  const Reply reply = Sample();
  const std::size_t elements = Values(Scan(reply.body), "b").size();
  const Reply many = Spoil(FaultKind::Many, reply);
  pugi::xml_document document;
  EXPECT_TRUE(document.load_buffer(many.body.data(), many.body.size()));
  EXPECT_GE(Values(Scan(many.body), "b").size(), 100 * elements);
  EXPECT_LT(many.body.size(), 200 * reply.body.size());
  EXPECT_EQ(ReadFault("/products.12z.sys.4=many").kind, FaultKind::Many);
}

TEST(Faults, BombIsASmallPictureOfHugeSize) {
  const Reply bomb = Spoil(FaultKind::Bomb, Sample());
  EXPECT_EQ(bomb.status, 200);
  EXPECT_EQ(bomb.type, "image/gif");
  EXPECT_LT(bomb.body.size(), 64u);
  EXPECT_TRUE(bomb.body.starts_with("GIF89a"));
  // Width and height, low byte first: 60000 is 0xEA60.
  EXPECT_EQ(bomb.body.substr(6, 4), "\x60\xEA\x60\xEA");
  EXPECT_EQ(ReadFault("/map.gif=bomb@2").kind, FaultKind::Bomb);
}

TEST(Faults, StatusAndEmptyBody) {
  EXPECT_EQ(Spoil(FaultKind::ServerError, Sample()).status, 500);
  EXPECT_EQ(Spoil(FaultKind::Empty, Sample()).status, 200);
  EXPECT_EQ(Spoil(FaultKind::Empty, Sample()).body, "");
}

TEST(Faults, ThoseOfTheConnectionKeepTheContent) {
  for (const FaultKind kind :
       {FaultKind::None, FaultKind::Refuse, FaultKind::Cut, FaultKind::Hang, FaultKind::Drip}) {
    EXPECT_EQ(Spoil(kind, Sample()).body, Sample().body);
  }
}

}  // namespace
}  // namespace skyloft::feed
