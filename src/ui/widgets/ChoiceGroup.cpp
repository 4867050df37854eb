#include "ChoiceGroup.h"

#include "ButtonAccess.h"

#include <QAccessibleWidget>

namespace {

QAccessibleInterface *describe(const QString &, QObject *object)
{
    auto *group = qobject_cast<ChoiceGroup *>(object);
    return group ? new QAccessibleWidget(group, QAccessible::Grouping) : nullptr;
}

} // namespace

ChoiceGroup::ChoiceGroup(const QString &accessibleName, QWidget *parent)
    : QFrame(parent)
{
    QAccessible::installFactory(describe);
    ButtonAccess::install();
    setAccessibleName(accessibleName);
}
