#include "platform/qt/skin_style.h"

#include <QApplication>
#include <QFont>

#include "platform/qt/html/html_fonts.h"

namespace skyloft {

// What is bold has a face of its own: the Tahoma that Debian has draws no bold letters of these sizes.
QString SkinStyle() {
  return R"(
    QWidget { color: #dbe6ff; }
    QWidget#SetupWizardForm, QWidget#SystemOptionsForm, QWidget#SystemFontForm, QMessageBox, QDialog { background: #12234a; }
    QLabel { background: transparent; }
    QLabel#LocationLabel, QLabel#ProductTitle { font-size: 14px; color: #ffffff; }
    QLabel#TimeValue { color: #ffd35c; }
    QLabel#SevereWeatherLabel, QLabel#PersonalLabel, QLabel#TimeLabel, QLabel#FixedCaption { color: #9fb6e6; font-size: 11px; }
    QLabel#SoftwareVersion, QLabel#SoftwareStatus { color: #dbe6ff; }
    QLabel#EmailLink { color: #a9cbff; }
    QLabel#Heading { font-size: 18px; color: #ffd35c; }
    QWidget#SystemFontForm QLabel#Heading { font-size: 15px; }
    QLineEdit { background: #0b1428; border: 1px solid #3a568c; border-radius: 4px; padding: 1px 4px;
                selection-background-color: #2c54a8; selection-color: #ffffff; }
    QLineEdit:focus { border: 2px solid #ffd35c; padding: 0 3px; }
    QLineEdit:disabled { color: #6f7fa3; }
    QLineEdit#Channel { color: #7be08a; }
    QComboBox { background: #16294f; border: 1px solid #3a568c; border-radius: 5px; padding: 0 4px 0 5px;
                font-size: 11px; combobox-popup: 0; }
    QComboBox:hover { border-color: #5b9bff; }
    QComboBox:focus { border: 2px solid #ffd35c; padding: 0 3px 0 4px; }
    QComboBox:disabled { color: #6f7fa3; background: #12203e; }
    QComboBox::drop-down { border: 0; width: 15px; }
    QComboBox::down-arrow { image: url(skin:arrow.png); width: 10px; height: 6px; }
    QComboBox QAbstractItemView { background: #16294f; color: #dbe6ff; border: 1px solid #3a568c;
                                  selection-background-color: #2c54a8; selection-color: #ffffff; outline: 0; }
    QComboBox QAbstractItemView::item { min-height: 17px; }
    QScrollBar:vertical { background: #0d1b36; width: 10px; }
    QScrollBar::handle:vertical { background: #5b9bff; min-height: 20px; border-radius: 3px; margin: 1px; }
    QScrollBar::add-line, QScrollBar::sub-line, QScrollBar::add-page, QScrollBar::sub-page {
      background: none; height: 0; }
    QPushButton { background: #27468c; border: 1px solid #5b82cf; border-radius: 6px; padding: 4px 14px; }
    QPushButton:hover { background: #3158ad; }
    QPushButton:focus { border: 2px solid #ffd35c; padding: 3px 13px; }
    QCheckBox:focus, QRadioButton:focus { color: #ffd35c; }
    QPushButton:pressed { background: #1b3263; }
    QPushButton:disabled { color: #6f7fa3; background: #182a52; border-color: #2f4675; }
    QLabel#EmailHeading, QLabel#VerificationHeading, QLabel#NWSHeading, QLabel#Personal1Heading,
    QLabel#Personal2Heading, QLabel#Personal3Heading, QLabel#LocationTitleHeader {
      font-family: "Verdana", "DejaVu Sans"; font-weight: bold; font-size: 15px; color: #ffd35c; }
    QLabel#LocationLabel, QLabel#ProductTitle, QLabel#Heading, QLineEdit#Channel {
      font-family: "Verdana", "DejaVu Sans"; font-weight: bold; }
    QGroupBox { background: #12234a; border: 1px solid #3a568c; border-radius: 6px; margin-top: 8px; }
    QGroupBox::title { subcontrol-origin: margin; left: 10px; color: #9fb6e6; }
    QLabel:disabled, QCheckBox:disabled, QRadioButton:disabled { color: #6f7fa3; }
    QTabBar::tab { background: #16294f; border: 1px solid #3a568c; padding: 5px 14px; }
    QTabBar::tab:selected { background: #27468c; }
    QTabBar::tab:selected:focus { border: 2px solid #ffd35c; padding: 4px 13px; }
    QTabBar { qproperty-drawBase: 0; }
    QDialogButtonBox { dialogbuttonbox-buttons-have-icons: 0; }
    QMenu { background: #12234a; border: 1px solid #3a568c; }
    QMenu::item { padding: 5px 26px; }
    QMenu::item:selected { background: #2c54a8; }
    QMenu::item:disabled { color: #6f7fa3; }
    QMenu::separator { height: 1px; background: #3a568c; margin: 4px 8px; }
    QToolTip { background: #fff8d8; color: #14213d; border: 1px solid #14213d; }
  )";
}

QPalette SkinPalette() {
  QPalette palette;
  palette.setColor(QPalette::Base, QColor(0x0b, 0x14, 0x28));
  palette.setColor(QPalette::Highlight, kFocusColor);  // around a mark that has the focus
  return palette;
}

const std::vector<FixedCaption>& FixedCaptions() {
  static const std::vector<FixedCaption> captions = {
      {"MainForm", {182, 42, 118, 15}, "&Location", "LocationSelection"},
      {"MainForm", {308, 42, 116, 15}, "&Category", "CategorySelection"},
      {"MainForm", {432, 42, 180, 15}, "&Product", "ProductSelection"},
  };
  return captions;
}

std::string BodyPicture(const Form& form) {
  if (form.Name() == "MainForm") return "mainform.png";
  if (form.Name() == "InitializingForm") return "splash.png";
  return "";
}

void SetFont() {
  QFont font(FindHtmlFont("Tahoma, Verdana", 12, QFont::Normal, false).font.family());
  font.setPixelSize(12);
  QApplication::setFont(font);
}

}  // namespace skyloft
