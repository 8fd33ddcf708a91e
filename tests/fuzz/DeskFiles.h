#pragma once

#include "Backend/core/installation/MirelUtils.h"
#include "Host/cli/script/ScriptDesk.h"
#include "Platform/Files.h"
#include "Platform/TemporaryFolder.h"

#include <fstream>
#include <string>

// One desk for all runs of a fuzzer, with a folder of its own.
class DeskFiles {
public:
    DeskFiles() { m_desk.start(); }

    std::string path(const std::string& name) const { return Platform::Files::join(m_folder.getPath(), name); }

    // Without the crash safety of a save, which costs time.
    void write(const std::string& name, const unsigned char* data, std::size_t size) const {
        std::ofstream file(path(name), std::ios::binary);
        file.write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
    }

    void run(const std::function<void(Backend::Mirel&)>& action) {
        m_desk.run(action);
        m_desk.takeOutput();
    }

private:
    struct DataFolder {
        explicit DataFolder(const std::string& path) { Backend::MirelUtils::useDataFolder(path); }
    };

    Platform::TemporaryFolder m_folder;
    DataFolder m_dataFolder{m_folder.getPath()};
    Host::Cli::ScriptDesk m_desk{{}};
};
