#include "Platform/Folders.h"

#include <shlobj.h>

namespace Platform {

std::string userDataFolder() {
    char folder[MAX_PATH] = {};
    if (SHGetFolderPathA(nullptr, CSIDL_LOCAL_APPDATA | CSIDL_FLAG_CREATE, nullptr, SHGFP_TYPE_CURRENT, folder) != S_OK)
        return {};
    return folder;
}

}
