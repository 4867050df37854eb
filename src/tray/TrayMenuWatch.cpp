#include "TrayMenuWatch.h"

#include "TrayPanelMenu.h"

#include <QApplication>

#include <algorithm>

namespace {

/// Turns of the event loop between the menu's hiding and what follows from it. The
/// handler of the chosen entry comes first, whichever way it was queued.
constexpr int kCloseHops = 3;

} // namespace

TrayMenuWatch::TrayMenuWatch(QMenu &root, QObject *parent)
    : QObject(parent)
    , m_root(root)
{
    m_timeout.setSingleShot(true);
    m_timeout.setInterval(kOpenTimeout);
    connect(&m_root, &QMenu::aboutToShow, this, &TrayMenuWatch::handleAboutToShow);
    connect(&m_root, &QMenu::aboutToHide, this, &TrayMenuWatch::handleAboutToHide);
    connect(&m_timeout, &QTimer::timeout, this, [this] { passHop(0); });
}

void TrayMenuWatch::handleAboutToShow()
{
    // The last opening may have ended unheard.
    m_open = false;
    Q_EMIT opening();
    m_open = true;
    m_timeout.start();
}

void TrayMenuWatch::handleAboutToHide()
{
    QMetaObject::invokeMethod(
        this, [this] { passHop(kCloseHops - 1); }, Qt::QueuedConnection);
}

void TrayMenuWatch::passHop(int hopsLeft)
{
    if (hopsLeft > 0) {
        QMetaObject::invokeMethod(
            this, [this, hopsLeft] { passHop(hopsLeft - 1); }, Qt::QueuedConnection);
        return;
    }
    if (isShowing()) {
        // Looked at again later, should the popup's own hiding pass unnoticed.
        m_timeout.start();
        return;
    }
    finish();
}

void TrayMenuWatch::entryChosen()
{
    if (panelmenu::isExported(m_root)) {
        finish();
    }
}

void TrayMenuWatch::finish()
{
    if (!m_open) {
        return;
    }
    m_open = false;
    m_timeout.stop();
    Q_EMIT closed();
}

bool TrayMenuWatch::isShowing() const
{
    if (QApplication::activePopupWidget() != nullptr || m_root.isVisible()) {
        return true;
    }
    const auto menus = m_root.findChildren<QMenu *>();
    return std::any_of(menus.begin(), menus.end(),
                       [](const QMenu *menu) { return menu->isVisible(); });
}
