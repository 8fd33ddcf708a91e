#include "Gui/MirelGuiIF.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>

namespace Gui {
namespace {

// Where the compiler places an operation among those of its class: the destructor has the first two places.
template <class Operation>
std::ptrdiff_t placeOf(Operation operation) {
    constexpr std::ptrdiff_t VIRTUAL = 1;
    std::ptrdiff_t words[2];
    static_assert(sizeof operation == sizeof words);
    std::memcpy(words, &operation, sizeof words);
    EXPECT_TRUE(words[0] & VIRTUAL);
    return (words[0] - VIRTUAL) / static_cast<std::ptrdiff_t>(sizeof(void*)) - 1;
}

using IF = MirelGuiIF;
using Programs = const Backend::Program& (IF::*)() const;
using OwnProgram = Backend::Program& (IF::*)();
using PresetList = const Backend::SequenceManagement::SequencePresetList& (IF::*)() const;
using OwnPresetList = Backend::SequenceManagement::SequencePresetList& (IF::*)();

// Programs compiled with this interface find its operations by their order.
TEST(MirelGuiIF, KeepsTheOrderOfItsOperations) {
    std::ptrdiff_t place = 1;
    const auto expectOne = [&place](auto operation) {
        EXPECT_EQ(placeOf(operation), place);
        ++place;
    };
    const auto expectNext = [&expectOne](auto... operations) { (expectOne(operations), ...); };
    expectNext(&IF::initialize, &IF::update, &IF::create, &IF::destroy, &IF::getGdiManager, &IF::getMidiOutputPorts,
               &IF::getMidiInputPorts, &IF::getSkinner, &IF::getComputerInputPanelAsPresetGuiOwner,
               &IF::getControlPanelAsPresetGuiOwner, &IF::getLayerPanelAsPresetGuiOwner, &IF::getOutputPanel,
               &IF::getWindowHandle, &IF::getRegistrySettings, &IF::getGmProgramMenu, &IF::getDataMenu,
               &IF::setOutputButton, &IF::getDefaultMidiOutput, &IF::getCurrentBank);
    expectNext(static_cast<Programs>(&IF::getCurrentProgram), static_cast<OwnProgram>(&IF::getCurrentProgram),
               &IF::showLoadDialog, &IF::showSetupDialog, &IF::importVersion2File, &IF::getMirelMessageManager);
    EXPECT_EQ(place, 26);
    expectNext(&IF::handleDockToBottomEdgeChanged, &IF::handleDefaultBankChanged, &IF::handleBankChanged,
               &IF::handleProgramChanged, &IF::handleProgramNameChanged, &IF::handleMidiInputPortsChanged,
               &IF::handleMidiOutputPortsChanged, &IF::handleDefaultMidiOutputChanged, &IF::handleAlwaysOnTopChanged,
               &IF::handleUseSkinBorderChanged);
    EXPECT_EQ(place, 36);
    expectNext(&IF::showSystemPanel, &IF::toggleSystemPanel, &IF::isSystemPanelShowing, &IF::showHelp, &IF::toggleHelp,
               &IF::isHelpPanelShowing, &IF::showDisplay, &IF::toggleDisplay, &IF::isDisplayPanelShowing,
               &IF::showComputerInput, &IF::toggleComputerInput, &IF::isComputerInputPanelShowing, &IF::showOutput,
               &IF::toggleOutput, &IF::isOutputPanelShowing, &IF::showCc, &IF::toggleCc, &IF::isCcPanelShowing,
               &IF::showLayer, &IF::toggleLayer, &IF::isLayerPanelShowing, &IF::showControl, &IF::toggleControl,
               &IF::isControlPanelShowing, &IF::showZone, &IF::toggleZone, &IF::isZonePanelShowing, &IF::moveWindow);
    EXPECT_EQ(place, 64);
    expectNext(&IF::displayMidiOutputEvent, &IF::getDockToBottomEdge, &IF::setDockToBottomEdge,
               &IF::getGuiMessageManagerMaster, &IF::getMainMusicKeyboardCtl, &IF::clearMusicKeyboardHilight,
               &IF::clearComputerKeyboardHilight, &IF::getMidiOutputName, &IF::handleResetMirel,
               &IF::getNumberOfPrograms, static_cast<PresetList>(&IF::getSequencePresetList), &IF::addSequencePreset,
               &IF::editSequencePreset, &IF::deleteSequencePreset,
               static_cast<OwnPresetList>(&IF::getSequencePresetList), &IF::setFocus, &IF::showProgramMenu,
               &IF::showDefaultMidiOutputMenu);
    EXPECT_EQ(place, 82);
    expectNext(&IF::handleRetroRecordBufferSizeChanged, &IF::handleRetroRecordEnabledChanged,
               &IF::handleMidiThruChanged, &IF::handleGlobalKeyboardChanged, &IF::handleMouseSensitivityChanged,
               &IF::handleLargeDisplayFontChanged, &IF::handleClickZoneChannelTransposeChanged,
               &IF::getKeyboardHookProxy, &IF::getMirelIF, &IF::getCurrentBankName,
               static_cast<void (IF::*)(const std::string&)>(&IF::displayHelp),
               static_cast<void (IF::*)(HWND)>(&IF::displayHelp), static_cast<void (IF::*)(int)>(&IF::displayHelp),
               &IF::getMainWindowPosition, &IF::isVstPlugin);
    EXPECT_EQ(place, 97);
}

}
}
