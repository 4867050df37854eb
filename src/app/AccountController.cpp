#include "AccountController.h"

#include "AppState.h"
#include "NoticeSink.h"
#include "RequestLink.h"
#include "RuntimeFacts.h"
#include "ServiceCompatibility.h"
#include "ShellText.h"

AccountController::AccountController(Parts parts, QObject *parent)
    : QObject(parent)
    , m_parts(std::move(parts))
{}

bool AccountController::changeAllowed(OperationOrigin origin)
{
    if (!m_busy && !m_parts.isOtherwiseBusy()) {
        return true;
    }
    if (origin == OperationOrigin::Window) {
        m_parts.notices.pleaseWait();
    }
    return false;
}

void AccountController::setBusy(bool busy)
{
    if (m_busy != busy) {
        m_busy = busy;
        Q_EMIT busyChanged(busy);
    }
}

void AccountController::storeRuntime(const RuntimeInfo &info)
{
    if (facts::tellsState(info)) {
        m_parts.state.setRuntime(info);
    }
}

void AccountController::login(const QString &username, const QString &password, bool rememberMe)
{
    if (m_parts.compatibility.changeGuardPasses() && changeAllowed(OperationOrigin::Window)) {
        setBusy(true);
        m_parts.link.send(ControlRequest::Login, username, password, rememberMe);
    }
}

void AccountController::logout(OperationOrigin origin)
{
    // Never refused for a version: the user must be able to leave.
    if (changeAllowed(origin)) {
        m_origin = origin;
        setBusy(true);
        Q_EMIT logoutStarted(m_parts.link.send(ControlRequest::Logout), origin);
    }
}

void AccountController::fetchUser()
{
    m_parts.link.send(ControlRequest::FetchUser);
}

void AccountController::setOpeningRenewal(bool opening)
{
    if (m_openingRenewal != opening) {
        m_openingRenewal = opening;
        Q_EMIT openingRenewalChanged(opening);
    }
}

void AccountController::openRenewal(const QString &lang)
{
    if (!m_openingRenewal && m_parts.compatibility.changeGuardPasses()) {
        setOpeningRenewal(true);
        m_parts.link.send(ControlRequest::FetchPurchaseURL, lang);
    }
}

void AccountController::handlePurchaseURL(const PurchaseURLInfo &info, const QString &error)
{
    setOpeningRenewal(false);
    if (error.isEmpty()) {
        Q_EMIT renewalLinkReady(QUrl(info.url, QUrl::StrictMode));
    } else {
        m_parts.notices.error(error, ShellText::tr("Could not open renewal page"), Page::Account);
    }
}

void AccountController::handleLogin(const RuntimeInfo &info, const QString &error)
{
    // First, so that an end without it is known for a success.
    if (!error.isEmpty()) {
        m_parts.notices.error(error, ShellText::tr("Could not sign in"), Page::Account);
    }
    setBusy(false);
    if (!error.isEmpty()) {
        return;
    }
    Q_EMIT accountChanged(true);
    storeRuntime(info);
    fetchUser();
}

void AccountController::handleLogout(quint64 requestId, const RuntimeInfo &info,
                                     const QString &error)
{
    setBusy(false);
    QString failure;
    if (!error.isEmpty()) {
        failure = NoticeSink::wording(error, ShellText::tr("Could not sign out"));
        if (m_origin == OperationOrigin::Window) {
            m_parts.notices.error(failure, failure, Page::Account);
        }
    } else {
        // An answer still on its way would bring the old account back.
        m_parts.link.forget(ControlRequest::FetchUser);
        m_parts.state.clearUser();
        Q_EMIT accountChanged(false);
        storeRuntime(info);
    }
    Q_EMIT logoutEnded(requestId, info, failure);
}

void AccountController::handleUser(const UserInfo &user, const QString &error)
{
    if (error.isEmpty()) {
        m_parts.state.setUser(user);
    } else {
        m_parts.notices.error(error, ShellText::tr("Could not load account"));
    }
}
