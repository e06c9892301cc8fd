// Rules: SolidWorks session
#include "tests/solidworks/OperationTest.h"

namespace {

// What an operation answers to documents that it does not work on.
struct OperationCase {
    const char* name;
    std::function<std::string(modSldTools&)> run;
    std::string part; // result with a part, an assembly and a drawing; empty: it works on it
    std::string assembly;
    std::string drawing;
};

std::ostream& operator<<(std::ostream& out, const OperationCase& operation) {
    return out << operation.name;
}

class Refusals : public OperationTest, public testing::WithParamInterface<OperationCase> {
protected:
    std::string Calls() {
        return CallsOf([&] { return GetParam().run(*tools); });
    }
    void CheckRefusal(const std::string& scenario, const std::string& result) {
        if (result.empty())
            return;
        SCOPED_TRACE(scenario);
        Start(scenario);
        const std::string calls = Calls();
        EXPECT_TRUE(calls.ends_with("= " + result + "\n")) << calls;
        ExpectTranscript(calls, scenario);
        EXPECT_TRUE(progress.calls.empty());
    }
};

TEST_P(Refusals, WithoutSolidWorksNothingIsCalled) {
    service->SetRunning(false);
    EXPECT_EQ(Calls(), "= NoSolidWorksFound\n");
}

TEST_P(Refusals, WithoutADocumentNothingElseIsCalled) {
    CheckRefusal("no-document", "NoActiveDocument");
}

TEST_P(Refusals, DocumentOfAnotherTypeIsLeftAlone) {
    CheckRefusal("default", GetParam().part);
    CheckRefusal("assembly", GetParam().assembly);
    CheckRefusal("drawing", GetParam().drawing);
}

std::vector<OperationCase> AllOperations() {
    const ColorRecord color;
    return {
        {"SWXGetColor",
         [](modSldTools& tools) {
             ColorRecord read;
             return tools.SWXGetColor(read);
         },
         "", "", "NoPartOrAssembly"},
        {"SWXSetColor", [=](modSldTools& tools) { return tools.SWXSetColor(color); }, "", "",
         "NoPartOrAssembly"},
        {"SWXSetColorComponent",
         [=](modSldTools& tools) { return tools.SWXSetColorComponent(color); }, "NoAssembly", "",
         "NoAssembly"},
        {"SWXClearColor", &modSldTools::SWXClearColor, "", "", "NoPartOrAssembly"},
        {"SWXClearComponentColor", &modSldTools::SWXClearComponentColor, "NoAssembly", "",
         "NoAssembly"},
        {"SWXClearColorPart", &modSldTools::SWXClearColorPart, "", "NoPart", "NoPart"},
        {"SWXClearColorAssembly", &modSldTools::SWXClearColorAssembly, "NoAssembly", "",
         "NoAssembly"},
        {"SWXGetStandardColors",
         [](modSldTools& tools) {
             std::vector<ColorRecord> colors;
             return tools.SWXGetStandardColors(colors);
         },
         "", "", ""},
        {"SWXSetStandardColors", [](modSldTools& tools) { return tools.SWXSetStandardColors({}); },
         "", "", ""},
    };
}

INSTANTIATE_TEST_SUITE_P(Operations, Refusals, testing::ValuesIn(AllOperations()),
                         [](const auto& each) { return std::string(each.param.name); });

} // namespace
