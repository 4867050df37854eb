#include "CardButton.h"
#include "ChevronLabel.h"
#include "ElidedLabel.h"
#include "FlowLayout.h"
#include "HandOnTheme.h"
#include "NotificationHost.h"
#include "SearchField.h"
#include "StyleProperty.h"
#include "ThemePalette.h"
#include "ThemeTemplate.h"
#include "ThemedScrollBar.h"
#include "ToggleSwitch.h"

#include <QAccessible>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

#include <initializer_list>

using namespace Qt::StringLiterals;

class TestWidgets final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void switchPixels_data();
    void switchPixels();
    void switchActs();
    void scrollBarHandle();
    void flow_data();
    void flow();
    void elides();
    void cardIsOneButton();
    void noticeKinds_data();
    void noticeKinds();
    void noticeComesAndGoes();
    void noticeKeepsItsPlace();
    void searchTextStandsBesideGlass();
    void toggleActionClicks();
    void stylePropertyMovesMargins();

private:
    const ThemePalette m_light = ThemePalette::forScheme(ColorScheme::Light);
};

void TestWidgets::switchPixels_data()
{
    QTest::addColumn<bool>("checked");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("themed");
    QTest::addColumn<QString>("left");
    QTest::addColumn<QString>("right");
    QTest::newRow("off") << false << true << true << u"#ffffffff"_s << u"#ffc2c9d6"_s;
    QTest::newRow("on") << true << true << true << u"#ff04955a"_s << u"#ffffffff"_s;
    // The thumb over the track: 150 over 85 of 255.
    QTest::newRow("disabled") << true << false << true << u"#5503965a"_s << u"#b9cfecdf"_s;
    QTest::newRow("palette") << false << true << false << u"#ff0000ff"_s << u"#ffff0000"_s;
}

void TestWidgets::switchPixels()
{
    QFETCH(const bool, checked);
    QFETCH(const bool, enabled);
    QFETCH(const bool, themed);
    for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        ToggleSwitch toggle;
        toggle.setPalette(QPalette({}, {}, {}, {}, Qt::red, {}, {}, Qt::blue, {}));
        toggle.setLayoutDirection(direction);
        toggle.setChecked(checked);
        toggle.setEnabled(enabled);
        if (themed) {
            handOnTheme(toggle, m_light);
        }
        toggle.resize(66, 46); // The track lies ten pixels from every side.
        QImage image(toggle.size(), QImage::Format_ARGB32);
        image.fill(Qt::transparent);
        toggle.render(&image, {}, {}, QWidget::RenderFlags());
        QTEST(image.pixelColor(10 + 13, 23).name(QColor::HexArgb), "left");
        QTEST(image.pixelColor(10 + 33, 23).name(QColor::HexArgb), "right");
        for (const QPoint out : {QPoint(9, 23), QPoint(56, 23), QPoint(33, 9), QPoint(33, 36)}) {
            QCOMPARE(image.pixelColor(out).alpha(), 0);
        }
        QVERIFY(image.pixelColor(33, 10).alpha() > 0 && image.pixelColor(33, 35).alpha() > 0);
        // Switched off it needs a line to stand out from a card.
        const bool isOutlined = image.pixelColor(33, 10) == QColor(m_light.textMuted);
        QCOMPARE(isOutlined, themed && enabled && !checked);
    }
}

void TestWidgets::switchActs()
{
    ToggleSwitch toggle;
    handOnTheme(toggle, m_light);
    toggle.resize(50, 30);
    const auto ring = [&toggle] { return toggle.grab().toImage().pixelColor(25, 1); };
    QVERIFY(ring() != QColor(m_light.accent));
    toggle.show();
    QVERIFY(QTest::qWaitForWindowActive(&toggle));
    toggle.setFocus();
    QCOMPARE(ring(), QColor(m_light.accent));
    QTest::mouseClick(&toggle, Qt::LeftButton, {}, QPoint(0, 0));
    QVERIFY(toggle.isChecked());
    QTest::keyClick(&toggle, Qt::Key_Space);
    QVERIFY(!toggle.isChecked());
    QCOMPARE(toggle.sizeHint(), QSize(46, 26));
}

