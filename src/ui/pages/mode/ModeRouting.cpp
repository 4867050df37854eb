#include "ModeRouting.h"

#include "ChevronLabel.h"
#include "ControlProtocol.h"
#include "ElidedLabel.h"
#include "ModeRequests.h"
#include "ModeTexts.h"
#include "RegionPickerDialog.h"
#include "SegmentedControl.h"
#include "StyleProperty.h"
#include "TextStyle.h"
#include "ToggleSwitch.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include <initializer_list>

using namespace Qt::StringLiterals;

namespace {

/// The names of the modes start at the same edge.
constexpr int kIndent = 44;
constexpr int kEnd = 16;
constexpr QMargins kMargins{0, 4, 0, 8};
constexpr int kRowHeight = 44;
constexpr int kGap = 8;
constexpr int kButtonMargin = 10;

ElidedLabel *makeLabel(const QString &text, TextStyle style)
{
    auto *label = new ElidedLabel(text);
    setTextStyle(*label, style);
    return label;
}

ElidedLabel *makeNote(const QString &text)
{
    ElidedLabel *label = makeLabel(text, TextStyle::Note);
    setStyleProperty(*label, "vantuRole", u"muted"_s);
    return label;
}

/// A label, or what stands in for one, at the leading side and controls at the trailing
/// one.
void addRow(QVBoxLayout &column, QWidget *label, std::initializer_list<QWidget *> controls)
{
    auto *row = new QHBoxLayout;
    row->setSpacing(kGap);
    row->addStrut(kRowHeight);
    row->addWidget(label, 1);
    for (QWidget *control : controls) {
        row->addWidget(control, 0, Qt::AlignVCenter);
    }
    column.addLayout(row);
}

void addSegment(SegmentedControl &control, QLatin1StringView value, const QString &text,
                const QString &name)
{
    // Several rows have a "Direct".
    control.addSegment(value, text, name)
        ->setAccessibleName(u"%1: %2"_s.arg(control.accessibleName(), text));
}

void setBlocked(QWidget &widget, const QString &reason)
{
    widget.setEnabled(reason.isEmpty());
    widget.setToolTip(reason);
}

} // namespace

ModeRouting::ModeRouting(Kind kind, QWidget *parent)
    : QFrame(parent)
    , m_proxy(kind == Kind::Proxy)
{
    setObjectName(name(u"Options"_s));
    // Margins would stay on their sides in a right-to-left layout.
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(kMargins);
    row->setSpacing(0);
    row->addSpacing(kIndent);
    auto *column = new QVBoxLayout;
    column->setSpacing(0);
    row->addLayout(column, 1);
    row->addSpacing(kEnd);
    buildRouting(*column);
    m_splitOptions = new QWidget(this);
    m_splitOptions->setObjectName(name(u"SplitOptions"_s));
    column->addWidget(m_splitOptions);
    auto *split = new QVBoxLayout(m_splitOptions);
    split->setContentsMargins(0, 0, 0, 0);
    split->setSpacing(0);
    buildSplit(*split);
}

/// The object names of the two modes differ in one word.
QString ModeRouting::name(const QString &part) const
{
    return (m_proxy ? u"VantuModeProxy"_s : u"VantuModeVantu"_s) + part;
}

void ModeRouting::buildRouting(QVBoxLayout &column)
{
    const QString title = QCoreApplication::translate("ModePage", "Routing");
    m_routing = new SegmentedControl(title, this);
    addSegment(*m_routing, wire::kPolicyGlobal, QCoreApplication::translate("ModePage", "Global"),
               name(u"Global"_s));
    addSegment(*m_routing, wire::kPolicySplit, QCoreApplication::translate("ModePage", "Split"),
               name(u"Split"_s));
    addRow(column, makeLabel(title, TextStyle::Body), {m_routing});
    connect(m_routing, &SegmentedControl::chosen, this,
            [this](const QString &policy) { Q_EMIT splitChosen(policy == wire::kPolicySplit); });
}

void ModeRouting::buildSplit(QVBoxLayout &column)
{
    auto *line = new QFrame;
    setStyleProperty(*line, "vantuRole", u"hairline"_s);
    column.addSpacing(kGap / 2);
    column.addWidget(line);
    column.addSpacing(kGap);
    column.addWidget(
        makeLabel(QCoreApplication::translate("ModePage", "Split Rules"), TextStyle::CardTitle));
    column.addSpacing(kGap);
    column.addWidget(makeNote(QCoreApplication::translate("ModePage", "Routes")));

    const QString title = QCoreApplication::translate("ModePage", "Default route");
    m_defaultRoute = new SegmentedControl(title, m_splitOptions);
    addSegment(*m_defaultRoute, m_proxy ? wire::kRouteProxy : wire::kRouteTunnel,
               ModeTexts::through(m_proxy), name(m_proxy ? u"DefaultProxy"_s : u"DefaultTunnel"_s));
    addSegment(*m_defaultRoute, wire::kRouteDirect, ModeTexts::direct(), name(u"DefaultDirect"_s));
    addRow(column, makeLabel(title, TextStyle::Body), {m_defaultRoute});
    connect(m_defaultRoute, &SegmentedControl::chosen, this, [this](const QString &route) {
        SplitProfile profile = m_view.profile;
        profile.defaultRoute = route;
        Q_EMIT profileChosen(profile);
    });
    buildRegions(column);
    column.addSpacing(kGap);
    buildRuleLists(column);
}

