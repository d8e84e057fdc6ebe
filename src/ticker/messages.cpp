#include "ticker/messages.h"

#include <initializer_list>

#include "alerts/bulletins.h"
#include "alerts/personal_alerts.h"
#include "base/guard.h"
#include "base/values.h"
#include "core/refresh.h"
#include "feed/hosts.h"
#include "feed/transport.h"
#include "feed/xml_readers.h"
#include "forms/main_form.h"
#include "forms/system_options_form.h"
#include "forms/ticker_form.h"
#include "platform/clock.h"
#include "ticker/ticker_pages.h"
#include "weather/time.h"

namespace skyloft {

MessageState Messages;

namespace {

constexpr const char* kFeedDigit = "1";  // which of the server's feeds
constexpr int kFeedEntries = 61;
constexpr double kStripSeconds = 120;

int EntryAfter(const MessageSet& set, int index) { return index < set.MessageIndexMax ? index + 1 : 0; }

struct FeedTag {
  const char* tag;
  std::string MessageEntry::*field;
};
constexpr FeedTag kFeedTags[] = {
    {"starttime", &MessageEntry::starttime}, {"endtime", &MessageEntry::endtime},
    {"interval", &MessageEntry::interval},   {"messagetext", &MessageEntry::messagetext},
    {"priority", &MessageEntry::priority},
};

// The set that a type of the feed names; Count when there is none.
int PlaceOf(std::string_view type) {
  int place = 0;
  while (place < MessagePlace::Count && std::to_string(place) != TrimText(type)) ++place;
  return place;
}

// Stores the feed's entries, each behind the others of its set.
void StoreFeed(const XmlDocument& feed) {
  int count = -1;
  TextList types(kFeedEntries);
  ReadXmlList(feed, "type", types, count);
  if (count < 0) return;
  std::vector<TextList> texts;
  for (const FeedTag& tag : kFeedTags) {
    int ignored = 0;
    ReadXmlList(feed, tag.tag, texts.emplace_back(kFeedEntries), ignored);
  }
  for (MessageSet& set : Messages.Sets) set.Entries = {};
  for (int i = 0; i <= count; ++i) {
    const int place = PlaceOf(types[i]);
    if (place == MessagePlace::Count) continue;
    MessageSet& set = Messages.Sets[place];
    MessageEntry& entry = set.Entries[set.MessageIndexMax + 1];
    for (size_t field = 0; field < std::size(kFeedTags); ++field) {
      entry.*kFeedTags[field].field = texts[field][i];
    }
    set.MessageIndexMax += 1;
  }
}

// The present entry of a set: counts from now on, and the next scan starts behind it.
void TakeOver(MessageSet& set, const MessageEntry& entry) {
  set.MessageInterval = LenientNumber(entry.interval);
  set.MessageCounter = 0;
}

// The first due entry from the set's own place on, all around; it takes over. nullptr when there is none.
template <class Wanted>
const MessageEntry* NextEntry(MessageSet& set, Wanted wanted) {
  const int begin = set.MessageIndex;
  const int count = set.MessageIndexMax + 1;
  for (int step = 0; step < count; ++step) {
    const int index = (begin + step) % count;
    const MessageEntry& entry = set.Entries[index];
    if (!IsDue(entry) || !wanted(entry)) continue;
    TakeOver(set, entry);
    set.MessageIndex = EntryAfter(set, index);
    return &entry;
  }
  return nullptr;
}

// Rotates a banner: `home` is hidden when nothing is due; all of `displays` show the entry.
void RotateBanner(int place, HtmlDisplay& home, std::initializer_list<HtmlDisplay*> displays) {
  MessageSet& set = Messages.Sets[place];
  if (set.MessageCounter < set.MessageInterval) return;
  const MessageEntry* entry = NextEntry(set, [](const MessageEntry&) { return true; });
  if (!entry) {
    home.Visible = false;
    return;
  }
  for (HtmlDisplay* display : displays) {
    display->Document = entry->messagetext;
    display->Visible = true;
    display->Enabled = true;
  }
}

void RunThroughStrip(const std::string& text) {
  MainForm.Sponsor2.Document = MessageScrollPage(text, "", "000000", "FFFF00", "14");
  MainForm.Sponsor2.Visible = true;
  Messages.MessageActive = 1;
  Messages.MessageShown = text;
  Messages.MessageSeconds = 0;
}

void RotateStrip() {
  if (IsAlertShowing()) return;
  if (Messages.MessageActive == 1) {
    Messages.MessageSeconds += TickSeconds();
    if (Messages.MessageSeconds >= kStripSeconds) ClearStrip();
    return;
  }
  MessageSet& set = Messages.Sets[MessagePlace::Strip];
  set.MessageCounter += TickSeconds();
  if (set.MessageCounter < set.MessageInterval) return;
  const MessageEntry* entry = NextEntry(set, [](const MessageEntry& e) { return e.priority == "1"; });
  if (entry) {
    RunThroughStrip(entry->messagetext);
  } else {
    MainForm.Sponsor2.Visible = false;
  }
}

void ShowAnew(HtmlDisplay& display) {
  display.Visible = false;
  display.Visible = true;
}

}  // namespace

bool IsDue(const MessageEntry& entry) {
  int dst = 0;
  const Date now = ReadDate(GetGMT(DateText(Now()), dst));
  const Date start = ReadDate(entry.starttime);
  const Date end = ReadDate(entry.endtime);
  return start <= now && now <= end && !entry.messagetext.empty();
}

void LoadMessages() {
  Guarded([] {
    for (MessageSet& set : Messages.Sets) {
      const MessageSet fresh;
      set.MessageCounter = fresh.MessageCounter;
      set.MessageInterval = fresh.MessageInterval;
      set.MessageIndex = fresh.MessageIndex;
      set.MessageIndexMax = fresh.MessageIndexMax;
    }
    QueryServer(HostTable.messageserver + "." + kFeedDigit, StoreFeed);
  });
}

void RotateSponsors() {
  Guarded([] {
    for (const int place :
         {MessagePlace::MainBanner, MessagePlace::TopBanner, MessagePlace::Ticker, MessagePlace::BarBanner}) {
      Messages.Sets[place].MessageCounter += TickSeconds();
    }
    RotateBanner(MessagePlace::MainBanner, MainForm.Sponsor0,
                 {&MainForm.Sponsor0, &SystemOptionsForm.SponsorBanner});
    RotateBanner(MessagePlace::TopBanner, MainForm.Sponsor1, {&MainForm.Sponsor1});
    RotateStrip();
    RotateBanner(MessagePlace::BarBanner, TickerForm.Sponsor4, {&TickerForm.Sponsor4});
  });
}

void FindAlertMessage() {
  Guarded([] {
    if (IsAlertShowing() || Messages.MessageActive == 1) return;
    const std::string letter = !Bulletins.TornadoAlertText.empty()        ? "T"
                               : !Bulletins.ThunderstormAlertText.empty() ? "S"
                                                                          : "F";
    MessageSet& set = Messages.Sets[MessagePlace::Strip];
    for (int index = 0; index <= set.MessageIndexMax; ++index) {
      const MessageEntry& entry = set.Entries[index];
      if (!IsDue(entry) || entry.priority != letter) continue;
      RunThroughStrip(entry.messagetext);
      TakeOver(set, entry);
      return;
    }
  });
}

void ClearStrip() {
  MainForm.Sponsor2.Visible = false;
  MainForm.Sponsor2.Document = "<html></html>";
  Messages.MessageActive = 0;
  Messages.MessageSeconds = 0;
}

void ConnectMessages() {
  for (HtmlDisplay* banner :
       {&MainForm.Sponsor0, &MainForm.Sponsor1, &TickerForm.Sponsor4, &SystemOptionsForm.SponsorBanner}) {
    banner->SecondaryClick = [banner] { ShowAnew(*banner); };
  }
}

}  // namespace skyloft
