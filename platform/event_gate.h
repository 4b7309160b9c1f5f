// Lets one event at a time through to a window of the game.
//
// A handler may wait (for a box, for a pause, for the computer's move) while the toolkit goes on. The
// player's input is kept back by the toolkit, but actions from the accessibility bus, a session that ends,
// and timers are not. What arrives while a handler runs is kept here and handed over when it has returned, in
// order.
#pragma once

#include <deque>
#include <functional>
#include <utility>

namespace zarpel {

class EventGate {
  public:
    using Handler = std::function<void()>;

    // Runs the handler now, or after those before it. `Idle` is called when none is left.
    void Pass(Handler handler) {
        if (closed_) return;
        waiting_.push_back(std::move(handler));
        if (busy_) return;
        busy_ = true;
        while (!waiting_.empty()) {
            const Handler next = std::move(waiting_.front());
            waiting_.pop_front();
            next();
        }
        busy_ = false;
        if (Idle) Idle();
    }

    // Nothing more is handed over, of what waits or is yet to come: the window is gone.
    void Close() {
        waiting_.clear();
        closed_ = true;
    }

    // Called whenever no handler is left; may be empty.
    Handler Idle;

  private:
    std::deque<Handler> waiting_;
    bool busy_ = false;
    bool closed_ = false;
};

}  // namespace zarpel
