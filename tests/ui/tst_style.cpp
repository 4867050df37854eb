#include "DesktopColorScheme.h"
#include "EmbeddedIcon.h"
#include "QtCompat.h"
#include "StyleProperty.h"
#include "Theme.h"
#include "ThemePalette.h"
#include "ThemeTemplate.h"
#include "TintedIcon.h"

#include <QDBusConnection>
#include <QDBusVariant>
#include <QDialog>
#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

const QString kPortal = u"org.freedesktop.portal.Desktop"_s;
const QString kGroup = u"org.freedesktop.appearance"_s;

QStringList words(const QString &text)
{
    return text.split(u' ');
}

QString contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// What the expression's first group finds in the template, sorted, each once.
QStringList found(const QString &expression)
{
    QStringList list;
    const QString text = contents(u":/styles/main.qss"_s);
    for (const auto &match : QRegularExpression(expression).globalMatch(text)) {
        list += match.captured(1);
    }
    list.removeDuplicates();
    list.sort();
    return list;
}

/// How much two colours differ in lightness, from 1 to 21, as accessibility rules count it.
double ratio(const QColor &one, const QColor &other)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    const auto luminance = [linear](const QColor &color) {
        return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
               0.0722 * linear(color.blueF()) + 0.05;
    };
    const double lighter = luminance(one) / luminance(other);
    return std::max(lighter, 1 / lighter);
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
    void placeholders();
    void rendersForUse();
    void names();
    void contrast_data();
    void contrast();
    void colorsInUse();
    void effectiveScheme();
    void followsTheDesktop();
    void titleBars();
    void stylesOnlyOnChange();
    void icons();
};

void TestStyle::paletteTable()
{
    const auto colors = [](ColorScheme scheme) {
        const ThemePalette palette = ThemePalette::forScheme(scheme);
        QStringList list{palette.badgeBg, palette.badgeBorder};
        for (const ThemePalette::Entry &entry : ThemePalette::kTemplateEntries) {
            list += palette.*entry.color;
        }
        return list.join(u' ');
    };
    QCOMPARE(colors(ColorScheme::Dark),
             u"#303438 #455365 #10141c #151a24 #2a3140 #222a37 #12372A #12372A #47B96D #181f2a "
             "#3d4759 #eef3f8 #a7b0bd #6f7886 #47B96D #2A7D49 #236B3E #1D5A34 #E0A63C #E56060 "
             "#D0351F #BC2E1A #A82A16"_s);
    QCOMPARE(colors(ColorScheme::Light),
             u"#f0f2f5 #cbd5e2 #f1f3f6 #f6f7f9 #d9dde5 #e9edf3 #E6F4EE #E6F4EE #04784B #ffffff "
             "#c2c9d6 #172033 #5f6673 #868d9a #04955A #037A4B #02633D #014E30 #B45309 #D23B3B "
             "#D93520 #C4321C #B12C19"_s);
    QCOMPARE(colors(ColorScheme::Unknown), colors(ColorScheme::Light));
}

void TestStyle::qtRoles()
{
    ThemePalette theme = ThemePalette::forScheme(ColorScheme::Dark);
    const QPalette palette = theme.toQPalette();
    const auto colors = [&palette](QPalette::ColorGroup group) {
        QStringList list;
        for (const auto role : {QPalette::Window, QPalette::Button, QPalette::ButtonText,
                                QPalette::ToolTipText, QPalette::Highlight}) {
            list += palette.color(group, role).name();
        }
        return list.join(u' ');
    };
    QCOMPARE(colors(QPalette::Active), u"#10141c #181f2a #eef3f8 #eef3f8 #2a7d49"_s);
    QCOMPARE(colors(QPalette::Disabled), u"#10141c #181f2a #6f7886 #eef3f8 #3d4759"_s);
    QCOMPARE(palette.color(QPalette::Shadow), QColor(theme.surfaceBorder).darker(140));
    theme.windowBg = u"no colour"_s;
    QVERIFY(!theme.toQPalette().color(QPalette::Window).isValid());
}

