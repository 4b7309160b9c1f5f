#include "qt/scaled_style.h"

#include <QApplication>
#include <QSettings>
#include <QStandardPaths>
#include <QStyleFactory>
#include <QStyleOptionMenuItem>
#include <QWidget>

#include "qt/pictures.h"

namespace zarpel {
namespace {

const char* BoxPicture(QStyle::StandardPixmap icon) {
    switch (icon) {
        case QStyle::SP_MessageBoxInformation:
            return ":/informacion.png";
        case QStyle::SP_MessageBoxQuestion:
            return ":/pregunta.png";
        case QStyle::SP_MessageBoxWarning:
            return ":/aviso.png";
        case QStyle::SP_MessageBoxCritical:
            return ":/error.png";
        default:
            return nullptr;
    }
}

// What the player has told the desktop: Windows asks through the toolkit, the others keep it in files.
bool DesktopMoves() {
#ifdef Q_OS_WIN
    return QApplication::isEffectEnabled(Qt::UI_General);
#else
    const auto setting = [](const QString& file, const QString& key) {
        const QString path = QStandardPaths::locate(QStandardPaths::GenericConfigLocation, file);
        return path.isEmpty() ? QVariant(true) : QSettings(path, QSettings::IniFormat).value(key, true);
    };
    return setting(QStringLiteral("gtk-3.0/settings.ini"), QStringLiteral("Settings/gtk-enable-animations"))
               .toBool() &&
           setting(QStringLiteral("kdeglobals"), QStringLiteral("KDE/AnimationDurationFactor")).toDouble() >
               0;
#endif
}

}  // namespace

ScaledStyle::ScaledStyle()
    : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))), moves_(DesktopMoves()) {}

int ScaledStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                           QStyleHintReturn* more) const {
    if (hint == SH_Widget_Animation_Duration && !moves_) return 0;
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
    return QProxyStyle::styleHint(hint, option, widget, more);
}

void ScaledStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const {
    const auto* const item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (element != CE_MenuBarItem || !item || !widget || !widget->hasFocus()) {
        return QProxyStyle::drawControl(element, option, painter, widget);
    }
    QStyleOptionMenuItem marked(*item);
    if (marked.state & State_Selected) marked.state |= State_Sunken;
    QProxyStyle::drawControl(element, &marked, painter, widget);
}

// Zero and less are no sizes: they mean "none" or "as the style thinks fit".
int ScaledStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    const int pixels = QProxyStyle::pixelMetric(metric, option, widget);
    return pixels > 0 ? scale_.Enlarged(pixels) : pixels;
}

QIcon ScaledStyle::standardIcon(StandardPixmap icon, const QStyleOption* option,
                                const QWidget* widget) const {
    const char* const picture = BoxPicture(icon);
    if (!picture) return QProxyStyle::standardIcon(icon, option, widget);
    const qreal ratio = widget ? widget->devicePixelRatioF() : 1;
    const int pixels = qCeil(pixelMetric(PM_MessageBoxIconSize, option, widget) * ratio);
    return QPixmap::fromImage(BuiltInPicture(picture, pixels));
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
