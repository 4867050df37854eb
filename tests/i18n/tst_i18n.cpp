#include "TranslationManager.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTest>
#include <QXmlStreamReader>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

struct Counting
{
    QLatin1StringView language;
    qsizetype forms = 0; ///< Of a counted text.
};

constexpr std::array kCounting{Counting{"ar"_L1, 6}, Counting{"de"_L1, 2},
                               Counting{"zh_Hans"_L1, 1}};

struct Message
{
    QString context;
    QString source;
    QStringList forms; ///< One, or as many as the language counts with.
    bool isCounted = false;
    bool isFinished = true;
};

struct TranslationFile
{
    QString language;
    QList<Message> messages;
};

QString attribute(const QXmlStreamReader &xml, QLatin1StringView name)
{
    return xml.attributes().value(name).toString();
}

Message readMessage(QXmlStreamReader &xml, const QString &context)
{
    Message message;
    message.context = context;
    message.isCounted = attribute(xml, "numerus"_L1) == "yes"_L1;
    while (xml.readNextStartElement()) {
        if (xml.name() == "source"_L1) {
            message.source = xml.readElementText();
        } else if (xml.name() != "translation"_L1) {
            xml.skipCurrentElement();
        } else {
            message.isFinished = attribute(xml, "type"_L1).isEmpty();
            if (!message.isCounted) {
                message.forms << xml.readElementText();
            }
            while (message.isCounted && xml.readNextStartElement()) {
                message.forms << xml.readElementText();
            }
        }
    }
    return message;
}

TranslationFile read(QFile &device)
{
    TranslationFile file;
    QXmlStreamReader xml(&device);
    QString context;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (xml.name() == "TS"_L1) {
            file.language = attribute(xml, "language"_L1);
        } else if (xml.name() == "name"_L1) {
            context = xml.readElementText();
        } else if (xml.name() == "message"_L1) {
            file.messages << readMessage(xml, context);
        }
    }
    return xml.hasError() ? TranslationFile{} : file;
}

/// All matches of `pattern`, in a fixed order.
QStringList finds(const QString &text, const QRegularExpression &pattern)
{
    QStringList found;
    auto matches = pattern.globalMatch(text);
    while (matches.hasNext()) {
        found << matches.next().captured();
    }
    found.sort();
    return found;
}

QStringList placeMarkers(const QString &text)
{
    static const QRegularExpression pattern(u"%L?[0-9]+"_s);
    return finds(text, pattern);
}

QStringList outerBlanks(const QString &text)
{
    static const QRegularExpression pattern(u"\\A\\s+|\\s+\\z"_s);
    return finds(text, pattern);
}

QStringList markup(const QString &text)
{
    static const QRegularExpression pattern(u"[<>]|`[^`]*`"_s);
    return finds(text, pattern);
}

/// What reads the same in every language, but for capitals: names, and addresses.
QStringList names(const QString &text)
{
    static const QRegularExpression pattern(
        u"vantu(vpn| proxy)?|wireguard|gfwlist|\\bpac\\b|dns|[0-9]+(\\.[0-9]+){3}"_s);
    QStringList found = finds(text.toLower(), pattern);
    found.removeDuplicates();
    return found;
}

/// The kind of mark that the text ends with, whatever its script.
QStringList ending(const QString &text)
{
    static constexpr std::array<QStringView, 4> kinds{u"…", u".。", u":：", u"?？؟"};
    if (text.endsWith("..."_L1)) {
        return {u"..."_s};
    }
    for (const QStringView kind : kinds) {
        if (!text.isEmpty() && kind.contains(text.back())) {
            return {kind.toString()};
        }
    }
    return {};
}

/// What must be the same in a text and its translation, by the name of the fault.
struct Likeness
{
    QLatin1StringView fault;
    QStringList (*parts)(const QString &text) = nullptr;
};

constexpr std::array kLikenesses{
    Likeness{"place markers"_L1, &placeMarkers},
    Likeness{"line breaks"_L1,
             [](const QString &text) { return QStringList(text.count(u'\n'), u"\n"_s); }},
    Likeness{"outer blanks"_L1, &outerBlanks},
    Likeness{"accelerators"_L1,
             [](const QString &text) { return QStringList(text.count(u'&'), u"&"_s); }},
    Likeness{"markup"_L1, &markup},
    Likeness{"names"_L1, &names},
    Likeness{"ending"_L1, &ending},
};

/// What is wrong with a message in a language of `formCount` plural forms.
QStringList faultsOf(const Message &message, qsizetype formCount)
{
    QStringList faults;
    if (!message.isFinished) {
        faults << u"unfinished"_s;
    }
    if (message.forms.size() != (message.isCounted ? formCount : 1)) {
        faults << u"number of forms"_s;
    }
    for (const QString &form : message.forms) {
        if (form.isEmpty()) {
            faults << u"empty"_s;
            continue;
        }
        for (const Likeness &likeness : kLikenesses) {
            if (likeness.parts(form) != likeness.parts(message.source)) {
                faults << likeness.fault;
            }
        }
    }
    // "One" and "two" may be words, but where all are, the number is lost.
    const bool hasNumber = std::any_of(message.forms.cbegin(), message.forms.cend(),
                                       [](const QString &form) { return form.contains("%n"_L1); });
    if (hasNumber != message.source.contains("%n"_L1)) {
        faults << u"number"_s;
    }
    faults.removeDuplicates();
    return faults;
}

