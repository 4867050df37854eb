#include "GuiAutostart.h"
#include "GuiPreferences.h"
#include "Language.h"
#include "RecentActivityStore.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>

#include <sys/resource.h>

#include <csignal>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

QList<RecentNode> nodesOf(const QStringList &ids)
{
    QList<RecentNode> nodes;
    for (const QString &id : ids) {
        nodes.append({id, u"label of "_s + id.trimmed(), u"jp"_s});
    }
    return nodes;
}

void writeFile(const QString &path, const QByteArray &content)
{
    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), content.size());
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The first word of an Exec line, as a desktop reads it.
QString firstExecWord(const QString &line)
{
    QString word;
    for (qsizetype i = 1; i < line.size() && line.at(i) != u'"'; ++i) {
        const bool isEscape = line.at(i) == u'\\' || line.at(i) == u'%';
        word += line.at(isEscape ? ++i : i);
    }
    return word;
}

} // namespace

/// What the client keeps on disk, and the languages that it knows.
class TestPreferences final : public QObject
{
    Q_OBJECT

public:
    static void initMain()
    {
        // Before the application, because the system's locale is read once.
        qputenv("LC_ALL", "C.UTF-8");
        qputenv("LANGUAGE", "xx:pt_PT:de");
    }

private Q_SLOTS:
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        QVERIFY(m_dir->isValid());
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_dir->path());
    }

    void survivesRestart()
    {
        const UpdateBookkeeping update{1700000000, 1700000001, 1700000002, 26101702, true};
        const QList<RecentNode> nodes{{u"7"_s, u"Tokyo, \"1\" ü"_s, u"jp"_s}, {u"8"_s, {}, {}}};
        GuiPreferences written;
        QVERIFY(written.showOnLaunch() && written.setShowOnLaunch(false));
        QVERIFY(!written.launchAtLogin() && written.setLaunchAtLogin(true));
        QVERIFY(written.setLastEffectiveLanguage(u" zh_tw "_s));
        QVERIFY(written.setRecentSearches({u"one, two"_s}) && written.setRecentNodes(nodes));
        QVERIFY(written.setUpdateBookkeeping(u" 10.4.0 "_s, update));
        // Under another path nothing of the file can come from a cache.
        const QString copy = m_dir->filePath(u"copy/VantuVPN/Vantu.ini"_s);
        writeFile(copy, contentOf(iniPath()));
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_dir->filePath(u"copy"_s));

        GuiPreferences read;
        QVERIFY(!read.showOnLaunch() && read.launchAtLogin());
        QCOMPARE(read.lastEffectiveLanguage(), u"zh-Hant"_s);
        QCOMPARE(read.recentSearches(), QStringList{u"one, two"_s});
        QCOMPARE(read.recentNodes(), nodes);
        QCOMPARE(read.updateBookkeeping(u"10.4.0"_s), update);
        QCOMPARE(read.updateBookkeeping(u"10.4.1"_s), UpdateBookkeeping());
        QVERIFY(GuiPreferences().setLastEffectiveLanguage(u" "_s));
        QCOMPARE(read.lastEffectiveLanguage(), QString());
        QVERIFY(!contentOf(copy).contains("lastEffective"));
    }

    void limits()
    {
        GuiPreferences preferences;
        QStringList searches{u"a"_s, u" a "_s, {}, u"A"_s};
        searches.resize(30, u"A"_s);
        searches += {u"30"_s, u"31"_s, u"beyond"_s};
        QVERIFY(preferences.setRecentSearches(searches));
        QCOMPARE(preferences.recentSearches(), u"a A 30 31"_s.split(u' '));
        QVERIFY(preferences.setRecentSearches(u"a b c d e f g h i j"_s.split(u' ')));
        QCOMPARE(preferences.recentSearches().size(), 8);
        QVERIFY(preferences.setRecentNodes(nodesOf(u"1, , 2 ,1 ,3,4,5,6"_s.split(u','))));
        QCOMPARE(preferences.recentNodes(), nodesOf(u"1 2 3 4 5"_s.split(u' ')));
        QVERIFY(preferences.setRecentNodes(nodesOf({u"9"_s})));
        QVERIFY(!contentOf(iniPath()).contains("recentNodes\\2"));

        QVERIFY(preferences.setAppearance(u"blue"_s));
        QCOMPARE(preferences.appearance(), u"system"_s);
    }

    void damagedAndForeignValues()
    {
        writeFile(iniPath(),
                  "[General]\nappearance=\" Dark \"\n"
                  "[window]\nno value on this line\nshowOnLaunch=perhaps\nlaunchAtLogin=17\n"
                  "[language]\nlastEffective=klingon\n"
                  "[vpn]\nrecentNodes\\size=many\nrecentNodesCleared=@Invalid()\n"
                  "recentSearches=x, , y\n"
                  "[update]\ncurrentVersion=1\nlastAttemptAt=soon\n"
                  "lastNotifiedAt=5\nforceUpgrade=true, true\n");
        const QByteArray damaged = contentOf(iniPath());
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"file is damaged, a copy"_s));
        GuiPreferences preferences;
        QCOMPARE(contentOf(iniPath() + u".damaged"_s), damaged);
        QCOMPARE(preferences.appearance(), u"dark"_s);
        QVERIFY(preferences.showOnLaunch() && !preferences.launchAtLogin());
        QCOMPARE(preferences.lastEffectiveLanguage(), QString());
        QVERIFY(preferences.recentNodes().isEmpty() && !preferences.recentNodesCleared());
        QCOMPARE(preferences.recentSearches(), QStringList({u"x"_s, u"y"_s}));
        QCOMPARE(preferences.updateBookkeeping(u"1"_s), UpdateBookkeeping({.lastNotifiedAt = 5}));
        QVERIFY(preferences.setLaunchAtLogin(true));
        QVERIFY(contentOf(iniPath()).contains("recentSearches=x, , y"));
    }

    void unwritableFile()
    {
        GuiPreferences preferences;
        const QList<RecentNode> nodes = nodesOf({u"1"_s});
        QVERIFY(preferences.setRecentNodes(nodes));
        const QString folder = QFileInfo(iniPath()).path();
        QVERIFY(QDir().rename(folder, folder + u".away"_s));
        writeFile(folder, "in the way");

        const QRegularExpression warning(u"^GuiPreferences: failed to persist settings, status "_s);
        QTest::ignoreMessage(QtWarningMsg, warning);
        QVERIFY(!preferences.setShowOnLaunch(false));
        QVERIFY(!preferences.showOnLaunch());
        QTest::ignoreMessage(QtWarningMsg, warning);
        QTest::ignoreMessage(QtWarningMsg, warning);
        QVERIFY(!preferences.clearRecentNodes());
        QCOMPARE(preferences.recentNodes(), nodes);
        QVERIFY(!preferences.recentNodesCleared());

        // An error of the past must not fail later writes, nor lose what was set.
        QVERIFY(QFile::remove(folder) && QDir().rename(folder + u".away"_s, folder));
        QVERIFY(preferences.setLaunchAtLogin(true));
        QVERIFY(contentOf(iniPath()).contains("showOnLaunch=false"));
    }

    void fullDisk()
    {
        GuiPreferences preferences;
        QVERIFY(preferences.setLaunchAtLogin(true));
        const QByteArray whole = contentOf(iniPath());
        const QString tooLong(1000, u'x');
        const GuiAutostart autostart(m_dir->path(), u'/' + tooLong);
        // No file grows beyond some bytes from here on.
        std::signal(SIGXFSZ, SIG_IGN);
        rlimit usual{};
        ::getrlimit(RLIMIT_FSIZE, &usual);
        const auto restore = qScopeGuard([&usual] { ::setrlimit(RLIMIT_FSIZE, &usual); });
        const rlimit full{500, usual.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &full);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"failed to persist settings"_s));
        QVERIFY(!preferences.setRecentSearches({tooLong}));
        QCOMPARE(contentOf(iniPath()), whole);
        QVERIFY(!autostart.reconcile(true, nullptr) && !QFile::exists(autostart.entryPath()));
    }

    void recentActivity()
    {
        GuiPreferences preferences;
        RecentActivityStore store(preferences);
        for (const QString &search : {u"a"_s, u"b"_s, u" a"_s, u" "_s}) {
            QVERIFY(store.addSearch(search));
        }
        QCOMPARE(store.searches(), QStringList({u"a"_s, u"b"_s}));
        QVERIFY(store.clearSearches() && store.searches().isEmpty());

        for (const RecentNode &node : nodesOf(u"1 2 3 4 5 6 3"_s.split(u' '))) {
            QVERIFY(store.addNode(node));
        }
        QCOMPARE(store.nodes(), nodesOf(u"3 6 5 4 2"_s.split(u' ')));
        QVERIFY(store.clearNodes() && store.nodes().isEmpty());
        QVERIFY(store.addNode({}) && store.nodesCleared());
        QVERIFY(store.addNode(nodesOf({u"7"_s}).constFirst()) && !store.nodesCleared());
    }

    void autostartEntry()
    {
        const GuiAutostart autostart(m_dir->filePath(u"x/../conf"_s), u" /opt/bin/vantu "_s);
        const QString path = m_dir->filePath(u"conf/autostart/com.vantuvpn.vantu.desktop"_s);
        QCOMPARE(autostart.entryPath(), path);
        QVERIFY(autostart.reconcile(false, nullptr) && autostart.reconcile(true, nullptr));
        QVERIFY(contentOf(path).contains("\nTryExec=/opt/bin/vantu\n"));
        QCOMPARE(QFile::permissions(path) & ~(QFile::ReadUser | QFile::WriteUser),
                 QFile::ReadOwner | QFile::WriteOwner);
        QVERIFY(autostart.reconcile(false, nullptr) && !QFile::exists(path));

        for (const QString &program :
             {u"/q\"uote/$HOME/`id`"_s, u"/back\\slash\\"_s, u"/50%2/%1 %f"_s, u"/a größe"_s}) {
            const GuiAutostart odd(m_dir->path(), program);
            QVERIFY(odd.reconcile(true, nullptr));
            const QStringList lines = QString::fromUtf8(contentOf(odd.entryPath())).split(u'\n');
            QVERIFY(lines.at(4).endsWith("\" --vantu-autostart"_L1));
            QCOMPARE(firstExecWord(lines.at(4).mid(5)), program);
            QCOMPARE(lines.at(5), u"TryExec="_s + program);
        }
    }

    void autostartFailures()
    {
        QString error;
        for (const QString &program : {u"bin/vantu"_s, u" "_s, u"/bin/vantu\nHidden=true"_s}) {
            QVERIFY(!GuiAutostart(m_dir->path(), program).reconcile(true, &error));
            QCOMPARE(error, u"Could not resolve the Vantu executable for login startup."_s);
        }
        writeFile(m_dir->filePath(u"file"_s), {});
        error.clear(); // In a Flatpak.
        const GuiAutostart confined(m_dir->path(), u"/app/vantu"_s, m_dir->filePath(u"file"_s));
        QVERIFY(!confined.reconcile(true, &error) && !QFile::exists(confined.entryPath()));
        QCOMPARE(error, u"Could not resolve the Vantu executable for login startup."_s);
        QVERIFY(confined.reconcile(false, &error));
        QVERIFY(!GuiAutostart(m_dir->filePath(u"file"_s)).reconcile(true, &error));
        QCOMPARE(error, u"Could not prepare the login startup directory."_s);

        const GuiAutostart blocked(m_dir->path());
        QVERIFY(QDir().mkpath(blocked.entryPath()));
        QVERIFY(!blocked.reconcile(true, &error));
        QCOMPARE(error, u"Could not update Vantu login startup."_s);
        QVERIFY(!blocked.reconcile(false, &error));
        QCOMPARE(error, u"Could not remove Vantu from login startup."_s);
    }

    void resolve_data()
    {
        QTest::addColumn<QString>("resolved");
        QTest::addColumn<bool>("rightToLeft");
        const auto row = [](const char *code, const QString &resolved, bool rightToLeft = false) {
            QTest::newRow(code) << resolved << rightToLeft;
        };
        row("ZH_hans_cn", u"zh-Hans"_s);
        row("zh-TW", u"zh-Hant"_s);
        row("zh-Hant-HK", u"zh-Hant"_s);
        row("en_US.UTF-8", u"en"_s);
        row("pt-MZ", u"pt"_s);
        row("-_fil--PH_", u"fil"_s);
        row("fr ca", {});
        row("xx", {});
        row(" AR_sa ", u"ar-SA"_s, true);
        row("ur-PK", {}, true);
    }

    void resolve()
    {
        QFETCH(QString, resolved);
        const QString code = QString::fromUtf8(QTest::currentDataTag());
        QCOMPARE(language::resolve(code), resolved);
        QCOMPARE(language::normalise(code), resolved.isEmpty() ? u"en-US"_s : resolved);
        QTEST(language::layoutDirection(code) == Qt::RightToLeft, "rightToLeft");
    }

    void knownCodes()
    {
        QCOMPARE(language::systemCode(), u"pt-PT"_s);
        const QStringList codes = language::supportedCodes();
        QCOMPARE(codes.size(), 85);
        for (const QString &code : codes) {
            QCOMPARE(language::resolve(code.toUpper()), code);
        }
    }

private:
    QString iniPath() const { return m_dir->filePath(u"VantuVPN/Vantu.ini"_s); }

    std::unique_ptr<QTemporaryDir> m_dir;
};

QTEST_GUILESS_MAIN(TestPreferences)
#include "tst_preferences.moc"
