#pragma once

#include "Backend/functions/Function.h"
#include "Host/cli/script/ScriptDesk.h"
#include "tests/support/TemporaryFolder.h"

#include <string>

namespace TestSupport {

// A whole desk with a data folder of its own, driven by the commands of desk scripts.
class ScriptedDesk {
public:
    // With a line for each notification to the window and each event that reaches the controls.
    ScriptedDesk() : ScriptedDesk({false, true, true}) {}
    explicit ScriptedDesk(Host::Cli::ScriptPlayer::Options options);

    // Executes commands and returns the lines that they print. Throws ScriptError for commands that make no sense.
    std::string run(const std::string& commands);

    // Like run, followed by two slices that play all events that were sent, and without the times of the lines.
    std::string runAndPlay(const std::string& commands);

    // Creates an element's function, executes it as a key would, and plays what it sent.
    std::string execute(const std::string& functionXml) { return runAndPlay("function\n" + functionXml + "\n.\n"); }

    // The folder that stands for the user's data.
    const TemporaryFolder& folder() const { return m_folder; }

    // The file of a preset of keys, whatever is in it.
    void writeKeyPreset(const std::string& name, const std::string& text);
    std::string readKeyPreset(const std::string& name) const;

    // Runs something on the backend thread.
    void onBackend(const std::function<void(Backend::Mirel&)>& action) { m_desk.run(action); }

private:
    std::string keyPresetPath(const std::string& name) const;

    TemporaryFolder m_folder;
    Host::Cli::ScriptDesk m_desk;
    int m_clock = 0;  // In ppq.
};

}
