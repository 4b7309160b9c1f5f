#include "platform/controls.h"

namespace zarpel {

void Control::Put(const Place& place) {
    Left = place.Left;
    Top = place.Top;
    Width = place.Width;
    Height = place.Height;
}

}  // namespace zarpel
