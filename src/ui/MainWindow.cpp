#include "MainWindow.h"

#include "AppState.h"
#include "MemoryLog.h"
#include "NodeMenuModel.h"
#include "PlainText.h"
#include "RuntimeFacts.h"
#include "StyleProperty.h"
#include "TextStyle.h"

#include <QAction>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QDateTime>
#include <QFrame>
#include <QHBoxLayout>
#include <QKeySequence>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include <chrono>

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace {

constexpr QSize kMinimumSize{780, 620};
constexpr int kDotSize = 12;
constexpr int kPrimaryHeight = 48;
constexpr int kCardMargin = 24;
constexpr int kCardWidth = 880;
/// How often "connected for" is counted on while the window is looked at.
constexpr auto kDurationInterval = 15s;

QString noticeKindName(MainWindow::NoticeKind kind)
{
    switch (kind) {
    case MainWindow::NoticeKind::Success:
        return u"success"_s;
    case MainWindow::NoticeKind::Warning:
        return u"warning"_s;
    case MainWindow::NoticeKind::Error:
        return u"error"_s;
    case MainWindow::NoticeKind::Info:
        break;
    }
    return u"info"_s;
}

} // namespace

MainWindow::MainWindow(AppState &state, QWidget *parent)
    : QMainWindow(parent)
    , m_state(state)
    , m_noticeTimer(new QTimer(this))
    , m_durationTimer(new QTimer(this))
{
    setAttribute(Qt::WA_DeleteOnClose, false);
    setWindowTitle(tr("Vantu"));
    setMinimumSize(kMinimumSize);

    auto *closeAction = new QAction(this);
    closeAction->setObjectName(u"VantuCloseWindowAction"_s);
    closeAction->setShortcut(QKeySequence::Close);
    closeAction->setShortcutContext(Qt::WindowShortcut);
    connect(closeAction, &QAction::triggered, this, &QWidget::close);
    addAction(closeAction);

    buildContent();

    m_noticeTimer->setSingleShot(true);
    connect(m_noticeTimer, &QTimer::timeout, m_notice, &QWidget::hide);
    m_durationTimer->setInterval(kDurationInterval);
    connect(m_durationTimer, &QTimer::timeout, this, &MainWindow::renderDetail);

    connect(&m_state, &AppState::runtimeChanged, this, &MainWindow::refreshFromState);
    connect(&m_state, &AppState::nodesChanged, this, &MainWindow::refreshFromState);
    refreshFromState();
}

MainWindow::~MainWindow()
{
    memorylog::log(u"MainWindow destroyed"_s);
}

void MainWindow::buildContent()
{
    auto *root = new QWidget(this);
    root->setObjectName(u"VantuWindowRoot"_s);
    setCentralWidget(root);
    auto *column = new QVBoxLayout(root);
    column->setContentsMargins(32, 28, 32, 28);
    column->setSpacing(16);

    m_notice = new QLabel(root);
    m_notice->setObjectName(u"VantuNotificationMessage"_s);
    m_notice->setTextFormat(Qt::PlainText);
    m_notice->setWordWrap(true);
    m_notice->setMaximumWidth(kCardWidth);
    m_notice->hide();

    auto *card = new QFrame(root);
    card->setObjectName(u"VantuStatusCard"_s);
    card->setMaximumWidth(kCardWidth);
    auto *cardLayout = new QVBoxLayout(card);
    cardLayout->setContentsMargins(kCardMargin, kCardMargin, kCardMargin, kCardMargin);
    cardLayout->setSpacing(8);

    auto *titleRow = new QHBoxLayout;
    titleRow->setSpacing(8);
    m_statusDot = new QLabel(card);
    m_statusDot->setObjectName(u"VantuVPNStatusDot"_s);
    m_statusDot->setFixedSize(kDotSize, kDotSize);
    m_statusTitle = new QLabel(card);
    m_statusTitle->setObjectName(u"VantuStatusTitle"_s);
    m_statusTitle->setTextFormat(Qt::PlainText);
    setTextStyle(*m_statusTitle, TextStyle::StatusTitle);
    titleRow->addWidget(m_statusDot);
    titleRow->addWidget(m_statusTitle, 1);

    m_statusDetail = new QLabel(card);
    m_statusDetail->setObjectName(u"VantuVPNStatusDetail"_s);
    m_statusDetail->setTextFormat(Qt::PlainText);
    m_statusDetail->setWordWrap(true);

    m_primary = new QPushButton(card);
    m_primary->setObjectName(u"VantuVPNPrimaryAction"_s);
    m_primary->setMinimumHeight(kPrimaryHeight);
    connect(m_primary, &QPushButton::clicked, this, &MainWindow::activatePrimaryAction);

    cardLayout->addLayout(titleRow);
    cardLayout->addWidget(m_statusDetail);
    cardLayout->addSpacing(16);
    cardLayout->addWidget(m_primary);

    column->addWidget(m_notice);
    column->addWidget(card);
    column->addStretch(1);
}

