// How an alert reaches the user: a text that runs over the bar at the edge of the screen, a sound, a voice, a
// mail. Each location tells which of them it wants.
#pragma once

#include <string>

namespace skyloft {

// Colours of a message on the bar, six hexadecimal digits. Those of the first personal message have five,
// which read as black; this is meant.
struct MessageLook {
  const char* background;
  const char* font;
};
inline constexpr MessageLook kBulletinLook{"FF0000", "FFFF00"};
inline constexpr MessageLook kPersonalLook{"FFFF00", "00000"};
inline constexpr MessageLook kPersonalReplayLook{"FFFF00", "000000"};

enum class Warning { Silent, Sounding };

// Runs a text over the bar from its beginning, also where it stands there already, and shows it. The strip of
// the main window is cleared.
void TakeBar(const std::string& text, const MessageLook& look, Warning warning);

// The user has stopped the message: the rotation takes over at once, or the bar goes where it is not wanted.
// Presses reach the bar again.
void LeaveBar();

// Hides the bar unless the option to show it is on.
void HideUnwantedTicker();

// Mails an alert from the user's own address to the user's own address, as plain text, through the relay of
// the options SmtpRelay ("smtp://localhost:25"), SmtpUser and SmtpPassword. Whether the user wants news by
// mail has no part in it. A failure goes to the caller.
void Email(const std::string& body);

// The mail as a page. Without a caller, which is meant: what goes out is the plain text.
std::string EmailPage(const std::string& body);

// Says a text, where the option Speak is "1".
void SpeakAlert(const std::string& text);

}  // namespace skyloft
