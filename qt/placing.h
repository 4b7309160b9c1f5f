// Where windows stand: wholly on one screen, frame and all.
#pragma once

#include <QRect>
#include <QWidget>

namespace zarpel {

// Where a box or a dialog opens.
struct Site {
    QWidget* Owner = nullptr;  // the window above which it stands; null: none
    QRect Area;                // the part of the screen whose middle it takes (global)
};

// Puts a window that is about to be shown into the middle of the site's area. One that is higher than that
// ends where the area ends, as far as it stays on the owner's screen; one larger than the screen is made
// smaller. It is taken to get a frame like the owner's.
void PlaceAt(const Site& site, QWidget& window);

// Gives a window that its screen cannot show whole a size of these proportions that it can.
void KeepOnScreen(QWidget& window, const QSize& proportions);

}  // namespace zarpel