void TestStyle::placeholders()
{
    const ThemePalette palette = ThemePalette::forScheme(ColorScheme::Light);
    const auto fill = [&](const QString &text, Qt::LayoutDirection direction) {
        return themetemplate::fill(text, palette, direction);
    };
    const QString text = u"@segmentDividerBorder@;@segmentStartNoDivider@;@segmentStartTopRadius@;"
                         "@segmentStartBottomRadius@;@segmentEndTopRadius@;@segmentEndBottomRadius@"
                         ";@attachedStartBottomRadius@;@attachedEndBottomRadius@;@chevronPadding@;"
                         "@searchClearPadding@;@tabInnerDividerClear@;@tabStartOuterBorder@;"
                         "@tabStartTopRadius@;@tabStartBottomRadius@;@tabEndTopRadius@;"
                         "@tabEndBottomRadius@;@sidebarMinWidth@ @sidebarButtonMinHeight@ "
                         "@sidebarLabelFontPx@ @surface@ @surface@ @Surface@ @badgeBg@"_s;
    const QString filled = fill(text, Qt::LeftToRight);
    QCOMPARE(filled,
             u"border-left: 1px solid #c2c9d6;border-left: 0;border-top-left-radius: 6px;"
             "border-bottom-left-radius: 6px;border-top-right-radius: 6px;"
             "border-bottom-right-radius: 6px;border-bottom-left-radius: 0px;"
             "border-bottom-right-radius: 0px;padding-right: 28px;padding-right: 32px;"
             "border-left: 0px;border-left: 1px solid #c2c9d6;border-top-left-radius: 6px;"
             "border-bottom-left-radius: 0px;border-top-right-radius: 6px;border-bottom-right-"
             "radius: 0px;92 72 12 #ffffff #ffffff @Surface@ @badgeBg@"_s);
    QCOMPARE(fill(text, Qt::LayoutDirectionAuto), filled);
    QString mirrored = filled; // Every "left" is "right" and the reverse.
    mirrored.replace(u"left"_s, u"\1"_s).replace(u"right"_s, u"left"_s).replace(u'\1', u"right"_s);
    QCOMPARE(fill(text, Qt::RightToLeft), mirrored);
    for (const ThemePalette::Entry &entry : ThemePalette::kTemplateEntries) {
        QCOMPARE(fill(u"@%1@"_s.arg(QLatin1StringView(entry.name)), {}), palette.*entry.color);
    }
}

void TestStyle::rendersForUse()
{
    for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        const ThemePalette palette = ThemePalette::forScheme(ColorScheme::Dark);
        const QString sheet = themetemplate::render(palette, direction);
        QVERIFY2(!sheet.contains(u'@'), "a placeholder is unknown");
        QCOMPARE(themetemplate::render(palette, direction), sheet);
        const QString braces = QString(sheet).remove(QRegularExpression(u"[^{}]"_s));
        QCOMPARE(braces, u"{}"_s.repeated(braces.size() / 2));
        QWidget widget; // Qt warns of a sheet that it can't parse, once it is used.
        widget.setStyleSheet(sheet);
        widget.ensurePolished();
    }
}

/// The template styles every name that the windows agreed on with it and no other, and the
/// windows use it and the properties, so that neither side has one misspelt.
void TestStyle::names()
{
    const QString known = contents(QFINDTESTDATA("styled_names.txt"));
    QCOMPARE(found(u"#(\\w+)"_s), known.trimmed().split(u'\n'));
    QString sources;
    QDirIterator files(QStringLiteral(VANTU_SOURCES), {u"*.cpp"_s}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        sources += contents(files.next());
    }
    const auto holds = [&sources](const QString &part) {
        return sources.contains(u'"' + part + u'"');
    };
    for (const QString &name : found(u"[#[](\\w+)"_s)) {
        bool carried = holds(name);
        for (qsizetype at = 1; !carried && at < name.size(); ++at) { // Put together of two.
            carried = holds(name.left(at)) && holds(name.sliced(at));
        }
        // The look of dialog titles without a name of their own, of which there are none.
        QVERIFY2(carried != (name == "VantuDialogTitle"_L1), qPrintable(name));
    }
}

/// The colours of text, and of marks of focus and state, on the grounds that the template
/// and the painting widgets put them on.
void TestStyle::contrast_data()
{
    QTest::addColumn<double>("least");
    QTest::addColumn<QString>("colors");
    QTest::addColumn<QString>("grounds");
    const QString all = u"windowBg surface sidebarBg sidebarHover sidebarActive"_s;
    QTest::newRow("text") << 4.5 << u"textPrimary textMuted sidebarSelectedText"_s << all;
    QTest::newRow("colored text") << 4.5 << u"error warning"_s << u"surface"_s;
    QTest::newRow("text on color")
        << 4.5 << u"white"_s
        << u"accentStrong accentHover accentPressed danger dangerHover dangerPressed"_s;
    QTest::newRow("mark") << 3.0 << u"accent textPrimary"_s << all;
    QTest::newRow("colored mark") << 3.0 << u"warning error"_s << u"windowBg surface"_s;
    QTest::newRow("tick box") << 3.0 << u"accentStrong"_s << u"surface white"_s;
}

void TestStyle::contrast()
{
    QFETCH(const double, least);
    QFETCH(const QString, colors);
    QFETCH(const QString, grounds);
    for (const auto scheme : {ColorScheme::Light, ColorScheme::Dark}) {
        const auto color = [scheme](const QString &name) {
            const ThemePalette palette = ThemePalette::forScheme(scheme);
            const QString filled = themetemplate::fill(u'@' + name + u'@', palette, {});
            return QColor(name == "white"_L1 ? name : filled);
        };
        for (const QString &name : words(colors)) {
            for (const QString &ground : words(grounds)) {
                QVERIFY2(ratio(color(name), color(ground)) >= least,
                         qPrintable(name + u" on "_s + ground));
            }
        }
    }
}

