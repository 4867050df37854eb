#pragma once

#include <QWidget>

class QFrame;
class QPushButton;
class QVBoxLayout;
class SettingsRow;

/// A card of settings with its title above it. Base of the sections of the Settings page.
class SettingsSection : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SettingsSection)

public:
    /// `cardName` is the object name of the card, for the sections that are addressed by it.
    explicit SettingsSection(const QString &title, const QString &cardName = {},
                             QWidget *parent = nullptr);

protected:
    /// A new row at the end, divided from the one before by a thin line.
    SettingsRow *addRow();
    /// A push button that Return presses as well as Space.
    QPushButton *makeButton(const QString &text, const QString &objectName);

private:
    QFrame *m_card = nullptr;
    QVBoxLayout *m_rows = nullptr;
};
