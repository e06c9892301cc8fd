// Rules: SolidWorks session
#include "tests/solidworks/OperationTest.h"

namespace {

// What an operation answers to documents that it does not work on, and which calls it makes until
// then.
struct OperationCase {
    const char* name;
    std::function<std::string(modSldTools&)> run;
    std::string part; // result with a part, an assembly and a drawing; empty: it works on it
    std::string assembly;
    std::string drawing;
    bool revisionFirst = false;
};

std::ostream& operator<<(std::ostream& out, const OperationCase& operation) {
    return out << operation.name;
}

class Refusals : public OperationTest, public testing::WithParamInterface<OperationCase> {
protected:
    std::string Calls() {
        return CallsOf([&] { return GetParam().run(*tools); });
    }
    [[nodiscard]] static std::string Expected(const std::string& calls, const std::string& result) {
        const std::string revision =
            GetParam().revisionFirst ? "call application RevisionNumber()\n" : "";
        return "\n" + revision + calls + "= " + result + "\n";
    }
    void CheckRefusal(const std::string& scenario, const std::string& title,
                      const std::string& result) {
        if (result.empty())
            return;
        Start(scenario);
        EXPECT_EQ(Calls(), Expected("call application ActiveDoc()\ncall document \"" + title +
                                        "\" GetType()\n",
                                    result));
        EXPECT_TRUE(progress.calls.empty());
    }
};

TEST_P(Refusals, WithoutSolidWorksNothingIsCalled) {
    service->SetRunning(false);
    EXPECT_EQ(Calls(), "\n= NoSolidWorksFound\n");
}

TEST_P(Refusals, WithoutADocumentNothingElseIsCalled) {
    Start("no-document");
    EXPECT_EQ(Calls(), Expected("call application ActiveDoc()\n", "NoActiveDocument"));
}

TEST_P(Refusals, DocumentOfAnotherTypeIsLeftAlone) {
    CheckRefusal("default", "Housing.SLDPRT", GetParam().part);
    CheckRefusal("assembly", "Enclosure.SLDASM", GetParam().assembly);
    CheckRefusal("drawing", "Housing.SLDDRW", GetParam().drawing);
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
         "NoAssembly", true},
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
