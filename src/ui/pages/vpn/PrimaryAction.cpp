#include "PrimaryAction.h"

#include "RuntimeFacts.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

QString text(const char *source)
{
    return QCoreApplication::translate("VpnPage", source);
}

/// The words of other faces are borrowed, so that one thing has one name.
QString cancelingText()
{
    return QCoreApplication::translate("UpdateDialog", "Canceling...");
}

QString cancelText()
{
    return QCoreApplication::translate("SettingsPage", "Cancel");
}

PrimaryAction unavailableAction()
{
    PrimaryAction action;
    action.title = text(QT_TRANSLATE_NOOP("VpnPage", "Daemon unavailable"));
    action.button = text(QT_TRANSLATE_NOOP("VpnPage", "Connect"));
    action.statusState = u"unavailable"_s;
    action.role = u"connect"_s;
    return action;
}

PrimaryAction settledAction(const RuntimeInfo &runtime)
{
    PrimaryAction action;
    action.enabled = true;
    if (facts::isConnected(runtime)) {
        action.title = text(QT_TRANSLATE_NOOP("VpnPage", "Connected"));
        action.button = text(QT_TRANSLATE_NOOP("VpnPage", "Disconnect"));
        action.statusState = u"connected"_s;
        action.role = u"disconnect"_s;
        action.intent = PrimaryAction::Intent::Disconnect;
        return action;
    }
    const bool signedIn = facts::isSignedIn(runtime);
    action.title = text(QT_TRANSLATE_NOOP("VpnPage", "Not connected"));
    action.button = signedIn ? text(QT_TRANSLATE_NOOP("VpnPage", "Connect"))
                             : text(QT_TRANSLATE_NOOP("VpnPage", "Sign In"));
    action.statusState = u"disconnected"_s;
    action.role = u"connect"_s;
    action.intent = signedIn ? PrimaryAction::Intent::Connect : PrimaryAction::Intent::SignIn;
    return action;
}

PrimaryAction pendingAction(const RuntimeInfo &runtime, const ConnectProgress &progress)
{
    PrimaryAction action;
    action.pending = true;
    action.statusState = facts::isConnected(runtime) ? u"connected"_s : u"disconnected"_s;
    action.role = u"connect"_s;
    if (progress.disconnecting) {
        action.title = text(QT_TRANSLATE_NOOP("VpnPage", "Disconnecting..."));
        action.button = action.title;
        action.statusState = u"connected"_s;
        action.role = u"disconnect"_s;
        action.intent = PrimaryAction::Intent::Disconnect;
    } else if (progress.cancelling) {
        action.title = cancelingText();
        action.button = action.title;
        action.intent = PrimaryAction::Intent::Cancel;
    } else {
        action.title = text(QT_TRANSLATE_NOOP("VpnPage", "Connecting..."));
        action.button = cancelText();
        action.enabled = true;
        action.intent = PrimaryAction::Intent::Cancel;
    }
    return action;
}

} // namespace

PrimaryAction primaryAction(const RuntimeInfo &runtime, bool available,
                            const ConnectProgress &progress)
{
    if (!available) {
        return unavailableAction();
    }
    if (progress.pending || facts::isPending(runtime)) {
        return pendingAction(runtime, progress);
    }
    return settledAction(runtime);
}
