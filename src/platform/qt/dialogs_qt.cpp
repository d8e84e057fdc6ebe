#include "platform/qt/dialogs_qt.h"

#include <cstdio>
#include <deque>

#include <QCoreApplication>
#include <QMessageBox>

#include "platform/qt/text_qt.h"

namespace skyloft {
namespace {

struct BoxState {
  bool by_script = false;
  std::deque<BoxAnswer> answers;
  bool (*answer_is_to_come)() = nullptr;
};
BoxState& TheBoxes() {
  static BoxState boxes;
  return boxes;
}

struct KindRow {
  const char* name;
  QMessageBox::Icon icon;
  QMessageBox::StandardButtons buttons;
  BoxAnswer closed;
};

const KindRow& RowOf(BoxKind kind) {
  static const KindRow rows[] = {
      {"critical", QMessageBox::Critical, QMessageBox::Ok, BoxAnswer::Ok},
      {"question", QMessageBox::Question, QMessageBox::Yes | QMessageBox::No, BoxAnswer::No},
      {"information", QMessageBox::Information, QMessageBox::Ok | QMessageBox::Cancel, BoxAnswer::Cancel},
  };
  return rows[static_cast<int>(kind)];
}

const char* NameOf(BoxAnswer answer) {
  static constexpr const char* names[] = {"Ok", "Cancel", "Yes", "No"};
  return names[static_cast<int>(answer)];
}

BoxAnswer AnswerByScript(const KindRow& kind, const std::string& text) {
  BoxAnswer answer = BoxAnswer::Cancel;
  BoxState& boxes = TheBoxes();
  while (boxes.answers.empty() && boxes.answer_is_to_come && boxes.answer_is_to_come()) {
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  }
  if (!TheBoxes().answers.empty()) {
    answer = TheBoxes().answers.front();
    TheBoxes().answers.pop_front();
  }
  std::fprintf(stderr, "box %s \"%s\" -> %s\n", kind.name, ToUtf8(text).c_str(), NameOf(answer));
  return answer;
}

}  // namespace

void AnswerBoxesByScript() { TheBoxes().by_script = true; }

void LetBoxesWait(bool (*answer_is_to_come)()) { TheBoxes().answer_is_to_come = answer_is_to_come; }

void QueueAnswer(BoxAnswer answer) { TheBoxes().answers.push_back(answer); }

BoxAnswer ShowBox(BoxKind kind, const std::string& text) {
  const KindRow& row = RowOf(kind);
  if (TheBoxes().by_script) return AnswerByScript(row, text);
  QMessageBox box(row.icon, "Skyloft", ToQt(text), row.buttons);
  box.setTextFormat(Qt::PlainText);
  switch (box.exec()) {
    case QMessageBox::Ok: return BoxAnswer::Ok;
    case QMessageBox::Yes: return BoxAnswer::Yes;
    case QMessageBox::No: return BoxAnswer::No;
    default: return row.closed;
  }
}

}  // namespace skyloft
