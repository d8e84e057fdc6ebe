#include "platform/qt/script.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include <QElapsedTimer>
#include <QFile>
#include <QTimer>

#include "base/values.h"
#include "forms/forms.h"
#include "platform/qt/clock_qt.h"
#include "platform/qt/dialogs_qt.h"
#include "platform/qt/display.h"
#include "platform/qt/process_qt.h"
#include "platform/qt/script_acts.h"
#include "platform/qt/snapshot.h"
#include "platform/qt/text_qt.h"
#include "platform/registry_store.h"

namespace skyloft {
namespace {

struct Word {
  std::string text;
  bool quoted = false;
};
using Words = std::vector<Word>;

struct Line {
  int number;
  std::string text;
};

struct ScriptState {
  std::vector<Line> lines;
  size_t next = 0;
  void (*finished)() = nullptr;
};
ScriptState& TheScript() {
  static ScriptState script;
  return script;
}

constexpr int kPollMilliseconds = 5;

// Cuts a line into words; a word in quotes may hold blanks, and \" is a quote in it.
Words WordsOf(const std::string& line) {
  Words words;
  size_t i = 0;
  while (true) {
    i = line.find_first_not_of(" \t", i);
    if (i == std::string::npos) return words;
    Word& word = words.emplace_back();
    word.quoted = line[i] == '"';
    const char* end = word.quoted ? "\"" : " \t";
    if (word.quoted) ++i;
    for (; i < line.size() && !std::strchr(end, line[i]); ++i) {
      if (line[i] == '\\' && word.quoted && i + 1 < line.size()) ++i;
      word.text += line[i];
    }
    ++i;
  }
}

// The rest of a line behind its first `count` words, without the quotes around it.
std::string Rest(const std::string& line, int count) {
  size_t i = 0;
  for (int word = 0; word < count && i != std::string::npos; ++word) {
    i = line.find_first_not_of(" \t", i);
    if (i != std::string::npos) i = line.find_first_of(" \t", i);
  }
  if (i == std::string::npos) return "";
  std::string rest(TrimText(line.substr(i)));
  if (rest.size() >= 2 && rest.front() == '"' && rest.back() == '"') rest = rest.substr(1, rest.size() - 2);
  return rest;
}

[[noreturn]] void Fail(const Line& line, const std::string& why) {
  std::fprintf(stderr, "skyloft: script line %d: %s: %s\n", line.number, ToUtf8(line.text).c_str(),
               ToUtf8(why).c_str());
  EndWith(3);
}

// Booleans may be told as 0 and 1.
bool Equal(const std::string& actual, const std::string& wanted) {
  return actual == wanted || (actual == "true" && wanted == "1") || (actual == "false" && wanted == "0");
}

void Step();
void ScheduleStep() { QTimer::singleShot(0, &Display::Get(), Step); }

// What a line that waits does when it is over.
using Continuation = void (*)();

// Goes on when `reached` holds; fails the line after `limit` milliseconds.
void Await(const Line& line, int limit, const std::function<bool()>& reached, const std::string& failure,
           Continuation then) {
  auto clock = std::make_shared<QElapsedTimer>();
  clock->start();
  auto* poll = new QTimer(&Display::Get());
  QObject::connect(poll, &QTimer::timeout, poll, [=] {
    if (!reached() && clock->elapsed() < limit) return;
    if (!reached()) Fail(line, failure);
    poll->stop();
    poll->deleteLater();
    then();
  });
  poll->start(kPollMilliseconds);
}

// One command. Returns whether the script goes on by itself at once; otherwise the command has arranged it.
class Command {
 public:
  explicit Command(Line line, Continuation then = Step)
      : line_(std::move(line)), words_(WordsOf(line_.text)), then_(then) {}

  bool Run() {
    static const std::map<std::string, bool (Command::*)()> commands = {
        {"click", &Command::Click}, {"press", &Command::Press},   {"select", &Command::Select},
        {"type", &Command::Type},   {"check", &Command::Check},   {"menu", &Command::Menu},
        {"tick", &Command::Tick},   {"clock", &Command::Clock},   {"answer", &Command::Answer},
        {"wait", &Command::Wait},   {"until", &Command::Until},   {"expect", &Command::Expect},
        {"async", &Command::Async}, {"timers", &Command::Timers}, {"snapshot", &Command::Snapshot},
        {"quit", &Command::Quit},
    };
    const auto command = commands.find(Text(0));
    if (command == commands.end()) Fail(line_, "no such command");
    return (this->*command->second)();
  }

