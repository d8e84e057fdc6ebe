#include "platform/qt/html/html_scroller.h"

#include <gtest/gtest.h>

#include <QCursor>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QTimer>
#include <cstdlib>
#include <functional>
#include <memory>

#include "html_testing.h"
#include "platform/qt/html/html_scroll_text.h"

namespace skyloft::testing {
namespace {

constexpr QSize kBar(400, 35);

// A page as the program writes it for its bar and its strip, the applet 400 by 35 pixels.
std::string ScrollPage(const std::string& text, const std::string& parameters = "") {
  return "<html><head><style>body { overflow:hidden; }</style></head>\r\n"
         "<body bgcolor='FF0000' topmargin='0' leftmargin='0' marginheight='0' marginwidth='0'>\r\n"
         "<table border=0 width='100%'><tr><td align='center'>\r\n"
         "<applet archive='HorizontalPro.jar' code='HorizontalPro.class' width='400' height='35' "
         "viewastext>\r\n"
         "<param name='text'       value='" +
         text + "'>\r\n" +
         (parameters.empty() ? "<param name='speed'      value='10'>\r\n"
                               "<param name='bgColor'    value='FF0000'>\r\n"
                               "<param name='fontColor'  value='FFFF00'>\r\n"
                               "<param name='linkColor'  value='FF0000'>\r\n"
                               "<param name='fontName'   value='Tahoma'>\r\n"
                               "<param name='fontSize'   value='18'>\r\n"
                               "<param name='mousePause' value='off'>\r\n"
                             : parameters) +
         "</applet></td></tr></table></body></html>";
}

class HtmlScrollerTest : public ::testing::Test {
 protected:
  HtmlView& Show(const std::string& page, const QSize& size = kBar) {
    view_.resize(size);
    view_.SetDocument(page);
    view_.show();
    return view_;
  }
  QWidget* Scroller() {
    const auto children = view_.findChildren<QWidget*>();
    return children.size() == 1 ? children[0] : nullptr;
  }
  std::string Text() { return Scroller() ? Scroller()->accessibleName().toStdString() : "(no scroller)"; }
  static void RunFor(int milliseconds) {
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
  }
  bool RunUntil(const std::function<bool()>& reached, int milliseconds = 10000) {
    QElapsedTimer clock;
    clock.start();
    while (!reached() && clock.elapsed() < milliseconds) QApplication::processEvents();
    return reached();
  }
  // Where letters of a colour are seen.
  QRect Letters(const QColor& color = Qt::yellow) { return Extent(Grab(view_), color); }

  QApplication& application_ = Application();
  HtmlView view_{HtmlServices{}};
};

TEST_F(HtmlScrollerTest, TextComesInAtTheRightEdgeAndRunsToTheLeft) {
  Show(ScrollPage("MMMMMMMMMMMMMMMMMMMMMMMMMMMMMM"));
  EXPECT_TRUE(Letters().isNull()) << "still outside";
  EXPECT_EQ(Count(Grab(view_), Qt::red), kBar.width() * kBar.height());
  ASSERT_TRUE(RunUntil([&] { return Letters().left() < 390 && !Letters().isNull(); }));
  EXPECT_NEAR(Letters().right(), 399, 3);  // a letter may leave a pixel or two beside it
  const int before = Letters().left();
  ASSERT_TRUE(RunUntil([&] { return Letters().left() < before - 50; }));
}

TEST_F(HtmlScrollerTest, PaceIsAHundredPixelsASecondAtSpeedTen) {
  Show(ScrollPage("M"));
  ASSERT_TRUE(RunUntil([&] { return !Letters().isNull(); }));
  const int before = Letters().left();
  QElapsedTimer clock;
  clock.start();
  RunFor(1000);
  const auto expected = static_cast<double>(clock.elapsed()) / 10;
  EXPECT_LE(before - Letters().left(), expected + 10);
  EXPECT_GE(before - Letters().left(), expected / 2)
      << "a busy machine may hold it up, but not for half the time";
}

TEST_F(HtmlScrollerTest, TextComesAgainWhenItHasLeft) {
  Show(ScrollPage("M", "<param name='speed' value='100'>"), {100, 35});
  for (int rounds = 0; rounds < 2; ++rounds) {
    ASSERT_TRUE(RunUntil([&] { return Letters().left() > 60; }));
    ASSERT_TRUE(RunUntil([&] { return Letters().isNull(); }));
  }
}

TEST_F(HtmlScrollerTest, StopsWhileItIsHiddenAndGoesOnFromThere) {
  Show(ScrollPage("M"));
  ASSERT_TRUE(RunUntil([&] { return !Letters().isNull(); }));
  view_.hide();
  RunFor(200);
  const QRect before = Letters();
  RunFor(300);
  EXPECT_EQ(Letters(), before);
  view_.show();
  EXPECT_TRUE(RunUntil([&] { return Letters().left() < before.left(); }));
}

// Ticks of the scroller's timer in half a second.
class Ticks : public QObject {
 public:
  explicit Ticks(QObject* watched) { watched->installEventFilter(this); }
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Timer) ++count;
    return false;
  }
  int count = 0;
};

