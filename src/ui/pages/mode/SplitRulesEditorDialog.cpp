#include "SplitRulesEditorDialog.h"

#include "Announce.h"
#include "ConfirmDialog.h"
#include "ControlProtocol.h"
#include "DialogParts.h"
#include "ElidedLabel.h"
#include "HandOnTheme.h"
#include "PlainText.h"
#include "SegmentedControl.h"
#include "SplitRulesText.h"
#include "StyleProperty.h"
#include "Theme.h"
#include "VendorHost.h"

#include <QCoreApplication>
#include <QFrame>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int kMargin = 24;
constexpr int kGap = 8;
constexpr QSize kMinimumText{412, 120};
constexpr QSize kFirstSize{560, 600};
constexpr int kLines = 4;
constexpr int kHelpLines = 8;
constexpr int kErrorPadding = 12;

/// The vendor's domain without the host that serves the pages, as one would write it in
/// a rule.
QString exampleDomain()
{
    const QString host = control::kVendorHost;
    return host.startsWith("www."_L1) ? host.sliced(4) : host;
}

QString savingText()
{
    return QCoreApplication::translate("ModePage", "Saving rules...");
}

QString loadingText()
{
    return QCoreApplication::translate("ModePage", "Loading rules...");
}

QString plainApplyText()
{
    return QCoreApplication::translate("ModePage", "Apply");
}

} // namespace

SplitRulesEditorDialog::SplitRulesEditorDialog(Theme &theme, QWidget *parent)
    : QDialog(parent)
    , m_theme(theme)
{
    const QString title = QCoreApplication::translate("ModePage", "Custom Split Rules");
    setObjectName(u"VantuSplitRulesEditorDialog"_s);
    setWindowTitle(title);
    setAccessibleName(title);
    setModal(true);

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(kGap);
    buildTop(*column);
    column->addSpacing(kGap);
    buildText(*column);
    buildHelp(*column);
    column->addSpacing(kGap);
    buildButtons(*column);

    theme.attach(*this);
    connect(&theme, &Theme::changed, this, [this] { handOnTheme(*this, m_theme.palette()); });
    handOnTheme(*this, theme.palette());
    reserveApplyWidth();
    // Large letters need more.
    resize(kFirstSize.expandedTo({0, layout()->totalHeightForWidth(kFirstSize.width())}));
    showKind(wire::kRouteDirect);
    m_text->setFocus();
}

// Putting it together

void SplitRulesEditorDialog::buildTop(QVBoxLayout &column)
{
    column.addWidget(dialogparts::makeText(u"VantuSplitRulesEditorTitle"_s, windowTitle(),
                                           TextStyle::DialogTitle, 2, this));
    const QString scope = QCoreApplication::translate(
        "ModePage", "Custom rules apply only to VantuVPN split mode. Tunnel rules route matches "
                    "through the VantuVPN tunnel. Apply replaces the selected list.");
    setAccessibleDescription(scope);
    column.addWidget(dialogparts::makeText(u"VantuSplitRulesEditorScope"_s, scope, TextStyle::Note,
                                           kLines, this));
}

void SplitRulesEditorDialog::buildText(QVBoxLayout &column)
{
    m_kinds = new SegmentedControl(QCoreApplication::translate("ModePage", "List to edit"), this);
    m_kinds->setAttachedEditor(true);
    const auto addKind = [this](QLatin1StringView kind, const QString &text,
                                const QString &objectName) {
        QPushButton *button = m_kinds->addSegment(kind, text, objectName);
        button->setAccessibleName(text);
        button->setProperty("vantuRuleKind", QString(kind));
    };
    addKind(wire::kRouteDirect, QCoreApplication::translate("ModePage", "Direct"),
            u"VantuSplitRulesDirect"_s);
    addKind(wire::kRouteTunnel, QCoreApplication::translate("ModePage", "Tunnel"),
            u"VantuSplitRulesTunnel"_s);
    addKind(wire::kRulesBlock, QCoreApplication::translate("ModePage", "Block"),
            u"VantuSplitRulesBlock"_s);
    connect(m_kinds, &SegmentedControl::chosen, this,
            [this](const QString &kind) { whenSafeToDiscard([this, kind] { showKind(kind); }); });

    m_text = new SplitRulesText(this);
    m_text->setObjectName(u"VantuSplitRulesEditorText"_s);
    // A minimum of the dialog's own would outdo what large fonts need.
    m_text->setMinimumSize(kMinimumText);
    // Takes what the others leave, and is the first to give when letters are large.
    m_text->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    m_text->setAccessibleName(QCoreApplication::translate("ModePage", "Rules, one per line"));
    connect(m_text, &QPlainTextEdit::textChanged, this, &SplitRulesEditorDialog::render);

    auto *attached = new QVBoxLayout;
    attached->setSpacing(0);
    attached->addWidget(m_kinds);
    attached->addWidget(m_text, 1);
    column.addLayout(attached, 1);
}

