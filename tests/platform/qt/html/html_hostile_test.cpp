// Pages that want to do harm: each is shown within a second of computing time and without a crash.
#include <gtest/gtest.h>

#include <QFile>
#include <ctime>

#include "html_testing.h"
#include "platform/qt/html/html_loader.h"

namespace skyloft::testing {
namespace {

// The sanitizers' memory management takes several times as long.
#ifdef __SANITIZE_ADDRESS__
constexpr double kSeconds = 4;
#else
constexpr double kSeconds = 1;
#endif

std::string Repeat(std::string_view text, int count) {
  std::string all;
  while (count-- > 0) all += text;
  return all;
}

std::string Fonts() {
  std::string page;
  for (int i = 0; i < 60; ++i) page += "<font color=#" + std::to_string(100000 + i) + ">";
  return page + Repeat("<p>x</p>", 20'000);
}

struct HostilePage {
  const char* name;
  std::string (*make)();
};

const HostilePage kPages[] = {
    {"NestedTags", [] { return Repeat("<div>", 10'000) + "x"; }},
    {"NestedFormats", [] { return Repeat("<b><i>", 10'000) + "x"; }},
    {"NestedLists", [] { return Repeat("<ul><li>", 5'000); }},
    {"NestedFloats", [] { return Repeat("<div style='float:left'>", 100) + "x"; }},
    {"NestedInlineBlocks", [] { return Repeat("<span style='display:inline-block'>", 100) + "x"; }},
    {"NestedTables", [] { return Repeat("<table><tr><td>", 50) + "x"; }},
    {"NestedTablesWithText",
     [] { return Repeat("<table border=1 width=100%><td>a few words of text<td>b<td>", 50); }},
    {"OpenFonts", Fonts},
    {"HugeSpans",
     [] {
       return std::string("<table><td colspan=100000 rowspan=100000>x<tr><td rowspan=999999999>y</table>");
     }},
    {"ManySpans",
     [] { return "<table>" + Repeat("<tr><td colspan=64 rowspan=64>x<td colspan=64 rowspan=3>y", 500); }},
    {"ManyCells",
     [] { return "<table border=1 width=540>" + Repeat("<tr>" + Repeat("<td width='8%'>x", 200), 200); }},
    {"FiveMegabytes", [] { return Repeat("word <b>bold</b> ", 330'000); }},
    {"FiveMegabytesOneWord", [] { return std::string(5'000'000, 'x'); }},
    {"FiveMegabytesOfLess", [] { return std::string(5'000'000, '<'); }},
    {"EndlessAttribute", [] { return "<p title=\"" + std::string(5'000'000, 'a'); }},
    {"EndlessQuotes", [] { return "<p " + Repeat("a=\" ", 1'000'000); }},
    {"ManyRules",
     [] { return "<style>" + Repeat("td,p{color:red} ", 990) + "</style>" + Repeat("<p>x", 20'000); }},
    {"LongSelectors",
     [] {
       return "<style>" + Repeat("a b i u p{color:red} ", 700) + "</style>" + Repeat("<b>", 50) +
              Repeat("<p>x", 20'000);
     }},
    {"ManyFloats",
     [] { return Repeat("<img align=left width=10 height=10>", 5'000) + Repeat("word ", 20'000); }},
    {"TablePartsElsewhere",
     [] {
       return "<style>*{display:table-cell}</style>" +
              Repeat("<div style='display:table-row'><p style='display:inherit'>x", 20) +
              "<table><tr style='display:block'><td style='display:inline'>x";
     }},
    {"ManyLines", [] { return "<pre>" + Repeat("x\n", 200'000); }},
    {"ManyBreaks", [] { return Repeat("<br>", 100'000); }},
    {"ManyEntities", [] { return Repeat("&#147;&#xFFFFFFFFFF;&", 50'000); }},
    {"HugeNumbers",
     [] {
       return std::string(
           "<body topmargin=2147483647><p style='font-size:99999999px;line-height:1e30;margin:-1e30px'>x<img "
           "src='C:\\x.png' width=999999999 height=999999999 hspace=2147483647><table cellpadding=2147483647 "
           "cellspacing=2147483647 border=2147483647><td>x");
     }},
};

class HtmlHostile : public ::testing::TestWithParam<HostilePage> {};

TEST_P(HtmlHostile, IsShownInTime) {
  Application();
  const std::string page = GetParam().make();
  HtmlView view(HtmlServices{});
  view.resize(600, 400);
  Grab(view);  // fonts are found once a process
  const std::clock_t start = std::clock();
  view.SetDocument(page);
  Grab(view);
  EXPECT_LT(static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC, kSeconds);
  view.SetDocument("<body bgcolor=red>");  // and it goes on
  EXPECT_EQ(Count(Grab(view), Qt::red), 600 * 400);
}

INSTANTIATE_TEST_SUITE_P(Table, HtmlHostile, ::testing::ValuesIn(kPages),
                         [](const auto& test) { return test.param.name; });

// A picture whose header promises 60000 by 60000 pixels: 14 GB.
TEST(HtmlHostilePictures, HugePictureIsRefusedBeforeItIsDecoded) {
  const QByteArray gif = QByteArray::fromHex("474946383961") +
                         QByteArray::fromHex("60ea60ea800000000000ffffff") +
                         QByteArray::fromHex("2c0000000060ea60ea00020244013b");
  const QByteArray bmp = QByteArray::fromHex(
      "424d3600000000000000360000002800000060ea000060ea000001001800000000000000"
      "0000130b0000130b00000000000000000000");
  for (const QByteArray& picture : {gif, bmp}) EXPECT_TRUE(DecodeHtmlPicture(picture).isNull());
  // The same small ones are pictures.
  EXPECT_EQ(DecodeHtmlPicture(QByteArray(gif).replace("\x60\xea", QByteArray::fromHex("0100"))).size(),
            QSize(1, 1));
}

TEST(HtmlHostilePictures, RubbishIsNoPicture) {
  EXPECT_TRUE(DecodeHtmlPicture({}).isNull());
  EXPECT_TRUE(DecodeHtmlPicture("GIF89a").isNull());
  EXPECT_TRUE(DecodeHtmlPicture("<svg width='99999999' height='99999999'/>").isNull());
}

}  // namespace
}  // namespace skyloft::testing
