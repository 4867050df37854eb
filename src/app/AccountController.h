#pragma once

#include "AccountRecords.h"
#include "RuntimeRecords.h"
#include "TrayOperations.h"

#include <QObject>
#include <QUrl>

#include <functional>

class AppState;
class NoticeSink;
class RequestLink;
class ServiceCompatibility;

/// Signing in and out.
class AccountController final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(AccountController)

public:
    /// What the requests need; everything must outlive the object.
    struct Parts
    {
        RequestLink &link;
        AppState &state;
        NoticeSink &notices;
        ServiceCompatibility &compatibility;
        /// Another operation runs, of the window's or of the tray's own.
        std::function<bool()> isOtherwiseBusy;
    };

    explicit AccountController(Parts parts, QObject *parent = nullptr);

    bool isBusy() const { return m_busy; }
    /// The link to the renewal page was asked for.
    bool isOpeningRenewal() const { return m_openingRenewal; }

    /// The password goes to the daemon and is not kept.
    void login(const QString &username, const QString &password, bool rememberMe);
    void logout(OperationOrigin origin);
    void fetchUser();
    /// Asks the daemon for the link to the renewal page in language `lang`.
    void openRenewal(const QString &lang);

    /// Answers that the link still awaited.
    void handleLogin(const RuntimeInfo &info, const QString &error);
    void handleLogout(quint64 requestId, const RuntimeInfo &info, const QString &error);
    void handleUser(const UserInfo &user, const QString &error);
    void handlePurchaseURL(const PurchaseURLInfo &info, const QString &error);

Q_SIGNALS:
    void busyChanged(bool busy);
    void openingRenewalChanged(bool opening);
    /// The link carries an access token: open it, and do nothing else with it.
    void renewalLinkReady(const QUrl &link);
    void logoutStarted(quint64 requestId, OperationOrigin origin);
    /// `failure` is the text for the user, empty on success.
    void logoutEnded(quint64 requestId, const RuntimeInfo &info, const QString &failure);

    /// Another account, or none, is signed in now.
    void accountChanged(bool signedIn);

private:
    bool changeAllowed(OperationOrigin origin);
    void setBusy(bool busy);
    void setOpeningRenewal(bool opening);
    void storeRuntime(const RuntimeInfo &info);

    Parts m_parts;
    OperationOrigin m_origin = OperationOrigin::Window;
    bool m_busy = false;
    bool m_openingRenewal = false;
};
