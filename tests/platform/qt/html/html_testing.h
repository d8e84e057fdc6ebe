// Shows pages without a display and looks at their pixels.
#pragma once

#include <QApplication>
#include <QColor>
#include <QFile>
#include <QImage>
#include <QRect>
#include <QTemporaryDir>
#include <algorithm>
#include <string>

#include "platform/qt/html/html_view.h"

namespace skyloft::testing {

// The application that widgets need, once a process.
inline QApplication& Application() {
  static int count = 1;
  static char name[] = "test";
  static char* arguments[] = {name, nullptr};
  static QApplication& application =
      *new QApplication(count, arguments);  // must not end after Qt's own statics
  return application;
}

// A folder that stands for the drive: "C:\x.png" is x.png in it.
class Drive {
 public:
  // A picture of one colour.
  void Add(const QString& name, const QSize& size, const QColor& color) const {
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(color);
    picture.save(folder_.filePath(name));
  }
  // A picture of which every pixel has a colour of its own.
  static QColor PixelAt(int x, int y) { return {40 + 10 * x, 10 * y, 99}; }
  void AddPixels(const QString& name, const QSize& size) const {
    QImage picture(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
      for (int x = 0; x < size.width(); ++x) picture.setPixelColor(x, y, PixelAt(x, y));
    }
    picture.save(folder_.filePath(name));
  }
  void AddBytes(const QString& name, const QByteArray& bytes) const {
    QFile file(folder_.filePath(name));
    if (file.open(QIODevice::WriteOnly)) file.write(bytes);
  }
  HtmlServices Services() const {
    HtmlServices services;
    services.local_path = [this](const QString& path) { return folder_.filePath(path.section('\\', -1)); };
    return services;
  }

 private:
  const QTemporaryDir folder_;
};

inline QImage Grab(HtmlView& view) { return view.grab().toImage().convertToFormat(QImage::Format_RGB32); }

inline QImage Show(const std::string& page, const QSize& size, const HtmlServices& services = {}) {
  Application();
  HtmlView view(services);
  view.resize(size);
  view.SetDocument(page);
  return Grab(view);
}

inline int Count(const QImage& image, const QColor& color, QRect area = {}) {
  if (area.isNull()) area = image.rect();
  int count = 0;
  for (int y = area.top(); y <= area.bottom(); ++y) {
    for (int x = area.left(); x <= area.right(); ++x) count += image.pixelColor(x, y) == color;
  }
  return count;
}

// The smallest rectangle that holds every pixel of a colour; null for none.
inline QRect Extent(const QImage& image, const QColor& color) {
  QRect extent;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (image.pixelColor(x, y) == color) extent |= QRect(x, y, 1, 1);
    }
  }
  return extent;
}

}  // namespace skyloft::testing
