#include "platform/shell.h"

#include <cstdio>

#include <QDesktopServices>
#include <QUrl>

#include "platform/qt/text_qt.h"

namespace skyloft {

void OpenLink(const std::string& address) {
  const QUrl url(ToQt(address), QUrl::StrictMode);
  const QString scheme = url.scheme();
  if (scheme == "http" || scheme == "https" || scheme == "mailto") QDesktopServices::openUrl(url);
}

// No signature can be checked yet, so no file counts as signed.
void StartUpdate(const std::string& path) {
  std::fprintf(stderr, "skyloft: the update %s is not signed; it was not started\n", path.c_str());
}

}  // namespace skyloft
