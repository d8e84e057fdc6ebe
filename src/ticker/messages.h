// The server's messages and banners.
#pragma once

namespace skyloft {

// Reads the message feed. Does nothing yet.
void LoadMessages();

// The rotation step of the banners. Does nothing yet.
void RotateSponsors();

// Shows the message that fits the present bulletin alert. Does nothing yet.
void FindAlertMessage();

}  // namespace skyloft
