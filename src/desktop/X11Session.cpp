#include "X11Session.h"

#include <QGuiApplication>

#include <xcb/xcb.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <optional>

namespace {

/// Bytes of text that a message of the display carries.
constexpr qsizetype kChunk = 20;

struct Free
{
    void operator()(void *reply) const { std::free(reply); }
};
template<typename Reply>
using ReplyPtr = std::unique_ptr<Reply, Free>;

xcb_connection_t *connection()
{
    auto *const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 == nullptr ? nullptr : x11->connection();
}

xcb_atom_t atom(xcb_connection_t *display, const QByteArray &name)
{
    const auto cookie =
        xcb_intern_atom(display, 0, static_cast<uint16_t>(name.size()), name.constData());
    const ReplyPtr<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(display, cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

/// The selection that the tray of this screen owns.
xcb_atom_t trayAtom(xcb_connection_t *display)
{
    char *host = nullptr;
    int number = 0;
    int screen = 0;
    if (xcb_parse_display(nullptr, &host, &number, &screen) != 0) {
        std::free(host);
    }
    return atom(display, "_NET_SYSTEM_TRAY_S" + QByteArray::number(screen));
}

xcb_window_t rootOf(xcb_connection_t *display, xcb_window_t window)
{
    const ReplyPtr<xcb_query_tree_reply_t> tree(
        xcb_query_tree_reply(display, xcb_query_tree(display, window), nullptr));
    return tree ? tree->root : xcb_window_t{XCB_WINDOW_NONE};
}

/// The moment of the launch, which launchers put at the end of its name.
std::optional<uint32_t> launchTime(const QByteArray &startupId)
{
    constexpr QByteArrayView kMark("_TIME");
    const qsizetype mark = startupId.lastIndexOf(kMark);
    bool isNumber = false;
    const uint32_t time = mark < 0 ? 0 : startupId.sliced(mark + kMark.size()).toUInt(&isNumber);
    return isNumber ? std::optional(time) : std::nullopt;
}

void send(xcb_connection_t *display, xcb_window_t root, uint32_t mask,
          const xcb_client_message_event_t &message)
{
    xcb_send_event(display, 0, root, mask,
                   static_cast<const char *>(static_cast<const void *>(&message)));
}

void raise(xcb_connection_t *display, xcb_window_t root, xcb_window_t window, uint32_t time)
{
    constexpr uint32_t kFromApplication = 1;
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = atom(display, "_NET_ACTIVE_WINDOW");
    message.data.data32[0] = kFromApplication;
    message.data.data32[1] = time;
    send(display, root, XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
         message);
}

/// The launcher's busy pointer goes.
void endLaunch(xcb_connection_t *display, xcb_window_t root, xcb_window_t window,
               const QByteArray &startupId)
{
    QByteArray text = "remove: ID=";
    for (const char letter : startupId) {
        if (std::strchr(" \"\\", letter) != nullptr) {
            text += '\\';
        }
        text += letter;
    }
    text += '\0';
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 8;
    message.window = window;
    message.type = atom(display, "_NET_STARTUP_INFO_BEGIN");
    const xcb_atom_t next = atom(display, "_NET_STARTUP_INFO");
    for (qsizetype at = 0; at < text.size(); at += kChunk) {
        const QByteArray chunk = text.mid(at, kChunk).leftJustified(kChunk, '\0');
        std::copy(chunk.begin(), chunk.end(), message.data.data8);
        send(display, root, XCB_EVENT_MASK_PROPERTY_CHANGE, message);
        message.type = next;
    }
}

} // namespace

bool x11session::isRunning()
{
    return connection() != nullptr;
}

bool x11session::hasSystemTray()
{
    xcb_connection_t *display = connection();
    if (display == nullptr) {
        return false;
    }
    const ReplyPtr<xcb_get_selection_owner_reply_t> reply(xcb_get_selection_owner_reply(
        display, xcb_get_selection_owner(display, trayAtom(display)), nullptr));
    return reply && reply->owner != XCB_WINDOW_NONE;
}

bool x11session::announcesSystemTray(const void *event)
{
    const auto *const message = static_cast<const xcb_client_message_event_t *>(event);
    constexpr unsigned int kSentByClient = 0x80;
    if ((message->response_type & ~kSentByClient) != XCB_CLIENT_MESSAGE || message->format != 32) {
        return false;
    }
    xcb_connection_t *display = connection();
    return display != nullptr && message->type == atom(display, "MANAGER") &&
           message->data.data32[1] == trayAtom(display);
}

void x11session::activate(WId window, const QByteArray &startupId)
{
    xcb_connection_t *display = connection();
    if (display == nullptr || startupId.isEmpty()) {
        return;
    }
    const auto target = static_cast<xcb_window_t>(window);
    const xcb_window_t root = rootOf(display, target);
    if (const auto time = launchTime(startupId)) {
        raise(display, root, target, *time);
    }
    endLaunch(display, root, target, startupId);
    xcb_flush(display);
}
