#pragma once

#include <QList>
#include <QStringList>
#include <QWidget>

class QAbstractButton;
class QPushButton;

/// Short texts to pick from, as pills that flow over as many lines as they need. The
/// buttons are kept from one list of texts to the next.
class QuickEntryPillRow final : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(QuickEntryPillRow)

public:
    /// `limit` pills at most are shown until the user asks for more; 0 is no limit.
    explicit QuickEntryPillRow(int limit, QWidget *parent = nullptr);

    void setTexts(const QStringList &texts);
    /// Back to the first `limit` pills.
    void collapse();
    /// What can be pressed now, in order.
    QList<QAbstractButton *> buttons() const;

Q_SIGNALS:
    void picked(const QString &text);
    /// A button was made, which somebody may want to listen to.
    void buttonAdded(QAbstractButton *button);
    /// More pills are shown now, from `firstNew` on.
    void expanded(QAbstractButton *firstNew);

private:
    void expand();
    void render();
    QPushButton *addPill();

    int m_limit = 0;
    bool m_expanded = false;
    QStringList m_texts;
    QList<QPushButton *> m_pills;
    QPushButton *m_more = nullptr;
};
