#include "VpnQuickEntryPopup.h"

#include "Announce.h"
#include "CatalogKeys.h"
#include "ElidedLabel.h"
#include "HandOnTheme.h"
#include "QuickEntryPillRow.h"
#include "TextStyle.h"
#include "ThemePalette.h"
#include "ThemedScrollBar.h"
#include "TintedIcon.h"

#include <QApplication>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int kVerticalMargin = 4;
constexpr int kSideMargin = 12;
constexpr int kTagLimit = 30;
constexpr int kStarIcon = 16;
constexpr int kSmallButtonHeight = 28;
constexpr int kSectionHeight = 32;

/// Whether two buttons stand side by side.
bool sameLine(const QWidget &a, const QWidget &b)
{
    return a.parentWidget() == b.parentWidget() && a.y() == b.y();
}

/// Keys that write into or delete from the search field. The blank presses buttons.
bool belongsToField(const QKeyEvent &event)
{
    if (event.key() == Qt::Key_Backspace || event.key() == Qt::Key_Delete) {
        return true;
    }
    const bool shortCut =
        event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    return !shortCut && !event.text().isEmpty() && event.text().at(0).isPrint() &&
           event.key() != Qt::Key_Space;
}

} // namespace

// The texts of the quick entry belong to the window's translation context.

VpnQuickEntryPopup::VpnQuickEntryPopup(QWidget *parent)
    : QFrame(parent)
{
    setObjectName(u"VantuVPNQuickEntry"_s);
    buildContent();
    hide();
}

void VpnQuickEntryPopup::buildContent()
{
    m_scroll = new QScrollArea(this);
    m_scroll->setObjectName(u"VantuVPNQuickEntryScroll"_s);
    m_scroll->setWidgetResizable(true);
    m_scroll->setFrameShape(QFrame::NoFrame);
    m_scroll->setFocusPolicy(Qt::NoFocus);
    m_scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scroll->setVerticalScrollBar(new ThemedScrollBar(Qt::Vertical, m_scroll));
    m_body = new QWidget(m_scroll);
    m_body->setObjectName(u"VantuVPNQuickEntryContent"_s);
    m_scroll->setWidget(m_body);

    auto *column = new QVBoxLayout(m_body);
    column->setContentsMargins(0, kVerticalMargin, 0, kVerticalMargin);
    column->setSpacing(0);
    m_resultsTitle =
        addSection(*column, QCoreApplication::translate("MainWindow", "Search results"));
    m_empty = new ElidedLabel(QCoreApplication::translate("MainWindow", "No matching locations."));
    m_empty->setObjectName(u"VantuVPNQuickEntryEmpty"_s);
    m_empty->setContentsMargins(kSideMargin, kVerticalMargin, kSideMargin, 2 * kVerticalMargin);
    column->addWidget(m_empty);
    m_searches = addHeader(*column, QCoreApplication::translate("MainWindow", "Recent searches"),
                           u"VantuVPNQuickEntryClearSearches"_s);
    m_searchPills = addPills(*column, 0);
    m_connections =
        addHeader(*column, QCoreApplication::translate("MainWindow", "Recent connections"),
                  u"VantuVPNQuickEntryClearConnections"_s);
    m_rowColumn = new QVBoxLayout;
    m_rowColumn->setSpacing(0);
    column->addLayout(m_rowColumn);
    m_tagsTitle = addSection(*column, QCoreApplication::translate("MainWindow", "Popular tags"));
    m_tagPills = addPills(*column, kTagLimit);
    column->addStretch(1);
    connect(m_searches.clear, &QPushButton::clicked, this, &VpnQuickEntryPopup::searchesCleared);
    connect(m_connections.clear, &QPushButton::clicked, this,
            &VpnQuickEntryPopup::connectionsCleared);

    m_footer = new QPushButton(this);
    m_footer->setObjectName(u"VantuVPNQuickEntryFooter"_s);
    connect(m_footer, &QPushButton::clicked, this, &VpnQuickEntryPopup::browseRequested);
    watch(m_footer);

    auto *frame = new QVBoxLayout(this);
    frame->setContentsMargins(0, 0, 0, 0);
    frame->setSpacing(0);
    frame->addWidget(m_scroll, 1);
    frame->addWidget(m_footer);
    render();
}

