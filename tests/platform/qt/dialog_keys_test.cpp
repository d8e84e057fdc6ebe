// Forms under the keyboard, without a display.
#include "platform/qt/dialog_keys.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "platform/qt/display.h"
#include "platform/qt/form_window.h"
#include "platform/qt/skin_style.h"
#include "widget_testing.h"

namespace skyloft {
namespace {

struct AskForm : Form {
  AskForm() : Form("AskForm", "Ask", Border::Dialog) {
    Width = 400 * 15;
    Height = 300 * 15;
    int top = 0;
    for (Control* control : Controls()) {
      control->Left = 10;
      control->Top = top += 20;
      control->Width = 200;
      control->Height = 20;
    }
    NameLabel.Caption = "Name & Title";
    Send.Caption = "Send";
    Second.Caption = "Send again";
    Above.Caption = "above";
    Warm.Caption = "Warm Days";
    Cancel.Caption = "Cancel";
    Next.Caption = "Next";
    Cancel.Cancels = true;
    Next.Default = true;
    Cancel.Click = [this] { ++cancelled; };
    Next.Click = [this] { ++advanced; };
    Pages[1].Visible = false;
    Pages[0].Caption = "Send";  // a frame needs no letter
  }
  ControlArray<Frame, 2> Pages{this, "Pages"};
  Label NameLabel{this, "NameLabel", &Pages[0]};
  TextBox NameInput{this, "NameInput", &Pages[0]};
  CheckBox Send{this, "Send", &Pages[0]};
  CheckBox Second{this, "Second", &Pages[0]};
  CheckBox Warm{this, "Warm", &Pages[1]};
  Label Above{this, "Above", &Pages[1]};
  ListControl WarmValue{this, "WarmValue", &Pages[1]};
  ImageButton RainButton{this, "RainButton", &Pages[1]};
  Label Heading{this, "Heading"};
  Button Cancel{this, "Cancel"};
  Button Next{this, "Next"};
  int cancelled = 0, advanced = 0;
};

class DialogKeys : public testing::Test {
 protected:
  void Show() {
    form_.Visible = true;
    Update();
  }
  void Update() {
    window_.ShowForm();
    for (Control* control : form_.Controls()) window_.ShowControl(*control);
    for (int i = 0; i < 5; ++i) QApplication::processEvents();
  }
  QWidget* Find(const char* name) { return window_.findChild<QWidget*>(name); }
  template <class Widget>
  QString TextOf(const char* name) {
    return window_.findChild<Widget*>(name)->text();
  }