TEST_F(HtmlScrollerTest, HasNoTimerWhileNobodySeesIt) {
  Show(ScrollPage("MMMM"));
  Ticks ticks(Scroller());
  RunFor(300);
  EXPECT_GE(ticks.count, 5);
  const std::pair<const char*, std::function<void()>> ways[] = {
      {"hidden", [&] { view_.hide(); }},
      {"minimised", [&] { view_.showMinimized(); }},
      {"out of its window", [&] { Scroller()->move(500, 0); }}};
  for (const auto& [name, hide] : ways) {
    view_.showNormal();
    Scroller()->move(0, 0);
    RunFor(100);
    hide();
    RunFor(100);
    ticks.count = 0;
    RunFor(300);
    EXPECT_EQ(ticks.count, 0) << name;
  }
  view_.showNormal();
  Scroller()->move(0, 0);
  EXPECT_TRUE(RunUntil([&] { return ticks.count > 0; }));
}

TEST_F(HtmlScrollerTest, DrawnForAPictureAloneItDoesNotMove) {
  view_.resize(kBar);
  view_.SetDocument(ScrollPage("MMMM"));
  Letters();
  RunFor(500);
  EXPECT_TRUE(Letters().isNull());
}

TEST_F(HtmlScrollerTest, ColorsAreSixHexDigitsAndAllElseIsBlack) {
  const std::pair<const char*, QColor> cases[] = {{"00FF00", QColor(0, 255, 0)},
                                                  {"#00ff00", QColor(0, 255, 0)},
                                                  {"00000", Qt::black},
                                                  {"0FF00", Qt::black},
                                                  {"FFF", Qt::black},
                                                  {"FFFFFFFFFFFF", Qt::black},
                                                  {"yellow", Qt::black},
                                                  {"", Qt::black},
                                                  {"GGGGGG", Qt::black}};
  for (const auto& [digits, color] : cases) {
    Show(ScrollPage("x", std::string("<param name='bgColor' value='") + digits + "'>"));
    EXPECT_EQ(Grab(view_).pixelColor(10, 10), color) << digits;
    Show(ScrollPage("MMMMMMM",
                    std::string("<param name='bgColor' value='FF0000'><param name='speed' value='100'>"
                                "<param name='fontColor' value='") +
                        digits + "'>"));
    EXPECT_TRUE(RunUntil([&, c = color] { return !Letters(c).isNull(); })) << digits;
  }
}

TEST_F(HtmlScrollerTest, FontHasItsNameAndSize) {
  for (const auto& [given, pixels] :
       {std::pair("18", 18), {"14", 14}, {"6", 6}, {"0", 14}, {"x", 14}, {"999", 14}}) {
    Show(ScrollPage("x", std::string("<param name='fontSize' value='") + given + "'>"));
    EXPECT_EQ(Scroller()->font().pixelSize(), pixels) << given;
  }
  const QString tahoma = Scroller()->font().family();
  Show(ScrollPage("x", "<param name='fontName' value='DejaVu Serif'>"));
  EXPECT_NE(Scroller()->font().family(), tahoma);
}

TEST_F(HtmlScrollerTest, StandsStillUnderTheMouseWhereThePageSaysSo) {
  view_.move(QCursor::pos() + QPoint(50, 50));  // away from the mouse of this computer
  for (const char* pause : {"on", "off"}) {
    Show(ScrollPage("M", std::string("<param name='mousePause' value='") + pause + "'>"));
    ASSERT_TRUE(RunUntil([&] { return !Letters().isNull(); }));
    view_.setAttribute(Qt::WA_UnderMouse);
    const QRect before = Letters();
    RunFor(300);
    EXPECT_EQ(Letters() == before, std::string_view(pause) == "on");
    view_.setAttribute(Qt::WA_UnderMouse, false);
    EXPECT_TRUE(RunUntil([&] { return Letters().left() < before.left(); }));
  }
}

TEST_F(HtmlScrollerTest, HasTheSizeOfItsTagWithinTheView) {
  const std::tuple<QSize, const char*, QRect> cases[] = {
      {{740, 15}, "width='740' height='15'", {0, 0, 740, 15}},
      {{700, 35}, "width='1280' height='35'", {0, 0, 700, 35}},
      {{200, 100}, "width=100 height=50", {50, 0, 100, 50}},
      {{200, 100}, "", {0, 0, 200, 100}},
      {{200, 100}, "width=-3 height=x", {0, 0, 200, 100}}};
  for (const auto& [size, attributes, place] : cases) {
    Show("<applet " + std::string(attributes) + "><param name='text' value='x'></applet>", size);
    ASSERT_TRUE(Scroller());
    EXPECT_EQ(Scroller()->geometry(), place) << attributes;
  }
  view_.resize(300, 60);
  RunFor(10);
  EXPECT_EQ(Scroller()->geometry(), QRect(0, 0, 300, 60));
}

