#include "UpdateDialog.h"

#include "HandOnTheme.h"
#include "LabelText.h"
#include "MessageArea.h"
#include "PlainText.h"
#include "StyleProperty.h"
#include "TextStyle.h"
#include "Theme.h"
#include "ThemedScrollBar.h"
#include "UpdateDownloadView.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QShowEvent>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int kMinimumWidth = 480;
constexpr int kUsualWidth = 520;
constexpr int kMargin = 18;
constexpr int kGap = 8;
constexpr int kChangelogHeight = 112;
constexpr int kUsualChangelogHeight = 176;
constexpr int kStatusLines = 1;
constexpr qsizetype kMaxVersionLength = 40;
// Release notes come from a server.
constexpr qsizetype kMaxChangeLength = 1000;
constexpr qsizetype kMaxChanges = 200;

QString releaseNotes(const QStringList &changes)
{
    QStringList lines;
    for (const QString &change : changes.first(std::min(changes.size(), kMaxChanges))) {
        const QString line = plaintext::singleLine(change, kMaxChangeLength);
        if (!line.isEmpty()) {
            lines += u"• "_s + line;
        }
    }
    return lines.join(u'\n');
}

QLabel *makeText(const QString &name, TextStyle style, QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setObjectName(name);
    setTextStyle(*label, style);
    labeltext::wrap(*label);
    return label;
}

} // namespace

UpdateDialog::UpdateDialog(Theme &theme, QWidget *parent)
    : QDialog(parent)
    , m_theme(theme)
{
    m_download.state = GUIUpdateDownloadInfo::State::Idle;
    setObjectName(u"VantuUpdateDialog"_s);
    setWindowTitle(tr("Vantu Update"));
    setAccessibleName(windowTitle());

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(kGap);
    buildTexts(*column);
    buildLink(*column);
    buildProgress(*column);
    column->addSpacing(kGap);
    buildButtons(*column);

    theme.attach(*this);
    connect(&theme, &Theme::changed, this, &UpdateDialog::followTheme);
    followTheme();
    renderUpdate();
    renderStatus();
    renderButtons();
}

void UpdateDialog::buildTexts(QVBoxLayout &column)
{
    m_title = makeText(u"VantuUpdateTitle"_s, TextStyle::DialogTitle, this);
    m_message = makeText(u"VantuUpdateMessage"_s, TextStyle::Body, this);
    m_version = makeText(u"VantuUpdateVersion"_s, TextStyle::Note, this);
    setStyleProperty(*m_version, "vantuRole", u"muted"_s);
    QLabel *changesTitle = makeText(u"VantuUpdateChangesTitle"_s, TextStyle::CardTitle, this);
    changesTitle->setText(tr("What's New"));

    m_changelog = new QPlainTextEdit(this);
    m_changelog->setObjectName(u"VantuUpdateChangelog"_s);
    m_changelog->setAccessibleName(tr("What's New"));
    m_changelog->setReadOnly(true);
    m_changelog->setTabChangesFocus(true);
    // A minimum of the dialog's own would outdo what large fonts need.
    m_changelog->setMinimumSize(kMinimumWidth - 2 * kMargin, kChangelogHeight);
    m_changelog->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_changelog->setVerticalScrollBar(new ThemedScrollBar(Qt::Vertical, m_changelog));

    column.addWidget(m_title);
    column.addWidget(m_message);
    column.addWidget(m_version);
    column.addSpacing(kGap);
    column.addWidget(changesTitle);
    column.addWidget(m_changelog, 1);
}

void UpdateDialog::buildLink(QVBoxLayout &column)
{
    m_fallback = new QPushButton(tr("Open Download Link"), this);
    m_fallback->setObjectName(u"VantuUpdateFallback"_s);
    m_fallback->setAccessibleName(tr("Open the Vantu update download link"));
    connect(m_fallback, &QPushButton::clicked, this, &UpdateDialog::openDownloadPageRequested);

    auto *row = new QHBoxLayout;
    row->addWidget(m_fallback);
    row->addStretch(1);
    column.addLayout(row);
}

