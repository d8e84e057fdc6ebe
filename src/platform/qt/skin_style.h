// How the windows look: the style sheet, the fixed captions, the pictures of the bodies.
#pragma once

#include <vector>

#include <QPalette>
#include <QRect>
#include <QString>

#include "platform/controls.h"

namespace skyloft {

// The style sheet of all windows.
QString SkinStyle();
// The colours beside it, such as that behind a check mark.
QPalette SkinPalette();

// Texts that a form shows without a control.
struct FixedCaption {
  const char* form;
  QRect place;
  const char* text;
};
const std::vector<FixedCaption>& FixedCaptions();

// The picture behind a form's controls, a path of the program; "" for a plain window.
std::string BodyPicture(const Form& form);

// The font of the windows' controls; pages have their own.
void SetFont();

}  // namespace skyloft
