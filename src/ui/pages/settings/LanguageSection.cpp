#include "LanguageSection.h"

#include "AppState.h"
#include "ChevronLabel.h"
#include "ElidedLabel.h"
#include "GuiPreferences.h"
#include "Language.h"
#include "LanguagePickerDialog.h"
#include "PlainText.h"
#include "SettingsRow.h"
#include "SettingsSituation.h"
#include "SettingsTexts.h"

#include <QHBoxLayout>
#include <QPushButton>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int kWidth = 220;
constexpr int kMostWidth = 320;
constexpr int kInnerMargin = 12;

} // namespace

LanguageSection::LanguageSection(const AppState &state, const GuiPreferences &preferences,
                                 Theme &theme, QWidget *parent)
    : SettingsSection(SettingsTexts::tr("Language"), {}, parent)
    , m_state(state)
    , m_preferences(preferences)
    , m_theme(theme)
{
    SettingsRow *row = addRow();
    row->addNote(SettingsTexts::tr("Server content uses the same language."));
    m_button = makeButton({}, u"VantuSettingsLanguage"_s);
    auto *inside = new QHBoxLayout(m_button);
    inside->setContentsMargins(kInnerMargin, 0, kInnerMargin, 0);
    // A button's own text would stay at the left in every language.
    m_name = new ElidedLabel(m_button);
    m_name->setAttribute(Qt::WA_TransparentForMouseEvents);
    inside->addWidget(m_name, 1);
    inside->addWidget(new ChevronLabel(m_button));
    row->setControl(m_button);
    connect(m_button, &QPushButton::clicked, this, &LanguageSection::openPicker);
}

void LanguageSection::render(const SettingsSituation &situation)
{
    const LanguageConfigInfo &config = m_state.languageConfig();
    QString code = m_preferences.lastEffectiveLanguage();
    for (const QString &known : {m_state.runtime().effectiveLanguage, config.effectiveLanguage}) {
        code = known.trimmed().isEmpty() ? code : known;
    }
    const QString name = LanguagePickerDialog::languageName(language::normalise(code), config);
    m_name->setText(plaintext::singleLine(name));
    const int wanted = m_button->layout()->totalSizeHint().width();
    m_button->setMinimumWidth(std::clamp(wanted, kWidth, kMostWidth));
    m_button->setAccessibleName(u"%1: %2"_s.arg(SettingsTexts::tr("Language"), name));
    allowUnless(situation.blockReason(), *m_button);
}

void LanguageSection::openPicker()
{
    if (m_picker) {
        return;
    }
    m_picker = new LanguagePickerDialog(m_state.languageConfig(), m_theme, window());
    m_picker->setAttribute(Qt::WA_DeleteOnClose);
    connect(m_picker, &LanguagePickerDialog::applied, this, &LanguageSection::languageRequested);
    m_picker->open();
}
