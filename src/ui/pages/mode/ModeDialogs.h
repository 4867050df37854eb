#pragma once

#include "RegionPickerDialog.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>

#include <functional>

class AppState;
class ConfirmDialog;
class SplitRulesEditorDialog;
class Theme;

/// The dialogs of the Mode page, of which at most one is open: the editor of the custom
/// rules, the region picker and the question about the kill switch. Lives on the GUI
/// thread.
class ModeDialogs final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ModeDialogs)

public:
    /// The dialogs open over `page`, which owns the object. `state` and `theme` must
    /// outlive it.
    ModeDialogs(const AppState &state, Theme &theme, QWidget &page);
    ~ModeDialogs() override;

    /// Opens the editor and has the rules fetched anew.
    void editRules();
    /// `route` is the name of the route that the chosen regions use.
    void pickRegions(const QString &route, const QList<RegionChoice> &regions,
                     const QStringList &chosen);
    void askForKillSwitchOff();

    /// For the editor, if it is open.
    void setRulesLoading(bool loading);
    /// The store holds what the daemon has.
    void takeRules();
    void showRulesError(const QString &message);
    void finishImport(const QString &error);

    /// Closes everything and calls `proceed`, but asks before typed rules get lost.
    void whenSafeToLeave(std::function<void()> proceed);
    /// Closes everything without asking.
    void closeAll();
    void closeRegions();

Q_SIGNALS:
    void rulesRequested();
    void importRequested(const QString &kind, const QString &content);
    void regionsApplied(const QStringList &regions);
    void openSettingsChosen();

private:
    bool raiseOpenDialog() const;
    void open(QDialog &dialog);

    const AppState &m_state;
    Theme &m_theme;
    QWidget &m_page;
    QPointer<SplitRulesEditorDialog> m_editor;
    QPointer<RegionPickerDialog> m_picker;
    QPointer<ConfirmDialog> m_question;
};
