#include "dropdown/open_list.h"

namespace vellora {

thread_local bool gbListOpen = false;

} // namespace vellora
