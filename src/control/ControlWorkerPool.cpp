#include "ControlWorkerPool.h"

#include <QDeadlineTimer>

using namespace Qt::StringLiterals;

ControlWorkerPool::ControlWorkerPool(const QString &socketName, QObject *parent)
    : QObject(parent)
{
    registerControlRecords();
    for (std::size_t i = 0; i < m_threads.size(); ++i) {
        auto *const thread = new QThread(this);
        thread->setObjectName(u"control-%1"_s.arg(i));
        // No parent, since it moves away; deleted on its own thread when that ends.
        auto *const worker = new ControlWorker(socketName);
        worker->moveToThread(thread);
        connect(thread, &QThread::finished, worker, &QObject::deleteLater);
        thread->start();
        m_threads[i] = thread;
        m_workers[i] = worker;
    }
}

ControlWorkerPool::~ControlWorkerPool()
{
    shutDown();
}

void ControlWorkerPool::shutDown()
{
    if (m_isShutDown) {
        return;
    }
    m_isShutDown = true;
    for (ControlWorker *worker : m_workers) {
        worker->shutDown();
    }
    for (QThread *thread : m_threads) {
        thread->quit();
    }
    for (QThread *thread : m_threads) {
        if (!thread->wait(QDeadlineTimer(kThreadWait))) {
            qWarning("A control worker does not end; leaving it behind.");
            thread->setParent(nullptr);
        }
    }
}
