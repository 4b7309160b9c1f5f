// The files that the main window reads and writes.
#include "ui/playing.h"

namespace zarpel {

void Playing::LoadProperty(const std::string& /*fichero*/) {}

}  // namespace zarpel
