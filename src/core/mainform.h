// The program's start, as one list of steps.
#pragma once

#include <string>
#include <vector>

namespace skyloft {

// Whether start-up is over: "True" then, and "" before. The product browser uses the same text for its map
// view.
struct StartState {
  std::string LocalView;
  bool Loaded = false;  // whether the stores have been read, so that saving loses nothing
  int WorkAreaTopSaved = 0, WorkAreaHeightSaved = 0;  // twips, when the ticker was placed
};
extern StartState Start;

// The folder of all files: the drive of the application's own path, always followed by the same folder.
void SetInstallPath();

// Attaches every control to its procedure.
void ConnectForms();

// The whole start, from the host table to the running timers. An error of its own statements, such as a
// stored location that the list cannot select, deletes sklt.dat and ends the process; a step that fails ends
// only itself.
// On a display without 96 dots per inch only SystemFontForm is shown, whose OK ends the process, and nothing
// is fetched.
void LoadMainForm();

// One row of the start under the splash.
struct StartStep {
  const char* status;                 // nullptr: no change of text
  std::vector<void (*)()> work;       // each call under its own guard
  int value_after;                    // of the progress bar; 0: no change
  void (*own_statement)() = nullptr;  // not guarded: its error ends the start
};
const std::vector<StartStep>& StartSteps();
void RunStartStep(const StartStep& step);

// The end that the desktop asks for: as the menu's exit, but without saving before the stores were read.
void LeaveProgram();

// Lets the bar show its next page unless an alert has it, and shows it where the user wants it, above all
// other windows where the user wants that.
void ShowWantedTicker();

// Puts the ticker bar at its edge of the work area and remembers that area.
void PlaceTicker();

}  // namespace skyloft
