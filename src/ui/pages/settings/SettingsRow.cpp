#include "SettingsRow.h"

#include "ElidedLabel.h"
#include "SegmentedControl.h"
#include "SettingsRowLayout.h"
#include "StyleProperty.h"
#include "TextStyle.h"

#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int kTextGap = 4;
constexpr int kBelowGap = 8;
/// More than any text takes, however long in translation.
constexpr int kMostLines = 12;

ElidedLabel *makeParagraph(const QString &text, TextStyle style, QWidget *parent)
{
    auto *label = new ElidedLabel(text, parent);
    label->setMaximumLines(kMostLines);
    label->setWordWrap(true); // So that layouts ask for the height at a width.
    setTextStyle(*label, style);
    return label;
}

} // namespace

SettingsRow::SettingsRow(QWidget *parent)
    : QWidget(parent)
    , m_column(new QVBoxLayout(this))
{
    m_column->setContentsMargins(0, 0, 0, 0);
    m_column->setSpacing(kBelowGap);
}

SettingsRowLayout &SettingsRow::top()
{
    if (!m_top) {
        m_top = new SettingsRowLayout;
        m_column->insertLayout(0, m_top);
        m_texts = new QVBoxLayout;
        m_texts->setSpacing(kTextGap);
        m_top->addLayout(m_texts);
    }
    return *m_top;
}

ElidedLabel *SettingsRow::makeNote(const QString &text, QWidget *parent)
{
    ElidedLabel *label = makeParagraph(text, TextStyle::Note, parent);
    setStyleProperty(*label, "vantuRole", u"muted"_s);
    return label;
}

ElidedLabel *SettingsRow::addLine(const QString &text, const QString &objectName)
{
    return addText(makeParagraph(text, TextStyle::Body, this), objectName);
}

ElidedLabel *SettingsRow::addNote(const QString &text, const QString &objectName)
{
    return addText(makeNote(text, this), objectName);
}

ElidedLabel *SettingsRow::addText(ElidedLabel *label, const QString &objectName)
{
    label->setObjectName(objectName);
    top();
    m_texts->addWidget(label);
    return label;
}

void SettingsRow::setControl(QWidget *control)
{
    top().addWidget(control);
}

SegmentedControl *SettingsRow::setChoices(const QString &name, const QList<Choice> &choices)
{
    auto *control = new SegmentedControl(name, this);
    for (const Choice &choice : choices) {
        QPushButton *button = control->addSegment(choice.value, choice.text, choice.objectName);
        button->setAccessibleName(choice.accessibleName.isEmpty()
                                      ? u"%1: %2"_s.arg(name, choice.text)
                                      : choice.accessibleName);
    }
    setControl(control);
    return control;
}

void SettingsRow::addBelow(QWidget *widget)
{
    m_column->addWidget(widget);
}
