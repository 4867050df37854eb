#include "TrayHostWatch.h"

#include <QIcon>
#include <QPixmap>
#include <QSignalSpy>
#include <QSystemTrayIcon>
#include <QTest>

#include <xcb/xcb.h>

#include <cstdlib>
#include <cstring>
#include <memory>

using namespace Qt::StringLiterals;

/// A tray of the old kind, which takes windows as icons; the display knows it by a
/// selection.
class WindowTray final
{
    Q_DISABLE_COPY_MOVE(WindowTray)

public:
    WindowTray()
        : m_display(xcb_connect(nullptr, nullptr))
        , m_window(xcb_generate_id(m_display))
    {
        const auto *screen = xcb_setup_roots_iterator(xcb_get_setup(m_display)).data;
        xcb_create_window(m_display, XCB_COPY_FROM_PARENT, m_window, screen->root, 0, 0, 32, 32, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, screen->root_visual, 0, nullptr);
        xcb_client_message_event_t come{};
        come.response_type = XCB_CLIENT_MESSAGE;
        come.format = 32;
        come.window = screen->root;
        come.type = atom("MANAGER");
        come.data.data32[1] = atom("_NET_SYSTEM_TRAY_S0");
        come.data.data32[2] = m_window;
        xcb_set_selection_owner(m_display, m_window, come.data.data32[1], XCB_CURRENT_TIME);
        xcb_send_event(m_display, 0, screen->root, XCB_EVENT_MASK_STRUCTURE_NOTIFY,
                       reinterpret_cast<const char *>(&come));
        xcb_flush(m_display);
    }
    ~WindowTray() { xcb_disconnect(m_display); }

    /// A window has asked to be taken.
    bool isAsked()
    {
        const xcb_atom_t request = atom("_NET_SYSTEM_TRAY_OPCODE");
        while (xcb_generic_event_t *event = xcb_poll_for_event(m_display)) {
            const auto *message = reinterpret_cast<const xcb_client_message_event_t *>(event);
            m_isAsked = m_isAsked || ((event->response_type & 0x7f) == XCB_CLIENT_MESSAGE &&
                                      message->type == request && message->data.data32[1] == 0);
            std::free(event);
        }
        return m_isAsked;
    }

private:
    xcb_atom_t atom(const char *name)
    {
        const auto cookie =
            xcb_intern_atom(m_display, 0, static_cast<uint16_t>(std::strlen(name)), name);
        auto *reply = xcb_intern_atom_reply(m_display, cookie, nullptr);
        const xcb_atom_t result = reply->atom;
        std::free(reply);
        return result;
    }

    xcb_connection_t *m_display;
    xcb_window_t m_window;
    bool m_isAsked = false;
};

class TestWindowTray final : public QObject
{
    Q_OBJECT

public:
    /// Desktops with such a tray often have no session bus.
    static void initMain() { qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere"); }

private Q_SLOTS:
    void comesLateDiesAndReturns();
};

void TestWindowTray::comesLateDiesAndReturns()
{
    TrayHostWatch watch;
    const QSignalSpy appeared(&watch, &TrayHostWatch::hostAppeared);
    QVERIFY(watch.start() && watch.start());
    QVERIFY(!TrayHostWatch::isHostPresent() && !TrayHostWatch::isTrayAvailable());

    auto tray = std::make_unique<WindowTray>();
    QTRY_COMPARE(appeared.count(), 1);
    QVERIFY(TrayHostWatch::isHostPresent() && TrayHostWatch::isTrayAvailable());
    QPixmap pixmap(22, 22);
    pixmap.fill(Qt::red);
    QSystemTrayIcon icon{QIcon(pixmap)};
    icon.show();
    QTRY_VERIFY(tray->isAsked());

    tray.reset();
    QTRY_VERIFY(!TrayHostWatch::isHostPresent());
    tray = std::make_unique<WindowTray>();
    QTRY_COMPARE(appeared.count(), 2);
    QTRY_VERIFY(tray->isAsked());
}

QTEST_MAIN(TestWindowTray)
#include "tst_window_tray.moc"
