// Tells how long a program takes from its start to its first window on the screen, in milliseconds,
// and ends it.
//
//     untilshown PROGRAM ARGUMENT...

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>
#include <xcb/xcb.h>

namespace {

constexpr int patience = 10'000; // milliseconds

struct Free {
    void operator()(xcb_generic_event_t* event) const { std::free(event); }
};

void observeWindows(xcb_connection_t* screen)
{
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(screen)).data->root;
    const uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(screen, root, XCB_CW_EVENT_MASK, &mask);
    xcb_flush(screen);
}

bool awaitWindow(xcb_connection_t* screen)
{
    pollfd news { xcb_get_file_descriptor(screen), POLLIN, 0 };
    while (poll(&news, 1, patience) > 0 && !xcb_connection_has_error(screen))
        while (
            const std::unique_ptr<xcb_generic_event_t, Free> event { xcb_poll_for_event(screen) })
            if ((event->response_type & 0x7F) == XCB_MAP_NOTIFY)
                return true;
    return false;
}

}

int main(int argc, char* argv[])
{
    xcb_connection_t* const screen = xcb_connect(nullptr, nullptr);
    if (argc < 2 || xcb_connection_has_error(screen))
        return EXIT_FAILURE;
    observeWindows(screen);

    const auto start = std::chrono::steady_clock::now();
    const pid_t program = fork();
    if (program == 0) {
        execv(argv[1], argv + 1);
        _exit(EXIT_FAILURE);
    }
    const bool isShown = awaitWindow(screen);
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
    kill(program, SIGKILL);
    waitpid(program, nullptr, 0);
    std::cout << time.count() << '\n';
    return isShown ? EXIT_SUCCESS : EXIT_FAILURE;
}
