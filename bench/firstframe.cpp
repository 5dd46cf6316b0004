// SPDX-License-Identifier: Apache-2.0

// firstframe PROGRAM [ARGUMENT...]: starts the program and prints the milliseconds until it has
// drawn into a window of its own on the X server of $DISPLAY, then ends it. The server tells of the
// drawing (extension DAMAGE), so nothing is polled. Exit status 1 where nothing is drawn in 10 s.

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <optional>

#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>
#include <xcb/damage.h>

namespace {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;
constexpr auto kPatience = std::chrono::seconds(10);

struct Free {
    void operator()(void *memory) const { std::free(memory); }
};
template<typename T> using Reply = std::unique_ptr<T, Free>;

/// The windows that programs open on the screen, and the first drawing into one of them.
class Screen {
  public:
    Screen()
        : m_server(xcb_connect(nullptr, nullptr)) {}
    ~Screen() { xcb_disconnect(m_server); }
    Screen(const Screen &) = delete;
    Screen &operator=(const Screen &) = delete;

    /// Begins to listen; false where there is no server or it lacks the extension.
    bool listen() {
        if (xcb_connection_has_error(m_server)) {
            return false;
        }
        const auto *extension = xcb_get_extension_data(m_server, &xcb_damage_id);
        if (!extension || !extension->present) {
            return false;
        }
        m_drawing = extension->first_event + XCB_DAMAGE_NOTIFY;
        const Reply<xcb_damage_query_version_reply_t> version(xcb_damage_query_version_reply(
            m_server, xcb_damage_query_version(m_server, 1, 1), nullptr));
        const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(m_server)).data->root;
        const uint32_t events = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
        xcb_change_window_attributes(m_server, root, XCB_CW_EVENT_MASK, &events);
        // A reply says that the request has been carried out.
        const Reply<xcb_get_input_focus_reply_t> done(
            xcb_get_input_focus_reply(m_server, xcb_get_input_focus(m_server), nullptr));
        return version && done;
    }

    /// Waits for the first drawing; the moment it was heard of, nothing after `deadline`.
    std::optional<Clock::time_point> waitForDrawing(Clock::time_point deadline) {
        while (waitForEvents(deadline)) {
            while (const Reply<xcb_generic_event_t> event{xcb_poll_for_event(m_server)}) {
                if (isDrawing(*event)) {
                    return Clock::now();
                }
            }
        }
        return std::nullopt;
    }

  private:
    bool isDrawing(const xcb_generic_event_t &event) {
        constexpr int kSentByClient = 0x80;
        const int type = event.response_type & ~kSentByClient;
        if (type == XCB_CREATE_NOTIFY) {
            // Watched before it is shown. A window that nobody sees has no damage.
            const auto &created = reinterpret_cast<const xcb_create_notify_event_t &>(event);
            xcb_damage_create(m_server, xcb_generate_id(m_server), created.window,
                              XCB_DAMAGE_REPORT_LEVEL_NON_EMPTY);
            xcb_flush(m_server);
        }
        return type == m_drawing;
    }

    bool waitForEvents(Clock::time_point deadline) const {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now());
        pollfd server{xcb_get_file_descriptor(m_server), POLLIN, 0};
        return left.count() > 0 && poll(&server, 1, int(left.count())) > 0 &&
               !xcb_connection_has_error(m_server);
    }

    xcb_connection_t *m_server;
    int m_drawing = 0;
};

pid_t start(char **command) {
    const pid_t program = fork();
    if (program == 0) {
        execvp(command[0], command);
        std::perror(command[0]);
        _exit(127);
    }
    return program;
}

/// Ends `program` and waits for it; the signal cannot be refused.
void end(pid_t program) {
    kill(program, SIGKILL);
    waitpid(program, nullptr, 0);
}

} // namespace

int main(int argc, char **argv) {
    Screen screen;
    if (argc < 2 || !screen.listen()) {
        std::fputs("firstframe: no program, or no X server with the extension DAMAGE\n", stderr);
        return 2;
    }
    const auto before = Clock::now();
    const pid_t program = start(argv + 1);
    const auto drawn = screen.waitForDrawing(before + kPatience);
    end(program);
    if (!drawn) {
        std::fprintf(stderr, "firstframe: %s draws nothing\n", argv[1]);
        return 1;
    }
    std::printf("%.1f\n", Milliseconds(*drawn - before).count());
    return 0;
}
