#include "browser/frames.h"

#include "browser/selection.h"
#include "feed/catalogues.h"
#include "feed/observations.h"
#include "forms/main_form.h"
#include "settings/settings.h"
#include "station.h"
#include "weather/periods.h"

namespace skyloft {
namespace {

class Frames : public Station {
 protected:
  Frames() {
    Catalogues.ModelRun = "12z";
    Catalogues.ModelRunExtended = "00z";
    for (int i = 0; i < 12; ++i) MainForm.TimeSelection.AddItem("Time");
  }
  static void SelectEntry(int index) {
    MainForm.TimeSelection.Click = {};
    MainForm.TimeSelection.Select(index);
  }
  // The frames by place: "1:12z.012 2:12z.024"; without a run "0:".
  static std::string Series(int code, int count) {
    const auto series = FramesOf(code, count);
    if (!series) return "none";
    std::string text;
    for (int k = 0; k < 67; ++k) {
      const auto& frame = series->frames[k];
      if (!frame) continue;
      text += (text.empty() ? "" : " ") + std::to_string(k) + ":";
      if (frame->run) text += *frame->run + "." + HourText(frame->hour).substr(0, 3);
    }
    return text;
  }
};

TEST_F(Frames, PicturesWithoutASeriesHaveOneFrameThatIsNeverKept) {
  for (const int code : {0, 2, 10}) {
    EXPECT_EQ(Series(code, 12), "0:") << code;
    EXPECT_FALSE(FramesOf(code, 12)->kept);
    EXPECT_TRUE(FramesOf(code, 12)->single);
  }
}

TEST_F(Frames, SinglePicturesOfARunAreKept) {
  EXPECT_EQ(Series(1, 12), "0:12z.000");
  Settings.StopHourIndex = "59";
  EXPECT_EQ(Series(9, 1), "0:12z.060");
  Settings.StopHourIndex = "65";
  EXPECT_EQ(Series(9, 1), "0:12z.066");
  for (const int code : {1, 9}) {
    EXPECT_TRUE(FramesOf(code, 1)->kept && FramesOf(code, 1)->single);
    EXPECT_EQ(FramesOf(code, 1)->chosen, 0);
  }
}

TEST_F(Frames, HourlyPicturesStandAtTheirHourLessOne) {
  EXPECT_EQ(Series(3, 3), "0:12z.001 1:12z.002 2:12z.003");
  Periods.HourIndex = 2;
  EXPECT_EQ(FramesOf(3, 3)->chosen, 2);
}

// The runs as told, worked by hand; places begin at 1.
TEST_F(Frames, EveryRunNamesItsFramesUpToHour66AndTheExtendedRunTheRest) {
  const struct {
    const char* run;
    int code, count;
    const char* series;
  } cases[] = {
      {"00z", 4, 6, "1:00z.012 2:00z.024 3:00z.036 4:00z.048 5:00z.060 6:00z.084"},
      {"12z", 4, 6, "1:12z.012 2:12z.024 3:12z.036 4:12z.048 5:12z.060 6:00z.084"},
      {"06z", 4, 6, "1:06z.018 2:06z.030 3:06z.042 4:06z.054 5:06z.066 6:00z.084"},
      {"18z", 4, 8, "1:18z.018 2:18z.030 3:18z.042 4:18z.054 5:18z.066 6:00z.084 7:00z.096 8:00z.108"},
      {"12z", 4, 1, "1:12z.012"},
      {"12z", 5, 4, "1:12z.012 2:12z.036 3:12z.060 4:00z.096"},
      {"06z", 5, 4, "1:06z.012 2:06z.036 3:06z.060 4:00z.096"},
      {"12z", 6, 4, "1:12z.018 2:12z.042 3:12z.066 4:00z.108"},
      {"12z", 7, 3, "1:12z.024 2:12z.048 3:00z.084"},
      {"12z", 8, 4, "1:12z.030 2:12z.054 3:00z.096 4:00z.120"},
  };
  for (const auto& c : cases) {
    Catalogues.ModelRun = c.run;
    Catalogues.ModelRunExtended = "00z";
    EXPECT_EQ(Series(c.code, c.count), c.series) << c.run << c.code;
  }
  SelectEntry(2);
  for (const int code : {4, 5, 6, 7, 8}) EXPECT_EQ(FramesOf(code, 4)->chosen, 3) << code;
}

TEST_F(Frames, ARouteGoesByItsOwnModelRun) {
  const struct {
    const char* stamp;
    int first;
    const char* series;
  } cases[] = {
      {"Mar 07 2003 12:00AM", 1, "1:00z.012 2:00z.024 3:00z.036"},
      {"Mar 07 2003 06:00AM", 1, "1:06z.018 2:06z.030 3:06z.042"},
      {"Mar 07 2003 06:00AM", 2, "2:06z.018 3:06z.030"},
      {"Mar 07 2003 12:00PM", 2, "2:12z.024 3:12z.036"},
      {"Mar 07 2003 06:00PM", 1, "1:18z.018 2:18z.030 3:18z.042"},
      {"Mar 07 2003 03:00PM", 3, "3:18z.030"},  // any other hour is that of 18
  };
  SelectEntry(0);
  for (const auto& c : cases) {
    Observations.ModelServerTrip = c.stamp;
    Browser.FirstRouteFrame = c.first;
    EXPECT_EQ(Series(11, 3), c.series) << c.stamp;
    EXPECT_EQ(FramesOf(11, 3)->chosen, c.first);
  }
}

// Twelve frames of every code in every run, worked by hand. A shorter series is the beginning of the longer.
TEST_F(Frames, AllCodesInAllRunsFromOneToTwelveFrames) {
  struct Row {
    int code;
    std::initializer_list<const char*> runs;
    int of_run;  // frames of the newest run; the rest are of the extended one
    std::initializer_list<int> hours;
  };
  const Row rows[] = {
      {3, {"00z", "06z", "12z", "18z"}, 12, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}},
      {4, {"00z", "12z"}, 5, {12, 24, 36, 48, 60, 84, 96, 108, 120, 132, 144, 156}},
      {4, {"06z", "18z"}, 5, {18, 30, 42, 54, 66, 84, 96, 108, 120, 132, 144, 156}},
      {5, {"00z", "06z", "12z", "18z"}, 3, {12, 36, 60, 96, 120, 144, 168, 192, 216, 240, 264, 288}},
      {6, {"00z", "06z", "12z", "18z"}, 3, {18, 42, 66, 108, 132, 156, 180, 204, 228, 252, 276, 300}},
      {7, {"00z", "06z", "12z", "18z"}, 2, {24, 48, 84, 108, 132, 156, 180, 204, 228, 252, 276, 300}},
      {8, {"00z", "06z", "12z", "18z"}, 2, {30, 54, 96, 120, 144, 168, 192, 216, 240, 264, 288, 312}},
  };
  Catalogues.ModelRunExtended = "ext";
  for (const Row& row : rows) {
    for (const char* run : row.runs) {
      Catalogues.ModelRun = run;
      const int first_place = row.code == 3 ? 0 : 1;
      std::string expected;
      int j = 0;
      for (const int hour : row.hours) {
        expected += (j == 0 ? "" : " ") + std::to_string(first_place + j) + ":" +
                    (j < row.of_run ? run : "ext") + "." +
                    (hour < 10    ? "00"
                     : hour < 100 ? "0"
                                  : "") +
                    std::to_string(hour);
        ++j;
        EXPECT_EQ(Series(row.code, j), expected) << row.code << run;
      }
    }
  }
}

TEST_F(Frames, AnyOtherCodeHasNone) {
  for (const int code : {-1, 12, 99}) EXPECT_EQ(Series(code, 3), "none") << code;
}

TEST_F(Frames, TheTableHolds66AndMoreRaise) {
  EXPECT_NO_THROW(FramesOf(4, 66));
  EXPECT_THROW(FramesOf(4, 67), RuntimeError);
  EXPECT_NO_THROW(FramesOf(3, 67));
  EXPECT_THROW(FramesOf(3, 68), RuntimeError);
}

TEST_F(Frames, NamesAreOfTwoForms) {
  EXPECT_EQ(FrameName("temp", "2a", FrameFile{}, "gif"), "temp.2a.gif");
  EXPECT_EQ(FrameName("temp", "2a", FrameFile{"12z", 6}, "png"), "temp.2a.12z.006.png");
  for (const auto& [hour, text] : {std::pair{0, "000."}, {12, "012."}, {66, "066."}, {120, "120."}}) {
    EXPECT_EQ(HourText(hour), text);
  }
}

}  // namespace
}  // namespace skyloft
