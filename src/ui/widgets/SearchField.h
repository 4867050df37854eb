#pragma once

#include <QColor>
#include <QLineEdit>

class QAction;

/// A line edit for searches, 42 pixels high, with a magnifying glass before the text and a
/// button that clears it.
class SearchField final : public QLineEdit
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SearchField)

public:
    explicit SearchField(const QString &placeholder, QWidget *parent = nullptr);

    /// The colour of both icons; handOnTheme() sets it.
    void setIconColor(const QColor &color);

private:
    QAction *m_glass = nullptr;
};
