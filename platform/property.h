// A value of a control that assigns like a variable and lets whoever watches the control know that it
// changed.
#pragma once

#include <functional>
#include <utility>

namespace zarpel {

// Something that one watcher (the piece of the front end that draws it) follows.
class Observed {
  public:
    Observed() = default;
    Observed(const Observed&) = delete;
    Observed& operator=(const Observed&) = delete;

    // Set by the watcher, and by nobody else: the game leaves it alone. Called after every change of a
    // property and by Refresh, which can be hundreds of times in one event, most of them on the way to
    // something else (the computer tries cards). What is costly is best done once for all: mark the control
    // here, and bring it into step when the event is over or a call of the desktop blocks.
    std::function<void()> Changed;

    // Asks the watcher to draw again, although nothing changed.
    void Refresh() const {
        if (Changed) Changed();
    }

  protected:
    ~Observed() = default;
};

template <class T>
class Property {
  public:
    explicit Property(const Observed& owner, T initial = T{}) : owner_(owner), value_(std::move(initial)) {}
    Property(const Property&) = delete;

    Property& operator=(const Property& other) { return *this = other.value_; }
    // Assigning the value it already has tells nobody.
    Property& operator=(T value) {
        if (value == value_) return *this;
        value_ = std::move(value);
        owner_.Refresh();
        return *this;
    }

    const T& get() const { return value_; }
    operator const T&() const { return value_; }
    bool operator==(const T& other) const { return value_ == other; }
    bool operator==(const Property& other) const { return value_ == other.value_; }

  private:
    const Observed& owner_;
    T value_;
};

}  // namespace zarpel