/// The template uses no other colours than these for text and for the keyboard's mark.
void TestStyle::colorsInUse()
{
    QCOMPARE(found(u"\n    color: @?(?!disabledText)(\\w+)"_s),
             words(u"error sidebarSelectedText textMuted textPrimary warning white"_s));
    QCOMPARE(found(u":focus \\{[^}]*border(?:-top)?: \\dpx solid @(\\w+)"_s),
             words(u"accent textPrimary"_s));
}

void TestStyle::effectiveScheme()
{
    using enum ColorScheme;
    const auto scheme = &Theme::effectiveScheme;
    QCOMPARE(scheme(u"light"_s, Dark), Light);
    QCOMPARE(scheme(u"dark"_s, Light), Dark);
    QCOMPARE(scheme(u"system"_s, Dark), Dark);
    QCOMPARE(scheme(u"system"_s, Unknown), Light);
    QCOMPARE(scheme(u"Dark"_s, Light), Light);
}

void TestStyle::followsTheDesktop()
{
    using enum ColorScheme;
    std::optional<FakePortal> portal(1);
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
    if (qtcompat::colorSchemeHint() == Unknown) {
        QTRY_VERIFY(shows(Dark));
        portal.reset();
        portal.emplace(2U);
        QTRY_VERIFY(shows(Light));
        for (const auto &[value, scheme] : {std::pair(0U, Unknown), {2U, Light}, {7U, Unknown}}) {
            portal->set(value);
            QTRY_COMPARE(desktop.current(), scheme);
            Q_EMIT portal->SettingChanged(kGroup, u"contrast"_s, QDBusVariant(1U));
            QVERIFY(shows(Light));
        }
        QCOMPARE(changed.size(), 2);
    }
    changed.clear();
    theme.setAppearance(u"light"_s);
    QCOMPARE(changed.size(), 0);
    theme.setAppearance(u"dark"_s);
    QVERIFY(shows(Dark));
    QCOMPARE(changed.size(), 1);
}

void TestStyle::titleBars()
{
    QStringList seen;
    DesktopColorScheme desktop;
    Theme theme(desktop, u"dark"_s);
    theme.setTitleBarHook([&](QWidget &, const QColor &ground, const QColor &text, bool dark) {
        seen += ground.name() + text.name() + (dark ? u" dark"_s : u" light"_s);
    });
    QWidget window;
    theme.applyTo(window);
    QCOMPARE(seen, QStringList(u"#10141c#eef3f8 dark"_s));
    QDialog dialog;
    theme.attach(dialog);
    dialog.show();
    theme.setAppearance(u"light"_s);
    QCOMPARE(seen.value(1), seen.constFirst());
    QCOMPARE(seen.constLast(), u"#f1f3f6#172033 light"_s);
    QCOMPARE(dialog.palette(), theme.palette().toQPalette());
}

void TestStyle::stylesOnlyOnChange()
{
    QLabel label;
    label.setStyleSheet(u"QLabel[vantuRole=\"error\"] { min-width: 77px; }"_s);
    label.ensurePolished();
    QVERIFY(setStyleProperty(label, "vantuRole", u"error"_s));
    QCOMPARE(label.minimumWidth(), 77);
    QVERIFY(!setStyleProperty(label, "vantuRole", u"error"_s));
    QVERIFY(setStyleProperty(label, "vantuRole", {}));
    QVERIFY(!label.dynamicPropertyNames().contains("vantuRole"));
}

void TestStyle::icons()
{
    for (const char *name :
         {"vpn", "locations", "mode", "settings", "account", "warning", "clear", "close", "search",
          "star", "star-filled", "locations-refresh", "locations-expand", "locations-collapse"}) {
        tintedIcon(u":/icons/%1.svg"_s.arg(QLatin1StringView(name)), Qt::red, 24);
    }
    const QImage star = tintedIcon(u":/icons/star-filled.svg"_s, Qt::red, 24, 2.0).toImage();
    QCOMPARE(star.size(), QSize(48, 48));
    QCOMPARE(star.pixelColor(24, 24), QColor(Qt::red));
    QCOMPARE(star.pixelColor(1, 1).alpha(), 0);
    for (const char *name : {"app.png", "app-16.png", "tray-on.png", "tray-off.png", "check.png"}) {
        QVERIFY2(!QImage(u":/icons/"_s + QLatin1StringView(name)).isNull(), name);
    }
    const QImage tray(u":/icons/tray-on.png"_s);
    const QIcon icon = embeddedIcon(u":/icons/tray-on.png"_s);
    QCOMPARE(icon.availableSizes(), QList<QSize>{tray.size()});
    QCOMPARE(icon.pixmap(tray.size(), 1.0).toImage(), QPixmap::fromImage(tray).toImage());
    QCOMPARE(icon.pixmap(QSize(16, 16), 2.0).size(), QSize(32, 32));
}

QTEST_MAIN(TestStyle)
#include "tst_style.moc"
