// What happens on the table is seen: a picture that goes from one place to another glides there, and so does
// one that comes in or goes off by an edge of the window. The controls change at once, whatever is still
// under way, and clicks reach what they show: only the drawing lags behind.
#pragma once

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QRegion>
#include <QWidget>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/controls.h"
#include "qt/pictures.h"
#include "qt/scale.h"

namespace zarpel {

class ImageView;

// Lies over the table while something moves on it, and is not there otherwise. Places are twips of the form.
class Motion : public QWidget {
  public:
    // `table` is the widget that stands for the form; all around it belongs to its parent.
    Motion(QWidget* table, const TableScale& scale, PictureStore& pictures);

    // The picture takes part. Those that come in together come in the order in which they were added.
    void Add(ImageView& view) { tracks_.push_back({&view, {}}); }
    // A picture has changed. All that changes until the event loop goes on is one motion.
    void Changed();
    // What has changed is seen from now on, not only from when the event loop goes on.
    void Settle();
    // The picture is drawn here, not by its view.
    bool Carries(const ImageView& view) const;

    // The player drags the picture; its top left corner is at `corner` (global pixels). `place` is where it
    // would lie if it were dropped now, or null.
    void Drag(ImageView& view, const QPoint& corner, const Image* place);
    bool Dragging() const { return dragged_.has_value(); }
    // Nothing is dragged any more: the picture glides to where it belongs.
    void LetGo();

  protected:
    void customEvent(QEvent*) override { Settle(); }
    void timerEvent(QTimerEvent*) override;
    void paintEvent(QPaintEvent*) override;

  private:
    // What a picture was like when its view was last looked at.
    struct Sight {
        bool Held = false;  // it is there, be it under a cover
        std::string Picture;
        QRectF At;
        Look How;
    };
    struct Track {
        ImageView* View;
        Sight Before;
    };
    struct Flight {
        ImageView* View;  // where it belongs; null: it goes off
        Look How;
        QRectF From, To;
        qint64 Begins, Ms;  // on the clock
    };
    struct Dragged {
        ImageView* View;
        QRectF At;
        const Image* Place;
    };

    bool Shows() const;
    Sight SightOf(const ImageView& view) const;
    QRectF Edge(Side side, const QSizeF& size) const;
    QRectF Position(const Flight& flight) const;
    QRectF Position(const Track& track) const;
    const Track* Find(const std::string& picture, const std::vector<Sight>& now) const;
    void Follow(const std::vector<Sight>& now);
    void TakeOff(const Flight& flight);
    void Land(const std::function<bool(const Flight&)>& which);
    void Advance();
    QRect Mark() const;
    QRect Pixels(const QRectF& place) const;

    QWidget* table_;
    const TableScale& scale_;
    PictureStore& pictures_;
    std::vector<Track> tracks_;
    std::vector<Flight> flights_;
    std::optional<Dragged> dragged_;
    bool changed_ = false;
    QElapsedTimer clock_;
    qint64 now_ = 0;  // of the frame that is drawn
    QBasicTimer frames_;
    QRegion painted_;
};

}  // namespace zarpel