  int argc_ = 0;
  QApplication application_{argc_, nullptr};
  AskForm form_;
  FormWindow window_{form_};
};

TEST_F(DialogKeys, EachControlOnShowTogetherHasALetterOfItsOwn) {
  EXPECT_EQ(TextOf<QPushButton>("Cancel"), "&Cancel");
  EXPECT_EQ(TextOf<QPushButton>("Next"), "&Next");
  EXPECT_EQ(TextOf<QLabel>("NameLabel"), "Name && &Title") << "N is Next's";
  EXPECT_EQ(TextOf<QCheckBox>("Send"), "&Send");
  EXPECT_EQ(TextOf<QCheckBox>("Second"), "Send &again");
  EXPECT_EQ(TextOf<QLabel>("Above"), "&above") << "on another page";
  EXPECT_EQ(qobject_cast<QLabel*>(Find("NameLabel"))->buddy(), Find("NameInput"));
}

TEST_F(DialogKeys, ALetterStaysWithItsControlWhenTheCaptionChanges) {
  form_.Next.Caption = "Done";
  Show();
  EXPECT_EQ(TextOf<QPushButton>("Next"), "Do&ne");
  form_.Next.Caption = "OK";
  Update();
  EXPECT_EQ(TextOf<QPushButton>("Next"), "OK");
}

TEST_F(DialogKeys, ALabelShowsACaptionAsItStands) {
  form_.Heading.Caption = "<b>My</b> House";
  Show();
  const auto* label = window_.findChild<QLabel*>("Heading");
  EXPECT_EQ(label->text(), "<b>My</b> House");
  EXPECT_EQ(label->textFormat(), Qt::PlainText) << "nothing in it is taken for a tag";
}

TEST_F(DialogKeys, ACaptionTooLongForItsLineEndsInDotsAndIsSpokenWhole) {
  struct TitleForm : Form {
    TitleForm() : Form("TitleForm", "", Border::None) {
      Title.Width = 100;
      Title.Height = 20;
    }
    Label Title{this, "Title"};
  } form;
  form.Title.Caption = "Town";
  FormWindow window(form);
  const auto* label = window.findChild<QLabel*>("Title");
  EXPECT_EQ(label->text(), "Town");
  form.Title.Caption = "A title that is far too long for so small a label";
  window.ShowControl(form.Title);
  EXPECT_TRUE(label->text().startsWith("A title"));
  EXPECT_TRUE(label->text().endsWith(QChar(0x2026)));
  EXPECT_LE(label->fontMetrics().horizontalAdvance(label->text()), 100);
  EXPECT_EQ(label->accessibleName(), "A title that is far too long for so small a label");
}

TEST_F(DialogKeys, AWindowWithoutATitleBarHasNone) {
  struct BareForm : Form {
    BareForm() : Form("BareForm", "", Border::None) { OK.Caption = "A & B"; }
    Button OK{this, "OK"};
  } bare;
  FormWindow window(bare);
  EXPECT_EQ(window.findChild<QPushButton*>("OK")->text(), "A && B");
}

TEST_F(DialogKeys, AScreenReaderHearsWhatAFieldIsFor) {
  EXPECT_EQ(Find("NameInput")->accessibleName(), "Name & Title");
  EXPECT_EQ(Find("WarmValue")->accessibleName(), "Warm Days above");
  EXPECT_EQ(Find("RainButton")->accessibleName(), "Rain Button");
}

TEST_F(DialogKeys, EnterPressesTheDefaultButtonAndEscTheOneThatCancels) {
  Show();
  Find("NameInput")->setFocus();
  Key(*Find("NameInput"), Qt::Key_Return);
  EXPECT_EQ(form_.advanced, 1);
  Key(*Find("Send"), Qt::Key_Enter);
  EXPECT_EQ(form_.advanced, 2);
  Key(*Find("NameInput"), Qt::Key_Escape);
  EXPECT_EQ(form_.cancelled, 1);
  form_.Next.Enabled = form_.Cancel.Enabled = false;
  Update();
  Key(*Find("NameInput"), Qt::Key_Return);
  Key(*Find("NameInput"), Qt::Key_Escape);
  EXPECT_EQ(form_.advanced + form_.cancelled, 3);
}

TEST_F(DialogKeys, EnterOnAButtonThatHasTheFocusPressesThatOne) {
  Show();
  Find("Cancel")->setFocus();
  Key(*Find("Cancel"), Qt::Key_Return);
  EXPECT_EQ(form_.cancelled, 1);
  EXPECT_EQ(form_.advanced, 0);
}

TEST_F(DialogKeys, APageThatComesUpHasTheFocusInItsFirstControlThatIsOn) {
  form_.NameInput.Enabled = false;
  Show();
  EXPECT_EQ(window_.focusWidget(), Find("Send"));
  form_.Pages[0].Visible = false;
  form_.Pages[1].Visible = true;
  Update();
  EXPECT_EQ(window_.focusWidget(), Find("Warm"));
  form_.Pages[1].Visible = false;
  form_.Pages[0].Visible = form_.NameInput.Enabled = true;
  Update();
  EXPECT_EQ(window_.focusWidget(), Find("NameInput"));
}

TEST_F(DialogKeys, APageWithoutAnythingToEnterLeavesTheFocusToTheDefaultButton) {
  for (Control* control : {static_cast<Control*>(&form_.NameInput), static_cast<Control*>(&form_.Send),
                           static_cast<Control*>(&form_.Second)}) {
    control->Enabled = false;
  }
  Show();
  EXPECT_EQ(window_.focusWidget(), Find("Next"));
}

TEST_F(DialogKeys, TheArrowsGoThroughTheTabsAndKeepTheFocusThere) {
  struct TabForm : Form {
    TabForm() : Form("TabForm", "Tabs", Border::Dialog) {
      Width = Height = 300 * 15;
      Tabs.Tabs = {"One", "Two", "Three"};
      Tabs.Width = Page.Width = Input.Width = 200;
      Tabs.Height = Page.Height = Input.Height = 30;
      Page.Visible = false;
      Tabs.Click = [this] {
        chosen.push_back(Tabs.Selected());
        Page.Visible = Tabs.Selected() == 2;
      };
    }
    TabStrip Tabs{this, "Tabs"};
    Frame Page{this, "Page"};
    TextBox Input{this, "Input", &Page};
    std::vector<int> chosen;
  } form;
  FormWindow window(form);
  form.Visible = true;
  const auto update = [&] {
    window.ShowForm();
    for (Control* control : form.Controls()) window.ShowControl(*control);
    for (int i = 0; i < 5; ++i) QApplication::processEvents();
  };
  update();
  auto* tabs = window.findChild<QWidget*>("Tabs");
  tabs->setFocus();
  for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Right, Qt::Key_Left}) {
    Key(*tabs, key);
    update();
    EXPECT_EQ(window.focusWidget(), tabs);
  }
  EXPECT_EQ(form.chosen, (std::vector<int>{2, 3, 2})) << "each once";
}

TEST_F(DialogKeys, APageCoversTheOneUnderIt) {
  application_.setStyleSheet(SkinStyle());
  form_.Pages[1].Visible = true;
  for (Control* page : {static_cast<Control*>(&form_.Pages[0]), static_cast<Control*>(&form_.Pages[1])}) {
    page->Top = 0;
    page->Width = 380;
    page->Height = 200;
  }
  form_.Warm.Visible = form_.Above.Visible = form_.WarmValue.Visible = form_.RainButton.Visible = false;
  Show();
  const QImage covered = window_.grab(QRect(20, 20, 300, 150)).toImage();
  const QRgb ground = covered.pixel(0, 0);
  for (int x = 0; x < covered.width(); ++x) {
    for (int y = 0; y < covered.height(); ++y) ASSERT_EQ(covered.pixel(x, y), ground) << x << ", " << y;
  }
}

}  // namespace
}  // namespace skyloft
