#include "qt/help/help_browser.h"

#include <QImage>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <utility>

namespace zarpel {
namespace {

constexpr int kSmallestZoom = 50;
constexpr int kLargestZoom = 300;
constexpr int kZoomStep = 10;
constexpr qreal kReadingSize = 11;      // points, the size of letters for which the pages were laid out
constexpr qreal kPictureDetail = 4.55;  // pictures are so many times larger than they stand in a page

}  // namespace

HelpBrowser::HelpBrowser(QWidget* parent)
    : QTextBrowser(parent), enlargement_(std::max(1.0, fontInfo().pointSizeF() / kReadingSize)) {
    setOpenExternalLinks(false);
    setUndoRedoEnabled(false);
    setTextInteractionFlags(Qt::TextBrowserInteraction | Qt::TextSelectableByKeyboard);
    QPalette paper = palette();
    paper.setColor(QPalette::Base, Qt::white);
    paper.setColor(QPalette::Text, QColor(0x20, 0x20, 0x20));
    setPalette(paper);
    document()->setDocumentMargin(14);
    SetZoom(zoom_);
}

void HelpBrowser::SetFile(std::optional<HelpFile> file) {
    file_ = std::move(file);
    // Without a source the next page is loaded anew even when it has the address of the present one.
    page_ = HelpFile::Address(QStringLiteral("/"));
    QTextBrowser::doSetSource(QUrl(), QTextDocument::HtmlResource);
    clearHistory();
}

void HelpBrowser::SetZoom(int percent) {
    zoom_ = std::clamp(percent, kSmallestZoom, kLargestZoom);
    QScrollBar* const bar = verticalScrollBar();
    const double place = bar->maximum() > 0 ? double(bar->value()) / bar->maximum() : 0;
    QFont scaled = font();
    scaled.setPointSizeF(kReadingSize * enlargement_ * zoom_ / 100);
    setFont(scaled);
    if (!source().isEmpty()) reload();  // pictures are scaled as they are loaded
    bar->setValue(qRound(place * bar->maximum()));
}

void HelpBrowser::ZoomBy(int steps) { SetZoom(zoom_ + steps * kZoomStep); }

void HelpBrowser::wheelEvent(QWheelEvent* event) {
    if (event->modifiers() != Qt::ControlModifier) {
        QTextBrowser::wheelEvent(event);
        return;
    }
    wheel_ += event->angleDelta().y();
    constexpr int notch = QWheelEvent::DefaultDeltasPerStep;
    if (wheel_ / notch != 0) ZoomBy(wheel_ / notch);
    wheel_ %= notch;
    event->accept();
}

bool HelpBrowser::focusNextPrevChild(bool next) {
    const bool moved = QTextBrowser::focusNextPrevChild(next);
    const QTextCursor at = textCursor();
    if (hasFocus() && at.hasSelection() && at.charFormat().isAnchor()) emit LinkReached(at.selectedText());
    return moved;
}

QVariant HelpBrowser::loadResource(int type, const QUrl& name) {
    if (!file_) return {};
    const QUrl address = page_.resolved(name);
    if (type == QTextDocument::HtmlResource) page_ = address;
    if (type == QTextDocument::ImageResource) return Picture(address);
    return file_->Object(address);
}

QImage HelpBrowser::Picture(const QUrl& address) const {
    // Scaling a picture that has a palette would leave it the palette, and a coarse grain.
    const QImage image =
        QImage::fromData(file_->Object(address)).convertToFormat(QImage::Format_ARGB32_Premultiplied);
    if (image.isNull()) return {};
    const qreal ratio = devicePixelRatioF();
    const int wanted = qRound(image.width() / kPictureDetail * enlargement_ * zoom_ / 100 * ratio);
    QImage scaled = image.scaledToWidth(wanted, Qt::SmoothTransformation);
    scaled.setDevicePixelRatio(ratio);
    return scaled;
}

// A link to a place outside the file, or to a page that is not in it, leads nowhere.
void HelpBrowser::doSetSource(const QUrl& url, QTextDocument::ResourceType type) {
    const QUrl address = page_.resolved(url);
    if (file_ && file_->Has(address)) QTextBrowser::doSetSource(address, type);
}

}  // namespace zarpel
