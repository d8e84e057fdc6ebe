// How a control looks by its model.
#pragma once

#include <QColor>
#include <QString>

#include "platform/controls.h"

class QLabel;

namespace skyloft {

// Numbers of the program hold blue, green, red from the highest byte down.
QColor ColorOf(int number);

bool HasSeveralLines(const Label& label);
Qt::Alignment AlignmentOf(const Label& label);

// The purpose of a button, and its key.
QString TipOf(const Control& control);

// A caption as a label of one line shows it: what does not fit into so many pixels ends in dots.
QString Fitting(QLabel& label, const QString& caption, int width);

}  // namespace skyloft
