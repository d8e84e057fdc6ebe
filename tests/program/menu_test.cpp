// The menus of the whole program: what each act leaves in the store, for the next start too.
#include <gtest/gtest.h>

#include <map>

#include <QSettings>

#include "program/program.h"

namespace skyloft::program {
namespace {

// All values of the store, by their keys below the program's own.
std::map<std::string, std::string> StoreOf(const Folder& folder) {
  QSettings store(folder.Path("root/registry.ini"), QSettings::IniFormat);
  store.beginGroup("HKCU/Software/Aerolume/Skyloft");
  std::map<std::string, std::string> values;
  for (const QString& key : store.allKeys()) {
    const QVariant value = store.value(key);
    values[key.toStdString()] = value.toStringList().join(", ").toStdString();
  }
  return values;
}

struct Act {
  const char* name;
  const char* acts;
  std::map<std::string, std::string> changes;
};
void PrintTo(const Act& act, std::ostream* out) { *out << act.name; }

class MenuAct : public testing::TestWithParam<Act> {};

TEST_P(MenuAct, ChangesInTheStoreWhatItSaysAndNothingElse) {
  const Folder folder;
  SetUpTowns(folder);
  const auto before = StoreOf(folder);
  ASSERT_FALSE(before.empty());
  const Ending ending = RunInRoot(folder, {}, QByteArray(GetParam().acts) + "wait 50\nquit\n");
  ASSERT_EQ(ending.code, 0) << ending.errors;
  std::map<std::string, std::string> changes;
  for (const auto& [key, value] : StoreOf(folder)) {
    const auto old = before.find(key);
    if (old == before.end() || old->second != value) changes[key] = value;
  }
  EXPECT_EQ(changes, GetParam().changes) << ending.errors;
}

INSTANTIATE_TEST_SUITE_P(
    Entries, MenuAct,
    testing::Values(
        Act{"Tray", "menu TrayLocationTitle 3\n", {{"Settings/TrayLocationIndex", "3"}}},
        Act{"HideTicker", "menu HideTicker\nexpect TickerForm visible 0\n", {{"Options/ShowTicker", "0"}}},
        Act{"ScreenPosition",
            "menu ScreenPosition\nexpect TickerForm top 0\n",
            {{"Options/TopScreenPosition", "1"}, {"Options/BottomScreenPosition", "0"}}},
        Act{"AlwaysOnTop", "menu AlwaysOnTop\nexpect TickerForm topmost 1\n", {{"Options/AlwaysOnTop", "1"}}},
        Act{"AlmanacPage", "menu ShowAlmanac\n", {{"Options/ShowAlmanac", "0"}}},
        Act{"AddToFive", "menu AddLocation\nexpect SetupWizardForm visible 0\n", {}},
        Act{"DeleteRefused", "answer No\nmenu DeleteLocationTitle 1\n", {}},
        Act{"Links",
            "menu Share\nexpect MainForm.CategorySelection text Share Skyloft\nmenu TechnicalSupport\n"
            "expect MainForm.CategorySelection text Technical Support\nmenu MonthlyNewsletter\n"
            "expect MainForm.CategorySelection text Monthly Newsletter\n",
            {}},
        Act{"OptionsRefused",
            "menu SystemSettings\ntype SystemOptionsForm.Email1Value a@b.example\n"
            "click SystemOptionsForm.OKButton\nexpect SystemOptionsForm visible 1\n",
            {}},
        Act{"OptionsAccepted",
            "menu SystemSettings\ntype SystemOptionsForm.Email1Value a@b.example\n"
            "type SystemOptionsForm.Email2Value a@b.example\nselect SystemOptionsForm.NWSIndexMax \"2\"\n"
            "check SystemOptionsForm.AlwaysOnTop 1\nclick SystemOptionsForm.OKButton\n"
            "expect SystemOptionsForm visible 0\nexpect TickerForm topmost 1\n",
            {{"Options/EmailAddress", "a@b.example"},
             {"Options/NWSUpdate", "0"},
             {"Options/AlwaysOnTop", "1"}}}),
    [](const auto& test) { return std::string(test.param.name); });

// The titles of the list and of the three submenus, as the next start shows them.
TEST(DeletedTown, IsGoneAlsoFromTheNextStart) {
  for (const int index : {0, 2, 4}) {
    const Folder folder;
    SetUpTowns(folder);
    const auto before = StoreOf(folder);
    ASSERT_EQ(RunInRoot(folder, {},
                        "menu TrayLocationTitle 2\nanswer Yes\nmenu DeleteLocationTitle " +
                            QByteArray::number(index) + "\nquit\n")
                  .code,
              0);
    const auto after = StoreOf(folder);
    EXPECT_EQ(after.at("Settings/LocationIndexMax"), "3");
    EXPECT_EQ(after.at("Settings/TrayLocationIndex"), index <= 2 ? "1" : "2");
    for (int slot = 0; slot < 4; ++slot) {
      const int old = slot < index ? slot : slot + 1;
      for (const char* value : {"Title", "ZipCode", "NEXRADLocation", "Latitude"}) {
        EXPECT_EQ(after.at("Location" + std::to_string(slot) + "/" + value),
                  before.at("Location" + std::to_string(old) + "/" + value));
      }
    }
    const Ending next = RunInRoot(folder, {"--snapshot", folder.Path("s")});
    EXPECT_EQ(next.code, 0) << next.errors;
    const Snapshot shown(folder.Path("s"));
    EXPECT_FALSE(shown.Flag("MenuForm.DeleteLocationTitle[4]", "visible"));
    EXPECT_EQ(shown.Text("MenuForm.EditLocationTitle[3]", "caption"), after.at("Location3/Title"));
    EXPECT_EQ(shown.Text("MainForm.LocationSelection", "text"),
              after.at("Location" + std::to_string(index == 4 ? 3 : index) + "/Title"));
  }
}

TEST(DeletedTown, LeavesOneTownAtLeast) {
  const Folder folder;
  SetUpTowns(folder);
  const Ending ending = RunInRoot(folder, {},
                                  "answer Yes\nanswer Yes\nanswer Yes\nanswer Yes\n"
                                  "menu DeleteLocationTitle 4\nmenu DeleteLocationTitle 0\n"
                                  "menu DeleteLocationTitle 1\nmenu DeleteLocationTitle 1\n"
                                  "menu DeleteLocationTitle 0\nquit\n");
  EXPECT_EQ(ending.code, 0);
  EXPECT_NE(ending.errors.find("box critical \"ERROR: Skyloft requires at least 1 location!\""),
            std::string::npos)
      << ending.errors;
  EXPECT_EQ(folder.Setting("Settings/LocationIndexMax"), "0");
}

}  // namespace
}  // namespace skyloft::program
