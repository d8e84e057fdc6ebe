#include "platform/qt/dialogs_qt.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMessageBox>
#include <QTimer>

namespace skyloft {
namespace {

struct BoxCase {
  BoxKind kind;
  QMessageBox::Icon icon;
  QMessageBox::StandardButtons buttons;
  BoxAnswer closed;
};

TEST(Boxes, HaveTheIconTheButtonsAndTheAnswerOfACloseOfTheirKind) {
  int argc = 0;
  const QApplication application(argc, nullptr);
  const BoxCase cases[] = {
      {BoxKind::Error, QMessageBox::Critical, QMessageBox::Ok, BoxAnswer::Ok},
      {BoxKind::Question, QMessageBox::Question, QMessageBox::Yes | QMessageBox::No, BoxAnswer::No},
      {BoxKind::Update, QMessageBox::Information, QMessageBox::Ok | QMessageBox::Cancel, BoxAnswer::Cancel},
  };
  int seen = 0;
  for (const BoxCase& each : cases) {
    QTimer::singleShot(50, [&] {
      auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_NE(box, nullptr);
      ++seen;
      EXPECT_EQ(box->icon(), each.icon);
      EXPECT_EQ(box->windowTitle(), "Skyloft");
      EXPECT_EQ(box->text(), "a <b>text</b>");
      EXPECT_EQ(box->textFormat(), Qt::PlainText);
      EXPECT_EQ(box->standardButtons(), each.buttons);
      box->reject();
    });
    EXPECT_EQ(ShowBox(each.kind, "a <b>text</b>"), each.closed);
  }
  EXPECT_EQ(seen, 3);
}

class ScriptedBoxes : public ::testing::Test {
 protected:
  ScriptedBoxes() { AnswerBoxesByScript(); }
  int argc = 0;
  QCoreApplication application{argc, nullptr};
};

bool answer_is_to_come = false;

TEST_F(ScriptedBoxes, AnswersAreTakenInTheirOrderAndABoxWithoutOneIsCancelled) {
  QueueAnswer(BoxAnswer::Yes);
  QueueAnswer(BoxAnswer::Ok);
  testing::internal::CaptureStderr();
  EXPECT_EQ(ShowBox(BoxKind::Question, "WARNING: sure?"), BoxAnswer::Yes);
  EXPECT_EQ(ShowBox(BoxKind::Error, "ERROR: no."), BoxAnswer::Ok);
  EXPECT_EQ(ShowBox(BoxKind::Update, "caf\xE9"), BoxAnswer::Cancel);
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "box question \"WARNING: sure?\" -> Yes\n"
            "box critical \"ERROR: no.\" -> Ok\n"
            "box information \"caf\xC3\xA9\" -> Cancel\n");
}

TEST_F(ScriptedBoxes, ABoxWaitsForAnAnswerThatIsToCome) {
  answer_is_to_come = true;
  LetBoxesWait([] { return answer_is_to_come; });
  QTimer::singleShot(30, [] { QueueAnswer(BoxAnswer::No); });
  EXPECT_EQ(ShowBox(BoxKind::Question, "WARNING: sure?"), BoxAnswer::No);
  QTimer::singleShot(30, [] { answer_is_to_come = false; });
  EXPECT_EQ(ShowBox(BoxKind::Question, "WARNING: sure?"), BoxAnswer::Cancel);
  LetBoxesWait(nullptr);
}

}  // namespace
}  // namespace skyloft
