#include "ToggleSwitch.h"

#include "ButtonAccess.h"

#include <QPainter>
#include <QPalette>

namespace {

constexpr QSize kTrackSize{46, 26};
constexpr int kThumbInset = 3;
constexpr int kDisabledTrackAlpha = 85;
constexpr int kDisabledThumbAlpha = 150;
constexpr qreal kThumbBorderWidth = 1.0;
constexpr qreal kOutlineWidth = 1.0;
constexpr qreal kFocusWidth = 2.0;

/// The colour that the theme set, else `fallback`.
QColor themed(const QWidget &widget, const char *property, const QColor &fallback)
{
    const auto color = widget.property(property).value<QColor>();
    return color.isValid() ? color : fallback;
}

} // namespace

ToggleSwitch::ToggleSwitch(QWidget *parent)
    : QCheckBox(parent)
{
    ButtonAccess::install();
}

QSize ToggleSwitch::sizeHint() const
{
    return kTrackSize;
}

QSize ToggleSwitch::minimumSizeHint() const
{
    return kTrackSize;
}

bool ToggleSwitch::hitButton(const QPoint &position) const
{
    return rect().contains(position);
}

void ToggleSwitch::paintEvent(QPaintEvent *)
{
    const QColor focus = themed(*this, "vantuSwitchFocus", palette().color(QPalette::Highlight));
    QColor track =
        isChecked() ? themed(*this, "vantuSwitchCheckedTrack", palette().color(QPalette::Highlight))
                    : themed(*this, "vantuSwitchUncheckedTrack", palette().color(QPalette::Mid));
    QColor thumb = themed(*this, "vantuSwitchThumb", palette().color(QPalette::Base));
    QColor border = themed(*this, "vantuSwitchThumbBorder", Qt::transparent);
    const QColor outline = themed(*this, "vantuSwitchUncheckedOutline", Qt::transparent);
    if (!isEnabled()) {
        track.setAlpha(kDisabledTrackAlpha);
        thumb.setAlpha(kDisabledThumbAlpha);
        border.setAlpha(border.alpha() / 2);
    }

    QRect trackRect({}, kTrackSize);
    trackRect.moveTopLeft({(width() - trackRect.width()) / 2, (height() - trackRect.height()) / 2});
    const int diameter = trackRect.height() - 2 * kThumbInset;
    const int thumbLeft = isChecked() ? trackRect.x() + trackRect.width() - kThumbInset - diameter
                                      : trackRect.x() + kThumbInset;
    const QRect thumbRect(thumbLeft, trackRect.y() + kThumbInset, diameter, diameter);

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(track);
    painter.drawRoundedRect(trackRect, trackRect.height() / 2.0, trackRect.height() / 2.0);
    if (!isChecked() && isEnabled() && outline.alpha() > 0) {
        const qreal inset = kOutlineWidth / 2;
        const QRectF line = QRectF(trackRect).adjusted(inset, inset, -inset, -inset);
        painter.setPen(QPen(outline, kOutlineWidth));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(line, line.height() / 2, line.height() / 2);
        painter.setPen(Qt::NoPen);
    }
    if (border.alpha() > 0) {
        painter.setPen(QPen(border, kThumbBorderWidth));
    }
    painter.setBrush(thumb);
    painter.drawEllipse(thumbRect);
    if (hasFocus()) {
        const QRectF ring = QRectF(trackRect).adjusted(-1, -1, 1, 1);
        painter.setPen(QPen(focus, kFocusWidth));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(ring, ring.height() / 2, ring.height() / 2);
    }
}
