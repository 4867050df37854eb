#pragma once

#include <QLabel>

class QEvent;

/// A small arrow that points onwards in reading direction. Decoration only: clicks go
/// to the widget behind it.
class ChevronLabel final : public QLabel
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ChevronLabel)

public:
    explicit ChevronLabel(QWidget *parent = nullptr);

protected:
    void changeEvent(QEvent *event) override;

private:
    void render();
};
