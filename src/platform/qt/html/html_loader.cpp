#include "platform/qt/html/html_loader.h"

#include <QBuffer>
#include <QCache>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QUrl>

#include "platform/qt/scaled_pictures.h"

namespace skyloft {
namespace {

constexpr int kMaxSide = 8192;
constexpr qint64 kMaxPixels = 24'000'000;
constexpr qint64 kMaxFile = 16'000'000;

bool IsRemote(const QString& address) {
  return address.startsWith("http://", Qt::CaseInsensitive) ||
         address.startsWith("https://", Qt::CaseInsensitive);
}

struct LocalPicture {
  QDateTime modified;
  QImage picture;
};

// Decoded pictures of local files by path, shared by all views: 64 MB.
QImage ReadLocalFile(const QString& file) {
  static QCache<QString, LocalPicture> cache(64'000);
  const QFileInfo info(file);
  if (!info.isFile() || info.size() > kMaxFile) return {};
  if (const LocalPicture* known = cache.object(file); known && known->modified == info.lastModified()) {
    return known->picture;
  }
  QFile source(file);
  if (!source.open(QIODevice::ReadOnly)) return {};
  QImage picture = DecodeHtmlPicture(source.read(kMaxFile));
  cache.insert(file, new LocalPicture{info.lastModified(), picture},
               1 + static_cast<int>(picture.sizeInBytes() / 1000));
  return picture;
}

// On displays of more pixels that for them, if there is one that can be read.
QImage ReadLocalPicture(const QString& file) {
  const ScaledFile shown = FileForDisplays(file);
  QImage picture = ReadLocalFile(shown.path);
  if (picture.isNull()) return ReadLocalFile(file);
  picture.setDevicePixelRatio(shown.scale);
  return picture;
}

}  // namespace

QString LocalPathOf(const QString& address) {
  QString path = address.trimmed();
  if (path.startsWith("file:", Qt::CaseInsensitive)) {
    path.remove(0, 5);
    while (path.startsWith('/') || path.startsWith('\\')) path.remove(0, 1);
    path = QUrl::fromPercentEncoding(path.toUtf8());
  }
  const bool has_drive =
      path.size() > 2 && path[0].isLetter() && path[1] == ':' && (path[2] == '\\' || path[2] == '/');
  return has_drive ? path.replace('/', '\\') : QString();
}

QImage DecodeHtmlPicture(const QByteArray& bytes) {
  QImageReader::setAllocationLimit(128);  // megabytes
  QBuffer buffer;
  buffer.setData(bytes);
  buffer.open(QIODevice::ReadOnly);
  QImageReader reader(&buffer);
  const QSize size = reader.size();
  if (size.isEmpty() || size.width() > kMaxSide || size.height() > kMaxSide) return {};
  if (qint64{size.width()} * size.height() > kMaxPixels) return {};
  return reader.read();
}

QImage HtmlLoader::Picture(const QString& address) {
  if (IsRemote(address)) return AskFor(address, false).picture;
  if (const auto known = locals_.constFind(address); known != locals_.constEnd()) return *known;
  const QString path = LocalPathOf(address);
  const QString file = path.isEmpty() || !services_.local_path ? QString() : services_.local_path(path);
  return *locals_.insert(address, file.isEmpty() ? QImage() : ReadLocalPicture(file));
}

QByteArray HtmlLoader::StyleSheet(const QString& address) {
  if (const QByteArray own = services_.own_sheet ? services_.own_sheet(address) : ""; !own.isEmpty())
    return own;
  return IsRemote(address) ? AskFor(address, true).bytes : QByteArray();
}

HtmlLoader::Remote& HtmlLoader::AskFor(const QString& url, bool sheet) {
  auto known = remotes_.find(url);
  if (known == remotes_.end()) {
    known = remotes_.insert(url, {sheet, {}, {}});
    if (services_.fetch) {
      waiting_.enqueue(url);
      ++awaited_;
    }
  }
  return *known;
}

void HtmlLoader::BeginDocument() {
  ++document_;
  remotes_.clear();
  locals_.clear();
  waiting_.clear();
  awaited_ = 0;
}

void HtmlLoader::StartFetches() {
  const auto alive = shared_from_this();  // a fetch may run the event loop, and the view's end with it
  while (running_ < kFetches && !waiting_.isEmpty()) Start(waiting_.dequeue());
}

void HtmlLoader::Start(const QString& url) {
  ++running_;
  const auto answered = std::make_shared<bool>(false);  // a second answer counts for nothing
  services_.fetch(url,
                  [self = weak_from_this(), answered, url, document = document_](const QByteArray& bytes) {
                    const auto loader = self.lock();
                    if (!loader || std::exchange(*answered, true)) return;
                    --loader->running_;
                    loader->Take(url, document, bytes);
                  });
}

void HtmlLoader::Take(const QString& url, int document, const QByteArray& bytes) {
  if (document == document_) {
    --awaited_;
    Remote& remote = remotes_[url];
    if (remote.sheet && bytes.size() <= kMaxSheet) remote.bytes = bytes;
    if (!remote.sheet && bytes.size() <= kMaxPicture) remote.picture = DecodeHtmlPicture(bytes);
    changed_(remote.sheet);
  } else {
    changed_(false);  // a place is free for what waits
  }
}

}  // namespace skyloft
