// What a screen reader finds on a desktop: the real bus of accessibility, asked by its protocol.
#pragma once

#include <QDBusArgument>
#include <QDBusConnection>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <vector>

namespace skyloft::program {

// One thing on show.
struct Spoken {
  QString role;  // such as "push button"
  QString name;
  QString description;
  QString label;   // of what names it, if anything does
  QString within;  // the names of what it lies in
  bool focusable = false;
};

// A session bus with the bus of accessibility on it.
class AccessibleDesktop {
 public:
  AccessibleDesktop();
  ~AccessibleDesktop();
  bool Up() const { return up_; }
  // What a program needs to be told to join, as lines of its environment.
  QStringList Environment() const;
  // All that the program's windows show; empty as long as it has not joined.
  std::vector<Spoken> Shown(const QString& program) const;

 private:
  struct Reference;
  static std::vector<Reference> ReadReferences(const QDBusArgument& list);
  static std::vector<Reference> ChildrenOf(const Reference& parent);
  static QString LabelOf(const Reference& object);
  static void Walk(const Reference& object, const QString& within, std::vector<Spoken>& shown);

  QTemporaryDir runtime_;
  QProcess session_;
  QString address_;
  bool up_ = false;
};

}  // namespace skyloft::program
