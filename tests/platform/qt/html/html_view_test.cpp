#include "platform/qt/html/html_view.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QFile>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>
#include <memory>
#include <vector>

#include "html_testing.h"
#include "platform/qt/html/html_loader.h"

namespace skyloft::testing {
namespace {

using Answer = std::function<void(QByteArray)>;

QByteArray Png(const QSize& size, const QColor& color) {
  QImage picture(size, QImage::Format_RGB32);
  picture.fill(color);
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  picture.save(&buffer, "PNG");
  return buffer.data();
}

void Click(HtmlView& view, const QPoint& at) {
  for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
    QMouseEvent event(type, at, view.mapToGlobal(QPointF(at)), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(&view, &event);
  }
}

void Roll(HtmlView& view, int notches) {
  QWheelEvent event({5, 5}, {5, 5}, {}, {0, 120 * notches}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                    false);
  QApplication::sendEvent(&view, &event);
}

void Press(QWidget& view, Qt::Key key) {
  QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
  QApplication::sendEvent(&view, &event);
}

class HtmlViewTest : public ::testing::Test {
 protected:
  HtmlViewTest() {
    Application();
    services_.fetch = [this](const QString& url, Answer answer) {
      asked_.emplace_back(url, std::move(answer));
    };
    services_.open_link = [this](const QString& url) { opened_.push_back(url); };
    services_.play_sound = [this](const QString& path) { played_.push_back(path); };
  }
  std::unique_ptr<HtmlView> MakeView(const std::string& page, const QSize& size = {200, 100}) {
    auto view = std::make_unique<HtmlView>(services_);
    view->resize(size);
    view->SetDocument(page);
    return view;
  }
  void RunEvents() {
    for (int i = 0; i < 5; ++i) QApplication::processEvents();
  }

