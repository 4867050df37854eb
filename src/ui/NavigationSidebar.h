#pragma once

#include <QWidget>

#include <array>

struct ThemePalette;
class VantuNavCard;

/// The pages by their fixed numbers, which other code addresses them by.
enum class Page { Vpn = 0, Locations = 1, Mode = 2, Settings = 3, Account = 4 };

inline constexpr int kPageCount = 5;

/// The column of entries that choose the window's page: one stop for Tab, and the arrow
/// keys choose the next. The window adds its own short cuts.
class NavigationSidebar final : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(NavigationSidebar)

public:
    explicit NavigationSidebar(QWidget *parent = nullptr);

    /// Marks an entry as chosen, without a signal.
    void setCurrentPage(Page page);
    /// Puts the keyboard on the chosen entry.
    void focusCurrentPage();
    /// What the mode entry tells when the pointer rests on it.
    void setModeLine(const QString &line);
    void applyThemePalette(const ThemePalette &palette);

    /// The name of a page, as its entry shows it.
    static QString pageName(Page page);

Q_SIGNALS:
    void pageRequested(int index);

private:
    std::array<VantuNavCard *, kPageCount> m_cards{};
};
