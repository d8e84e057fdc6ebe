#include <QPainterPath>
#include <string_view>

#include "drawing.h"

namespace skyloft::assets {
namespace {

enum class Look { Normal, Pressed, Disabled, Lit };

// Glyphs are drawn around (0, 0) in a box of 16 by 16 with the pen and brush of the look.
using DrawGlyph = void (*)(QPainter& painter);

void FillPolygon(QPainter& painter, std::initializer_list<QPointF> points) {
  const QPen pen = painter.pen();
  painter.setPen(Qt::NoPen);
  painter.drawPolygon(QPolygonF(QList<QPointF>(points)));
  painter.setPen(pen);
}

void StrokeLines(QPainter& painter, std::initializer_list<QPointF> points) {
  painter.drawPolyline(QPolygonF(QList<QPointF>(points)));
}

void DrawLetters(QPainter& painter, const QString& letters) {
  QFont font("DejaVu Sans");
  font.setPixelSize(letters.size() > 5 ? 9 : 10);  // a button is 50 wide
  font.setBold(true);
  painter.setFont(font);
  painter.drawText(QRectF(-40, -10, 80, 20), Qt::AlignCenter, letters);
}

void DrawLens(QPainter& painter) {
  painter.setBrush(Qt::NoBrush);
  painter.drawEllipse(QPointF(-1.5, -1.5), 5.5, 5.5);
  StrokeLines(painter, {{2.6, 2.6}, {7, 7}});
  StrokeLines(painter, {{-4, -1.5}, {1, -1.5}});
}

void DrawWave(QPainter& painter, double y) {
  QPainterPath wave({-10, y});
  for (int i = 0; i < 5; ++i) {
    wave.quadTo(-8 + 4 * i, y + (i % 2 ? 3.5 : -3.5), -6 + 4 * i, y);
  }
  painter.setBrush(Qt::NoBrush);
  painter.drawPath(wave);
}

void DrawBell(QPainter& painter) {
  QPainterPath bell({-8, 5});
  bell.cubicTo(-4, 2, -6, -8, 0, -8);
  bell.cubicTo(6, -8, 4, 2, 8, 5);
  bell.closeSubpath();
  painter.fillPath(bell, painter.brush());
  painter.fillRect(QRectF(-1, -10, 2, 3), painter.brush());
  painter.setPen(Qt::NoPen);
  painter.drawEllipse(QPointF(0, 7), 2.4, 1.6);
}

void DrawCircling(QPainter& painter) {
  painter.setBrush(Qt::NoBrush);
  painter.drawArc(QRectF(-6, -6, 12, 12), 150 * 16, -290 * 16);
  StrokeLines(painter, {{-8.5, -4.5}, {-5, -2.5}, {-3, -6.5}});
}

void DrawTornado(QPainter& painter) {
  constexpr double kHalfWidths[] = {9, 7.5, 5.5, 3.5, 2};
  for (int i = 0; i < 5; ++i) {
    const double y = -9 + 4.2 * i, center = i * 0.5;
    StrokeLines(painter, {{center - kHalfWidths[i], y}, {center + kHalfWidths[i], y}});
  }
}

void DrawFlood(QPainter& painter) {
  FillPolygon(painter, {{0, -11}, {8, -4}, {6, -4}, {6, 0}, {-6, 0}, {-6, -4}, {-8, -4}});
  DrawWave(painter, 4);
  DrawWave(painter, 9);
}

struct Button {
  const char* name;
  int width, height;
  bool severe;  // has a lit picture "s" in place of a pressed one "r"
  bool has_disabled;
  DrawGlyph draw;
};

const Button kButtons[] = {
    {"back", 34, 26, false, true,
     [](QPainter& p) {
       FillPolygon(p, {{5, -7}, {-6, 0}, {5, 7}});
     }},
    {"next", 34, 26, false, true,
     [](QPainter& p) {
       FillPolygon(p, {{-6, -7}, {3, 0}, {-6, 7}});
       FillPolygon(p, {{4, -7}, {7, -7}, {7, 7}, {4, 7}});
     }},
    {"play", 34, 26, false, true,
     [](QPainter& p) {
       FillPolygon(p, {{-5, -7}, {7, 0}, {-5, 7}});
     }},
    {"stop", 34, 26, false, true,
     [](QPainter& p) {
       FillPolygon(p, {{-6, -6}, {6, -6}, {6, 6}, {-6, 6}});
     }},
    {"local", 50, 26, false, true, [](QPainter& p) { DrawLetters(p, "LOCAL"); }},
    {"national", 50, 26, false, true, [](QPainter& p) { DrawLetters(p, "NATL"); }},
    {"zmarea", 34, 26, false, true,
     [](QPainter& p) {
       QPen dashes = p.pen();
       dashes.setCapStyle(Qt::FlatCap);
       dashes.setDashPattern({1.5, 1.1});
       p.setPen(dashes);
       p.setBrush(Qt::NoBrush);
       p.drawRect(QRectF(-9, -6, 18, 12));
     }},
    {"zoomin", 34, 26, false, true,
     [](QPainter& p) {
       DrawLens(p);
       StrokeLines(p, {{-1.5, -4}, {-1.5, 1}});
     }},
    {"zoomout", 34, 26, false, true, DrawLens},
    {"reset", 34, 26, false, true, DrawCircling},
    {"exit", 26, 26, false, false,
     [](QPainter& p) {
       StrokeLines(p, {{-5, -5}, {5, 5}});
       StrokeLines(p, {{-5, 5}, {5, -5}});
     }},
    {"help", 26, 26, false, false,
     [](QPainter& p) {
       QPainterPath hook({-3.6, -3});
       hook.cubicTo({-3.6, -8.5}, {4.2, -8.5}, {4, -3.5});
       hook.cubicTo({3.9, -0.8}, {0.2, -0.6}, {0.2, 2.6});
       p.strokePath(hook, p.pen());
       p.fillRect(QRectF(-0.9, 4.8, 2.2, 2.2), p.brush());
     }},
    {"menu", 26, 26, false, false,
     [](QPainter& p) {
       for (const double y : {-5.0, 0.0, 5.0}) StrokeLines(p, {{-6, y}, {6, y}});
     }},
    {"legend", 50, 26, false, false, [](QPainter& p) { DrawLetters(p, "LEGEND"); }},
    {"minimize", 26, 26, false, false,
     [](QPainter& p) {
       StrokeLines(p, {{-6, 5}, {6, 5}});
     }},
    {"tornado", 46, 34, true, true, DrawTornado},
    {"tstorm", 46, 34, true, true,
     [](QPainter& p) {
       FillPolygon(p, {{3, -12}, {-7, 2}, {-1, 2}, {-4, 12}, {7, -3}, {1, -3}});
     }},
    {"flood", 46, 34, true, true, DrawFlood},
    {"personal", 150, 28, true, true, DrawBell},
};

struct Face {
  QColor top, bottom, edge, glyph;
};

Face FaceOf(Look look) {
  switch (look) {
    case Look::Pressed: return {color::kButtonBottom, color::kButtonTop, color::kGold, color::kGold};
    case Look::Disabled: return {color::kOffTop, color::kOffBottom, color::kOffEdge, color::kOffGlyph};
    case Look::Lit: return {{0xff, 0x8a, 0x5c}, {0xc8, 0x2c, 0x16}, {0xff, 0xc0, 0xa0}, Qt::white};
    case Look::Normal: break;
  }
  return {color::kButtonTop, color::kButtonBottom, color::kButtonEdge, color::kWhite};
}

QImage DrawButton(const Button& button, Look look) {
  QImage picture = NewCanvas(button.width, button.height);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  const Face face = FaceOf(look);
  painter.setPen(face.edge);
  painter.setBrush(Downward(button.height, face.top, face.bottom));
  painter.drawRoundedRect(QRectF(0.5, 0.5, button.width - 1, button.height - 1), 6, 6);
  painter.translate(button.width / 2.0, button.height / 2.0 + (look == Look::Pressed ? 1 : 0));
  painter.setPen(QPen(face.glyph, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(face.glyph);
  button.draw(painter);
  return picture;
}

}  // namespace

void DrawButtons(const QString& icons) {
  for (const Button& button : kButtons) {
    const QString name = icons + "/" + button.name;
    WriteGif(name + ".gif", DrawButton(button, Look::Normal));
    if (button.severe) {
      WriteGif(name + "s.gif", DrawButton(button, Look::Lit));
    } else {
      WriteGif(name + "r.gif", DrawButton(button, Look::Pressed));
    }
    if (button.has_disabled) WriteGif(name + "d.gif", DrawButton(button, Look::Disabled));
  }
}

}  // namespace skyloft::assets
