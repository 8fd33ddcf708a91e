// Entry points of the library for the installer. Each returns 0.
#pragma once

extern "C" {

// After the files were laid down: with the virtual MIDI port, or without.
int commitPort();
int commitNoPort();

// Before the files are removed.
int uninstall();
}
