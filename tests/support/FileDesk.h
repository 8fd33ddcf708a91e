#pragma once

#include "Backend/core/installation/MirelUtils.h"
#include "Host/cli/script/ScriptDesk.h"
#include "Platform/Files.h"
#include "Platform/WindowSink.h"
#include "tests/support/TemporaryFolder.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace TestSupport {

// A whole desk with its data in a folder of its own. When a call returns, everything that it set off is done.
class FileDesk {
public:
    FileDesk() { m_desk.start(); }

    Host::Cli::ScriptDesk& desk() { return m_desk; }

    // A path in the folder for files; the data are in its folder "data".
    std::string file(const std::string& name) const { return m_folder.file(name); }
    std::string dataFile(const std::string& folder, const std::string& name) const {
        return Platform::Files::join(Platform::Files::join(file("data"), folder), name);
    }

    void write(const std::string& name, const std::string& text) {
        EXPECT_TRUE(Platform::Files::replace(file(name), text)) << name;
    }

    // Empty if there is no such file.
    std::string read(const std::string& name) const { return Platform::Files::read(file(name)).value_or(""); }

    // On the backend thread.
    void run(const std::function<void(Backend::Mirel&)>& action) { m_desk.run(action); }

    std::string programXml() {
        std::string xml;
        run([&xml](Backend::Mirel& mirel) { mirel.getProgramXml(xml); });
        return xml;
    }

    std::string programName() {
        std::string name;
        run([&name](Backend::Mirel& mirel) { name = mirel.getCurrentProgram().getName(); });
        return name;
    }

    std::vector<std::string> bankNames() {
        std::vector<std::string> names;
        run([&names](Backend::Mirel& mirel) { names = mirel.getCurrentBank().getProgramNames(); });
        return names;
    }

private:
    // Keeps data in a folder while this object exists.
    struct DataFolder {
        explicit DataFolder(const std::string& path) { Backend::MirelUtils::useDataFolder(path); }
        ~DataFolder() { Backend::MirelUtils::useDataFolder(""); }
        DataFolder(const DataFolder&) = delete;
        DataFolder& operator=(const DataFolder&) = delete;
    };

    TemporaryFolder m_folder;
    DataFolder m_dataFolder{m_folder.file("data")};
    Host::Cli::ScriptDesk m_desk{{}};
};

// Records the numbers that were posted to it. Read them only while their sender is idle.
class PostedNumbers : private Platform::WindowSink {
public:
    HWND window() { return handle(); }
    std::vector<UINT> take() { return std::exchange(m_numbers, {}); }

private:
    void windowMessage(UINT message, WPARAM, LPARAM) override { m_numbers.push_back(message); }

    std::vector<UINT> m_numbers;
};

}
