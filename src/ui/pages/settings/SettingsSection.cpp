#include "SettingsSection.h"

#include "ElidedLabel.h"
#include "SettingsRow.h"
#include "StyleProperty.h"
#include "TextStyle.h"

#include <QFrame>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int kTitleGap = 8;
constexpr int kCardMargin = 16;
constexpr int kRowGap = 12;

} // namespace

SettingsSection::SettingsSection(const QString &title, const QString &cardName, QWidget *parent)
    : QWidget(parent)
    , m_card(new QFrame(this))
    , m_rows(new QVBoxLayout(m_card))
{
    auto *heading = new ElidedLabel(title, this);
    heading->setObjectName(u"VantuCardTitle"_s);
    setTextStyle(*heading, TextStyle::CardTitle);
    m_card->setObjectName(cardName);
    m_card->setAccessibleName(title);
    setStyleProperty(*m_card, "vantuRole", u"card"_s);
    m_rows->setContentsMargins(kCardMargin, kRowGap, kCardMargin, kRowGap);
    m_rows->setSpacing(kRowGap);

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(kTitleGap);
    column->addWidget(heading);
    column->addWidget(m_card);
}

SettingsRow *SettingsSection::addRow()
{
    if (m_rows->count() > 0) {
        auto *line = new QFrame(m_card);
        setStyleProperty(*line, "vantuRole", u"hairline"_s);
        line->setFixedHeight(1);
        m_rows->addWidget(line);
    }
    auto *row = new SettingsRow(m_card);
    m_rows->addWidget(row);
    return row;
}

QPushButton *SettingsSection::makeButton(const QString &text, const QString &objectName)
{
    auto *button = new QPushButton(text, m_card);
    button->setObjectName(objectName);
    button->setAutoDefault(true); // Return presses it, like Space.
    return button;
}
