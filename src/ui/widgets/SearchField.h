#pragma once

#include <QColor>
#include <QLineEdit>

class QEvent;
class QPaintEvent;
class QResizeEvent;

/// A line edit for searches, 42 pixels high, with a magnifying glass before the text and a
/// button that clears it. The text stands beside the glass in either reading direction.
class SearchField final : public QLineEdit
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SearchField)

public:
    explicit SearchField(const QString &placeholder, QWidget *parent = nullptr);

    /// The colour of both icons; handOnTheme() sets it.
    void setIconColor(const QColor &color);

protected:
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void placeIcons();

    QColor m_iconColor;
};
