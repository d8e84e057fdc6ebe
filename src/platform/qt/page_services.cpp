#include "platform/qt/page_services.h"

#include <QTimer>

#include "base/guard.h"
#include "feed/addresses.h"
#include "platform/files.h"
#include "platform/qt/drive.h"
#include "platform/qt/http_qt.h"
#include "platform/qt/text_qt.h"
#include "platform/shell.h"
#include "platform/sound.h"

namespace skyloft {
namespace {

// The style sheet that pages link to: the rules that every page shares.
constexpr const char* kSharedStyle = "body { font-family: Tahoma; font-size: 11px; }\n";

QString LocalFile(const QString& path) {
  const auto file = PathForReading(FromQt(path));
  return file ? *file : QString();
}

QByteArray OwnSheet(const QString& url) {
  return url == kStyleSheet ? QByteArray(kSharedStyle) : QByteArray();
}

void FetchForPage(const QString& url, const std::function<void(QByteArray)>& done) {
  FetchLater(FromQt(url), [done](const std::string& reply) { done(QByteArray::fromStdString(reply)); });
}

}  // namespace

void FetchPage(const std::string& address, const std::function<void(std::string)>& done) {
  if (address.find("://") != std::string::npos) {
    FetchLater(address, done);
    return;
  }
  std::string document;
  Guarded([&] { document = ReadFile(address); });
  done(document);
}

HtmlServices PageServices() {
  return {.local_path = LocalFile,
          .own_sheet = OwnSheet,
          .fetch = FetchForPage,
          .open_link = [](const QString& url) { OpenLink(FromQt(url)); },
          .play_sound = [](const QString& path) { PlaySound(FromQt(path)); }};
}

}  // namespace skyloft
