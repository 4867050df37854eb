#pragma once

#include <QLayout>

/// Places two items: a text at the leading edge and its control at the trailing edge, or
/// below the text where there isn't room for both side by side.
class SettingsRowLayout final : public QLayout
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SettingsRowLayout)

public:
    explicit SettingsRowLayout(QWidget *parent = nullptr);
    ~SettingsRowLayout() override;

    /// Adds a layout as the next item, and owns it.
    void addLayout(QLayout *layout);
    /// The text comes first; the control may be left out.
    void addItem(QLayoutItem *item) override;
    int count() const override;
    QLayoutItem *itemAt(int index) const override;
    QLayoutItem *takeAt(int index) override;

    bool hasHeightForWidth() const override;
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    void setGeometry(const QRect &rect) override;

private:
    enum class Pass { Measure, Place };
    int arrange(const QRect &rect, Pass pass) const;

    QList<QLayoutItem *> m_items; ///< Owned.
};
