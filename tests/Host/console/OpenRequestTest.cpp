#include "Host/console/OpenRequest.h"

#include <gtest/gtest.h>

namespace {

using Host::Console::OpenRequest;

TEST(OpenRequest, ReadsBackWhatItWrote) {
    const OpenRequest request{"C:\\banks\\live set.bnk", "Grand Piano", {"a.prg", "Zo\xc3\xab \xe2\x80\x93 b.bnk"}};
    EXPECT_EQ(OpenRequest::fromText(request.toText()), request);
    EXPECT_EQ(OpenRequest::fromText(OpenRequest().toText()), OpenRequest());
    EXPECT_TRUE(OpenRequest().empty());
    EXPECT_FALSE(request.empty());
}

TEST(OpenRequest, SkipsNonsense) {
    EXPECT_TRUE(OpenRequest::fromText("").empty());
    EXPECT_TRUE(OpenRequest::fromText("\n\nnonsense\nfile \nbank").empty());
    EXPECT_EQ(OpenRequest::fromText("x\nfile a.bnk").files, std::vector<std::string>{"a.bnk"});
}

TEST(OpenRequest, ANameWithALineEndIsNotAName) {
    EXPECT_TRUE(OpenRequest::fromText(OpenRequest{"a\nfile b.prg", "", {}}.toText()).empty());
}

}
