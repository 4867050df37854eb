#include "DesktopColorScheme.h"
#include "PortalColorScheme.h"
#include "QtCompat.h"
#include "StyleProperty.h"
#include "Theme.h"
#include "ThemePalette.h"
#include "ThemeTemplate.h"
#include "TintedIcon.h"

#include <QDBusConnection>
#include <QDBusVariant>
#include <QDialog>
#include <QHash>
#include <QImage>
#include <QLabel>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString kPortal = u"org.freedesktop.portal.Desktop"_s;
const QString kGroup = u"org.freedesktop.appearance"_s;

/// Every "left" becomes "right" and the reverse.
QString mirrored(QString text)
{
    return text.replace(u"left"_s, u"\1"_s)
        .replace(u"right"_s, u"left"_s)
        .replace(u'\1', u"right"_s);
}

} // namespace

/// Plays the part of the desktop portal that keeps the colour scheme, while it lives.
class FakePortal final : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    explicit FakePortal(uint value)
        : m_scheme(value)
        , m_bus(QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"portal"_s))
    {
        m_bus.registerObject(u"/org/freedesktop/portal/desktop"_s, this,
                             QDBusConnection::ExportAllContents);
        m_bus.registerService(kPortal);
    }
    ~FakePortal() override { m_bus.unregisterService(kPortal); }

    void set(uint value)
    {
        m_scheme = value;
        Q_EMIT SettingChanged(kGroup, u"color-scheme"_s, QDBusVariant(value));
    }

public Q_SLOTS:
    QDBusVariant Read(const QString &group, const QString &key)
    {
        const bool known = group == kGroup && key == "color-scheme"_L1;
        return QDBusVariant(QVariant::fromValue(QDBusVariant(known ? m_scheme : 99U)));
    }

Q_SIGNALS:
    void SettingChanged(const QString &group, const QString &key, const QDBusVariant &value);

private:
    uint m_scheme;
    QDBusConnection m_bus;
};

class TestStyle final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u"."_s)); }
    void paletteTable();
    void qtRoles();
    void placeholders_data();
    void placeholders();
    void onlyExactPlaceholders();
    void theTemplate();
    void effectiveScheme();
    void portalAnswers();
    void followsTheDesktop();
    void titleBars();
    void stylesOnlyOnChange();
    void icons();
};

void TestStyle::paletteTable()
{
    const auto colors = [](ColorScheme scheme) {
        const ThemePalette palette = ThemePalette::forScheme(scheme);
        QStringList list;
        for (const ThemePalette::Entry &entry : ThemePalette::kTemplateEntries) {
            list += palette.*entry.color;
        }
        return QStringList(list + QStringList{palette.badgeBg, palette.badgeBorder}).join(u' ');
    };
    QCOMPARE(colors(ColorScheme::Dark),
             u"#10141c #151a24 #2a3140 #222a37 #12372A #12372A #47B96D #181f2a #3d4759 "
             "#eef3f8 #a7b0bd #6f7886 #47B96D #2A7D49 #236B3E #1D5A34 #E0A63C #E56060 "
             "#D0351F #BC2E1A #A82A16 #303438 #455365"_s);
    QCOMPARE(colors(ColorScheme::Light),
             u"#f1f3f6 #f6f7f9 #d9dde5 #e9edf3 #E6F4EE #E6F4EE #04784B #ffffff #c2c9d6 "
             "#172033 #5f6673 #868d9a #04955A #037A4B #02633D #014E30 #B45309 #D23B3B #D93520 "
             "#C4321C #B12C19 #f0f2f5 #cbd5e2"_s);
    QCOMPARE(colors(ColorScheme::Unknown), colors(ColorScheme::Light));
}

void TestStyle::qtRoles()
{
    ThemePalette theme = ThemePalette::forScheme(ColorScheme::Dark);
    const QPalette palette = theme.toQPalette();
    for (const auto group : {QPalette::Active, QPalette::Disabled}) {
        const bool disabled = group == QPalette::Disabled;
        const QColor text(disabled ? theme.disabledText : theme.textPrimary);
        const QColor border(theme.surfaceBorder);
        const QHash<QPalette::ColorRole, QColor> expected{
            {QPalette::Window, QColor(theme.windowBg)},
            {QPalette::AlternateBase, QColor(theme.windowBg)},
            {QPalette::Button, QColor(theme.surface)},
            {QPalette::ToolTipBase, QColor(theme.surface)},
            {QPalette::Light, QColor(theme.surface).lighter(115)},
            {QPalette::Mid, border},
            {QPalette::Dark, border.darker(120)},
            {QPalette::Shadow, border.darker(140)},
            {QPalette::ButtonText, text},
            {QPalette::ToolTipText, QColor(theme.textPrimary)},
            {QPalette::PlaceholderText, QColor(theme.textMuted)},
            {QPalette::Highlight, disabled ? border : QColor(theme.accentStrong)},
            {QPalette::HighlightedText, disabled ? text : QColor(Qt::white)}};
        for (const auto [role, color] : expected.asKeyValueRange()) {
            QCOMPARE(palette.color(group, role), color);
        }
    }
    theme.windowBg = u"no colour"_s;
    QVERIFY(!theme.toQPalette().color(QPalette::Window).isValid());
}

