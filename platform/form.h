// A window: its client area, what it holds, and the events that it takes itself.
#pragma once

#include <vector>

#include "platform/controls.h"
#include "platform/keys.h"

namespace zarpel {

enum class FormBorder {
    Sizable,  // ordinary window; it opens maximised, and its Width and Height are always whole, as large as
              // they fit in the middle of it
    FixedDialog,  // of its Width and Height, no minimise and maximise buttons, not in the task bar
};

class Form : public Container {
  public:
    // The front end builds forms itself; a form is never a child.
    void Accept(ControlVisitor&) override {}

    FormBorder Border = FormBorder::Sizable;
    // A dialog opens where its Left and Top say, from the screen's top left corner (it has worked them out
    // from Desktop::Screen); otherwise over the middle of the window below it, and Left and Top are not used.
    bool CenterOnScreen = false;
    Place BoxArea;  // where boxes stand that open above it; of no size: in its middle
    std::vector<Menu*> Menus;

    // Every key pressed while the window is active, before the focused control gets it (which it still does).
    // `keycode` names the key, not the character (keys.h); `shift` is a sum of shift masks.
    virtual void Form_KeyDown(int /*keycode*/, int /*shift*/) {}
    // The pointer moved over the bare background; `x` and `y` in twips from the client area's top left
    // corner.
    virtual void Form_MouseMove(int /*x*/, int /*y*/) {}
    virtual void Form_DblClick() {}
    // The player wants the window closed from its title bar (or the session ends). The window closes only if
    // the handler unloads it.
    virtual void Form_QueryClose() = 0;
};

}  // namespace zarpel
