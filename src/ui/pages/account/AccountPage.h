#pragma once

#include "RestingFocus.h"

#include <QWidget>

class AppState;
class MessageArea;
class QCheckBox;
class QFrame;
class QHideEvent;
class QLabel;
class QLineEdit;
class QPushButton;
class QVBoxLayout;
struct ThemePalette;

/// The page on which the user signs in and out and sees the account.
///
/// Redraws from the store. The password lives in its field alone: it leaves with the
/// signal and is cleared as soon as the sign-in succeeded or the page is left. Lives on
/// the GUI thread.
class AccountPage final : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(AccountPage)

public:
    /// `state` must outlive the page.
    explicit AccountPage(AppState &state, QWidget *parent = nullptr);

    void applyThemePalette(const ThemePalette &palette);
    /// While the daemon is away nothing can be asked of it; `reason` stands on the page.
    void setDaemonAvailable(bool available, const QString &reason);

    /// A sign-in or sign-out is on its way. Its failure is told by showError() before its end.
    void setBusy(bool busy);
    /// The renewal page is being opened.
    void setOpening(bool opening);
    /// Shows why something failed, or what is to be done; an empty text becomes "Account
    /// operation failed". It stays until the next attempt, a success, or clearMessage().
    void showError(const QString &text);
    void clearMessage();
    /// Puts the keyboard where signing in begins.
    void focusSignIn();

Q_SIGNALS:
    void loginRequested(const QString &username, const QString &password, bool rememberMe);
    void logoutRequested();
    void renewRequested();
    void signUpRequested();
    void forgotPasswordRequested();

protected:
    void hideEvent(QHideEvent *event) override;

private:
    void buildContent();
    QVBoxLayout *addCard(QFrame &card, const QString &title) const;
    void buildSignInCard();
    void buildSignedInCard();
    void connectSignals();

    void signIn();
    bool hasKeyboard() const;
    void returnToPassword();
    void renderAccount();
    void tellAccount();
    void renderControls();
    void renderMessage();
    QString summary() const;

    AppState &m_state;
    bool m_daemonAvailable = true;
    QString m_unavailableReason;
    bool m_busy = false;
    bool m_opening = false;
    bool m_signedIn = false;
    bool m_signInSent = false; ///< Its end is not known yet.
    QString m_error;
    RestingFocus m_focus;

    MessageArea *m_message = nullptr;
    QFrame *m_signInCard = nullptr;
    QLineEdit *m_username = nullptr;
    QLineEdit *m_password = nullptr;
    QCheckBox *m_remember = nullptr;
    QPushButton *m_signIn = nullptr;
    QPushButton *m_signUp = nullptr;
    QPushButton *m_forgotPassword = nullptr;
    QFrame *m_signedInCard = nullptr;
    QLabel *m_summary = nullptr;
    QPushButton *m_renew = nullptr;
    QPushButton *m_signOut = nullptr;
};
