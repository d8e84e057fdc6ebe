// Texts of the program (windows-1252) and of Qt.
#pragma once

#include <string>

#include <QString>

#include "base/text.h"

namespace skyloft {

inline QString ToQt(const std::string& text) { return QString::fromStdString(ToUtf8(text)); }
inline std::string FromQt(const QString& text) { return FromUtf8(text.toStdString()); }

}  // namespace skyloft
