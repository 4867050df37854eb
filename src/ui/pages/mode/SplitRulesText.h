#pragma once

#include <QPlainTextEdit>
#include <QString>
#include <QStringList>

/// The editor's text field for one list of rules: as typed, in a monospaced font, from
/// left to right in every language. Knows at each key press whether its text still is
/// what it is measured by, however long that may be.
class SplitRulesText final : public QPlainTextEdit
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SplitRulesText)

public:
    explicit SplitRulesText(QWidget *parent = nullptr);

    /// Shows these rules and measures by them.
    void load(const QStringList &rules);
    /// Measures by these rules, and leaves the text.
    void setReference(const QStringList &rules);
    /// The text isn't what it is measured by; a line break at the end doesn't count.
    bool differs() const;

    /// Empties the text; can be undone, unlike clear().
    void removeAll();
    bool isEmpty() const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void noteChange(int position, int added);
    int length() const;

    /// With paragraph separators for line breaks, as the document holds it.
    QString m_reference;
    /// How many characters at both ends are known to be those of the reference, so that
    /// only what lies between has to be compared.
    mutable int m_sameAtStart = 0;
    mutable int m_sameAtEnd = 0;
};
