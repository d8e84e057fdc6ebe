// A file of drawn shapes, one of the *.svg beside this one.
#pragma once

#include <QColor>
#include <QPainter>
#include <QString>
#include <QSvgRenderer>

namespace skyloft::assets {

class SvgSource {
 public:
  // Reads `name`.svg; what has the "currentColor" there gets `color`. Raises std::runtime_error for no
  // picture.
  explicit SvgSource(const QString& name, const QColor& color = Qt::white);

  // Draws all of it, or the elements of these names, apart by blanks, one over the other. A unit of the file
  // is one of the painter. Raises std::runtime_error for a name that is not there.
  void Draw(QPainter& painter) const;
  void Draw(QPainter& painter, const QString& elements) const;
  QSize Size() const { return renderer_.defaultSize(); }
  const QByteArray& Text() const { return text_; }

 private:
  const QString name_;
  QByteArray text_;
  mutable QSvgRenderer renderer_;
};

// The folder of the sources; set once, before the first is read.
void SetSourceFolder(const QString& folder);

}  // namespace skyloft::assets
