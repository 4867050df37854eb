#include "Announce.h"

#include <QAccessible>
#include <QAccessibleObject>
#include <QObject>
#include <QRect>
#include <QString>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kNews = "VantuNews"_L1;
constexpr auto kText = "vantuText";

/// The news of a window, which take no place there: they are only for those who listen.
/// Of what appears on the screen, a notification is what screen readers speak at once.
class NewsAccess final : public QAccessibleObject
{
public:
    using QAccessibleObject::QAccessibleObject;

    QAccessibleInterface *parent() const override
    {
        return QAccessible::queryAccessibleInterface(object()->parent());
    }
    QAccessibleInterface *child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QRect rect() const override { return {}; }
    QAccessible::Role role() const override { return QAccessible::Notification; }
    QAccessible::State state() const override { return {}; }
    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? object()->property(kText).toString() : QString();
    }
};

QAccessibleInterface *describe(const QString &, QObject *object)
{
    return object && object->objectName() == kNews ? new NewsAccess(object) : nullptr;
}

} // namespace

void announce(QWidget &source)
{
    const auto *spoken =
        QAccessible::isActive() ? QAccessible::queryAccessibleInterface(&source) : nullptr;
    announce(source, spoken ? spoken->text(QAccessible::Name) : QString());
}

void announce(QWidget &source, const QString &text)
{
    QAccessibleEvent alert(&source, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
    if (!QAccessible::isActive()) {
        return;
    }
    // Qt doesn't pass alerts on to the screen readers of this desktop.
    QAccessible::installFactory(describe);
    auto *news = source.window()->findChild<QObject *>(kNews, Qt::FindDirectChildrenOnly);
    if (!news) {
        news = new QObject(source.window());
        news->setObjectName(kNews);
    }
    news->setProperty(kText, text);
    QAccessibleEvent show(news, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&show);
}

void setShownAloud(QWidget &text, bool shown)
{
    const bool appears = shown && text.isHidden();
    text.setVisible(shown);
    if (appears) {
        announce(text);
    }
}
