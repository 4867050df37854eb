#include "AdvancedSection.h"

#include "AppState.h"
#include "ElidedLabel.h"
#include "FactBlock.h"
#include "PlainText.h"
#include "SettingsField.h"
#include "SettingsInput.h"
#include "SettingsRow.h"
#include "SettingsSituation.h"
#include "SettingsTexts.h"

#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

/// Longest address that is shown.
constexpr qsizetype kMaxUrlLength = 300;

} // namespace

AdvancedSection::AdvancedSection(const AppState &state, QWidget *parent)
    : SettingsSection(SettingsTexts::tr("Advanced"), {}, parent)
    , m_state(state)
{
    SettingsRow *row = addRow();
    const QString name = SettingsTexts::tr("API URL");
    m_summary = new FactBlock(u"VantuSettingsAPIURLSummary"_s, row);
    m_field =
        new SettingsField({name, u"VantuSettingsAPIURL"_s, SettingsTexts::tr("Default API URL"),
                           SettingsTexts::tr("Where Vantu signs in and gets its locations.")},
                          &settingsinput::apiUrlProblem, row);
    QPushButton *applyButton =
        m_field->addButton(SettingsTexts::tr("Apply"), SettingsTexts::tr("Apply API URL"),
                           u"VantuSettingsAPIURLApply"_s);
    QPushButton *resetButton =
        m_field->addButton(SettingsTexts::tr("Reset"), SettingsTexts::tr("Reset API URL"),
                           u"VantuSettingsAPIURLReset"_s);
    row->addBelow(m_summary);
    row->addBelow(m_field);
    connect(applyButton, &QPushButton::clicked, this, &AdvancedSection::apply);
    connect(m_field, &SettingsField::submitted, this, &AdvancedSection::apply);
    connect(resetButton, &QPushButton::clicked, this, [this] {
        m_field->revert(); // What was typed is given up, even if the default is in force.
        reset();
    });
}

QString AdvancedSection::current() const
{
    // Its own answer is the authority; the copy inside the status serves until it is there.
    const APIURLConfigInfo &config = m_state.apiURLConfig();
    const bool isConfigKnown = config != APIURLConfigInfo{};
    return (isConfigKnown ? config.apiURL : m_state.runtime().apiURL).trimmed();
}

void AdvancedSection::render(const SettingsSituation &situation)
{
    const QString url = plaintext::singleLine(current(), kMaxUrlLength);
    const bool isKnown = !url.isEmpty() || m_state.apiURLConfig() != APIURLConfigInfo{} ||
                         m_state.runtime() != RuntimeInfo{};
    const QString empty =
        isKnown ? SettingsTexts::tr("API URL: default") : SettingsTexts::tr("API URL: unavailable");
    m_summary->setFacts({{url.isEmpty() ? empty : SettingsTexts::tr("API URL: %1").arg(url), url}});
    m_field->setStored(current());
    m_field->setBlocked(situation.blockReason());
}

void AdvancedSection::apply()
{
    const QString url = settingsinput::normalisedApiUrl(m_field->text());
    if (url.isEmpty()) {
        reset();
        return;
    }
    m_field->setText(url);
    if (url != current()) {
        m_field->markSent();
        Q_EMIT apiURLRequested(url);
    }
}

void AdvancedSection::reset()
{
    m_field->markSent();
    Q_EMIT resetRequested();
}

void AdvancedSection::keepTyped()
{
    m_field->markRefused();
}
