// The grain of a radar picture: what a radar sees is never smooth.
#pragma once

namespace skyloft::feed {

// The grain repeats itself after so many pixels, both ways.
constexpr int kGrainSide = 256;

// A factor of about 1/6 to 6, mostly near 1, that differs from pixel to pixel.
double GrainAt(int x, int y);

}  // namespace skyloft::feed
