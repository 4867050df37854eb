#pragma once

#include "QuickEntryContent.h"
#include "QuickEntryRow.h"

#include <QFrame>
#include <QList>

class QAbstractButton;
class QKeyEvent;
class QLabel;
class QPushButton;
class QScrollArea;
class QuickEntryPillRow;
class QVBoxLayout;
struct ThemePalette;

/// The frame below the search field with places to pick: matches of a search, or what
/// was used lately and the popular tags.
///
/// A child of the window rather than a popup of the desktop, so that typing goes on in
/// the field. The arrow keys walk its rows and pills, and keys that belong to the field
/// are handed back. It shows what it is given and reports what is picked; VpnQuickEntry
/// decides.
class VpnQuickEntryPopup final : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(VpnQuickEntryPopup)

public:
    explicit VpnQuickEntryPopup(QWidget *parent = nullptr);

    const QuickEntryContent &content() const { return m_content; }
    void setContent(const QuickEntryContent &content);
    void applyThemePalette(const ThemePalette &palette);

    /// The height at which nothing needs to be scrolled, at this width.
    int heightForWidth(int width) const override;
    /// Back to the top, with the first few tags only.
    void rewind();

    void focusFirst();
    void focusLast();

Q_SIGNALS:
    void itemChosen(const QuickEntryItem &item);
    void searchPicked(const QString &search);
    void favoriteRequested(const QString &nodeID, bool favorite);
    void searchesCleared();
    void connectionsCleared();
    void browseRequested();
    void closeRequested();
    /// The focus leaves at the end, or else at the start, where the field is.
    void left(bool atEnd);
    /// A key press for the search field.
    void typed(QKeyEvent *event);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    bool focusNextPrevChild(bool next) override;

private:
    struct Header
    {
        QWidget *bar = nullptr;
        QPushButton *clear = nullptr;
    };

    void buildContent();
    Header addHeader(QVBoxLayout &column, const QString &title, const QString &clearName);
    QLabel *addSection(QVBoxLayout &column, const QString &title);
    QuickEntryPillRow *addPills(QVBoxLayout &column, int limit);
    void render();
    void renderRows();
    void announceFavorites(const QuickEntryContent &before) const;
    void watch(QAbstractButton *button);
    bool handleKey(QAbstractButton &button, QKeyEvent &event);

    /// What can take the focus, in order; the arrow keys pass over side buttons.
    QList<QAbstractButton *> focusOrder() const;
    QList<QAbstractButton *> stops() const;
    bool isSideButton(const QAbstractButton &button) const;
    void moveByLine(const QAbstractButton &from, int step);
    void moveInLine(const QAbstractButton &from, int step);
    void focusOn(QAbstractButton *button, Qt::FocusReason reason);

    QuickEntryContent m_content;
    QuickEntryLook m_look;
    QScrollArea *m_scroll = nullptr;
    QWidget *m_body = nullptr;
    QLabel *m_resultsTitle = nullptr;
    QLabel *m_empty = nullptr;
    Header m_searches;
    QuickEntryPillRow *m_searchPills = nullptr;
    Header m_connections;
    QVBoxLayout *m_rowColumn = nullptr;
    QList<QuickEntryRow *> m_rows;
    QLabel *m_tagsTitle = nullptr;
    QuickEntryPillRow *m_tagPills = nullptr;
    QPushButton *m_footer = nullptr;
};
