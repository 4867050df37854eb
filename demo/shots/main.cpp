// vantu-shots: pictures of every page and popup of the client, taken without a display
// from the simulated daemon. One run makes one look; `./dev shots` makes them all.

#include "AppState.h"
#include "GuiPreferences.h"
#include "Language.h"
#include "MainWindow.h"
#include "ModeRequests.h"
#include "RuntimeFacts.h"
#include "SimDaemon.h"
#include "SimServer.h"
#include "Startup.h"
#include "TranslationManager.h"
#include "VantuAppShell.h"
#include "WindowController.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
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
            m_complete = false;
        }
    }

    enum class Tour { Pages, ConnectedPages, Dialogs };

    /// Takes all pictures that can be taken; false when any is missing, after saying which.
    bool run(Tour tour)
    {
        if (!m_complete) {
            return false; // There is no daemon.
        }
        VantuAppShell shell(socketPath());
        // Whatever language the daemon speaks, the pictures are of the loaded one.
        shell.setLanguageRestartAllowed(false);
        shell.start();
        MainWindow *window = findWindow();
        if (!window ||
            !waitFor([&shell] { return !shell.state().runtime().authState.isEmpty(); })) {
            return miss(u"the window"_s);
        }
        if (tour == Tour::ConnectedPages) {
            shell.connectRuntime();
            pause(kSettleMs);
            take(*window, u"vpn-connecting"_s);
            if (!waitFor(
                    [&shell] { return shell.state().runtime().tunnelState == "connected"_L1; })) {
                return miss(u"the connection"_s);
            }
        }
        if (tour == Tour::Dialogs) {
            takeDialogs(shell, *window);
        } else {
            takePages(*window);
        }
        shell.quit();
        return m_complete;
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
        if (!window.grab().save(m_prefix + name + u".png"_s)) {
            miss(name);
        }
    }

    /// Something that pictures need and that isn't there; returns false.
    bool miss(const QString &what)
    {
        std::fprintf(stderr, "%s: %s is missing\n", qUtf8Printable(m_prefix), qUtf8Printable(what));
        m_complete = false;
        return false;
    }

    template<typename Widget>
    Widget *find(const MainWindow &window, const QString &name)
    {
        auto *widget = window.findChild<Widget *>(name);
        if (!widget) {
            miss(name);
        }
        return widget;
    }

    void takePages(MainWindow &window)
    {
        take(window, u"vpn"_s);
        if (auto *search = find<QLineEdit>(window, u"VantuVPNSearch"_s)) {
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
        if (auto *tabs = find<QTabBar>(window, u"VantuLocationsTabs"_s)) {
            tabs->setCurrentIndex(tabs->count() - 1);
        }
        if (auto *tree = find<QTreeView>(window, u"VantuLocationsTree"_s)) {
            tree->expandAll();
            take(window, u"locations-expanded"_s);
        }
        if (auto *search = find<QLineEdit>(window, u"VantuLocationsSearch"_s)) {
            search->setText(u"lon"_s);
            take(window, u"locations-search"_s);
            search->setText(u"nowhere"_s);
            take(window, u"locations-nothing"_s);
            search->clear();
        }
        window.showPage(static_cast<int>(Page::Mode));
        take(window, u"mode"_s);
        window.showPage(static_cast<int>(Page::Settings));
        take(window, u"settings"_s);
        if (auto *content = find<QWidget>(window, u"VantuSettingsScrollContent"_s)) {
            take(*content, u"settings-whole"_s);
        }
        window.showPage(static_cast<int>(Page::Account));
        take(window, u"account"_s);
        window.showPage(static_cast<int>(Page::Vpn));
        window.showNotice(u"Could not connect to this location"_s, MainWindow::NoticeKind::Error,
                          0);
        take(window, u"vpn-notice"_s);
    }

    /// The dialog that the button opens; null, after saying so, when none comes.
    QWidget *openDialog(MainWindow &window, Page page, const QString &button)
    {
        window.showPage(static_cast<int>(page));
        auto *opener = find<QAbstractButton>(window, button);
        if (!opener || !waitFor([opener] { return opener->isVisible() && opener->isEnabled(); })) {
            miss(button);
            return nullptr;
        }
        opener->click();
        if (!waitFor([] { return QApplication::activeModalWidget() != nullptr; })) {
            miss(button);
        }
        return QApplication::activeModalWidget();
    }

    void takeDialog(MainWindow &window, Page page, const QString &button, const QString &name)
    {
        if (QWidget *dialog = openDialog(window, page, button)) {
            take(*dialog, name);
            dialog->close();
        }
    }

    /// The editor of rules, and what it asks when it is left with a change in it.
    void takeRules(MainWindow &window)
    {
        QWidget *editor = openDialog(window, Page::Mode, u"VantuModeVantuCustomRulesEdit"_s);
        auto *text =
            editor ? editor->findChild<QPlainTextEdit *>(u"VantuSplitRulesEditorText"_s) : nullptr;
        if (!text || !waitFor([text] { return !text->isReadOnly(); })) {
            miss(u"rules"_s);
            return;
        }
        take(*editor, u"rules"_s);
        text->insertPlainText(u"domain:a.example\n"_s);
        editor->close();
        QWidget *question = QApplication::activeModalWidget();
        auto *discard = question
                            ? question->findChild<QAbstractButton *>(u"VantuConfirmDialogAccept"_s)
                            : nullptr;
        if (!discard) {
            miss(u"rules-discard"_s);
            return;
        }
        take(*question, u"rules-discard"_s);
        discard->click();
    }

    /// What is asked about the kill switch, each where it comes up.
    void takeKillSwitchQuestions(VantuAppShell &shell, MainWindow &window)
    {
        const auto turn = [this, &shell](bool on) {
            shell.setSettingsKillSwitchEnabled(on);
            const auto turned = [&shell, on] {
                return facts::isKillSwitchOn(facts::effectiveKillSwitch(shell.state())) == on;
            };
            if (!waitFor(turned)) {
                miss(u"the kill switch"_s);
            }
        };
        takeDialog(window, Page::Settings, u"VantuSettingsKillSwitchLockdown"_s, u"lockdown"_s);
        turn(true);
        takeDialog(window, Page::Settings, u"VantuSettingsKillSwitchOff"_s, u"kill-switch-off"_s);
        takeDialog(window, Page::Mode, u"VantuModeVantuProxy"_s, u"proxy-refused"_s);
        turn(false);
        shell.setModePreference(moderequest::proxyGlobal());
        if (!waitFor([&shell] { return facts::isProxyMode(shell.state().runtime().mode); })) {
            miss(u"the proxy mode"_s);
        }
        takeDialog(window, Page::Settings, u"VantuSettingsKillSwitchOn"_s,
                   u"kill-switch-refused"_s);
    }

    void takeDialogs(VantuAppShell &shell, MainWindow &window)
    {
        shell.setModePreference(moderequest::vantuVPNSplit(shell.state().runtime().mode));
        if (!waitFor([&shell] { return facts::isSplit(shell.state().runtime().mode); })) {
            miss(u"the split mode"_s);
        }
        window.showPage(static_cast<int>(Page::Mode));
        take(window, u"mode-split"_s);
        takeRules(window);
        takeDialog(window, Page::Mode, u"VantuModeVantuRegions"_s, u"regions"_s);
        takeDialog(window, Page::Settings, u"VantuSettingsLanguage"_s, u"language"_s);
        takeKillSwitchQuestions(shell, window);
        shell.checkSettingsUpdate();
        QWidget *dialog = nullptr;
        const auto updateDialog = [&dialog] {
            const QWidgetList widgets = QApplication::topLevelWidgets();
            for (QWidget *widget : widgets) {
                if (widget->objectName() == "VantuUpdateDialog"_L1 && widget->isVisible()) {
                    dialog = widget;
                }
            }
            return dialog != nullptr;
        };
        if (!waitFor(updateDialog)) {
            miss(u"update"_s);
            return;
        }
        take(*dialog, u"update"_s);
        shell.startGUIUpdateDownload();
        const auto downloads = [&dialog] {
            const auto *bar = dialog->findChild<QProgressBar *>();
            return bar && bar->value() > 0;
        };
        if (!waitFor(downloads)) {
            miss(u"the download"_s);
        }
        take(*dialog, u"update-download"_s);
    }

    QString m_prefix;
    bool m_complete = true;
    QTemporaryDir m_directory;
    SimDaemon m_daemon;
    SimServer m_server;
};

} // namespace

