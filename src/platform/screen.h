// The primary screen. All lengths are twips, 15 a pixel.
#pragma once

namespace skyloft {

struct ScreenSize {
  int width, height;
};
ScreenSize GetScreenSize();

// The part of the screen that no panel of the desktop takes.
struct WorkArea {
  int top, width, height;
};
WorkArea GetWorkArea();

}  // namespace skyloft
