#include "AccountPage.h"

#include "AppState.h"

#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

class TestAccount final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void form();
    void controls_data();
    void controls();
    void summary();
    void failureLeadsBackToThePassword();
    void successForgetsThePassword();
    void keyboardStaysOnThePage();

private:
    template<typename Widget>
    Widget *find(const char *name) const
    {
        return m_page->findChild<Widget *>(u"VantuAccount"_s + QLatin1StringView(name));
    }
    QString message() const
    {
        const auto *label = find<QLabel>("Message");
        return label->isVisible() ? label->text() : QString();
    }
    void setAuth(const QString &auth)
    {
        RuntimeInfo runtime;
        runtime.authState = auth;
        m_state.setRuntime(runtime);
    }

    AppState m_state;
    std::unique_ptr<AccountPage> m_page;
    QLineEdit *m_username = nullptr;
    QLineEdit *m_password = nullptr;
};

void TestAccount::init()
{
    setAuth({});
    m_page = std::make_unique<AccountPage>(m_state);
    m_username = find<QLineEdit>("Username");
    m_password = find<QLineEdit>("Password");
    m_username->setText(u"jo"_s);
    m_password->setText(u"pw"_s);
    m_page->show();
    QVERIFY(QTest::qWaitForWindowActive(m_page.get()));
}

/// Blanks are no name, but may be a password.
void TestAccount::form()
{
    const QSignalSpy login(m_page.get(), &AccountPage::loginRequested);
    for (const auto &[name, password] :
         {std::pair{u"  "_s, u"pw"_s}, {u"jo"_s, QString()}, {u" jo "_s, u"  "_s}}) {
        m_username->setText(name);
        m_password->setText(password);
        QVERIFY(login.isEmpty());
        QTest::keyClick(m_username, Qt::Key_Return);
        QCOMPARE(message(), login.isEmpty() ? u"Enter account and password."_s : QString());
    }
    QCOMPARE(login, (QList<QVariantList>{{u"jo"_s, u"  "_s, true}}));
}

void TestAccount::controls_data()
{
    QTest::addColumn<QString>("state");
    QTest::addColumn<QString>("expected"); // A minus stands before what is disabled.
    QTest::newRow("free") << QString() << u"Sign In|Sign Out|Renew"_s;
    QTest::newRow("busy") << u"busy"_s << u"-Signing in...|-Signing out...|-Renew"_s;
    QTest::newRow("opening") << u"opening"_s << u"Sign In|Sign Out|-Opening…"_s;
    QTest::newRow("away") << u"away"_s << u"-Sign In|-Sign Out|-Renew"_s;
}

void TestAccount::controls()
{
    QFETCH(const QString, state);
    const QString reason = state == "away"_L1 ? u"Not <running>"_s : QString();
    m_page->setDaemonAvailable(reason.isEmpty(), reason);
    m_page->setBusy(state == "busy"_L1);
    m_page->setOpening(state == "opening"_L1);
    QStringList shown;
    for (const char *name : {"SignIn", "Logout", "Renew"}) {
        const auto *button = find<QPushButton>(name);
        shown += (button->isEnabled() ? QString() : u"-"_s) + button->text();
        QCOMPARE(button->toolTip().isEmpty(), button->isEnabled());
        QVERIFY(button->toolTip().contains(reason.toHtmlEscaped()));
    }
    QTEST(shown.join(u'|'), "expected");
    QCOMPARE(message(), reason);
    const QSignalSpy login(m_page.get(), &AccountPage::loginRequested);
    QTest::keyClick(m_password, Qt::Key_Return);
    QCOMPARE(login.isEmpty(), !find<QPushButton>("SignIn")->isEnabled());
}

void TestAccount::summary()
{
    const auto shows = [this](const QString &auth, const UserInfo &user, const QString &expected) {
        m_state.setUser(user);
        setAuth(auth);
        return find<QLabel>("Summary")->text() == expected &&
               find<QPushButton>("Logout")->isVisible() == (auth != "logged_out"_L1) &&
               find<QPushButton>("SignIn")->isVisible() == (auth == "logged_out"_L1);
    };
    QVERIFY(shows(u"logged_in"_s, {u"e"_s, u"48"_s, u"VIP"_s, true, 212, 5},
                  u"User ID: 48\nPlan: VIP\nDays left: 212\nMax simultaneous devices: 5"_s));
    QVERIFY(shows(u"cached"_s, {{}, {}, u"Free"_s, true, 0, 0}, u"Plan: Free"_s));
    QVERIFY(shows(u"logged_out"_s, {{}, u"%2"_s, u"a\nb"_s, true, -3, -1},
                  u"User ID: %2\nPlan: a b\nDays left: -3"_s));
}

void TestAccount::failureLeadsBackToThePassword()
{
    find<QPushButton>("SignIn")->click();
    find<QPushButton>("SignUp")->setFocus();
    m_page->showError(u" <b>No</b>\nway "_s);
    QCOMPARE(message(), u"<b>No</b> way"_s);
    QVERIFY(m_password->hasFocus());
    QCOMPARE(m_password->selectionLength(), 2);
    m_username->setFocus();
    m_page->showError(u" \n"_s);
    QCOMPARE(message(), u"Account operation failed"_s);
    QVERIFY(m_username->hasFocus());
}

void TestAccount::successForgetsThePassword()
{
    auto *readable = QAccessible::queryAccessibleInterface(m_password);
    QVERIFY(!readable->text(QAccessible::Value).contains(u"pw"_s));
    m_page->showError(u"Old"_s);
    setAuth(u"logged_in"_s);
    QCOMPARE(message(), QString());
    QCOMPARE(m_password->text(), QString());
    m_password->setText(u"pw"_s);
    m_page->hide();
    QCOMPARE(m_password->text(), QString());
    QCOMPARE(m_username->text(), u"jo"_s);
}

/// And never on what signs out unasked.
void TestAccount::keyboardStaysOnThePage()
{
    const auto *renew = find<QPushButton>("Renew");
    m_password->setFocus();
    m_page->setBusy(true);
    setAuth(u"logged_in"_s); // A status may tell it before the answer.
    m_page->setBusy(false);
    QVERIFY(renew->hasFocus());
    m_page->setOpening(true);
    QVERIFY(!find<QPushButton>("Logout")->hasFocus());
    m_page->setOpening(false);
    QVERIFY(renew->hasFocus());
    setAuth(u"logged_out"_s);
    QVERIFY(m_password->hasFocus());
}

QTEST_MAIN(TestAccount)
#include "tst_account.moc"