QLabel *VpnQuickEntryPopup::addSection(QVBoxLayout &column, const QString &title)
{
    auto *label = new ElidedLabel(title);
    label->setObjectName(u"VantuVPNQuickEntrySection"_s);
    label->setProperty("vantuRole", u"muted"_s);
    label->setContentsMargins(kSideMargin, kVerticalMargin, kSideMargin, kVerticalMargin);
    label->setMinimumHeight(kSectionHeight);
    setTextStyle(*label, TextStyle::Note);
    column.addWidget(label);
    return label;
}

VpnQuickEntryPopup::Header VpnQuickEntryPopup::addHeader(QVBoxLayout &column, const QString &title,
                                                         const QString &clearName)
{
    Header header;
    header.bar = new QWidget;
    header.bar->setObjectName(u"VantuVPNQuickEntryHistoryHeader"_s);
    auto *line = new QVBoxLayout;
    line->setContentsMargins(0, 0, 0, 0);
    addSection(*line, title);
    header.clear = new QPushButton(QCoreApplication::translate("MainWindow", "Clear"));
    header.clear->setObjectName(clearName);
    header.clear->setMinimumHeight(kSmallButtonHeight);
    header.clear->setAccessibleDescription(title);
    setTextStyle(*header.clear, TextStyle::Note);
    watch(header.clear);

    auto *row = new QHBoxLayout(header.bar);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addLayout(line, 1);
    row->addWidget(header.clear);
    row->addSpacing(kSideMargin); // Margins aren't mirrored, spacings are.
    column.addWidget(header.bar);
    return header;
}

QuickEntryPillRow *VpnQuickEntryPopup::addPills(QVBoxLayout &column, int limit)
{
    auto *pills = new QuickEntryPillRow(limit);
    connect(pills, &QuickEntryPillRow::buttonAdded, this, &VpnQuickEntryPopup::watch);
    connect(pills, &QuickEntryPillRow::picked, this, &VpnQuickEntryPopup::searchPicked);
    connect(pills, &QuickEntryPillRow::expanded, this,
            [this](QAbstractButton *firstNew) { focusOn(firstNew, Qt::OtherFocusReason); });
    column.addWidget(pills);
    return pills;
}

void VpnQuickEntryPopup::setContent(const QuickEntryContent &content)
{
    if (content != m_content) {
        const QuickEntryContent before = std::exchange(m_content, content);
        render();
        announceFavorites(before);
    }
}

/// The keyboard may be on the star, or in the field, while it is the row that tells.
void VpnQuickEntryPopup::announceFavorites(const QuickEntryContent &before) const
{
    for (QuickEntryRow *row : m_rows) {
        const QuickEntryItem &now = row->item();
        const bool isNews =
            row->isVisible() && std::any_of(before.items.begin(), before.items.end(),
                                            [&now](const QuickEntryItem &was) {
                                                return was.kind == now.kind && was.id == now.id &&
                                                       was.favorite != now.favorite;
                                            });
        if (isNews) {
            announce(*row);
        }
    }
}