void SplitRulesEditorDialog::buildHelp(QVBoxLayout &column)
{
    auto *card = new QFrame(this);
    setStyleProperty(*card, "vantuRole", u"card"_s);
    m_errorCard = card;
    m_error =
        dialogparts::makeText(u"VantuSplitRulesError"_s, QString(), TextStyle::Body, kLines, card);
    setStyleProperty(*m_error, "vantuRole", u"error"_s);
    auto *inCard = new QVBoxLayout(card);
    inCard->setContentsMargins(kErrorPadding, kGap, kErrorPadding, kGap);
    inCard->addWidget(m_error);
    card->hide();
    column.addWidget(card);

    const std::array lines{
        QCoreApplication::translate(
            "ModePage", "Enter one pattern per line. Blank lines and comments are ignored."),
        QCoreApplication::translate("ModePage",
                                    "Bare domains such as `%1` are treated as suffix rules.")
            .arg(exampleDomain()),
        QCoreApplication::translate(
            "ModePage",
            "Use `domain:<host>` for exact host, `suffix:<domain>` for suffix, `keyword:<text>` "
            "for substring, `regexp:<expr>` for Go regexp, and `ip-cidr:<cidr>` or bare IP/CIDR "
            "for IP rules.")};
    auto *help = new QVBoxLayout;
    help->setSpacing(kGap / 2);
    for (const QString &line : lines) {
        ElidedLabel *label = dialogparts::makeText(u"VantuSplitRulesEditorHelp"_s, line,
                                                   TextStyle::Note, kHelpLines, this);
        label->setMinimumHeight(label->fontMetrics().lineSpacing()); // The others are for few.
        help->addWidget(label);
    }
    m_text->setAccessibleDescription(QStringList(lines.begin(), lines.end()).join(u'\n'));
    column.addLayout(help);
}

void SplitRulesEditorDialog::buildButtons(QVBoxLayout &column)
{
    m_clear = dialogparts::makeButton(u"VantuSplitRulesClear"_s,
                                      QCoreApplication::translate("ModePage", "Clear"), this);
    connect(m_clear, &QPushButton::clicked, m_text, &SplitRulesText::removeAll);
    m_cancel = dialogparts::makeButton(u"VantuSplitRulesCancel"_s,
                                       QCoreApplication::translate("ModePage", "Cancel"), this);
    connect(m_cancel, &QPushButton::clicked, this, &SplitRulesEditorDialog::reject);
    m_apply = dialogparts::makeButton(u"VantuSplitRulesApply"_s, plainApplyText(), this);
    m_apply->setDefault(true);
    connect(m_apply, &QPushButton::clicked, this, &SplitRulesEditorDialog::apply);

    auto *row = new QHBoxLayout;
    row->setSpacing(kGap);
    row->addWidget(m_clear);
    row->addStretch(1);
    row->addWidget(m_cancel);
    row->addWidget(m_apply);
    column.addLayout(row);
}

void SplitRulesEditorDialog::reserveApplyWidth()
{
    // Cancel must not move away from under the pointer when the text changes.
    int width = 0;
    for (const QString &text : {plainApplyText(), savingText(), loadingText()}) {
        m_apply->setText(text);
        m_apply->ensurePolished();
        width = std::max(width, m_apply->sizeHint().width());
    }
    m_apply->setMinimumWidth(width);
}

// What the owner tells

void SplitRulesEditorDialog::setRules(const SplitRulesInfo &rules)
{
    const bool dirty = isDirty();
    m_rules = rules.rules;
    m_hasRules = true;
    const QStringList mine = m_rules.value(currentKind());
    m_text->setReference(mine);
    if (!dirty && m_text->differs()) {
        m_text->load(mine);
    }
    render();
}

void SplitRulesEditorDialog::setLoading(bool loading)
{
    m_loading = loading;
    render();
}

void SplitRulesEditorDialog::setLoadError(const QString &message)
{
    m_loadError = message.trimmed();
    render();
    renderError();
}

void SplitRulesEditorDialog::finishImport(const QString &error)
{
    if (!m_saving) {
        return;
    }
    m_saving = false;
    const auto proceed = std::exchange(m_proceed, nullptr);
    if (error.isEmpty()) {
        accept();
        if (proceed) {
            proceed();
        }
        return;
    }
    const QString reason = error.trimmed();
    m_importError = reason.isEmpty()
                        ? QCoreApplication::translate("ModePage", "Could not import split rules")
                        : reason;
    render();
    renderError();
    m_text->setFocus();
}

bool SplitRulesEditorDialog::isDirty() const
{
    return m_text->differs();
}

