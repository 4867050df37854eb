#include "LocationsTools.h"

#include "LocationsTexts.h"
#include "PlainText.h"
#include "SearchField.h"
#include "StyleProperty.h"
#include "ThemePalette.h"
#include "TintedIcon.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QToolButton>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int kToolSize = 42;
constexpr int kIconSize = 20;
constexpr int kGap = 8;
constexpr int kConnectWidth = 112;

QIcon toolIcon(const QString &path, const ThemePalette &palette)
{
    QIcon icon;
    for (const qreal ratio : {1.0, 2.0}) {
        icon.addPixmap(tintedIcon(path, QColor(palette.textPrimary), kIconSize, ratio));
        icon.addPixmap(tintedIcon(path, QColor(palette.disabledText), kIconSize, ratio),
                       QIcon::Disabled);
    }
    return icon;
}

QToolButton *toolButton(const QString &name, QWidget *parent)
{
    auto *button = new QToolButton(parent);
    button->setObjectName(name);
    button->setFixedSize(kToolSize, kToolSize);
    button->setIconSize({kIconSize, kIconSize});
    button->setFocusPolicy(Qt::StrongFocus);
    return button;
}

} // namespace

LocationsTools::LocationsTools(QWidget *parent)
    : QFrame(parent)
{
    setObjectName(u"VantuLocationsTools"_s);
    m_search = new SearchField(LocationsTexts::tr("Search locations or nodes"), this);
    m_search->setObjectName(u"VantuLocationsSearch"_s);
    m_search->setFixedHeight(kToolSize);
    auto *actions = new QFrame(this);
    actions->setObjectName(u"VantuLocationsActions"_s);
    m_toggle = toolButton(u"VantuLocationsToggleGroups"_s, actions);
    m_refresh = toolButton(u"VantuLocationsRefresh"_s, actions);
    m_connect = new QPushButton(LocationsTexts::tr("Connect"), actions);
    m_connect->setObjectName(u"VantuLocationsConnect"_s);
    m_connect->setFixedHeight(kToolSize);
    m_connect->setMinimumWidth(kConnectWidth);
    m_connect->setAutoDefault(true); // Return presses it, like Space.
    setStyleProperty(*m_connect, "vantuPrimaryRole", u"connect"_s);

    auto *actionRow = new QHBoxLayout(actions);
    actionRow->setContentsMargins(0, 0, 0, 0);
    actionRow->setSpacing(kGap);
    actionRow->addWidget(m_toggle);
    actionRow->addWidget(m_refresh);
    actionRow->addWidget(m_connect);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(kGap);
    row->addWidget(m_search, 1);
    row->addWidget(actions);

    connect(m_toggle, &QToolButton::clicked, this, &LocationsTools::toggleGroupsRequested);
    connect(m_refresh, &QToolButton::clicked, this, &LocationsTools::refreshRequested);
    connect(m_connect, &QPushButton::clicked, this, &LocationsTools::connectRequested);
    updateRefresh();
}

void LocationsTools::applyThemePalette(const ThemePalette &palette)
{
    m_expandIcon = toolIcon(u":/icons/locations-expand.svg"_s, palette);
    m_collapseIcon = toolIcon(u":/icons/locations-collapse.svg"_s, palette);
    m_toggle->setIcon(m_anyExpanded ? m_collapseIcon : m_expandIcon);
    m_refresh->setIcon(toolIcon(u":/icons/locations-refresh.svg"_s, palette));
}

void LocationsTools::setDaemonAvailable(bool available, const QString &reason)
{
    m_daemonAvailable = available;
    m_unavailableReason = reason;
    updateRefresh();
    updateConnect();
}

void LocationsTools::setRefreshCooldown(int seconds)
{
    m_cooldown = std::max(0, seconds);
    updateRefresh();
}

void LocationsTools::setRefreshing(bool refreshing)
{
    m_refreshing = refreshing;
    updateRefresh();
}

bool LocationsTools::isRefreshFree() const
{
    return m_daemonAvailable && !m_refreshing && m_cooldown == 0;
}

void LocationsTools::updateRefresh()
{
    describe(*m_refresh, LocationsTexts::refresh(m_cooldown, m_refreshing), true);
    if (m_refresh->isEnabled() != isRefreshFree()) {
        m_focus.setEnabled(*m_refresh, isRefreshFree());
        Q_EMIT refreshFreeChanged();
    }
}

void LocationsTools::setGroups(bool hasRows, bool anyExpanded)
{
    m_focus.setEnabled(*m_toggle, hasRows);
    if (m_anyExpanded != anyExpanded) {
        m_anyExpanded = anyExpanded;
        m_toggle->setIcon(anyExpanded ? m_collapseIcon : m_expandIcon);
    }
    describe(*m_toggle, LocationsTexts::toggleGroups(anyExpanded), false);
}

void LocationsTools::setConnect(bool hasTarget, const QString &description)
{
    m_hasTarget = hasTarget;
    m_connectText = description;
    updateConnect();
}

void LocationsTools::updateConnect()
{
    m_focus.setEnabled(*m_connect, m_hasTarget && m_daemonAvailable);
    describe(*m_connect, m_connectText, true);
}

void LocationsTools::describe(QWidget &button, const QString &text, bool needsDaemon) const
{
    if (button.accessibleName() != text) {
        button.setAccessibleName(text);
    }
    const bool isAway = needsDaemon && !m_daemonAvailable && !m_unavailableReason.isEmpty();
    const QString toolTip = isAway ? m_unavailableReason : text;
    button.setToolTip(plaintext::toolTip(toolTip));
}