int main(int argc, char **argv)
{
    const QTemporaryDir home;
    if (!home.isValid()) {
        std::fprintf(stderr, "Could not make a temporary folder\n");
        return 1; // Lest the user's own preferences be changed.
    }
    qputenv("XDG_CONFIG_HOME", home.path().toLocal8Bit());
    QApplication::setStyle(u"Fusion"_s);
    const QApplication application(argc, argv);
    setProgramIdentity();

    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addOptions({{u"out"_s, u"Folder for the pictures."_s, u"folder"_s, u"shots"_s},
                       {u"appearance"_s, u"light or dark."_s, u"look"_s, u"light"_s},
                       {u"language"_s, u"Language of the texts."_s, u"code"_s, u"en-US"_s},
                       {u"rtl"_s, u"Mirrored, as for Arabic."_s}});
    parser.process(application);
    GuiPreferences().setAppearance(parser.value(u"appearance"_s));
    TranslationManager translations;
    if (!translations.load(parser.value(u"language"_s))) {
        std::fprintf(stderr, "No such language\n");
        return 1;
    }
    QGuiApplication::setLayoutDirection(language::layoutDirection(translations.currentCode()));
    if (parser.isSet(u"rtl"_s)) {
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    }

    const QString folder = parser.value(u"out"_s);
    if (!QDir().mkpath(folder)) {
        std::fprintf(stderr, "Could not make the folder for the pictures\n");
        return 1;
    }
    using Tour = Photographer::Tour;
    bool ok = Photographer(u"normal"_s, folder + u"/normal-"_s).run(Tour::ConnectedPages);
    for (const auto *scenario :
         {"signed-out", "stale-catalogue", "empty-catalogue", "hostile-names", "proxy-mode"}) {
        const QString name = QString::fromLatin1(scenario);
        ok = Photographer(name, folder + u'/' + name + u'-').run(Tour::Pages) && ok;
    }
    for (const auto *scenario : {"update", "forced-update"}) {
        const QString name = QString::fromLatin1(scenario);
        ok = Photographer(name, folder + u'/' + name + u'-').run(Tour::Dialogs) && ok;
    }
    return ok ? 0 : 1;
}
