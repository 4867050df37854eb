#include "VpnQuickEntry.h"

#include "AppState.h"
#include "CatalogKeys.h"
#include "QuickEntryContent.h"
#include "RecentActivityStore.h"
#include "RuntimeFacts.h"
#include "SearchField.h"
#include "StyleProperty.h"
#include "VpnQuickEntryPopup.h"

#include <QApplication>
#include <QKeyEvent>

using namespace Qt::StringLiterals;

namespace {

/// Room left free below the popup.
constexpr int kBottomGap = 16;
constexpr int kMinimumHeight = 120;

} // namespace

VpnQuickEntry::VpnQuickEntry(AppState &state, RecentActivityStore &recents, SearchField &field)
    : QObject(&field)
    , m_state(state)
    , m_recents(recents)
    , m_field(field)
    , m_popup(new VpnQuickEntryPopup(field.parentWidget()))
{
    m_refreshTimer.setSingleShot(true);
    connect(&m_refreshTimer, &QTimer::timeout, this, [this] {
        readCatalog();
        refresh();
    });
    connect(&state, &AppState::nodesChanged, this, &VpnQuickEntry::noteCatalogChange);
    connect(&state, &AppState::nodeGroupsChanged, this, &VpnQuickEntry::noteCatalogChange);
    connect(&field, &QLineEdit::textEdited, this, &VpnQuickEntry::open);
    connect(&field, &QLineEdit::textChanged, this, &VpnQuickEntry::refresh);
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget *, QWidget *now) { closeUnlessInside(now); });
    connect(&state, &AppState::runtimeChanged, this, &VpnQuickEntry::refresh);
    field.installEventFilter(this);
    connectPopup();
}

VpnQuickEntry::~VpnQuickEntry() = default;

void VpnQuickEntry::connectPopup()
{
    connect(m_popup, &VpnQuickEntryPopup::itemChosen, this, &VpnQuickEntry::choose);
    connect(m_popup, &VpnQuickEntryPopup::searchPicked, this, [this](const QString &search) {
        m_field.setFocus();
        m_field.setText(search);
    });
    connect(m_popup, &VpnQuickEntryPopup::favoriteRequested, this,
            &VpnQuickEntry::setNodeFavoriteRequested);
    connect(m_popup, &VpnQuickEntryPopup::searchesCleared, this,
            [this] { afterClearing(m_recents.clearSearches()); });
    connect(m_popup, &VpnQuickEntryPopup::connectionsCleared, this, [this] {
        const bool cleared = m_recents.clearNodes();
        afterClearing(cleared);
        if (cleared) {
            Q_EMIT recentConnectionsCleared();
        }
    });
    connect(m_popup, &VpnQuickEntryPopup::browseRequested, this, [this] {
        close();
        Q_EMIT browseLocationsRequested(m_field.text().trimmed());
    });
    connect(m_popup, &VpnQuickEntryPopup::closeRequested, this, &VpnQuickEntry::close);
    connect(m_popup, &VpnQuickEntryPopup::left, this, &VpnQuickEntry::leave);
    connect(m_popup, &VpnQuickEntryPopup::typed, this, [this](QKeyEvent *event) {
        m_field.setFocus();
        QCoreApplication::sendEvent(&m_field, event);
    });
}

QWidget *VpnQuickEntry::host() const
{
    // The style template reaches what lies below the window's root.
    for (QWidget *widget = m_field.parentWidget(); widget; widget = widget->parentWidget()) {
        if (widget->objectName() == "VantuWindowRoot"_L1) {
            return widget;
        }
    }
    return m_field.window();
}

void VpnQuickEntry::open()
{
    if (m_open || !m_field.isVisible()) {
        return;
    }
    m_open = true;
    if (QWidget *root = host(); m_popup->parentWidget() != root) {
        m_popup->setParent(root);
    }
    m_popup->rewind();
    refresh();
    setStyleProperty(m_field, "vantuPopupOpen", u"true"_s);
    m_popup->show();
    m_popup->raise();
    // Also presses on what takes no focus close the popup.
    qApp->installEventFilter(this);
    Q_EMIT visibleChanged(true);
}

void VpnQuickEntry::close()
{
    if (!m_open) {
        return;
    }
    m_open = false;
    qApp->removeEventFilter(this);
    const QWidget *focus = QApplication::focusWidget();
    if (focus && m_popup->isAncestorOf(focus)) {
        m_field.setFocus();
    }
    m_popup->hide();
    setStyleProperty(m_field, "vantuPopupOpen", QVariant());
    Q_EMIT visibleChanged(false);
}

void VpnQuickEntry::enterPopup()
{
    if (m_open) {
        m_popup->focusFirst();
    }
}

void VpnQuickEntry::applyThemePalette(const ThemePalette &palette)
{
    m_popup->applyThemePalette(palette);
}

void VpnQuickEntry::noteCatalogChange()
{
    // Nodes and groups arrive one after the other; and nobody looks at a hidden field. In
    // sight of one the catalogue is read before it is asked for, so that the first key
    // press is as quick as any.
    m_catalogOutdated = true;
    if (m_field.isVisible()) {
        m_refreshTimer.start();
    }
}

