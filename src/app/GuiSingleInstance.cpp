#include "GuiSingleInstance.h"

#include <QElapsedTimer>
#include <QLocalServer>
#include <QLocalSocket>
#include <QThread>

#include <algorithm>

using namespace std::chrono_literals;

GuiSingleInstance::GuiSingleInstance(const QString &serverName, QObject *parent)
    : QObject(parent)
    , m_serverName(serverName)
{}

GuiSingleInstance::~GuiSingleInstance()
{
    if (m_server) {
        m_server->close();
        delete m_server;
    }
}

bool GuiSingleInstance::tryListen(QString *error)
{
    if (m_server && m_server->isListening()) {
        return true;
    }
    delete m_server;
    m_server = new QLocalServer(this);
    // No access option: with one, a second listener would move its own socket over
    // ours and both would believe that they hold the name.
    connect(m_server, &QLocalServer::newConnection, this, &GuiSingleInstance::handleNewConnection);
    if (m_server->listen(m_serverName)) {
        return true;
    }
    if (error) {
        *error = m_server->errorString();
    }
    delete m_server;
    m_server = nullptr;
    return false;
}

GuiSingleInstance::Outcome GuiSingleInstance::claimOrActivate(QString *error)
{
    if (tryListen(error)) {
        return Outcome::Claimed;
    }
    Q_EMIT aboutToKnock();
    if (notifyRunningInstance(kNotifyTimeout)) {
        return Outcome::Activated;
    }
    QLocalServer::removeServer(m_serverName);
    return tryListen(error) ? Outcome::Claimed : Outcome::Failed;
}

GuiSingleInstance::Outcome
GuiSingleInstance::claimWithRetry(std::chrono::milliseconds deadline,
                                  std::chrono::milliseconds retryInterval, QString *error)
{
    QElapsedTimer elapsed;
    elapsed.start();
    const auto interval = static_cast<unsigned long>(std::max(retryInterval, 1ms).count());
    while (!tryListen(error)) {
        if (elapsed.elapsed() >= deadline.count()) {
            QLocalServer::removeServer(m_serverName);
            return tryListen(error) ? Outcome::Claimed : Outcome::Failed;
        }
        QThread::msleep(interval);
    }
    return Outcome::Claimed;
}

bool GuiSingleInstance::notifyRunningInstance(std::chrono::milliseconds timeout) const
{
    const int timeoutMs = static_cast<int>(timeout.count());
    QLocalSocket socket;
    socket.connectToServer(m_serverName, QIODevice::ReadWrite);
    if (!socket.waitForConnected(timeoutMs)) {
        return false;
    }
    socket.write("activate\n");
    socket.waitForBytesWritten(timeoutMs);
    socket.disconnectFromServer();
    return true;
}

void GuiSingleInstance::handleNewConnection()
{
    while (m_server && m_server->hasPendingConnections()) {
        QLocalSocket *connection = m_server->nextPendingConnection();
        if (!connection) {
            return;
        }
        // What was sent does not matter: whoever connects wants the window.
        connection->readAll();
        connection->disconnectFromServer();
        connection->deleteLater();
        Q_EMIT activateRequested();
    }
}
