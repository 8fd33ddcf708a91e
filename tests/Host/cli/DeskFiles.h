// Files that a desk has written, for tests.
#pragma once

#include "Backend/functions/FunctionList.h"
#include "Host/cli/script/ScriptCommand.h"
#include "Platform/Files.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>

namespace TestSupport {

// Runs a desk script in a data folder. Returns what it prints.
inline std::string runDesk(const std::string& folder, const std::string& script) {
    const std::string path = Platform::Files::join(folder, "test.desk");
    EXPECT_TRUE(Platform::Files::replace(path, script));
    testing::internal::CaptureStdout();
    EXPECT_EQ(Host::Cli::runScript({"--data", folder, path}), 0);
    return testing::internal::GetCapturedStdout();
}

// A program in which every element and attribute of the format is set, so that no defaults apply.
inline std::string fullProgram(const char* rootTag) {
    std::string text = std::string("<") + rootTag + "><Program name=\"Full\" tempo=\"99\" tempoSource=\"1\">" +
                       "<ComputerInput merge=\"false\" useKeyUpMod=\"true\">";
    int count = 0;
    const auto addKey = [&](const auto& row) {
        constexpr int LETTERS = 26;
        const char* const modifiers[] = {"", "Shift ", "Control "};
        const std::string id = std::string(modifiers[count / LETTERS]) + static_cast<char>('A' + count % LETTERS);
        text += "<Key id=\"" + id + "\"><Function><Down><" + row.xmlTag +
                " zone=\"1\" output=\"2\" channel=\"3\" note=\"C#4\"/></Down><Up><ShowHelp "
                "type=\"on\"/></Up></Function></Key>";
        ++count;
    };
    std::apply([&](const auto&... rows) { (addKey(rows), ...); }, Backend::FunctionManagement::FUNCTION_LIST);
    text +=
        "</ComputerInput><Controls><Control cell=\"1,2\" type=\"knob\" name=\"A &amp; B\" value=\"5\">"
        "<Function midiEvent=\"Controller Change,7\"/><Function midiEvent=\"Pitch "
        "Bend\"/></Control></Controls><Layers>";
    for (const char* const arpeggio : {"Chord", "Up", "Down", "UpDown"})
        text += std::string("<Layer toggle=\"type1\" key=\"D\" transpose=\"+1\" velocity=\"90\"><Arpeggio><") +
                arpeggio +
                "Arpeggio/></Arpeggio><SequenceSetting><Sequence>0 V5 L10,-|12</Sequence></SequenceSetting></Layer>";
    return text + "</Layers><Zones><Zone id=\"3\" transpose=\"-12\"/><Zone id=\"4\"/></Zones></Program></" + rootTag +
           ">";
}

}
