#include "feed/xml_readers.h"

#include "settings/settings.h"
#include "station.h"

namespace skyloft {
namespace {

class Readers : public Station {
 protected:
  int count = 99;
  int items = 99;
};

std::string Repeat(const std::string& tag, int times) {
  std::string elements;
  for (int i = 0; i < times; ++i) elements += Element(tag, std::to_string(i));
  return Reply(elements);
}

TEST_F(Readers, AnAbsentTagGivesCountMinusOneAndLeavesTheValue) {
  const XmlDocument document("<r><other/></r>");
  std::string value = "kept";
  ReadXmlValue(document, "tag", value, count);
  EXPECT_EQ(count, -1);
  EXPECT_EQ(value, "kept");
  TextList list(5);
  count = 99;
  ReadXmlList(document, "tag", list, count);
  EXPECT_EQ(count, -1);
}

TEST_F(Readers, AValueIsTheFirstMatchAndASecondValueTheSecond) {
  const XmlDocument document("<r><a>1</a><b><a>2</a></b></r>");
  std::string value;
  ReadXmlValue(document, "a", value, count);
  EXPECT_EQ(value, "1");
  EXPECT_EQ(count, 1);
  ReadXmlSecondValue(document, "a", value, count);
  EXPECT_EQ(value, "2");
}

TEST_F(Readers, WithThreeLocationsAnd180MatchesLocationOneBeginsAtMatch60) {
  const XmlDocument document(Repeat("Tf", 180));
  QueryGrid grid;
  ReadXmlGrid(document, "Tf", grid, 2, count, items);
  EXPECT_EQ(count, 179);
  EXPECT_EQ(items, 59);
  EXPECT_EQ(grid[1][0], "60");
  EXPECT_EQ(grid[2][59], "179");
}

TEST_F(Readers, RunLengthsAreCutOffAndMatchesLeftOverAreDropped) {
  const XmlDocument document(Repeat("Tf", 8));
  QueryGrid grid;
  ReadXmlGrid(document, "Tf", grid, 2, count, items);
  EXPECT_EQ(items, 1);
  EXPECT_EQ(grid[2][1], "5");
}

TEST_F(Readers, ARunBeyondTheTableKeepsTheFilledCellsAndHasItsCounts) {
  const XmlDocument document(Repeat("Tf", 68));
  QueryGrid grid;
  ReadXmlGrid(document, "Tf", grid, 0, count, items);
  EXPECT_EQ(count, 67);
  EXPECT_EQ(items, 67);
  EXPECT_EQ(grid[0][66], "66");
}

TEST_F(Readers, AListBeyondItsBoundKeepsTheFilledCells) {
  const XmlDocument document(Repeat("Tf", 7));
  TextList list(5);
  ReadXmlList(document, "Tf", list, count);
  EXPECT_EQ(count, 6);
  EXPECT_EQ(list[4], "4");
}

TEST_F(Readers, AnOddListTakesMatches1And3And5) {
  const XmlDocument document(Repeat("City", 6));
  TextList list(5);
  ReadXmlOddList(document, "City", list, 2, count, items);
  EXPECT_EQ(count, 5);
  EXPECT_EQ(items, 1);
  EXPECT_EQ(list[0], "1");
  EXPECT_EQ(list[1], "3");
  EXPECT_EQ(list[2], "5");
}

TEST_F(Readers, AnOddListOfSingleMatchesLeavesTheUpperCells) {
  const XmlDocument document(Repeat("City", 3));
  TextList list(5);
  for (int i = 0; i < 3; ++i) list.Put(i, "kept");
  ReadXmlOddList(document, "City", list, 2, count, items);
  EXPECT_EQ(list[0], "1");
  EXPECT_EQ(list[1], "kept");
  EXPECT_EQ(list[2], "kept");
}

TEST_F(Readers, ACellThatNoReplyFilledIsARunTimeError) {
  const TextList list(5);
  EXPECT_THROW(list[0], RuntimeError);
  EXPECT_THROW(list[5], RuntimeError);
}

TEST_F(Readers, IconAndWindCellsAreConvertedAsTheyAreRead) {
  const XmlDocument document("<r><Ic>scloudy.gif</Ic><Wd>205 </Wd></r>");
  QueryGrid grid;
  ReadXmlIconGrid(document, "Ic", grid, 0, count, items);
  EXPECT_EQ(grid[0][0], "C:\\program files\\skyloft\\icons\\scloudy.gif");
  ReadXmlWindGrid(document, "Wd", grid, 0, count, items);
  EXPECT_EQ(grid[0][0], "SSW");
}

TEST_F(Readers, FewerMatchesThanBeforeOverwriteOnlyTheirCells) {
  QueryGrid grid;
  ReadXmlGrid(XmlDocument(Repeat("Tf", 10)), "Tf", grid, 0, count, items);
  ReadXmlGrid(XmlDocument("<r><Tf>new</Tf></r>"), "Tf", grid, 0, count, items);
  EXPECT_EQ(grid[0][0], "new");
  EXPECT_EQ(grid[0][9], "9");
}

struct DocumentCase {
  const char* name;
  std::string text;
  int count;
  std::string first;
};

class Documents : public ::testing::TestWithParam<DocumentCase> {};

TEST_P(Documents, Elements) {
  const XmlDocument document(GetParam().text);
  ASSERT_EQ(document.Count("a"), GetParam().count);
  if (GetParam().count > 0) {
    EXPECT_EQ(document.Text("a", 0), GetParam().first);
  }
  EXPECT_THROW(document.Text("a", GetParam().count), RuntimeError);
}

INSTANTIATE_TEST_SUITE_P(
    Xml, Documents,
    ::testing::Values(
        DocumentCase{"Nothing", "", 0, ""}, DocumentCase{"NotXml", "hello <a>1</a", 0, ""},
        DocumentCase{"CutOffIsEmpty", "<r><a>1</a><a>2</a>", 0, ""},
        DocumentCase{"BlanksAreKept", "<r><a>  1 </a></r>", 1, "  1 "},
        DocumentCase{"OnlyBlanks", "<r><a>   </a></r>", 1, "   "},
        DocumentCase{"TextOfDescendants", "<r><a>x<b>y</b>z</a></r>", 1, "xyz"},
        DocumentCase{"BlanksNextToElementsAreLayout", "<r><a> <b>x </b>\n<b> y</b> z</a></r>", 1, "x  y z"},
        DocumentCase{"TextBehindASection", "<r><a><![CDATA[x]]> <b/>y</a></r>", 1, "xy"},
        DocumentCase{"Entities", "<r><a>&lt;&amp;&#65;</a></r>", 1, "<&A"},
        DocumentCase{"Section", "<r><a><![CDATA[<b>]]></a></r>", 1, "<b>"},
        DocumentCase{"CaseCounts", "<r><A>1</A></r>", 0, ""},
        DocumentCase{"Utf8BecomesOneByte", "<r><a>\xC3\xA9\xE2\x82\xAC</a></r>", 1, "\xE9\x80"},
        DocumentCase{"Unknown", "<r><a>\xE4\xB8\xAD</a></r>", 1, "?"},
        DocumentCase{"Declared", "<?xml version='1.0' encoding='windows-1252'?><r><a>\xE9\x80</a></r>", 1,
                     "\xE9\x80"},
        DocumentCase{"UndeclaredAndNotUtf8", "<r><a>caf\xE9</a></r>", 1, "caf\xE9"},
        DocumentCase{"Empty", "<r><a/></r>", 1, ""}),
    [](const auto& each) { return each.param.name; });

TEST(Xml, ADeepDocumentIsReadWithoutRecursion) {
  std::string text;
  for (int i = 0; i < 200000; ++i) text += "<a>";
  text += "x";
  for (int i = 0; i < 200000; ++i) text += "</a>";
  const XmlDocument document(text);
  EXPECT_EQ(document.Count("a"), 200000);
  EXPECT_EQ(document.Text("a", 0), "x");
}

}  // namespace
}  // namespace skyloft