void TestWidgets::scrollBarHandle()
{
    ThemedScrollBar bar(Qt::Vertical);
    bar.setStyleSheet(u"* { width: 8px; } ::add-line, ::sub-line { height: 0; }"_s);
    bar.setHandleColors(Qt::green, Qt::red);
    bar.setRange(0, 100);
    bar.setPageStep(100);
    bar.resize(bar.sizeHint());
    const auto pixel = [&bar](int y) { return bar.grab().toImage().pixelColor(4, y); };
    QCOMPARE(pixel(25), QColor(Qt::green));
    QVERIFY(pixel(75) != QColor(Qt::green));
    bar.setSliderDown(true);
    QCOMPARE(pixel(25), QColor(Qt::red));
    bar.setHandleColors({}, {});
    QCOMPARE(pixel(25), bar.palette().color(QPalette::Text));
}

void TestWidgets::flow_data()
{
    // Ten pixels high each; the second is hidden. The inner width is 100.
    QTest::addColumn<QList<int>>("widths");
    QTest::addColumn<QList<QPoint>>("places");
    QTest::addColumn<int>("height");
    using Ints = QList<int>;
    using Points = QList<QPoint>;
    QTest::newRow("fits") << Ints{60, 9, 35} << Points{{1, 2}, {66, 2}} << 20;
    QTest::newRow("wraps") << Ints{60, 9, 36, 40} << Points{{1, 2}, {1, 15}, {42, 15}} << 33;
    QTest::newRow("too wide a first") << Ints{130, 9, 20} << Points{{1, 2}, {1, 15}} << 33;
}

void TestWidgets::flow()
{
    QFETCH(const QList<int>, widths);
    QFETCH(const QList<QPoint>, places);
    QWidget parent;
    auto *layout = new FlowLayout(5, 3, &parent);
    layout->setContentsMargins(1, 2, 4, 8);
    QList<QWidget *> items;
    for (const int width : widths) {
        items += new QWidget(&parent);
        items.constLast()->setFixedSize(width, 10);
        layout->addWidget(items.constLast());
    }
    items.takeAt(1)->hide();
    QTEST(layout->heightForWidth(105), "height");
    layout->setGeometry(QRect(0, 0, 105, 200));
    for (qsizetype i = 0; i < places.size(); ++i) {
        QCOMPARE(items.at(i)->pos(), places.at(i));
    }
    parent.setLayoutDirection(Qt::RightToLeft);
    layout->setGeometry(QRect(0, 0, 105, 200));
    for (qsizetype i = 0; i < places.size(); ++i) {
        // Qt puts nothing beyond the left edge of all.
        const int width = items.at(i)->width();
        QCOMPARE(items.at(i)->pos(), QPoint(qMax(102 - places[i].x() - width, 0), places[i].y()));
    }
}

void TestWidgets::elides()
{
    const QString text = u"wide words that go on"_s;
    ElidedLabel label(text);
    const int line = label.fontMetrics().lineSpacing();
    const int width = label.sizeHint().width();
    QCOMPARE(label.sizeHint(), QSize(QLabel(text).sizeHint().width(), line));
    QCOMPARE(label.minimumSizeHint(), QSize(0, line));
    const auto grab = [line](ElidedLabel &shown, int size) {
        shown.resize(size, line);
        return shown.grab().toImage();
    };
    // As if the shortened text stood there, at the same side.
    ElidedLabel cut(label.fontMetrics().elidedText(text, Qt::ElideRight, width / 2));
    QCOMPARE(grab(label, width / 2), grab(cut, width / 2));
    QVERIFY(label.isElided() && label.text() == text);
    label.setLayoutDirection(Qt::RightToLeft);
    cut.setText(label.fontMetrics().elidedText(text, Qt::ElideLeft, width / 2));
    cut.setAlignment(Qt::AlignRight);
    QCOMPARE(grab(label, width / 2), grab(cut, width / 2));

    label.setMaximumLines(2);
    QCOMPARE(label.sizeHint().height(), 2 * line);
    QCOMPARE(label.heightForWidth(width), line);
    QCOMPARE(label.heightForWidth(width * 2 / 3), 2 * line);
    grab(label, width * 2 / 3);
    QVERIFY(!label.isElided());
    // Lines stay lines, each read its own way; only what is too much for the last is joined.
    label.setText(u"\u05d0\n\u05d0 ends.\nends.\n"_s);
    label.setMaximumLines(3);
    label.resize(width, 3 * line);
    ElidedLabel third(u"ends."_s);
    third.setLayoutDirection(Qt::RightToLeft);
    QCOMPARE(label.grab().toImage().copy(0, 2 * line, width, line), grab(third, width));
    label.setMaximumLines(2);
    QCOMPARE(label.heightForWidth(width), 2 * line);
    QVERIFY(!label.isElided());
}

