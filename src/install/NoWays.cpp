#include "install/InstallWay.h"

namespace vypx {

InstallPlaces PlacesForInstall() { return {}; }
std::unique_ptr<InstallWay> ChooseInstallWay(const InstallPlaces&) { return nullptr; }

} // namespace vypx