TEST_F(HtmlScrollerTest, GoesWithItsDocument) {
  Show(ScrollPage("x"));
  EXPECT_TRUE(Scroller());
  view_.SetDocument("<html></html>");
  EXPECT_FALSE(Scroller());
}

TEST_F(HtmlScrollerTest, ShowsTheTextWithoutItsTags) {
  const std::pair<const char*, const char*> cases[] = {
      {"plain", "plain"},
      {"one     two     ", "one     two     "},  // five blanks part two bulletins
      {"line\r\nnext\nlast\tcell", "line next last cell"},
      {"a <b>bold</b> <FONT color=\"#ff0000\">word</FONT>", "a bold word"},
      {"one<br>two<BR/>three<p>four</p>", "one two three four "},
      {"IT'S A 'WATCH'", "IT'S A 'WATCH'"},
      {"say \"x\"", "say \"x\""},
      {"<a href='http://a.example/x'>link</a> & more", "link & more"},
      {"winds < 50 mph > 20", "winds < 50 mph > 20"},
      {"unclosed <b tag", "unclosed <b tag"},
      {"<b unclosed <i>x</i>", "<b unclosed x"},
      {"fish &amp; chips &lt;b&gt; &eacute;&#65;",
       "fish & chips <b> \xC3\xA9"
       "A"},
      {"caf\xE9 \x80", "caf\xC3\xA9 \xE2\x82\xAC"},
      {"<script>alert(1)</script>", "alert(1)"},
      {"<!-- x -->y", "y"},
      {"", ""},
      {"'", "'"},
      {"'>", "'>"},
      {"x' y='z", "x' y='z"},
  };
  for (const auto& [text, shown] : cases) {
    Show(ScrollPage(text));
    EXPECT_EQ(Text(), shown) << text;
    EXPECT_EQ(Grab(view_).pixelColor(5, 5), QColor(Qt::red)) << "the parameters behind it: " << text;
  }
}

TEST_F(HtmlScrollerTest, HostileTextStaysText) {
  for (const char* text : {"'></applet><img src='file:C:\\x.png'><applet>",
                           "<param name='bgColor' value='00FF00'>", "</param></table></body></html>",
                           "<applet>", "<", "<<<>>>", "\"'\"'<\"'", "&", "&#0;", "&#x110000;"}) {
    Show(ScrollPage(text));
    EXPECT_TRUE(Scroller()) << text;
    RunFor(20);
  }
}

// Of memory in use, in kB.
long ResidentMemory() {
  QFile status("/proc/self/status");
  if (!status.open(QIODevice::ReadOnly)) return 0;
  for (const QByteArray& line : status.readAll().split('\n')) {
    if (line.startsWith("VmRSS:")) return std::atol(line.mid(6).trimmed().constData());
  }
  return 0;
}

TEST_F(HtmlScrollerTest, AHundredThousandLettersAreShownFastAndInBoundedMemory) {
  for (const std::string& words : {std::string("SEVERE WEATHER "), std::string("X")}) {
    std::string text;
    while (text.size() < 100'000) text += words;
    const long memory = ResidentMemory();
    QElapsedTimer clock;
    clock.start();
    Show(ScrollPage(text, "<param name='speed' value='100'><param name='fontColor' value='FFFF00'>"));
    EXPECT_LE(clock.elapsed(), 2000);
    EXPECT_EQ(Text().size(), 100'000u) << "beyond that it is cut";
    RunFor(1000);
    clock.start();
    constexpr int kPaints = 100;
    for (int i = 0; i < kPaints; ++i) Scroller()->repaint();
    EXPECT_LE(clock.elapsed(), kPaints * 10) << "10 ms a picture at most";
    EXPECT_LE(ResidentMemory() - memory, 40'000);
  }
}

TEST_F(HtmlScrollerTest, ALongerTextKeepsItsParameters) {
  Show(ScrollPage(std::string(3'000'000, 'x')));
  EXPECT_EQ(Text().size(), 100'000u);
  EXPECT_EQ(Grab(view_).pixelColor(10, 10), QColor(Qt::red));
}

TEST(ScrollText, OfManyOpenTagsIsReadInOnePass) {
  for (const char* piece : {"<a", "<!--", "</", "<b <", "<", ">"}) {
    std::string text;
    while (text.size() < 100'000) text += piece;
    QElapsedTimer clock;
    clock.start();
    EXPECT_FALSE(WithoutTags(text + "x").empty());
    EXPECT_LE(clock.elapsed(), 1000) << piece;
  }
}

}  // namespace
}  // namespace skyloft::testing