void TestWidgets::cardIsOneButton()
{
    CardButton card(u"Mode"_s);
    card.setValue(u"<b>AT&T</b>"_s);
    QSignalSpy clicked(&card, &QAbstractButton::clicked);
    card.show();
    QCOMPARE(card.childAt(card.valueLabel()->geometry().center()), nullptr);
    QTest::mouseClick(&card, Qt::LeftButton);
    QTest::keyClick(&card, Qt::Key_Return);
    QTest::keyClick(&card, Qt::Key_Space);
    QCOMPARE(clicked.size(), 3);
    QCOMPARE(card.valueLabel()->textFormat(), Qt::PlainText);
    QCOMPARE(card.chevron()->text(), u"\u203A"_s);
    card.setLayoutDirection(Qt::RightToLeft);
    QCOMPARE(card.chevron()->text(), u"\u2039"_s);
}

void TestWidgets::noticeKinds_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("icon");
    QTest::newRow("success") << u"Success "_s << u"\u2713"_s;
    QTest::newRow("warning") << u"warning"_s << u"!"_s;
    QTest::newRow("error") << u" ERROR"_s << u"\u2715"_s;
    QTest::newRow("info") << u"note"_s << QString();
}

void TestWidgets::noticeKinds()
{
    QFETCH(const QString, kind);
    QWidget window;
    NotificationHost host(window);
    host.showMessage(u" <i>Done</i>\n"_s, kind, 0);
    const auto *icon = host.findChild<QLabel *>(u"VantuNotificationIcon"_s);
    QTEST(icon->text(), "icon");
    QCOMPARE(icon->isHidden(), icon->text().isEmpty());
    QCOMPARE(host.property("vantuNotificationKind"), QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(host.accessibleName(), u"Notification: <i>Done</i>"_s);
    QCOMPARE(QAccessible::queryAccessibleInterface(&host)->role(), QAccessible::AlertMessage);
    QCOMPARE(host.findChild<ElidedLabel *>()->text(), u"<i>Done</i>"_s);
}

void TestWidgets::noticeComesAndGoes()
{
    QWidget window;
    NotificationHost host(window);
    host.showMessage(u"Goes"_s, {}, 1);
    QVERIFY(!host.isHidden());
    QTRY_VERIFY(host.isHidden());
    host.showMessage(u"Goes"_s, {}, 1);
    host.showMessage(u"Stays"_s, {}, 0);
    QTest::qWait(20);
    QVERIFY(!host.isHidden());
    host.showMessage(u"  "_s, u"error"_s, 0);
    QVERIFY(host.isHidden());
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    for (const auto key : {Qt::Key_Space, Qt::Key_Escape}) {
        host.showMessage(u"Stays"_s, {}, -1);
        QTest::keyClick(&window, Qt::Key_Tab);
        QCOMPARE(window.focusWidget(), host.findChild<QToolButton *>());
        QTest::keyClick(window.focusWidget(), key);
        QVERIFY(host.isHidden());
    }
}

void TestWidgets::noticeKeepsItsPlace()
{
    QWidget window;
    QWidget title(&window);
    title.setGeometry(30, 20, 100, 40);
    QWidget page(&window);
    page.resize(700, 500);
    QWidget button(&page);
    button.setGeometry(0, 120, 700, 40);
    NotificationHost host(window, &title);
    host.keepClearOf(button);
    window.resize(700, 500);
    window.show();
    host.showMessage(u"Short"_s, {}, 0);
    QVERIFY(host.width() < 200 && host.y() == 68);
    host.showMessage(u"long words "_s.repeated(80), {}, 0);
    QCOMPARE(host.geometry().topLeft(), QPoint(90, 168)); // Below the button.
    QCOMPARE(host.width(), 520);
    page.move(0, -10); // Scrolled
    QCOMPARE(host.y(), 158);
    button.hide();
    QCOMPARE(host.y(), 68);
    window.resize(300, 500);
    QCOMPARE(host.geometry().center().x(), 149);
    QVERIFY(host.width() < 300 && host.height() < 6 * host.fontMetrics().height());
}

void TestWidgets::searchTextStandsBesideGlass()
{
    for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        SearchField field(u"Search"_s);
        field.setStyleSheet(themetemplate::render(m_light, direction));
        field.setLayoutDirection(direction);
        field.resize(300, 42);
        field.show();
        const auto textStart = [&field, direction] {
            field.setCursorPosition(0);
            field.grab(); // Lays the text out.
            const int x = field.inputMethodQuery(Qt::ImCursorRectangle).toRect().center().x();
            return direction == Qt::LeftToRight ? x : 300 - x;
        };
        QVERIFY2(qAbs(textStart() - 36) <= 3, qPrintable(QString::number(textStart())));
        field.setText(direction == Qt::LeftToRight ? u"oslo"_s : u"\u05D0\u05D5"_s);
        QVERIFY2(qAbs(textStart() - 36) <= 3, qPrintable(QString::number(textStart())));
        const QImage grab = field.grab().toImage();
        QRgb ground = grab.pixel(150, 21);
        int first = 0;
        while (first < 100 &&
               grab.pixel(direction == Qt::LeftToRight ? 3 + first : 296 - first, 21) == ground) {
            ++first;
        }
        QVERIFY2(first + 3 >= 12 && first + 3 < 28, qPrintable(QString::number(first)));
        QVERIFY(field.findChildren<QToolButton *>().size() <= 1); // The one that clears.
    }
}

