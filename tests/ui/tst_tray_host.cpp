#include "TrayHost.h"

#include <QApplication>
#include <QMenu>
#include <QPainter>
#include <QSignalSpy>
#include <QSystemTrayIcon>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

/// Proves the panel of the tray tests against a plain icon of Qt.
class TestTrayHost final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void readsTheIcon();
    void readsTheMenu();
    void clicksReachTheProgram();
    void seesIconsLeave();
    void iconSurvivesADeadPanel();

private:
    TrayHost m_host;
    std::unique_ptr<QMenu> m_menu;
    std::unique_ptr<QSystemTrayIcon> m_icon;
    QAction *m_switch = nullptr;
    QAction *m_inner = nullptr;
};

void TestTrayHost::initTestCase()
{
    QVERIFY(m_host.start());
    QVERIFY(QSystemTrayIcon::isSystemTrayAvailable());
}

void TestTrayHost::init()
{
    m_menu = std::make_unique<QMenu>();
    // Qt sends an underscore as it is, and a panel reads it as a mnemonic.
    m_menu->addAction(u"AT&&T __raw"_s)->setEnabled(false);
    m_menu->addSeparator();
    m_switch = m_menu->addAction(u"&Switch"_s);
    m_switch->setCheckable(true);
    m_switch->setChecked(true);
    m_menu->addAction(u"Hidden"_s)->setVisible(false);
    m_inner = m_menu->addMenu(u"More"_s)->addAction(u"Inner"_s);

    QPixmap red(64, 64);
    red.fill(Qt::red);
    m_icon = std::make_unique<QSystemTrayIcon>(QIcon(red));
    m_icon->setToolTip(u"Tip"_s);
    m_icon->setContextMenu(m_menu.get());
    m_icon->show();
    QTRY_COMPARE(m_host.items().size(), 1);
}

void TestTrayHost::cleanup()
{
    m_icon.reset();
    m_menu.reset();
    QTRY_VERIFY(m_host.items().isEmpty());
}

void TestTrayHost::readsTheIcon()
{
    QCOMPARE(m_host.property(u"Status"_s).toString(), u"Active"_s);
    QCOMPARE(m_host.toolTip(), u"Tip"_s);
    const QImage image = m_host.icon();
    QVERIFY(image.width() >= 22);
    QCOMPARE(image.pixelColor(image.rect().center()), QColor(Qt::red));
}

void TestTrayHost::readsTheMenu()
{
    const TrayMenuItem menu = m_host.menu();
    QCOMPARE(menu.labels(), QStringList({u"AT&T _raw"_s, u"-"_s, u"Switch"_s, u"More"_s}));
    const TrayMenuItem *entry = menu.find(u"Switch"_s);
    QVERIFY(entry != nullptr);
    QCOMPARE(entry->rawLabel, u"_Switch"_s);
    QVERIFY(entry->checkable && entry->checked && entry->enabled);
    QVERIFY(!menu.find(u"AT&T _raw"_s)->enabled);
    QVERIFY(!menu.find(u"Hidden"_s)->visible);
    QVERIFY(menu.find(u"More"_s)->submenu);
    QCOMPARE(menu.find(u"More"_s)->labels(), QStringList(u"Inner"_s));
}

void TestTrayHost::clicksReachTheProgram()
{
    QSignalSpy shown(m_menu.get(), &QMenu::aboutToShow);
    QSignalSpy hidden(m_menu.get(), &QMenu::aboutToHide);
    m_host.aboutToShow(0);
    QVERIFY(m_host.sendEvent(0, u"opened"_s));
    QTRY_VERIFY(!shown.isEmpty());
    QVERIFY(m_host.click(u"Switch"_s));
    QTRY_VERIFY(!m_switch->isChecked());
    QTRY_VERIFY(!m_host.menu().find(u"Switch"_s)->checked);
    QVERIFY(m_host.sendEvent(0, u"closed"_s));
    QTRY_COMPARE(hidden.size(), 1);

    QSignalSpy inner(m_inner, &QAction::triggered);
    QVERIFY(m_host.click(u"Inner"_s));
    QTRY_COMPARE(inner.size(), 1);
    QVERIFY(!m_host.click(u"Hidden"_s));
    QVERIFY(!m_host.click(u"AT&T _raw"_s));

    QSignalSpy activated(m_icon.get(), &QSystemTrayIcon::activated);
    QVERIFY(m_host.activate());
    QVERIFY(m_host.secondaryActivate());
    QTRY_COMPARE(activated.size(), 2);
}

void TestTrayHost::seesIconsLeave()
{
    const QString gone = m_host.items().constFirst();
    m_icon->hide();
    QTRY_VERIFY(m_host.items().isEmpty());
    QVERIFY(!m_host.property(u"Status"_s, gone).isValid());
    QCOMPARE(m_host.menu().children.size(), 0);
    m_icon->show();
    QTRY_COMPARE(m_host.items().size(), 1);
    QTRY_COMPARE(m_host.menu().labels().size(), 4);
}

void TestTrayHost::iconSurvivesADeadPanel()
{
    m_host.stop();
    QVERIFY(m_host.items().isEmpty());
    QVERIFY(m_host.start());
    QTRY_COMPARE(m_host.items().size(), 1);
    QCOMPARE(m_host.toolTip(), u"Tip"_s);
    QCOMPARE(m_host.menu().labels().size(), 4);
}

QTEST_MAIN(TestTrayHost)
#include "tst_tray_host.moc"
