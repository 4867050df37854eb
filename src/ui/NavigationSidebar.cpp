#include "NavigationSidebar.h"

#include "ButtonAccess.h"
#include "PlainText.h"
#include "ThemePalette.h"
#include "VantuNavCard.h"

#include <QVBoxLayout>

#include <cstddef>

using namespace Qt::StringLiterals;

namespace {

constexpr int kMinimumWidth = 92;
constexpr int kMargin = 8;

struct Entry
{
    const char *name;
    const char *text;
    const char *icon;
};

constexpr std::array<Entry, kPageCount> kEntries{{
    {"VantuSidebarVPN", QT_TRANSLATE_NOOP("NavigationSidebar", "VPN"), ":/icons/vpn.svg"},
    {"VantuSidebarLocations", QT_TRANSLATE_NOOP("NavigationSidebar", "Locations"),
     ":/icons/locations.svg"},
    {"VantuSidebarMode", QT_TRANSLATE_NOOP("NavigationSidebar", "Mode"), ":/icons/mode.svg"},
    {"VantuSidebarSettings", QT_TRANSLATE_NOOP("NavigationSidebar", "Settings"),
     ":/icons/settings.svg"},
    {"VantuSidebarAccount", QT_TRANSLATE_NOOP("NavigationSidebar", "Account"),
     ":/icons/account.svg"},
}};

} // namespace

NavigationSidebar::NavigationSidebar(QWidget *parent)
    : QWidget(parent)
{
    ButtonAccess::install();
    setObjectName(u"VantuSidebar"_s);
    setAttribute(Qt::WA_StyledBackground);
    setMinimumWidth(kMinimumWidth);
    setAccessibleName(tr("Pages"));
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, kMargin, 0, kMargin);
    column->setSpacing(0);
    for (std::size_t i = 0; i < m_cards.size(); ++i) {
        const auto page = static_cast<Page>(i);
        auto *card = new VantuNavCard(QString::fromLatin1(kEntries[i].name), pageName(page),
                                      QString::fromLatin1(kEntries[i].icon), this);
        connect(card, &QAbstractButton::clicked, this,
                [this, i] { Q_EMIT pageRequested(static_cast<int>(i)); });
        m_cards[i] = card;
        column->addWidget(card);
    }
    column->addStretch(1);
    setCurrentPage(Page::Vpn);
}

QString NavigationSidebar::pageName(Page page)
{
    return tr(kEntries[static_cast<std::size_t>(page)].text);
}

void NavigationSidebar::setCurrentPage(Page page)
{
    m_cards[static_cast<std::size_t>(page)]->setChecked(true);
    // Tab comes to the chosen one, the arrow keys go on from there. Qt sees to it as well,
    // but not before one of them had the keyboard.
    for (VantuNavCard *card : m_cards) {
        card->setFocusPolicy(card->isChecked() ? Qt::StrongFocus : Qt::ClickFocus);
    }
}

void NavigationSidebar::focusCurrentPage()
{
    for (VantuNavCard *card : m_cards) {
        if (card->isChecked()) {
            card->setFocus(Qt::OtherFocusReason);
        }
    }
}

void NavigationSidebar::setModeLine(const QString &line)
{
    m_cards[static_cast<std::size_t>(Page::Mode)]->setToolTip(plaintext::toolTip(line));
}

void NavigationSidebar::applyThemePalette(const ThemePalette &palette)
{
    for (VantuNavCard *card : m_cards) {
        card->setColors(palette.textMuted, palette.sidebarSelectedText);
    }
}
