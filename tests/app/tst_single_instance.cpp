#include "GuiRestartScheduler.h"
#include "GuiSingleInstance.h"

#include <QDir>
#include <QLocalServer>
#include <QLocalSocket>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>
#include <QTimer>

#include <memory>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Outcome = GuiSingleInstance::Outcome;

class TestSingleInstance final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_directory = std::make_unique<QTemporaryDir>(); }
    void everyKnockActivatesOnce_data();
    void everyKnockActivatesOnce();
    void secondClaimActivates();
    void staleNameIsTakenOver();
    void nameThatNobodyCanHave();
    void restartWaitsForTheName();
    void restartNeverHandsOver();
    void oneRestartAtATime();

private:
    QString name() const { return m_directory->filePath(u"name"_s); }

    std::unique_ptr<QTemporaryDir> m_directory;
};

void TestSingleInstance::everyKnockActivatesOnce_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("the message") << QByteArray("activate\n");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("anything") << QByteArray(100000, '\0');
}

void TestSingleInstance::everyKnockActivatesOnce()
{
    QFETCH(QByteArray, bytes);
    GuiSingleInstance instance(name());
    QCOMPARE(instance.claimOrActivate(), Outcome::Claimed);
    const QSignalSpy activated(&instance, &GuiSingleInstance::activateRequested);
    for (int knocks = 1; knocks <= 2; ++knocks) {
        QLocalSocket socket;
        socket.connectToServer(name());
        socket.write(bytes);
        QTRY_COMPARE(activated.count(), knocks);
        QTRY_COMPARE(socket.state(), QLocalSocket::UnconnectedState);
        QCOMPARE(activated.count(), knocks);
    }
}

void TestSingleInstance::secondClaimActivates()
{
    GuiSingleInstance first(name());
    QVERIFY(first.tryListen() && first.tryListen());
    const QSignalSpy activated(&first, &GuiSingleInstance::activateRequested);
    QString error;
    QCOMPARE(GuiSingleInstance(name()).claimOrActivate(&error), Outcome::Activated);
    QVERIFY(!error.isEmpty());
    QTRY_COMPARE(activated.count(), 1);
    QCOMPARE(GuiSingleInstance(name()).claimOrActivate(), Outcome::Activated);
    QTRY_COMPARE(activated.count(), 2);
}

void TestSingleInstance::staleNameIsTakenOver()
{
    auto crashed = std::make_unique<QLocalServer>();
    QVERIFY(crashed->listen(u"%1-crashed"_s.arg(name())));
    QVERIFY(QFile::rename(crashed->fullServerName(), name()));
    crashed.reset();
    QVERIFY(QFile::exists(name()));
    {
        GuiSingleInstance instance(name());
        QCOMPARE(instance.claimOrActivate(), Outcome::Claimed);
        const QSignalSpy activated(&instance, &GuiSingleInstance::activateRequested);
        QVERIFY(GuiSingleInstance(name()).notifyRunningInstance(500ms));
        QTRY_COMPARE(activated.count(), 1);
    }
    QVERIFY(!QFile::exists(name()));
}

void TestSingleInstance::nameThatNobodyCanHave()
{
    GuiSingleInstance instance(u"/nowhere/name"_s);
    QString error;
    QCOMPARE(instance.claimOrActivate(&error), Outcome::Failed);
    QVERIFY(!error.isEmpty());
    QCOMPARE(instance.claimWithRetry(20ms, 0ms), Outcome::Failed);
}

void TestSingleInstance::restartWaitsForTheName()
{
    auto old = std::make_unique<GuiSingleInstance>(name());
    QVERIFY(old->tryListen());
    const QSignalSpy activated(old.get(), &GuiSingleInstance::activateRequested);
    Outcome outcome = Outcome::Failed;
    const std::unique_ptr<QThread> other(
        QThread::create([&] { outcome = GuiSingleInstance(name()).claimWithRetry(60s, 1ms); }));
    other->start();
    QTest::qWait(100); // A knock would be heard.
    QVERIFY(!other->isFinished());
    QCOMPARE(activated.count(), 0);
    old.reset();
    QVERIFY(other->wait(10000));
    QCOMPARE(outcome, Outcome::Claimed);
}

void TestSingleInstance::restartNeverHandsOver()
{
    GuiSingleInstance stuck(name());
    QVERIFY(stuck.tryListen());
    const QSignalSpy activated(&stuck, &GuiSingleInstance::activateRequested);
    GuiSingleInstance next(name());
    QCOMPARE(next.claimWithRetry(20ms, -5ms), Outcome::Claimed);
    const QSignalSpy moved(&next, &GuiSingleInstance::activateRequested);
    QCOMPARE(GuiSingleInstance(name()).claimOrActivate(), Outcome::Activated);
    QTRY_COMPARE(moved.count(), 1);
    QCOMPARE(activated.count(), 0);
}

void TestSingleInstance::oneRestartAtATime()
{
    GuiRestartScheduler scheduler;
    QStringList calls;
    bool works = false;
    const auto schedule = [&](std::chrono::milliseconds delay) {
        scheduler.schedule(
            delay,
            [&] {
                calls << u"start"_s;
                return works;
            },
            [&] { calls << u"failed"_s; }, [&] { calls << u"done"_s; });
    };
    schedule(20ms);
    schedule(0ms);
    QVERIFY(calls.isEmpty());
    QTRY_COMPARE(calls, (QStringList{u"start"_s, u"failed"_s}));
    QVERIFY(!scheduler.hasRestarted());
    works = true;
    schedule(-1ms);
    schedule(-1ms);
    QTRY_COMPARE(calls.mid(2), (QStringList{u"start"_s, u"done"_s}));
    schedule(0ms);
    bool isLater = false;
    QTimer::singleShot(20ms, this, [&isLater] { isLater = true; });
    QTRY_VERIFY(isLater);
    QCOMPARE(calls.size(), 4);
    QVERIFY(scheduler.hasRestarted());
}

QTEST_GUILESS_MAIN(TestSingleInstance)
#include "tst_single_instance.moc"
