// Message boxes that are answered by a script.
#pragma once

#include "platform/dialogs.h"

namespace skyloft {

// From now on boxes are not shown: each is answered by the next of the answers queued, or by Cancel, and
// printed on stderr.
void AnswerBoxesByScript();
void QueueAnswer(BoxAnswer answer);

}  // namespace skyloft
