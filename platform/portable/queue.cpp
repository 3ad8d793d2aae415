#include "queue.h"

#include <chrono>
#include <condition_variable>
#include <deque>
#include <mutex>

#include "desktop.h"
#include "messages.h"
#include "process.h"
#include "text/guarded.h"
#include "window_state.h"

namespace platform {

// Posted messages and the wish to quit may come from any thread; everything else belongs to the windows'.
struct Queue {
    std::mutex mutex;
    std::condition_variable arrival;
    std::deque<MSG> posted;
    bool quit = false;
    int quit_code = 0;
    unsigned arrivals = 0;

    std::deque<Input> input;
    DWORD last_pump = 0;
    DWORD taken_time = 0;
    POINT taken_pos{};
    POINT pointer{};
};

static Queue& queue() {
    static auto& one = *new Queue;
    return one;
}

struct Filter {
    HWND wnd;
    UINT first, last;

    bool accepts(const MSG& msg) const { return (!wnd || msg.hwnd == wnd) && accepts(msg.message); }
    bool accepts(UINT message) const {
        return (first == 0 && last == 0) || (message >= first && message <= last);
    }
};

// Puts one at the end of a queue; false without memory.
template <class Entry>
static bool append(std::deque<Entry>& to, const Entry& entry) {
    return text::guarded(false, [&] { return to.push_back(entry), true; });
}

void queue_input(const Input& input) { append(queue().input, input); }

Input* last_input() { return queue().input.empty() ? nullptr : &queue().input.back(); }

void clear_queue() {
    std::lock_guard<std::mutex> lock(queue().mutex);
    queue().posted.clear();
    queue().input.clear();
    queue().quit = false;
}

void forget_messages(HWND wnd) {
    std::lock_guard<std::mutex> lock(queue().mutex);
    auto& posted = queue().posted;
    for (auto it = posted.begin(); it != posted.end();)
        it = it->hwnd == wnd ? posted.erase(it) : it + 1;
}

POINT pointer_position() { return queue().pointer; }
void set_pointer_position(POINT point) { queue().pointer = point; }

static bool take_posted(const Filter& filter, bool take, MSG* msg) {
    std::lock_guard<std::mutex> lock(queue().mutex);
    auto& posted = queue().posted;
    for (auto it = posted.begin(); it != posted.end(); ++it) {
        if (!filter.accepts(*it)) continue;
        *msg = *it;
        msg->pt = pointer_position();
        if (take) posted.erase(it);
        return true;
    }
    return false;
}

static bool input_message(const Input& input, bool take, MSG* msg) {
    return input.kind == Input::Kind::mouse ? mouse_message(input, take, msg) : key_message(input, take, msg);
}

static bool take_input(const Filter& filter, bool take, MSG* msg) {
    auto& waiting = queue().input;
    for (std::size_t i = 0; i < waiting.size();) {
        const Input input = waiting[i];
        const bool wanted = input_message(input, false, msg);
        if (wanted && !filter.accepts(*msg)) {
            i++;
            continue;
        }
        if (wanted && !take) return true;
        waiting.erase(waiting.begin() + static_cast<std::ptrdiff_t>(i));
        if (input_message(input, true, msg) && wanted) return true;
        i = 0; // what it set off may have changed the queue
    }
    return false;
}

static bool take_quit(bool take, MSG* msg) {
    std::lock_guard<std::mutex> lock(queue().mutex);
    if (!queue().quit) return false;
    *msg = {nullptr, WM_QUIT, static_cast<WPARAM>(queue().quit_code), 0, GetTickCount(), pointer_position()};
    if (take) queue().quit = false;
    return true;
}

static void pump() {
    queue().last_pump = GetTickCount();
    desktop_pump();
}

static bool take_message(const Filter& filter, bool take, MSG* msg) {
    constexpr DWORD kPumpInterval = 5; // a host that is never idle still hears of its input
    if (GetTickCount() - queue().last_pump >= kPumpInterval) pump();
    show_damage(true);
    if (take_posted(filter, take, msg) || take_input(filter, take, msg)) return true;
    pump();
    if (take_posted(filter, take, msg) || take_input(filter, take, msg)) return true;
    // Before paint requests: a window that never validates would keep the host from its end.
    if (take_quit(take, msg)) return true;
    if (filter.accepts(WM_PAINT) && paint_message(filter.wnd, msg)) return true;
    if (filter.accepts(WM_TIMER) && timer_message(filter.wnd, take, msg)) return true;
    show_damage(false);
    return false;
}

static void note_taken(const MSG& msg) {
    queue().taken_time = msg.time;
    queue().taken_pos = msg.pt;
}

static unsigned arrivals() {
    std::lock_guard<std::mutex> lock(queue().mutex);
    return queue().arrivals;
}

// Waits for anything that was not there when `seen` was read.
static void wait_for_arrival(unsigned seen) {
    const int wait = timer_wait();
    if (wait == 0 || desktop_wait(wait)) return;
    std::unique_lock<std::mutex> lock(queue().mutex);
    const auto arrived = [=] { return queue().arrivals != seen; };
    if (wait < 0) {
        queue().arrival.wait(lock, arrived);
    } else {
        queue().arrival.wait_for(lock, std::chrono::milliseconds(wait), arrived);
    }
}

static void announce() {
    queue().arrival.notify_one();
    desktop_wake();
}

} // namespace platform

using namespace platform;

extern "C" {

BOOL PeekMessageW(MSG* msg, HWND wnd, UINT first, UINT last, UINT remove) {
    if (!msg || (wnd && !find_window(wnd))) return FALSE;
    if (!take_message({wnd, first, last}, remove & PM_REMOVE, msg)) return FALSE;
    note_taken(*msg);
    return TRUE;
}

BOOL GetMessageW(MSG* msg, HWND wnd, UINT first, UINT last) {
    const Filter filter = {wnd, first, last};
    while (msg && (!wnd || find_window(wnd))) {
        const unsigned seen = arrivals();
        if (take_message(filter, true, msg)) {
            note_taken(*msg);
            return msg->message != WM_QUIT;
        }
        wait_for_arrival(seen);
    }
    return -1;
}

LRESULT DispatchMessageW(const MSG* msg) {
    if (!msg) return 0;
    if (msg->message == WM_TIMER && msg->lParam) {
        call_timer(*msg);
        return 0;
    }
    return SendMessageW(msg->hwnd, msg->message, msg->wParam, msg->lParam);
}

BOOL PostMessageW(HWND wnd, UINT message, WPARAM wparam, LPARAM lparam) {
    constexpr std::size_t kMost = 10000;
    if (wnd && !find_window(wnd)) return FALSE;
    {
        std::lock_guard<std::mutex> lock(queue().mutex);
        const MSG msg = {wnd, message, wparam, lparam, GetTickCount(), {}};
        if (queue().posted.size() >= kMost || !append(queue().posted, msg)) return FALSE;
        queue().arrivals++;
    }
    announce();
    return TRUE;
}

void PostQuitMessage(int code) {
    {
        std::lock_guard<std::mutex> lock(queue().mutex);
        queue().arrivals++;
        queue().quit = true;
        queue().quit_code = code;
    }
    announce();
}

DWORD GetMessagePos() { return static_cast<DWORD>(MAKELONG(queue().taken_pos.x, queue().taken_pos.y)); }
LONG GetMessageTime() { return static_cast<LONG>(queue().taken_time); }

BOOL GetCursorPos(POINT* point) {
    if (!point) return FALSE;
    *point = queue().pointer;
    return TRUE;
}
}
