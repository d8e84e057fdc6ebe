// The message server's feed: banners of the main window, the options and the bar, messages of the bar, and
// the texts that run through the strip at the window's foot.
#pragma once

#include <string>

#include "base/tables.h"

namespace skyloft {

// One entry of the feed; texts as received.
struct MessageEntry {
  std::string starttime, endtime;  // GMT, from and until when it may show
  std::string interval;            // seconds that it stands before the next may take over
  std::string messagetext;         // an HTML document; plain text in the strip's set
  std::string priority;            // strip: "1" shows by itself, "T", "S", "F" with an alert of that kind
};

// The entries that take turns in one place.
struct MessageSet {
  Table<MessageEntry, 11> Entries;
  double MessageCounter = 100000;  // seconds since the entry took over; at first more than any interval
  double MessageInterval = 0;      // seconds that the present entry holds
  int MessageIndex = 0;            // entry at which the next scan starts
  int MessageIndexMax = -1;        // last filled entry, -1 for none
};

// The sets by the number that the feed gives them.
namespace MessagePlace {
enum : int { MainBanner = 0, TopBanner, Strip, Ticker, BarBanner, Count };
}  // namespace MessagePlace

struct MessageState {
  Table<MessageSet, MessagePlace::Count> Sets;
  int MessageActive = 0;      // 1 while a text runs through the strip
  std::string MessageShown;   // that text
  double MessageSeconds = 0;  // how long it has
};
extern MessageState Messages;

// Whether an entry may show now: it has begun, it has not ended, and it has a text. Raises for a time that is
// no date.
bool IsDue(const MessageEntry& entry);

// Empties the sets and reads the feed: 61 entries at most, 11 in a set; a twelfth ends the load, an unknown
// set drops the entry. A failed load, or a busy transport, leaves the sets empty; what stands in a control
// goes on until the next rotation.
void LoadMessages();

// The rotation step of all sets but the ticker's, whose seconds alone it counts. Where no entry is due the
// control is hidden; of the two controls of the main banner that is the one of the main window alone. A text
// of the strip runs 120 seconds, and the strip stands still during an alert. A time that is no date ends the
// step.
void RotateSponsors();

// Runs the text that goes with the present alert through the strip, unless an alert or a text is on show.
void FindAlertMessage();

// Empties and hides the strip; nothing runs through it then.
void ClearStrip();

// Attaches the banners' event, which brings the display up anew.
void ConnectMessages();

}  // namespace skyloft
