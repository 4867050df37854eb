#include "DesktopColorScheme.h"
#include "Language.h"
#include "LanguagePickerDialog.h"
#include "RegionPickerDialog.h"
#include "Theme.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <utility>

using namespace Qt::StringLiterals;

class TestPickers final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void matches_data();
    void matches();
    void regionsKeepTheirSpelling();
    void regionSearchAndKeys();
    void regionClicks();
    void languages_data();
    void languages();
    void languageNeedsAMatch();

private:
    /// Shown lines, ticked or marked ones with a star.
    static QString lines(const QDialog &dialog);

    DesktopColorScheme m_desktop;
    Theme m_theme{m_desktop, u"light"_s};
    const QList<RegionChoice> m_regions{{u"AU"_s, u"Australia"_s},
                                        {u"CN"_s, u"China"_s},
                                        {u"NZ"_s, u"New Zealand"_s},
                                        {u"KR"_s, u"South Korea"_s}};
};

QString TestPickers::lines(const QDialog &dialog)
{
    QStringList lines;
    const auto *list = dialog.findChild<QListWidget *>();
    for (int row = 0; row < list->count(); ++row) {
        const QListWidgetItem *item = list->item(row);
        if (!item->isHidden()) {
            const bool chosen = item->checkState() == Qt::Checked || item->isSelected();
            lines += (chosen ? u"*"_s : QString()) + item->text();
        }
    }
    return lines.join(u'|');
}

void TestPickers::matches_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("query");
    QTest::addColumn<bool>("found");
    QTest::newRow("start") << u"Chad"_s << u" cHa "_s << true;
    QTest::newRow("middle of a word") << u"Chad"_s << u"had"_s << false;
    QTest::newRow("over words") << u"New Zealand"_s << u"new z"_s << true;
    QTest::newRow("after a hyphen") << u"Guinea-Bissau"_s << u"bis"_s << true;
    QTest::newRow("other letters") << u"Côte d'Ivoire"_s << u"ôte"_s << false;
    QTest::newRow("other script") << u"Северная Корея"_s << u"кор"_s << true;
    QTest::newRow("vowel signs") << u"हिन्दी"_s << u"हिन्दी"_s << true;
}

void TestPickers::matches()
{
    QFETCH(const QString, name);
    QFETCH(const QString, query);
    QTEST(PickerList::matches(name, query), "found");
}

void TestPickers::regionsKeepTheirSpelling()
{
    RegionPickerDialog dialog(u"50%2"_s, m_regions, {u"CN"_s, u"xx"_s, u"cn"_s}, m_theme);
    QSignalSpy applied(&dialog, &RegionPickerDialog::applied);
    auto *apply = dialog.findChild<QPushButton *>(u"VantuRegionPickerApply"_s);
    auto *clear = dialog.findChild<QPushButton *>(u"VantuRegionPickerClearAll"_s);
    const auto *count = dialog.findChild<QLabel *>(u"VantuRegionPickerCount"_s);
    QCOMPARE(dialog.windowTitle(), u"Regions use 50%2"_s);
    QCOMPARE(lines(dialog), u"Australia|*China|New Zealand|South Korea|*xx"_s);
    QCOMPARE(count->text(), u"2 regions selected"_s);
    QVERIFY(!apply->isEnabled() && !apply->toolTip().isEmpty());

    auto *list = dialog.findChild<QListWidget *>();
    for (const Qt::CheckState state : {Qt::Checked, Qt::Unchecked, Qt::Checked}) {
        list->item(0)->setCheckState(state);
        QCOMPARE(apply->isEnabled(), state == Qt::Checked);
    }
    apply->click();
    QCOMPARE(applied, {QVariantList{QStringList({u"AU"_s, u"cn"_s, u"xx"_s})}});
    QCOMPARE(dialog.result(), static_cast<int>(QDialog::Accepted));

    dialog.findChild<QLineEdit *>()->setText(u"aus"_s);
    clear->setFocus();
    clear->click();
    QCOMPARE(dialog.focusWidget(), dialog.findChild<QLineEdit *>()); // Cancel would be next.
    QCOMPARE(count->text(), u"No regions selected"_s);
    QCOMPARE(RegionPickerDialog::countText(1), u"1 region selected"_s);
    QVERIFY(!clear->isEnabled() && apply->isEnabled());
}

