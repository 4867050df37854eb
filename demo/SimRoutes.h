#pragma once

#include "SimReply.h"

#include <QHash>
#include <QJsonObject>
#include <QJsonValue>
#include <QList>
#include <QString>

class SimModel;

/// A request whose body has been found to be what the route asks for.
struct SimCall
{
    QJsonObject body;
    QHash<QString, QString> query;
};

/// A member of a request's body. A member that the route does not name is refused,
/// so that a misspelt one can't go unnoticed.
struct SimField
{
    QString name;
    QJsonValue::Type type;
    bool required = true;
};

/// One endpoint: what it takes, how long it keeps the daemon busy, what it does.
struct SimRoute
{
    QByteArray method;
    QString path;
    QList<SimField> fields;
    int effortMs = 0;
    SimReply (*run)(SimModel &model, const SimCall &call) = nullptr;
};

/// Every endpoint of the control API.
const QList<SimRoute> &simRoutes();

/// The route for a request and its checked call, or the refusal.
struct SimMatch
{
    const SimRoute *route = nullptr; ///< Null when the request is refused.
    SimCall call;
    SimReply refusal;
};

SimMatch matchSimRoute(const SimRequest &request);
