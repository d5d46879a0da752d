#include <algorithm>
#include <deque>
#include <optional>
#include <vector>

#include "platform/standin/failure.h"
#include "platform/standin/window.h"

namespace standin {
namespace {

constexpr UINT kShortestTimer = 10;
// A program that asks for messages in vain spends time, so that timers come due while it polls.
constexpr DWORD kPollTime = 10;
constexpr int kPaintsInVain = 10000;

struct Timer {
  UINT_PTR id;
  UINT period;
  DWORD due;
  TIMERPROC proc;
};

struct Queue {
  std::deque<MSG> posted;
  std::optional<int> exitCode;
  std::vector<Timer> timers;
  UINT_PTR nextTimer = 0x7000;
  DWORD now = 0;
  WindowPtr lastPainted;
  int paints = 0;
};

Queue& TheQueue() {
  static auto* queue = new Queue;
  return *queue;
}

// Which messages a call is about.
struct Filter {
  UINT first = 0;
  UINT last = 0;

  bool Takes(UINT message) const {
    return (!first && !last) || (message >= first && message <= last);
  }
};

MSG MakeMessage(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
  return {window, message, wParam, lParam, TheQueue().now, {0, 0}};
}

bool TakePosted(MSG& message, const Filter& filter, bool remove) {
  auto& posted = TheQueue().posted;
  const auto found = std::find_if(posted.begin(), posted.end(), [&](const MSG& candidate) {
    return filter.Takes(candidate.message);
  });
  if (found == posted.end()) return false;
  message = *found;
  if (remove) posted.erase(found);
  return true;
}

bool TakeQuit(MSG& message, bool remove) {
  auto& exitCode = TheQueue().exitCode;
  if (!exitCode) return false;
  message = MakeMessage(nullptr, WM_QUIT, static_cast<WPARAM>(*exitCode));
  if (remove) exitCode.reset();
  return true;
}

bool TakePaint(MSG& message, const Filter& filter) {
  Queue& queue = TheQueue();
  const auto window = NextToPaint();
  if (!window || !filter.Takes(WM_PAINT)) return false;
  queue.paints = window == queue.lastPainted ? queue.paints + 1 : 0;
  queue.lastPainted = window;
  if (queue.paints > kPaintsInVain)
    Unsupported("WM_PAINT of class " + window->windowClass->name + " never validates its window");
  message = MakeMessage(window->handle, WM_PAINT);
  return true;
}

bool TakeTimer(MSG& message, const Filter& filter) {
  Queue& queue = TheQueue();
  for (Timer& timer : queue.timers) {
    if (timer.due > queue.now || !filter.Takes(WM_TIMER)) continue;
    timer.due = queue.now + timer.period;
    message = MakeMessage(nullptr, WM_TIMER, timer.id, reinterpret_cast<LPARAM>(timer.proc));
    // The others of this moment come first the next time.
    std::rotate(queue.timers.begin(), queue.timers.begin() + (&timer - queue.timers.data()) + 1,
                queue.timers.end());
    return true;
  }
  return false;
}

bool Take(MSG& message, const Filter& filter, bool remove) {
  if (TakePosted(message, filter, remove)) return true;
  if (filter.Takes(WM_QUIT) && TakeQuit(message, remove)) return true;
  if (TakePaint(message, filter)) return true;
  TheQueue().lastPainted.reset();
  return TakeTimer(message, filter);
}

}  // namespace

bool TakeMessage(MSG& message) { return Take(message, {}, true); }

void ForgetMessages(HWND window) {
  std::erase_if(TheQueue().posted, [&](const MSG& message) { return message.hwnd == window; });
}

void PassTime(DWORD milliseconds) { TheQueue().now += milliseconds; }

}  // namespace standin

using namespace standin;

BOOL GetMessageA(LPMSG message, HWND, UINT first, UINT last) {
  Queue& queue = TheQueue();
  while (!Take(*message, {first, last}, true)) {
    const auto next =
        std::min_element(queue.timers.begin(), queue.timers.end(),
                         [](const Timer& a, const Timer& b) { return a.due < b.due; });
    if (next == queue.timers.end()) Unsupported("the message loop would wait for ever");
    queue.now = std::max(queue.now + 1, next->due);
  }
  return message->message != WM_QUIT;
}

BOOL PeekMessageA(LPMSG message, HWND, UINT first, UINT last, UINT remove) {
  if (Take(*message, {first, last}, remove & PM_REMOVE)) return TRUE;
  PassTime(kPollTime);
  return FALSE;
}

// Tests send the characters that they type themselves.
BOOL TranslateMessage(const MSG*) { return FALSE; }

LRESULT DispatchMessageA(const MSG* message) {
  if (message->message == WM_TIMER && message->lParam) {
    reinterpret_cast<TIMERPROC>(message->lParam)(message->hwnd, WM_TIMER, message->wParam,
                                                 TheQueue().now);
    return 0;
  }
  return message->hwnd
             ? SendMessageA(message->hwnd, message->message, message->wParam, message->lParam)
             : 0;
}

BOOL PostMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (window && !FindWindowPtr(window)) return FALSE;
  TheQueue().posted.push_back(MakeMessage(window, message, wParam, lParam));
  return TRUE;
}

LRESULT SendMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  // The reference keeps what stands behind the handle while its procedure runs, even when the
  // procedure destroys the window.
  const auto target = FindWindowPtr(window);
  return target ? target->proc(window, message, wParam, lParam) : 0;
}

LRESULT CallWindowProcA(WNDPROC proc, HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return proc(window, message, wParam, lParam);
}

VOID PostQuitMessage(int exitCode) { TheQueue().exitCode = exitCode; }

// Without a window the system chooses the number.
UINT_PTR SetTimer(HWND window, UINT_PTR, UINT milliseconds, TIMERPROC proc) {
  if (window) Unsupported("timers of windows");
  Queue& queue = TheQueue();
  const UINT period = std::max(milliseconds, kShortestTimer);
  queue.timers.push_back({++queue.nextTimer, period, queue.now + period, proc});
  return queue.nextTimer;
}

BOOL KillTimer(HWND, UINT_PTR id) {
  return std::erase_if(TheQueue().timers, [id](const Timer& timer) { return timer.id == id; }) != 0;
}
