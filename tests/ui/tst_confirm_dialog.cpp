#include "DesktopColorScheme.h"
#include "KillSwitchConfirm.h"
#include "Theme.h"

#include <QLabel>
#include <QList>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

class TestConfirmDialog final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answers_data();
    void answers();
    void showsForeignTextPlainly();
    void killSwitchTexts();

private:
    DesktopColorScheme m_desktop;
    Theme m_theme{m_desktop, u"light"_s};
    ConfirmTexts m_texts{.title = u"Title"_s,
                         .message = u"<b>AT&T</b>"_s,
                         .detail = u"Detail"_s,
                         .accept = {u"A&B"_s, u"Do <i>A</i>"_s},
                         .destructive = false,
                         .alternate = {u"Other"_s, {}},
                         .reject = {u"No"_s, {}}};
};

void TestConfirmDialog::answers_data()
{
    QTest::addColumn<bool>("destructive");
    QTest::addColumn<QList<Qt::Key>>("keys");
    QTest::addColumn<int>("answer");
    using Keys = QList<Qt::Key>;
    QTest::newRow("enter accepts") << false << Keys{Qt::Key_Return} << 1;
    QTest::newRow("enter keeps safe") << true << Keys{Qt::Key_Return} << 0;
    QTest::newRow("escape") << false << Keys{Qt::Key_Escape} << 0;
    QTest::newRow("the second button") << false << Keys{Qt::Key_Tab, Qt::Key_Space} << 2;
    QTest::newRow("round to the first") << true << Keys{Qt::Key_Tab, Qt::Key_Return} << 1;
    QTest::newRow("closed") << false << Keys{} << 0;
}

void TestConfirmDialog::answers()
{
    QFETCH(const bool, destructive);
    QFETCH(const QList<Qt::Key>, keys);
    m_texts.destructive = destructive;
    ConfirmDialog dialog(m_texts, m_theme);
    QVERIFY(dialog.isModal());
    QSignalSpy finished(&dialog, &QDialog::finished);
    dialog.open();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    for (const Qt::Key key : keys) {
        QTest::keyClick(dialog.focusWidget(), key);
    }
    dialog.close();
    QCOMPARE(finished.size(), 1);
    QTEST(finished.constFirst().constFirst().toInt(), "answer");
}

void TestConfirmDialog::showsForeignTextPlainly()
{
    m_texts.destructive = true;
    ConfirmDialog dialog(m_texts, m_theme);
    const auto *message = dialog.findChild<QLabel *>(u"VantuConfirmDialogMessage"_s);
    QCOMPARE(message->text(), u"<b>AT&T</b>"_s);
    QCOMPARE(message->textFormat(), Qt::PlainText);
    const auto *accept = dialog.findChild<QPushButton *>(u"VantuConfirmDialogAccept"_s);
    QCOMPARE(accept->text(), u"A&&B"_s);
    QCOMPARE(accept->accessibleName(), u"Do <i>A</i>"_s);
    QVERIFY(!accept->toolTip().contains(u"<i>"_s));
    dialog.show();
    QVERIFY(dialog.width() >= 420);
    for (const QPushButton *button : dialog.findChildren<QPushButton *>()) {
        QVERIFY(dialog.rect().contains(button->geometry()) && button->height() >= 34);
    }
}

void TestConfirmDialog::killSwitchTexts()
{
    const auto texts = [](const ConfirmDialog &dialog) {
        QString result;
        for (const QLabel *label : dialog.findChildren<QLabel *>()) {
            result += label->text() + u'|';
        }
        for (const QPushButton *button : dialog.findChildren<QPushButton *>()) {
            result += button->text() + u'|' + button->accessibleName() + u'|';
        }
        return result;
    };
    QCOMPARE(texts(*KillSwitchConfirm::needsVpnMode(m_theme)),
             u"|Kill Switch needs a VPN mode|Kill Switch can\u2019t run in Vantu Proxy. Switch to "
             "Auto (recommended), VantuVPN, or WireGuard to enable it.|Switch to Auto and enable|"
             "Switch to Auto and enable Kill Switch|Choose mode\u2026|Choose a mode for Kill "
             "Switch|Cancel|Cancel|"_s);
    QCOMPARE(texts(*KillSwitchConfirm::needsKillSwitchOff(m_theme)),
             u"|Vantu Proxy needs Kill Switch off|Kill Switch blocks Vantu Proxy. Turn Kill Switch "
             "off in Settings first, then switch modes.|Open Settings|Open Settings to turn off "
             "Kill Switch|Cancel|Cancel|"_s);
}

QTEST_MAIN(TestConfirmDialog)
#include "tst_confirm_dialog.moc"
