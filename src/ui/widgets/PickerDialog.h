#pragma once

#include "PickerList.h"

#include <QDialog>

class QHBoxLayout;
class QKeyEvent;
class QPushButton;
class Theme;

/// What a PickerDialog says, and how its widgets are named.
struct PickerTexts
{
    QString namePrefix; ///< Such as "VantuRegionPicker"; "Dialog", "Title" and so on follow.
    QString title;
    QString subtitle;
    QString search;
    QString cancel;
    QString apply;
    QString unchanged; ///< Why there is nothing to apply.
};

/// A modal dialog to choose from a list: title, search, list, and at its foot Cancel and
/// Apply, which can be pressed once the choice differs from the one that it began with. Escape
/// ends the search first.
class PickerDialog : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(PickerDialog)

protected:
    PickerDialog(PickerList::Choice choice, const PickerTexts &texts, Theme &theme,
                 QWidget *parent);

    /// Fills the list; the choice that Apply is measured by. Call once, at the end of
    /// the constructor.
    void begin(const QList<PickerEntry> &entries, const QStringList &chosen);

    PickerList &list() { return *m_list; }
    /// Takes a quiet widget below the list.
    void addBelowList(QWidget *widget);
    /// Takes a button at the leading end of the foot.
    void addButton(QPushButton *button);

    /// Reports the choice, which differs from the first one; the dialog is closed by then.
    virtual void report(const QStringList &chosen) = 0;

    void keyPressEvent(QKeyEvent *event) override;

private:
    void buildButtons(const PickerTexts &texts);
    void apply();
    void showWhetherChanged();
    void handOnPalette();

    const Theme &m_theme;
    PickerList *m_list = nullptr;
    QHBoxLayout *m_foot = nullptr;
    QPushButton *m_cancel = nullptr;
    QPushButton *m_apply = nullptr;
    QString m_unchanged;
    bool m_mayBeEmpty;
    QStringList m_first;
};
