#pragma once

#include "HttpResponseParser.h"

#include <QByteArray>
#include <QLocalSocket>
#include <QString>

#include <atomic>
#include <optional>

/// One blocking exchange with the daemon: a socket, a request, an answer. No
/// state is kept between exchanges, so any thread may call, each for itself.
namespace control {

/// Sends one request to the Unix socket `socketName` and waits for its whole
/// response, whatever its status.
///
/// `timeoutMs` bounds connect, write and read together. Below 1, connect and write
/// are bounded by kDefaultTimeout and the read by nothing: it waits for as long as
/// the daemon keeps the connection open. Another thread may set `canceled` (may be
/// null) at any time, which ends the call within about kWaitSlice.
///
/// On failure returns nothing and fills `errorText` with a text for the user.
std::optional<HttpResponse> performRequest(const QString &socketName, const QByteArray &method,
                                           const QString &path, const QByteArray &body,
                                           int timeoutMs, QString &errorText,
                                           const std::atomic_bool *canceled = nullptr);

/// What a response outside 200..299 tells the user: what the daemon says, cut off
/// where nobody would read on, else the status.
QString errorTextFromResponse(const HttpResponse &response);

/// What a connection that could not be made tells the user.
QString connectErrorText(QLocalSocket::LocalSocketError error, const QString &socketErrorText);

} // namespace control
