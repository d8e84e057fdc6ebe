#include "setup/email_check.h"

#include "platform/dialogs.h"

namespace skyloft {

bool CheckEmailAddresses(const std::string& first, const std::string& second) {
  const char* error = nullptr;
  if (first.empty() || second.empty()) {
    error = "ERROR: Missing email address detected. Please verify each address.";
  } else if (first != second) {
    error = "ERROR: Invalid email address detected. Please verify each address.";
  }
  if (error) ShowBox(BoxKind::Error, error);
  return !error;
}

}  // namespace skyloft
