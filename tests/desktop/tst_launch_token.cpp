#include "LaunchToken.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>
#include <sys/time.h>
#include <unistd.h>

#include <ctime>

using namespace Qt::StringLiterals;
using Spoil = void (*)(const QByteArray &path);
Q_DECLARE_METATYPE(Spoil)

class TestLaunchToken final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void parts_data();
    void parts();
    void leftOnceAndTakenOnce();
    void strangersFile_data();
    void strangersFile();
    void folder();

private:
    QTemporaryDir m_directory;
    const QString m_path = m_directory.filePath(u"name.token"_s);
};

void TestLaunchToken::parts_data()
{
    QTest::addColumn<QByteArray>("part");
    QTest::addColumn<bool>("usable");
    QTest::newRow("plain") << QByteArray("host/a b-1_TIME99~") << true;
    QTest::newRow("longest") << QByteArray(256, 'x') << true;
    QTest::newRow("too long") << QByteArray(257, 'x') << false;
    QTest::newRow("line end") << QByteArray("a\nb") << false;
    QTest::newRow("null") << QByteArray("a\0b", 3) << false;
    QTest::newRow("not ASCII") << QByteArray("\xc3\xa4") << false;
    QTest::newRow("empty") << QByteArray() << true;
}

void TestLaunchToken::parts()
{
    QFETCH(QByteArray, part);
    QFETCH(bool, usable);
    const QByteArray kept = usable ? part : QByteArray();
    QCOMPARE(LaunchToken(part, "s").activation(), kept);
    QCOMPARE(LaunchToken("t", part).startupId(), kept);
    qputenv("DESKTOP_STARTUP_ID", "s");
    qputenv("XDG_ACTIVATION_TOKEN", kept);
    QCOMPARE(LaunchToken::fromEnvironment().startupId(), "s");
    // Older launchers put the one token of a Wayland desktop into the other's place.
    QCOMPARE(LaunchToken::fromEnvironment().activation(), kept.isEmpty() ? "s" : kept);
    LaunchToken::forgetOwn();
    QCOMPARE(LaunchToken::fromEnvironment().activation(), "s");
}

void TestLaunchToken::leftOnceAndTakenOnce()
{
    QVERIFY(LaunchToken().leave(m_path) && !QFile::exists(m_path));
    // The later launch counts, and whatever lay there before is replaced.
    QVERIFY(QFile::link(u"/nowhere"_s, m_path));
    QVERIFY(LaunchToken("old", {}).leave(m_path));
    const QByteArray longest(256, 'x');
    QVERIFY(LaunchToken(longest, longest).leave(m_path));
    struct stat status = {};
    QCOMPARE(::lstat(QFile::encodeName(m_path).constData(), &status), 0);
    QCOMPARE(status.st_mode, mode_t{S_IFREG | S_IRUSR | S_IWUSR});
    QCOMPARE(QDir(m_directory.path()).entryList(QDir::Files).size(), 1);
    const LaunchToken token = LaunchToken::take(m_path);
    QCOMPARE(token.activation(), longest);
    QCOMPARE(token.startupId(), longest);
    QVERIFY(!QFile::exists(m_path) && LaunchToken::take(m_path).isEmpty());
    QVERIFY(!LaunchToken("t", {}).leave(u"/nowhere/name"_s));
}

void TestLaunchToken::strangersFile_data()
{
    QTest::addColumn<Spoil>("spoil");
    const auto row = [](const char *name, Spoil spoil) { QTest::newRow(name) << spoil; };
    row("old", [](const QByteArray &path) {
        const timeval times[] = {{std::time(nullptr) - 60, 0}, {std::time(nullptr) - 60, 0}};
        QCOMPARE(::utimes(path.constData(), times), 0);
    });
    row("to come", [](const QByteArray &path) {
        const timeval times[] = {{std::time(nullptr) + 60, 0}, {std::time(nullptr) + 60, 0}};
        QCOMPARE(::utimes(path.constData(), times), 0);
    });
    row("open to others", [](const QByteArray &path) { ::chmod(path.constData(), 0640); });
    row("a link", [](const QByteArray &path) {
        const QByteArray real = path + "-real";
        QCOMPARE(::rename(path.constData(), real.constData()), 0);
        QCOMPARE(::symlink(real.constData(), path.constData()), 0);
    });
    row("a pipe", [](const QByteArray &path) {
        ::unlink(path.constData());
        QCOMPARE(::mkfifo(path.constData(), S_IRUSR | S_IWUSR), 0);
    });
    row("too long", [](const QByteArray &path) {
        QFile file(QFile::decodeName(path));
        QVERIFY(file.open(QFile::Append) && file.write(QByteArray(4096, 'x')) == 4096);
    });
}

void TestLaunchToken::strangersFile()
{
    QFETCH(Spoil, spoil);
    QVERIFY(LaunchToken("t", "s").leave(m_path));
    spoil(QFile::encodeName(m_path));
    QVERIFY(LaunchToken::take(m_path).isEmpty());
    struct stat status = {};
    QVERIFY(::lstat(QFile::encodeName(m_path).constData(), &status) != 0);
}

void TestLaunchToken::folder()
{
    qputenv("XDG_RUNTIME_DIR", "/run/user/1");
    QCOMPARE(LaunchToken::filePath(u"name"_s), u"/run/user/1/name.token"_s);
    for (const char *unusable : {"", "relative"}) {
        qputenv("XDG_RUNTIME_DIR", unusable);
        QVERIFY(LaunchToken::filePath(u"name"_s).isEmpty());
    }
    QVERIFY(!LaunchToken("t", {}).leave({}) && LaunchToken::take({}).isEmpty());
}

QTEST_GUILESS_MAIN(TestLaunchToken)
#include "tst_launch_token.moc"