void UpdateDialog::buildProgress(QVBoxLayout &column)
{
    m_status = new MessageArea(u"VantuUpdateStatus"_s, kStatusLines, this);
    m_progress = new QProgressBar(this);
    m_progress->setObjectName(u"VantuUpdateProgress"_s);
    m_progress->setAccessibleName(tr("Downloading update..."));
    m_progress->setTextVisible(false);
    QSizePolicy policy = m_progress->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    m_progress->setSizePolicy(policy);
    m_progress->hide();

    column.addWidget(m_status);
    column.addWidget(m_progress);
}

void UpdateDialog::buildButtons(QVBoxLayout &column)
{
    m_primary = new QPushButton(this);
    m_primary->setObjectName(u"VantuUpdateDownload"_s);
    m_primary->setDefault(true);
    m_primary->setFocus();
    m_secondary = new QPushButton(this);
    m_secondary->setObjectName(u"VantuUpdateSecondary"_s);
    connect(m_primary, &QPushButton::clicked, this, &UpdateDialog::onPrimaryClicked);
    connect(m_secondary, &QPushButton::clicked, this, &UpdateDialog::onSecondaryClicked);

    auto *row = new QHBoxLayout;
    row->setSpacing(kGap);
    row->addStretch(1);
    row->addWidget(m_primary);
    row->addWidget(m_secondary);
    column.addLayout(row);
}

void UpdateDialog::followTheme()
{
    handOnTheme(*this, m_theme.palette());
}

// What is told from outside

void UpdateDialog::setUpdate(const UpdateInfo &update)
{
    m_update = update;
    renderUpdate();
    renderButtons();
    setGate(update.isForceUpgrade);
}

void UpdateDialog::setGate(bool gate)
{
    if (gate == isModal()) {
        return;
    }
    // A window that is already seen doesn't take a new modality. One that is a gate no
    // longer has done its duty.
    const bool showAgain = gate && isVisible();
    hide();
    setModal(gate);
    setVisible(showAgain);
}

void UpdateDialog::setDownload(const GUIUpdateDownloadInfo &download)
{
    const bool changes = download.state != m_download.state;
    const bool noteEnds = !m_note.isEmpty() && (changes || !m_noteIsRemark);
    const bool news = changes || noteEnds;
    m_download = download;
    if (noteEnds) {
        m_note.clear();
    }
    renderStatus();
    renderButtons();
    // Every megabyte would be too much to listen to.
    if (news) {
        m_status->announce();
    }
}

void UpdateDialog::setNote(const QString &text, Tone tone)
{
    m_note = plaintext::singleLine(text, MessageArea::kMaxLength);
    m_noteTone = tone;
    m_noteIsRemark = false;
    renderStatus();
    m_status->announce();
}

void UpdateDialog::setRemark(const QString &text, Tone tone)
{
    setNote(text, tone);
    m_noteIsRemark = true;
}

void UpdateDialog::setWaiting(bool waiting)
{
    m_waiting = waiting;
    renderButtons();
}

void UpdateDialog::setExitAllowed(bool allowed)
{
    m_exitAllowed = allowed;
}

// What the user does

void UpdateDialog::onPrimaryClicked()
{
    if (UpdateDownloadView::of(m_download).active) {
        Q_EMIT cancelDownloadRequested();
    } else {
        Q_EMIT downloadRequested();
    }
}

void UpdateDialog::onSecondaryClicked()
{
    if (isForced()) {
        Q_EMIT exitRequested();
    } else {
        reject();
    }
}

void UpdateDialog::reject()
{
    if (!isForced() || m_exitAllowed) {
        QDialog::reject();
    }
}

// What is seen

