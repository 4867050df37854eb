#include "VpnStatusCard.h"

#include "Announce.h"
#include "ElidedLabel.h"
#include "FlagLabel.h"
#include "PlainText.h"
#include "PrimaryActionProgressOverlay.h"
#include "StyleProperty.h"
#include "TextStyle.h"
#include "VpnSummary.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int kCardMargin = 24;
constexpr int kSpacing = 8;
constexpr int kButtonGap = 16;
constexpr int kDotSize = 12;
constexpr int kPrimaryHeight = 48;
constexpr int kDetailLines = 2;

} // namespace

VpnStatusCard::VpnStatusCard(QWidget *parent)
    : QFrame(parent)
    , m_dot(new QLabel(this))
    , m_title(new ElidedLabel(this))
    , m_flag(new FlagLabel(FlagSize::Card, this))
    , m_detail(new ElidedLabel(this))
    , m_primary(new QPushButton(this))
    , m_progress(new PrimaryActionProgressOverlay(*m_primary))
{
    setObjectName(u"VantuStatusCard"_s);
    buildContent();
    connect(m_primary, &QPushButton::clicked, this, [this] { Q_EMIT triggered(m_intent); });
}

void VpnStatusCard::buildContent()
{
    m_dot->setObjectName(u"VantuVPNStatusDot"_s);
    m_dot->setFixedSize(kDotSize, kDotSize);
    m_title->setObjectName(u"VantuStatusTitle"_s);
    setTextStyle(*m_title, TextStyle::StatusTitle);
    m_flag->setObjectName(u"VantuVPNStatusFlag"_s);
    m_detail->setObjectName(u"VantuVPNStatusDetail"_s);
    m_detail->setMaximumLines(kDetailLines);
    m_detail->setAlignment(Qt::AlignLeading | Qt::AlignTop);
    m_primary->setObjectName(u"VantuVPNPrimaryAction"_s);
    m_primary->setMinimumHeight(kPrimaryHeight);
    m_primary->setAutoDefault(true); // Return presses it, like Space.

    auto *titleRow = new QHBoxLayout;
    titleRow->setSpacing(kSpacing);
    titleRow->addWidget(m_dot);
    titleRow->addWidget(m_title, 1);
    titleRow->addWidget(m_flag);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(kCardMargin, kCardMargin, kCardMargin, kCardMargin);
    column->setSpacing(kSpacing);
    column->addLayout(titleRow);
    column->addWidget(m_detail);
    column->addSpacing(kButtonGap - kSpacing);
    column->addWidget(m_primary);
}

void VpnStatusCard::render(const VpnSummary &summary)
{
    const PrimaryAction &action = summary.action;
    m_intent = action.intent;
    const bool isNews = m_title->text() != action.title;
    m_title->setText(action.title);
    if (isNews && window()->isVisible()) { // Also who looks at another page wants to know.
        announce(*m_title);
    }
    setStyleProperty(*m_dot, "vantuStatusState", action.statusState);
    setStyleProperty(*m_detail, "vantuRole", summary.detailIsError ? u"error"_s : u"muted"_s);
    m_detail->setText(summary.detail);
    m_detail->setAccessibleName(summary.detail);
    m_flag->setCode(summary.flagCode);

    m_primary->setText(action.button);
    m_focus.setEnabled(*m_primary, action.enabled);
    m_primary->setAccessibleDescription(action.title);
    m_primary->setToolTip(action.enabled || action.pending ? QString()
                                                           : plaintext::toolTip(summary.detail));
    setStyleProperty(*m_primary, "vantuPrimaryRole", action.role);
    setStyleProperty(*m_primary, "vantuPrimaryState", action.pending ? u"pending"_s : u"idle"_s);
    m_progress->setRunning(action.pending);
}