  HtmlServices services_;
  std::vector<std::pair<QString, Answer>> asked_;
  std::vector<QString> opened_, played_;
};

TEST_F(HtmlViewTest, LinkIsPostedAndClickTold) {
  const auto view =
      MakeView("<body topmargin=0 leftmargin=0><a href='http://a.example/x?y=1&amp;z=2'>MMMMMMMM</a>");
  int clicks = 0;
  view->clicked = [&] { ++clicks; };
  Click(*view, {20, 8});
  EXPECT_EQ(clicks, 1);
  EXPECT_TRUE(opened_.empty());  // not inside the click
  RunEvents();
  ASSERT_EQ(opened_.size(), 1u);
  EXPECT_EQ(opened_[0], "http://a.example/x?y=1&z=2");
  Click(*view, {20, 90});  // beside the link
  RunEvents();
  EXPECT_EQ(clicks, 2);
  EXPECT_EQ(opened_.size(), 1u);
}

TEST_F(HtmlViewTest, AClickWithTheRightButtonIsToldApart) {
  const auto view = MakeView("<a href=x>MMMM</a>");
  int left = 0, right = 0;
  view->clicked = [&] { ++left; };
  view->secondary_clicked = [&] { ++right; };
  for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
    QMouseEvent event(type, QPointF(20, 16), QPointF(20, 16), Qt::RightButton,
                      type == QEvent::MouseButtonPress ? Qt::RightButton : Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(view.get(), &event);
  }
  EXPECT_EQ(right, 1);
  EXPECT_EQ(left, 0);
  RunEvents();
  EXPECT_TRUE(opened_.empty());
}

TEST_F(HtmlViewTest, TabGoesThroughTheLinksAndEnterFollowsTheOneReached) {
  auto view = MakeView(
      "<html><body><a href='http://one.example/'>one</a> <br><br><br><br><br><br><br><br>"
      "<a href='mailto:two@home.example'>two</a></body></html>");
  Press(*view, Qt::Key_Return);
  RunEvents();
  EXPECT_TRUE(opened_.empty()) << "none is reached";
  const QImage before = view->grab().toImage();
  Press(*view, Qt::Key_Tab);
  EXPECT_NE(view->grab().toImage(), before) << "the link is framed";
  Press(*view, Qt::Key_Return);
  Press(*view, Qt::Key_Tab);
  EXPECT_NE(view->grab().toImage().copy(0, 0, 60, 20), before.copy(0, 0, 60, 20)) << "scrolled to the link";
  Press(*view, Qt::Key_Enter);
  Press(*view, Qt::Key_Backtab);
  Press(*view, Qt::Key_Return);
  RunEvents();
  EXPECT_EQ(opened_,
            (std::vector<QString>{"http://one.example/", "mailto:two@home.example", "http://one.example/"}));
}

TEST_F(HtmlViewTest, AScreenReaderFindsTheWordsOfThePage) {
  auto view = MakeView(
      "<html><head><title>Not this</title></head><body><table><tr><td>Temp</td><td><b>4</b>9<br>F"
      "</td></tr></table><p>Caf\xe9 &amp;\n bar</p></body></html>");
  EXPECT_EQ(view->accessibleDescription(), QString::fromUtf8("Temp 49 F Caf\u00e9 & bar"));
  view->SetDocument("<html></html>");
  EXPECT_EQ(view->accessibleDescription(), "");
}

TEST_F(HtmlViewTest, LinkUnderTheMouseKeepsItsLookAndChangesTheCursor) {
  const auto view = MakeView(
      "<style>a:hover{font-weight:bold}</style><body topmargin=0 leftmargin=0><a href='x'><font "
      "color=#ff0000>MMMMMMMM</font></a>");
  const QImage before = Grab(*view);
  EXPECT_EQ(view->cursor().shape(), Qt::ArrowCursor);
  QMouseEvent move(QEvent::MouseMove, QPointF(20, 8), QPointF(20, 8), Qt::NoButton, Qt::NoButton,
                   Qt::NoModifier);
  QApplication::sendEvent(view.get(), &move);
  EXPECT_EQ(Grab(*view), before);
  EXPECT_EQ(view->cursor().shape(), Qt::PointingHandCursor);
}

TEST_F(HtmlViewTest, ClickMayEndTheView) {
  auto view = MakeView("<a href=x>MMMM</a>");
  view->clicked = [&] { view.reset(); };
  Click(*view, {20, 16});
  RunEvents();
  EXPECT_EQ(view, nullptr);
}

TEST_F(HtmlViewTest, RemotePictureComesLater) {
  const auto view = MakeView("<body topmargin=0 leftmargin=0><img src='http://a.example/x.png'>");
  EXPECT_FALSE(view->Idle());
  EXPECT_TRUE(
      asked_.empty());  // a fetch may run the event loop, so it does not start while the page is laid out
  RunEvents();
  ASSERT_EQ(asked_.size(), 1u);
  asked_[0].second(Png({30, 20}, Qt::red));
  EXPECT_FALSE(view->Idle());  // not shown yet
  RunEvents();
  EXPECT_TRUE(view->Idle());
  EXPECT_EQ(Extent(Grab(*view), Qt::red), QRect(0, 0, 30, 20));
}

TEST_F(HtmlViewTest, AtMostFourFetchesAtATime) {
  std::string page;
  for (int i = 0; i < 9; ++i) page += "<img src='http://a.example/" + std::to_string(i) + ".png'>";
  const auto view = MakeView(page + page);  // each address once
  RunEvents();
  EXPECT_EQ(asked_.size(), 4u);
  for (std::size_t done = 0; done < 9; ++done) {
    ASSERT_GT(asked_.size(), done);
    asked_[done].second({});
    RunEvents();
    EXPECT_EQ(asked_.size(), std::min<std::size_t>(9, done + 5));
  }
  EXPECT_TRUE(view->Idle());
}

TEST_F(HtmlViewTest, RemoteStyleSheetAppliesWhenItComes) {
  const auto view = MakeView("<link rel='stylesheet' href='http://a.example/s.css'><body><p>x");
  RunEvents();
  ASSERT_EQ(asked_.size(), 1u);
  asked_[0].second("body { background-color: #00ff00 }");
  RunEvents();
  EXPECT_EQ(Grab(*view).pixelColor(100, 90), QColor(0, 255, 0));
  EXPECT_TRUE(view->Idle());
  EXPECT_EQ(asked_.size(), 1u);  // not asked for again
}

TEST_F(HtmlViewTest, TheProgramsOwnStyleSheetAppliesAtOnceAndIsNotFetched) {
  services_.own_sheet = [](const QString& url) {
    return url == "http://a.example/own.css" ? QByteArray("body { background-color: #00ff00 }")
                                             : QByteArray();
  };
  const auto view = MakeView("<link rel='stylesheet' href='http://a.example/own.css'><body><p>x");
  EXPECT_TRUE(view->Idle());
  EXPECT_EQ(Grab(*view).pixelColor(100, 90), QColor(0, 255, 0));
  RunEvents();
  EXPECT_TRUE(asked_.empty());
}

TEST_F(HtmlViewTest, ViewRemovedDuringAFetchDoesNoHarm) {
  auto view = MakeView("<img src='http://a.example/x.png'><a href=x>x</a>");
  RunEvents();
  ASSERT_EQ(asked_.size(), 1u);
  view.reset();
  asked_[0].second(Png({30, 20}, Qt::red));
  RunEvents();
}

TEST_F(HtmlViewTest, ViewRemovedInsideAFetchDoesNoHarm) {
  std::unique_ptr<HtmlView> view;
  services_.fetch = [&](const QString&, const Answer& answer) {
    view.reset();
    answer({});
  };
  view = MakeView("<img src='http://a.example/1.png'><img src='http://a.example/2.png'>");
  RunEvents();
  EXPECT_EQ(view, nullptr);
}

TEST_F(HtmlViewTest, AnswerOfAFormerDocumentIsNotShown) {
  const auto view = MakeView("<img src='http://a.example/x.png'>");
  RunEvents();
  view->SetDocument("<p>new");
  EXPECT_TRUE(view->Idle());
  ASSERT_EQ(asked_.size(), 1u);
  asked_[0].second(Png({30, 20}, Qt::red));
  asked_[0].second(Png({30, 20}, Qt::red));  // a second answer counts for nothing
  RunEvents();
  EXPECT_EQ(Count(Grab(*view), Qt::red), 0);
}

TEST_F(HtmlViewTest, AnswerAtOnceIsShown) {
  services_.fetch = [](const QString&, const Answer& answer) { answer(Png({30, 20}, Qt::red)); };
  const auto view = MakeView("<img src='http://a.example/x.png'>");
  RunEvents();
  EXPECT_EQ(Count(Grab(*view), Qt::red), 600);
}

TEST_F(HtmlViewTest, SoundPlaysOnce) {
  const auto view =
      MakeView("<link rel=stylesheet href='http://a.example/s.css'><bgsound src='C:\\wav\\warning.wav'>x");
  RunEvents();
  ASSERT_EQ(asked_.size(), 1u);
  asked_[0].second("p { color: red }");  // builds the document anew
  RunEvents();
  EXPECT_EQ(played_, std::vector<QString>{"C:\\wav\\warning.wav"});
}

TEST_F(HtmlViewTest, EveryDocumentPlaysItsFirstSoundIfThatIsALocalFile) {
  const std::pair<const char*, std::vector<QString>> cases[] = {
      {"<html><head><bgsound src='file:C:\\a b\\w.wav'></head><body>x", {"C:\\a b\\w.wav"}},
      {"<bgsound src='file:C:\\1.wav'><bgsound src='file:C:\\2.wav'>", {"C:\\1.wav"}},
      {"<bgsound src='file:'>", {}},
      {"<bgsound src=''>", {}},
      {"<bgsound>", {}},
      {"<bgsound src='http://a.example/w.wav'>", {}},
      {"<bgsound src='/etc/w.wav'>", {}},
      {"no sound", {}}};
  const auto view = MakeView("");
  for (const auto& [page, played] : cases) {
    for (int loads = 0; loads < 2; ++loads) {
      played_.clear();
      view->SetDocument(page);
      EXPECT_TRUE(played_.empty()) << "not while the page is laid out";
      RunEvents();
      EXPECT_EQ(played_, played) << page;
    }
  }
  EXPECT_TRUE(asked_.empty());
}

TEST_F(HtmlViewTest, TallPagesScrollAndShortOnesDoNot) {
  const std::string tall =
      "<body bgcolor=white topmargin=0><div style='height:300px;background:#ff0000'></div>"
      "<div style='height:50px;background:#0000ff'></div>";
  auto view = MakeView(tall);
  EXPECT_EQ(view->DocumentSize().height(), 350);
  EXPECT_EQ(Count(Grab(*view), Qt::blue), 0);
  Roll(*view, -100);
  EXPECT_GT(Count(Grab(*view), Qt::blue), 0);
  Roll(*view, 100);
  EXPECT_EQ(Count(Grab(*view), Qt::blue), 0);
  const QColor bar(0x5b, 0x9b, 0xff);
  EXPECT_GT(Count(Grab(*view), bar), 0);
  view = MakeView("<style>body{overflow:hidden}</style>" + tall);
  EXPECT_EQ(Count(Grab(*view), bar), 0);
  Roll(*view, -100);
  EXPECT_EQ(Count(Grab(*view), Qt::blue), 0);
  EXPECT_EQ(Count(Grab(*MakeView("<p>x")), bar), 0);
}

TEST_F(HtmlViewTest, PictureIsReadAgainWhenItsFileChanged) {
  Drive drive;
  services_.local_path = drive.Services().local_path;
  const std::string page = "<img src='C:\\x.png'>";
  drive.Add("x.png", {10, 10}, Qt::red);
  const auto view = MakeView(page);
  EXPECT_EQ(Count(Grab(*view), Qt::red), 100);
  drive.Add("x.png", {10, 10}, Qt::blue);
  QFile file(services_.local_path("C:\\x.png"));
  ASSERT_TRUE(file.open(QIODevice::ReadWrite));
  ASSERT_TRUE(file.setFileTime(QDateTime::currentDateTime().addSecs(60), QFileDevice::FileModificationTime));
  file.close();
  view->SetDocument(page);
  EXPECT_EQ(Count(Grab(*view), Qt::blue), 100);
}

TEST_F(HtmlViewTest, RefusedAndForeignAddressesShowNothing) {
  std::vector<QString> paths;
  services_.local_path = [&](const QString& path) {
    paths.push_back(path);
    return QString();
  };
  MakeView(
      "<img src='C:\\a.png'><img src='../b.png'><img src='/etc/c.png'><img src='data:image/png;base64,xx'>"
      "<img src='file://host/share/d.png'>");
  RunEvents();
  EXPECT_EQ(paths, std::vector<QString>{"C:\\a.png"});
  EXPECT_TRUE(asked_.empty());
}

TEST(HtmlAddresses, LocalOnesBecomePaths) {
  const std::pair<const char*, const char*> cases[] = {{"C:\\a b\\x.gif", "C:\\a b\\x.gif"},
                                                       {"file:C:\\x.gif", "C:\\x.gif"},
                                                       {"file:///C:/a%20b/x.gif", "C:\\a b\\x.gif"},
                                                       {"FILE://C:/x.gif", "C:\\x.gif"},
                                                       {"http://a.example/C:/x.gif", ""},
                                                       {"x.gif", ""},
                                                       {"/x.gif", ""},
                                                       {"", ""}};
  for (const auto& [address, path] : cases) EXPECT_EQ(LocalPathOf(address), path) << address;
}

}  // namespace
}  // namespace skyloft::testing
