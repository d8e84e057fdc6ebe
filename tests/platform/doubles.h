// Doubles of the platform: a clock that is set, a store in a map, files in a map, replies from a list, a
// record of what was asked. A test program links the double of every platform header but for those it takes
// real.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "base/dates.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/mail.h"
#include "platform/registry_store.h"
#include "platform/screen.h"
#include "platform/tray.h"
#include "platform/window.h"

namespace skyloft {

// What the double of EndProcess throws: no guard takes it.
struct ProcessEnded {};

// Counts down to a failure: the n-th call fails, once; 0 never.
struct Failure {
  int at = 0;
  bool Due() { return at > 0 && --at == 0; }
};

struct DoublesState {
  // clock
  Date now = MakeDate(2003, 3, 7, 14, 5, 9);
  ZoneState zone = {360, 1};

  // http: the reply to an address is that of the first entry whose text it holds; without one the fetch
  // fails.
  std::vector<std::pair<std::string, std::string>> replies;
  std::vector<std::string> requests;
  std::function<void(const std::string& url)> during_fetch;
  std::vector<int> dials;
  Failure http_failure;

  // mail: every send, failed ones too
  std::vector<std::pair<MailRelay, Mail>> mails;
  Failure mail_failure;

  // files, by lower-case path
  std::map<std::string, std::string> files;
  std::map<std::string, Date> file_times;
  Failure file_failure;

  // store, by "root\key" in lower case and name
  std::map<std::pair<std::string, std::string>, RegistryValue> store;
  std::map<StoreKey, std::string> open_keys;
  StoreKey last_key = 0;
  bool store_refused = false;
  int store_syncs = 0;
  Failure store_failure;
  std::map<std::string, std::string> profile_entries;  // "path|section|entry"

  // pictures: all exist but these
  std::set<std::string> missing_pictures;
  std::vector<std::string> loaded_pictures;
  int picture_width = 620, picture_height = 620;
  std::vector<size_t> conversions;  // how many colours each conversion replaced
  Failure picture_failure;

  // sound, speech
  std::vector<std::string> sounds;
  std::vector<std::string> spoken;

  // window, dialogs, shell, screen, process
  std::vector<RoundRegion> regions;
  int drags = 0;
  std::vector<std::string> menus;
  std::vector<std::string> system_menus;
  std::vector<std::string> modal_forms;                      // shown by ShowModal
  std::function<void()> during_modal;                        // what the user does there
  std::vector<std::pair<std::string, std::string>> printed;  // file and title
  std::vector<std::string> activated;
  bool activated_on_top = false;  // whether the window activated last was above all others then
  std::vector<std::pair<BoxKind, std::string>> boxes;
  std::deque<BoxAnswer> answers;
  std::vector<std::string> links;
  std::vector<std::string> started_updates;
  int dots_per_inch = 96;
  ScreenSize screen = {1280 * 15, 1024 * 15};
  WorkArea work_area = {0, 1280 * 15, 1000 * 15};
  SystemVersion system_version = {2, 6, 0};
  std::vector<std::string> tray;  // icons put into the tray, in that order
  std::string application_path = "C:\\somewhere\\else\\skyloft.exe";

  // The reply to every address that holds `part`.
  void Reply(const std::string& part, const std::string& text) {
    replies.insert(replies.begin(), {part, text});
  }
  // A value of the user's branch, as text; "(none)" when it is not there.
  std::string Stored(const std::string& key, const std::string& name) const;
  void Store(const std::string& key, const std::string& name, const std::string& text);
};
extern DoublesState Doubles;

// Runs `body` and tells whether it ended the process.
template <class Body>
bool EndsProcess(Body&& body) {
  try {
    body();
    return false;
  } catch (const ProcessEnded&) {
    return true;
  }
}

}  // namespace skyloft
