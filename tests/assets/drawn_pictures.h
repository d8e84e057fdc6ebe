// The pictures that the build has drawn, and what their pixels tell.
#pragma once

#include <QColor>
#include <QImage>
#include <QString>
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <string>

namespace skyloft::assets {

inline QString PathOf(const std::string& name) {
  return QString(SHARE_DIR) + "/" + QString::fromStdString(name);
}

// "icons/back.gif" for a display of twice the pixels is "icons/back@2x.png".
inline std::string Scaled(const std::string& name, int scale, const std::string& ending = "png") {
  return name.substr(0, name.rfind('.')) + "@" + std::to_string(scale) + "x." + ending;
}

inline QImage PictureOf(const std::string& name) {
  return QImage(PathOf(name)).convertToFormat(QImage::Format_ARGB32);
}

// The largest difference of a channel.
inline int Distance(QRgb a, QRgb b) {
  return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                   std::abs(qBlue(a) - qBlue(b)), std::abs(qAlpha(a) - qAlpha(b))});
}

// The share of all pixels below the row `top` for which `is` holds.
template <typename Is>
double Share(const QImage& image, Is is, int top = 0) {
  int count = 0;
  for (int y = top; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) count += is(image.pixel(x, y));
  }
  return static_cast<double>(count) / (image.width() * (image.height() - top));
}

// The share of pixels that anybody sees to be different.
inline double Difference(const QImage& a, const QImage& b) {
  int count = 0;
  for (int y = 0; y < a.height(); ++y) {
    for (int x = 0; x < a.width(); ++x) count += Distance(a.pixel(x, y), b.pixel(x, y)) > 48;
  }
  return static_cast<double>(count) / (a.width() * a.height());
}

// The mean of all pixels' distances.
inline double MeanDistance(const QImage& a, const QImage& b) {
  double sum = 0;
  for (int y = 0; y < a.height(); ++y) {
    for (int x = 0; x < a.width(); ++x) sum += Distance(a.pixel(x, y), b.pixel(x, y));
  }
  return sum / (a.width() * a.height());
}

// Relative luminance and contrast as in the Web Content Accessibility Guidelines 2.1: 0 to 1, and 1 to 21.
inline double Luminance(QRgb color) {
  const auto linear = [](int channel) {
    const double c = channel / 255.0;
    return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(qRed(color)) + 0.7152 * linear(qGreen(color)) + 0.0722 * linear(qBlue(color));
}
inline double Contrast(double a, double b) { return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05); }

}  // namespace skyloft::assets
