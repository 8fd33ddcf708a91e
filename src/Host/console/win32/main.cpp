// The desk with a window.
#include "Backend/core/installation/MirelUtils.h"
#include "Backend/core/installation/Product.h"
#include "Host/common/desk/RecordTarget.h"
#include "Host/common/ports/MidiSystem.h"
#include "Host/console/CommandLine.h"
#include "Host/console/DeskFileName.h"
#include "Host/console/win32/ConsoleDesk.h"
#include "Host/console/win32/SingleInstance.h"
#include "Platform/Files.h"
#include "Platform/Shell.h"

#include <windows.h>

#include <cstdlib>
#include <exception>
#include <filesystem>
#include <string>
#include <vector>

namespace {

using namespace Host::Console;

constexpr const char* PORT_NAME = "Mirel";
constexpr int DONE = 0;
constexpr int FAILED = 1;

// Writes to a file or terminal if the program was started from one, otherwise shows a box.
void tell(DWORD stream, const std::string& text) {
    HANDLE file = GetStdHandle(stream);
    if ((!file || file == INVALID_HANDLE_VALUE) && AttachConsole(ATTACH_PARENT_PROCESS))
        file =
            CreateFileA("CONOUT$", GENERIC_READ | GENERIC_WRITE, FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
    DWORD written = 0;
    if (!file || file == INVALID_HANDLE_VALUE ||
        !WriteFile(file, text.data(), static_cast<DWORD>(text.size()), &written, nullptr))
        Platform::showMessage(text, MIREL_PRODUCT);
}

int fail(const std::string& error) {
    tell(STD_ERROR_HANDLE, "MirelConsole: " + error + "\n");
    return FAILED;
}

// Makes a path that the other desk understands, wherever it was started.
std::string makeFull(const std::string& path) {
    std::string full(GetFullPathNameA(path.c_str(), 0, nullptr, nullptr), '\0');
    full.resize(GetFullPathNameA(path.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr));
    return full.empty() ? path : full;
}

OpenRequest makeRequest(const CommandLine& line) {
    OpenRequest request{line.bank.empty() ? "" : makeFull(line.bank), line.program, {}};
    if (kindOfDeskFile(request.program) == DeskFileKind::PROGRAM)
        request.program = makeFull(request.program);
    for (const std::string& file : line.files)
        request.files.push_back(makeFull(file));
    return request;
}

int runDesk(const CommandLine& line, int showCommand) {
    if (!line.dataFolder.empty()) {
        if (!Platform::Files::createFolders(line.dataFolder))
            return fail(line.dataFolder + ": is not a folder and can't be created");
        Backend::MirelUtils::useDataFolder(line.dataFolder);
    }
    SingleInstance instance(Backend::MirelUtils::getMirelAppDataDir());
    switch (instance.enter(makeRequest(line))) {
        case SingleInstance::Result::HANDED_OVER:
            return line.recordFile.empty() ? DONE
                                           : fail("a desk is already running on this data, so --record has no effect");
        case SingleInstance::Result::FAILED: return fail("a desk is already running on this data and doesn't respond");
        case SingleInstance::Result::FIRST: break;
    }
    if (!line.recordFile.empty() && !Host::canRecordTo(line.recordFile))
        return fail(line.recordFile + ": can't be written");
    ConsoleDesk desk(Host::createMidiSystem(PORT_NAME), line);
    if (!desk.start(instance, showCommand))
        return fail("this build has no window");
    desk.run();
    return desk.stop() ? DONE : FAILED;
}

}

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int showCommand) {
    std::string error;
    const std::vector<std::string> arguments(__argv + (__argc > 0 ? 1 : 0), __argv + __argc);
    const auto line = CommandLine::parse(arguments, error);
    if (!line)
        return fail(error + "; see MirelConsole --help");
    switch (line->action) {
        case CommandLine::Action::SHOW_HELP: tell(STD_OUTPUT_HANDLE, CommandLine::USAGE); return DONE;
        case CommandLine::Action::SHOW_VERSION:
            tell(STD_OUTPUT_HANDLE, MIREL_PRODUCT " " MIREL_VERSION "\n");
            return DONE;
        case CommandLine::Action::RUN: break;
    }
    try {
        return runDesk(*line, showCommand);
    } catch (const std::exception& failure) {
        return fail(failure.what());
    }
}
