#pragma once

#include "QuickEntryCatalog.h"

#include <QObject>
#include <QTimer>

class AppState;
class QEvent;
class QKeyEvent;
class QWidget;
class RecentActivityStore;
class SearchField;
class VpnQuickEntryPopup;
struct ThemePalette;

/// The search field together with what drops down from it: opens and closes the popup,
/// keeps it in step with the text, the catalogue and the history, and turns what is
/// picked into requests.
///
/// Lives with the page that owns the field. The popup belongs to the window while it is
/// open, since it covers what lies below the field.
class VpnQuickEntry final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(VpnQuickEntry)

public:
    /// Everything must outlive the object.
    VpnQuickEntry(AppState &state, RecentActivityStore &recents, SearchField &field);
    ~VpnQuickEntry() override;

    bool isOpen() const { return m_open; }
    void open();
    /// Hides the popup; the focus goes back to the field if it was inside.
    void close();
    /// Puts the focus on the first of the open popup's entries.
    void enterPopup();
    void applyThemePalette(const ThemePalette &palette);
    /// A connection is being made or ended. Beginning while a place is picked, it says
    /// that the place was taken.
    void setConnecting(bool connecting) { m_connecting = connecting; }

Q_SIGNALS:
    void connectNodeRequested(const QString &nodeID, const QString &label, const QString &flagCode);
    /// `selector` is a group's key.
    void connectSmartRequested(const QString &selector, const QString &label,
                               const QString &flagCode);
    void setNodeFavoriteRequested(const QString &nodeID, bool favorite);
    void browseLocationsRequested(const QString &query);
    void recentConnectionsCleared();
    /// What the user cleared is still there.
    void recentsNotCleared();
    void visibleChanged(bool visible);
    /// Tab left the popup behind its last entry.
    void leftForward();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void connectPopup();
    void noteCatalogChange();
    void readCatalog();
    void refresh();
    void place();
    bool handleFieldKey(QKeyEvent &event);
    void handleReturn();
    void toggleFirstFavorite();
    void choose(const QuickEntryItem &item);
    void rememberSearch();
    void afterClearing(bool cleared);
    void leave(bool atEnd);
    void closeUnlessInside(const QWidget *focus);
    bool isInside(const QWidget *widget) const;
    QWidget *host() const;

    AppState &m_state;
    RecentActivityStore &m_recents;
    SearchField &m_field;
    VpnQuickEntryPopup *m_popup; ///< A child of the field's page or of its window.
    QuickEntryCatalog m_catalog;
    bool m_catalogOutdated = true;
    bool m_open = false;
    bool m_connecting = false;
    QTimer m_refreshTimer;
};
