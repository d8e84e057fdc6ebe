#include "platform/qt/control_look.h"

#include <QLabel>

#include "platform/qt/text_qt.h"

namespace skyloft {
namespace {

constexpr int kOneLine = 30;  // pixels; a higher label may have several

}  // namespace

QColor ColorOf(int number) { return QColor(number & 255, (number >> 8) & 255, (number >> 16) & 255); }

bool HasSeveralLines(const Label& label) { return label.Height > kOneLine; }

Qt::Alignment AlignmentOf(const Label& label) {
  const std::string& name = label.Name();
  if (name == "TimeValue") return Qt::AlignRight | Qt::AlignVCenter;
  if (name == "LocationLabel" || name == "SevereWeatherLabel" || name == "PersonalLabel")
    return Qt::AlignCenter;
  return Qt::AlignLeft | (HasSeveralLines(label) ? Qt::AlignTop : Qt::AlignVCenter);
}

QString TipOf(const Control& control) {
  const QString tip = ToQt(control.ToolTip);
  const auto* button = dynamic_cast<const ImageButton*>(&control);
  return button && !button->Key.empty() ? tip + " (" + ToQt(button->Key) + ")" : tip;
}

QString Fitting(QLabel& label, const QString& caption, int width) {
  if (label.wordWrap()) return caption;
  label.ensurePolished();  // the skin's font
  return label.fontMetrics().elidedText(caption, Qt::ElideRight, width);
}

}  // namespace skyloft
