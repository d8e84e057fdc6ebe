// The pictures of catalogue products, the small radar picture, and the pictures behind the planner.
#pragma once

#include <string>

#include "base/tables.h"

namespace skyloft {

// Names of the frames of the product named last, by place; FrameUrl, their addresses, is saved with the
// locations.
extern Table<std::string, 67> FramePath;

// Names the frames of the selected product, and shows the one of the selected time: the file in the temp
// folder if it is at most six hours old, else it is fetched first. Without the file the former picture stays.
// A picture that is no series ends the product's range; those that are of no run are always fetched. Every
// name with an hour also sets ForecastTimer to the hour's text. Nothing for a code outside the table.
void ImageFetch();

// Shows the newest radar picture of a site in Thumbnail; without one it stays.
void ThumbnailDisplay(const std::string& prefix, const std::string& site);

// The two pictures behind the bands of the hourly planner, by whole path: those of the night when the sun is
// down at the selected location, more than 40 minutes and in another hour of the clock, else those of the
// day. Today is the computer's date; a sun time that is "" reads as midnight. Without times that can be read
// both stay as they were.
void Background(std::string& hourly, std::string& daily);

// Attaches the click on Thumbnail, which shows the first product of the radar unless the player runs.
void ConnectImages();

}  // namespace skyloft
