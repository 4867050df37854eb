#include "SettingsField.h"

#include "ElidedLabel.h"
#include "SettingsRow.h"
#include "SettingsSituation.h"
#include "StyleProperty.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int kGap = 8;
constexpr int kLeastEditWidth = 120;

} // namespace

SettingsField::SettingsField(const Texts &texts, Check check, QWidget *parent)
    : QWidget(parent)
    , m_check(std::move(check))
    , m_note(texts.note)
    , m_line(new QHBoxLayout)
    , m_edit(new QLineEdit(this))
    , m_hint(SettingsRow::makeNote(texts.note, this))
{
    m_edit->setObjectName(texts.objectName);
    m_edit->setAccessibleName(texts.name);
    m_edit->setPlaceholderText(texts.placeholder);
    m_edit->setMinimumWidth(kLeastEditWidth);
    // Addresses read from left to right everywhere, but begin where other texts do.
    m_edit->setAlignment(isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft);
    m_edit->setLayoutDirection(Qt::LeftToRight);
    m_line->setSpacing(kGap);
    m_line->addWidget(m_edit, 1);

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(kGap);
    column->addLayout(m_line);
    column->addWidget(m_hint);
    connect(m_edit, &QLineEdit::textEdited, this, &SettingsField::onEdited);
    connect(m_edit, &QLineEdit::returnPressed, this, &SettingsField::submitted);
    showHint();
}

QPushButton *SettingsField::addButton(const QString &text, const QString &accessibleName,
                                      const QString &objectName)
{
    auto *button = new QPushButton(text, this);
    button->setObjectName(objectName);
    button->setAccessibleName(accessibleName);
    button->setAutoDefault(true); // Return presses it, like Space.
    m_line->addWidget(button);
    m_buttons.append(button);
    return button;
}

QString SettingsField::text() const
{
    return m_edit->text();
}

void SettingsField::setText(const QString &text)
{
    if (text != m_edit->text()) {
        m_edit->setText(text);
    }
    m_edited = text != m_stored;
    showHint();
}

void SettingsField::setStored(const QString &stored)
{
    const bool changed = stored != m_stored;
    m_stored = stored;
    if (!m_edited || (changed && m_sent)) {
        m_sent = false;
        setText(stored);
    } else {
        m_edited = m_edit->text() != stored;
    }
}

void SettingsField::markSent()
{
    m_sent = true;
}

void SettingsField::markRefused()
{
    m_sent = false;
}

void SettingsField::revert()
{
    setText(m_stored);
}

void SettingsField::setBlocked(const QString &reason)
{
    allowUnless(reason, *m_edit);
    for (QPushButton *button : std::as_const(m_buttons)) {
        allowUnless(reason, *button);
    }
}

void SettingsField::onEdited()
{
    m_sent = false;
    m_edited = m_edit->text() != m_stored;
    showHint();
}

void SettingsField::showHint()
{
    // What stands already isn't argued with.
    const QString problem = m_edited ? m_check(m_edit->text()) : QString();
    const QString shown = problem.isEmpty() ? m_note : problem;
    m_hint->setText(shown);
    setStyleProperty(*m_hint, "vantuRole", problem.isEmpty() ? u"muted"_s : u"error"_s);
    m_edit->setAccessibleDescription(shown);
}
