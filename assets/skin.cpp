#include <QPainterPath>
#include <random>

#include "drawing.h"

namespace skyloft::assets {
namespace {

void DrawNightSky(QPainter& painter, const QSize& size, int stars) {
  QLinearGradient sky = Downward(size.height(), color::kWindow, color::kWindowDeep);
  sky.setColorAt(0.3, color::kWindowDark);
  painter.fillRect(QRect(QPoint(), size), sky);
  std::minstd_rand random(20);
  for (int star = 0; star < stars; ++star) {
    const auto x = static_cast<int>(random() % static_cast<unsigned>(size.width()));
    const auto y = static_cast<int>(random() % static_cast<unsigned>(size.height()));
    painter.fillRect(x, y, 1, 1, QColor(190, 215, 255, static_cast<int>(20 + random() % 70)));
  }
}

// The mark: a rising arc around a bright point, in a box of 100 by 100.
void DrawMark(QPainter& painter, const QRectF& box) {
  painter.save();
  painter.translate(box.topLeft());
  painter.scale(box.width() / 100, box.height() / 100);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(color::kAccent, 11, Qt::SolidLine, Qt::RoundCap));
  painter.drawArc(QRectF(12, 14, 76, 76), 75 * 16, 150 * 16);
  painter.setPen(QPen(color::kWhite, 7, Qt::SolidLine, Qt::RoundCap));
  painter.drawArc(QRectF(30, 32, 42, 42), 80 * 16, 130 * 16);
  painter.setPen(Qt::NoPen);
  painter.setBrush(color::kGold);
  painter.drawEllipse(QPointF(64, 62), 14, 14);
  painter.restore();
}

void DrawName(QPainter& painter, const QPointF& baseline, int pixels) {
  QFont font("DejaVu Sans");
  font.setPixelSize(pixels);
  font.setBold(true);
  font.setLetterSpacing(QFont::AbsoluteSpacing, pixels / 16.0);
  painter.setFont(font);
  painter.setPen(color::kWhite);
  painter.drawText(baseline, "SKYLOFT");
}

// The window is cut to the round rectangle (0, -2) to (800, 590) whose corner ellipses are 110 by 96.
QImage DrawMainForm() {
  QImage picture = NewCanvas(800, 590);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  QPainterPath shape, rim;
  shape.addRoundedRect(QRectF(0, -2, 800, 592), 55, 48);
  rim.addRoundedRect(QRectF(1, -1, 798, 590), 54, 47);
  painter.setClipPath(shape);
  DrawNightSky(painter, picture.size(), 260);
  painter.setPen(QPen(QColor(0x2f, 0x55, 0x96), 2));
  painter.drawPath(rim);
  DrawMark(painter, {34, 10, 25, 25});
  DrawName(painter, {62, 28}, 16);
  return picture;
}

QImage DrawSplash() {
  QImage picture = NewCanvas(420, 200);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  DrawNightSky(painter, picture.size(), 160);
  QRadialGradient dawn(QPointF(210, 260), 250);
  dawn.setColorAt(0, QColor(255, 211, 92, 130));
  dawn.setColorAt(1, Qt::transparent);
  painter.fillRect(picture.rect(), dawn);
  DrawMark(painter, {48, 48, 92, 92});
  DrawName(painter, {152, 110}, 42);
  painter.setPen(QPen(QColor(0x2f, 0x55, 0x96), 2));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(QRectF(1, 1, 418, 198));
  return picture;
}

QImage DrawAppIcon(int size) {
  QImage picture = NewCanvas(size, size);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(size / 128.0, size / 128.0);
  painter.setPen(QPen(color::kButtonEdge, 3));
  painter.setBrush(Downward(128, color::kWindow.lighter(130), color::kWindowDark));
  painter.drawRoundedRect(QRectF(3, 3, 122, 122), 26, 26);
  DrawMark(painter, {16, 14, 96, 96});
  return picture;
}

// The arrow of the lists.
QImage DrawArrow() {
  QImage picture = NewCanvas(10, 6);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(QColor(159, 182, 230), 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPolyline(QPolygonF({{1, 1}, {5, 5}, {9, 1}}));
  return picture;
}

}  // namespace

void DrawSkin(const QString& skin) {
  WritePicture(skin + "/arrow.png", DrawArrow());
  WritePicture(skin + "/mainform.png", DrawMainForm());
  WritePicture(skin + "/splash.png", DrawSplash());
  WritePicture(skin + "/app.png", DrawAppIcon(128));
  WritePicture(skin + "/tray.png", DrawAppIcon(22));
}

}  // namespace skyloft::assets
