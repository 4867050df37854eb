#pragma once

#include "TrayMenuState.h"

#include <QObject>

#include <array>
#include <memory>

class QAction;
class QMenu;

/// Where the mode section lies: in a submenu, or spread out in the menu itself with
/// the split options shown.
enum class TrayLayout { Nested, Flat };

/// The switch between the two layouts, for the whole program.
inline constexpr bool kFlatTrayMenu = false;
inline constexpr TrayLayout kTrayLayout = kFlatTrayMenu ? TrayLayout::Flat : TrayLayout::Nested;

/// The tray's menu as it is built once: all fixed entries in their order. Knows
/// nothing of the daemon; a TrayMenuState tells it how to look.
class TrayMenu final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(TrayMenu)

public:
    explicit TrayMenu(TrayLayout layout, QObject *parent = nullptr);
    ~TrayMenu() override;

    QMenu &root() const { return *m_root; }
    /// Null for an entry that this layout doesn't have.
    QAction *action(TrayEntry entry) const { return m_actions[static_cast<std::size_t>(entry)]; }
    /// The submenu that an entry holds; null for one that holds none.
    QMenu *submenu(TrayEntry entry) const;

    /// Makes every entry look as told. Touches an entry only where it differs, since
    /// each touch travels to the desktop's panel.
    void apply(const TrayMenuState &state);
    /// The same for the fixed entries inside the node submenu only.
    void applyNodeEntries(const TrayMenuState &state);

Q_SIGNALS:
    /// The user chose an entry; `checked` is what its mark would be then.
    void chosen(TrayEntry entry, bool checked);

private:
    void applyRange(const TrayMenuState &state, TrayEntry first, TrayEntry last);

    std::unique_ptr<QMenu> m_root;
    /// The actions are children of this object, not of the menus that show them, so
    /// that clearing a menu never deletes one.
    std::array<QAction *, kTrayEntryCount> m_actions{};
};
