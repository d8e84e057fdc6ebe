// What skies are made of. Pictures of skies are 40 by 30.
#pragma once

#include "drawing.h"

namespace skyloft::assets {

void DrawSky(QPainter& painter, bool night, bool gray);
void DrawSun(QPainter& painter, QPointF center, double radius);
void DrawMoon(QPainter& painter, QPointF center, double radius);
// With a flat base whose middle is at `base`.
void DrawCloud(QPainter& painter, QPointF base, double width, const QColor& top, const QColor& bottom);

}  // namespace skyloft::assets
