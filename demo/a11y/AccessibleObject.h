#pragma once

#include <QDBusArgument>
#include <QDBusConnection>
#include <QList>
#include <QMetaType>
#include <QRect>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

/// How assistive technology names an object of a program: where it lives on the
/// accessibility bus, and its path there.
struct AccessibleReference
{
    QString service;
    QString path;
};
Q_DECLARE_METATYPE(AccessibleReference)

QDBusArgument &operator<<(QDBusArgument &argument, const AccessibleReference &reference);
const QDBusArgument &operator>>(const QDBusArgument &argument, AccessibleReference &reference);

/// One object of a running program as a screen reader gets to know it. Each question goes
/// to that program and waits for the answer; what isn't answered is empty.
class AccessibleObject final
{
public:
    AccessibleObject(const QDBusConnection &bus, const AccessibleReference &reference);

    QString name() const { return property(kInterface, "Name").toString(); }
    QString description() const { return property(kInterface, "Description").toString(); }
    QString role() const;
    /// In words, such as "focusable" and "checked"; only those that tell a user something.
    QStringList states() const;
    /// What can be done to it, such as "Press".
    QStringList actions() const;
    bool act(const QString &action) const;
    /// Whether it is there to be clicked, whatever kind of button it is.
    bool isPressable() const;
    /// Does what a click would do; false when it can't be clicked.
    bool press() const;
    /// Gives it the keyboard.
    bool focus() const;
    /// Where it stands on the screen, in pixels.
    QRect place() const;
    /// What was typed into a field, or is to be read in a document.
    QString text() const;
    /// How long that text is, which can be asked of a password, too.
    int textLength() const;
    /// Marks all of its text, for the next key to replace.
    bool selectText() const;
    QList<AccessibleObject> children() const;

    using Test = std::function<bool(const AccessibleObject &object)>;
    /// The first object in sight below this one that passes the test.
    std::optional<AccessibleObject> find(const Test &test) const;
    /// The first one of this kind, and of this name unless that is empty.
    std::optional<AccessibleObject> find(const QString &role, const QString &name = {}) const;

private:
    static constexpr auto kInterface = "org.a11y.atspi.Accessible";

    QVariant property(const char *interface, const char *name) const;
    QDBusMessage call(const char *interface, const char *method,
                      const QVariantList &arguments = {}) const;

    QDBusConnection m_bus;
    AccessibleReference m_reference;
};
