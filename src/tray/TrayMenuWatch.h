#pragma once

#include <QMenu>
#include <QObject>
#include <QTimer>

#include <chrono>

/// Knows whether the tray's menu is open, so that it isn't changed under the user's
/// hand.
///
/// A menu that Qt shows itself says when it closes. One that is exported to the
/// desktop's panel may never say so; for that one a chosen entry, the next opening, or
/// some time without a visible popup count as closing.
class TrayMenuWatch final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(TrayMenuWatch)

public:
    /// Longest time that an exported menu counts as open.
    static constexpr std::chrono::seconds kOpenTimeout{30};

    explicit TrayMenuWatch(QMenu &root, QObject *parent = nullptr);

    bool isOpen() const { return m_open; }

    /// An entry was chosen, which ends the open state of an exported menu.
    void entryChosen();

Q_SIGNALS:
    /// The menu is about to open: the last moment to change it.
    void opening();
    /// The menu has closed, and the handler of the entry chosen in it has run.
    void closed();

private:
    void handleAboutToShow();
    void handleAboutToHide();
    void passHop(int hopsLeft);
    void finish();
    bool isShowing() const;

    QMenu &m_root;
    QTimer m_timeout;
    bool m_open = false;
};
