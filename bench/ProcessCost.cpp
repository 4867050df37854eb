#include "ProcessCost.h"

#include <QDir>
#include <QFile>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// The number behind `name` in a status file of the kernel.
qint64 statusNumber(const QString &path, QByteArrayView name)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return 0;
    }
    const QList<QByteArray> lines = file.readAll().split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith(name)) {
            return line.mid(name.size()).simplified().split(' ').constFirst().toLongLong();
        }
    }
    return 0;
}

} // namespace

ProcessCost processCost(qint64 pid)
{
    const QString root = u"/proc/%1"_s.arg(pid);
    ProcessCost cost;
    cost.residentKiB = statusNumber(root + u"/status"_s, "VmRSS:");
    QFile stat(root + u"/stat"_s);
    if (stat.open(QIODevice::ReadOnly)) {
        // The name in parentheses may hold blanks; user and system time are the 12th
        // and 13th field behind it.
        const QByteArray text = stat.readAll();
        const QList<QByteArray> fields = text.mid(text.lastIndexOf(')') + 2).split(' ');
        const qint64 ticks = fields.value(11).toLongLong() + fields.value(12).toLongLong();
        cost.cpuMs = ticks * 1000 / sysconf(_SC_CLK_TCK);
    }
    const QStringList tasks = QDir(root + u"/task"_s).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &task : tasks) {
        cost.wakeUps +=
            statusNumber(u"%1/task/%2/status"_s.arg(root, task), "voluntary_ctxt_switches:");
    }
    return cost;
}
