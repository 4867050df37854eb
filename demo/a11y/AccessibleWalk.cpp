#include "AccessibleWalk.h"

#include <QElapsedTimer>
#include <QSet>
#include <QThread>

using namespace Qt::StringLiterals;

namespace {

constexpr int kTab = 0xff09; // as an X key symbol
constexpr int kKeyMs = 3000;
constexpr unsigned long kLookMs = 5;

} // namespace

AccessibleWalk::AccessibleWalk(const AccessibleDesktop &desktop,
                               const QList<AccessibleObject> &stops)
    : m_desktop(desktop)
    , m_stops(stops)
{}

QString AccessibleWalk::complaint() const
{
    QSet<qsizetype> reached;
    // What has the keyboard at first may itself be none of the stops.
    const qsizetype here = focused(0);
    const qsizetype start = here < 0 ? tab(here) : here;
    qsizetype at = start;
    for (qsizetype step = 0; step == 0 || (at != start && step < m_stops.size()); ++step) {
        if (at < 0) {
            return u"Tab leads nowhere"_s;
        }
        reached += at;
        const qsizetype next = tab(at);
        if (next == at && m_stops.size() > 1) {
            return u"Tab doesn't leave \"%1\""_s.arg(m_stops.at(at).name());
        }
        at = next;
    }
    if (at != start) {
        return u"Tab doesn't come round"_s;
    }
    for (qsizetype stop = 0; stop < m_stops.size(); ++stop) {
        if (!reached.contains(stop)) {
            return u"Tab doesn't come to \"%1\""_s.arg(m_stops.at(stop).name());
        }
    }
    return {};
}

qsizetype AccessibleWalk::focused(qsizetype from) const
{
    for (qsizetype step = 0; step < m_stops.size(); ++step) {
        const qsizetype stop = (from + step) % m_stops.size();
        if (m_stops.at(stop).states().contains("focused"_L1)) {
            return stop;
        }
    }
    return -1;
}

qsizetype AccessibleWalk::tab(qsizetype before) const
{
    m_desktop.pressKey(kTab);
    QElapsedTimer elapsed;
    elapsed.start();
    qsizetype at = -1;
    do {
        QThread::msleep(kLookMs);
        // The next one comes first; the one before would be the last to be looked at.
        at = focused(before + 1);
    } while ((at < 0 || at == before) && m_stops.size() > 1 && elapsed.elapsed() < kKeyMs);
    return at;
}
