#include "PrimaryActionProgressOverlay.h"

#include <QAbstractButton>
#include <QEvent>
#include <QPainter>
#include <QPen>
#include <QStyle>

#include <chrono>

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace {

/// What is over sooner shows no progress at all.
constexpr auto kDelay = 300ms;
constexpr auto kTurnInterval = 60ms;
constexpr int kTurnDegrees = 24;
constexpr int kArcDegrees = 270;
constexpr int kSixteenths = 16; ///< QPainter's parts of a degree.
constexpr int kArcSize = 16;
constexpr int kInset = 18;
constexpr qreal kPenWidth = 2.0;

} // namespace

PrimaryActionProgressOverlay::PrimaryActionProgressOverlay(QAbstractButton &button)
    : QWidget(&button)
{
    setObjectName(u"VantuVPNPrimaryActionProgress"_s);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    m_delay.setSingleShot(true);
    m_delay.setInterval(kDelay);
    connect(&m_delay, &QTimer::timeout, this, &QWidget::show);
    m_turn.setInterval(kTurnInterval);
    connect(&m_turn, &QTimer::timeout, this, &PrimaryActionProgressOverlay::turn);
    button.installEventFilter(this);
    hide();
}

void PrimaryActionProgressOverlay::setRunning(bool running)
{
    if (running == m_running) {
        return;
    }
    m_running = running;
    if (running) {
        m_delay.start();
    } else {
        m_delay.stop();
        hide();
    }
}

bool PrimaryActionProgressOverlay::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == parentWidget() && event->type() == QEvent::Resize) {
        resize(parentWidget()->size());
    }
    return QWidget::eventFilter(watched, event);
}

void PrimaryActionProgressOverlay::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    resize(parentWidget()->size());
    // Whoever switched animations off sees the arc stand still.
    if (style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, this) > 0) {
        m_turn.start();
    }
}

void PrimaryActionProgressOverlay::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    m_turn.stop();
}

void PrimaryActionProgressOverlay::turn()
{
    m_angle = (m_angle + kTurnDegrees) % 360;
    update();
}

void PrimaryActionProgressOverlay::paintEvent(QPaintEvent *)
{
    const QRect place = QStyle::visualRect(
        layoutDirection(), rect(), QRect(kInset, (height() - kArcSize) / 2, kArcSize, kArcSize));
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    // The button is strongly coloured whenever it waits, with white text.
    painter.setPen(QPen(Qt::white, kPenWidth, Qt::SolidLine, Qt::RoundCap));
    painter.drawArc(place, -m_angle * kSixteenths, kArcDegrees * kSixteenths);
}
