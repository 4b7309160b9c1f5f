// The About window: the game's name, its version, and who made it.
#pragma once

#include <array>

#include "platform/desktop.h"

namespace zarpel {

class Aboutboxfrm : public Form {
  public:
    explicit Aboutboxfrm(Desktop& desktop);

    Image picIcon;
    Label lblProductName, lblVersion;
    Label lblDescription, lblDisclaimer;  // credit lines
    Label Label1;                         // contact line
    std::array<Line, 2> Line1;            // together an etched separator
    Button cmdOK;

    void cmdOK_Click() { desktop_.Unload(*this); }
    void Form_QueryClose() override { cmdOK_Click(); }

  private:
    void Form_Load();
    void Design();

    Desktop& desktop_;
};

}  // namespace zarpel
