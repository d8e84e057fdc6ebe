#include "program/program.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonDocument>
#include <QProcessEnvironment>
#include <QSettings>
#include <QThread>

namespace skyloft::program {
namespace {

constexpr int kPatience = 30000;  // milliseconds for a run

QSettings Store(const Folder& folder) { return {folder.Path("root/registry.ini"), QSettings::IniFormat}; }

QString StoreName(const QString& key) { return "HKCU/Software/Aerolume/Skyloft/" + key; }

QProcessEnvironment EnvironmentOf(const Folder& folder, const QStringList& more) {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  for (const char* name : {"SKYLOFT_ROOT", "SKYLOFT_HOSTS", "XDG_DATA_HOME", "XDG_CONFIG_HOME"})
    environment.remove(name);
  environment.insert("QT_QPA_PLATFORM", "offscreen");
  environment.insert("HOME", folder.Path("home"));
  environment.insert("XDG_CACHE_HOME", folder.Path("cache"));
  environment.insert("XDG_RUNTIME_DIR", folder.Path("runtime"));
  environment.insert("TMPDIR", folder.Path("tmp"));
  for (const QString& entry : more) environment.insert(entry.section('=', 0, 0), entry.section('=', 1));
  return environment;
}

}  // namespace

Folder::Folder() {
  EXPECT_TRUE(directory_.isValid());
  for (const char* name : {"home", "cache", "runtime", "tmp", "cwd"}) EXPECT_TRUE(QDir(Path()).mkdir(name));
  QFile::setPermissions(Path("runtime"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

void Folder::Write(const QString& name, const QByteArray& bytes) const {
  QFile file(Path(name));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  ASSERT_EQ(file.write(bytes), bytes.size());
}

QStringList Folder::Entries(const QString& name) const {
  const QDir top(Path(name));
  QStringList entries;
  QDirIterator walk(top.path(), QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                    QDirIterator::Subdirectories);
  while (walk.hasNext()) entries << top.relativeFilePath(walk.next());
  entries.sort();
  return entries;
}

std::string Folder::Setting(const QString& key) const {
  return Store(*this).value(StoreName(key)).toString().toStdString();
}

void Folder::SetSetting(const QString& key, const QString& text) const {
  QSettings store = Store(*this);
  ASSERT_TRUE(store.contains(StoreName(key)));
  store.setValue(StoreName(key), text);
}

void Folder::AddSetting(const QString& key, const QString& text) const {
  Store(*this).setValue(StoreName(key), text);
}

QByteArray ReadBytes(const QString& file) {
  QFile opened(file);
  return opened.open(QIODevice::ReadOnly) ? opened.readAll() : QByteArray();
}

bool Await(int milliseconds, const std::function<bool()>& reached) {
  QElapsedTimer clock;
  clock.start();
  while (!reached()) {
    if (clock.elapsed() > milliseconds) return false;
    QThread::msleep(10);
  }
  return true;
}

ProgramRun::ProgramRun(const Folder& folder, const QStringList& options, const QStringList& environment,
                       const std::function<void()>& limit) {
  if (limit) process_.setChildProcessModifier(limit);
  process_.setProcessEnvironment(EnvironmentOf(folder, environment));
  process_.setWorkingDirectory(folder.Path("cwd"));
  process_.setStandardInputFile(QProcess::nullDevice());
  process_.start(SKYLOFT_PROGRAM, options);
  EXPECT_TRUE(process_.waitForStarted(kPatience));
}

ProgramRun::~ProgramRun() {
  if (process_.state() == QProcess::NotRunning) return;
  process_.kill();
  process_.waitForFinished(kPatience);
}

bool ProgramRun::Running(int milliseconds) {
  process_.waitForFinished(milliseconds);
  return process_.state() != QProcess::NotRunning;
}

Ending ProgramRun::Wait() {
  if (Running(kPatience)) return {-2, "", "it did not end in time"};
  const int code = process_.exitStatus() == QProcess::NormalExit ? process_.exitCode() : -1;
  return {code, process_.readAllStandardOutput().toStdString(),
          process_.readAllStandardError().toStdString()};
}

QStringList InRoot(const Folder& folder, const QStringList& options) {
  return QStringList{"--root", folder.Root(), "--now", kNow, "--zone", kZone} + options;
}

Ending RunInRoot(const Folder& folder, QStringList options, const QByteArray& script) {
  if (!script.isEmpty()) {
    folder.Write("script", script);
    options << "--script" << folder.Path("script");
  }
  return ProgramRun(folder, InRoot(folder, options)).Wait();
}

void SetUpTowns(const Folder& folder, const QStringList& options) {
  const Ending ending = RunInRoot(folder, QStringList{"--demo"} + options, "menu ExitSkyloft\n");
  ASSERT_EQ(ending.code, 0) << ending.errors;
  ASSERT_EQ(folder.Setting("Settings/LocationIndexMax"), "4");
}

QByteArray ActsOfTheFirstPages() {
  const QByteArray next = "click SetupWizardForm.NextButton\n";
  return next + "type SetupWizardForm.EmailAddress1 a\ntype SetupWizardForm.EmailAddress2 a\n" + next;
}

QByteArray ActsOfATown(const QByteArray& zip_code, const QByteArray& title) {
  const QByteArray next = "click SetupWizardForm.NextButton\n";
  return "type SetupWizardForm.ZipCodeInput " + zip_code + "\n" + next + next +
         "check SetupWizardForm.TornadoWarning 1\n" + next + next + "type SetupWizardForm.TitleResult " +
         title + "\n" + next;
}

bool Within(int milliseconds, const std::function<bool()>& reached) {
  QElapsedTimer clock;
  clock.start();
  while (!reached()) {
    if (clock.elapsed() > milliseconds) return false;
    QThread::msleep(10);
  }
  return true;
}

std::unique_ptr<ProgramRun> StartAndStay(const Folder& folder, const QByteArray& acts,
                                         const QStringList& options) {
  folder.Write("script", acts + "snapshot " + folder.Path("s").toUtf8() + "\nwait 60000\n");
  auto run = std::make_unique<ProgramRun>(
      folder, InRoot(folder, options + QStringList{"--script", folder.Path("script")}));
  EXPECT_TRUE(Within(20000, [&] { return Snapshot(folder.Path("s")).Saved(); }));
  return run;
}

Snapshot::Snapshot(const QString& folder)
    : folder_(folder), forms_(QJsonDocument::fromJson(ReadBytes(folder + "/controls.json")).object()) {}

bool Snapshot::HasPicture(const QString& form) const { return QFile::exists(folder_ + '/' + form + ".png"); }

QImage Snapshot::Picture(const QString& form) const { return QImage(folder_ + '/' + form + ".png"); }

QJsonValue Snapshot::Value(const QString& control, const QString& property) const {
  const QString name = control.contains('.') ? control.section('.', 1) : ".";
  const QJsonObject object = Controls(control.section('.', 0, 0))[name].toObject();
  EXPECT_TRUE(object.contains(property)) << control.toStdString() << " " << property.toStdString();
  return object[property];
}

std::string Snapshot::Text(const QString& control, const QString& property) const {
  return Value(control, property).toString().toStdString();
}

bool Snapshot::Flag(const QString& control, const QString& property) const {
  return Value(control, property).toBool();
}

int Snapshot::Number(const QString& control, const QString& property) const {
  return Value(control, property).toInt();
}

QRect Snapshot::Place(const QString& control) const {
  return {Number(control, "left"), Number(control, "top"), Number(control, "width"),
          Number(control, "height")};
}

std::string Snapshot::Page(const QString& control) const {
  return ReadBytes(folder_ + '/' + Value(control, "document").toString()).toStdString();
}

bool Logged::Is(const char* file, const char* kind) const {
  return path == file && ("&" + query + "&").find(*kind ? "&" + std::string(kind) + "&" : "") != query.npos;
}

std::vector<Logged> ReadLog(const QString& file) {
  std::vector<Logged> requests;
  for (const QByteArray& line : ReadBytes(file).split('\n')) {
    if (line.isEmpty()) continue;
    const QJsonObject request = QJsonDocument::fromJson(line).object();
    const auto text = [&](const char* name) { return request[QLatin1String(name)].toString().toStdString(); };
    requests.push_back({text("path"), text("query"), text("http"), text("agent")});
  }
  return requests;
}

std::vector<Logged> Only(const std::vector<Logged>& requests, const char* file, const char* kind) {
  std::vector<Logged> wanted;
  for (const Logged& request : requests) {
    if (request.Is(file, kind)) wanted.push_back(request);
  }
  return wanted;
}

bool AwaitRequest(const QString& log, const char* file, const char* kind) {
  return Await(kPatience, [&] { return !Only(ReadLog(log), file, kind).empty(); });
}

std::vector<std::string> TextsOf(const std::string& xml, const std::string& tag) {
  std::vector<std::string> texts;
  const std::string open = "<" + tag + ">";
  for (size_t at = xml.find(open); at != xml.npos; at = xml.find(open, at + 1)) {
    const size_t begin = at + open.size();
    texts.push_back(xml.substr(begin, xml.find('<', begin) - begin));
  }
  return texts;
}

}  // namespace skyloft::program

// The processes of a test are driven by Qt, which wants its application.
int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  const QCoreApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