void ModeRouting::buildRegions(QVBoxLayout &column)
{
    m_regions = new QPushButton(m_splitOptions);
    m_regions->setObjectName(name(u"Regions"_s));
    // A button's own text would stay at the left in every language.
    m_regionCount = makeLabel({}, TextStyle::Body);
    m_regionCount->setAttribute(Qt::WA_TransparentForMouseEvents);
    auto *chevron = new ChevronLabel;
    chevron->setObjectName(u"VantuModeMenuChevron"_s);
    setTextStyle(*chevron, TextStyle::DialogTitle);
    auto *inside = new QHBoxLayout(m_regions);
    inside->setContentsMargins(kButtonMargin, 0, kButtonMargin, 0);
    inside->setSpacing(kGap);
    inside->addWidget(m_regionCount, 1);
    inside->addWidget(chevron);
    const QString title = QCoreApplication::translate("ModePage", "Regions");
    addRow(column, makeLabel(title, TextStyle::Body), {m_regions});
    connect(m_regions, &QPushButton::clicked, this, &ModeRouting::regionsRequested);
}

void ModeRouting::buildRuleLists(QVBoxLayout &column)
{
    column.addWidget(makeNote(QCoreApplication::translate("ModePage", "Rule lists")));
    const QString title =
        m_proxy ? QCoreApplication::translate("ModePage", "GFWList routes via Proxy")
                : QCoreApplication::translate("ModePage", "GFWList routes via Tunnel");
    m_gfwList = new ToggleSwitch(m_splitOptions);
    m_gfwList->setObjectName(name(u"GFWList"_s));
    m_gfwList->setAccessibleName(title);
    addRow(column, makeLabel(title, TextStyle::Body), {m_gfwList});
    connect(m_gfwList, &ToggleSwitch::clicked, this, [this](bool on) {
        renderProfile();
        SplitProfile profile = m_view.profile;
        profile.gfwList = on;
        Q_EMIT profileChosen(profile);
    });
    if (!m_proxy) {
        buildCustomRules(column);
    }
}

void ModeRouting::buildCustomRules(QVBoxLayout &column)
{
    const QString title = QCoreApplication::translate("ModePage", "Custom Rules");
    m_rulesSummary = makeNote({});
    m_rulesSummary->setObjectName(name(u"CustomRulesSummary"_s));
    m_editRules = new QPushButton(QCoreApplication::translate("ModePage", "Edit"), m_splitOptions);
    m_editRules->setObjectName(name(u"CustomRulesEdit"_s));
    m_editRules->setAccessibleName(u"%1: %2"_s.arg(title, m_editRules->text()));
    m_customRules = new ToggleSwitch(m_splitOptions);
    m_customRules->setObjectName(name(u"CustomRules"_s));
    m_customRules->setAccessibleName(title);

    auto *label = new QWidget;
    auto *lines = new QVBoxLayout(label);
    lines->setContentsMargins(0, 0, 0, 0);
    lines->setSpacing(0);
    lines->addStretch(1);
    lines->addWidget(makeLabel(title, TextStyle::Body));
    lines->addWidget(m_rulesSummary);
    lines->addStretch(1);
    addRow(column, label, {m_editRules, m_customRules});
    connect(m_editRules, &QPushButton::clicked, this, &ModeRouting::editRulesRequested);
    connect(m_customRules, &ToggleSwitch::clicked, this, [this](bool on) {
        renderProfile();
        SplitProfile profile = m_view.profile;
        profile.customRules = on;
        Q_EMIT profileChosen(profile);
    });
}

void ModeRouting::render(const RoutingView &view)
{
    m_view = view;
    m_routing->setValue(view.split ? wire::kPolicySplit : wire::kPolicyGlobal);
    const QString splitReason = view.blocked.isEmpty() ? view.splitBlocked : view.blocked;
    setBlocked(*m_routing->segment(wire::kPolicyGlobal), view.blocked);
    setBlocked(*m_routing->segment(wire::kPolicySplit), splitReason);

    m_splitOptions->setVisible(view.split);
    renderProfile();
    setBlocked(*m_defaultRoute, splitReason);
    setBlocked(*m_regions, splitReason);
    setBlocked(*m_gfwList, splitReason);
    if (!m_proxy) {
        setBlocked(*m_customRules, splitReason);
        setBlocked(*m_editRules, view.blocked);
        m_rulesSummary->setText(view.customRules);
        m_rulesSummary->setToolTip(view.customRulesProblem);
    }
}

void ModeRouting::renderProfile()
{
    const SplitProfile &profile = m_view.profile;
    m_defaultRoute->setValue(profile.defaultRoute.trimmed().toLower());
    const QStringList regions = moderequest::regionsInForce(profile);
    const QString count = RegionPickerDialog::countText(static_cast<int>(regions.size()));
    m_regionCount->setText(count);
    m_regions->setMinimumWidth(m_regions->layout()->totalSizeHint().width());
    m_regions->setAccessibleName(
        u"%1: %2"_s.arg(ModeTexts::regionsUse(ModeTexts::regionsRoute(profile, m_proxy)), count));
    m_gfwList->setChecked(profile.gfwList);
    if (m_customRules) {
        m_customRules->setChecked(profile.customRules);
    }
}
