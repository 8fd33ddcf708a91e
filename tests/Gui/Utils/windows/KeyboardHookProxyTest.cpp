#include "Backend/input/Key.h"
#include "Gui/Utils/windows/KeyboardHookProxy.h"
#include "Platform/Files.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/win32/RecordedHook.h"

#include <gtest/gtest.h>

namespace Gui {
namespace {

using TestSupport::RecordedHook;

const Key PLAIN(65, false, false, false, false);
const Key MODIFIED(112, true, true, true, true);

void callAll(const KeyboardHookProxy& proxy) {
    proxy.setWindowHandle(GetDesktopWindow());
    proxy.setEnabled(true);
    proxy.clearExclude();
    proxy.setExcludeKey(PLAIN, true);
    proxy.setExcludeKey(MODIFIED, false);
    proxy.clearControlKeys();
    proxy.addControlKey(MODIFIED, true, KeyboardHookProxy::toggle);
    proxy.addControlKey(PLAIN, false, KeyboardHookProxy::on);
    proxy.addControlKey(PLAIN, false, KeyboardHookProxy::off);
    proxy.setEnabled(false);
    proxy.setWindowHandle(nullptr);
}

TEST(KeyboardHookProxy, HandsEachCallToTheLibrary) {
    const RecordedHook hook;
    callAll(KeyboardHookProxy(RecordedHook::recordingFolder()));
    EXPECT_EQ(hook.takeCalls(),
              "setWindowHandle window\n"
              "setEnabled on\n"
              "clearExclude\n"
              "setExcludeKey 65 excluded\n"
              "setExcludeKey 112 shift control alt win taken\n"
              "clearControlKeys\n"
              "addControlKey 112 shift control alt win up -1\n"
              "addControlKey 65 down 1\n"
              "addControlKey 65 down 0\n"
              "setEnabled off\n"
              "setWindowHandle none\n");
}

TEST(KeyboardHookProxy, DoesNothingWithoutALibrary) {
    const RecordedHook hook;
    callAll(KeyboardHookProxy(RecordedHook::missingFolder()));
    callAll(KeyboardHookProxy(""));
    EXPECT_EQ(hook.takeCalls(), "");
}

TEST(KeyboardHookProxy, DoesNothingWithALibraryWithoutFunctions) {
    const std::string path = RecordedHook::emptyFolder() + KeyboardHookProxy::LIBRARY;
    {
        const KeyboardHookProxy proxy(RecordedHook::emptyFolder());
        ASSERT_NE(GetModuleHandleA(path.c_str()), nullptr);
        callAll(proxy);
    }
    EXPECT_EQ(GetModuleHandleA(path.c_str()), nullptr);
}

TEST(KeyboardHookProxy, DoesNothingWithAFileThatIsNotALibrary) {
    const TestSupport::TemporaryFolder folder;
    ASSERT_TRUE(Platform::Files::replace(folder.file("KeyboardHook_64.dll"), "no library at all"));
    const RecordedHook hook;
    const DWORD before = GetThreadErrorMode();
    callAll(KeyboardHookProxy(folder.path()));
    EXPECT_EQ(hook.takeCalls(), "");
    EXPECT_EQ(GetThreadErrorMode(), before);
}

TEST(KeyboardHookProxy, FreesTheLibraryWithItself) {
    const std::string path = RecordedHook::recordingFolder() + KeyboardHookProxy::LIBRARY;
    {
        const KeyboardHookProxy proxy(RecordedHook::recordingFolder());
        EXPECT_NE(GetModuleHandleA(path.c_str()), nullptr);
    }
    EXPECT_EQ(GetModuleHandleA(path.c_str()), nullptr);
}

TEST(KeyboardHookProxy, ItsStateMessageIsTheRegisteredOne) {
    EXPECT_EQ(KeyboardHookProxy::getStateMessage(), RegisterWindowMessageA("UD_KEYBOARDHOOK_GLOBAL_KEY_CHANGED"));
    EXPECT_GE(KeyboardHookProxy::getStateMessage(), 0xc000u);
}

}
}
