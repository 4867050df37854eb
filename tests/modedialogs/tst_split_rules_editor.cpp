#include "ConfirmDialog.h"
#include "DesktopColorScheme.h"
#include "SplitRulesEditorDialog.h"
#include "SplitRulesText.h"
#include "Theme.h"

#include <QLabel>
#include <QPushButton>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTest>
#include <QTextCursor>

#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

class TestSplitRulesEditor final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_dialog.reset(); }
    void leaving_data();
    void leaving();
    void listsAreKeptApart();
    void importTaken();
    void loading();
    void newRulesWhileEditing();
    void lastWishCounts();
    void lineBreaks();
    void differsAfterAnyEdits();

private:
    template<typename Widget = QPushButton>
    Widget *find(const char *name) const
    {
        return m_dialog->findChild<Widget *>(QLatin1StringView(name));
    }
    ConfirmDialog *question() const { return m_dialog->findChild<ConfirmDialog *>(); }
    QString text() const { return m_text->toPlainText(); }
    void answer(const char *button)
    {
        QVERIFY(question());
        find(button)->click();
        QTRY_VERIFY(!question());
    }

    DesktopColorScheme m_desktop;
    Theme m_theme{m_desktop, u"light"_s};
    SplitRulesInfo m_rules;
    std::unique_ptr<SplitRulesEditorDialog> m_dialog;
    SplitRulesText *m_text = nullptr;
};

void TestSplitRulesEditor::init()
{
    m_rules.rules = {{u"direct"_s, {u"a.example"_s, u"b.example"_s}}, {u"tunnel"_s, {u"t"_s}}};
    m_dialog = std::make_unique<SplitRulesEditorDialog>(m_theme);
    m_text = find<SplitRulesText>("VantuSplitRulesEditorText");
    m_dialog->setRules(m_rules);
    m_dialog->open();
    QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
    QCOMPARE(text(), u"a.example\nb.example"_s);
}

void TestSplitRulesEditor::leaving_data()
{
    QTest::addColumn<QString>("button");
    QTest::newRow("cancel") << u"VantuSplitRulesCancel"_s;
    QTest::newRow("another list") << u"VantuSplitRulesTunnel"_s;
}

void TestSplitRulesEditor::leaving()
{
    QFETCH(const QString, button);
    auto *leave = m_dialog->findChild<QPushButton *>(button);
    const auto hasLeft = [&] {
        return !m_dialog->isVisible() || m_dialog->currentKind() == "tunnel"_L1;
    };
    QTest::keyClicks(m_text, u"x"_s);
    leave->click();
    answer("VantuConfirmDialogReject");
    QVERIFY(!hasLeft() && text() == "xa.example\nb.example"_L1);
    QTest::keyClick(m_text, Qt::Key_Backspace);
    leave->click(); // As it was: nothing to ask.
    QVERIFY(!question() && hasLeft());
}

void TestSplitRulesEditor::listsAreKeptApart()
{
    find("VantuSplitRulesTunnel")->click();
    QCOMPARE(text(), u"t"_s);
    m_text->undo(); // Must not bring the other list back.
    QCOMPARE(text(), u"t"_s);
    find("VantuSplitRulesClear")->setFocus();
    find("VantuSplitRulesClear")->click();
    QVERIFY(text().isEmpty() && m_dialog->isDirty() && m_text->hasFocus());
    m_text->undo();
    find("VantuSplitRulesBlock")->click();
    QVERIFY(!question() && text().isEmpty());
    QVERIFY(!find("VantuSplitRulesClear")->isEnabled());
}

void TestSplitRulesEditor::importTaken()
{
    QSignalSpy requested(m_dialog.get(), &SplitRulesEditorDialog::importRequested);
    QPushButton *apply = find("VantuSplitRulesApply");
    m_dialog->finishImport({}); // The answer to an import of an earlier dialog.
    QVERIFY(m_dialog->isVisible());
    QTest::keyClicks(m_text, u"x"_s);
    QTest::keyClick(m_text, Qt::Key_Return);
    apply->click();
    QCOMPARE(requested, {QVariantList({u"direct"_s, u"x\na.example\nb.example"_s})});
    QCOMPARE(apply->text(), u"Saving rules..."_s);
    QVERIFY(apply->sizeHint().width() <= apply->width()); // Nothing moves.
    QVERIFY(!apply->isEnabled() && !find("VantuSplitRulesTunnel")->isEnabled());
    QTest::keyClicks(m_text, u"y"_s);
    QCOMPARE(text(), u"x\na.example\nb.example"_s);
    int left = 0;
    m_dialog->reject(); // It can't be taken back any more.
    m_dialog->whenSafeToDiscard([&] { ++left; });
    QVERIFY(!question() && !find("VantuSplitRulesCancel")->isEnabled());
    m_dialog->finishImport(u"refused"_s);
    QVERIFY(m_dialog->isVisible() && m_dialog->isDirty());
    apply->click();
    QCOMPARE(left, 0);
    m_dialog->whenSafeToDiscard([&] { left += m_dialog->isVisible() ? 2 : 1; });
    m_dialog->finishImport({});
    QCOMPARE(left, 1);
}

