#include "AccessibleTour.h"

#include "AccessibleWalk.h"

#include <QElapsedTimer>
#include <QThread>

#include <array>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr int kDeadlineMs = 20000;
constexpr int kEndMs = 3000;
constexpr unsigned long kLookMs = 50;
/// What comes with a page or a dialog has come by then.
constexpr unsigned long kSettleMs = 300;
constexpr int kEscape = 0xff1b; // as an X key symbol

constexpr std::array kPages{"VPN", "Locations", "Mode", "Settings", "Account"};

} // namespace

AccessibleTour::AccessibleTour(const QString &program)
    : m_program(program)
{
    m_client.setProcessChannelMode(QProcess::ForwardedErrorChannel);
}

AccessibleTour::~AccessibleTour()
{
    stop();
}

bool AccessibleTour::run(const QStringList &arguments)
{
    if (!m_desktop.start()) {
        return fail(u"There is no accessibility bus"_s);
    }
    qputenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");
    bool ok = true;
    if (!arguments.isEmpty()) {
        ok = start(arguments) && pages();
    } else {
        const auto in = [this](const QString &scenario) {
            return start({u"--scenario"_s, scenario});
        };
        ok = in(u"normal"_s) && pages() && quickEntry() && placeRow() && dialogs();
        stop();
        ok = in(u"signed-out"_s) && openPage(u"Account"_s) && press(u"Sign In"_s) &&
             lookAt(u"Signing in"_s) && ok;
        stop();
        ok = in(u"forced-update"_s) && forcedUpdate() && ok;
    }
    stop();
    std::printf("\n%d things to act on, %d that say too little%s\n", m_reading.actionable(),
                m_reading.complaints(), ok ? "" : ", and something FAILED");
    return ok && m_reading.complaints() == 0;
}

bool AccessibleTour::start(const QStringList &arguments)
{
    m_client.start(m_program, arguments);
    return until([this] { return window().has_value(); }) || fail(u"No window came"_s);
}

void AccessibleTour::stop()
{
    if (m_client.state() != QProcess::NotRunning) {
        m_client.terminate();
        m_client.waitForFinished(kEndMs);
    }
}

// Where the tour goes

bool AccessibleTour::pages()
{
    bool ok = true;
    for (const char *page : kPages) {
        const QString name = QString::fromLatin1(page);
        ok = openPage(name) && lookAt(name) && ok;
    }
    return ok;
}

bool AccessibleTour::quickEntry()
{
    return openPage(u"VPN"_s) && typeInto(u"Search locations or nodes"_s, u"tokyo"_s) &&
           lookAt(u"Quick entry"_s);
}

/// A row chosen without the keyboard is what Connect then connects to; and it says so.
bool AccessibleTour::placeRow()
{
    const auto row = [this](const QString &end) {
        const auto shown = window();
        return shown ? shown->find([&end](const AccessibleObject &object) {
            const QString name = object.name();
            return name.startsWith("London 01, "_L1) && name.contains(" ms, "_L1) &&
                   name.endsWith(end) && object.role() == "tree item"_L1;
        })
                     : std::nullopt;
    };
    if (!openPage(u"Locations"_s)) {
        return false;
    }
    const auto place = row(u"Favorite"_s);
    if (!place || !place->act(u"Toggle"_s) || !press(u"Connect selected location"_s)) {
        return fail(u"A favourite place can't be chosen"_s);
    }
    return until([&row] { return row(u"Favorite, Connected server"_s).has_value(); }) ||
           fail(u"The place doesn't say that it is connected"_s);
}

bool AccessibleTour::dialogs()
{
    const QString settings = u"Settings"_s;
    // First, since without a window manager the keyboard doesn't come back from a dialog.
    bool ok = openPage(u"Mode"_s) && press(u"VantuVPN"_s) && press(u"Routing: Split"_s) &&
              lookAt(u"Mode with split rules"_s);
    ok = openDialog(settings, u"Kill Switch Lockdown"_s) && leaveDialog(1) && ok;
    ok = openDialog(settings, u"Language: "_s) && leaveDialog(1) && ok;
    ok = openDialog(u"Mode"_s, u"Regions use"_s) && leaveDialog(1) && ok;
    // Rules that were typed and not applied aren't thrown away unasked.
    ok = openDialog(u"Mode"_s, u"Custom Rules: Edit"_s) &&
         typeInto(u"Rules, one per line"_s, u"a.example"_s) && leaveDialog(3) && lookAtDialog() &&
         press(u"Discard Changes"_s) && until([this] { return windows().size() == 1; }) && ok;
    // The kill switch and the proxy exclude each other.
    const auto isChosen = [this](const QString &name) {
        return until([this, &name] {
            const auto shown = window();
            const auto choice = shown ? shown->find(u"radio button"_s, name) : std::nullopt;
            return choice && choice->states().contains("checked"_L1);
        });
    };
    ok = openPage(settings) && press(u"Kill Switch On"_s) && isChosen(u"Kill Switch On"_s) &&
         openDialog(u"Mode"_s, u"Vantu Proxy"_s) && leaveDialog(1) &&
         openDialog(settings, u"Kill Switch Off"_s) && press(u"Turn Off Kill Switch"_s) &&
         isChosen(u"Kill Switch Off"_s) && ok;
    ok = openPage(u"Mode"_s) && press(u"Vantu Proxy"_s) &&
         openDialog(settings, u"Kill Switch On"_s) && leaveDialog(1) && ok;
    return ok;
}

