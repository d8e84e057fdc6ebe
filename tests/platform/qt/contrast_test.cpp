// Whether the texts of the windows can be read: their contrast, measured on what the windows paint.
// Disabled controls need none. Pages have colours of their own and are not measured.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>

#include "forms/forms.h"
#include "platform/qt/display.h"
#include "platform/qt/form_window.h"
#include "platform/qt/skin_style.h"
#include "widget_testing.h"

namespace skyloft {
namespace {

constexpr double kEnough = 4.5;  // WCAG 2, level AA

// Relative luminance and contrast ratio as WCAG 2 defines them.
double Luminance(QRgb color) {
  const auto linear = [](int channel) {
    const double part = channel / 255.0;
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(qRed(color)) + 0.7152 * linear(qGreen(color)) + 0.0722 * linear(qBlue(color));
}

double Ratio(double a, double b) { return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05); }

// Of the text that lies in the rectangle: between the most common brightness and the one furthest from it.
double ContrastIn(const QImage& picture, const QRect& place) {
  std::vector<double> pixels;
  for (int y = place.top(); y <= place.bottom(); ++y) {
    for (int x = place.left(); x <= place.right(); ++x) pixels.push_back(Luminance(picture.pixel(x, y)));
  }
  if (pixels.empty()) return 0;
  std::ranges::sort(pixels);
  const double ground = pixels[pixels.size() / 2];
  return std::max(Ratio(ground, pixels.front()), Ratio(ground, pixels.back()));
}

// Where a widget's texts lie in it, without its frame and marks; none for what shows no text.
std::vector<QRect> TextPlaces(const QWidget& widget) {
  const QRect inside = widget.rect().adjusted(4, 4, -4, -4);
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
    return label->text().isEmpty() ? std::vector<QRect>() : std::vector{widget.rect()};
  }
  if (const auto* tabs = qobject_cast<const QTabBar*>(&widget)) {
    std::vector<QRect> places;
    for (int i = 0; i < tabs->count(); ++i) places.push_back(tabs->tabRect(i).adjusted(6, 6, -6, -6));
    return places;
  }
  if (const auto* frame = qobject_cast<const QGroupBox*>(&widget)) {
    const int width = frame->fontMetrics().horizontalAdvance(frame->title());
    return width == 0 ? std::vector<QRect>() : std::vector{QRect(12, 0, width, 14)};
  }
  if (qobject_cast<const QComboBox*>(&widget)) return {inside.adjusted(0, 0, -16, 0)};
  if (qobject_cast<const QCheckBox*>(&widget) || qobject_cast<const QRadioButton*>(&widget))
    return {inside.adjusted(18, 0, 0, 0)};
  if (qobject_cast<const QPushButton*>(&widget) || qobject_cast<const QLineEdit*>(&widget)) return {inside};
  return {};
}

class Contrast : public testing::Test {
 protected:
  Contrast() {
    QDir::setSearchPaths("skin", {QString(SKYLOFT_SHARE) + "/skin"});
    SetFont();
    QApplication::setPalette(SkinPalette());
    application_.setStyleSheet(SkinStyle());
    ApplySkin();
  }

  // Gives every control of the form something to say.
  static void Fill(Form& form) {
    for (Control* control : form.Controls()) {
      control->Visible = true;
      if (auto* label = dynamic_cast<Label*>(control); label && label->Caption.Get().empty())
        label->Caption = "Sample";
      if (auto* box = dynamic_cast<TextBox*>(control)) box->Text = "Sample";
      if (auto* list = dynamic_cast<ListControl*>(control)) {
        if (list->Count() == 0) list->AddItem("Sample");
        list->Select(0);
      }
    }
    form.Visible = true;
  }

  // The texts of a window as it is on show; how many there were.
  static int Measure(Form& form, const std::string& where) {
    Display::Get().ShowDirty();
    QApplication::processEvents();
    FormWindow& window = Display::Get().WindowOf(form);
    const QImage picture = Painted(window);
    int measured = 0;
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
      if (!widget->isVisible() || !widget->isEnabled() || widget->width() == 0) continue;
      if (qobject_cast<const QComboBox*>(widget->parentWidget())) continue;
      for (const QRect& place : TextPlaces(*widget)) {
        const QRect on_window(widget->mapTo(&window, place.topLeft()), place.size());
        EXPECT_GE(ContrastIn(picture, on_window & picture.rect()), kEnough)
            << where << " " << widget->objectName().toStdString();
        ++measured;
      }
    }
    return measured;
  }