 private:
  const std::string& Text(size_t i) {
    if (i >= words_.size()) Fail(line_, "a word is missing");
    return words_[i].text;
  }
  int Number(size_t i) { return static_cast<int>(LenientNumber(Text(i))); }
  skyloft::Control& Named(size_t i) {
    skyloft::Control* control = FindControl(Text(i));
    if (!control) Fail(line_, "no control " + Text(i));
    return *control;
  }
  // After an act: whatever it saved can be read from outside.
  bool Done(const std::string& error) {
    if (!error.empty()) Fail(line_, error);
    SyncStore();
    return true;
  }
  std::string Property(skyloft::Control& control, const std::string& name) {
    std::string text;
    if (!PropertyText(control, name, text)) Fail(line_, "no property " + name);
    return text;
  }

  bool Click() { return Done(ClickControl(Named(1))); }
  bool Press() {
    static const std::map<std::string, MouseButton> buttons = {
        {"left", MouseButton::Left}, {"right", MouseButton::Right}, {"double", MouseButton::Double}};
    const auto button = buttons.find(Text(4));
    if (button == buttons.end()) Fail(line_, "no such mouse button");
    return Done(PressControl(Named(1), {Number(2), Number(3), button->second}));
  }
  bool Select() {
    Text(2);
    return Done(SelectEntry(Named(1), words_[2].text, words_[2].quoted));
  }
  bool Type() { return Done(EnterText(Named(1), Rest(line_.text, 2))); }
  bool Check() { return Done(CheckControl(Named(1), Number(2) != 0)); }
  bool Menu() { return Done(ChooseEntry(Text(1), words_.size() > 2 ? Number(2) : -1)); }
  bool Tick() { return Done(TickTimer(Text(1), words_.size() > 2 ? Number(2) : 1)); }
  bool Clock() {
    Date moment;
    if (!TryReadDate(Rest(line_.text, 1), moment)) Fail(line_, "no date");
    StopClock(moment);
    return true;
  }
  bool Answer() {
    static const std::map<std::string, BoxAnswer> answers = {
        {"Ok", BoxAnswer::Ok}, {"Cancel", BoxAnswer::Cancel}, {"Yes", BoxAnswer::Yes}, {"No", BoxAnswer::No}};
    const auto answer = answers.find(Text(1));
    if (answer == answers.end()) Fail(line_, "no such answer");
    QueueAnswer(answer->second);
    return true;
  }
  bool Wait() {
    QTimer::singleShot(Number(1), &Display::Get(), then_);
    return false;
  }
  bool Until() {
    if (Text(1) == "idle") {
      Await(
          line_, Number(2), [] { return Display::Get().Idle(); }, "not idle in time", then_);
      return false;
    }
    skyloft::Control& control = Named(1);
    const std::string property = Text(2);
    const std::string wanted = Text(3);
    Property(control, property);
    Await(
        line_, Number(4),
        [&control, property, wanted] {
          std::string actual;
          return PropertyText(control, property, actual) && Equal(actual, wanted);
        },
        "not in time", then_);
    return false;
  }
  bool Expect() {
    const std::string actual = Property(Named(1), Text(2));
    if (!Equal(actual, Rest(line_.text, 3))) Fail(line_, "it is \"" + actual + "\"");
    return true;
  }
  // The rest of the line runs from the event loop, and so do the lines after it, if need be inside it.
  // Nothing waits for its end.
  bool Async() {
    const Line inner{line_.number, Rest(line_.text, 1)};
    QTimer::singleShot(0, &Display::Get(), [inner] { Command(inner, [] {}).Run(); });
    return true;
  }
  bool Timers() {
    Display::Get().RunTimers(Text(1) == "on");
    return true;
  }
  bool Snapshot() { return Done(SaveSnapshot(ToQt(Rest(line_.text, 1))) ? "" : "cannot save there"); }
  [[noreturn]] bool Quit() { EndWith(0); }

  Line line_;
  Words words_;
  Continuation then_;
};

void Step() {
  ScriptState& script = TheScript();
  if (script.next == script.lines.size()) {
    if (const auto finished = std::exchange(script.finished, nullptr)) finished();
    return;
  }
  const Line& line = script.lines[script.next++];
  if (Command(line).Run()) ScheduleStep();
}

bool IsAnswer(const Line& line) { return line.text.starts_with("answer "); }

}  // namespace

bool LoadScript(const std::string& file) {
  QFile script(QString::fromLocal8Bit(file.c_str()));
  if (!script.open(QIODevice::ReadOnly)) return false;
  int number = 0;
  for (const QByteArray& line : script.readAll().split('\n')) {
    ++number;
    const std::string text(TrimText(FromUtf8(line.trimmed().toStdString())));
    if (!text.empty() && text[0] != '#') TheScript().lines.push_back({number, text});
  }
  auto& script_lines = TheScript().lines;
  while (TheScript().next < script_lines.size() && IsAnswer(script_lines[TheScript().next])) {
    Command(script_lines[TheScript().next++]).Run();
  }
  return true;
}

void RunScript(void (*finished)()) {
  TheScript().finished = finished;
  ScheduleStep();
}

}  // namespace skyloft
