#include "AccessibleTour.h"

#include <QElapsedTimer>
#include <QThread>

#include <array>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr int kDeadlineMs = 30000;
constexpr int kEndMs = 3000;
constexpr unsigned long kLookMs = 100;
/// What a press changed has reached the window by then.
constexpr unsigned long kSettleMs = 1500;
constexpr qsizetype kIndent = 2;

constexpr std::array kPages{"VPN", "Locations", "Mode", "Settings", "Account"};

} // namespace

AccessibleTour::AccessibleTour(const QString &program)
    : m_program(program)
{
    m_client.setProcessChannelMode(QProcess::ForwardedErrorChannel);
}

AccessibleTour::~AccessibleTour()
{
    if (m_client.state() != QProcess::NotRunning) {
        m_client.terminate();
        m_client.waitForFinished(kEndMs);
    }
}

bool AccessibleTour::run(const QStringList &arguments)
{
    if (!start(arguments)) {
        return false;
    }
    bool ok = true;
    for (const char *page : kPages) {
        ok = openPage(QString::fromLatin1(page)) && ok;
    }
    std::printf("%d things to act on, %d that say too little\n", m_actionable, m_complaints);
    return ok && m_complaints == 0;
}

bool AccessibleTour::start(const QStringList &arguments)
{
    if (!m_desktop.start()) {
        std::fprintf(stderr, "vantu-a11y: no accessibility bus\n");
        return false;
    }
    qputenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");
    m_client.start(m_program, arguments);
    QElapsedTimer elapsed;
    elapsed.start();
    while (!window()) {
        if (elapsed.elapsed() > kDeadlineMs || m_client.state() == QProcess::NotRunning) {
            std::fprintf(stderr, "vantu-a11y: no window came\n");
            return false;
        }
        QThread::msleep(kLookMs);
        m_client.waitForReadyRead(0);
    }
    return true;
}

std::optional<AccessibleObject> AccessibleTour::window() const
{
    const QList<AccessibleObject> windows = m_desktop.windows(u"Vantu"_s);
    return windows.isEmpty() ? std::nullopt : std::optional(windows.constLast());
}

bool AccessibleTour::openPage(const QString &name)
{
    const auto shown = window();
    const auto pages = shown ? shown->find(u"filler"_s, u"Pages"_s) : std::nullopt;
    bool opened = false;
    for (const AccessibleObject &entry : pages ? pages->children() : QList<AccessibleObject>()) {
        opened = opened || (entry.name() == name && entry.press());
    }
    if (!opened) {
        std::printf("FAIL %s can't be opened\n", qUtf8Printable(name));
        return false;
    }
    QThread::msleep(kSettleMs);
    if (const auto title = shown->find(u"label"_s); !title || title->name() != name) {
        std::printf("FAIL %s was chosen, but doesn't show\n", qUtf8Printable(name));
        return false;
    }
    std::printf("\n== %s\n", qUtf8Printable(name));
    m_seen.clear();
    lookAt(*shown, 0);
    return true;
}

void AccessibleTour::lookAt(const AccessibleObject &object, int depth)
{
    const QStringList states = object.states();
    if (!states.contains("showing"_L1)) {
        return;
    }
    const QString role = object.role();
    const QString name = object.name();
    const QString description = object.description();
    QString line =
        u"%1%2 \"%3\" [%4]"_s.arg(QString(depth * kIndent, u' '), role, name, states.join(u", "_s));
    if (!description.isEmpty()) {
        line += u" (%1)"_s.arg(description);
    }
    if (states.contains("focusable"_L1)) {
        ++m_actionable;
        if (const QString wrong = complaint(role, name, states, description); !wrong.isEmpty()) {
            ++m_complaints;
            line += u"  <-- %1"_s.arg(wrong);
        }
    }
    std::printf("%s\n", qUtf8Printable(line));
    for (const AccessibleObject &child : object.children()) {
        lookAt(child, depth + 1);
    }
}

QString AccessibleTour::complaint(const QString &role, const QString &name,
                                  const QStringList &states, const QString &description)
{
    if (role.isEmpty() || role == "unknown"_L1 || role == "invalid"_L1) {
        return u"no role"_s;
    }
    if (states.isEmpty()) {
        return u"no state"_s;
    }
    if (name.trimmed().isEmpty()) {
        return u"no name"_s;
    }
    const QString self = role + u'\n' + name + u'\n' + description;
    // The same place may stand in several groups of a list.
    if (m_seen.contains(self) && role != "tree item"_L1) {
        return u"a second one with the same name"_s;
    }
    m_seen += self;
    return {};
}
