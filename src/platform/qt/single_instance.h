// One program a user and root folder: the first stays, a later start calls it forward and ends.
// Who is first is told by a lock that lives as long as its process; the call goes over a socket beside the
// lock, in the user's run-time folder (XDG_RUNTIME_DIR, else a folder of the user's own among the temporary
// ones).
#pragma once

#include <functional>

#include <QString>

namespace skyloft {

// Whether this process is the first with that root folder, which must be there. If not, the first has come
// forward when this returns; one that does not answer in ten seconds is told of on stderr. Where no lock can
// be kept, which is told too, every process counts as the first.
bool BecomeFirst(const QString& root);

// Does `come_forward` from the event loop for each later start; needs the application. Calls of other users
// are refused, and so is what says nothing or anything else.
void AnswerLaterStarts(std::function<void()> come_forward);

}  // namespace skyloft
