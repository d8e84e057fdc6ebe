#include "platform/qt/dialog_keys.h"

#include <QLineEdit>
#include <QWidget>

#include "platform/qt/text_qt.h"

namespace skyloft {
namespace {

bool IsField(const Control* control) {
  return dynamic_cast<const TextBox*>(control) || dynamic_cast<const ListControl*>(control);
}

// The control made right before or behind another one in the same frame.
const Control* Neighbour(const Control& control, int step) {
  const std::vector<Control*>& all = control.Owner()->Controls();
  const auto at = std::find(all.begin(), all.end(), &control) - all.begin() + step;
  if (at < 0 || at >= static_cast<std::ptrdiff_t>(all.size())) return nullptr;
  const Control* neighbour = all[static_cast<size_t>(at)];
  return neighbour->Container() == control.Container() ? neighbour : nullptr;
}

QString CaptionOf(const Control* control) {
  if (const auto* button = dynamic_cast<const Button*>(control)) return ToQt(button->Caption);
  if (const auto* box = dynamic_cast<const CheckBox*>(control)) return ToQt(box->Caption);
  if (const auto* label = dynamic_cast<const Label*>(control)) return ToQt(label->Caption);
  return {};
}

// "Sun Rise Button" of "SunRiseButton".
QString Words(const std::string& name) {
  QString words;
  for (const QChar c : ToQt(name)) {
    if (c.isUpper() && !words.isEmpty() && words.back().isLower()) words += ' ';
    words += c;
  }
  return words;
}

// What tells its purpose only to the eye.
QString NameOf(const Control& control) {
  static const std::unordered_map<std::string, const char*> names = {
      {"WeatherConditionsBanner", "Current conditions"},
      {"Thumbnail", "Radar thumbnail"},
      {"Channel", "Product number"},
      {"Display1", "Weather map"},
      {"Display2", "Weather page"},
      {"Sponsor0", "Banner at the foot"},
      {"Sponsor1", "Banner at the top"},
      {"Sponsor2", "Message strip"},
      {"Sponsor4", "Banner of the bar"},
      {"SponsorBanner", "Banner"},
      {"Ticker", "Weather bar"},
      {"RouteScopeBrowser", "Route report"},
      {"TabStripOptions", "Options"},
      {"ProgressBar", "Place in the series"},
      {"SetupFrame", "Setup page"},
      {"ImagePoints", "Map mark"},
  };
  const auto name = names.find(control.Name().substr(0, control.Name().find('[')));
  return name == names.end() ? Words(control.Name()) : name->second;
}

// A letter that no other control has: one that begins a word before any other.
QChar FreeLetter(const QString& caption, const QString& taken) {
  const auto is_free = [&](qsizetype i) {
    return caption[i].isLetter() && caption[i].unicode() < 128 && !taken.contains(caption[i].toLower());
  };
  for (qsizetype i = 0; i < caption.size(); ++i) {
    if ((i == 0 || caption[i - 1] == ' ') && is_free(i)) return caption[i].toLower();
  }
  for (qsizetype i = 0; i < caption.size(); ++i) {
    if (is_free(i)) return caption[i].toLower();
  }
  return {};
}

bool NeedsLetter(const Control& control) {
  const auto* label = dynamic_cast<const Label*>(&control);
  if (label) return FieldOf(*label) != nullptr;
  return control.Owner()->Titled() && !CaptionOf(&control).isEmpty();
}

bool PressButton(const Form& form, bool Button::*role) {
  for (Control* control : form.Controls()) {
    auto* button = dynamic_cast<Button*>(control);
    if (!button || !(button->*role) || !button->Visible) continue;
    if (!button->Enabled) return false;
    Raise([&] { button->Press(); });
    return true;
  }
  return false;
}

}  // namespace

std::unordered_map<const Control*, QChar> MnemonicsOf(const Form& form) {
  std::unordered_map<const Control*, QChar> letters;
  std::unordered_map<const Control*, QString> taken;  // by frame; nullptr for what is always on show
  for (const bool in_frame : {false, true}) {
    for (const Control* control : form.Controls()) {
      if ((control->Container() != nullptr) != in_frame || !NeedsLetter(*control)) continue;
      QString& of_frame = taken[control->Container()];
      const QChar letter = FreeLetter(CaptionOf(control), of_frame + taken[nullptr]);
      if (letter.isNull()) continue;
      of_frame += letter;
      letters[control] = letter;
    }
  }
  return letters;
}

QString WithMnemonic(const QString& caption, QChar letter) {
  QString text = caption;
  text.replace("&", "&&");
  if (letter.isNull()) return text;
  qsizetype at = text.indexOf(letter, 0, Qt::CaseInsensitive);
  for (qsizetype i = at; i > 0; i = text.indexOf(letter, i + 1, Qt::CaseInsensitive)) {
    if (text[i - 1] != ' ') continue;
    at = i;
    break;
  }
  return at < 0 ? text : text.insert(at, '&');
}

const Control* FieldOf(const Label& label) {
  const Control* behind = Neighbour(label, 1);
  return IsField(behind) ? behind : nullptr;
}

QString SpokenName(const Control& control) {
  const std::string_view type = control.Type();
  if (type == "Label" || !CaptionOf(&control).isEmpty()) return {};
  if (const auto* frame = dynamic_cast<const Frame*>(&control)) {
    return frame->Caption.Get().empty() ? NameOf(control) : QString();
  }
  if (const QString purpose = ToQt(control.ToolTip); !purpose.isEmpty()) return purpose;
  if (!IsField(&control)) return NameOf(control);
  QStringList parts;
  const Control* before = Neighbour(control, -1);
  if (dynamic_cast<const Label*>(before)) {
    parts.prepend(CaptionOf(before));
    before = Neighbour(*before, -1);
  }
  if (dynamic_cast<const CheckBox*>(before)) parts.prepend(CaptionOf(before));
  return parts.isEmpty() ? NameOf(control) : parts.join(' ');
}

bool PressDefault(const Form& form) { return PressButton(form, &Button::Default); }
bool PressCancel(const Form& form) { return PressButton(form, &Button::Cancels); }

bool FocusFirst(QWidget& container) {
  for (const bool text_only : {true, false}) {
    for (QWidget* widget : container.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
      if (!widget->isEnabled() || !widget->isVisibleTo(&container)) continue;
      if ((widget->focusPolicy() & Qt::TabFocus) != Qt::TabFocus) continue;
      if (text_only && !qobject_cast<QLineEdit*>(widget)) continue;
      widget->setFocus(Qt::OtherFocusReason);
      return true;
    }
  }
  return false;
}

}  // namespace skyloft
