// What a screen reader takes our own widgets for.
#pragma once

namespace skyloft {

// Windows as windows, pages as documents, pictures as pictures. Once, before the first window.
void TellRoles();

}  // namespace skyloft