QString SplitRulesEditorDialog::currentKind() const
{
    return m_kinds->value();
}

// Editing

void SplitRulesEditorDialog::showKind(const QString &kind)
{
    m_kinds->setValue(kind);
    m_text->setProperty("vantuCurrentRuleKind", kind);
    m_importError.clear();
    m_text->load(m_rules.value(kind));
    render();
    renderError();
}

void SplitRulesEditorDialog::apply()
{
    closeQuestion(); // A screen reader can press the button behind it.
    m_saving = true;
    m_importError.clear();
    render();
    renderError();
    Q_EMIT importRequested(currentKind(), m_text->toPlainText());
}

// Leaving

void SplitRulesEditorDialog::reject()
{
    // What is being saved can't be discarded any more.
    if (!m_saving) {
        whenSafeToDiscard([this] { QDialog::reject(); });
    }
}

void SplitRulesEditorDialog::whenSafeToDiscard(std::function<void()> proceed)
{
    if (!isDirty()) {
        closeQuestion();
        proceed();
        return;
    }
    m_proceed = std::move(proceed);
    if (!m_saving && !m_question) {
        ask();
    }
}

void SplitRulesEditorDialog::ask()
{
    m_question = new ConfirmDialog(
        {.title = QCoreApplication::translate("ModePage", "Discard changes?"),
         .message = QCoreApplication::translate(
             "ModePage", "The current custom split rules have unsaved changes."),
         .detail = QCoreApplication::translate("ModePage", "Discard your edits or keep editing?"),
         .accept = {QCoreApplication::translate("ModePage", "Discard Changes"), {}},
         .destructive = true,
         .alternate = {},
         .reject = {QCoreApplication::translate("ModePage", "Keep Editing"), {}}},
        m_theme, this);
    m_question->setAttribute(Qt::WA_DeleteOnClose);
    connect(m_question, &QDialog::finished, this, &SplitRulesEditorDialog::answered);
    m_question->open();
}

void SplitRulesEditorDialog::answered(int answer)
{
    m_question.clear();
    const auto proceed = std::exchange(m_proceed, nullptr);
    if (answer == ConfirmDialog::AcceptAnswer) {
        m_text->load(m_rules.value(currentKind()));
        proceed();
    }
}

void SplitRulesEditorDialog::closeQuestion()
{
    if (m_question) {
        m_question->reject();
    }
}

void SplitRulesEditorDialog::closeForGood()
{
    closeQuestion();
    QDialog::reject();
}

// Showing

bool SplitRulesEditorDialog::canEdit() const
{
    // An import replaces a list, so that one that isn't known mustn't be edited.
    return m_hasRules && m_loadError.isEmpty() && !m_loading && !m_saving;
}

QString SplitRulesEditorDialog::applyText() const
{
    return m_saving ? savingText() : m_loading ? loadingText() : plainApplyText();
}

QString SplitRulesEditorDialog::whyNotApply() const
{
    if (m_saving || m_loading) {
        return applyText();
    }
    return canEdit() ? QCoreApplication::translate("ModePage", "Nothing has changed yet.")
                     : QCoreApplication::translate("ModePage", "The rules are not loaded yet.");
}

void SplitRulesEditorDialog::render()
{
    const bool dirty = isDirty();
    const bool canApply = canEdit() && dirty;
    const bool canClear = canEdit() && !m_text->isEmpty();
    setProperty("vantuRulesDirty", dirty);
    m_text->setReadOnly(!canEdit());
    m_apply->setText(applyText());
    m_apply->setAccessibleName(applyText());
    m_apply->setEnabled(canApply);
    m_apply->setToolTip(canApply ? QString() : plaintext::toolTip(whyNotApply()));
    if (!canClear && focusWidget() == m_clear) {
        m_text->setFocus(); // Qt would hand the keyboard to Cancel.
    }
    m_clear->setEnabled(canClear);
    m_clear->setToolTip(canClear    ? QString()
                        : canEdit() ? plaintext::toolTip(QCoreApplication::translate(
                                          "ModePage", "This list is empty."))
                                    : plaintext::toolTip(whyNotApply()));
    for (QPushButton *button :
         {m_kinds->segment(wire::kRouteDirect), m_kinds->segment(wire::kRouteTunnel),
          m_kinds->segment(wire::kRulesBlock), m_cancel}) {
        button->setEnabled(!m_saving);
        button->setToolTip(m_saving ? plaintext::toolTip(savingText()) : QString());
    }
}

void SplitRulesEditorDialog::renderError()
{
    const QString error = m_importError.isEmpty() ? m_loadError : m_importError;
    if (error == m_error->text()) {
        return;
    }
    m_error->setText(error);
    m_errorCard->setVisible(!error.isEmpty());
    if (!error.isEmpty()) {
        announce(*m_error);
    }
}
