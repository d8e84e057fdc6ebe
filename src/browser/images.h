// Product pictures, the small radar picture, and the pictures behind the planner.
#pragma once

#include <string>

namespace skyloft {

// Shows the picture of the selected product and time. Does nothing yet.
void ImageFetch();

// Shows the newest radar picture of a site in Thumbnail. Does nothing yet.
void ThumbnailDisplay(const std::string& prefix, const std::string& site);

// The two pictures behind the bands of the hourly planner, by whole path: those of the night when the sun is
// down at the selected location for more than 40 minutes, else those of the day. Today is the computer's
// date; a sun time that is "" reads as midnight. Without times that can be read both stay as they were.
void Background(std::string& hourly, std::string& daily);

}  // namespace skyloft
