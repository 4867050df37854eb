#include "ButtonAccess.h"

#include "ChoiceGroup.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>

namespace {

QAccessibleInterface *describe(const QString &, QObject *object)
{
    if (qobject_cast<QPushButton *>(object) || qobject_cast<QCheckBox *>(object) ||
        qobject_cast<QRadioButton *>(object) || qobject_cast<QToolButton *>(object)) {
        return new ButtonAccess(static_cast<QAbstractButton &>(*object));
    }
    return nullptr;
}

bool isOneOfSeveral(const QAbstractButton &button)
{
    return button.isCheckable() &&
           (button.autoExclusive() || (button.group() && button.group()->exclusive()) ||
            qobject_cast<ChoiceGroup *>(button.parentWidget()));
}

/// The text of a button as it is shown: an "&" marks the letter after it.
QString shownText(const QString &text)
{
    QString shown;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text.at(i) == u'&' && i + 1 < text.size()) {
            ++i;
        }
        shown += text.at(i);
    }
    return shown;
}

} // namespace

void ButtonAccess::install()
{
    QAccessible::installFactory(describe);
}

ButtonAccess::ButtonAccess(QAbstractButton &button)
    : QAccessibleWidget(&button)
    , m_button(button)
{}

QAccessible::Role ButtonAccess::role() const
{
    if (isOneOfSeveral(m_button)) {
        return QAccessible::RadioButton;
    }
    return m_button.isCheckable() ? QAccessible::CheckBox : QAccessible::Button;
}

QString ButtonAccess::text(QAccessible::Text kind) const
{
    const QString known = QAccessibleWidget::text(kind);
    return kind == QAccessible::Name && known.isEmpty() ? shownText(m_button.text()) : known;
}

QAccessible::State ButtonAccess::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    const auto *push = qobject_cast<QPushButton *>(&m_button);
    state.checkable = m_button.isCheckable();
    state.checked = m_button.isChecked();
    state.pressed = m_button.isDown();
    state.defaultButton = push && push->isDefault();
    return state;
}

QString ButtonAccess::clickName() const
{
    return m_button.isCheckable() ? toggleAction() : pressAction();
}

QStringList ButtonAccess::actionNames() const
{
    QStringList names;
    if (m_button.isEnabled()) {
        names += clickName();
    }
    return names + QAccessibleWidget::actionNames();
}

void ButtonAccess::doAction(const QString &name)
{
    if (name == clickName()) {
        m_button.click(); // Which a disabled button ignores.
    } else {
        QAccessibleWidget::doAction(name);
    }
}
