// SPDX-License-Identifier: Apache-2.0

#include "WindowOnScreen.h"

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <vector>

namespace folioforge::test {
namespace {

struct Free {
    void operator()(void *memory) const { std::free(memory); }
    void operator()(xcb_connection_t *connection) const { xcb_disconnect(connection); }
};

using Connection = std::unique_ptr<xcb_connection_t, Free>;

Connection connectedTo(const QByteArray &display) {
    return Connection(xcb_connect(display.constData(), nullptr));
}

xcb_atom_t atom(xcb_connection_t *connection, const QByteArray &name) {
    const auto request =
        xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.constData());
    const std::unique_ptr<xcb_intern_atom_reply_t, Free> reply(
        xcb_intern_atom_reply(connection, request, nullptr));
    return reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
}

/// The numbers in the property `name` of `window`; nothing where it has none.
std::vector<std::uint32_t> numbersIn(xcb_connection_t *screen, xcb_window_t window,
                                     const QByteArray &name) {
    constexpr std::uint32_t kMax = 16;
    const auto request =
        xcb_get_property(screen, 0, window, atom(screen, name), XCB_ATOM_ANY, 0, kMax);
    const std::unique_ptr<xcb_get_property_reply_t, Free> reply(
        xcb_get_property_reply(screen, request, nullptr));
    if (!reply || reply->format != 32) {
        return {};
    }
    const auto *first = static_cast<const std::uint32_t *>(xcb_get_property_value(reply.get()));
    return {first, first + reply->value_len};
}

xcb_window_t rootOf(xcb_connection_t *screen) {
    return xcb_setup_roots_iterator(xcb_get_setup(screen)).data->root;
}

} // namespace

bool hasWindowManager(const QByteArray &display) {
    const Connection screen = connectedTo(display);
    return !numbersIn(screen.get(), rootOf(screen.get()), "_NET_SUPPORTING_WM_CHECK").empty();
}

bool askToClose(const QByteArray &display, xcb_window_t window) {
    const Connection screen = connectedTo(display);
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = atom(screen.get(), "WM_PROTOCOLS");
    message.data.data32[0] = atom(screen.get(), "WM_DELETE_WINDOW");
    // The check waits for the screen, which forgets what it has not read when the sender leaves.
    const std::unique_ptr<xcb_generic_error_t, Free> error(xcb_request_check(
        screen.get(), xcb_send_event_checked(screen.get(), 0, window, XCB_EVENT_MASK_NO_EVENT,
                                             reinterpret_cast<const char *>(&message))));
    return !error && xcb_connection_has_error(screen.get()) == 0;
}

std::optional<WindowPlace> placeOf(const QByteArray &display, xcb_window_t window) {
    const Connection screen = connectedTo(display);
    const std::unique_ptr<xcb_get_geometry_reply_t, Free> size(
        xcb_get_geometry_reply(screen.get(), xcb_get_geometry(screen.get(), window), nullptr));
    const std::unique_ptr<xcb_translate_coordinates_reply_t, Free> corner(
        xcb_translate_coordinates_reply(
            screen.get(),
            xcb_translate_coordinates(screen.get(), window, rootOf(screen.get()), 0, 0), nullptr));
    if (!size || !corner) {
        return std::nullopt;
    }
    const QRect inside(corner->dst_x, corner->dst_y, size->width, size->height);
    const auto edges = numbersIn(screen.get(), window, "_NET_FRAME_EXTENTS");
    if (edges.size() < 4) {
        return WindowPlace{inside, inside};
    }
    const auto edge = [&edges](std::size_t index) { return static_cast<int>(edges[index]); };
    return WindowPlace{inside, inside.adjusted(-edge(0), -edge(2), edge(1), edge(3))};
}

} // namespace folioforge::test
