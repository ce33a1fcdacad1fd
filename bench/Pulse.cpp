// SPDX-License-Identifier: GPL-3.0-or-later
#include <xcb/xcb.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <poll.h>
#include <string_view>

// Pulse <seconds>
//
// Keeps pinging the window on the X display, as window managers do (_NET_WM_PING). A program answers on its main
// thread. Prints how long the slowest answer took, in milliseconds.

namespace {

using Clock = std::chrono::steady_clock;

constexpr auto longestWait = std::chrono::seconds(30);
constexpr auto betweenPings = std::chrono::milliseconds(2);

xcb_connection_t* display = nullptr;
xcb_window_t root = 0;

[[noreturn]] void fail(const char* message)
{
    std::fprintf(stderr, "Pulse: %s\n", message);
    std::exit(EXIT_FAILURE);
}

template <class Reply> auto owned(Reply* reply)
{
    return std::unique_ptr<Reply, decltype(&std::free)>(reply, &std::free);
}

xcb_atom_t atom(std::string_view name)
{
    const auto request = xcb_intern_atom(display, 0, static_cast<std::uint16_t>(name.size()), name.data());
    return owned(xcb_intern_atom_reply(display, request, nullptr))->atom;
}

void ping(xcb_window_t window, std::uint32_t number)
{
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = atom("WM_PROTOCOLS");
    event.data.data32[0] = atom("_NET_WM_PING");
    event.data.data32[1] = number;
    event.data.data32[2] = window;
    xcb_send_event(display, 0, window, XCB_EVENT_MASK_NO_EVENT, reinterpret_cast<const char*>(&event));
    xcb_flush(display);
}

bool isAnswer(const xcb_generic_event_t& event, std::uint32_t number)
{
    return (event.response_type & 0x7f) == XCB_CLIENT_MESSAGE &&
           reinterpret_cast<const xcb_client_message_event_t&>(event).data.data32[1] == number;
}

void waitForAnswer(std::uint32_t number)
{
    const auto deadline = Clock::now() + longestWait;
    for (;;) {
        while (const auto event = owned(xcb_poll_for_event(display))) {
            if (isAnswer(*event, number))
                return;
        }
        pollfd source{xcb_get_file_descriptor(display), POLLIN, 0};
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now()).count();
        if (left <= 0 || poll(&source, 1, static_cast<int>(left)) == 0)
            fail("no answer");
    }
}

/// The window of the program, the only visible one.
xcb_window_t shownWindow()
{
    const auto tree = owned(xcb_query_tree_reply(display, xcb_query_tree(display, root), nullptr));
    const xcb_window_t* const first = xcb_query_tree_children(tree.get());
    const xcb_window_t* const last = first + xcb_query_tree_children_length(tree.get());
    const auto* const shown = std::find_if(first, last, [](xcb_window_t window) {
        const auto request = xcb_get_window_attributes(display, window);
        const auto attributes = owned(xcb_get_window_attributes_reply(display, request, nullptr));
        return attributes && attributes->map_state == XCB_MAP_STATE_VIEWABLE;
    });
    if (shown == last)
        fail("no window is shown");
    return *shown;
}

} // namespace

int main(int argc, char* argv[])
{
    display = xcb_connect(nullptr, nullptr);
    if (argc != 2 || xcb_connection_has_error(display) != 0)
        fail("no duration is given, or the display cannot be reached");
    root = xcb_setup_roots_iterator(xcb_get_setup(display)).data->root;
    // Answers are sent to the root window, with one of these event masks or the other depending on the toolkit.
    const std::uint32_t answers = XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(display, root, XCB_CW_EVENT_MASK, &answers);
    const xcb_window_t window = shownWindow();
    const auto end = Clock::now() + std::chrono::seconds(std::atoi(argv[1]));
    Clock::duration longest{};
    for (std::uint32_t number = 1; Clock::now() < end; ++number) {
        const auto asked = Clock::now();
        ping(window, number);
        waitForAnswer(number);
        longest = std::max(longest, Clock::now() - asked);
        poll(nullptr, 0, static_cast<int>(betweenPings.count()));
    }
    std::printf("%.3f\n", std::chrono::duration<double, std::milli>(longest).count());
}
