#include "DesktopColorScheme.h"
#include "KillSwitchConfirm.h"
#include "Theme.h"

#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

using Act = std::function<void(QDialog &)>;

Act press(Qt::Key key)
{
    return [key](QDialog &dialog) {
        QTest::keyClick(dialog.focusWidget() == nullptr ? &dialog : dialog.focusWidget(), key);
    };
}

Act click(const char *name)
{
    return [name](QDialog &dialog) {
        QTest::mouseClick(dialog.findChild<QPushButton *>(QString::fromLatin1(name)),
                          Qt::LeftButton);
    };
}

} // namespace

class TestConfirmDialog final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answers_data();
    void answers();
    void showsForeignTextPlainly();
    void killSwitchTexts();
    void followsTheTheme();

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
    QTest::addColumn<Act>("act");
    QTest::addColumn<int>("answer");
    QTest::newRow("enter accepts") << false << press(Qt::Key_Return) << 1;
    QTest::newRow("enter keeps safe") << true << press(Qt::Key_Return) << 0;
    QTest::newRow("space presses the focused") << false << press(Qt::Key_Space) << 1;
    QTest::newRow("escape") << false << press(Qt::Key_Escape) << 0;
    QTest::newRow("close") << false << Act([](QDialog &dialog) { dialog.close(); }) << 0;
    QTest::newRow("tab, enter") << false << Act([](QDialog &dialog) {
        press(Qt::Key_Tab)(dialog);
        press(Qt::Key_Return)(dialog);
    }) << 2;
    QTest::newRow("accept") << true << click("VantuConfirmDialogAccept") << 1;
    QTest::newRow("alternate") << true << click("VantuConfirmDialogAlternate") << 2;
    QTest::newRow("reject") << false << click("VantuConfirmDialogReject") << 0;
}

void TestConfirmDialog::answers()
{
    QFETCH(const bool, destructive);
    QFETCH(const Act, act);
    m_texts.destructive = destructive;
    ConfirmDialog dialog(m_texts, m_theme);
    QVERIFY(dialog.isModal());
    QSignalSpy finished(&dialog, &QDialog::finished);
    dialog.open();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    act(dialog);
    QCOMPARE(finished.size(), 1);
    QTEST(finished.constFirst().constFirst().toInt(), "answer");
    QVERIFY(!dialog.isVisible());
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
    QVERIFY(!accept->toolTip().contains(u'<'));
    QCOMPARE(accept->property("vantuDestructive").toString(), u"true"_s);
    QCOMPARE(dialog.findChild<QLabel *>(u"VantuConfirmDialogIcon"_s)->accessibleName(),
             u"Warning"_s);
    QCOMPARE(dialog.findChild<QLabel *>(u"VantuConfirmDialogDetail"_s)->property("vantuRole"),
             u"muted"_s);
    dialog.show();
    QVERIFY(dialog.width() >= 420);
    for (const QPushButton *button : dialog.findChildren<QPushButton *>()) {
        QVERIFY(dialog.rect().contains(button->geometry()) && button->height() >= 34);
    }
}

void TestConfirmDialog::killSwitchTexts()
{
    const auto texts = [](const ConfirmDialog &dialog) {
        QStringList result{dialog.windowTitle()};
        for (const QLabel *label : dialog.findChildren<QLabel *>()) {
            result += label->text();
        }
        for (const QPushButton *button : dialog.findChildren<QPushButton *>()) {
            result += {button->text(), button->accessibleName()};
        }
        return result.join(u'|');
    };
    QCOMPARE(
        texts(*KillSwitchConfirm::needsVpnMode(m_theme)),
        u"Kill Switch needs a VPN mode||Kill Switch needs a VPN mode|Kill Switch can\u2019t run "
        "in Vantu Proxy. Switch to Auto (recommended), VantuVPN, or WireGuard to enable it.|"
        "Switch to Auto and enable|Switch to Auto and enable Kill Switch|"
        "Choose mode\u2026|Choose a mode for Kill Switch|Cancel|Cancel"_s);
    QCOMPARE(texts(*KillSwitchConfirm::needsKillSwitchOff(m_theme)),
             u"Vantu Proxy needs Kill Switch off||Vantu Proxy needs Kill Switch off|Kill Switch "
             "blocks Vantu Proxy. Turn Kill Switch off in Settings first, then switch modes.|"
             "Open Settings|Open Settings to turn off Kill Switch|Cancel|Cancel"_s);
}

void TestConfirmDialog::followsTheTheme()
{
    const auto dialog = KillSwitchConfirm::needsVpnMode(m_theme);
    dialog->show();
    const auto ground = [&dialog] { return dialog->grab().toImage().pixelColor(4, 4); };
    QCOMPARE(ground(), QColor(0xf1, 0xf3, 0xf6));
    m_theme.setAppearance(u"dark"_s);
    QCOMPARE(ground(), QColor(0x10, 0x14, 0x1c));
}

QTEST_MAIN(TestConfirmDialog)
#include "tst_confirm_dialog.moc"