void TestStyle::placeholders_data()
{
    QTest::addColumn<QString>("expected");
    const ThemePalette palette = ThemePalette::forScheme(ColorScheme::Light);
    for (const ThemePalette::Entry &entry : ThemePalette::kTemplateEntries) {
        QTest::newRow(entry.name) << palette.*entry.color;
    }
    QTest::newRow("segmentDividerBorder") << u"border-left: 1px solid #c2c9d6"_s;
    QTest::newRow("segmentStartNoDivider") << u"border-left: 0"_s;
    QTest::newRow("segmentStartTopRadius") << u"border-top-left-radius: 6px"_s;
    QTest::newRow("segmentStartBottomRadius") << u"border-bottom-left-radius: 6px"_s;
    QTest::newRow("segmentEndTopRadius") << u"border-top-right-radius: 6px"_s;
    QTest::newRow("segmentEndBottomRadius") << u"border-bottom-right-radius: 6px"_s;
    QTest::newRow("attachedStartBottomRadius") << u"border-bottom-left-radius: 0px"_s;
    QTest::newRow("attachedEndBottomRadius") << u"border-bottom-right-radius: 0px"_s;
    QTest::newRow("chevronPadding") << u"padding-right: 28px"_s;
    QTest::newRow("searchClearPadding") << u"padding-right: 32px"_s;
    QTest::newRow("tabInnerDividerClear") << u"border-left: 0px"_s;
    QTest::newRow("tabStartOuterBorder") << u"border-left: 1px solid #c2c9d6"_s;
    QTest::newRow("tabStartTopRadius") << u"border-top-left-radius: 6px"_s;
    QTest::newRow("tabStartBottomRadius") << u"border-bottom-left-radius: 0px"_s;
    QTest::newRow("tabEndTopRadius") << u"border-top-right-radius: 6px"_s;
    QTest::newRow("tabEndBottomRadius") << u"border-bottom-right-radius: 0px"_s;
    QTest::newRow("sidebarMinWidth") << u"92"_s;
    QTest::newRow("sidebarButtonMinHeight") << u"72"_s;
    QTest::newRow("sidebarLabelFontPx") << u"12"_s;
}

void TestStyle::placeholders()
{
    QFETCH(const QString, expected);
    const ThemePalette palette = ThemePalette::forScheme(ColorScheme::Light);
    const QString name = u"@%1@"_s.arg(QLatin1StringView(QTest::currentDataTag()));
    const QString text = name + u' ' + name;
    const auto fill = [&](Qt::LayoutDirection direction) {
        return themetemplate::fill(text, palette, direction);
    };
    QCOMPARE(fill(Qt::LeftToRight), expected + u' ' + expected);
    QCOMPARE(fill(Qt::LayoutDirectionAuto), fill(Qt::LeftToRight));
    QCOMPARE(fill(Qt::RightToLeft), mirrored(fill(Qt::LeftToRight)));
}

void TestStyle::onlyExactPlaceholders()
{
    const ThemePalette palette = ThemePalette::forScheme(ColorScheme::Dark);
    for (const QString &text : {u"@Surface@"_s, u"@SURFACE@"_s, u"surface"_s, u"@badgeBg@"_s}) {
        QCOMPARE(themetemplate::fill(text, palette, Qt::LeftToRight), text);
    }
}

void TestStyle::theTemplate()
{
    for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        const ThemePalette palette = ThemePalette::forScheme(ColorScheme::Dark);
        const QString sheet = themetemplate::render(palette, direction);
        QVERIFY(sheet.contains(palette.accentStrong));
        QVERIFY2(!sheet.contains(u'@'), "a placeholder is unknown");
        QCOMPARE(themetemplate::render(palette, direction), sheet);
        QWidget widget; // Qt warns of a sheet that it can't parse, once it is used.
        widget.setStyleSheet(sheet);
        widget.ensurePolished();
    }
}

void TestStyle::effectiveScheme()
{
    using enum ColorScheme;
    QCOMPARE(Theme::effectiveScheme(u"light"_s, Dark), Light);
    QCOMPARE(Theme::effectiveScheme(u"dark"_s, Light), Dark);
    QCOMPARE(Theme::effectiveScheme(u"system"_s, Dark), Dark);
    QCOMPARE(Theme::effectiveScheme(u"system"_s, Light), Light);
    QCOMPARE(Theme::effectiveScheme(u"system"_s, Unknown), Light);
    QCOMPARE(Theme::effectiveScheme(u"Dark"_s, Unknown), Light);
}

