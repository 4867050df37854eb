// vantu-shots: pictures of every page and popup of the client, taken without a display
// from the simulated daemon. One run makes one look; `./dev shots` makes them all.

#include "AppState.h"
#include "GuiPreferences.h"
#include "MainWindow.h"
#include "SimDaemon.h"
#include "SimServer.h"
#include "VantuAppShell.h"
#include "WindowController.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QLineEdit>
#include <QTabBar>
#include <QTemporaryDir>
#include <QTimer>
#include <QTreeView>

#include <cstdio>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

constexpr int kDeadlineMs = 10000;
constexpr int kSettleMs = 500;

void pause(int ms)
{
    QEventLoop loop;
    QTimer::singleShot(ms, &loop, &QEventLoop::quit);
    loop.exec();
}

bool waitFor(const std::function<bool()> &condition)
{
    QElapsedTimer elapsed;
    elapsed.start();
    while (!condition()) {
        if (elapsed.elapsed() > kDeadlineMs) {
            return false;
        }
        pause(20);
    }
    return true;
}

MainWindow *findWindow()
{
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget *widget : widgets) {
        auto *window = qobject_cast<MainWindow *>(widget);
        if (window && window->isVisible()) {
            return window;
        }
    }
    return nullptr;
}

/// Takes the pictures of one scenario; names begin with `prefix`.
class Photographer final
{
    Q_DISABLE_COPY_MOVE(Photographer)

public:
    Photographer(const QString &scenario, const QString &prefix)
        : m_prefix(prefix)
        , m_daemon(options(scenario, m_directory.path()))
        , m_server(m_daemon)
    {
        const QString error = m_server.listen(socketPath());
        if (!error.isEmpty()) {
            std::fprintf(stderr, "%s\n", qUtf8Printable(error));
        }
    }

    bool run(bool connected)
    {
        VantuAppShell shell(socketPath());
        shell.setLoadedLanguage(u"en-US"_s);
        shell.start();
        MainWindow *window = findWindow();
        if (!window ||
            !waitFor([&shell] { return !shell.state().runtime().authState.isEmpty(); })) {
            return false;
        }
        if (connected) {
            shell.connectRuntime();
            pause(kSettleMs);
            take(*window, u"vpn-connecting"_s);
            if (!waitFor(
                    [&shell] { return shell.state().runtime().tunnelState == "connected"_L1; })) {
                return false;
            }
        }
        takePages(*window);
        shell.quit();
        return true;
    }

private:
    static SimOptions options(const QString &scenario, const QString &directory)
    {
        SimOptions options;
        options.scenario = scenario;
        options.directory = directory;
        return options;
    }

    QString socketPath() const { return m_directory.filePath(u"control.sock"_s); }

    void take(QWidget &window, const QString &name)
    {
        pause(kSettleMs);
        window.grab().save(m_prefix + name + u".png"_s);
    }

    void takePages(MainWindow &window)
    {
        take(window, u"vpn"_s);
        if (auto *search = window.findChild<QLineEdit *>(u"VantuVPNSearch"_s)) {
            search->setFocus();
            QMetaObject::invokeMethod(search, "textEdited", Q_ARG(QString, QString()));
            take(window, u"vpn-quick-entry"_s);
            search->setText(u"tok"_s);
            QMetaObject::invokeMethod(search, "textEdited", Q_ARG(QString, u"tok"_s));
            take(window, u"vpn-search"_s);
            search->clear();
        }
        window.showPage(static_cast<int>(Page::Locations));
        take(window, u"locations"_s);
        if (auto *tabs = window.findChild<QTabBar *>(u"VantuLocationsTabs"_s)) {
            tabs->setCurrentIndex(tabs->count() - 1);
        }
        if (auto *tree = window.findChild<QTreeView *>(u"VantuLocationsTree"_s)) {
            tree->expandAll();
            take(window, u"locations-expanded"_s);
        }
        if (auto *search = window.findChild<QLineEdit *>(u"VantuLocationsSearch"_s)) {
            search->setText(u"lon"_s);
            take(window, u"locations-search"_s);
            search->setText(u"nowhere"_s);
            take(window, u"locations-nothing"_s);
            search->clear();
        }
        window.showPage(static_cast<int>(Page::Account));
        take(window, u"account"_s);
        window.showPage(static_cast<int>(Page::Vpn));
        window.showNotice(u"Could not connect to this location"_s, MainWindow::NoticeKind::Error,
                          0);
        take(window, u"vpn-notice"_s);
    }

    QString m_prefix;
    QTemporaryDir m_directory;
    SimDaemon m_daemon;
    SimServer m_server;
};

} // namespace

int main(int argc, char **argv)
{
    const QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", home.path().toLocal8Bit());
    QApplication::setStyle(u"Fusion"_s);
    const QApplication application(argc, argv);
    QGuiApplication::setQuitOnLastWindowClosed(false);

    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addOptions({{u"out"_s, u"Folder for the pictures."_s, u"folder"_s, u"shots"_s},
                       {u"appearance"_s, u"light or dark."_s, u"look"_s, u"light"_s},
                       {u"rtl"_s, u"Mirrored, as for Arabic."_s}});
    parser.process(application);
    GuiPreferences().setAppearance(parser.value(u"appearance"_s));
    if (parser.isSet(u"rtl"_s)) {
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    }

    const QString folder = parser.value(u"out"_s);
    QDir().mkpath(folder);
    bool ok = Photographer(u"normal"_s, folder + u"/normal-"_s).run(true);
    ok = Photographer(u"signed-out"_s, folder + u"/signed-out-"_s).run(false) && ok;
    ok = Photographer(u"stale-catalogue"_s, folder + u"/stale-"_s).run(false) && ok;
    ok = Photographer(u"empty-catalogue"_s, folder + u"/empty-"_s).run(false) && ok;
    ok = Photographer(u"hostile-names"_s, folder + u"/hostile-"_s).run(false) && ok;
    return ok ? 0 : 1;
}
