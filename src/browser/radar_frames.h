// The radar pictures of the temp folder on show: the frames of a site, and the single picture of the
// precipitation products.
#pragma once

#include <string>

namespace skyloft {

// Lists the frames of a site in TimeSelection, by their time at the selected location
// ("02:15 PM CST 03/07/03"), and shows the last. Old frames are deleted. The files sort by month first, so
// that the frames of December follow those of January, which is meant.
void NexradLoad(const std::string& prefix, const std::string& site);

// Shows the frame of the selected entry, found by the entry's text, and puts the view over the location.
void NexradDisplay(const std::string& prefix, const std::string& site);

// Fetches the picture at an address, and shows it as the one entry "Latest".
void GetLatestImage(const std::string& url);

// Shows the picture that GetLatestImage fetched.
void ShowLatestImage();

}  // namespace skyloft
