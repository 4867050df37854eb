#include "SimReply.h"

#include <QJsonDocument>

#include <utility>

using namespace Qt::StringLiterals;

SimReply SimReply::json(const QJsonObject &object, int status)
{
    SimReply reply;
    reply.status = status;
    reply.body = QJsonDocument(object).toJson(QJsonDocument::Compact);
    return reply;
}

SimReply SimReply::error(int status, const QString &text)
{
    return json({{u"error"_s, text}}, status);
}

SimReply SimReply::later(std::function<bool()> pending, std::function<SimReply()> finish)
{
    SimReply reply;
    reply.pending = std::move(pending);
    reply.finish = std::move(finish);
    return reply;
}
