// SPDX-License-Identifier: GPL-3.0-or-later
#include "Compositor.h"

#include <QGuiApplication>

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>
#include <string_view>

namespace {

struct Free {
    void operator()(void* reply) const { std::free(reply); }
};
template <class Reply> using ReplyPointer = std::unique_ptr<Reply, Free>;

} // namespace

bool hasCompositor()
{
    auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (x11 == nullptr) // Wayland is one itself
        return true;
    // By convention a compositor of X11 owns the selection of the screen. Of several, the first is the one in use.
    constexpr std::string_view selection = "_NET_WM_CM_S0";
    xcb_connection_t* display = x11->connection();
    const auto name = xcb_intern_atom(display, 1, selection.size(), selection.data());
    const ReplyPointer<xcb_intern_atom_reply_t> atom(xcb_intern_atom_reply(display, name, nullptr));
    if (!atom || atom->atom == XCB_ATOM_NONE)
        return false;
    const auto question = xcb_get_selection_owner(display, atom->atom);
    const ReplyPointer<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(display, question, nullptr));
    return reply && reply->owner != XCB_WINDOW_NONE;
}
