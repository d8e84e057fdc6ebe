#include "platform/qt/dialogs_qt.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTimer>

namespace skyloft {
namespace {

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
