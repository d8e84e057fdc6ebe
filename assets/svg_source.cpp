#include "svg_source.h"

#include <QFile>
#include <stdexcept>

namespace skyloft::assets {
namespace {

QString& SourceFolder() {
  static QString folder;
  return folder;
}

}  // namespace

void SetSourceFolder(const QString& folder) { SourceFolder() = folder; }

SvgSource::SvgSource(const QString& name, const QColor& color) : name_(name + ".svg") {
  QFile file(SourceFolder() + "/" + name_);
  if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error("cannot read " + name_.toStdString());
  text_ = file.readAll().replace("currentColor", color.name().toLatin1());
  if (!renderer_.load(text_)) throw std::runtime_error("no picture: " + name_.toStdString());
}

void SvgSource::Draw(QPainter& painter) const { renderer_.render(&painter, renderer_.viewBoxF()); }

// Where an element lies is said by the file alone: drawn into its own bounds, it is neither moved nor
// stretched.
void SvgSource::Draw(QPainter& painter, const QString& elements) const {
  for (const QString& element : elements.split(' ')) {
    if (!renderer_.elementExists(element)) {
      throw std::runtime_error(name_.toStdString() + " has no " + element.toStdString());
    }
    renderer_.render(&painter, element, renderer_.boundsOnElement(element));
  }
}

}  // namespace skyloft::assets
