#include "platform/qt/tray_qt.h"

#include <algorithm>
#include <map>
#include <memory>
#include <vector>

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

struct ViewOfIcon {
  TrayIcon* model;
  std::unique_ptr<QSystemTrayIcon> icon;
};

// In the order in which they joined the tray. Outlives everything, as the process ends without unwinding.
std::vector<ViewOfIcon>& Views() {
  static auto* views = new std::vector<ViewOfIcon>();
  return *views;
}

ViewOfIcon MakeView(TrayIcon& model) {
  auto icon = std::make_unique<QSystemTrayIcon>();
  QObject::connect(icon.get(), &QSystemTrayIcon::activated, icon.get(),
                   [&model](QSystemTrayIcon::ActivationReason reason) {
                     if (reason == QSystemTrayIcon::Trigger) Raise([&] { Fire(model.Click); });
                     if (reason == QSystemTrayIcon::Context) Raise([&] { Fire(model.SecondaryClick); });
                   });
  return {&model, std::move(icon)};
}

}  // namespace

void LoadIcon(TrayIcon& control, const std::string& path) {
  QIcon icon;
  for (const QImage& size : ReadPictures(path, kMostSizes)) icon.addPixmap(QPixmap::fromImage(size));
  if (icon.isNull()) throw RuntimeError("no icon: " + path);
  LoadedIcons()[path] = icon;
  control.Icon = path;
}

void AddToTray(TrayIcon& model) {
  model.Added = true;
  auto& views = Views();
  const auto found = std::ranges::find(views, &model, &ViewOfIcon::model);
  if (found == views.end()) {
    views.push_back(MakeView(model));
  } else {
    std::rotate(found, found + 1, views.end());
  }
}

SystemVersion GetSystemVersion() { return {.platform = 2, .version = 6, .build = 0}; }

void ShowTray() {
  // An icon joins behind the others, so that a change of their number takes all out first.
  const bool same = std::ranges::all_of(
      Views(), [](const ViewOfIcon& view) { return view.icon->isVisible() == view.model->Added; });
  for (const ViewOfIcon& view : Views()) {
    if (!same) view.icon->hide();
  }
  for (const ViewOfIcon& view : Views()) {
    if (!view.model->Added) continue;
    view.icon->setIcon(LoadedIcons()[view.model->Icon]);
    view.icon->setToolTip(ToQt(view.model->ToolTip));
    view.icon->show();
  }
}

}  // namespace skyloft