bool AccessibleTour::forcedUpdate()
{
    return openDialog(u"Settings"_s, u"Check for Updates"_s) &&
           press(u"Download and install the Vantu update"_s) && lookAtDialog();
}

// How it goes

bool AccessibleTour::openPage(const QString &name)
{
    const bool opened = press(name) && until([this, &name] {
                            const auto shown = window();
                            const auto title = shown ? shown->find(u"label"_s) : std::nullopt;
                            return title && title->name() == name;
                        });
    QThread::msleep(kSettleMs);
    return opened || fail(u"%1 was chosen, but doesn't show"_s.arg(name));
}

bool AccessibleTour::press(const QString &name)
{
    const bool pressed = until([this, &name] {
        const auto shown = window();
        const auto button = shown ? shown->find([&name](const AccessibleObject &object) {
            return object.name().startsWith(name) && object.isPressable();
        })
                                  : std::nullopt;
        return button && button->press();
    });
    return pressed || fail(u"\"%1\" can't be pressed"_s.arg(name));
}

bool AccessibleTour::typeInto(const QString &field, const QString &text)
{
    const auto found = [this, &field] {
        const auto shown = window();
        return shown ? shown->find(u"text"_s, field) : std::nullopt;
    };
    const auto isReady = [&] {
        const auto at = found();
        if (!at || !at->states().contains("editable"_L1)) {
            return false;
        }
        at->focus();
        return at->states().contains("focused"_L1) && at->selectText();
    };
    if (!until(isReady)) {
        return fail(u"\"%1\" doesn't take the keyboard"_s.arg(field));
    }
    m_desktop.type(text);
    const auto holds = [&] {
        const auto at = found();
        return at && at->text() == text;
    };
    return until(holds) || fail(u"What is typed doesn't come into \"%1\""_s.arg(field));
}

bool AccessibleTour::openDialog(const QString &page, const QString &button)
{
    return openPage(page) && press(button) &&
           (until([this] { return windows().size() > 1; }) ||
            fail(u"\"%1\" doesn't open anything"_s.arg(button))) &&
           lookAtDialog();
}

bool AccessibleTour::lookAtDialog()
{
    QThread::msleep(kSettleMs);
    const auto dialog = window();
    return dialog && lookAt(dialog->name());
}

bool AccessibleTour::leaveDialog(int windowsLeft)
{
    m_desktop.pressKey(kEscape);
    return until([this, windowsLeft] { return windows().size() == windowsLeft; }) ||
           fail(u"Escape doesn't end the dialog"_s);
}

bool AccessibleTour::lookAt(const QString &title)
{
    const auto shown = window();
    if (!shown) {
        return fail(u"%1 is gone"_s.arg(title));
    }
    std::printf("\n== %s\n", qUtf8Printable(title));
    m_reading.read(*shown);
    const QString wrong = AccessibleWalk(m_desktop, m_reading.stops()).complaint();
    return wrong.isEmpty() || fail(u"%1: %2"_s.arg(title, wrong));
}

bool AccessibleTour::fail(const QString &words)
{
    std::printf("FAIL %s\n", qUtf8Printable(words));
    return false;
}

std::optional<AccessibleObject> AccessibleTour::window() const
{
    const QList<AccessibleObject> all = windows();
    return all.isEmpty() ? std::nullopt : std::optional(all.constFirst());
}

bool AccessibleTour::until(const std::function<bool()> &condition)
{
    QElapsedTimer elapsed;
    elapsed.start();
    while (!condition()) {
        if (elapsed.elapsed() > kDeadlineMs) {
            return false;
        }
        QThread::msleep(kLookMs);
    }
    return true;
}