void VpnQuickEntryPopup::render()
{
    const bool searching = m_content.searching;
    const bool hasItems = !m_content.items.isEmpty();
    m_resultsTitle->setVisible(searching);
    setShownAloud(*m_empty, searching && !hasItems);
    m_searches.bar->setVisible(!m_content.searches.isEmpty());
    m_searchPills->setTexts(m_content.searches);
    m_searchPills->setVisible(!m_content.searches.isEmpty());
    m_connections.bar->setVisible(!searching && hasItems);
    renderRows();
    m_tagsTitle->setVisible(!m_content.tags.isEmpty());
    m_tagPills->setTexts(m_content.tags);
    m_tagPills->setVisible(!m_content.tags.isEmpty());
    m_footer->setText(
        searching ? QCoreApplication::translate("MainWindow", "See all matches in Locations \u203a")
                  : QCoreApplication::translate("MainWindow", "Browse in Locations"));
    m_scroll->setVisible(searching || hasItems || !m_content.searches.isEmpty() ||
                         !m_content.tags.isEmpty());
}

void VpnQuickEntryPopup::renderRows()
{
    const qsizetype count = m_content.items.size();
    while (m_rows.size() < count) {
        auto *row = new QuickEntryRow(m_body);
        row->setLook(m_look);
        connect(row, &QPushButton::clicked, this, [this, row] {
            const QuickEntryItem item = row->item();
            Q_EMIT itemChosen(item);
        });
        connect(row, &QuickEntryRow::favoriteRequested, this,
                &VpnQuickEntryPopup::favoriteRequested);
        watch(row);
        watch(row->star());
        m_rowColumn->addWidget(row);
        m_rows += row;
    }
    for (qsizetype i = 0; i < m_rows.size(); ++i) {
        if (i < count) {
            m_rows.at(i)->setItem(m_content.items.at(i));
        }
        m_rows.at(i)->setVisible(i < count);
    }
}

void VpnQuickEntryPopup::applyThemePalette(const ThemePalette &palette)
{
    m_look.litBars = QColor(palette.accent);
    m_look.otherBars = QColor(palette.textMuted);
    const qreal ratio = devicePixelRatioF();
    m_look.star = tintedIcon(u":/icons/star.svg"_s, m_look.otherBars, kStarIcon, ratio);
    m_look.filledStar = tintedIcon(u":/icons/star-filled.svg"_s, m_look.litBars, kStarIcon, ratio);
    for (QuickEntryRow *row : std::as_const(m_rows)) {
        row->setLook(m_look);
    }
    handOnTheme(*this, palette);
}

int VpnQuickEntryPopup::heightForWidth(int width) const
{
    // The style template decides how wide the frame is.
    const QMargins frame = contentsMargins();
    const int around = frame.top() + m_footer->sizeHint().height() + frame.bottom();
    if (!m_scroll->isVisibleTo(this)) {
        return around;
    }
    const QLayout &body = *m_body->layout();
    return around + (body.hasHeightForWidth()
                         ? body.totalHeightForWidth(width - frame.left() - frame.right())
                         : body.totalSizeHint().height());
}

void VpnQuickEntryPopup::rewind()
{
    m_scroll->verticalScrollBar()->setValue(0);
    m_tagPills->collapse();
}

void VpnQuickEntryPopup::watch(QAbstractButton *button)
{
    button->installEventFilter(this);
}

bool VpnQuickEntryPopup::eventFilter(QObject *watched, QEvent *event)
{
    auto *button = qobject_cast<QAbstractButton *>(watched);
    if (button && event->type() == QEvent::KeyPress) {
        return handleKey(*button, *static_cast<QKeyEvent *>(event));
    }
    return QFrame::eventFilter(watched, event);
}

bool VpnQuickEntryPopup::handleKey(QAbstractButton &button, QKeyEvent &event)
{
    const int forward = isRightToLeft() ? -1 : 1;
    auto *row = qobject_cast<QuickEntryRow *>(&button);
    if (!row && qobject_cast<QToolButton *>(&button)) {
        row = qobject_cast<QuickEntryRow *>(button.parentWidget());
    }
    const QAbstractButton &place = row ? *row : button;
    if (row && QKeySequence(event.keyCombination()) == catalogkeys::favorite()) {
        row->toggleFavorite();
        return true;
    }
    switch (event.key()) {
    case Qt::Key_Down:
        moveByLine(place, 1);
        return true;
    case Qt::Key_Up:
        moveByLine(place, -1);
        return true;
    case Qt::Key_Left:
        moveInLine(place, -forward);
        return true;
    case Qt::Key_Right:
        moveInLine(place, forward);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        button.click();
        return true;
    case Qt::Key_Escape:
        Q_EMIT closeRequested();
        return true;
    default:
        break;
    }
    if (belongsToField(event)) {
        Q_EMIT typed(&event);
        return true;
    }
    return false;
}

