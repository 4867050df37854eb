#pragma once

#include "SplitRecords.h"

#include <QDialog>
#include <QHash>
#include <QPointer>
#include <QString>
#include <QStringList>

#include <functional>

class ConfirmDialog;
class ElidedLabel;
class QPushButton;
class QVBoxLayout;
class SegmentedControl;
class SplitRulesText;
class Theme;

/// Edits the user's own split rules, one list at a time.
///
/// Never loses what was typed without asking. Use open(); Apply only reports, and the
/// owner tells by finishImport() how it went. Lives on the GUI thread.
class SplitRulesEditorDialog final : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SplitRulesEditorDialog)

public:
    explicit SplitRulesEditorDialog(Theme &theme, QWidget *parent = nullptr);

    /// What the daemon holds. A list that is being edited keeps its text.
    void setRules(const SplitRulesInfo &rules);
    /// The lists are on their way; until they are here nothing can be edited.
    void setLoading(bool loading);
    /// Why the lists could not be had; nothing can be edited while it stands. Empty
    /// removes the text.
    void setLoadError(const QString &message);
    /// The answer to the last import; an empty `error` closes the dialog, any other one
    /// stands beside the text, which is kept. Ignored when no import is under way.
    void finishImport(const QString &error);

    /// The text differs from what the daemon holds.
    bool isDirty() const;
    /// Calls `proceed` at once, or after the user agreed to discard the edits, which
    /// are gone then. While the question is open a later call takes its place. While an
    /// import is under way, once it has been taken; never when it fails.
    void whenSafeToDiscard(std::function<void()> proceed);
    /// Closes without asking.
    void closeForGood();

    /// "direct", "tunnel" or "block".
    QString currentKind() const;

    /// Asks before it discards edits, and stays open while they are being saved.
    void reject() override;

Q_SIGNALS:
    void importRequested(const QString &kind, const QString &content);

private:
    void buildTop(QVBoxLayout &column);
    void buildText(QVBoxLayout &column);
    void buildHelp(QVBoxLayout &column);
    void buildButtons(QVBoxLayout &column);
    void reserveApplyWidth();
    void showKind(const QString &kind);
    void apply();
    void ask();
    void answered(int answer);
    void closeQuestion();
    bool canEdit() const;
    QString applyText() const;
    QString whyNotApply() const;
    void render();
    void renderError();

    Theme &m_theme;
    QHash<QString, QStringList> m_rules;
    bool m_hasRules = false;
    bool m_loading = false;
    bool m_saving = false;
    QString m_loadError;
    QString m_importError;
    QPointer<ConfirmDialog> m_question;
    std::function<void()> m_proceed;

    SegmentedControl *m_kinds = nullptr;
    SplitRulesText *m_text = nullptr;
    QWidget *m_errorCard = nullptr;
    ElidedLabel *m_error = nullptr;
    QPushButton *m_clear = nullptr;
    QPushButton *m_cancel = nullptr;
    QPushButton *m_apply = nullptr;
};
