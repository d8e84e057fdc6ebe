#include "platform/qt/clock_qt.h"

#include <optional>

#include <QTimeZone>

namespace skyloft {
namespace {

struct ClockState {
  QTimeZone zone = QTimeZone::systemTimeZone();
  std::optional<Date> stands;
};
ClockState& TheClock() {
  static ClockState clock;
  return clock;
}

const QDate kDayZero(1899, 12, 30);

}  // namespace

bool SetZone(const QString& name) {
  if (name.isEmpty()) return true;
  const QTimeZone zone(name.toUtf8());
  if (!zone.isValid()) return false;
  TheClock().zone = zone;
  return true;
}

void StopClock(Date moment) { TheClock().stands = moment; }

bool ClockStands() { return TheClock().stands.has_value(); }

void MoveClock(std::int64_t seconds) {
  if (TheClock().stands) TheClock().stands->seconds += seconds;
}

QDateTime ToMoment(Date local) {
  const DateParts parts = PartsOf(local);
  return QDateTime(QDate(parts.year, parts.month, parts.day), QTime(parts.hour, parts.minute, parts.second),
                   TheClock().zone);
}

Date ToLocal(const QDateTime& moment) {
  const QDateTime local = moment.toTimeZone(TheClock().zone);
  return Date{kDayZero.daysTo(local.date()) * 86400 + local.time().msecsSinceStartOfDay() / 1000};
}

Date Now() {
  if (TheClock().stands) return *TheClock().stands;
  return ToLocal(QDateTime::currentDateTimeUtc());
}

ZoneState GetZoneState() {
  const QTimeZone& zone = TheClock().zone;
  const QDateTime now = TheClock().stands ? ToMoment(*TheClock().stands) : QDateTime::currentDateTimeUtc();
  const int bias_minutes = -zone.standardTimeOffset(now) / 60;
  if (zone.isDaylightTime(now)) return {bias_minutes, 2};
  const bool ever = zone.hasDaylightTime() && zone.nextTransition(now).atUtc.isValid();
  return {bias_minutes, ever ? 1 : 0};
}

}  // namespace skyloft
