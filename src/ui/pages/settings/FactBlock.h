#pragma once

#include <QColor>
#include <QList>
#include <QWidget>

class QLabel;
class QToolButton;
class QVBoxLayout;
struct ThemePalette;

/// A line of a FactBlock.
struct Fact
{
    QString text;
    QString copied;       ///< What its button copies; no button when empty.
    bool isError = false; ///< Something is wrong.

    bool operator==(const Fact &) const = default;
};

/// Facts to be read off exactly, such as addresses, paths and versions, one a line. What
/// there is to copy stands in letters of even width, with a button beside it.
class FactBlock final : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FactBlock)

public:
    explicit FactBlock(const QString &objectName, QWidget *parent = nullptr);

    /// All texts are shown plainly.
    void setFacts(const QList<Fact> &facts);
    /// All lines, divided by line breaks.
    QString text() const;

    void applyThemePalette(const ThemePalette &palette);

private:
    struct Line
    {
        QWidget *row = nullptr;
        QLabel *label = nullptr;
        QToolButton *button = nullptr;
    };

    void addLine();
    void copy(qsizetype index);
    void renderIcon(QToolButton &button) const;

    QVBoxLayout *m_column = nullptr;
    QList<Line> m_lines;
    QList<Fact> m_facts;
    QColor m_iconColor;
};
