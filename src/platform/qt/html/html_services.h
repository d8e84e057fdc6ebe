// What the HTML display needs of the program. Every member may be empty: then nothing is found, fetched,
// opened or played. All are called on the view's thread, and never while a page is being laid out or painted,
// except local_path and own_sheet, which must be quick.
#pragma once

#include <QByteArray>
#include <QString>
#include <functional>

namespace skyloft {

struct HtmlServices {
  // "C:\\program files\\skyloft\\icons\\x.gif" -> the file on this computer, "" if it is refused.
  std::function<QString(const QString& path)> local_path;
  // The style sheet of an address that the program holds itself; empty for one that must be fetched.
  std::function<QByteArray(const QString& url)> own_sheet;
  // A remote picture or style sheet; hands over an empty array on failure. May answer at once, later or
  // never.
  std::function<void(const QString& url, std::function<void(QByteArray)>)> fetch;
  std::function<void(const QString& url)> open_link;
  std::function<void(const QString& path)> play_sound;
};

}  // namespace skyloft
