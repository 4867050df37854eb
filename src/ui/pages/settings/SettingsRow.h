#pragma once

#include <QList>
#include <QWidget>

class ElidedLabel;
class QVBoxLayout;
class SegmentedControl;
class SettingsRowLayout;

/// One row of a card of settings: texts at the leading side, a control at the trailing
/// side, and below them whatever needs the whole width.
class SettingsRow final : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SettingsRow)

public:
    /// One of the choices of a row; `accessibleName` may be empty where the name of the
    /// row and the text together say it.
    struct Choice
    {
        QString value;
        QString text;
        QString objectName;
        QString accessibleName;
    };

    explicit SettingsRow(QWidget *parent = nullptr);

    /// Texts below each other; both wrap.
    ElidedLabel *addLine(const QString &text, const QString &objectName = {});
    ElidedLabel *addNote(const QString &text, const QString &objectName = {});
    void setControl(QWidget *control);
    /// A control of which one choice is in force.
    SegmentedControl *setChoices(const QString &name, const QList<Choice> &choices);
    void addBelow(QWidget *widget);

    /// A label for a paragraph of plain text in the colour of secondary text.
    static ElidedLabel *makeNote(const QString &text, QWidget *parent);

private:
    SettingsRowLayout &top();
    ElidedLabel *addText(ElidedLabel *label, const QString &objectName);

    QVBoxLayout *m_column = nullptr;
    QVBoxLayout *m_texts = nullptr;
    SettingsRowLayout *m_top = nullptr; ///< Takes room only once something is in it.
};
