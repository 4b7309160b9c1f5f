// The game's look: the toolkit's own style, in the size of the table.
#pragma once

#include <QProxyStyle>

#include "qt/scale.h"

namespace zarpel {

// Frames, margins, icons and gaps of menus, buttons and boxes grow with the scale as the fonts do.
class ScaledStyle : public QProxyStyle {
  public:
    ScaledStyle();

    // Widgets take it up when they are made, and when their font changes.
    void Use(const TableScale& scale) { scale_ = scale; }

    // Whether what changes place glides there. At first, as the desktop's settings say.
    void LetMove(bool moves) { moves_ = moves; }

    // No button has an icon, whatever the desktop would like.
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* more) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    // The base style leaves the menu unmarked that the keys are at.
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    // Those of message boxes are the game's own, which are drawn for every size.
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override;

  private:
    TableScale scale_;
    bool moves_;
};

}  // namespace zarpel
