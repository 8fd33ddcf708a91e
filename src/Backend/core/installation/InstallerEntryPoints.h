// Entry points of the library for the installer. Each returns 0.
#pragma once

extern "C" {

// After the files were copied: with the virtual MIDI port, or without it.
int commitPort();
int commitNoPort();

// Before the files are removed.
int uninstall();
}
