#include "UpdateDialog.h"

#include "DesktopColorScheme.h"
#include "Theme.h"
#include "UpdateLink.h"

#include <QLabel>
#include <QLayout>
#include <QLocale>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QWindow>

#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

using State = GUIUpdateDownloadInfo::State;

namespace {

constexpr qint64 kMegabyte = 1048576;

GUIUpdateDownloadInfo download(State state, qint64 done = 0, qint64 total = 0,
                               const QString &error = {})
{
    return {state, {}, {}, 0, done, total, {}, {}, {}, error, {}, {}};
}

} // namespace

class TestUpdateDialog final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void release();
    void downloads_data();
    void downloads();
    void notesAndWaiting();
    void gate();
    void keepsItsShape();
    void links();

private:
    template<typename Widget>
    Widget *find(const char *name) const
    {
        return m_dialog->findChild<Widget *>(u"VantuUpdate"_s + QLatin1StringView(name));
    }
    /// "tone:text" of the status line.
    QString status() const
    {
        const auto *label = find<QLabel>("Status");
        return label->isVisible() ? label->property("vantuRole").toString() + u':' + label->text()
                                  : QString();
    }
    void show(bool forced)
    {
        m_update.isForceUpgrade = forced;
        m_dialog->setUpdate(m_update);
        m_dialog->show();
    }

    DesktopColorScheme m_desktop;
    Theme m_theme{m_desktop, u"light"_s};
    UpdateInfo m_update;
    std::unique_ptr<UpdateDialog> m_dialog;
};

void TestUpdateDialog::init()
{
    QLocale::setDefault(QLocale::c());
    m_update = {};
    m_dialog = std::make_unique<UpdateDialog>(m_theme);
}

void TestUpdateDialog::release()
{
    const auto *version = find<QLabel>("Version");
    const auto *changes = find<QPlainTextEdit>("Changelog");
    m_update.currentVersion = u"%2"_s;
    m_update.versionCode = u"11"_s;
    m_update.changeLog = QStringList{u"<b>a</b>\nb"_s, u" "_s, u"c"_s};
    show(false);
    QCOMPARE(version->text(), u"Current version: %2\nAvailable version: 11"_s);
    QCOMPARE(changes->toPlainText(), u"• <b>a</b> b\n• c"_s);
}

void TestUpdateDialog::downloads_data()
{
    QTest::addColumn<GUIUpdateDownloadInfo>("info");
    QTest::addColumn<QString>("status");
    QTest::addColumn<QString>("bar"); // value/maximum
    QTest::addColumn<QString>("primary");
    const auto row = [](const char *name, const GUIUpdateDownloadInfo &info, const char *status,
                        const char *bar, const char *primary) {
        QTest::newRow(name) << info << QString::fromLatin1(status) << QString::fromLatin1(bar)
                            << QString::fromLatin1(primary);
    };
    const char *offer = "Download Update/Download and install the Vantu update";
    const char *cancel = "Cancel Download/Cancel the update download";
    const char *retry = "Retry Download/Retry the update download";
    using enum GUIUpdateDownloadInfo::State;
    row("unread", {}, "error:Could not read the update download status.", "", offer);
    row("idle", download(Idle), "", "", offer);
    row("a quarter", download(Downloading, 5 * kMegabyte, 20 * kMegabyte),
        "muted:Downloading 5.0 MB of 20.0 MB", "250/1000", cancel);
    row("less than nothing", download(Downloading, -7, kMegabyte),
        "muted:Downloading 0.0 MB of 1.0 MB", "0/1000", cancel);
    row("too much", download(Downloading, 3 * kMegabyte, 2 * kMegabyte),
        "muted:Downloading 3.0 MB of 2.0 MB", "1000/1000", cancel);
    row("no size", download(Downloading, 5), "muted:Downloading update...", "0/0", cancel);
    row("canceling", download(Canceling), "muted:Canceling the download...", "0/0",
        "-Canceling.../Canceling the update download");
    row("ready", download(Ready), "muted:Download complete. Opening the installer...", "1000/1000",
        "-Opening Installer.../Opening the Vantu update installer");
    row("failed", download(Failed, 0, 0, u" "_s), "error:Could not download the update.", "",
        retry);
    row("told why", download(Failed, 0, 0, u"No\nroom"_s), "error:No room", "", retry);
    row("canceled", download(Canceled), "muted:Download canceled.", "", retry);
}

