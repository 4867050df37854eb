#include "SimServer.h"

#include "SimDaemon.h"
#include "SimReply.h"

#include <microhttpd.h>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kMaxBodyBytes = qsizetype{8} * 1024 * 1024;

/// A request while its body arrives.
struct Incoming
{
    QByteArray body;
    bool tooLong = false;
};

QByteArray header(MHD_Connection *connection, const char *name)
{
    return {MHD_lookup_connection_value(connection, MHD_HEADER_KIND, name)};
}

MHD_Result collectQuery(void *query, MHD_ValueKind, const char *name, const char *value)
{
    static_cast<QHash<QString, QString> *>(query)->insert(QString::fromUtf8(name),
                                                          QString::fromUtf8(value));
    return MHD_YES;
}

MHD_Result send(MHD_Connection *connection, const SimReply &reply)
{
    MHD_Response *response = MHD_create_response_from_buffer(
        size_t(reply.body.size()), const_cast<char *>(reply.body.constData()),
        MHD_RESPMEM_MUST_COPY);
    if (!response) {
        return MHD_NO;
    }
    MHD_add_response_header(response, "Content-Type", reply.contentType.constData());
    for (const auto &[name, value] : reply.headers) {
        MHD_add_response_header(response, name.constData(), value.constData());
    }
    const MHD_Result sent =
        MHD_queue_response(connection, static_cast<unsigned int>(reply.status), response);
    MHD_destroy_response(response);
    return sent;
}

// Called once for the request's head, then for each piece of the body, then once
// more without data, when the request is complete.
MHD_Result takeRequest(void *daemon, MHD_Connection *connection, const char *url,
                       const char *method, const char *, const char *data, size_t *size,
                       void **state)
{
    if (!*state) {
        *state = std::make_unique<Incoming>().release();
        return MHD_YES;
    }
    auto *incoming = static_cast<Incoming *>(*state);
    if (*size > 0) {
        const auto bytes = static_cast<qsizetype>(*size);
        incoming->tooLong = incoming->tooLong || incoming->body.size() + bytes > kMaxBodyBytes;
        if (!incoming->tooLong) {
            incoming->body.append(data, bytes);
        }
        *size = 0;
        return MHD_YES;
    }
    if (incoming->tooLong) {
        return send(connection, SimReply::error(413, u"the request is too long"_s));
    }
    SimRequest request{method,
                       QString::fromUtf8(url),
                       {},
                       header(connection, "X-Vantu-Control-Version"),
                       header(connection, "Content-Type"),
                       incoming->body};
    MHD_get_connection_values(connection, MHD_GET_ARGUMENT_KIND, collectQuery, &request.query);
    return send(connection, static_cast<SimDaemon *>(daemon)->handle(request));
}

void forgetRequest(void *, MHD_Connection *, void **state, MHD_RequestTerminationCode)
{
    const std::unique_ptr<Incoming> incoming(static_cast<Incoming *>(*state));
    *state = nullptr;
}

} // namespace

SimServer::SimServer(SimDaemon &daemon)
    : m_daemon(daemon)
{}

SimServer::~SimServer()
{
    m_daemon.shutDown();
    if (m_http) {
        MHD_stop_daemon(m_http);
    }
}

QString SimServer::listen(const QString &path)
{
    if (QString problem = m_listener.listen(path); !problem.isEmpty()) {
        return problem;
    }
    m_http = MHD_start_daemon(
        MHD_USE_POLL_INTERNAL_THREAD | MHD_USE_THREAD_PER_CONNECTION | MHD_USE_ITC, 0, nullptr,
        nullptr, takeRequest, &m_daemon, MHD_OPTION_LISTEN_SOCKET, m_listener.descriptor(),
        MHD_OPTION_NOTIFY_COMPLETED, forgetRequest, nullptr, MHD_OPTION_END);
    if (!m_http) {
        m_listener.close();
        return u"could not start the HTTP server"_s;
    }
    m_listener.release(); // the HTTP library closes it from here on
    return {};
}
