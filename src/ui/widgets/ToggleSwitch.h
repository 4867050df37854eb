#pragma once

#include <QCheckBox>

class QPaintEvent;

/// A check box that looks like a switch. It says nothing itself: give it an accessible
/// name, or make the label beside it its buddy.
///
/// Its colours are dynamic properties of type QColor, which handOnTheme() sets:
/// vantuSwitchCheckedTrack, vantuSwitchUncheckedTrack, vantuSwitchUncheckedOutline,
/// vantuSwitchThumb, vantuSwitchThumbBorder and vantuSwitchFocus. Whatever is missing
/// comes from the widget's palette, but for the outline and the border, which then aren't
/// drawn. The hint is the track's size; a layout should leave two pixels around it for
/// the focus ring, as the style template does.
class ToggleSwitch final : public QCheckBox
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ToggleSwitch)

public:
    explicit ToggleSwitch(QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool hitButton(const QPoint &position) const override;
    void paintEvent(QPaintEvent *event) override;
};
