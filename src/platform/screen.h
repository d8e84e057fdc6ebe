// The primary screen. All lengths are twips, 15 a pixel.
#pragma once

namespace skyloft {

// Dots per inch of the desktop; the program is made for 96.
int DotsPerInch();

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
