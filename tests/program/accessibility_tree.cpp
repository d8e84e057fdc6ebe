#include "program/accessibility_tree.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QProcessEnvironment>

namespace skyloft::program {
namespace {

constexpr const char* kBus = "accessibility";
constexpr const char* kAccessible = "org.a11y.atspi.Accessible";
constexpr quint32 kFocusable = 1u << 11, kShowing = 1u << 25;  // of the first word of states
constexpr quint32 kLabelledBy = 2;                             // a relation

}  // namespace

struct AccessibleDesktop::Reference {
  QString service, path;

  // The first thing answered; nothing for a refusal.
  QVariant Ask(const char* interface, const char* method, const QVariantList& arguments = {}) const {
    QDBusMessage call = QDBusMessage::createMethodCall(service, path, interface, method);
    call.setArguments(arguments);
    const QDBusMessage reply = QDBusConnection(kBus).call(call, QDBus::Block, 20000);
    return reply.type() == QDBusMessage::ReplyMessage ? reply.arguments().value(0) : QVariant();
  }
  QString Role() const { return Ask(kAccessible, "GetRoleName").toString(); }
  QString Text(const char* property) const {
    const QVariant text = Ask("org.freedesktop.DBus.Properties", "Get", {kAccessible, property});
    return text.value<QDBusVariant>().variant().toString();
  }
};

std::vector<AccessibleDesktop::Reference> AccessibleDesktop::ReadReferences(const QDBusArgument& list) {
  std::vector<Reference> references;
  list.beginArray();
  while (!list.atEnd()) {
    QString service;
    QDBusObjectPath path;
    list.beginStructure();
    list >> service >> path;
    list.endStructure();
    references.push_back({service, path.path()});
  }
  list.endArray();
  return references;
}

AccessibleDesktop::AccessibleDesktop() {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.remove("DISPLAY");  // another desktop's
  environment.insert("XDG_RUNTIME_DIR", runtime_.path());
  session_.setProcessEnvironment(environment);
  session_.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
  if (!session_.waitForReadyRead(10000)) return;
  address_ = QString::fromLatin1(session_.readLine().trimmed());
  const QDBusConnection session = QDBusConnection::connectToBus(address_, "session");
  const QDBusMessage reply = session.call(
      QDBusMessage::createMethodCall("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress"));
  if (reply.arguments().isEmpty() || reply.type() != QDBusMessage::ReplyMessage) return;
  up_ = QDBusConnection::connectToBus(reply.arguments()[0].toString(), kBus).isConnected();
}

AccessibleDesktop::~AccessibleDesktop() {
  for (const char* bus : {kBus, "session"}) QDBusConnection::disconnectFromBus(bus);
  session_.terminate();
  session_.waitForFinished(5000);
}

QStringList AccessibleDesktop::Environment() const {
  return {"DBUS_SESSION_BUS_ADDRESS=" + address_, "QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1"};
}

std::vector<AccessibleDesktop::Reference> AccessibleDesktop::ChildrenOf(const Reference& parent) {
  const QVariant children = parent.Ask(kAccessible, "GetChildren");
  return children.isValid() ? ReadReferences(children.value<QDBusArgument>()) : std::vector<Reference>();
}

// A page's frame names its fields too; only what is a label counts.
QString AccessibleDesktop::LabelOf(const Reference& object) {
  const QVariant answer = object.Ask(kAccessible, "GetRelationSet");
  if (!answer.isValid()) return {};
  const auto relations = answer.value<QDBusArgument>();
  QString label;
  relations.beginArray();
  while (!relations.atEnd()) {
    quint32 kind = 0;
    relations.beginStructure();
    relations >> kind;
    for (const Reference& other : ReadReferences(relations)) {
      if (kind == kLabelledBy && other.Role() == "label") label = other.Text("Name");
    }
    relations.endStructure();
  }
  relations.endArray();
  return label;
}

void AccessibleDesktop::Walk(const Reference& object, const QString& within, std::vector<Spoken>& shown) {
  const QVariant answer = object.Ask(kAccessible, "GetState");
  if (!answer.isValid()) return;
  const auto states = qdbus_cast<QList<quint32>>(answer).value(0);
  const QString name = object.Text("Name");
  if (states & kShowing) {
    shown.push_back({object.Role(), name, object.Text("Description"), LabelOf(object), within,
                     (states & kFocusable) != 0});
  }
  for (const Reference& child : ChildrenOf(object)) Walk(child, within + "/" + name, shown);
}

std::vector<Spoken> AccessibleDesktop::Shown(const QString& program) const {
  std::vector<Spoken> shown;
  for (const Reference& application :
       ChildrenOf({"org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root"})) {
    if (application.Text("Name") != program) continue;
    for (const Reference& window : ChildrenOf(application)) Walk(window, {}, shown);
  }
  return shown;
}

}  // namespace skyloft::program
