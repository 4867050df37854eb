#include "AccessibleObject.h"

#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVariant>

#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kAction = "org.a11y.atspi.Action";
constexpr auto kComponent = "org.a11y.atspi.Component";
constexpr auto kText = "org.a11y.atspi.Text";
constexpr auto kProperties = "org.freedesktop.DBus.Properties";
constexpr int kAnswerMs = 5000;
constexpr int kWordBits = 32;
constexpr uint kScreenCoordinates = 0;
constexpr int kToTheEnd = -1;

/// As Qt names it, for every object that can have the keyboard.
constexpr auto kFocusAction = "SetFocus";

/// Bits of the state set that tell a user something.
constexpr std::array<std::pair<int, const char *>, 16> kStates{{
    {1, "active"},
    {4, "checked"},
    {5, "collapsed"},
    {7, "editable"},
    {8, "enabled"},
    {9, "expandable"},
    {10, "expanded"},
    {11, "focusable"},
    {12, "focused"},
    {16, "modal"},
    {20, "pressed"},
    {22, "selectable"},
    {23, "selected"},
    {25, "showing"},
    {41, "checkable"},
    {43, "read-only"},
}};

} // namespace

QDBusArgument &operator<<(QDBusArgument &argument, const AccessibleReference &reference)
{
    argument.beginStructure();
    argument << reference.service << QDBusObjectPath(reference.path);
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, AccessibleReference &reference)
{
    QDBusObjectPath path;
    argument.beginStructure();
    argument >> reference.service >> path;
    argument.endStructure();
    reference.path = path.path();
    return argument;
}

AccessibleObject::AccessibleObject(const QDBusConnection &bus, const AccessibleReference &reference)
    : m_bus(bus)
    , m_reference(reference)
{
    qDBusRegisterMetaType<AccessibleReference>();
    qDBusRegisterMetaType<QList<AccessibleReference>>();
}

QDBusMessage AccessibleObject::call(const char *interface, const char *method,
                                    const QVariantList &arguments) const
{
    QDBusMessage message =
        QDBusMessage::createMethodCall(m_reference.service, m_reference.path,
                                       QString::fromLatin1(interface), QString::fromLatin1(method));
    message.setArguments(arguments);
    return m_bus.call(message, QDBus::Block, kAnswerMs);
}

QVariant AccessibleObject::property(const char *interface, const char *name) const
{
    const QVariantList answer =
        call(kProperties, "Get", {QString::fromLatin1(interface), QString::fromLatin1(name)})
            .arguments();
    return answer.value(0).value<QDBusVariant>().variant();
}

QString AccessibleObject::role() const
{
    return call(kInterface, "GetRoleName").arguments().value(0).toString();
}

QStringList AccessibleObject::states() const
{
    const QVariant answer = call(kInterface, "GetState").arguments().value(0);
    const auto words = qdbus_cast<QList<uint>>(answer);
    QStringList states;
    for (const auto &[bit, name] : kStates) {
        if (words.value(bit / kWordBits) & (1U << (bit % kWordBits))) {
            states += QString::fromLatin1(name);
        }
    }
    return states;
}

QStringList AccessibleObject::actions() const
{
    const int count = property(kAction, "NActions").toInt();
    QStringList names;
    for (int i = 0; i < count; ++i) {
        names += call(kAction, "GetName", {i}).arguments().value(0).toString();
    }
    return names;
}

bool AccessibleObject::act(const QString &action) const
{
    const qsizetype index = actions().indexOf(action);
    return index >= 0 && call(kAction, "DoAction", {int(index)}).arguments().value(0).toBool();
}

bool AccessibleObject::isPressable() const
{
    const QString action = actions().value(0);
    return !action.isEmpty() && action != QLatin1StringView(kFocusAction);
}

bool AccessibleObject::press() const
{
    return isPressable() && act(actions().constFirst());
}

bool AccessibleObject::focus() const
{
    return act(QString::fromLatin1(kFocusAction));
}

QRect AccessibleObject::place() const
{
    const QVariant answer =
        call(kComponent, "GetExtents", {kScreenCoordinates}).arguments().value(0);
    if (!answer.canConvert<QDBusArgument>()) {
        return {};
    }
    const auto argument = answer.value<QDBusArgument>();
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    argument.beginStructure();
    argument >> x >> y >> width >> height;
    argument.endStructure();
    return {x, y, width, height};
}

QString AccessibleObject::text() const
{
    return call(kText, "GetText", {0, kToTheEnd}).arguments().value(0).toString();
}

int AccessibleObject::textLength() const
{
    return property(kText, "CharacterCount").toInt();
}

bool AccessibleObject::selectText() const
{
    const int length = textLength();
    return length == 0 || call(kText, "SetSelection", {0, 0, length}).arguments().value(0).toBool();
}

QList<AccessibleObject> AccessibleObject::children() const
{
    const QVariant answer = call(kInterface, "GetChildren").arguments().value(0);
    QList<AccessibleObject> children;
    for (const AccessibleReference &child : qdbus_cast<QList<AccessibleReference>>(answer)) {
        children += AccessibleObject(m_bus, child);
    }
    return children;
}

std::optional<AccessibleObject> AccessibleObject::find(const Test &test) const
{
    for (const AccessibleObject &child : children()) {
        if (!child.states().contains("showing"_L1)) {
            continue;
        }
        if (test(child)) {
            return child;
        }
        if (auto below = child.find(test)) {
            return below;
        }
    }
    return std::nullopt;
}

std::optional<AccessibleObject> AccessibleObject::find(const QString &role,
                                                       const QString &name) const
{
    return find([&](const AccessibleObject &object) {
        return (name.isEmpty() || object.name() == name) && object.role() == role;
    });
}
