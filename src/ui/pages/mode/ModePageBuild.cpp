// How the Mode page is put together; what it does is in ModePage.cpp.

#include "AppState.h"
#include "ChoiceGroup.h"
#include "ControlProtocol.h"
#include "ElidedLabel.h"
#include "ModeDialogs.h"
#include "ModeOption.h"
#include "ModePage.h"
#include "ModeTexts.h"
#include "PageScrollArea.h"
#include "SegmentedControl.h"
#include "StyleProperty.h"
#include "TextStyle.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int kGap = 8;
constexpr int kSectionGap = 16;
constexpr int kCardMargin = 16;
constexpr int kSubtitleLines = 2;
constexpr int kDetailLines = 3;

} // namespace

ModePage::ModePage(AppState &state, Theme &theme, QWidget *parent)
    : QWidget(parent)
    , m_state(state)
    , m_dialogs(new ModeDialogs(state, theme, *this))
    , m_regionNames(state.nodeGroups())
{
    buildContent();
    connectSignals();
    render();
}

void ModePage::buildContent()
{
    auto *content = new QWidget;
    content->setObjectName(u"VantuModeScrollContent"_s);
    m_scroll = new PageScrollArea(this);
    m_scroll->setObjectName(u"VantuModeScrollArea"_s);
    QVBoxLayout *column = m_scroll->setContent(*content);
    column->setSpacing(kSectionGap);
    buildHeading(*column);
    column->addWidget(buildSummary(content));
    buildOptions(*column, content);
    column->addWidget(buildLocalNetwork(content));
    column->addStretch(1);

    auto *page = new QVBoxLayout(this);
    page->setContentsMargins(0, 0, 0, 0);
    page->addWidget(m_scroll);
}

void ModePage::buildHeading(QVBoxLayout &column)
{
    auto *title = new ElidedLabel(tr("Connection Mode"));
    title->setObjectName(u"VantuModeOptionsTitle"_s);
    setTextStyle(*title, TextStyle::DialogTitle);
    auto *subtitle = new ElidedLabel(tr("Choose how Vantu connects and routes traffic."));
    subtitle->setObjectName(u"VantuModeSubtitle"_s);
    subtitle->setMaximumLines(kSubtitleLines);
    subtitle->setWordWrap(true);
    setTextStyle(*subtitle, TextStyle::Body);
    setStyleProperty(*subtitle, "vantuRole", u"muted"_s);

    auto *heading = new QVBoxLayout;
    heading->setSpacing(kGap / 2);
    heading->addWidget(title);
    heading->addWidget(subtitle);
    column.addLayout(heading);
}

QFrame *ModePage::buildSummary(QWidget *parent)
{
    auto *card = new QFrame(parent);
    card->setObjectName(u"VantuModeSummary"_s);
    setStyleProperty(*card, "vantuRole", u"card"_s);
    m_summaryTitle = new ElidedLabel(card);
    m_summaryTitle->setObjectName(u"VantuModeSummaryTitle"_s);
    setTextStyle(*m_summaryTitle, TextStyle::Value);
    // Beside the title, so that nothing moves as it comes and goes.
    m_status = new ElidedLabel(card);
    m_status->setObjectName(u"VantuModeStatus"_s);
    m_status->setAlignment(Qt::AlignTrailing | Qt::AlignVCenter);
    m_status->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    setTextStyle(*m_status, TextStyle::Note);
    m_summaryDetail = new ElidedLabel(card);
    m_summaryDetail->setObjectName(u"VantuModeSummaryDetail"_s);
    m_summaryDetail->setMaximumLines(kDetailLines);
    setTextStyle(*m_summaryDetail, TextStyle::Body);
    m_summaryDetail->setWordWrap(true); // As high as the text, not as it may get.

    auto *top = new QHBoxLayout;
    top->setSpacing(kSectionGap);
    top->addWidget(m_summaryTitle);
    top->addWidget(m_status, 1);
    auto *layout = new QVBoxLayout(card);
    layout->setContentsMargins(kCardMargin, kCardMargin, kCardMargin, kCardMargin);
    layout->setSpacing(kGap / 2);
    layout->addLayout(top);
    layout->addWidget(m_summaryDetail);
    return card;
}