void MainWindow::setDaemonAvailable(bool available, const QString &reason)
{
    m_daemonAvailable = available;
    m_unavailableReason = reason;
    refreshFromState();
}

void MainWindow::setConnectProgress(const ConnectProgress &progress)
{
    m_progress = progress;
    refreshFromState();
}

void MainWindow::refreshFromState()
{
    const PrimaryAction action = primaryAction(m_state.runtime(), m_daemonAvailable, m_progress);
    m_intent = action.intent;
    m_statusTitle->setText(action.title);
    m_primary->setText(action.button);
    m_primary->setEnabled(action.enabled);
    setStyleProperty(*m_statusDot, "vantuStatusState", action.statusState);
    setStyleProperty(*m_primary, "vantuPrimaryRole", action.role);
    setStyleProperty(*m_primary, "vantuPrimaryState", action.pending ? u"pending"_s : u"idle"_s);
    renderDetail();
}

void MainWindow::renderDetail()
{
    const RuntimeInfo &runtime = m_state.runtime();
    const bool connected = m_daemonAvailable && facts::isConnected(runtime);
    QString detail;
    if (!m_daemonAvailable) {
        detail = m_unavailableReason;
    } else if (connected) {
        detail =
            NodeMenuModel::locationLine(runtime, m_state.nodes(), QDateTime::currentDateTimeUtc());
    } else if (m_progress.pending) {
        detail = m_progress.label;
    } else {
        detail = runtime.lastError;
    }
    m_statusDetail->setText(plaintext::singleLine(detail));

    // Counting on only while somebody can see it keeps an idle program asleep.
    if (connected && isVisible()) {
        if (!m_durationTimer->isActive()) {
            m_durationTimer->start();
        }
    } else {
        m_durationTimer->stop();
    }
}

void MainWindow::activatePrimaryAction()
{
    switch (m_intent) {
    case PrimaryAction::Intent::Connect:
        Q_EMIT connectRuntimeRequested();
        break;
    case PrimaryAction::Intent::Disconnect:
        Q_EMIT disconnectRuntimeRequested();
        break;
    case PrimaryAction::Intent::Cancel:
        Q_EMIT cancelConnectRequested();
        break;
    case PrimaryAction::Intent::SignIn:
        showNotice(QCoreApplication::translate("AccountPage", "Sign in to connect."),
                   NoticeKind::Error, 5000);
        break;
    }
}

void MainWindow::showNotice(const QString &message, NoticeKind kind, int timeoutMs)
{
    const QString text = message.trimmed();
    m_noticeTimer->stop();
    m_notice->setVisible(!text.isEmpty());
    if (text.isEmpty()) {
        return;
    }
    setStyleProperty(*m_notice, "vantuRole", kind == NoticeKind::Error ? u"error"_s : QString());
    setStyleProperty(*m_notice, "vantuNotificationKind", noticeKindName(kind));
    m_notice->setText(text);
    m_notice->setAccessibleName(
        QCoreApplication::translate("NotificationHost", "Notification: %1").arg(text));
    if (timeoutMs > 0) {
        m_noticeTimer->start(timeoutMs);
    }
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (!m_hideToTray && !m_exitAllowed) {
        event->ignore();
        Q_EMIT quitRequested();
        return;
    }
    Q_EMIT hiddenToTray();
    if (m_exitAllowed) {
        disconnect(&m_state, nullptr, this, nullptr);
        event->accept();
    } else {
        event->ignore();
        hide();
    }
}

void MainWindow::showEvent(QShowEvent *event)
{
    QMainWindow::showEvent(event);
    renderDetail();
    Q_EMIT visibilityChanged(true);
}

void MainWindow::hideEvent(QHideEvent *event)
{
    QMainWindow::hideEvent(event);
    m_durationTimer->stop();
    Q_EMIT visibilityChanged(false);
}
