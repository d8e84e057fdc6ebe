#include "platform/qt/print_qt.h"

#include <cstdio>

#include <QCoreApplication>
#include <QPrintDialog>
#include <QPrinter>

#include "platform/files.h"
#include "platform/qt/html/html_view.h"
#include "platform/qt/page_services.h"
#include "platform/qt/text_qt.h"

namespace skyloft {
namespace {

constexpr int kPageWidth = 760;  // pixels that a page is laid out for

QString& PrintFile() {
  static QString file;
  return file;
}

// Without a printer the dialog offers a PDF only.
bool ChoosePrinter(QPrinter& printer) {
  if (PrintFile().isEmpty()) return QPrintDialog(&printer).exec() == QDialog::Accepted;
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(PrintFile());
  return true;
}

}  // namespace

void PrintIntoFile(const std::string& file) { PrintFile() = QString::fromLocal8Bit(file.c_str()); }

void PrintPage(const std::string& path, const std::string& title) {
  HtmlView page(PageServices());
  page.resize(kPageWidth, kPageWidth);
  page.SetDocument(ReadFile(path));
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(ToQt(title));
  if (!ChoosePrinter(printer)) return;
  while (!page.Idle()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  if (!page.PrintTo(printer)) std::fprintf(stderr, "skyloft: cannot print\n");
}

}  // namespace skyloft
