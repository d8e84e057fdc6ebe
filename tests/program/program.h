// The built program as a child process: its folders, its ending, and what it saved for outside eyes.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <QByteArray>
#include <QImage>
#include <QJsonObject>
#include <QProcess>
#include <QRect>
#include <QStringList>
#include <QTemporaryDir>

namespace skyloft::program {

// The moment at which the clocks stand, of the program in its zone and of a feed in GMT.
inline constexpr const char* kNow = "2003-03-07T14:05:00";
inline constexpr const char* kZone = "America/Chicago";
inline constexpr const char* kFeedNow = "2003-03-07T20:05:00";

// Folders of one test; they go with it. A run's files and settings are in root/; home/ and tmp/ are what it
// takes for the user's own, and cwd/ is its working folder.
class Folder {
 public:
  Folder();
  QString Path(const QString& name = {}) const { return directory_.filePath(name); }
  QString Root() const { return Path("root"); }
  QString DataFile() const { return Path("root/program files/skyloft/sklt.dat"); }
  void Write(const QString& name, const QByteArray& bytes) const;
  // Files and folders below `name`, as paths relative to it, sorted.
  QStringList Entries(const QString& name) const;
  // A stored value by its key below the program's own, such as "Settings/Top".
  std::string Setting(const QString& key) const;
  void SetSetting(const QString& key, const QString& text) const;  // one that the program has stored
  void AddSetting(const QString& key, const QString& text) const;  // one that a user adds

 private:
  QTemporaryDir directory_;
};

QByteArray ReadBytes(const QString& file);

// Looks again and again; false if it was not reached in time.
bool Await(int milliseconds, const std::function<bool()>& reached);

// How a run ended: its exit code (-1 for a crash, -2 for one that did not end in time) and what it said.
struct Ending {
  int code = -2;
  std::string output, errors;
};

// One run of the program in a test's folders, under the environment and the options given and no others.
// `limit`, if any, is called in the child before it becomes the program; it may make system calls only.
class ProgramRun {
 public:
  ProgramRun(const Folder& folder, const QStringList& options, const QStringList& environment = {},
             const std::function<void()>& limit = {});
  ~ProgramRun();
  ProgramRun(const ProgramRun&) = delete;
  ProgramRun& operator=(const ProgramRun&) = delete;

  pid_t Process() const { return static_cast<pid_t>(process_.processId()); }
  bool Running(int milliseconds);  // still there after that time
  Ending Wait();

 private:
  QProcess process_;
};

// The options of a run with the test's root and standing clock.
QStringList InRoot(const Folder& folder, const QStringList& options);
// Such a run from start to end; `script`, if any, is its script.
Ending RunInRoot(const Folder& folder, QStringList options, const QByteArray& script = {});
// The same, as it must end with code 0: makes the five towns known.
void SetUpTowns(const Folder& folder, const QStringList& options = {});

// Acts of a user in the wizard, as lines of a script: from its start to the page of the place, which the
// first town of all needs, and from there to the end of the setup of a town.
QByteArray ActsOfTheFirstPages();
QByteArray ActsOfATown(const QByteArray& zip_code, const QByteArray& title);

// Looks again and again until `reached` holds; false when it has not in that time.
bool Within(int milliseconds, const std::function<bool()>& reached);
// A run that does its acts, saves a snapshot to s/ and then stays.
std::unique_ptr<ProgramRun> StartAndStay(const Folder& folder, const QByteArray& acts = {},
                                         const QStringList& options = {"--demo"});

// What a snapshot holds.
class Snapshot {
 public:
  explicit Snapshot(const QString& folder);
  bool Saved() const { return !forms_.isEmpty(); }
  bool HasPicture(const QString& form) const;
  QImage Picture(const QString& form) const;
  // The controls of a form by their names; "." is the form itself.
  QJsonObject Controls(const QString& form) const { return forms_[form].toObject(); }
  // A property of "Form" or "Form.Control".
  QJsonValue Value(const QString& control, const QString& property) const;
  std::string Text(const QString& control, const QString& property) const;
  bool Flag(const QString& control, const QString& property) const;
  int Number(const QString& control, const QString& property) const;
  QRect Place(const QString& control) const;
  // The document of an HTML view.
  std::string Page(const QString& control) const;

 private:
  QString folder_;
  QJsonObject forms_;
};

// A request in the log of a feed.
struct Logged {
  std::string path, query, http, agent;
  bool Is(const char* file, const char* kind) const;  // such as "/forecast.asp", "d=meta"; "" is any query
};
std::vector<Logged> ReadLog(const QString& file);
std::vector<Logged> Only(const std::vector<Logged>& requests, const char* file, const char* kind = "");
// Waits until the log of a feed has such a request; false if none came in time.
bool AwaitRequest(const QString& log, const char* file, const char* kind = "");

// The texts of an element in a reply of the feed, in their order.
std::vector<std::string> TextsOf(const std::string& xml, const std::string& tag);

}  // namespace skyloft::program
