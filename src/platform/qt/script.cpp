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
#include "platform/qt/feed_process.h"
#include "platform/qt/process_qt.h"
#include "platform/qt/script_acts.h"
#include "platform/qt/snapshot.h"
#include "platform/qt/text_qt.h"
#include "platform/registry_store.h"

namespace skyloft {
namespace {

// A word of a line: its text, and where it stands in the line.
struct Word {
  std::string text;
  bool quoted = false;
  size_t begin = 0, end = 0;
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
    word.begin = i;
    word.quoted = line[i] == '"';
    const char* end = word.quoted ? "\"" : " \t";
    if (word.quoted) ++i;
    for (; i < line.size() && !std::strchr(end, line[i]); ++i) {
      if (line[i] == '\\' && word.quoted && i + 1 < line.size()) ++i;
      word.text += line[i];
    }
    if (word.quoted) ++i;
    word.end = std::min(i, line.size());
  }
}

// The text of the words `first` to `last`: what stands in the quotes of a single quoted word, else the line
// as it is.
std::string TextOf(const std::string& line, const Words& words, size_t first, size_t last) {
  if (first > last || last >= words.size()) return "";
  if (first == last) return words[first].text;
  return line.substr(words[first].begin, words[last].end - words[first].begin);
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

bool IsAnswer(const Line& line) { return line.text.starts_with("answer "); }

// Whether a line still to be run answers a box.
bool AnswerIsToCome() {
  const ScriptState& script = TheScript();
  return std::any_of(script.lines.begin() + static_cast<std::ptrdiff_t>(script.next), script.lines.end(),
                     IsAnswer);
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
  int Number(size_t i) {
    int number = 0;
    if (!Guarded([&] { number = WholeNumber(NumberText(StrictNumber(Text(i)))); })) Fail(line_, "no number");
    return number;
  }
  bool Switch(size_t i, const char* on, const char* off) {
    if (Text(i) != on && Text(i) != off) Fail(line_, std::string("neither ") + on + " nor " + off);
    return Text(i) == on;
  }
  // The words from `first` on, and those of them before the last one.
  std::string Rest(size_t first) { return TextOf(line_.text, words_, first, words_.size() - 1); }
  std::string RestBeforeLast(size_t first) { return TextOf(line_.text, words_, first, words_.size() - 2); }

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
  bool Type() { return Done(EnterText(Named(1), Rest(2))); }
  bool Check() { return Done(CheckControl(Named(1), Switch(2, "1", "0"))); }
  bool Menu() { return Done(ChooseEntry(Text(1), words_.size() > 2 ? Number(2) : -1)); }
  bool Tick() { return Done(TickTimer(Text(1), words_.size() > 2 ? Number(2) : 1)); }
  bool Clock() {
    Date moment;
    if (!TryReadDate(Rest(1), moment)) Fail(line_, "no date");
    StopClock(moment);
    MoveFeedClock();
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
    Text(4);
    const std::string wanted = RestBeforeLast(3);
    Property(control, property);
    Await(
        line_, Number(words_.size() - 1),
        [&control, property, wanted] {
          std::string actual;
          return PropertyText(control, property, actual) && Equal(actual, wanted);
        },
        "not in time", then_);
    return false;
  }
  bool Expect() {
    const std::string actual = Property(Named(1), Text(2));
    if (!Equal(actual, Rest(3))) Fail(line_, "it is \"" + actual + "\"");
    return true;
  }
  // The rest of the line runs from the event loop, and so do the lines after it, if need be inside it.
  // Nothing waits for its end.
  bool Async() {
    Text(1);
    const Line inner{line_.number, line_.text.substr(words_[1].begin)};
    QTimer::singleShot(0, &Display::Get(), [inner] {
      LetBoxesWait(AnswerIsToCome);
      Command(inner, [] {}).Run();
      LetBoxesWait(nullptr);
    });
    return true;
  }
  bool Timers() {
    Display::Get().RunTimers(Switch(1, "on", "off"));
    return true;
  }
  bool Snapshot() { return Done(SaveSnapshot(ToQt(Rest(1))) ? "" : "cannot save there"); }
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