void TestSplitRulesEditor::loading()
{
    m_dialog->setLoading(true);
    QCOMPARE(find("VantuSplitRulesApply")->text(), u"Loading rules..."_s);
    QTest::keyClicks(m_text, u"x"_s);
    m_dialog->setLoading(false);
    m_dialog->setLoadError(u"down\n"_s);
    QCOMPARE(find<QLabel>("VantuSplitRulesError")->text(), u"down"_s);
    QTest::keyClicks(m_text, u"x"_s); // It may not be what the daemon holds.
    QVERIFY(!m_dialog->isDirty() && !find("VantuSplitRulesClear")->isEnabled());
    m_dialog->setLoadError({});
    QVERIFY(!find<QLabel>("VantuSplitRulesError")->isVisible());
    QTest::keyClicks(m_text, u"x"_s);
    QVERIFY(m_dialog->isDirty());
}

void TestSplitRulesEditor::newRulesWhileEditing()
{
    const auto hold = [this](const QStringList &rules) {
        m_rules.rules[u"direct"_s] = rules;
        m_dialog->setRules(m_rules);
        return m_dialog->isDirty();
    };
    QTest::keyClicks(m_text, u"x"_s);
    QVERIFY(hold({u"c"_s}));
    QCOMPARE(text(), u"xa.example\nb.example"_s);
    QVERIFY(!hold({u"xa.example"_s, u"b.example"_s}));
    QVERIFY(!hold({u"c"_s}));
    QCOMPARE(text(), u"c"_s);
}

void TestSplitRulesEditor::lastWishCounts()
{
    QStringList done;
    m_dialog->whenSafeToDiscard([&] { done += u"clean"_s; });
    QTest::keyClicks(m_text, u"x"_s);
    m_dialog->whenSafeToDiscard([&] { done += u"first"_s; });
    m_dialog->whenSafeToDiscard([&] { done += u"second"_s; });
    answer("VantuConfirmDialogAccept");
    QVERIFY(!m_dialog->isDirty());
    QTest::keyClicks(m_text, u"x"_s);
    m_dialog->whenSafeToDiscard([&] { done += u"never"_s; });
    m_dialog->closeForGood();
    QTRY_VERIFY(!question());
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(done, QStringList({u"clean"_s, u"second"_s}));
}

void TestSplitRulesEditor::lineBreaks()
{
    SplitRulesText field;
    for (const auto &[rule, same] :
         {std::pair{u"a"_s, u"a\n"_s}, {u""_s, u"\n"_s}, {u"a\r\nb\rc\n"_s, u"a\nb\nc"_s}}) {
        field.load({rule});
        QVERIFY(!field.differs());
        field.setPlainText(same);
        QVERIFY(!field.differs());
        field.setPlainText(same + u"\n\n"_s);
        QVERIFY(field.differs());
    }
}

void TestSplitRulesEditor::differsAfterAnyEdits()
{
    // What is compared depends on all edits before, so that it takes many to trust it.
    QRandomGenerator random(7);
    const QString rules = u"ab\nba\na\n\nb"_s;
    const QStringList pieces{u"a"_s, u"b"_s, u"\n"_s, QString(), u"ab\n"_s};
    SplitRulesText field;
    field.load(rules.split(u'\n'));
    for (int step = 0; step < 20000; ++step) {
        QTextCursor cursor(field.document());
        const int length = field.document()->characterCount() - 1;
        cursor.setPosition(random.bounded(length + 1));
        cursor.setPosition(qMin(cursor.position() + random.bounded(3), length),
                           QTextCursor::KeepAnchor);
        if (random.bounded(8) < 5) {
            field.undo();
        } else {
            cursor.insertText(pieces.at(random.bounded(5)));
        }
        QString text = field.toPlainText();
        text.chop(text.endsWith(u'\n') ? 1 : 0);
        QCOMPARE(field.differs(), text != rules);
    }
}

QTEST_MAIN(TestSplitRulesEditor)
#include "tst_split_rules_editor.moc"