void TestWidgets::toggleActionClicks()
{
    ToggleSwitch toggle;
    toggle.setAccessibleName(u"Guard"_s);
    QPushButton choice(u"&One && all"_s);
    choice.setCheckable(true);
    choice.setAutoExclusive(true);
    QToolButton star;
    star.setAccessibleName(u"Guard"_s);
    star.setCheckable(true);
    for (QAbstractButton *button :
         std::initializer_list<QAbstractButton *>{&toggle, &choice, &star}) {
        const bool isSwitch = button != &choice;
        QSignalSpy clicked(button, &QAbstractButton::clicked);
        QAccessibleInterface *access = QAccessible::queryAccessibleInterface(button);
        QCOMPARE(access->role(), isSwitch ? QAccessible::CheckBox : QAccessible::RadioButton);
        QCOMPARE(access->text(QAccessible::Name), isSwitch ? u"Guard"_s : u"One & all"_s);
        QVERIFY(access->state().checkable && !access->state().checked);
        QAccessibleActionInterface *actions = access->actionInterface();
        QVERIFY(actions->actionNames().contains(actions->toggleAction()));
        actions->doAction(actions->toggleAction());
        QCOMPARE(clicked.size(), 1);
        QVERIFY(access->state().checked);
        button->setEnabled(false);
        actions->doAction(actions->toggleAction());
        QCOMPARE(clicked.size(), 1);
    }
}

void TestWidgets::stylePropertyMovesMargins()
{
    QLabel label(u"text"_s);
    label.setStyleSheet(u"QLabel[vantuRole=\"error\"] { padding: 8px; }"_s);
    label.resize(100, 40);
    label.ensurePolished();
    QCOMPARE(label.contentsRect().left(), 0);
    QVERIFY(setStyleProperty(label, "vantuRole", u"error"_s));
    QCOMPARE(label.contentsRect().left(), 8);
    QVERIFY(!setStyleProperty(label, "vantuRole", u"error"_s));
}

QTEST_MAIN(TestWidgets)
#include "tst_widgets.moc"
