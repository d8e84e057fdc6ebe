#include "platform/qt/snapshot.h"

#include <QCoreApplication>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

#include "base/values.h"
#include "forms/forms.h"
#include "platform/qt/display.h"
#include "platform/qt/form_window.h"
#include "platform/qt/text_qt.h"

namespace skyloft {
namespace {

bool Save(const QString& path, const QByteArray& bytes) {
  QSaveFile file(path);
  return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
}

QString DocumentName(const Control& control) {
  return ToQt(control.Owner()->Name() + "." + control.Name() + ".html");
}

QJsonValue JsonOf(const PropertyValue& value) {
  if (const auto* flag = std::get_if<bool>(&value)) return *flag;
  if (const auto* number = std::get_if<double>(&value)) return *number;
  if (const auto* text = std::get_if<std::string>(&value)) return ToQt(*text);
  QJsonArray items;
  for (const std::string& item : std::get<std::vector<std::string>>(value)) items.append(ToQt(item));
  return items;
}

QJsonObject JsonOf(const Control& control) {
  QJsonObject object;
  if (!dynamic_cast<const Form*>(&control)) {
    const std::string_view type = control.Type();
    object["type"] = QString::fromLatin1(type.data(), static_cast<qsizetype>(type.size()));
  }
  PropertyList properties;
  control.Describe(properties);
  for (const auto& [name, value] : properties) object[QString::fromLatin1(name.data())] = JsonOf(value);
  if (dynamic_cast<const HtmlDisplay*>(&control)) object["document"] = DocumentName(control);
  return object;
}

QByteArray ControlsJson() {
  QJsonObject forms;
  for (const Form* form : AllForms()) {
    QJsonObject controls;
    controls["."] = JsonOf(*form);
    for (const Control* control : form->Controls()) controls[ToQt(control->Name())] = JsonOf(*control);
    forms[ToQt(form->Name())] = controls;
  }
  return QJsonDocument(forms).toJson();
}

bool SaveForm(const Form& form, const QString& folder) {
  bool saved = true;
  for (const Control* control : form.Controls()) {
    const auto* page = dynamic_cast<const HtmlDisplay*>(control);
    if (page) saved &= Save(folder + '/' + DocumentName(*page), ToQt(page->Document).toUtf8());
  }
  FormWindow* window = Display::Get().MadeWindowOf(form);
  if (form.Visible && window) saved &= window->grab().save(folder + '/' + ToQt(form.Name()) + ".png");
  return saved;
}

}  // namespace

bool SaveSnapshot(const QString& folder) {
  if (!QDir().mkpath(folder)) return false;
  Display::Get().ShowDirty();
  QCoreApplication::processEvents();
  Display::Get().ShowDirty();
  bool saved = Save(folder + "/controls.json", ControlsJson());
  for (const Form* form : AllForms()) saved &= SaveForm(*form, folder);
  return saved;
}

bool PropertyText(const Control& control, const std::string& property, std::string& text) {
  PropertyList properties;
  control.Describe(properties);
  if (property == "type") properties.emplace_back("type", std::string(control.Type()));
  for (const auto& [name, value] : properties) {
    if (name != property) continue;
    text.clear();
    if (const auto* flag = std::get_if<bool>(&value)) text = *flag ? "true" : "false";
    if (const auto* number = std::get_if<double>(&value)) text = NumberText(*number);
    if (const auto* words = std::get_if<std::string>(&value)) text = *words;
    if (const auto* items = std::get_if<std::vector<std::string>>(&value)) {
      for (const std::string& item : *items) text += (text.empty() ? "" : "\n") + item;
    }
    return true;
  }
  return false;
}

}  // namespace skyloft
