// Replies of the message server for the tests.
#pragma once

#include <string>
#include <vector>

#include "feed/hosts.h"
#include "station.h"
#include "ticker/messages.h"

namespace skyloft {

struct FeedEntry {
  std::string type, text;
  std::string interval = "60", priority = "1";
  std::string starttime = "Mar 07 2003 12:00AM", endtime = "Mar 09 2003 12:00AM";
};

inline std::string MessageReply(const std::vector<FeedEntry>& entries) {
  std::string elements;
  for (const FeedEntry& entry : entries) {
    elements +=
        Element("message", Element("type", entry.type) + Element("starttime", entry.starttime) +
                               Element("endtime", entry.endtime) + Element("interval", entry.interval) +
                               Element("messagetext", entry.text) + Element("priority", entry.priority));
  }
  return Reply(elements);
}

// Loads a feed of these entries.
inline void LoadFeed(const std::vector<FeedEntry>& entries) {
  HostTable.messageserver = "messages.skyloft.example/messages.xml";
  Doubles.replies.clear();
  Doubles.Reply("messages.xml", MessageReply(entries));
  LoadMessages();
}

}  // namespace skyloft
