// Every text of the wizard's pages.
#include <gtest/gtest.h>

#include "forms/setup_wizard_form.h"
#include "setup/wizard.h"
#include "wizard_station.h"

namespace skyloft {
namespace {

std::string CaptionOf(const Control& control) {
  if (const auto* label = dynamic_cast<const Label*>(&control)) return label->Caption;
  if (const auto* box = dynamic_cast<const CheckBox*>(&control)) return box->Caption;
  return "";
}

class WizardTexts : public WizardStation {
 protected:
  // The captions of a page in their order, but for those that the program fills.
  static std::vector<std::string> On(int page) {
    std::vector<std::string> captions;
    for (const Control* control : SetupWizardForm.Controls()) {
      if (control->Container() != &SetupWizardForm.SetupFrame[page]) continue;
      if (std::string caption = CaptionOf(*control); !caption.empty()) captions.push_back(caption);
    }
    return captions;
  }
};
using Texts = std::vector<std::string>;
const std::string kFootnote = "* Skyloft software must be enabled and connected to the internet.";

TEST_F(WizardTexts, OfTheWindowAndItsButtons) {
  EXPECT_EQ(SetupWizardForm.Caption.Get(), "Skyloft Setup Wizard");
  EXPECT_EQ(SetupWizardForm.CancelButton.Caption.Get(), "Cancel");
  EXPECT_EQ(SetupWizardForm.BackButton.Caption.Get(), "Back");
  EXPECT_EQ(SetupWizardForm.NextButton.Caption.Get(), "Next");
}

TEST_F(WizardTexts, OfTheWelcome) {
  EXPECT_EQ(On(0), (Texts{"Welcome to the Skyloft Setup Wizard!",
                          "Before you can experience the ultimate personal weather software, you must answer "
                          "a few basic questions. This wizard will guide you through the setup procedure and "
                          "help you customize Skyloft to fit your weather needs!",
                          "Click NEXT to get On Board!"}));
}

TEST_F(WizardTexts, OfTheAddressWhichIsKeptPrivate) {
  Texts captions = On(1);
  ASSERT_EQ(captions.size(), 5u);
  EXPECT_NE(captions.back().find("private"), std::string::npos);
  captions.pop_back();
  EXPECT_EQ(captions, (Texts{"Email Address", "Enter Email Address", "Re-Type Email Address",
                             "Inform me of Skyloft News and Updates"}));
}

TEST_F(WizardTexts, OfThePlace) {
  EXPECT_EQ(On(2), (Texts{"To optimize Skyloft for your specific location, please enter a 5-digit zip code "
                          "or a city/state combination:",
                          "5-digit Zip Code", "City", "State"}));
}

TEST_F(WizardTexts, OfTheVerification) {
  EXPECT_EQ(
      On(3),
      (Texts{"Location Verification",
             "Your location was verified with the Skyloft location database and returned the "
             "following information. Click NEXT to continue.",
             "Zip Code:", "City/State:", "County:", "Area Code:", "Time Zone:", "Latitude:", "Longitude:"}));
}

TEST_F(WizardTexts, OfTheBulletins) {
  EXPECT_EQ(On(4),
            (Texts{"National Weather Service Watches/Warnings", "Tornado Warning", "Tornado Watch",
                   "Severe Thunderstorm  Warning", "Severe Thunderstorm  Watch", "Flash Flood  Warning",
                   "Flash Flood  Watch", "Scroll Alert", "Audio Alert", "Email", kFootnote}));
}

TEST_F(WizardTexts, OfThePersonalAlerts) {
  EXPECT_EQ(On(5), (Texts{"Skyloft Personal Alerts", "YES. Notify me of Skyloft Personal Alerts.",
                          "Scroll Alert", "Audio Alert", "Email", kFootnote}));
  EXPECT_EQ(On(6), (Texts{"Skyloft Personal Alerts", "Maximum Temperature (F)", "above", "Heat Index (F)",
                          "above", "Minimum Temperature (F)", "below", "Wind Chill (F)", "below",
                          "Wind Speed (mph)", "above"}));
  EXPECT_EQ(On(7),
            (Texts{"Skyloft Personal Alerts", "Heavy Rain", "Moderate Rain", "Light Rain", "Rain Shower",
                   "Thunderstorm", "Thunderstorm Chance", "Freezing Rain", "Freezing Rain/Snow", "Rain/Snow",
                   "Heavy Snow", "Moderate Snow", "Light Snow", "Snow Shower"}));
}

TEST_F(WizardTexts, OfTheTitle) {
  EXPECT_EQ(On(8), (Texts{"Congratulations!",
                          "You have completed all steps to add the following location to your Skyloft "
                          "Profile. You may change this title to a personal reference, such as \"My House\". "
                          "Click DONE to add the location or BACK to make any necessary changes.",
                          "Location Title"}));
}

TEST_F(WizardTexts, OfTheStatesInTheirOrder) {
  std::string states;
  for (const std::string& state : SetupWizardForm.StateInput.Items()) states += state + " ";
  EXPECT_EQ(states,
            "AL AR AZ CA CO CT DC DE FL GA IA ID IL IN KS KY LA MA MD ME MI MN MO MS MT NC ND NE NH NJ NM NV "
            "NY OH OK OR PA RI SC SD TN TX UT VA VT WA WI WV WY ");
}

}  // namespace
}  // namespace skyloft
