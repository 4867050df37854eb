#include "AboutSection.h"

#include "AppState.h"
#include "ElidedLabel.h"
#include "FactBlock.h"
#include "FlowLayout.h"
#include "PlainText.h"
#include "SettingsRow.h"
#include "SettingsSituation.h"
#include "SettingsTexts.h"
#include "VendorHost.h"

#include <QCoreApplication>
#include <QFontMetrics>
#include <QPushButton>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int kGap = 8;

QList<Fact> versionFacts(const AppState &state)
{
    QList<Fact> facts;
    if (const QString gui = QCoreApplication::applicationVersion(); !gui.isEmpty()) {
        facts.append({SettingsTexts::tr("GUI Version: %1").arg(gui), gui});
    }
    if (const QString cli = plaintext::singleLine(state.version().version); !cli.isEmpty()) {
        facts.append({SettingsTexts::tr("CLI Version: %1").arg(cli), cli});
    }
    if (facts.isEmpty()) {
        facts.append({SettingsTexts::tr("Version: unavailable"), {}});
    }
    if (const UpdateInfo &update = state.update(); update.known) {
        const QString newer = plaintext::singleLine(update.versionCode);
        facts.append({update.updateAvailable ? SettingsTexts::tr("Update available: %1").arg(newer)
                                             : SettingsTexts::tr("Up to date"),
                      {}});
    }
    if (!state.version().compatible) {
        facts.append({SettingsTexts::tr("Vantu GUI and daemon are incompatible"), {}, true});
    }
    return facts;
}

} // namespace

AboutSection::AboutSection(const AppState &state, QWidget *parent)
    : SettingsSection(SettingsTexts::tr("About"), {}, parent)
    , m_state(state)
{
    SettingsRow *row = addRow();
    m_versions = new FactBlock(u"VantuSettingsVersionSummary"_s, row);
    row->addBelow(m_versions);

    auto *buttons = new QWidget(row);
    auto *flow = new FlowLayout(kGap, kGap, buttons);
    flow->setContentsMargins(0, 0, 0, 0);
    m_checkUpdate =
        makeButton(SettingsTexts::tr("Check for Updates"), u"VantuSettingsCheckUpdate"_s);
    flow->addWidget(m_checkUpdate);
    addLink(*flow, SettingsTexts::tr("Open Download Page"), u"VantuSettingsOpenDownloadPage"_s,
            "download/linux"_L1);
    addLink(*flow, SettingsTexts::tr("FAQ"), u"VantuSettingsFAQ"_s, "faq"_L1);
    addLink(*flow, SettingsTexts::tr("Privacy"), u"VantuSettingsPrivacy"_s, "privacy-policy"_L1);
    addLink(*flow, SettingsTexts::tr("Terms"), u"VantuSettingsTerms"_s, "terms-of-service"_L1);
    row->addBelow(buttons);
    connect(m_checkUpdate, &QPushButton::clicked, this, &AboutSection::checkUpdateRequested);
}

void AboutSection::addLink(FlowLayout &links, const QString &text, const QString &objectName,
                           QLatin1StringView path)
{
    QPushButton *button = makeButton(text, objectName);
    links.addWidget(button);
    const QUrl url(u"https://%1/%2"_s.arg(control::kVendorHost, path));
    connect(button, &QPushButton::clicked, this, [this, url] { Q_EMIT linkRequested(url); });
}

void AboutSection::render(const SettingsSituation &situation)
{
    m_versions->setFacts(versionFacts(m_state));

    const bool checking = situation.updateCheckInFlight;
    const QString idleText = SettingsTexts::tr("Check for Updates");
    const QString busyText = SettingsTexts::tr("Working...");
    // As wide as the longer of its texts, so that its neighbours stay where they are.
    const QFontMetrics metrics = m_checkUpdate->fontMetrics();
    const int ownWidth = metrics.horizontalAdvance(m_checkUpdate->text());
    const int textWidth =
        std::max(metrics.horizontalAdvance(idleText), metrics.horizontalAdvance(busyText));
    m_checkUpdate->setMinimumWidth(m_checkUpdate->sizeHint().width() - ownWidth + textWidth);
    m_checkUpdate->setText(checking ? busyText : idleText);
    allowUnless(checking ? SettingsTexts::tr("Vantu is looking for a newer version.")
                         : situation.absenceReason(true),
                *m_checkUpdate);
}
