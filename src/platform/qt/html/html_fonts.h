// The fonts of pages: names as pages write them, found among what this computer has.
#pragma once

#include <QFont>
#include <QString>

namespace skyloft {

struct HtmlFont {
  QFont font;
  int embolden;         // > 0: draw the text a second time, so many pixels to the right
  int ascent, descent;  // pixels, never closer together than 1.2 of the size
};

// The font for a list of families ("Tahoma, Verdana"), the first that is here or has a stand-in; DejaVu Sans
// when none is. Tahoma is read from the folders where Debian's Wine fonts lie, which are not among the
// desktop's fonts; its bold face is drawn bold only at 9 to 12 dots of the screen, and its lines lie closer
// than pages count on. Sizes are pixels, kept within 1 to 200; up to 13 dots letters are not smoothed, as
// they read best.
HtmlFont FindHtmlFont(const QString& families, int pixels, int weight, bool italic);

}  // namespace skyloft