QList<QAbstractButton *> VpnQuickEntryPopup::focusOrder() const
{
    QList<QAbstractButton *> order{m_searches.clear};
    order += m_searchPills->buttons();
    order += m_connections.clear;
    for (QuickEntryRow *row : m_rows) {
        order << row << row->star();
    }
    order += m_tagPills->buttons();
    order += m_footer;
    order.removeIf([this](const QAbstractButton *button) {
        return !button->isVisibleTo(this) || !button->isEnabled();
    });
    return order;
}

bool VpnQuickEntryPopup::isSideButton(const QAbstractButton &button) const
{
    return qobject_cast<const QToolButton *>(&button) || &button == m_searches.clear ||
           &button == m_connections.clear;
}

QList<QAbstractButton *> VpnQuickEntryPopup::stops() const
{
    QList<QAbstractButton *> stops = focusOrder();
    stops.removeIf([this](const QAbstractButton *button) { return isSideButton(*button); });
    return stops;
}

void VpnQuickEntryPopup::moveByLine(const QAbstractButton &from, int step)
{
    const QList<QAbstractButton *> order = isSideButton(from) ? focusOrder() : stops();
    qsizetype next = order.indexOf(&from);
    do {
        next += step;
    } while (next >= 0 && next < order.size() && sameLine(*order.at(next), from));
    if (next < 0) {
        Q_EMIT left(false);
        return;
    }
    if (next >= order.size()) {
        return;
    }
    // Upwards, too, a line is entered at its start.
    while (step < 0 && next > 0 && sameLine(*order.at(next - 1), *order.at(next))) {
        --next;
    }
    focusOn(order.at(next), Qt::OtherFocusReason);
}

void VpnQuickEntryPopup::moveInLine(const QAbstractButton &from, int step)
{
    const QList<QAbstractButton *> order = stops();
    const qsizetype next = order.indexOf(&from) + step;
    if (next >= 0 && next < order.size() && order.at(next)->parentWidget() == from.parentWidget() &&
        !qobject_cast<const QuickEntryRow *>(&from)) {
        focusOn(order.at(next), Qt::OtherFocusReason);
    }
}

void VpnQuickEntryPopup::focusOn(QAbstractButton *button, Qt::FocusReason reason)
{
    if (!button) {
        return;
    }
    button->setFocus(reason);
    if (m_body->isAncestorOf(button)) {
        m_scroll->ensureWidgetVisible(button, 0, kSideMargin);
    }
}

void VpnQuickEntryPopup::focusFirst()
{
    focusOn(stops().constFirst(), Qt::OtherFocusReason);
}

void VpnQuickEntryPopup::focusLast()
{
    focusOn(stops().constLast(), Qt::OtherFocusReason);
}

bool VpnQuickEntryPopup::focusNextPrevChild(bool next)
{
    const QList<QAbstractButton *> order = focusOrder();
    const qsizetype at =
        order.indexOf(qobject_cast<QAbstractButton *>(QApplication::focusWidget()));
    const qsizetype to = at + (next ? 1 : -1);
    if (at < 0) {
        // What had the keyboard was hidden or disabled, and Qt seeks another place for it.
        Q_EMIT left(false);
    } else if (to < 0 || to >= order.size()) {
        Q_EMIT left(next);
    } else {
        focusOn(order.at(to), next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    }
    return true;
}
