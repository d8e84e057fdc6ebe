// Pictures and style sheets of pages, local and remote.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QImage>
#include <QQueue>
#include <QString>
#include <functional>
#include <memory>

#include "platform/qt/html/html_services.h"

namespace skyloft {

// The path in an address of a local file: "file:C:\x.gif", "file:///C:/x.gif" and "C:\x.gif" are "C:\x.gif".
// "" for any other address.
QString LocalPathOf(const QString& address);

// Decodes a picture; empty for what is none and for one of more than 8192 pixels a side or 24 million in all,
// which is refused before it is decoded. Of an animation the first frame.
QImage DecodeHtmlPicture(const QByteArray& bytes);

// Lives in a shared pointer, so that an answer that comes after the view's end finds nothing.
class HtmlLoader : public std::enable_shared_from_this<HtmlLoader> {
 public:
  // `changed` is called when a remote picture (false) or style sheet (true) has arrived.
  HtmlLoader(const HtmlServices& services, std::function<void(bool sheet)> changed)
      : services_(services), changed_(std::move(changed)) {}

  // The picture of an address, of a local one that for the displays, with its ratio of pixels; empty when
  // there is none (yet). A document keeps what it was given; local files are read again for a later document
  // when they have changed. Remote ones are asked for by the first call.
  QImage Picture(const QString& address);
  // The same for the text of a style sheet, the program's own or a remote one.
  QByteArray StyleSheet(const QString& address);

  // A new document: nothing that was asked for before matters any more.
  void BeginDocument();
  // Starts what is waiting, at most 4 at a time. Not inside the engine: a fetch may run the event loop.
  void StartFetches();
  bool Idle() const { return awaited_ == 0; }
  bool HasWaiting() const { return !waiting_.isEmpty(); }

 private:
  struct Remote {
    bool sheet = false;
    QByteArray bytes;  // of a style sheet
    QImage picture;
  };

  Remote& AskFor(const QString& url, bool sheet);
  void Start(const QString& url);
  void Take(const QString& url, int document, const QByteArray& bytes);

  static constexpr int kFetches = 4;
  static constexpr qsizetype kMaxPicture = 8'000'000, kMaxSheet = 16'000;  // bytes

  const HtmlServices services_;
  const std::function<void(bool sheet)> changed_;
  QHash<QString, Remote> remotes_;
  QHash<QString, QImage> locals_;
  QQueue<QString> waiting_;
  int running_ = 0, awaited_ = 0, document_ = 0;
};

}  // namespace skyloft
