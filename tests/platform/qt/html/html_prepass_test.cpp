#include "platform/qt/html/html_prepass.h"

#include <gtest/gtest.h>

namespace skyloft {
namespace {

std::string Repeat(std::string_view text, int count) {
  std::string all;
  while (count-- > 0) all += text;
  return all;
}

int CountOf(std::string_view text, std::string_view word) {
  int count = 0;
  for (std::size_t at = text.find(word); at != text.npos; at = text.find(word, at + 1)) ++count;
  return count;
}

struct TidyCase {
  const char *name, *page, *tidy;
};

class HtmlPrepass : public ::testing::TestWithParam<TidyCase> {};

TEST_P(HtmlPrepass, Tidies) { EXPECT_EQ(TidyHtml(GetParam().page), GetParam().tidy); }

const TidyCase kCases[] = {
    {"Empty", "", ""},
    {"Text", "a & b &nbsp; \x93", "a & b &nbsp; \x93"},
    {"LowerCase", "<B>x</B>", "<b>x</b>"},
    {"OpenTagEndsAtNext", "<p bgColor=#003399   <B align=center>x",
     "<p bgcolor=\"#003399\"><b align=\"center\">x"},
    {"OpenTagEndsAtEndTag", "<p align=left </p>x", "<p align=\"left\"></p>x"},
    {"ValueEndsAtNextTag", "<p align=left<b>x", "<p align=\"left\"><b>x"},
    {"OpenTagAtTheEnd", "<p align=left", "<p align=\"left\">"},
    {"Quotes", "<p a='1' b=\"2\" c=3>", "<p a=\"1\" b=\"2\" c=\"3\">"},
    {"QuoteInValue", "<p a='say \"x\" > y'>", "<p a=\"say &quot;x&quot; > y\">"},
    {"QuoteNotAfterEquals", "<p a\" b'c d=1>x", "<p a=\"\" bc=\"\" d=\"1\">x"},
    {"QuoteLeftOpen", "<p a='1>x", "<p a=\"1\">x"},
    {"BlanksAroundEquals", "<p a = 1 b>", "<p a=\"1\" b=\"\">"},
    {"ScrollText", "<param name='text' value='it's <b>\"x\"'> y'>\n<param name='speed' value='10'>",
     "<param name=\"text\" value=\"it's &quot;x&quot;'> y\">\n<param name=\"speed\" value=\"10\">"},
    {"ScrollTextBehindItsValue", "<param value='a' name='text'>b>", "<param value=\"a\" name=\"text\">b>"},
    {"SelfClosing", "<br/><hr />", "<br><hr>"},
    {"Less", "5 < 6 <3 <", "5 &lt; 6 &lt;3 &lt;"},
    {"Comment", "a<!-- <b> -- > -->b<!-- open", "ab"},
    {"Declaration", "<!DOCTYPE html><?xml?>a", "a"},
    {"Script", "a<script>if (a<b) '<p>'</SCRIPT>b", "ab"},
    {"Title", "<title><div></title>b", "b"},
    {"StyleIsCopied", "<style> td > p { } </style>b", "<style> td > p { } </style>b"},
    {"UnknownTag", "<o:p>a</o:p><blink>b</blink>", "ab"},
    {"StrayEndTags", "a</br></font>b", "a</br></font>b"},
    {"SpanTooLarge", "<table><td colspan=100000 rowspan=99999999999999999999>",
     "<table><td colspan=\"64\" rowspan=\"64\">"},
    {"SpanTooSmall", "<table><td colspan=0 rowspan=-3>", "<table><td colspan=\"1\" rowspan=\"1\">"},
    {"NumberTooLarge", "<hr width=99999999>", "<hr width=\"10000\">"},
    {"PercentStays", "<hr width=50%>", "<hr width=\"50%\">"},
    {"CellOutsideATable", "<td>a</td>", "a</td>"},
};

INSTANTIATE_TEST_SUITE_P(Table, HtmlPrepass, ::testing::ValuesIn(kCases),
                         [](const auto& test) { return test.param.name; });

TEST(HtmlPrepassBounds, ZeroBytesGo) { EXPECT_EQ(TidyHtml(std::string("a\0b<p\0>", 7)), "ab<p>"); }

TEST(HtmlPrepassBounds, LongPageIsCut) {
  const std::string tidy = TidyHtml(std::string(5'000'000, 'x'));
  EXPECT_EQ(tidy.size(), HtmlLimits::kBytes);
}

TEST(HtmlPrepassBounds, TagsNestToTheLimitAndTheirTextStays) {
  const std::string tidy = TidyHtml(Repeat("<div>", 10'000) + "x" + Repeat("</div>", 10'000));
  EXPECT_EQ(CountOf(tidy, "<div>"), HtmlLimits::kDepth);
  EXPECT_NE(tidy.find('x'), tidy.npos);
}

TEST(HtmlPrepassBounds, TagsBesideEachOtherAreNotNested) {
  for (const char* part : {"<p>x", "<div>x</div>", "<b>x</b>", "<br>", "<p><font>x</font></p>"}) {
    EXPECT_EQ(CountOf(TidyHtml(Repeat(part, 500)), part), 500) << part;
  }
}

// The parser goes on with a format behind the block that it was opened in, and keeps a block open when a
// format around it ends.
TEST(HtmlPrepassBounds, MisnestedTagsCountAsTheParserNestsThem) {
  std::string fonts;
  for (int i = 0; i < 500; ++i) fonts += "<div><font size=" + std::to_string(i) + "></div>";
  EXPECT_LE(CountOf(TidyHtml(fonts), "<font"), HtmlLimits::kDepth);
  EXPECT_LE(CountOf(TidyHtml(Repeat("<b><div></b>", 500)), "<div>"), HtmlLimits::kDepth);
  EXPECT_LE(CountOf(TidyHtml(Repeat("<ul><li>", 500)), "<ul>"), HtmlLimits::kDepth);
}

TEST(HtmlPrepassBounds, InnerTablesBeyondTheLimitBecomeText) {
  const std::string tidy =
      TidyHtml(Repeat("<table><tr><td>", 50) + "x" + Repeat("</td></tr></table>", 50) + "<table><tr><td>y");
  EXPECT_EQ(CountOf(tidy, "<table>"), HtmlLimits::kTables + 1);  // and the one behind
  EXPECT_EQ(CountOf(tidy, "<td>"), HtmlLimits::kTables + 1);
  EXPECT_EQ(CountOf(tidy, "</table>"), HtmlLimits::kTables);
}

TEST(HtmlPrepassBounds, RowsEndAtTheirLimitOfColumns) {
  const std::string tidy = TidyHtml("<table><tr>" + Repeat("<td colspan=2>x</td>", 1000) + "<tr><td>y");
  EXPECT_EQ(CountOf(tidy, "<td colspan"), HtmlLimits::kColumns / 2);
  EXPECT_EQ(CountOf(tidy, "<td>"), 1);
}

TEST(HtmlPrepassBounds, LongStyleSheetGoes) {
  EXPECT_EQ(TidyHtml("<style>" + std::string(HtmlLimits::kStyle + 1, ' ') + "</style>x").find("<style>"),
            std::string::npos);
}

}  // namespace
}  // namespace skyloft
