#include "NotificationHost.h"

#include "Announce.h"
#include "ElidedLabel.h"
#include "StyleProperty.h"
#include "TintedIcon.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QTimer>
#include <QToolButton>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int kMaximumWidth = 520;
constexpr int kSideMargin = 16;
constexpr int kGap = 8;
constexpr int kMargin = 6;
constexpr int kCloseSize = 28;
constexpr int kCloseIconSize = 16;
/// Longer messages go on in the tool tip, so that the banner stays a banner.
constexpr int kMaximumLines = 4;

/// Lets screen readers know the banner for what it is.
QAccessibleInterface *describeHost(const QString &className, QObject *object)
{
    auto *host = qobject_cast<NotificationHost *>(object);
    return host != nullptr && className == "NotificationHost"_L1
               ? new QAccessibleWidget(host, QAccessible::AlertMessage)
               : nullptr;
}

QString iconOf(const QString &kind)
{
    if (kind == "success"_L1) {
        return u"✓"_s;
    }
    if (kind == "warning"_L1) {
        return u"!"_s;
    }
    return kind == "error"_L1 ? u"✕"_s : QString();
}

QRect inside(const QWidget &widget, const QWidget &ancestor)
{
    return {widget.mapTo(&ancestor, QPoint(0, 0)), widget.size()};
}

} // namespace

NotificationHost::NotificationHost(QWidget &parent, QWidget *below)
    : QWidget(&parent)
    , m_below(below)
    , m_hideTimer(new QTimer(this))
{
    QAccessible::installFactory(describeHost);
    setObjectName(u"VantuNotificationHost"_s);
    setAttribute(Qt::WA_StyledBackground);
    build();
    m_hideTimer->setSingleShot(true);
    connect(m_hideTimer, &QTimer::timeout, this, &QWidget::hide);
    parent.installEventFilter(this);
    follow(below);
    hide();
}

void NotificationHost::build()
{
    m_icon = new QLabel(this);
    m_icon->setObjectName(u"VantuNotificationIcon"_s);
    m_message = new ElidedLabel(this);
    m_message->setObjectName(u"VantuNotificationMessage"_s);
    m_message->setMaximumLines(kMaximumLines);
    m_close = new QToolButton(this);
    m_close->setObjectName(u"VantuNotificationClose"_s);
    m_close->setFixedSize(kCloseSize, kCloseSize);
    m_close->setAutoRaise(true);
    m_close->setToolTip(tr("Close"));
    m_close->setAccessibleName(tr("Close"));
    connect(m_close, &QToolButton::clicked, this, &NotificationHost::dismiss);
    setCloseColor(palette().color(QPalette::PlaceholderText));

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    layout->setSpacing(kGap);
    layout->addSpacing(kMargin); // Margins aren't mirrored, spacings are.
    layout->addWidget(m_icon);
    layout->addWidget(m_message, 1);
    layout->addWidget(m_close, 0, Qt::AlignTop);
}

void NotificationHost::keepClearOf(QWidget &widget)
{
    m_keepClear.append(&widget);
    follow(&widget);
    place();
}

void NotificationHost::follow(QWidget *widget)
{
    // What scrolls is the content that a widget lies in, and itself stays where it is in there.
    for (; widget != nullptr && widget != parentWidget(); widget = widget->parentWidget()) {
        widget->installEventFilter(this);
    }
}

void NotificationHost::showMessage(const QString &message, const QString &kind, int timeoutMs)
{
    const QString text = message.trimmed();
    if (text.isEmpty()) {
        dismiss();
        return;
    }
    m_message->setText(text);
    setAccessibleName(tr("Notification: %1").arg(text));

    const QString wanted = kind.trimmed().toLower();
    const QString icon = iconOf(wanted);
    m_kind = icon.isEmpty() ? u"info"_s : wanted;
    setStyleProperty(*this, "vantuNotificationKind", m_kind);
    // What a style sheet says of a child depends on this property of its parent.
    setStyleProperty(*m_icon, "vantuNotificationKind", m_kind);
    m_icon->setText(icon);
    m_icon->setVisible(!icon.isEmpty());

    place();
    show();
    raise();
    m_hideTimer->stop();
    if (timeoutMs > 0) {
        m_hideTimer->start(timeoutMs);
    }
    announce(*this);
}

void NotificationHost::dismiss()
{
    m_hideTimer->stop();
    hide();
}

bool NotificationHost::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Resize:
    case QEvent::Move:
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::LayoutRequest:
        if (!isHidden()) {
            place();
        }
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

void NotificationHost::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape) {
        dismiss();
    } else {
        QWidget::keyPressEvent(event);
    }
}

void NotificationHost::place()
{
    const QWidget &parent = *parentWidget();
    // All but the message keeps its size, so that the rest of the width is the message's.
    const int natural = layout()->totalSizeHint().width();
    const int rest = natural - m_message->sizeHint().width();
    const int width = std::min({kMaximumWidth, natural, parent.width() - 2 * kSideMargin});
    const QMargins margins = layout()->contentsMargins();
    const int height = margins.top() + margins.bottom() +
                       std::max(m_message->heightForWidth(width - rest), kCloseSize);
    const int top = m_below != nullptr ? inside(*m_below, parent).bottom() + 1 + kGap : kGap;
    QRect area((parent.width() - width) / 2, top, width, height);

    for (bool moved = true; moved;) {
        moved = false;
        for (const QPointer<QWidget> &widget : std::as_const(m_keepClear)) {
            if (widget != nullptr && widget->isVisible() &&
                inside(*widget, parent).intersects(area)) {
                area.moveTop(inside(*widget, parent).bottom() + 1 + kGap);
                moved = true;
            }
        }
    }
    setGeometry(area);
}

void NotificationHost::setCloseColor(const QColor &color)
{
    m_close->setIcon(
        tintedIcon(u":/icons/close.svg"_s, color, kCloseIconSize, devicePixelRatioF()));
}
