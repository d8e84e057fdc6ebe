// How the windows look: the style sheet, the fixed captions, the pictures of the bodies.
#pragma once

#include <vector>

#include <QColor>
#include <QPalette>
#include <QRect>
#include <QString>

#include "platform/controls.h"

namespace skyloft {

// The style sheet of all windows.
QString SkinStyle();
// The colours beside it, such as that behind a check mark.
QPalette SkinPalette();

// What has the focus is framed in it.
inline constexpr QColor kFocusColor(0xff, 0xd3, 0x5c);

// Texts that a form shows without a control: each names the list below it.
struct FixedCaption {
  const char* form;
  QRect place;
  const char* text;  // with the letter that opens the list marked
  const char* list;
};
const std::vector<FixedCaption>& FixedCaptions();

// The picture behind a form's controls, a path of the program; "" for a plain window.
std::string BodyPicture(const Form& form);

// The font of the windows' controls, of 12 pixels: Tahoma where it is installed, else the nearest. Pages have
// their own.
void SetFont();

}  // namespace skyloft
