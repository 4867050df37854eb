#include "QuickEntryRow.h"

#include "CatalogKeys.h"
#include "CatalogTexts.h"
#include "ElidedLabel.h"
#include "FlagLabel.h"
#include "PlainText.h"
#include "QuickEntrySignalBars.h"
#include "TextStyle.h"
#include "VpnSummary.h"

#include <QHBoxLayout>
#include <QToolButton>

#include <initializer_list>

using namespace Qt::StringLiterals;

namespace {

constexpr int kRowHeight = 36;
constexpr int kSpacing = 8;
constexpr int kSideMargin = 12;
constexpr int kStarEdge = 28;
constexpr int kStarIcon = 16;
constexpr int kMinimumPingWidth = 42;
constexpr int kPingPadding = 6;
constexpr int kWidestPing = 999;

/// Checked when the daemon says so, and not by the click that asks it.
class Star final : public QToolButton
{
public:
    using QToolButton::QToolButton;

protected:
    void nextCheckState() override {}
};

} // namespace

QuickEntryRow::QuickEntryRow(QWidget *parent)
    : QPushButton(parent)
    , m_flag(new FlagLabel(FlagSize::Row, this))
    , m_text(new ElidedLabel(this))
    , m_ping(new ElidedLabel(this))
    , m_bars(new QuickEntrySignalBars(this))
    , m_star(new Star(this))
{
    setObjectName(u"VantuVPNQuickEntryItem"_s);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_flag->setObjectName(u"VantuVPNQuickEntryItemFlag"_s);
    m_text->setObjectName(u"VantuVPNQuickEntryItemText"_s);
    m_bars->setObjectName(u"VantuVPNQuickEntryItemSignal"_s);
    m_ping->setObjectName(u"VantuVPNQuickEntryItemPing"_s);
    m_ping->setAlignment(Qt::AlignTrailing | Qt::AlignVCenter);
    m_ping->setProperty("vantuRole", u"muted"_s);
    setTextStyle(*m_ping, TextStyle::Note);
    m_ping->setFixedWidth(qMax(kMinimumPingWidth, m_ping->fontMetrics().horizontalAdvance(
                                                      catalogtexts::latency(kWidestPing)) +
                                                      kPingPadding));
    for (QWidget *part : std::initializer_list<QWidget *>{m_text, m_ping, m_bars}) {
        part->setAttribute(Qt::WA_TransparentForMouseEvents);
    }

    m_star->setObjectName(u"VantuVPNQuickEntryItemFavorite"_s);
    m_star->setFixedSize(kStarEdge, kStarEdge);
    m_star->setIconSize({kStarIcon, kStarIcon});
    m_star->setAutoRaise(true);
    m_star->setCheckable(true);
    // Latencies stay in one column, whether a row has a star or not.
    QSizePolicy starPolicy = m_star->sizePolicy();
    starPolicy.setRetainSizeWhenHidden(true);
    m_star->setSizePolicy(starPolicy);
    m_star->setFocusPolicy(Qt::TabFocus);
    m_star->setToolTip(u"%1 (%2)"_s.arg(
        catalogtexts::favorite(), catalogkeys::favorite().toString(QKeySequence::NativeText)));
    m_star->setAccessibleName(catalogtexts::favorite());
    connect(m_star, &QToolButton::clicked, this, &QuickEntryRow::toggleFavorite);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(kSideMargin, 0, kSideMargin, 0);
    layout->setSpacing(kSpacing);
    layout->addWidget(m_flag);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_ping);
    layout->addWidget(m_bars);
    layout->addWidget(m_star);
}

QSize QuickEntryRow::sizeHint() const
{
    return {layout()->totalSizeHint().width(),
            qMax(kRowHeight, m_text->sizeHint().height() + kSpacing)};
}

QSize QuickEntryRow::minimumSizeHint() const
{
    return {layout()->totalMinimumSize().width(), sizeHint().height()};
}

void QuickEntryRow::setItem(const QuickEntryItem &item)
{
    if (item == m_item) {
        return;
    }
    m_item = item;
    renderItem();
}

void QuickEntryRow::setLook(const QuickEntryLook &look)
{
    m_look = look;
    m_bars->setColors(look.litBars, look.otherBars);
    renderItem();
}

void QuickEntryRow::toggleFavorite()
{
    if (m_item.kind == QuickEntryItem::Kind::Node && m_item.available) {
        Q_EMIT favoriteRequested(m_item.id, !m_item.favorite);
    }
}

void QuickEntryRow::renderItem()
{
    const bool isNode = m_item.kind == QuickEntryItem::Kind::Node;
    m_text->setText(isNode ? m_item.label : u"%1 \u00b7 %2"_s.arg(m_item.label, smartSelectText()));
    m_ping->setText(m_item.pingMs < 0 ? QString() : catalogtexts::latency(m_item.pingMs));
    m_bars->setLevel(m_item.signalLevel);
    m_star->setVisible(isNode && m_item.available);
    m_star->setAccessibleDescription(m_item.label);
    m_star->setChecked(m_item.favorite);
    setEnabled(m_item.available);
    const QString state = m_item.connected ? catalogtexts::connectedServer() : QString();
    setAccessibleName(catalogtexts::spoken({.name = m_text->text(),
                                            .group = {},
                                            .latency = m_item.pingMs,
                                            .favorite = m_item.favorite,
                                            .state = state}));
    setToolTip(state);
    m_flag->setCode(m_item.flagCode);
    m_star->setIcon(m_item.favorite ? m_look.filledStar : m_look.star);
}
