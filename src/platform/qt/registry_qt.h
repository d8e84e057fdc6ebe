// The real store: registry.ini in the folder given.
#pragma once

#include <QString>

namespace skyloft {

// Call before the first use of the store.
void SetUpStore(const QString& folder);

}  // namespace skyloft
