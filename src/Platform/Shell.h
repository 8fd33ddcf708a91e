// What a program without windows of its own needs from the user's system.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace Platform {

// [any] Shows the user a message and waits until it was read. Without message boxes it goes to standard error.
void showMessage(const std::string& text, const std::string& title);

// [any] Replaces what showMessage does, so that a test can see it; an empty function restores the system's.
void setMessageSink(std::function<void(const std::string& text, const std::string& title)> sink);

// [any] What showMessage does without a sink.
void showSystemMessage(const std::string& text, const std::string& title);

// [any] Opens a file with the program the user has chosen for it. Ignores a missing file.
void openWithUsersProgram(const std::string& path);

// [any] The names of the MIDI inputs that the system itself lists; none where it keeps no such list.
std::vector<std::string> getMidiInputNames();

// [any] Replaces the list that getMidiInputNames gives, so that a test has one; an empty function brings the system's
// back.
void setMidiInputNames(std::function<std::vector<std::string>()> names);

// [any] What getMidiInputNames gives otherwise.
std::vector<std::string> getSystemMidiInputNames();

// [any] The module that this code is in; null where modules have no handle.
void* getModuleInstance();

}
