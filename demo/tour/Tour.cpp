#include "Tour.h"

#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QGuiApplication>
#include <QPixmap>
#include <QRect>
#include <QScreen>
#include <QTimer>

#include <cstdio>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr int kPartDeadlineMs = 20000;
constexpr int kLookIntervalMs = 50;
/// What a click changed has been painted by then.
constexpr int kSettleMs = 300;

void pause(int ms)
{
    QEventLoop loop;
    QTimer::singleShot(ms, &loop, &QEventLoop::quit);
    loop.exec();
}

TourClient::Matcher named(const QString &name)
{
    return [name](const QString &found) { return found == name; };
}

} // namespace

Tour::Tour(const QString &directory, const QString &pictures)
    : m_directory(directory)
    , m_pictures(pictures)
    , m_client(directory + u"/vantu-demo"_s)
{}

bool Tour::run(const QStringList &arguments)
{
    QElapsedTimer elapsed;
    elapsed.start();
    // Pictures of an earlier walk would be mistaken for those of this one.
    QDir pictures(m_pictures);
    for (const QString &name : pictures.entryList({u"[0-9][0-9]-*.png"_s}, QDir::Files)) {
        pictures.remove(name);
    }
    pictures.mkpath(u"."_s);
    start(arguments);
    signIn();
    connectAndCancel();
    useTray();
    findPlace();
    changeMode();
    editRules();
    lockDown();
    changeAddresses();
    changeSwitches();
    update();
    changeLanguage();
    std::printf("%d steps in %lld s%s\n", m_steps, static_cast<long long>(elapsed.elapsed() / 1000),
                m_failed ? ", the last one failed" : ", all as they should be");
    return !m_failed;
}

// Things to do

Tour::Part Tour::press(const QString &button)
{
    return press(button, named(button));
}

Tour::Part Tour::press(const QString &words, const Matcher &matches)
{
    return {u"press \"%1\""_s.arg(words), [this, matches] { return m_client.press(matches); }};
}

Tour::Part Tour::tabAndPress(const QString &button)
{
    return {u"go to and press \"%1\""_s.arg(button), [this, matches = named(button)] {
                return m_client.tabTo(matches) && m_client.press(matches);
            }};
}

Tour::Part Tour::open(const QString &page)
{
    return {u"open the page \"%1\""_s.arg(page), [this, page] {
                const auto title = m_client.find(u"label"_s, [](const QString &) { return true; });
                if (title && title->name() == page) {
                    return true;
                }
                m_client.press(named(page));
                return false;
            }};
}

Tour::Part Tour::type(const QString &field, const QString &text)
{
    const auto sent = std::make_shared<bool>(false);
    return {u"type into \"%1\""_s.arg(field), [this, field, text, sent] {
                *sent = *sent || m_client.typeInto(field, text);
                // Keys go another way than presses, which could overtake them.
                const auto found = m_client.find(u"text"_s, named(field));
                return *sent && found && found->textLength() == text.size();
            }};
}

Tour::Part Tour::key(const QString &name, int keySymbol)
{
    return {u"press the key %1"_s.arg(name), [this, keySymbol] {
                m_client.desktop().pressKey(keySymbol);
                return true;
            }};
}

Tour::Part Tour::click(const QString &entry)
{
    return {u"choose \"%1\" in the tray"_s.arg(entry),
            [this, entry] { return m_client.tray().click(entry); }};
}

Tour::Part Tour::tell(const QString &command)
{
    return {u"tell the daemon \"%1\""_s.arg(command),
            [this, command] { return m_daemon.command(command) == "ok"_L1; }};
}

// Things to see

Tour::Part Tour::reads(const QString &label)
{
    return reads(label, named(label));
}

Tour::Part Tour::reads(const QString &words, const Matcher &matches)
{
    return {u"read \"%1\""_s.arg(words),
            [this, matches] { return m_client.find(u"label"_s, matches).has_value(); }};
}

Tour::Part Tour::lists(const QString &words, const Matcher &matches)
{
    return {u"the list has \"%1\""_s.arg(words),
            [this, matches] { return m_client.find(u"tree item"_s, matches).has_value(); }};
}

Tour::Part Tour::hasButton(const QString &button)
{
    return hasButton(button, named(button));
}

Tour::Part Tour::hasButton(const QString &words, const Matcher &matches)
{
    return {u"see the button \"%1\""_s.arg(words),
            [this, matches] { return m_client.findButton(matches).has_value(); }};
}

Tour::Part Tour::stands(const QString &field, const QString &text)
{
    return {u"\"%1\" stands in \"%2\""_s.arg(text, field), [this, field, text] {
                const auto found = m_client.find(u"text"_s, named(field));
                return found && found->text().contains(text);
            }};
}

Tour::Part Tour::offers(const QString &entry)
{
    return {u"the tray offers \"%1\""_s.arg(entry), [this, entry] {
                const TrayMenuItem menu = m_client.tray().menu();
                const TrayMenuItem *item = menu.find(entry);
                return item && item->visible && item->enabled;
            }};
}

Tour::Part Tour::ticked(const QString &entry, bool on)
{
    return {u"\"%1\" is %2in the tray"_s.arg(entry, on ? u"ticked "_s : u"not ticked "_s),
            [this, entry, on] {
                const TrayMenuItem menu = m_client.tray().menu();
                const TrayMenuItem *item = menu.find(entry);
                return item && item->enabled && item->checked == on;
            }};
}

Tour::Part Tour::holds(const QString &path, const QString &value)
{
    return holds(u"%1 = %2"_s.arg(path, value), [path, value](const TourDaemon &daemon) {
        return daemon.status(path).toString() == value;
    });
}

Tour::Part Tour::holds(const QString &words,
                       const std::function<bool(const TourDaemon &daemon)> &check)
{
    return {u"the daemon holds "_s + words, [this, check] { return check(m_daemon); }};
}

// Walking

void Tour::step(const QString &name, const QList<Part> &parts)
{
    if (m_failed) {
        return; // What comes next builds on this.
    }
    QElapsedTimer elapsed;
    elapsed.start();
    QStringList words;
    for (const Part &part : parts) {
        QElapsedTimer waited;
        waited.start();
        bool done = part.done();
        while (!done && waited.elapsed() < kPartDeadlineMs) {
            pause(kLookIntervalMs);
            done = part.done();
        }
        words += done ? part.words : u"NOT: "_s + part.words;
        if (!done) {
            m_failed = true;
            break;
        }
    }
    report(!m_failed, name, words.join(u"; "_s), elapsed.elapsed());
    if (m_failed) {
        std::printf("What can be read: %s", qUtf8Printable(m_client.reading()));
    }
    takePicture(name);
}

void Tour::report(bool ok, const QString &name, const QString &words, qint64 ms)
{
    ++m_steps;
    std::printf("%-4s %-16s %6lld ms  %s\n", ok ? "ok" : "FAIL", qUtf8Printable(name),
                static_cast<long long>(ms), qUtf8Printable(words));
    std::fflush(stdout);
}

void Tour::takePicture(const QString &name)
{
    pause(kSettleMs);
    const QString prefix = u"%1/%2-%3"_s.arg(m_pictures).arg(m_steps, 2, 10, QChar(u'0')).arg(name);
    if (const QRect used = m_client.place(); !used.isEmpty()) {
        const QPixmap screen = QGuiApplication::primaryScreen()->grabWindow(0);
        screen.copy(used).save(prefix + u".png"_s);
    }
    const QImage icon = m_client.tray().icon();
    if (!icon.isNull() && icon != m_icon) {
        icon.save(prefix + u"-icon.png"_s);
        m_icon = icon;
    }
}
