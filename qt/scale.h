// Twips to pixels: one factor for every window of the program.
#pragma once

#include <QRect>
#include <QSize>
#include <algorithm>
#include <cmath>

#include "platform/controls.h"

namespace zarpel {

constexpr double kTwipsPerPixel = 15;  // at 96 dots an inch
constexpr double kTwipsPerPoint = 20;

// Of the main window, in pixels for a twip: here every text can still be read.
constexpr double kSmallestScale = 0.8 / kTwipsPerPixel;

class TableScale {
  public:
    explicit TableScale(double factor = 1 / kTwipsPerPixel) : factor_(factor) {}

    // The largest factor at which a form of this size (twips) fits into a client area of that (logical
    // pixels).
    void FitTo(const QSize& client, const QSize& form) {
        factor_ = std::min(double(std::max(1, client.width())) / form.width(),
                           double(std::max(1, client.height())) / form.height());
    }

    // Logical pixels of so many twips, and back.
    int Pixels(double twips) const { return static_cast<int>(std::lround(twips * factor_)); }
    int Twips(double pixels) const { return static_cast<int>(std::lround(pixels / factor_)); }

    // Logical pixels to a twip.
    double Factor() const { return factor_; }

    // Edges are rounded, not sizes, so that what touches in twips touches in pixels.
    QRect Pixels(const Place& place) const {
        const int left = Pixels(place.Left);
        const int top = Pixels(place.Top);
        return {left, top, Pixels(place.Left + place.Width) - left, Pixels(place.Top + place.Height) - top};
    }

    // Size in pixels of a picture drawn for 96 dots an inch.
    int Enlarged(int pixels) const { return Pixels(pixels * kTwipsPerPixel); }

    bool operator==(const TableScale&) const = default;

  private:
    double factor_;
};

inline Place PlaceOf(const Control& control) {
    return {control.Left, control.Top, control.Width, control.Height};
}

}  // namespace zarpel
