#include "platform/qt/tray_qt.h"

#include <map>
#include <memory>

#include <QIcon>
#include <QPixmap>
#include <QSystemTrayIcon>

#include "platform/qt/pictures_qt.h"
#include "platform/qt/text_qt.h"
#include "platform/tray.h"

namespace skyloft {
namespace {

constexpr int kMostSizes = 8;  // of one icon file

std::map<std::string, QIcon>& LoadedIcons() {
  static std::map<std::string, QIcon> icons;
  return icons;
}

QSystemTrayIcon& MakeIcon(TrayIcon& model) {
  auto* icon = new QSystemTrayIcon();  // ends with the process
  QObject::connect(icon, &QSystemTrayIcon::activated, icon,
                   [&model](QSystemTrayIcon::ActivationReason reason) {
                     const bool secondary = reason == QSystemTrayIcon::Context;
                     Raise([&] { Fire(secondary ? model.SecondaryClick : model.Click); });
                   });
  return *icon;
}

}  // namespace

void LoadIcon(TrayIcon& control, const std::string& path) {
  QIcon icon;
  for (const QImage& size : ReadPictures(path, kMostSizes)) icon.addPixmap(QPixmap::fromImage(size));
  if (icon.isNull()) throw RuntimeError("no icon: " + path);
  LoadedIcons()[path] = icon;
  control.Icon = path;
}

SystemVersion GetSystemVersion() { return {.platform = 2, .version = 6, .build = 0}; }

void ShowTrayIcon(TrayIcon& model) {
  static std::map<const TrayIcon*, QSystemTrayIcon*> icons;
  QSystemTrayIcon*& icon = icons[&model];
  if (!icon) {
    if (!model.Added) return;
    icon = &MakeIcon(model);
  }
  icon->setIcon(LoadedIcons()[model.Icon]);
  icon->setToolTip(ToQt(model.ToolTip));
  icon->setVisible(model.Added);
}

}  // namespace skyloft
