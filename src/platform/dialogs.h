// Message boxes. The call returns when the user has answered; events go on meanwhile.
#pragma once

#include <string>

namespace skyloft {

enum class BoxKind {
  Error,     // critical icon, OK
  Question,  // question icon, Yes and No
  Update     // information icon, OK and Cancel
};
enum class BoxAnswer { Ok, Cancel, Yes, No };

// A box closed without a choice answers Ok (Error), No (Question) or Cancel (Update).
BoxAnswer ShowBox(BoxKind kind, const std::string& text);

}  // namespace skyloft
