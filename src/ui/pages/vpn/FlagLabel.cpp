#include "FlagLabel.h"

#include <QPainter>

FlagLabel::FlagLabel(FlagSize size, QWidget *parent)
    : QWidget(parent)
    , m_size(size)
{
    setFixedSize(flagExtent(size));
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void FlagLabel::setCode(const QString &code)
{
    if (code != m_code) {
        m_code = code;
        update();
    }
}

void FlagLabel::paintEvent(QPaintEvent *)
{
    if (m_code.isEmpty()) {
        return;
    }
    const QPixmap flag = flagPixmap(m_code, m_size, devicePixelRatioF());
    QPainter painter(this);
    painter.setOpacity(isEnabled() ? 1.0 : 0.5);
    if (flag.isNull()) {
        // A place of no known country has a plain one.
        painter.fillRect(rect(), palette().color(QPalette::AlternateBase));
    } else {
        painter.drawPixmap(rect(), flag);
    }
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
}
