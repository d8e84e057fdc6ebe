#include <QStandardPaths>

#include "platform/qt/detached.h"
#include "platform/qt/text_qt.h"
#include "platform/speech.h"

namespace skyloft {

void Speak(const std::string& text) {
  const QString program = QStandardPaths::findExecutable("spd-say");
  if (!program.isEmpty()) StartDetached(program, {"--", ToQt(text)});
}

}  // namespace skyloft
