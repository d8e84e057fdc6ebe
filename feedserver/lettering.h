// Text on a picture, drawn as lines.
#pragma once

#include <string_view>
#include <vector>

#include "feedserver/canvas.h"

namespace skyloft::feed {

// The lines that write a text whose capitals are `height` pixels high. `corner` is the upper left one of its
// first capital. What the lettering does not know is left blank.
std::vector<std::vector<Pixel>> LettersOf(std::string_view text, Pixel corner, double height);
// Pixels from the first to the last stroke.
double TextWidth(std::string_view text, double height);

// One pixel wide, in the given colour alone.
void WriteHard(Canvas& canvas, std::string_view text, Pixel corner, double height, Colour colour);
// With soft edges; `weight` is the width of the strokes in pixels.
void WriteSoft(Canvas& canvas, std::string_view text, Pixel corner, double height, double weight,
               Colour colour);
// The same on a soft rim that sets it off from a motley ground.
void WriteWithRim(Canvas& canvas, std::string_view text, Pixel corner, double height, double weight,
                  Colour colour, Colour rim);

}  // namespace skyloft::feed
