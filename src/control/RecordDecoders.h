#pragma once

#include "ControlRecords.h"

#include <QByteArray>
#include <QLatin1StringView>
#include <QString>

/// Turns the body of an answer into a record, one function for each record.
///
/// Decoding is lenient: a member that is absent or of the wrong type takes its
/// default. Only a body that is no JSON object fails, which fills `errorText` with
/// an untranslated text and gives a default record. Plain functions for any thread.
namespace decode {

/// Also tells whether the daemon speaks this program's protocol.
VersionInfo versionInfo(const QByteArray &body, QString &errorText);
APIURLConfigInfo apiURLConfigInfo(const QByteArray &body, QString &errorText);
AutoConnectConfigInfo autoConnectConfigInfo(const QByteArray &body, QString &errorText);
LanguageConfigInfo languageConfigInfo(const QByteArray &body, QString &errorText);
UpdateInfo updateInfo(const QByteArray &body, QString &errorText);
/// Fails on an unknown state too; how, others have to tell from a request that failed.
inline constexpr QLatin1StringView kInvalidDownload{"invalid GUI update download JSON"};
inline constexpr QLatin1StringView kInvalidDownloadState{"GUI update download state is invalid"};
GUIUpdateDownloadInfo guiUpdateDownloadInfo(const QByteArray &body, QString &errorText);
UserInfo userInfo(const QByteArray &body, QString &errorText);
/// Fails too unless the URL is exactly what the vendor's purchase page looks like:
/// it will be opened in the user's browser with an access token in it.
PurchaseURLInfo purchaseURLInfo(const QByteArray &body, QString &errorText);
NodesInfo nodesInfo(const QByteArray &body, QString &errorText);
NodeGroupsInfo nodeGroupsInfo(const QByteArray &body, QString &errorText);
ConfigPaths configPaths(const QByteArray &body, QString &errorText);
KillSwitchInfo killSwitchInfo(const QByteArray &body, QString &errorText);
ModeInfo modeInfo(const QByteArray &body, QString &errorText);
ProxyListenResultInfo proxyListenResultInfo(const QByteArray &body, QString &errorText);
SplitDNSInfo splitDNSInfo(const QByteArray &body, QString &errorText);
SplitRulesInfo splitRulesInfo(const QByteArray &body, QString &errorText);
SplitRuleMutationInfo splitRuleMutationInfo(const QByteArray &body, QString &errorText);
/// One step of RepairResultInfo; each step is an answer of its own.
RepairStep repairStep(const QByteArray &body, QString &errorText);
RuntimeInfo runtimeInfo(const QByteArray &body, QString &errorText);

} // namespace decode
