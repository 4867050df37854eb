#include "AccountPage.h"

#include "Announce.h"
#include "AppState.h"
#include "HandOnTheme.h"
#include "LabelText.h"
#include "MessageArea.h"
#include "PageScrollArea.h"
#include "PlainText.h"
#include "RuntimeFacts.h"
#include "StyleProperty.h"
#include "TextStyle.h"
#include "ThemePalette.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QFrame>
#include <QHBoxLayout>
#include <QHideEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int kCardWidth = 420;
constexpr int kCardMargin = 16;
constexpr int kGap = 8;
constexpr int kCardGap = 16;
constexpr int kMessageLines = 2;
/// Longer facts are cut off: they come from a server.
constexpr qsizetype kMaxFactLength = 40;

QLineEdit *makeField(const QString &name, const QString &purpose, QWidget *parent)
{
    auto *field = new QLineEdit(parent);
    field->setObjectName(name);
    field->setPlaceholderText(purpose);
    field->setAccessibleName(purpose);
    field->setInputMethodHints(field->inputMethodHints() | Qt::ImhNoPredictiveText |
                               Qt::ImhNoAutoUppercase | Qt::ImhSensitiveData);
    return field;
}

QPushButton *makeButton(const QString &name, const QString &text, QWidget *parent)
{
    auto *button = new QPushButton(text, parent);
    button->setObjectName(name);
    button->setAutoDefault(true); // Return presses it, like Space.
    return button;
}

} // namespace

AccountPage::AccountPage(AppState &state, QWidget *parent)
    : QWidget(parent)
    , m_state(state)
{
    buildContent();
    connectSignals();
    renderAccount();
    renderControls();
}

void AccountPage::buildContent()
{
    auto *content = new QWidget;
    auto *column = new QVBoxLayout;
    column->setSpacing(kCardGap);
    m_message = new MessageArea(u"VantuAccountMessage"_s, kMessageLines, content);
    m_signInCard = new QFrame(content);
    m_signedInCard = new QFrame(content);
    buildSignInCard();
    buildSignedInCard();
    column->addWidget(m_message);
    column->addWidget(m_signInCard);
    column->addWidget(m_signedInCard);
    column->addStretch(1);

    auto *row = new QHBoxLayout;
    row->addStretch(1);
    row->addLayout(column);
    row->addStretch(1);

    // Large fonts on a small screen need more room than there is.
    auto *scroll = new PageScrollArea(this);
    scroll->setContent(*content)->addLayout(row);
    auto *page = new QVBoxLayout(this);
    page->setContentsMargins(0, 0, 0, 0);
    page->addWidget(scroll);
}

QVBoxLayout *AccountPage::addCard(QFrame &card, const QString &title) const
{
    card.setObjectName(u"VantuStatusCard"_s);
    card.setMinimumWidth(kCardWidth);
    auto *titleLabel = new QLabel(title, &card);
    titleLabel->setObjectName(u"VantuCardTitle"_s);
    setTextStyle(*titleLabel, TextStyle::CardTitle);
    labeltext::wrap(*titleLabel);

    auto *column = new QVBoxLayout(&card);
    column->setContentsMargins(kCardMargin, kCardMargin, kCardMargin, kCardMargin);
    column->setSpacing(kGap);
    column->addWidget(titleLabel);
    return column;
}

void AccountPage::buildSignInCard()
{
    QVBoxLayout *column = addCard(*m_signInCard, tr("Sign in"));
    auto *purpose = new QLabel(
        tr("Use your Vantu account to connect and sync available locations."), m_signInCard);
    setStyleProperty(*purpose, "vantuRole", u"muted"_s);
    setTextStyle(*purpose, TextStyle::Note);
    labeltext::wrap(*purpose);

    m_username = makeField(u"VantuAccountUsername"_s, tr("Email or user ID"), m_signInCard);
    m_password = makeField(u"VantuAccountPassword"_s, tr("Password"), m_signInCard);
    m_password->setEchoMode(QLineEdit::Password);
    m_remember = new QCheckBox(tr("Remember this account"), m_signInCard);
    m_remember->setObjectName(u"VantuAccountRemember"_s);
    m_remember->setChecked(true);
    m_signIn = makeButton(u"VantuAccountSignIn"_s, tr("Sign In"), m_signInCard);
    m_signUp = makeButton(u"VantuAccountSignUp"_s, tr("Sign Up"), m_signInCard);
    m_forgotPassword =
        makeButton(u"VantuAccountForgotPassword"_s, tr("Forgot password?"), m_signInCard);

    auto *links = new QHBoxLayout;
    links->addWidget(m_signUp);
    links->addStretch(1);
    links->addWidget(m_forgotPassword);
    column->addWidget(purpose);
    column->addSpacing(kGap);
    column->addWidget(m_username);
    column->addWidget(m_password);
    column->addWidget(m_remember);
    column->addSpacing(kGap);
    column->addWidget(m_signIn);
    column->addLayout(links);
}

