// How much falls from air of some wetness, so that the sum of a climate comes out.
#pragma once

namespace skyloft::feed {

// For wetness that is normally distributed with the mean 0 and the variance 1.
struct Rainfall {
  double threshold = 0;  // the wetness from which on anything falls
  double strength = 0;   // inches of water an hour for each square of the wetness above it

  double Rate(double wetness) const;  // inches of water an hour; less than a hundredth is nothing
};

// What has a mean of `rate` inches an hour over all hours, wet and dry, and of `wet_rate` over those above
// the threshold; both above 0. Source: moments of the truncated normal distribution, N. L. Johnson, S. Kotz
// and N. Balakrishnan, Continuous Univariate Distributions 1, 1994, section 13.10; its quantile after M.
// Abramowitz and I. A. Stegun, Handbook of Mathematical Functions, 1964, formula 26.2.23.
Rainfall RainfallOf(double rate, double wet_rate);

}  // namespace skyloft::feed
