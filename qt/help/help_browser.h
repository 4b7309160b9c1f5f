// The page of the help window. Shows pages of one help file and nothing else: no link, picture or style sheet
// is ever fetched from the disk or the network.
#pragma once

#include <QTextBrowser>
#include <optional>

#include "qt/help/help_file.h"

namespace zarpel {

class HelpBrowser : public QTextBrowser {
    Q_OBJECT

  public:
    explicit HelpBrowser(QWidget* parent = nullptr);

    // Takes the file whose pages are shown from now on and forgets where the reader has been. Shows nothing
    // by itself.
    void SetFile(std::optional<HelpFile> file);
    const std::optional<HelpFile>& File() const { return file_; }

    // How much larger pages are at 100 % than they were laid out, so that their letters are never smaller
    // than the application's.
    qreal Enlargement() const { return enlargement_; }

    // Letters and pictures at `percent` of their normal size, within sensible limits; the place in the page
    // is kept.
    void SetZoom(int percent);
    int Zoom() const { return zoom_; }
    // Zooms by `steps` notches of a mouse wheel.
    void ZoomBy(int steps);

  signals:
    // The keys have come to a link with this text.
    void LinkReached(const QString& text);

  public:
    QVariant loadResource(int type, const QUrl& name) override;

  protected:
    void doSetSource(const QUrl& url, QTextDocument::ResourceType type) override;
    void wheelEvent(QWheelEvent* event) override;
    bool focusNextPrevChild(bool next) override;

  private:
    QImage Picture(const QUrl& address) const;

    std::optional<HelpFile> file_;
    QUrl page_;  // the page on the screen or being loaded, when source() still names the one before
    qreal enlargement_;
    int zoom_ = 100;  // percent
    int wheel_ = 0;   // eighths of a degree turned with Ctrl that do not make a notch yet
};

}  // namespace zarpel
