#pragma once

#include <QString>
#include <QStringList>

/// What is made of the texts that are typed into the settings, and what is wrong with
/// them. The daemon has the last word: a text with a problem may still be sent.
namespace settingsinput {

/// `text` as the address of the service: with "https://" in front where no scheme was
/// typed. Another scheme stays as it is.
QString normalisedApiUrl(const QString &text);

/// The servers in `text`, divided by commas and blanks.
QStringList dnsServers(const QString &text);

// What is wrong, in words for the user; empty for nothing, and for an empty text.
QString apiUrlProblem(const QString &text);
QString dnsProblem(const QString &text);
QString listenAddressProblem(const QString &text);

} // namespace settingsinput