void TestUpdateDialog::downloads()
{
    QFETCH(const GUIUpdateDownloadInfo, info);
    for (const bool forced : {false, true}) {
        show(forced);
        m_dialog->setDownload(info);
        QTEST(status(), "status");
        const auto *bar = find<QProgressBar>("Progress");
        const auto shown = u"%1/%2"_s.arg(bar->value()).arg(bar->maximum());
        QTEST(bar->isVisible() ? shown : QString(), "bar");
        auto *button = find<QPushButton>("Download");
        const bool enabled = button->isEnabled();
        const QString words = button->text() + u'/' + button->accessibleName();
        QTEST(enabled ? words : u'-' + words, "primary");
        QCOMPARE(button->toolTip().isEmpty(), enabled);

        const bool active = words.startsWith(u"Cancel "_s);
        auto *secondary = find<QPushButton>("Secondary");
        const QString hide = active ? u"Download in Background"_s : u"Not Now"_s;
        QCOMPARE(secondary->text(), forced ? u"Exit Vantu"_s : hide);
        QCOMPARE(secondary->accessibleDescription() == "Exit Vantu without updating"_L1, forced);
        QCOMPARE(find<QLabel>("Title")->text() == "A required update is available"_L1, forced);
        const QSignalSpy exit(m_dialog.get(), &UpdateDialog::exitRequested);
        const QSignalSpy start(m_dialog.get(), &UpdateDialog::downloadRequested);
        const QSignalSpy cancel(m_dialog.get(), &UpdateDialog::cancelDownloadRequested);
        QTest::keyClick(m_dialog.get(), Qt::Key_Return);
        QCOMPARE(start.size(), enabled && !active ? 1 : 0);
        QCOMPARE(cancel.size(), active ? 1 : 0);
        secondary->click();
        QCOMPARE(exit.size(), forced ? 1 : 0);
        QCOMPARE(m_dialog->isVisible(), forced);
    }
}

void TestUpdateDialog::notesAndWaiting()
{
    show(true);
    m_dialog->setDownload(download(State::Failed));
    m_dialog->setWaiting(true);
    const QSignalSpy exit(m_dialog.get(), &UpdateDialog::exitRequested);
    QTest::keyClick(m_dialog.get(), Qt::Key_Return);
    QVERIFY2(exit.isEmpty(), "the keyboard went on to leaving");
    QVERIFY(!find<QPushButton>("Download")->isEnabled());
    m_dialog->setWaiting(false);
    QVERIFY(find<QPushButton>("Download")->isEnabled());
    m_dialog->setNote(u"Could not <open>\nit."_s, UpdateDialog::Tone::Error);
    QCOMPARE(status(), u"error:Could not <open> it."_s);
    m_dialog->setDownload(download(State::Verifying));
    QCOMPARE(status(), u"muted:Verifying the download..."_s);
    m_dialog->setRemark(u"Opened."_s, UpdateDialog::Tone::Muted);
    m_dialog->setDownload(download(State::Verifying)); // Comes twice a second.
    QCOMPARE(status(), u"muted:Opened."_s);
    m_dialog->setDownload(download(State::Ready));
    QVERIFY(status() != u"muted:Opened."_s);
}

void TestUpdateDialog::gate()
{
    show(false);
    QTest::keyClick(m_dialog.get(), Qt::Key_Escape);
    QVERIFY(!m_dialog->isVisible());
    m_dialog->show();
    show(true); // It becomes one while it is seen.
    QCOMPARE(m_dialog->windowHandle()->modality(), Qt::ApplicationModal);
    QTest::keyClick(m_dialog.get(), Qt::Key_Escape);
    QVERIFY(!m_dialog->close());
    QVERIFY(m_dialog->isVisible());
    m_update.isForceUpgrade = false;
    m_dialog->setUpdate(m_update);
    QVERIFY(!m_dialog->isVisible() && !m_dialog->isModal());
    show(true);
    m_dialog->setExitAllowed(true);
    QVERIFY(m_dialog->close());
}

/// Nothing moves under the mouse as a download goes on.
void TestUpdateDialog::keepsItsShape()
{
    show(false);
    const auto shape = [this] {
        m_dialog->layout()->activate();
        return std::pair(m_dialog->size(), find<QPushButton>("Download")->geometry());
    };
    const auto before = shape();
    for (int state = 0; state <= static_cast<int>(State::Canceled); ++state) {
        m_dialog->setDownload(download(static_cast<State>(state), 1, 2, u"word "_s.repeated(40)));
        QCOMPARE(shape(), before);
    }
}

void TestUpdateDialog::links()
{
    const auto link = [this](const QString &architecture = u"arm64"_s) {
        return updatelink::downloadLink(m_update, architecture).toString();
    };
    QCOMPARE(link(), QString());
    m_update.universalDownloadLink = u" https://u/ "_s;
    m_update.arm64DownloadLink = u"https://arm/"_s;
    m_update.amd64DownloadLink = u"https://amd/"_s;
    m_update.artifactURL = u"https:///nowhere"_s;
    QCOMPARE(link(u"riscv64"_s), u"https://u/"_s);
    QCOMPARE(link(u"x86_64"_s), u"https://amd/"_s);
    QCOMPARE(link(), u"https://arm/"_s);
    m_update.recommended = u"http://insecure/"_s;
    m_update.artifactURL = u"https://file/"_s;
    QCOMPARE(link(), u"https://file/"_s);
    m_update.recommended = u"https://r/"_s;
    QCOMPARE(link(), u"https://r/"_s);
}

QTEST_MAIN(TestUpdateDialog)
#include "tst_update_dialog.moc"
