#pragma once

#include <QByteArray>
#include <QHash>
#include <QJsonObject>
#include <QList>
#include <QPair>
#include <QString>

#include <functional>
#include <optional>

/// What one HTTP request asks for, freed from the HTTP library.
struct SimRequest
{
    QByteArray method;
    QString path; ///< Without the query.
    QHash<QString, QString> query;
    QByteArray controlVersion;
    QByteArray contentType;
    QByteArray body;
};

/// What goes back. An answer may have to wait: while `pending` is set and says
/// true the request stays open, and `finish` then makes the real answer. Both are
/// called with the daemon's lock held.
struct SimReply
{
    int status = 200;
    QByteArray body;
    QByteArray contentType = "application/json";
    QList<QPair<QByteArray, QByteArray>> headers;
    std::function<bool()> pending;
    std::function<SimReply()> finish;

    static SimReply json(const QJsonObject &object, int status = 200);
    static SimReply error(int status, const QString &text);
    static SimReply later(std::function<bool()> pending, std::function<SimReply()> finish);
};

/// The answer to a request that a rule forbids; nothing when it may go on.
using SimRefusal = std::optional<SimReply>;