void AccountPage::buildSignedInCard()
{
    QVBoxLayout *column = addCard(*m_signedInCard, tr("Signed in"));
    m_summary = new QLabel(m_signedInCard);
    m_summary->setObjectName(u"VantuAccountSummary"_s);
    setTextStyle(*m_summary, TextStyle::Value);
    labeltext::wrap(*m_summary);
    m_renew = makeButton(u"VantuAccountRenew"_s, tr("Renew"), m_signedInCard);
    m_signOut = makeButton(u"VantuAccountLogout"_s, tr("Sign Out"), m_signedInCard);

    // Of one width, whatever they say while they are busy.
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(kGap);
    buttons->addWidget(m_renew, 1);
    buttons->addWidget(m_signOut, 1);
    column->addWidget(m_summary);
    column->addSpacing(kGap);
    column->addLayout(buttons);
}

void AccountPage::connectSignals()
{
    connect(&m_state, &AppState::runtimeChanged, this, &AccountPage::renderAccount);
    connect(&m_state, &AppState::userChanged, this, &AccountPage::renderAccount);
    connect(m_username, &QLineEdit::returnPressed, this, &AccountPage::signIn);
    connect(m_password, &QLineEdit::returnPressed, this, &AccountPage::signIn);
    connect(m_signIn, &QPushButton::clicked, this, &AccountPage::signIn);
    connect(m_signUp, &QPushButton::clicked, this, &AccountPage::signUpRequested);
    connect(m_forgotPassword, &QPushButton::clicked, this, &AccountPage::forgotPasswordRequested);
    for (const auto &[button, requested] : {std::pair(m_renew, &AccountPage::renewRequested),
                                            std::pair(m_signOut, &AccountPage::logoutRequested)}) {
        connect(button, &QPushButton::clicked, this, &AccountPage::clearMessage);
        connect(button, &QPushButton::clicked, this, requested);
    }
}

void AccountPage::applyThemePalette(const ThemePalette &palette)
{
    handOnTheme(*this, palette);
}

void AccountPage::setDaemonAvailable(bool available, const QString &reason)
{
    m_daemonAvailable = available;
    m_unavailableReason =
        available ? QString() : plaintext::singleLine(reason, MessageArea::kMaxLength);
    renderControls();
    renderMessage();
}

void AccountPage::setBusy(bool busy)
{
    if (m_busy && !busy && std::exchange(m_signInSent, false)) {
        m_password->setText({}); // It did not fail.
    }
    m_busy = busy;
    renderControls();
}

void AccountPage::setOpening(bool opening)
{
    m_opening = opening;
    renderControls();
}

// Messages

void AccountPage::showError(const QString &text)
{
    m_error = plaintext::singleLine(text, MessageArea::kMaxLength);
    if (m_error.isEmpty()) {
        m_error = tr("Account operation failed");
    }
    renderMessage();
    m_message->announce();
    if (m_signInSent) {
        m_signInSent = false;
        returnToPassword();
    }
}

void AccountPage::clearMessage()
{
    m_error.clear();
    renderMessage();
}

void AccountPage::renderMessage()
{
    if (m_error.isEmpty()) {
        m_message->showMessage(m_unavailableReason, MessageArea::Tone::Muted);
    } else {
        m_message->showMessage(m_error, MessageArea::Tone::Error);
    }
}

// Signing in