void VpnQuickEntry::readCatalog()
{
    if (m_catalogOutdated) {
        m_catalogOutdated = false;
        m_catalog = QuickEntryCatalog(m_state.nodes(), m_state.nodeGroups());
    }
}

void VpnQuickEntry::refresh()
{
    if (!m_open) {
        return;
    }
    readCatalog();
    const QuickEntryHistory history{m_recents.searches(), m_recents.nodes(),
                                    m_recents.nodesCleared(),
                                    facts::effectiveConnected(m_state.runtime(), m_state.nodes())};
    const bool wasSearching = m_popup->content().searching;
    m_popup->setContent(quickEntryContent(m_field.text(), m_catalog, history));
    if (m_popup->content().searching != wasSearching) {
        m_popup->rewind();
    }
    place();
}

void VpnQuickEntry::place()
{
    const QWidget *root = m_popup->parentWidget();
    const QPoint corner = m_field.mapTo(root, QPoint(0, m_field.height()));
    const int room = root->height() - corner.y() - kBottomGap;
    const int height = qMin(m_popup->heightForWidth(m_field.width()), qMax(room, kMinimumHeight));
    m_popup->setGeometry(corner.x(), corner.y(), m_field.width(), height);
}

bool VpnQuickEntry::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonPress && m_open && watched->isWidgetType()) {
        if (!isInside(static_cast<QWidget *>(watched))) {
            close();
        }
        return false;
    }
    if (m_open && watched == m_popup->parentWidget() && event->type() == QEvent::Resize) {
        m_refreshTimer.start();
    }
    if (watched != &m_field) {
        return false;
    }
    switch (event->type()) {
    case QEvent::KeyPress:
        return handleFieldKey(*static_cast<QKeyEvent *>(event));
    case QEvent::MouseButtonPress:
        open();
        return false;
    case QEvent::Move:
    case QEvent::Resize:
        if (m_open) {
            place();
        }
        return false;
    case QEvent::Show:
        m_refreshTimer.start();
        return false;
    case QEvent::Hide:
        close();
        return false;
    default:
        return false;
    }
}

bool VpnQuickEntry::handleFieldKey(QKeyEvent &event)
{
    if (QKeySequence(event.keyCombination()) == catalogkeys::favorite()) {
        toggleFirstFavorite();
        return true;
    }
    switch (event.key()) {
    case Qt::Key_Down:
        open();
        enterPopup();
        return true;
    case Qt::Key_Up:
        if (m_open) {
            m_popup->focusLast();
        }
        return m_open;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        handleReturn();
        return true;
    case Qt::Key_Escape:
        if (m_open) {
            close();
            return true;
        }
        if (!m_field.text().isEmpty()) {
            m_field.clear();
            return true;
        }
        return false;
    default:
        return false;
    }
}

void VpnQuickEntry::handleReturn()
{
    open();
    const QuickEntryContent content = m_popup->content();
    if (!content.searching) {
        return;
    }
    if (content.items.isEmpty()) {
        rememberSearch();
    } else {
        choose(content.items.constFirst());
    }
}

void VpnQuickEntry::toggleFirstFavorite()
{
    const QuickEntryContent &content = m_popup->content();
    if (!m_open || !content.searching || content.items.isEmpty()) {
        return;
    }
    const QuickEntryItem &first = content.items.constFirst();
    if (first.kind == QuickEntryItem::Kind::Node) {
        Q_EMIT setNodeFavoriteRequested(first.id, !first.favorite);
    }
}

void VpnQuickEntry::choose(const QuickEntryItem &item)
{
    if (!item.available) {
        return;
    }
    rememberSearch();
    close();
    const bool wasConnecting = m_connecting;
    if (item.kind == QuickEntryItem::Kind::Group) {
        Q_EMIT connectSmartRequested(item.id, item.label, item.flagCode);
    } else {
        Q_EMIT connectNodeRequested(item.id, item.label, item.flagCode);
    }
    // Nobody should have to type a place anew that was refused.
    if (m_connecting && !wasConnecting) {
        m_field.clear();
    }
}

void VpnQuickEntry::rememberSearch()
{
    if (m_popup->content().searching) {
        m_recents.addSearch(m_field.text());
    }
}

void VpnQuickEntry::afterClearing(bool cleared)
{
    m_field.setFocus();
    refresh();
    if (!cleared) {
        Q_EMIT recentsNotCleared();
    }
}

void VpnQuickEntry::leave(bool atEnd)
{
    m_field.setFocus(atEnd ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    if (atEnd) {
        close();
        Q_EMIT leftForward();
    }
}

void VpnQuickEntry::closeUnlessInside(const QWidget *focus)
{
    // Without any focus the window is merely not the active one.
    if (m_open && focus && !isInside(focus)) {
        close();
    }
}

bool VpnQuickEntry::isInside(const QWidget *widget) const
{
    return widget == &m_field || m_field.isAncestorOf(widget) || widget == m_popup ||
           m_popup->isAncestorOf(widget);
}
