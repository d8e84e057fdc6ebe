#include "platform/qt/html/html_fonts.h"

#include <QFile>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QHash>
#include <QStringList>
#include <algorithm>

namespace skyloft {
namespace {

constexpr const char* kFontFolders[] = {"/usr/share/wine/fonts", "/usr/share/fonts/truetype/wine",
                                        "/usr/local/share/fonts"};
constexpr const char* kFontFiles[] = {"tahoma.ttf", "tahomabd.ttf"};

// What stands in for the families that pages name, best first.
struct StandIns {
  const char* family;
  QStringList others;
};

const StandIns kStandIns[] = {
    {"tahoma", {"Verdana", "DejaVu Sans Condensed", "DejaVu Sans"}},
    {"verdana", {"Verdana", "DejaVu Sans"}},
    {"arial", {"Arial", "Liberation Sans", "Tahoma", "DejaVu Sans"}},
    {"helvetica", {"Helvetica", "Liberation Sans", "Tahoma", "DejaVu Sans"}},
    {"ms sans serif", {"Tahoma", "DejaVu Sans"}},
    {"sans-serif", {"Liberation Sans", "Tahoma", "DejaVu Sans"}},
    {"times new roman", {"Times New Roman", "Liberation Serif", "DejaVu Serif"}},
    {"serif", {"Times New Roman", "Liberation Serif", "DejaVu Serif"}},
    {"courier new", {"Courier New", "Liberation Mono", "DejaVu Sans Mono"}},
    {"courier", {"Courier New", "Liberation Mono", "DejaVu Sans Mono"}},
    {"monospace", {"Liberation Mono", "DejaVu Sans Mono"}},
};

QHash<QString, QString> ListFamilies() {
  for (const char* folder : kFontFolders) {
    bool found = false;
    for (const char* file : kFontFiles) {
      const QString path = QString("%1/%2").arg(folder, file);
      found = (QFile::exists(path) && QFontDatabase::addApplicationFont(path) >= 0) || found;
    }
    if (found) break;
  }
  QHash<QString, QString> families;
  for (const QString& family : QFontDatabase::families()) families.insert(family.toLower(), family);
  return families;
}

QString FindFamily(const QString& wanted) {
  static const QHash<QString, QString> families = ListFamilies();
  const QString name = wanted.trimmed().remove('\'').remove('"').toLower();
  if (const auto found = families.find(name); found != families.end()) return *found;
  for (const StandIns& row : kStandIns) {
    if (name != row.family) continue;
    for (const QString& other : row.others) {
      if (const auto found = families.find(other.toLower()); found != families.end()) return *found;
    }
  }
  return {};
}

}  // namespace

HtmlFont FindHtmlFont(const QString& families, int pixels, int weight, bool italic) {
  QString family;
  for (const QString& name : families.split(',')) {
    family = FindFamily(name);
    if (!family.isEmpty()) break;
  }
  const int size = std::clamp(pixels, 1, 200);
  QFont font(family.isEmpty() ? "DejaVu Sans" : family);
  font.setPixelSize(size);
  font.setWeight(static_cast<QFont::Weight>(std::clamp(weight, 100, 900)));
  font.setItalic(italic);
  font.setHintingPreference(QFont::PreferFullHinting);
  const double dots = size * qGuiApp->devicePixelRatio();
  if (dots <= 13) font.setStyleStrategy(QFont::NoAntialias);
  const bool thin = family == "Tahoma" && weight >= 600 && (dots < 9 || dots > 12);
  const QFontMetrics metrics(font);
  const int missing = std::max(0, (size * 12 + 5) / 10 - metrics.ascent() - metrics.descent());
  return {font, thin ? std::max(1, size / 16) : 0, metrics.ascent() + missing, metrics.descent()};
}

}  // namespace skyloft