void TestStyle::portalAnswers()
{
    PortalColorScheme scheme(QDBusConnection::sessionBus());
    QSignalSpy answered(&scheme, &PortalColorScheme::answered);
    QSignalSpy unavailable(&scheme, &PortalColorScheme::unavailable);
    scheme.ask();
    QTRY_COMPARE(unavailable.size(), 1);

    FakePortal portal(1);
    scheme.ask();
    QTRY_COMPARE(answered.size(), 1);
    Q_EMIT portal.SettingChanged(kGroup, u"contrast"_s, QDBusVariant(1U));
    for (const uint value : {0U, 2U, 7U}) {
        portal.set(value);
    }
    QTRY_COMPARE(answered.size(), 4);
    const QList expected{ColorScheme::Dark, ColorScheme::Unknown, ColorScheme::Light,
                         ColorScheme::Unknown};
    for (qsizetype i = 0; i < expected.size(); ++i) {
        QCOMPARE(answered.at(i).constFirst().value<ColorScheme>(), expected.at(i));
    }
}

void TestStyle::followsTheDesktop()
{
    FakePortal portal(1);
    DesktopColorScheme desktop;
    Theme theme(desktop, u"system"_s);
    QSignalSpy changed(&theme, &Theme::changed);
    QDialog dialog;
    theme.attach(dialog);
    const auto shows = [&](ColorScheme scheme) {
        const ThemePalette palette = ThemePalette::forScheme(scheme);
        return theme.palette() == palette &&
               dialog.palette().color(QPalette::Window) == QColor(palette.windowBg) &&
               dialog.styleSheet().contains(palette.windowBg);
    };
    if constexpr (!qtcompat::kHasColorSchemeHint) {
        QTRY_VERIFY(shows(ColorScheme::Dark));
        portal.set(0);
        QTRY_VERIFY(shows(ColorScheme::Light));
        QCOMPARE(desktop.current(), ColorScheme::Unknown);
        QCOMPARE(changed.size(), 2);
    }
    changed.clear();
    theme.setAppearance(u"light"_s);
    QCOMPARE(changed.size(), 0);
    theme.setAppearance(u"dark"_s);
    QVERIFY(shows(ColorScheme::Dark));
    QCOMPARE(changed.size(), 1);
}

void TestStyle::titleBars()
{
    QList<QColor> seen;
    bool lastDark = false;
    DesktopColorScheme desktop;
    Theme theme(desktop, u"dark"_s);
    theme.setTitleBarHook([&](QWidget &, const QColor &background, const QColor &text, bool dark) {
        seen = {background, text};
        lastDark = dark;
    });
    QWidget window;
    theme.applyTo(window);
    const ThemePalette darkColors = theme.palette();
    QCOMPARE(seen, QList<QColor>({QColor(darkColors.windowBg), QColor(darkColors.textPrimary)}));
    QVERIFY(lastDark);

    QDialog dialog;
    theme.attach(dialog);
    seen.clear();
    dialog.show();
    QCOMPARE(seen.value(0), QColor(darkColors.windowBg));
    theme.setAppearance(u"light"_s);
    QCOMPARE(seen.value(1), QColor(theme.palette().textPrimary));
    QVERIFY(!lastDark);
}

void TestStyle::stylesOnlyOnChange()
{
    QWidget root;
    QLabel label(&root);
    root.setStyleSheet(u"QLabel[vantuRole=\"error\"] { min-width: 77px; }"_s);
    label.ensurePolished();
    QVERIFY(setStyleProperty(label, "vantuRole", u"error"_s));
    QCOMPARE(label.minimumWidth(), 77);
    QVERIFY(!setStyleProperty(label, "vantuRole", u"error"_s));
    QVERIFY(setStyleProperty(label, "vantuRole", {}));
    QVERIFY(!label.dynamicPropertyNames().contains("vantuRole"));
}

void TestStyle::icons()
{
    for (const QString &name :
         {u"vpn"_s, u"locations"_s, u"mode"_s, u"settings"_s, u"account"_s, u"warning"_s}) {
        const QPixmap icon = tintedIcon(u":/icons/%1.svg"_s.arg(name), Qt::red, 24, 2.0);
        QCOMPARE(icon.deviceIndependentSize(), QSizeF(24, 24));
        const QImage image = icon.toImage();
        int solid = 0;
        for (int i = 0; i < image.width() * image.height(); ++i) {
            const QColor color = image.pixelColor(i % image.width(), i / image.width());
            QVERIFY(color.alpha() < 255 || color == QColor(Qt::red));
            solid += color.alpha() == 255 ? 1 : 0;
        }
        QVERIFY2(solid > 50, qPrintable(name));
    }
    for (const QString &name : {u"app"_s, u"app-16"_s, u"app-512"_s, u"tray-on"_s, u"tray-off"_s}) {
        QVERIFY2(QImage(u":/icons/%1.png"_s.arg(name)).width() >= 16, qPrintable(name));
    }
}

QTEST_MAIN(TestStyle)
#include "tst_style.moc"
