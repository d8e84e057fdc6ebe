// Message boxes that are answered by a script.
#pragma once

#include "platform/dialogs.h"

namespace skyloft {

// From now on boxes are not shown: each is answered by the next of the answers queued, or by Cancel, and
// printed on stderr.
void AnswerBoxesByScript();
void QueueAnswer(BoxAnswer answer);
// From now on a box without an answer waits, while events go on, as long as `answer_is_to_come` says that one
// will be queued; nullptr for not.
void LetBoxesWait(bool (*answer_is_to_come)());

}  // namespace skyloft