void UpdateDialog::renderUpdate()
{
    const bool forced = isForced();
    m_title->setText(forced ? tr("A required update is available")
                            : tr("A new Vantu update is available"));
    m_message->setText(
        forced ? tr("Vantu must be updated before you can connect. Download the installer or exit "
                    "Vantu.")
               : tr("Download the latest installer without interrupting your current session."));
    setAccessibleDescription(m_title->text());

    const QString current = plaintext::singleLine(m_update.currentVersion, kMaxVersionLength);
    const QString available = plaintext::singleLine(m_update.versionCode, kMaxVersionLength);
    m_version->setText(
        tr("Current version: %1\nAvailable version: %2")
            .arg(current.isEmpty() ? tr("Unknown") : labeltext::embedded(current),
                 available.isEmpty() ? tr("Latest") : labeltext::embedded(available)));

    QString notes = releaseNotes(m_update.changeLog);
    if (notes.isEmpty()) {
        notes = tr("Release notes are unavailable.");
    }
    // Setting a text scrolls back to the top, away from what is being read.
    if (notes != m_changelog->toPlainText()) {
        m_changelog->setPlainText(notes);
    }
}

void UpdateDialog::renderStatus()
{
    using enum MessageArea::Tone;
    const UpdateDownloadView view = UpdateDownloadView::of(m_download);
    if (m_note.isEmpty()) {
        m_status->showMessage(view.status, view.statusIsError ? Error : Muted);
    } else {
        m_status->showMessage(m_note, m_noteTone == Tone::Error ? Error : Muted);
    }
    m_progress->setRange(0, view.barMaximum);
    m_progress->setValue(view.barValue);
    m_progress->setVisible(view.barShown);
}

void UpdateDialog::renderButtons()
{
    const UpdateDownloadView view = UpdateDownloadView::of(m_download);
    const bool enabled = view.primaryEnabled && !m_waiting;
    if (!enabled && focusWidget() == m_primary) {
        // Lest the next press of Return leaves the program.
        m_changelog->setFocus();
    }
    m_primary->setText(view.primary);
    m_primary->setAccessibleName(view.primaryDescription);
    m_primary->setEnabled(enabled);
    // The words of the shell, which says the same in a notice.
    m_primary->setToolTip(
        enabled ? QString()
                : plaintext::toolTip(QCoreApplication::translate(
                      "VantuAppShell", "Please wait for the current operation to finish")));

    if (isForced()) {
        m_secondary->setText(tr("Exit Vantu"));
        m_secondary->setAccessibleDescription(tr("Exit Vantu without updating"));
    } else if (view.active) {
        m_secondary->setText(tr("Download in Background"));
        m_secondary->setAccessibleDescription(tr("Hide this window while the update downloads"));
    } else {
        m_secondary->setText(tr("Not Now"));
        m_secondary->setAccessibleDescription(tr("Hide this update"));
    }
}

void UpdateDialog::reserveButtonWidths()
{
    const auto reserve = [](QPushButton &button, const QStringList &texts) {
        const QString shown = button.text();
        int width = 0;
        for (const QString &text : texts) {
            button.setText(text);
            width = std::max(width, button.sizeHint().width());
        }
        button.setText(shown);
        button.setMinimumWidth(width);
    };
    reserve(*m_primary, {tr("Download Update"), tr("Cancel Download"), tr("Retry Download"),
                         tr("Canceling..."), tr("Opening Installer...")});
    reserve(*m_secondary, {tr("Not Now"), tr("Download in Background"), tr("Exit Vantu")});
}

void UpdateDialog::showEvent(QShowEvent *event)
{
    if (!m_placed && !event->spontaneous()) {
        m_placed = true;
        // The final fonts are known only now.
        ensurePolished();
        reserveButtonWidths();
        layout()->activate();
        const int width = std::max(kUsualWidth, minimumSizeHint().width());
        const int notes = kUsualChangelogHeight - kChangelogHeight;
        resize(width, layout()->minimumHeightForWidth(width) + notes);
    }
    QDialog::showEvent(event);
}
