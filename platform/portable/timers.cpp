#include <algorithm>
#include <vector>

#include "input.h"
#include "messages.h"
#include "process.h"
#include "queue.h"
#include "text/guarded.h"
#include "window_state.h"

namespace platform {

struct Timer {
    HWND wnd;
    UINT_PTR id;
    ULONGLONG period;
    ULONGLONG due;
    TIMERPROC procedure;
};

static std::vector<Timer>& timers() {
    static auto& list = *new std::vector<Timer>;
    return list;
}

static auto find_timer(HWND wnd, UINT_PTR id) {
    return std::find_if(timers().begin(), timers().end(),
                        [=](const Timer& timer) { return timer.wnd == wnd && timer.id == id; });
}

static UINT_PTR fresh_id() {
    static UINT_PTR last = 0x7FFF;
    return ++last;
}

bool timer_message(HWND filter, bool take, MSG* msg) {
    const ULONGLONG now = GetTickCount64();
    Timer* first = nullptr;
    for (Timer& timer : timers()) {
        if (filter && filter != timer.wnd) continue;
        if (timer.due <= now && (!first || timer.due < first->due)) first = &timer;
    }
    if (!first) return false;
    *msg = {first->wnd,     WM_TIMER,          first->id, reinterpret_cast<LPARAM>(first->procedure),
            GetTickCount(), pointer_position()};
    // Ticks that were missed are not made up for.
    if (take) first->due = std::max(first->due + first->period, now + 1);
    return true;
}

int timer_wait() {
    constexpr ULONGLONG kLongest = 3600000;
    if (timers().empty()) return -1;
    const ULONGLONG now = GetTickCount64();
    ULONGLONG wait = kLongest;
    for (const Timer& timer : timers())
        wait = std::min(wait, timer.due > now ? timer.due - now : 0);
    return static_cast<int>(wait);
}

void call_timer(const MSG& msg) {
    const auto timer = find_timer(msg.hwnd, msg.wParam);
    if (timer == timers().end() || reinterpret_cast<LPARAM>(timer->procedure) != msg.lParam) return;
    timer->procedure(msg.hwnd, WM_TIMER, msg.wParam, GetTickCount());
}

void forget_timers(HWND wnd) {
    auto& list = timers();
    list.erase(std::remove_if(list.begin(), list.end(), [=](const Timer& timer) { return timer.wnd == wnd; }),
               list.end());
}

} // namespace platform

using namespace platform;

extern "C" {

UINT_PTR SetTimer(HWND wnd, UINT_PTR id, UINT milliseconds, TIMERPROC procedure) {
    if (wnd && !find_window(wnd)) return 0;
    const ULONGLONG period = std::clamp<UINT>(milliseconds, USER_TIMER_MINIMUM, USER_TIMER_MAXIMUM);
    auto old = find_timer(wnd, id);
    if (!wnd && old == timers().end()) id = fresh_id();
    const Timer timer = {wnd, id, period, GetTickCount64() + period, procedure};
    if (old != timers().end())
        *old = timer;
    else if (!text::guarded(false, [&] { return timers().push_back(timer), true; }))
        return 0;
    return id ? id : 1;
}

BOOL KillTimer(HWND wnd, UINT_PTR id) {
    const auto timer = find_timer(wnd, id);
    if (timer == timers().end()) return FALSE;
    timers().erase(timer);
    return TRUE;
}
}
