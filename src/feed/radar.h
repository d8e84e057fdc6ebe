// Radar: a radar server has the newest picture of a site only, so the program keeps its own frames of each,
// in \temp\ as "nexr.SITE.mmddyyyyhhnn.png", stamped with the GMT time of their download.
#pragma once

#include <string>

#include "base/dates.h"
#include "platform/unseen_controls.h"

namespace skyloft {

inline constexpr int kOldestFrameMinutes = 180;  // older frames are deleted

// Downloads the newest picture of a site that has no fresh frame, and deletes its old ones. Mode 0: the sites
// of all locations, fresh by the radar interval of the options, through the transport reserved for radar; 1:
// that of the selected location, fresh for 15 minutes. Other modes do nothing. A frame whose name holds no
// time ends it.
void GetNexradData(int mode);

// Recolours a picture and writes it as ".png" beside the old one, which is deleted; `path` becomes the new
// one's. A picture that cannot be read or written stays, with its path.
void ConvertRadarImage(std::string& path);

// The address of a radar picture of a location's site; `product` is the part that names its kind.
std::string RadarUrl(const std::string& product, int slot);
// The site of a location, in lower case.
std::string RadarSite(int slot);

// The folder of the downloads.
std::string TempFolder();
// FileList, pointed at that folder as it is now.
const FileList& ListTempFolder();

// Whether a file is a frame of "PREFIX.SITE".
bool IsFrameOf(const std::string& file, const std::string& prefix, const std::string& site);
// The GMT time in a frame's name; raises when there is none.
Date FrameTime(const std::string& file);

// The present time in GMT.
Date PresentGMT();

}  // namespace skyloft