void ModePage::buildOptions(QVBoxLayout &column, QWidget *parent)
{
    auto *group = new ChoiceGroup(tr("Connection Mode"), parent);
    auto *options = new QVBoxLayout(group);
    options->setContentsMargins(0, 0, 0, 0);
    options->setSpacing(kGap);
    addOption(*options, group, wire::kTransportAuto, u"VantuModeAuto"_s, ModeTexts::autoMode(), {});
    addOption(*options, group, wire::kTransportWireGuard, u"VantuModeWireGuard"_s,
              ModeTexts::wireGuard(), {});
    addOption(*options, group, wire::kTransportVantuVPN, u"VantuModeVantuVPN"_s,
              ModeTexts::vantuVPN(), tr("Use VPN tunnel mode, with optional split routing."));
    addRouting(ModeRouting::Kind::VantuVPN);
    addOption(*options, group, wire::kTransportProxy, u"VantuModeVantuProxy"_s,
              ModeTexts::vantuProxy(), tr("Use a local proxy with PAC split rules."));
    addRouting(ModeRouting::Kind::Proxy);
    column.addWidget(group);
}

void ModePage::addOption(QVBoxLayout &column, QWidget *parent, QLatin1StringView transport,
                         const QString &name, const QString &text, const QString &description)
{
    // Alone in its parent an option is exclusive to none: the store decides what is chosen.
    auto *card = new QWidget(parent);
    auto *option = new ModeOption(text, description, card);
    option->setObjectName(name);
    auto *layout = new QVBoxLayout(card);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0); // What belongs to the mode hangs on to it.
    layout->addWidget(option);
    column.addWidget(card);
    m_choices.append({transport, option, nullptr});
    connect(option, &ModeOption::clicked, this,
            [this, transport = QString(transport)] { chooseMode(transport); });
    connect(option, &ModeOption::stepRequested, this,
            [this, option](int step) { stepFocus(option, step); });
}

/// Puts what belongs to the option that was added last right below it.
void ModePage::addRouting(ModeRouting::Kind kind)
{
    Choice &choice = m_choices.last();
    QWidget *card = choice.option->parentWidget();
    auto *routing = new ModeRouting(kind, card);
    card->layout()->addWidget(routing);
    choice.routing = routing;
    const bool proxy = kind == ModeRouting::Kind::Proxy;
    connect(routing, &ModeRouting::splitChosen, this,
            [this, proxy](bool split) { chooseRouting(proxy, split); });
    connect(routing, &ModeRouting::profileChosen, this,
            [this, proxy](const SplitProfile &profile) { chooseProfile(proxy, profile); });
    connect(routing, &ModeRouting::regionsRequested, this, [this, proxy] { chooseRegions(proxy); });
    connect(routing, &ModeRouting::editRulesRequested, m_dialogs, &ModeDialogs::editRules);
}

QFrame *ModePage::buildLocalNetwork(QWidget *parent)
{
    auto *card = new QFrame(parent);
    card->setObjectName(u"VantuModeLocalNetworkSection"_s);
    const QString title = tr("Local Network");
    auto *label = new ElidedLabel(title, card);
    setTextStyle(*label, TextStyle::CardTitle);
    m_localNetwork = new SegmentedControl(title, card);
    const auto add = [this, &title](QLatin1StringView value, const QString &text,
                                    const QString &name) {
        m_localNetwork->addSegment(value, text, name)
            ->setAccessibleName(u"%1: %2"_s.arg(title, text));
    };
    add(wire::kLocalNetworkDirect, ModeTexts::direct(), u"VantuModeLocalNetworkDirect"_s);
    add(wire::kLocalNetworkProtected, tr("Protected"), u"VantuModeLocalNetworkProtected"_s);

    auto *row = new QHBoxLayout(card);
    row->setContentsMargins(kCardMargin, kCardMargin, kCardMargin, kCardMargin);
    row->setSpacing(kGap);
    row->addWidget(label, 1);
    row->addWidget(m_localNetwork, 0, Qt::AlignVCenter);
    return card;
}

void ModePage::connectSignals()
{
    connect(&m_state, &AppState::runtimeChanged, this, &ModePage::render);
    connect(&m_state, &AppState::killSwitchChanged, this, &ModePage::render);
    connect(&m_state, &AppState::nodeGroupsChanged, this, [this](const NodeGroupsInfo &groups) {
        m_regionNames = RegionNames(groups);
        render();
    });
    connect(&m_state, &AppState::splitRulesChanged, this, [this] {
        m_rulesError.clear();
        render();
    });
    connect(m_localNetwork, &SegmentedControl::chosen, this, &ModePage::chooseLocalNetwork);
    connect(m_dialogs, &ModeDialogs::rulesRequested, this, &ModePage::requestRules);
    connect(m_dialogs, &ModeDialogs::importRequested, this,
            [this](const QString &kind, const QString &content) {
                m_error.clear();
                render();
                Q_EMIT importSplitRulesRequested(kind, content);
            });
    connect(m_dialogs, &ModeDialogs::regionsApplied, this, &ModePage::applyRegions);
    connect(m_dialogs, &ModeDialogs::openSettingsChosen, this,
            &ModePage::openKillSwitchSettingsRequested);
}
