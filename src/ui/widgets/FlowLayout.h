#pragma once

#include <QLayout>
#include <QList>

/// Places its items in reading direction, line after line like words, each at its size
/// hint. Hidden widgets take no room. An item too wide for a line stands alone on one.
class FlowLayout final : public QLayout
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FlowLayout)

public:
    /// The spacings are pixels between items and between lines.
    FlowLayout(int horizontalSpacing, int verticalSpacing, QWidget *parent = nullptr);
    ~FlowLayout() override;

    void addItem(QLayoutItem *item) override;
    int count() const override;
    QLayoutItem *itemAt(int index) const override;
    QLayoutItem *takeAt(int index) override;

    Qt::Orientations expandingDirections() const override;
    bool hasHeightForWidth() const override;
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    void setGeometry(const QRect &rect) override;

private:
    enum class Pass { Measure, Place };
    int arrange(const QRect &rect, Pass pass) const;

    QList<QLayoutItem *> m_items; ///< Owned.
    int m_horizontalSpacing;
    int m_verticalSpacing;
};
