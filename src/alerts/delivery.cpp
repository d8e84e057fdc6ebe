#include "alerts/delivery.h"

#include "forms/system_options_form.h"
#include "forms/ticker_form.h"
#include "pages/fragments.h"
#include "platform/mail.h"
#include "platform/speech.h"
#include "settings/registry.h"
#include "settings/settings.h"
#include "ticker/messages.h"
#include "ticker/ticker.h"
#include "ticker/ticker_pages.h"

namespace skyloft {
namespace {

MailRelay Relay() {
  return {.address = ReadSetting(kOptionsKey, "SmtpRelay", "smtp://localhost:25"),
          .user = ReadSetting(kOptionsKey, "SmtpUser", ""),
          .password = ReadSetting(kOptionsKey, "SmtpPassword", "")};
}

}  // namespace

void TakeBar(const std::string& text, const MessageLook& look, Warning warning) {
  ClearStrip();
  const std::string sound =
      warning == Warning::Sounding ? Settings.InstallPath + "\\wav\\warning.wav" : std::string();
  TickerForm.Ticker.Load(TickerScrollPage(text, sound, "", look.background, look.font, "18"));
  TickerForm.Visible = true;
}

void LeaveBar() {
  if (SystemOptionsForm.ShowTicker.Checked) {
    TickerRotation.TickerCounter.reset();
    TickerDisplay();
  } else {
    TickerForm.Visible = false;
  }
  TickerForm.Ticker.Enabled = false;
}

void HideUnwantedTicker() {
  if (!SystemOptionsForm.ShowTicker.Checked) TickerForm.Visible = false;
}

void Email(const std::string& body) {
  const std::string address = SystemOptionsForm.Email1Value.Text;
  const char* recipient = "Skyloft Subscriber";
  SendMail(Relay(), {.from = address,
                     .from_name = "Skyloft",
                     .to = address,
                     .to_name = recipient,
                     .subject = "SKYLOFT ALERT",
                     .organization = recipient,
                     .reply_to = "",
                     .body = body,
                     .priority = 1,
                     .receipt = 0});
}

std::string EmailPage(const std::string& body) {
  std::string page;
  Append(page, {"<HTML>\r\n", "<BODY bgColor=#ffffff>\r\n", "<DIV><font face='Tahoma' color='#000000'><b>",
                body, " </FONT></b></DIV>\r\n", "\r\n", "</BODY>\r\n", "</HTML>\r\n"});
  return page;
}

void SpeakAlert(const std::string& text) {
  if (ReadSetting(kOptionsKey, "Speak", "0") == "1") Speak(text);
}

}  // namespace skyloft