  // The same for each of a form's frames that lie on one another, one at a time.
  static void MeasureFrames(Form& form, int least) {
    Fill(form);
    std::vector<Frame*> frames;
    for (Control* control : form.Controls()) {
      if (auto* frame = dynamic_cast<Frame*>(control)) frames.push_back(frame);
    }
    ASSERT_FALSE(frames.empty());
    int measured = 0;
    for (Frame* shown : frames) {
      for (Frame* frame : frames) frame->Visible = frame == shown;
      measured += Measure(form, shown->Name());
    }
    EXPECT_GE(measured, least);
  }

  int argc_ = 0;
  QApplication application_{argc_, nullptr};
};

TEST(ContrastRatio, IsThatOfThePublishedFormula) {
  EXPECT_NEAR(Ratio(Luminance(qRgb(0, 0, 0)), Luminance(qRgb(255, 255, 255))), 21, 1e-9);
  EXPECT_NEAR(Ratio(Luminance(qRgb(255, 255, 255)), Luminance(qRgb(118, 118, 118))), 4.54, 0.005);
  EXPECT_NEAR(Ratio(Luminance(qRgb(255, 0, 0)), Luminance(qRgb(255, 255, 255))), 4.0, 0.005);
}

TEST_F(Contrast, TheTextsOfThePlainWindowsCanBeRead) {
  const std::pair<const char*, int> forms[] = {{"MainForm", 14},
                                               {"InitializingForm", 3},
                                               {"SystemFontForm", 9},
                                               {"RouteScopeForm", 6},
                                               {"RouteScopeOptionsForm", 6}};
  for (const auto& [name, least] : forms) {
    auto& form = *dynamic_cast<Form*>(FindControl(name));
    Fill(form);
    EXPECT_GE(Measure(form, name), least) << name;
  }
}

TEST_F(Contrast, TheTextsOfEveryPageOfTheWizardCanBeRead) {
  MeasureFrames(*dynamic_cast<Form*>(FindControl("SetupWizardForm")), 80);
}

TEST_F(Contrast, TheTextsOfEveryTabOfTheOptionsCanBeRead) {
  MeasureFrames(*dynamic_cast<Form*>(FindControl("SystemOptionsForm")), 45);
}

TEST_F(Contrast, TheEntriesOfMenusAndOpenListsCanBeReadChosenOrNot) {
  QMenu menu;
  QComboBox list;
  for (const char* entry : {"First", "Second"}) {
    menu.addAction(entry);
    list.addItem(entry);
  }
  menu.popup({0, 0});
  menu.setActiveAction(menu.actions()[1]);
  const QImage shown = Painted(menu);
  for (QAction* action : menu.actions()) {
    EXPECT_GE(ContrastIn(shown, menu.actionGeometry(action).adjusted(4, 2, -4, -2)), kEnough);
  }
  menu.hide();
  list.resize(120, 24);
  list.show();
  list.showPopup();
  list.view()->setCurrentIndex(list.model()->index(1, 0));
  const QImage open = Painted(*list.view()->viewport());
  for (int row = 0; row < 2; ++row) {
    const QRect place = list.view()->visualRect(list.model()->index(row, 0)).adjusted(2, 2, -2, -2);
    EXPECT_GE(ContrastIn(open, place & open.rect()), kEnough) << row;
  }
}

TEST_F(Contrast, TheTextOfAMessageBoxCanBeRead) {
  QMessageBox box(QMessageBox::Critical, "Skyloft", "ERROR: The maximum number of locations is 5.",
                  QMessageBox::Ok);
  box.show();
  const QImage picture = Painted(box);
  const auto* text = box.findChild<QLabel*>("qt_msgbox_label");
  ASSERT_TRUE(text);
  EXPECT_GE(ContrastIn(picture, text->geometry()), kEnough);
  const QWidget* button = box.button(QMessageBox::Ok);
  EXPECT_GE(ContrastIn(picture, QRect(button->mapTo(&box, QPoint(4, 4)), button->size() - QSize(8, 8))),
            kEnough);
}

}  // namespace
}  // namespace skyloft
