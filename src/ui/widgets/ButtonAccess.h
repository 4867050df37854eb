#pragma once

#include <QAccessibleWidget>

class QAbstractButton;

/// What assistive technology gets to know of buttons, check boxes and switches. Where
/// Qt's own answer to "toggle" merely turns a button over, this one clicks it, so that
/// whoever listens for the user's clicks hears of it.
class ButtonAccess final : public QAccessibleWidget
{
public:
    /// From now on for all such buttons that the program makes; further calls do nothing.
    /// Call it before the first of them, since some are asked about as they are made.
    static void install();

    explicit ButtonAccess(QAbstractButton &button);

    QAccessible::Role role() const override;
    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString &name) override;

private:
    QString clickName() const;

    QAbstractButton &m_button;
};
