#include "Platform/Shell.h"

#include "Platform/Files.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <thread>

namespace Platform {

void showSystemMessage(const std::string& text, const std::string& title) {
    std::fprintf(stderr, "%s: %s\n", title.c_str(), text.c_str());
}

void openWithUsersProgram(const std::string& path) {
    if (!Files::size(path))
        return;
    std::string program = "xdg-open";
    std::string argument = path;
    char* arguments[] = {program.data(), argument.data(), nullptr};
    pid_t child = 0;
    if (::posix_spawnp(&child, program.c_str(), nullptr, nullptr, arguments, environ) == 0)
        std::thread([child] { ::waitpid(child, nullptr, 0); }).detach();
}

std::vector<std::string> getSystemMidiInputNames() {
    return {};
}

void* getModuleInstance() {
    return nullptr;
}

}
