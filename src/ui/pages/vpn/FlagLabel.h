#pragma once

#include "FlagPixmap.h"

#include <QWidget>

/// A flag with a hairline around it, so that white ones don't melt into the ground.
/// Keeps its room when there is no flag to show. Decoration only.
class FlagLabel final : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FlagLabel)

public:
    explicit FlagLabel(FlagSize size, QWidget *parent = nullptr);

    /// A code as flagCode() gives it; empty for no flag.
    void setCode(const QString &code);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    FlagSize m_size;
    QString m_code;
};
