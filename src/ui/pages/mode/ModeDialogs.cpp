#include "ModeDialogs.h"

#include "AppState.h"
#include "ConfirmDialog.h"
#include "KillSwitchConfirm.h"
#include "SplitRulesEditorDialog.h"

#include <QWidget>

#include <utility>

ModeDialogs::ModeDialogs(const AppState &state, Theme &theme, QWidget &page)
    : QObject(&page)
    , m_state(state)
    , m_theme(theme)
    , m_page(page)
{
    connect(&m_state, &AppState::splitRulesChanged, this, &ModeDialogs::takeRules);
}

ModeDialogs::~ModeDialogs()
{
    delete m_editor;
    delete m_picker;
    delete m_question;
}

void ModeDialogs::editRules()
{
    if (raiseOpenDialog()) {
        return;
    }
    m_editor = new SplitRulesEditorDialog(m_theme, m_page.window());
    connect(m_editor, &SplitRulesEditorDialog::importRequested, this,
            &ModeDialogs::importRequested);
    // Others may have changed the rules since they were fetched last.
    if (m_state.splitRules().known) {
        m_editor->setRules(m_state.splitRules());
    }
    m_editor->setLoading(true);
    open(*m_editor);
    Q_EMIT rulesRequested();
}

void ModeDialogs::pickRegions(const QString &route, const QList<RegionChoice> &regions,
                              const QStringList &chosen)
{
    if (raiseOpenDialog()) {
        return;
    }
    m_picker = new RegionPickerDialog(route, regions, chosen, m_theme, m_page.window());
    connect(m_picker, &RegionPickerDialog::applied, this, &ModeDialogs::regionsApplied);
    open(*m_picker);
}

void ModeDialogs::askForKillSwitchOff()
{
    if (raiseOpenDialog()) {
        return;
    }
    m_question = KillSwitchConfirm::needsKillSwitchOff(m_theme, m_page.window()).release();
    connect(m_question, &QDialog::finished, this, [this](int answer) {
        if (answer == ConfirmDialog::AcceptAnswer) {
            Q_EMIT openSettingsChosen();
        }
    });
    open(*m_question);
}

bool ModeDialogs::raiseOpenDialog() const
{
    for (QDialog *dialog : {static_cast<QDialog *>(m_editor), static_cast<QDialog *>(m_picker),
                            static_cast<QDialog *>(m_question)}) {
        if (dialog && dialog->isVisible()) {
            dialog->raise();
            dialog->activateWindow();
            return true;
        }
    }
    return false;
}

void ModeDialogs::open(QDialog &dialog)
{
    dialog.setAttribute(Qt::WA_DeleteOnClose);
    dialog.open();
}

void ModeDialogs::takeRules()
{
    if (m_editor) {
        m_editor->setRules(m_state.splitRules());
        m_editor->setLoading(false);
        m_editor->setLoadError({});
    }
}

void ModeDialogs::setRulesLoading(bool loading)
{
    if (m_editor) {
        m_editor->setLoading(loading);
        if (loading) {
            m_editor->setLoadError({});
        }
    }
}

void ModeDialogs::showRulesError(const QString &message)
{
    if (m_editor) {
        m_editor->setLoading(false);
        m_editor->setLoadError(message);
    }
}

void ModeDialogs::finishImport(const QString &error)
{
    if (m_editor) {
        m_editor->finishImport(error);
    }
}

void ModeDialogs::whenSafeToLeave(std::function<void()> proceed)
{
    const auto leave = [guard = QPointer(this), proceed = std::move(proceed)] {
        if (guard) {
            guard->closeAll();
        }
        proceed();
    };
    if (m_editor && m_editor->isVisible()) {
        m_editor->whenSafeToDiscard(leave);
    } else {
        leave();
    }
}

void ModeDialogs::closeAll()
{
    if (m_editor) {
        m_editor->closeForGood();
    }
    closeRegions();
    if (m_question && m_question->isVisible()) {
        m_question->reject();
    }
}

void ModeDialogs::closeRegions()
{
    if (m_picker && m_picker->isVisible()) {
        m_picker->reject();
    }
}
