#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QImage>
#include <QList>
#include <QString>
#include <QStringList>
#include <QThread>
#include <QVariant>

class TrayWatcher;

/// One entry of a tray menu as a panel reads it.
///
/// Qt turns the first "&" of a text into the "_" that marks a mnemonic and sends all
/// else as it is: an underscore of the text itself is lost on the way to the reader,
/// and from the second "&&" on both ampersands arrive.
struct TrayMenuItem
{
    int id = 0;
    QString label;    ///< As a reader sees it, mnemonic marks taken out.
    QString rawLabel; ///< As sent: "_" marks a mnemonic, "__" is an underscore.
    bool enabled = true;
    bool visible = true;
    bool checkable = false;
    bool checked = false;
    bool separator = false;
    bool submenu = false; ///< Has a submenu, even if that is still empty.
    QList<TrayMenuItem> children;

    /// The entry with this label (cleaned) here or further down, or null.
    const TrayMenuItem *find(const QString &wanted) const;
    /// The cleaned labels of the visible children; "-" stands for a separator.
    QStringList labels() const;
};

/// A desktop's panel as tray icons see it: the StatusNotifier watcher and host on the
/// session bus, and a reader of the icons' properties and menus.
///
/// Works for icons of this process and of others: the watcher answers on a thread and
/// a connection of its own, and whoever reads, on the GUI thread, goes on handling
/// events while it waits. A read of an icon that is gone gives an empty result.
///
/// start() it before the first question to QSystemTrayIcon: Qt asks once whether there
/// is a tray and remembers the answer for the rest of the process.
class TrayHost final
{
    Q_DISABLE_COPY_MOVE(TrayHost)

public:
    TrayHost();
    ~TrayHost();

    /// Takes the names on the bus; false when another watcher has them. Icons register
    /// by themselves soon after.
    bool start();
    /// Dies as a crashed panel does: names and icons are gone. start() revives it.
    void stop();

    /// The registered icons, as service name plus object path, oldest first. The other
    /// functions take one of these; left out, the oldest icon.
    QStringList items() const;

    /// A property of the icon such as "Status" or "Title"; invalid when it fails.
    QVariant property(const QString &name, const QString &item = {});
    QString toolTip(const QString &item = {});
    /// The largest picture of the icon; null when there is none.
    QImage icon(const QString &item = {});

    /// A left or middle press at a place of the screen.
    bool activate(const QString &item = {}) { return press(u"Activate", item); }
    bool secondaryActivate(const QString &item = {}) { return press(u"SecondaryActivate", item); }

    /// The whole menu as it stands; its root has id 0.
    TrayMenuItem menu(const QString &item = {});
    /// Tells that the entry's submenu (the menu itself for 0) is about to be shown;
    /// returns whether the reader should fetch the layout again.
    bool aboutToShow(int id, const QString &item = {});
    /// Sends "clicked", "opened", "closed" or "hovered" for an entry.
    bool sendEvent(int id, const QString &event, const QString &item = {});
    /// Clicks the visible, enabled entry with this label; false when there is none.
    bool click(const QString &label, const QString &item = {});

private:
    QDBusMessage call(const QString &item, const QString &path, const QString &interface,
                      const QString &method, const QVariantList &arguments);
    QDBusMessage callMenu(const QString &item, const QString &method,
                          const QVariantList &arguments);
    bool press(QStringView method, const QString &item);
    QString orOldest(const QString &item) const;

    QDBusConnection m_bus;
    QThread m_thread;
    TrayWatcher *m_watcher; ///< Lives and dies with m_thread.
    bool m_running = false;
};
