// Prints what a screen reader is told of the running program, one accessible object a line:
//
//   role TAB name TAB description TAB text or value TAB states TAB x TAB y TAB width TAB height
//
// Places are in pixels on the screen; states are those of "visible focused checked enabled" that
// hold. Only what shows is printed. The tour finds its way by these lines, so what it clicks is
// what a person can find too.

#include <QtDBus/QtDBus>
#include <cstdio>
#include <vector>

namespace {

/// An accessible object: the bus name of its program, and its path there.
struct Object {
  QString strService, strPath;
};

constexpr const char* strAccessible = "org.a11y.atspi.Accessible";

QDBusMessage fncCall(const QDBusConnection& bus, const Object& object, const char* strInterface,
                     const char* strMethod, const QVariantList& arguments = {}) {
  QDBusMessage call = QDBusMessage::createMethodCall(object.strService, object.strPath,
                                                     QString::fromLatin1(strInterface),
                                                     QString::fromLatin1(strMethod));
  call.setArguments(arguments);
  return bus.call(call, QDBus::Block, 2000);
}

/// The first value of an answer; nothing when there was none.
QVariant fncFirst(const QDBusMessage& answer) {
  const bool blnGood = answer.type() == QDBusMessage::ReplyMessage;
  return blnGood ? answer.arguments().value(0) : QVariant{};
}

QVariant fncProperty(const QDBusConnection& bus, const Object& object, const char* strInterface,
                     const char* strName) {
  const QDBusMessage answer =
      fncCall(bus, object, "org.freedesktop.DBus.Properties", "Get",
              {QString::fromLatin1(strInterface), QString::fromLatin1(strName)});
  return fncFirst(answer).value<QDBusVariant>().variant();
}

std::vector<Object> fncChildren(const QDBusConnection& bus, const Object& parent) {
  std::vector<Object> children;
  const QVariant list = fncFirst(fncCall(bus, parent, strAccessible, "GetChildren"));
  if (!list.isValid()) {
    return children;
  }
  const auto argument = list.value<QDBusArgument>();
  argument.beginArray();
  while (!argument.atEnd()) {
    Object child;
    QDBusObjectPath path;
    argument.beginStructure();
    argument >> child.strService >> path;
    argument.endStructure();
    child.strPath = path.path();
    children.push_back(child);
  }
  argument.endArray();
  return children;
}

struct State {
  unsigned Bit;
  const char* Name;
};
constexpr unsigned intShowing = 25;
constexpr State states[] = {{30, "visible"}, {12, "focused"}, {4, "checked"}, {8, "enabled"}};

quint64 fncStates(const QDBusConnection& bus, const Object& object) {
  const QVariant value = fncFirst(fncCall(bus, object, strAccessible, "GetState"));
  if (!value.isValid()) {
    return 0;
  }
  QList<quint32> words;
  value.value<QDBusArgument>() >> words;
  return words.value(0) | static_cast<quint64>(words.value(1)) << 32;
}

QRect fncExtents(const QDBusConnection& bus, const Object& object) {
  const QVariant value = fncFirst(
      fncCall(bus, object, "org.a11y.atspi.Component", "GetExtents", {QVariant::fromValue(0U)}));
  QRect extents;
  if (value.isValid()) {
    value.value<QDBusArgument>() >> extents;
  }
  return extents;
}

/// What an object holds beyond its name: the text of a box, the number of a bar.
QString fncContent(const QDBusConnection& bus, const Object& object) {
  const QVariant text = fncFirst(fncCall(bus, object, "org.a11y.atspi.Text", "GetText", {0, -1}));
  if (text.isValid()) {
    return text.toString();
  }
  return fncProperty(bus, object, "org.a11y.atspi.Value", "CurrentValue").toString();
}

QString fncOneLine(QString text) {
  return text.replace(QLatin1Char('\r'), QString())
      .replace(QLatin1Char('\n'), QLatin1Char(' '))
      .replace(QLatin1Char('\t'), QLatin1Char(' '));
}

void prcPrint(const QDBusConnection& bus, const Object& object, quint64 held) {
  QStringList names;
  for (const State& state : states) {
    if ((held >> state.Bit & 1U) != 0) {
      names << QString::fromLatin1(state.Name);
    }
  }
  const QRect place = fncExtents(bus, object);
  const QStringList fields{
      fncFirst(fncCall(bus, object, strAccessible, "GetRoleName")).toString(),
      fncOneLine(fncProperty(bus, object, strAccessible, "Name").toString()),
      fncOneLine(fncProperty(bus, object, strAccessible, "Description").toString()),
      fncOneLine(fncContent(bus, object)),
      names.join(QLatin1Char(' ')),
      QString::number(place.x()),
      QString::number(place.y()),
      QString::number(place.width()),
      QString::number(place.height())};
  std::puts(qPrintable(fields.join(QLatin1Char('\t'))));
}

/// Prints what shows below an object, level by level.
void prcPrintBelow(const QDBusConnection& bus, const Object& root) {
  std::vector<Object> level{root};
  while (!level.empty()) {
    std::vector<Object> below;
    for (const Object& object : level) {
      for (const Object& child : fncChildren(bus, object)) {
        const quint64 held = fncStates(bus, child);
        if ((held >> intShowing & 1U) != 0) {
          prcPrint(bus, child, held);
        }
        below.push_back(child);
      }
    }
    level = std::move(below);
  }
}

}  // namespace

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  const Object launcher{QStringLiteral("org.a11y.Bus"), QStringLiteral("/org/a11y/bus")};
  const QString address =
      fncFirst(fncCall(QDBusConnection::sessionBus(), launcher, "org.a11y.Bus", "GetAddress"))
          .toString();
  const QDBusConnection bus = QDBusConnection::connectToBus(address, QStringLiteral("eyes"));
  if (!bus.isConnected()) {
    std::fputs("There is no accessibility bus in this session.\n", stderr);
    return 1;
  }
  prcPrintBelow(bus, {QStringLiteral("org.a11y.atspi.Registry"),
                      QStringLiteral("/org/a11y/atspi/accessible/root")});
  return 0;
}
