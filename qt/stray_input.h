// Input that is not meant for what it would reach.
#pragma once

#include <QObject>

namespace zarpel {

// Watches all input of the application while it lives. The second click of a double click belongs to the
// window that got the first: one that has opened, or come to light, meanwhile does not get it.
class StrayInput : public QObject {
  public:
    StrayInput();

    // Drops the keys and clicks that wait; what else waits, be it a request to close a window, is handed
    // over.
    void DropWaiting();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool IsStrayClick(const QObject* window, const QEvent& event);

    bool dropping_ = false;
    const QObject* pressed_ = nullptr;  // the window under the first click; never followed
    bool releaseIsStray_ = false;
};

}  // namespace zarpel
