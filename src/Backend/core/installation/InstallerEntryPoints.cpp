// The functions that the installer looks up in the library by name.
#include "Backend/core/installation/InstallerEntryPoints.h"

#include "Backend/core/installation/MirelUtils.h"

int commitPort() {
    Backend::MirelUtils::install(true);
    return 0;
}

int commitNoPort() {
    Backend::MirelUtils::install(false);
    return 0;
}

int uninstall() {
    Backend::MirelUtils::uninstall();
    return 0;
}
