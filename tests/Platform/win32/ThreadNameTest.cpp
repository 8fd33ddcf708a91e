#include "Platform/MessageThread.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <string>

namespace Platform {
namespace {

using GetDescription = HRESULT(WINAPI*)(HANDLE, PWSTR*);

GetDescription findGetDescription() {
    const HMODULE kernel = GetModuleHandleA("kernel32.dll");
    const auto address = reinterpret_cast<void*>(GetProcAddress(kernel, "GetThreadDescription"));
    return reinterpret_cast<GetDescription>(address);
}

TEST(WindowsThreadNameTest, ThreadHasItsNameFromTheBeginning) {
    const GetDescription getDescription = findGetDescription();
    ASSERT_NE(getDescription, nullptr);

    std::wstring seen;
    MessageThread thread;

    thread.start("mirel backend", [&] {
        PWSTR text = nullptr;
        if (SUCCEEDED(getDescription(GetCurrentThread(), &text))) {
            seen = text;
            LocalFree(text);
        }
    });
    thread.join();
    EXPECT_EQ(seen, L"mirel backend");
}

}
}
