#include "platform/qt/scaled_style.h"

#include <QStyleFactory>

namespace zarpel {

ScaledStyle::ScaledStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

// Zero and less are no sizes: they mean "none" or "as the style thinks fit".
int ScaledStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    const int pixels = QProxyStyle::pixelMetric(metric, option, widget);
    return pixels > 0 ? scale_.Enlarged(pixels) : pixels;
}

// The base style adds gaps of fixed size to the entries of menus; what is missing of them is added here.
QSize ScaledStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                                    const QWidget* widget) const {
    const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    if (type != CT_MenuItem && type != CT_MenuBarItem) return size;
    const QSize gaps(type == CT_MenuItem ? 24 : 8, 6);
    return size + QSize(scale_.Enlarged(gaps.width()), scale_.Enlarged(gaps.height())) - gaps;
}

}  // namespace zarpel