void TestPickers::regionSearchAndKeys()
{
    RegionPickerDialog dialog(u"Tunnel"_s, m_regions, {u"CN"_s}, m_theme);
    QSignalSpy applied(&dialog, &RegionPickerDialog::applied);
    dialog.open();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    auto *field = dialog.findChild<QLineEdit *>();
    const auto *list = dialog.findChild<QListWidget *>();
    const auto press = [&dialog](Qt::Key key) { QTest::keyClick(dialog.focusWidget(), key); };
    QTest::keyClicks(dialog.focusWidget(), u"kr"_s);
    QVERIFY(lines(dialog).isEmpty()); // Regions go by their names alone.
    field->clear();
    QTest::keyClicks(dialog.focusWidget(), u"kor"_s);
    QCOMPARE(lines(dialog), u"South Korea"_s);
    press(Qt::Key_Return); // Nothing is ticked yet, so that it isn't the end.
    QVERIFY(dialog.isVisible() && list->hasFocus());
    press(Qt::Key_Space);
    QCOMPARE(lines(dialog), u"*South Korea"_s);
    press(Qt::Key_Up);
    QTest::keyClicks(dialog.focusWidget(), u"zz"_s);
    QVERIFY(lines(dialog).isEmpty());
    press(Qt::Key_Down);
    QVERIFY(field->hasFocus());
    press(Qt::Key_Escape); // Ends the search alone.
    QVERIFY(field->text().isEmpty() && dialog.isVisible());
    press(Qt::Key_Down);
    QVERIFY(list->hasFocus());
    // Out of the way of a question that the choice may lead to.
    bool isInTheWay = true;
    connect(&dialog, &RegionPickerDialog::applied, &dialog,
            [&] { isInTheWay = dialog.isVisible(); });
    press(Qt::Key_Return);
    QCOMPARE(applied, {QVariantList{QStringList({u"CN"_s, u"KR"_s})}});
    QVERIFY(!isInTheWay && !dialog.isVisible());
}

void TestPickers::regionClicks()
{
    RegionPickerDialog dialog(u"Tunnel"_s, m_regions, {}, m_theme);
    dialog.show();
    auto *list = dialog.findChild<QListWidget *>();
    const QRect row = list->visualItemRect(list->item(2));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, row.topLeft() + QPoint(16, 16));
    QCOMPARE(lines(dialog), u"Australia|China|*New Zealand|South Korea"_s);
    QTest::mouseClick(list->viewport(), Qt::RightButton, {}, row.center());
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, row.center());
    QVERIFY(!lines(dialog).contains(u'*'));
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QVERIFY(!dialog.isVisible());
}

void TestPickers::languages_data()
{
    QTest::addColumn<QString>("present"); // Source and language.
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("applied");
    const QString all = u"Use system language|Deutsch|Français|简体中文"_s;
    const QString back = u"system|"_s + language::systemCode();
    QTest::newRow("as it was") << back << QString() << u'*' + all << QString();
    QTest::newRow("by name") << back << u"deu"_s << u"*Deutsch"_s << u"explicit|de-DE"_s;
    QTest::newRow("in English") << back << u"chin"_s << u"*简体中文"_s << u"explicit|zh-CN"_s;
    QTest::newRow("by code") << u"explicit|de_AT"_s << u"ZH"_s << u"*简体中文"_s
                             << u"explicit|zh-CN"_s;
    QTest::newRow("the same") << u"explicit|fr"_s << u"f"_s << u"*Français"_s << QString();
    QTest::newRow("back") << u"explicit|fr"_s << u"sys"_s << u"*Use system language"_s << back;
    QTest::newRow("unknown") << u"explicit|xx"_s << QString() << all << QString();
}

void TestPickers::languages()
{
    QFETCH(const QString, present);
    QFETCH(const QString, typed);
    QFETCH(const QString, applied);
    LanguageConfigInfo config;
    config.supportedLanguages = {{u"de-DE"_s, u"Deutsch"_s},
                                 {u"de"_s, u"Deutsch again"_s},
                                 {u"xx"_s, u"Unknown"_s},
                                 {u"fr"_s, u" "_s},
                                 {u"zh-CN"_s, u"简体中文"_s}};
    config.source = present.section(u'|', 0, 0);
    config.language = present.section(u'|', 1);
    LanguagePickerDialog dialog(config, m_theme);
    QString reported;
    connect(&dialog, &LanguagePickerDialog::applied, this,
            [&](const QString &source, const QString &code) { reported = source + u'|' + code; });
    dialog.open();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QTest::keyClicks(dialog.focusWidget(), typed);
    QTEST(lines(dialog), "shown");
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
    QCOMPARE(reported, applied);
    QCOMPARE(dialog.isVisible(), applied.isEmpty());
}

void TestPickers::languageNeedsAMatch()
{
    LanguageConfigInfo config{u"explicit"_s, u"de"_s, {}, {}};
    LanguagePickerDialog dialog(config, m_theme);
    auto *field = dialog.findChild<QLineEdit *>(u"VantuLanguagePickerSearch"_s);
    const auto *apply = dialog.findChild<QPushButton *>(u"VantuLanguagePickerApply"_s);
    field->setText(u"no such language"_s);
    QVERIFY(lines(dialog).isEmpty() && !apply->isEnabled());
    field->setText(u"suomi"_s);
    QVERIFY(apply->isEnabled());
    field->clear(); // What the search suggested was no choice.
    QVERIFY(lines(dialog).contains("|*Deutsch|"_L1) && !apply->isEnabled());
}

QTEST_MAIN(TestPickers)
#include "tst_pickers.moc"