QStringList languages()
{
    QStringList codes = QDir(QStringLiteral(VANTU_TRANSLATIONS)).entryList({u"vantu_*.ts"_s});
    for (QString &code : codes) {
        code = code.sliced(6).chopped(3);
    }
    return codes;
}

} // namespace

class TestI18n final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void faultIsFound();
    void translationIsSound_data();
    void translationIsSound();
    void translationIsShipped();
    void guideExplainsFailures();
};

/// A few of the likely faults, so that the checks above don't pass everything.
void TestI18n::faultIsFound()
{
    const auto fault = [](const QString &source, const QStringList &forms) {
        const Message message{{}, source, forms, forms.size() > 1};
        return faultsOf(message, 2).value(0);
    };
    QCOMPARE(fault(u"See %1: %2."_s, {u"Siehe %2 in %1."_s}), QString());
    QCOMPARE(fault(u"%n place(s)"_s, {u"Ein Ort"_s, u"%n Orte"_s}), QString());
    QCOMPARE(fault(u"%n place(s)"_s, {u"Ort"_s, u"Orte"_s}), u"number"_s);
    QCOMPARE(fault(u"%1 of %2"_s, {u"%1"_s}), u"place markers"_s);
}

void TestI18n::translationIsSound_data()
{
    QTest::addColumn<QString>("language");
    QVERIFY(languages().size() >= 3);
    for (const QString &language : languages()) {
        QTest::newRow(qPrintable(language)) << language;
    }
}

void TestI18n::translationIsSound()
{
    QFETCH(QString, language);
    QFile source(QStringLiteral(VANTU_TRANSLATIONS "/vantu_%1.ts").arg(language));
    QVERIFY(source.open(QFile::ReadOnly));
    const TranslationFile file = read(source);
    QCOMPARE(file.language, language);
    const auto *counting =
        std::find_if(kCounting.begin(), kCounting.end(),
                     [&](const Counting &each) { return each.language == language; });
    QVERIFY2(counting != kCounting.end(), "say how many plural forms it has");
    QVERIFY(!file.messages.isEmpty());
    QStringList faults;
    for (const Message &message : file.messages) {
        const QStringList found = faultsOf(message, counting->forms);
        if (!found.isEmpty()) {
            faults << u"%1, \"%2\": %3"_s.arg(message.context, message.source, found.join(u", "));
        }
    }
    QVERIFY2(faults.isEmpty(), qPrintable(u'\n' + faults.join(u'\n')));
}

void TestI18n::translationIsShipped()
{
    const auto connect = [] { return QCoreApplication::translate("VpnPage", "Connect"); };
    QStringList codes = languages();
    codes << u"de-AT"_s << u"ar-EG"_s << u"sw"_s; // The last one has no translation.
    for (const QString &code : codes) {
        TranslationManager manager;
        QVERIFY(manager.load(u"de"_s));
        QCOMPARE(manager.load(code), code != u"sw"_s);
        QCOMPARE(manager.currentCode() == u"en-US"_s, code == u"sw"_s);
        QCOMPARE(connect() == u"Connect"_s, code == u"sw"_s);
    }
    QCOMPARE(connect(), u"Connect"_s);
}

void TestI18n::guideExplainsFailures()
{
    QFile file(QStringLiteral(VANTU_GUIDE));
    QFile texts(QStringLiteral(VANTU_TRANSLATIONS "/vantu_de.ts"));
    QVERIFY(file.open(QFile::ReadOnly) && texts.open(QFile::ReadOnly));
    const QString guide = QString::fromUtf8(file.readAll()).simplified();
    static const QRegularExpression failure(
        u"^Could not|[Ff]ailed$|incompatible|denied|not running|too old|does not exist|"
        "is unavailable|could not be|before it could|may be stale"_s);
    QStringList failures;
    for (const Message &message : read(texts).messages) {
        // What is filled in when it is shown can't stand in the guide.
        const QString text = message.source.section(u'%', 0, 0).simplified();
        if (text.contains(failure) && !text.contains(u"Kill Switch is on"_s)) {
            failures << text;
        }
    }
    QVERIFY(failures.size() > 40);
    // These are not translated; and of what was canceled nobody is told.
    static const QRegularExpression untranslated(
        u"(?<=\")(invalid |control request (?!canceled)|GUI )[^\"%]*[^\"% ]"_s);
    for (const auto &name : {u"RecordDecoders.cpp"_s, u"RecordDecoders.h"_s,
                             u"ControlTransport.cpp"_s, u"ControlProtocol.h"_s}) {
        QFile source(QStringLiteral(VANTU_CONTROL "/") + name);
        QVERIFY(source.open(QFile::ReadOnly));
        failures << finds(QString::fromUtf8(source.readAll()), untranslated);
    }
    QVERIFY(failures.contains(u"invalid purchase URL"_s));
    for (const QString &text : std::as_const(failures)) {
        QVERIFY2(guide.contains(text, Qt::CaseInsensitive), qPrintable(text));
    }
}

QTEST_GUILESS_MAIN(TestI18n)
#include "tst_i18n.moc"
