// Rules: Stand-in for SolidWorks
#include "platform/Utf16.h"
#include "tests/platform/StandInProcess.h"

#include <gtest/gtest.h>

namespace {

// Clients that know nothing of this program: the platform's script hosts.
class StandInScriptTest : public testing::Test {
protected:
    [[nodiscard]] std::string RunScript(const char* name, const char* text) const {
        folder.Write(name, text);
        return RunProgram(L"cscript.exe //nologo \"" + ToUtf16(folder.File(name)) + L"\"").output;
    }

    ScratchFolder folder;
};

TEST_F(StandInScriptTest, VbScriptReachesTheRunningObjectAndSetsAColor) {
    const StandInProcess standIn;
    ASSERT_TRUE(standIn.IsReady());
    const std::string output = RunScript("client.vbs", R"vbs(
Set application = CreateObject("SldWorks.Application")
WScript.Echo application.RevisionNumber
Set face = application.ActiveDoc.Body.GetFirstFace
WScript.Echo TypeName(face.MaterialPropertyValues)
face.MaterialPropertyValues = Array(1, 0.5, 0, 0.25, 0, 0, 0, 0, 0)
WScript.Echo TypeName(face.MaterialPropertyValues)
)vbs");
    EXPECT_EQ(output, "12.5.0\nEmpty\nVariant()\n");
    EXPECT_EQ(standIn.LoggedCalls().at(5),
              "put face \"Face 1\" MaterialPropertyValues = Array(1, 0.5, 0, 0.25, 0, 0, 0, 0, 0)");
}

TEST_F(StandInScriptTest, VbScriptCopiesAColorFromOneFaceToAnother) {
    const StandInProcess standIn;
    ASSERT_TRUE(standIn.IsReady());
    const std::string output = RunScript("client.vbs", R"vbs(
Set face = CreateObject("SldWorks.Application").ActiveDoc.Body.GetFirstFace
Set colored = face.GetNextFace.GetNextFace
face.MaterialPropertyValues = colored.MaterialPropertyValues
WScript.Echo "copied"
)vbs");
    EXPECT_EQ(output, "copied\n");
    EXPECT_EQ(standIn.LoggedCalls().back(),
              "put face \"Face 1\" MaterialPropertyValues = [0.80784313725490198, "
              "0.22745098039215686, 0.20392156862745098, 0.59999999999999998, 1, 0.5, "
              "0.40000000000000002, 0, 0]");
}

TEST_F(StandInScriptTest, ANewStandInIsReachedAfterOneWasKilled) {
    StandInProcess killed(L"--fault 1:die");
    ASSERT_TRUE(killed.IsReady());
    const char* script = R"vbs(
WScript.Echo CreateObject("SldWorks.Application").RevisionNumber
)vbs";
    EXPECT_EQ(RunScript("first.vbs", script), "");
    EXPECT_EQ(killed.WaitForEnd(), 3U);
    const StandInProcess next;
    ASSERT_TRUE(next.IsReady());
    EXPECT_EQ(RunScript("second.vbs", script), "12.5.0\n");
}

TEST_F(StandInScriptTest, JScriptReadsAndSetsTheColorTable) {
    const StandInProcess standIn;
    ASSERT_TRUE(standIn.IsReady());
    const std::string output = RunScript("client.js", R"js(
var table = new ActiveXObject("SldWorks.Application").ActiveDoc.GetColorTable();
WScript.Echo(table.GetNameAtIndex(5) + " " + table.GetColorRefAtIndex(5));
table.SetColorRefAtIndex(5, 255, 0);
WScript.Echo(table.GetColorRefAtIndex(5));
)js");
    EXPECT_EQ(output, "Sky blue 16744512\n255\n");
}

// This script host hands on an array of numbers as it is and does not look into it.
TEST_F(StandInScriptTest, JScriptReadsAndSetsTheColorOfAFace) {
    const StandInProcess standIn;
    ASSERT_TRUE(standIn.IsReady());
    const std::string output = RunScript("client.js", R"js(
var document = new ActiveXObject("SldWorks.Application").ActiveDoc;
var face = document.Body.GetFirstFace();
WScript.Echo(String(face.MaterialPropertyValues === undefined));
face.MaterialPropertyValues = face.GetNextFace().GetNextFace().MaterialPropertyValues;
WScript.Echo(String(face.MaterialPropertyValues === undefined));
WScript.Echo(String(face.Select(false)));
WScript.Echo(String(document.SelectedFaceProperties(0x4080FF, 0, 0.5, 0.25, 0, 1, 0, false, "")));
var next = face.GetNextFace();
next.MaterialPropertyValues = face.MaterialPropertyValues;
)js");
    EXPECT_EQ(output, "true\nfalse\ntrue\ntrue\n");
    const std::vector<std::string> calls = standIn.LoggedCalls();
    ASSERT_GT(calls.size(), 7U);
    EXPECT_EQ(calls.at(7), "put face \"Face 1\" MaterialPropertyValues = [0.80784313725490198, "
                           "0.22745098039215686, 0.20392156862745098, 0.59999999999999998, 1, "
                           "0.5, 0.40000000000000002, 0, 0]");
    EXPECT_EQ(calls.back(), "put face \"Face 2\" MaterialPropertyValues = "
                            "[1, 0.50196078431372548, 0.25098039215686274, 0, 0.5, 0.25, 0, 1, 0]");
}

TEST_F(StandInScriptTest, AScriptIsToldWhatWentWrong) {
    const StandInProcess standIn;
    ASSERT_TRUE(standIn.IsReady());
    const std::string output = RunScript("client.vbs", R"vbs(
Set face = CreateObject("SldWorks.Application").ActiveDoc.Body.GetFirstFace
On Error Resume Next
face.MaterialPropertyValues = Array(1, 2)
WScript.Echo Err.Description
Err.Clear
face.Weight
WScript.Echo Err.Number
)vbs");
    EXPECT_EQ(output, "A colour is an array of 9 numbers, not of 2\n438\n");
}

} // namespace
