// How a form is used without a mouse: the letters that reach its controls with Alt, Enter and Esc, where the
// focus is at first, and what a screen reader calls a control.
#pragma once

#include <unordered_map>

#include <QString>

#include "platform/controls.h"

class QWidget;

namespace skyloft {

// The letters of the labels that name a field and, in a window with a title bar, of its buttons and boxes. No
// two controls that are on show together have the same; where no letter of a caption is free the control has
// none.
std::unordered_map<const Control*, QChar> MnemonicsOf(const Form& form);

// The caption as a Qt control takes it: with its letter marked, if it has one, and nothing else.
QString WithMnemonic(const QString& caption, QChar letter);

// The field that a label names: the text box or list right behind it; nullptr for none.
const Control* FieldOf(const Label& label);

// What a control without a caption is called: by its tool tip, a field as the label and the box right before
// it, any other by a name of its own. "" for a control that shows what it is called.
QString SpokenName(const Control& control);

// Presses the form's default button, or the one that cancels; false when there is none, or when it is off.
bool PressDefault(const Form& form);
bool PressCancel(const Form& form);

// Gives the focus to the first text box inside that is on, else to the first control that the Tab key
// reaches; false when there is none.
bool FocusFirst(QWidget& container);

}  // namespace skyloft
