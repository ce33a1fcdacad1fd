// SPDX-License-Identifier: GPL-3.0-or-later
#include <xcb/damage.h>
#include <xcb/xcb.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

// FirstPaint <program> [argument...]
//
// Starts a program on the X display and measures from outside how long it takes until its window is drawn. Prints that,
// the time of the start on the monotonic clock, the window and the process as one line of JSON. Terminates the program
// when standard input ends.

namespace {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

constexpr auto longestWait = std::chrono::seconds(30);
constexpr int smallestWindow = 100;

// The colour of the root window. It shows through a window until that is drawn.
constexpr std::uint32_t undrawn = 0xff00ff;
constexpr std::uint32_t colourBits = 0xffffff;

xcb_connection_t* display = nullptr;
pid_t child = 0;

[[noreturn]] void fail(const char* message)
{
    if (child > 0)
        kill(child, SIGKILL);
    std::fprintf(stderr, "FirstPaint: %s\n", message);
    std::exit(EXIT_FAILURE);
}

template <class Reply> auto owned(Reply* reply)
{
    return std::unique_ptr<Reply, decltype(&std::free)>(reply, &std::free);
}

void prepareRoot()
{
    const xcb_screen_t& screen = *xcb_setup_roots_iterator(xcb_get_setup(display)).data;
    const std::uint32_t values[]{undrawn, XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY};
    xcb_change_window_attributes(display, screen.root, XCB_CW_BACK_PIXEL | XCB_CW_EVENT_MASK, values);
    xcb_clear_area(display, 0, screen.root, 0, 0, 0, 0);
    // The pointer must not hover over a window.
    xcb_warp_pointer(display, XCB_NONE, screen.root, 0, 0, 0, 0, static_cast<std::int16_t>(screen.width_in_pixels - 1),
                     static_cast<std::int16_t>(screen.height_in_pixels - 1));
    if (!owned(xcb_damage_query_version_reply(display, xcb_damage_query_version(display, 1, 1), nullptr)))
        fail("the display cannot be reached, or does not report drawing");
}

struct Picture {
    int width = 0;
    int height = 0;
    /// 0 while the window is hidden, small, or not completely drawn.
    std::ptrdiff_t colours = 0;
};

Picture pictureOf(xcb_window_t window)
{
    const auto size = owned(xcb_get_geometry_reply(display, xcb_get_geometry(display, window), nullptr));
    if (!size || size->width < smallestWindow || size->height < smallestWindow)
        return {};
    const auto request =
        xcb_get_image(display, XCB_IMAGE_FORMAT_Z_PIXMAP, window, 0, 0, size->width, size->height, colourBits);
    const auto image = owned(xcb_get_image_reply(display, request, nullptr));
    if (!image)
        return {};
    const auto* first = reinterpret_cast<const std::uint32_t*>(xcb_get_image_data(image.get()));
    std::vector<std::uint32_t> pixels(first, first + std::ptrdiff_t{size->width} * size->height);
    std::ranges::sort(pixels);
    if (std::ranges::binary_search(pixels, undrawn))
        return {};
    return {size->width, size->height, std::unique(pixels.begin(), pixels.end()) - pixels.begin()};
}

Picture pictureAfter(const xcb_generic_event_t& event)
{
    const int type = event.response_type & 0x7f;
    if (type == XCB_CREATE_NOTIFY) {
        // If the window is drawn before this request arrives, the request is answered with a report.
        xcb_damage_create(display, xcb_generate_id(display),
                          reinterpret_cast<const xcb_create_notify_event_t&>(event).window,
                          XCB_DAMAGE_REPORT_LEVEL_NON_EMPTY);
        xcb_flush(display);
    } else if (type == xcb_get_extension_data(display, &xcb_damage_id)->first_event + XCB_DAMAGE_NOTIFY) {
        const auto& damaged = reinterpret_cast<const xcb_damage_notify_event_t&>(event);
        xcb_damage_subtract(display, damaged.damage, XCB_NONE, XCB_NONE);
        return pictureOf(damaged.drawable);
    }
    return {};
}

void reportFirstPaint(Clock::time_point start)
{
    for (;;) {
        while (const auto event = owned(xcb_poll_for_event(display))) {
            const Milliseconds taken = Clock::now() - start;
            const Picture picture = pictureAfter(*event);
            if (picture.colours == 0)
                continue;
            std::printf(
                R"({"milliseconds": %.3f, "started": %.3f, "width": %d, "height": %d, "colours": %td, "pid": %d})"
                "\n",
                taken.count(), Milliseconds(start.time_since_epoch()).count(), picture.width, picture.height,
                picture.colours, child);
            std::fflush(stdout);
            return;
        }
        pollfd source{xcb_get_file_descriptor(display), POLLIN, 0};
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(start + longestWait - Clock::now()).count();
        if (left <= 0 || poll(&source, 1, static_cast<int>(left)) == 0 || xcb_connection_has_error(display) != 0)
            fail("no window was drawn in time");
    }
}

} // namespace

int main(int argc, char* argv[])
{
    display = xcb_connect(nullptr, nullptr);
    prepareRoot();
    const auto start = Clock::now();
    if (argc < 2 || posix_spawnp(&child, argv[1], nullptr, nullptr, argv + 1, environ) != 0)
        fail("the program cannot be started");
    reportFirstPaint(start);

    while (std::getchar() != EOF) {
    }
    int status = 0;
    if (waitpid(child, &status, WNOHANG) != 0)
        fail("the program ended by itself");
    kill(child, SIGTERM);
    // A program that does not handle the signal is killed by it, which is fine.
    if (waitpid(child, &status, 0) != child || (WIFEXITED(status) && WEXITSTATUS(status) != 0))
        fail("the program did not end well");
}
