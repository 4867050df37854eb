#pragma once

#include "ChoiceGroup.h"

#include <QList>
#include <QString>

class QEvent;
class QPushButton;

/// A row of buttons of which one is chosen, such as Off | On | Lockdown.
///
/// It shows what is, not what was clicked: a click only reports the wish, and the
/// owner calls setValue() once the wish is fulfilled. The arrow keys move along the row
/// without choosing anything, so that nothing is changed by walking past; the space bar
/// and Return choose.
class SegmentedControl final : public ChoiceGroup
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SegmentedControl)

public:
    /// `accessibleName` says what is chosen here.
    explicit SegmentedControl(const QString &accessibleName, QWidget *parent = nullptr);

    /// Adds a segment at the end. The button may be given a tool tip and be disabled by
    /// the owner; it stays owned by the control.
    QPushButton *addSegment(const QString &value, const QString &text, const QString &objectName);
    /// The segment of this value, or null.
    QPushButton *segment(const QString &value) const;

    /// Marks the segment of this value as the chosen one; none if there is no such.
    void setValue(const QString &value);
    const QString &value() const { return m_value; }

    /// Squares the lower corners, for an editor right below.
    void setAttachedEditor(bool attached);

Q_SIGNALS:
    /// The user wants this value, which is not the present one.
    void chosen(const QString &value);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void markEnds();
    void showValue();

    struct Segment
    {
        QString value;
        QPushButton *button = nullptr;
    };
    QList<Segment> m_segments;
    QString m_value;
};