void AccountPage::focusSignIn()
{
    if (!m_signedIn) {
        QLineEdit *field = m_username->text().trimmed().isEmpty() ? m_username : m_password;
        field->setFocus();
    }
}

void AccountPage::signIn()
{
    if (m_busy || !m_daemonAvailable) {
        return;
    }
    const QString username = m_username->text().trimmed();
    if (username.isEmpty() || m_password->text().isEmpty()) {
        showError(tr("Enter account and password."));
        QLineEdit *field = username.isEmpty() ? m_username : m_password;
        field->setFocus();
        return;
    }
    clearMessage();
    m_signInSent = true;
    // The button is about to be switched off, which would send the keyboard elsewhere.
    m_password->setFocus();
    Q_EMIT loginRequested(username, m_password->text(), m_remember->isChecked());
}

bool AccountPage::hasKeyboard() const
{
    const QWidget *focus = window()->focusWidget();
    return isVisible() && (!focus || isAncestorOf(focus));
}

void AccountPage::returnToPassword()
{
    if (hasKeyboard()) {
        m_password->setFocus();
        m_password->selectAll();
    }
}

void AccountPage::hideEvent(QHideEvent *event)
{
    // A window that is merely minimised comes back to what was being typed.
    if (!event->spontaneous()) {
        m_password->setText({});
    }
    QWidget::hideEvent(event);
}

// What the store and the requests' progress say

void AccountPage::renderAccount()
{
    const bool signedIn = facts::isSignedIn(m_state.runtime());
    const bool isNews = std::exchange(m_signedIn, signedIn) != signedIn;
    if (isNews) {
        m_signInSent = false;
        m_password->setText({});
        clearMessage();
    }
    m_summary->setText(summary());
    m_summary->setVisible(!m_summary->text().isEmpty());
    (signedIn ? m_signedInCard : m_signInCard)->show();
    if (isNews && isVisible()) {
        tellAccount();
    }
    (signedIn ? m_signInCard : m_signedInCard)->hide();
}

/// While the other card still stands, whose end would send the keyboard off the page.
void AccountPage::tellAccount()
{
    announce(*this, m_signedIn ? tr("Signed in") : tr("Sign in"));
    if (!hasKeyboard()) {
        return;
    }
    if (m_signedIn) {
        m_focus.handTo(*m_renew); // Signing out asks nothing.
    } else {
        focusSignIn();
    }
}

QString AccountPage::summary() const
{
    const UserInfo &user = m_state.user();
    const QString userNumber = plaintext::singleLine(user.userNumber, kMaxFactLength);
    const QString plan = plaintext::singleLine(user.role, kMaxFactLength);
    QStringList lines;
    if (!userNumber.isEmpty()) {
        lines += tr("User ID: %1").arg(labeltext::embedded(userNumber));
    }
    if (!plan.isEmpty()) {
        lines += tr("Plan: %1").arg(labeltext::embedded(plan));
    }
    if (user.leftDays != 0) {
        lines += tr("Days left: %1").arg(user.leftDays);
    }
    if (user.maxDeviceCount >= 1) {
        lines += tr("Max simultaneous devices: %1").arg(user.maxDeviceCount);
    }
    return lines.join(u'\n');
}

void AccountPage::renderControls()
{
    m_signIn->setText(m_busy ? tr("Signing in...") : tr("Sign In"));
    m_signOut->setText(m_busy ? tr("Signing out...") : tr("Sign Out"));
    m_renew->setText(m_opening ? tr("Opening…") : tr("Renew"));
    m_username->setReadOnly(m_busy);
    m_password->setReadOnly(m_busy);

    QString reason = m_unavailableReason;
    if (m_daemonAvailable && (m_busy || m_opening)) {
        // The words of the shell, which says the same in a notice.
        reason = QCoreApplication::translate("VantuAppShell",
                                             "Please wait for the current operation to finish");
    }
    const auto enable = [this, &reason](QPushButton &button, bool enabled) {
        m_focus.setEnabled(button, enabled);
        button.setToolTip(enabled || reason.isEmpty() ? QString() : plaintext::toolTip(reason));
    };
    const bool free = m_daemonAvailable && !m_busy;
    enable(*m_signIn, free);
    enable(*m_signOut, free);
    enable(*m_renew, free && !m_opening);
}
