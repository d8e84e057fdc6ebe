#include "platform/qt/print_qt.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QPageSize>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QTemporaryDir>
#include <QTimer>

#include "base/guard.h"
#include "platform/files.h"
#include "platform/qt/drive.h"
#include "platform/qt/html/html_view.h"
#include "platform/qt/page_services.h"

namespace skyloft {
namespace {

class Print : public testing::Test {
 protected:
  Print() { SetUpDrive(folder_.filePath("root"), folder_.filePath("share")); }
  QString Path(const QString& name) const { return folder_.filePath(name); }
  static QByteArray Bytes(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }
  static int PagesOf(const QByteArray& pdf) { return static_cast<int>(pdf.count("/Type /Page\n")); }
  // Prints a page on sheets of 800 by 1000 pixels, without margins.
  int Sheets(const std::string& html) {
    HtmlView view(PageServices());
    view.resize(780, 400);
    view.SetDocument(html);
    {
      QPdfWriter writer(Path("sheets.pdf"));
      writer.setPageSize(QPageSize(QSizeF(600, 750), QPageSize::Point));
      writer.setPageMargins({});
      EXPECT_TRUE(view.PrintTo(writer));
    }
    return PagesOf(Bytes(Path("sheets.pdf")));
  }
  static std::string Table(int rows, int height) {
    std::string html = "<html><body><table width=700>";
    for (int i = 0; i < rows; ++i) html += "<tr><td height=" + std::to_string(height) + ">row</td></tr>";
    return html + "</table></body></html>";
  }

  int argc_ = 0;
  QApplication application_{argc_, nullptr};
  QTemporaryDir folder_;
};

TEST_F(Print, APageThatFitsIsOneSheet) {
  EXPECT_EQ(Sheets(Table(3, 200)), 1);
  EXPECT_EQ(Sheets(""), 1);
}

TEST_F(Print, ASheetEndsBetweenTwoRows) {
  EXPECT_EQ(Sheets(Table(3, 600)), 3) << "two would hold them if they were cut";
  EXPECT_EQ(Sheets(Table(6, 300)), 2);
}

TEST_F(Print, ARowHigherThanASheetIsCut) { EXPECT_EQ(Sheets(Table(1, 1800)), 2); }

TEST_F(Print, IntoAFileAsksForNoPrinter) {
  PrintIntoFile(Path("report.pdf").toStdString());
  WriteFile("C:\\report.htm", Table(2, 30));
  PrintPage("C:\\report.htm", "The name of the print");
  const QByteArray pdf = Bytes(Path("report.pdf"));
  EXPECT_TRUE(pdf.startsWith("%PDF"));
  EXPECT_EQ(PagesOf(pdf), 1);
  EXPECT_TRUE(pdf.contains("/FontName")) << "letters, not a picture of them";
}

TEST_F(Print, OfAFileThatIsMissingIsARunTimeError) {
  PrintIntoFile(Path("report.pdf").toStdString());
  EXPECT_THROW(PrintPage("C:\\nothing.htm", "Nothing"), RuntimeError);
  EXPECT_FALSE(QFile::exists(Path("report.pdf")));
}

TEST_F(Print, OtherwiseThePrintersDialogIsAskedAndCancelPrintsNothing) {
  WriteFile("C:\\report.htm", Table(2, 30));
  bool asked = false;
  QTimer watch;
  QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
    auto* const dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
    if (!dialog) return;
    asked = true;
    dialog->reject();
  });
  watch.start(20);
  PrintPage("C:\\report.htm", "The name of the print");
  EXPECT_TRUE(asked);
  EXPECT_EQ(QDir(folder_.path()).entryList(QDir::Files), QStringList());
}

}  // namespace
}  // namespace skyloft
