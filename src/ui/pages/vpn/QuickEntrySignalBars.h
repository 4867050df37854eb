#pragma once

#include <QColor>
#include <QWidget>

/// Five small bars that show how good the way to a place is. Decoration beside the
/// latency, which says the same in words.
class QuickEntrySignalBars final : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(QuickEntrySignalBars)

public:
    explicit QuickEntrySignalBars(QWidget *parent = nullptr);

    /// -1 (unknown, nothing is painted) to 100; more counts as 100.
    void setLevel(int level);
    /// The colour of lit bars, and that of the others before it is faded.
    void setColors(const QColor &active, const QColor &inactive);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int m_level = -1;
    QColor m_active;
    QColor m_inactive;
};
