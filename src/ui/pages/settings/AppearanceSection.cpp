#include "AppearanceSection.h"

#include "GuiPreferences.h"
#include "SegmentedControl.h"
#include "SettingsRow.h"
#include "SettingsTexts.h"

using namespace Qt::StringLiterals;

AppearanceSection::AppearanceSection(const GuiPreferences &preferences, QWidget *parent)
    : SettingsSection(SettingsTexts::tr("Appearance"), {}, parent)
    , m_preferences(preferences)
{
    SettingsRow *row = addRow();
    row->addNote(SettingsTexts::tr("System follows the look of your desktop."));
    m_choices =
        row->setChoices(SettingsTexts::tr("Appearance"),
                        {{u"system"_s, SettingsTexts::tr("System"), u"VantuAppearanceSystem"_s, {}},
                         {u"light"_s, SettingsTexts::tr("Light"), u"VantuAppearanceLight"_s, {}},
                         {u"dark"_s, SettingsTexts::tr("Dark"), u"VantuAppearanceDark"_s, {}}});
    connect(m_choices, &SegmentedControl::chosen, this, [this](const QString &appearance) {
        Q_EMIT appearanceRequested(appearance);
        render();
    });
}

void AppearanceSection::render()
{
    m_choices->setValue(m_preferences.appearance());
}
