#include "GeneralSection.h"

#include "AppState.h"
#include "ControlProtocol.h"
#include "ElidedLabel.h"
#include "GuiPreferences.h"
#include "SettingsRow.h"
#include "SettingsTexts.h"
#include "ToggleSwitch.h"

using namespace Qt::StringLiterals;

namespace {

/// Daemons spell a switch that is on in several ways.
bool isOn(const QString &value)
{
    const QString word = value.trimmed().toLower();
    return word == wire::kOn || word == "true"_L1 || word == "1"_L1;
}

} // namespace

GeneralSection::GeneralSection(const AppState &state, const GuiPreferences &preferences,
                               QWidget *parent)
    : SettingsSection(SettingsTexts::tr("General"), {}, parent)
    , m_state(state)
    , m_preferences(preferences)
{
    m_autoConnect =
        addToggle(SettingsTexts::tr("Connect when Vantu launches"),
                  u"VantuSettingsAutoConnectToggle"_s, &GeneralSection::autoConnectRequested);
    m_launchAtLogin =
        addToggle(SettingsTexts::tr("Launch Vantu at login"), u"VantuSettingsLaunchAtLoginToggle"_s,
                  &GeneralSection::launchAtLoginRequested);
    m_showWindow = addToggle(
        SettingsTexts::tr("Show window when Vantu launches"),
        u"VantuSettingsShowWindowOnLaunchToggle"_s, &GeneralSection::showWindowOnLaunchRequested,
        SettingsTexts::tr("When off, Vantu starts in the tray only. Changing the interface "
                          "language still reopens the window."));
}

ToggleSwitch *GeneralSection::addToggle(const QString &text, const QString &objectName,
                                        Request request, const QString &note)
{
    SettingsRow *row = addRow();
    auto *toggle = new ToggleSwitch(row);
    toggle->setObjectName(objectName);
    toggle->setAccessibleName(text);
    row->addLine(text)->setBuddy(toggle);
    if (!note.isEmpty()) {
        row->addNote(note);
        toggle->setAccessibleDescription(note);
    }
    row->setControl(toggle);
    connect(toggle, &ToggleSwitch::clicked, this, [this, request](bool checked) {
        Q_EMIT(this->*request)(checked);
        render(); // It shows what is, which may have to wait for the daemon.
    });
    return toggle;
}

void GeneralSection::render()
{
    m_autoConnect->setChecked(isOn(m_state.runtime().autoConnect));
    m_launchAtLogin->setChecked(m_preferences.launchAtLogin());
    m_showWindow->setChecked(m_preferences.showOnLaunch());
}
