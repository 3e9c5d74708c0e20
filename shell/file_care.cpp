#include "shell/file_care.h"
namespace shell {
void dosyabakimi(Station&) {}
void removeLeftovers(Station&) {}
}  // namespace shell
