#include "platform/qt/skin_style.h"

#include <QApplication>
#include <QFont>

namespace skyloft {

QString SkinStyle() {
  return R"(
    QWidget { color: #dbe6ff; }
    QWidget#SetupWizardForm, QWidget#SystemOptionsForm, QWidget#SystemFontForm, QMessageBox, QDialog { background: #12234a; }
    QLabel { background: transparent; }
    QLabel#LocationLabel { font-weight: bold; font-size: 14px; color: #ffffff; }
    QLabel#ProductTitle { font-weight: bold; font-size: 14px; color: #ffffff; }
    QLabel#TimeValue { color: #ffd35c; }
    QLabel#SevereWeatherLabel, QLabel#PersonalLabel, QLabel#TimeLabel { color: #9fb6e6; font-size: 11px; }
    QLabel#SoftwareVersion, QLabel#SoftwareStatus { color: #dbe6ff; }
    QLabel#EmailLink { color: #7fb0ff; }
    QLabel#Heading { font-weight: bold; font-size: 18px; color: #ffd35c; }
    QWidget#SystemFontForm QLabel#Heading { font-size: 15px; }
    QLineEdit { background: #0b1428; border: 1px solid #3a568c; border-radius: 4px; padding: 1px 4px;
                selection-background-color: #3f6fd0; }
    QLineEdit:focus { border-color: #ffd35c; }
    QLineEdit:disabled { color: #6f7fa3; }
    QLineEdit#Channel { color: #7be08a; font-weight: bold; }
    QComboBox { background: #16294f; border: 1px solid #3a568c; border-radius: 5px; padding: 0 4px 0 5px;
                font-size: 11px; }
    QComboBox:hover { border-color: #5b9bff; }
    QComboBox:focus { border-color: #ffd35c; }
    QComboBox:disabled { color: #6f7fa3; background: #12203e; }
    QComboBox::drop-down { border: 0; width: 15px; }
    QComboBox::down-arrow { image: url(skin:arrow.png); width: 10px; height: 6px; }
    QComboBox QAbstractItemView { background: #16294f; color: #dbe6ff; border: 1px solid #3a568c;
                                  selection-background-color: #3f6fd0; outline: 0; }
    QPushButton { background: #27468c; border: 1px solid #5b82cf; border-radius: 6px; padding: 4px 14px; }
    QPushButton:hover { background: #3158ad; }
    QPushButton:focus { border-color: #ffd35c; }
    QPushButton:pressed { background: #1b3263; }
    QPushButton:disabled { color: #6f7fa3; background: #182a52; border-color: #2f4675; }
    QLabel#EmailHeading, QLabel#VerificationHeading, QLabel#NWSHeading, QLabel#Personal1Heading,
    QLabel#Personal2Heading, QLabel#Personal3Heading, QLabel#LocationTitleHeader {
      font-weight: bold; font-size: 15px; color: #ffd35c; }
    QGroupBox { background: #12234a; border: 1px solid #3a568c; border-radius: 6px; margin-top: 8px; }
    QGroupBox::title { subcontrol-origin: margin; left: 10px; color: #9fb6e6; }
    QLabel:disabled, QCheckBox:disabled, QRadioButton:disabled { color: #6f7fa3; }
    QTabBar::tab { background: #16294f; border: 1px solid #3a568c; padding: 5px 14px; }
    QTabBar::tab:selected { background: #27468c; }
    QTabBar { qproperty-drawBase: 0; }
    QDialogButtonBox { dialogbuttonbox-buttons-have-icons: 0; }
    QMenu { background: #12234a; border: 1px solid #3a568c; }
    QMenu::item { padding: 5px 26px; }
    QMenu::item:selected { background: #3f6fd0; }
    QMenu::item:disabled { color: #6f7fa3; }
    QMenu::separator { height: 1px; background: #3a568c; margin: 4px 8px; }
    QToolTip { background: #fff8d8; color: #14213d; border: 1px solid #14213d; }
  )";
}

QPalette SkinPalette() {
  QPalette palette;
  palette.setColor(QPalette::Base, QColor(0x0b, 0x14, 0x28));
  return palette;
}

const std::vector<FixedCaption>& FixedCaptions() {
  static const std::vector<FixedCaption> captions = {
      {"MainForm", {182, 42, 118, 15}, "Location"},
      {"MainForm", {308, 42, 116, 15}, "Category"},
      {"MainForm", {432, 42, 180, 15}, "Product"},
  };
  return captions;
}

std::string BodyPicture(const Form& form) {
  if (form.Name() == "MainForm") return "mainform.png";
  if (form.Name() == "InitializingForm") return "splash.png";
  return "";
}

void SetFont() {
  QFont font("DejaVu Sans");
  font.setPixelSize(12);
  QApplication::setFont(font);
}

}  // namespace skyloft
