// Rules: Console program
#include "converter/ConverterArguments.h"

#include <gtest/gtest.h>

namespace {

using Task = ConverterArguments::Task;

ConverterArguments Parsed(const std::vector<std::string>& arguments) {
    return std::get<ConverterArguments>(ParseConverterArguments(arguments, "1.2.3"));
}

ConverterReply Reply(const std::vector<std::string>& arguments) {
    return std::get<ConverterReply>(ParseConverterArguments(arguments, "1.2.3"));
}

void ExpectRefused(const std::vector<std::string>& arguments, const std::string& words) {
    const ConverterReply reply = Reply(arguments);
    EXPECT_EQ(reply.exitCode, ExitCode::WrongUsage);
    EXPECT_EQ(reply.text, "tnt-convert: " + words + "\nSee tnt-convert --help\n");
}

TEST(ConverterArgumentsTest, TwoFilesAreConverted) {
    const ConverterArguments line = Parsed({"Grün.tnt", "b.csv"});
    EXPECT_EQ(line.task, Task::Convert);
    EXPECT_EQ(line.in, "Grün.tnt");
    EXPECT_EQ(line.out, "b.csv");
    EXPECT_FALSE(line.force);
    EXPECT_FALSE(line.name.has_value());
    EXPECT_EQ(line.values, (ColorMaterial{100, 100, 100, 30, 0, 0}));
    EXPECT_FALSE(line.codePage.has_value());
}

TEST(ConverterArgumentsTest, OptionsMayStandAnywhere) {
    const ConverterArguments line = Parsed(
        {"--name", "My colors", "a", "--values=1,2,3,4,5,100", "b", "--force", "--code-page=1251"});
    EXPECT_EQ(line.in, "a");
    EXPECT_EQ(line.out, "b");
    EXPECT_TRUE(line.force);
    EXPECT_EQ(line.name, "My colors");
    EXPECT_EQ(line.values, (ColorMaterial{1, 2, 3, 4, 5, 100}));
    EXPECT_EQ(line.codePage, 1251U);
}

TEST(ConverterArgumentsTest, NameMayBeEmpty) {
    EXPECT_EQ(Parsed({"--name", "", "a", "b"}).name, "");
}

TEST(ConverterArgumentsTest, FileMayBeginWithASlashOrAHyphen) {
    const ConverterArguments line = Parsed({"/force", "--", "-b"});
    EXPECT_EQ(line.in, "/force");
    EXPECT_EQ(line.out, "-b");
    EXPECT_FALSE(line.force);
}

TEST(ConverterArgumentsTest, OneFileIsListedOrChecked) {
    EXPECT_EQ(Parsed({"--list", "a"}).task, Task::List);
    EXPECT_EQ(Parsed({"a", "--check"}).task, Task::Check);
    EXPECT_EQ(Parsed({"--list", "a", "--values", "1,2,3,4,5,6"}).values,
              (ColorMaterial{1, 2, 3, 4, 5, 6}));
}

TEST(ConverterArgumentsTest, HelpAndVersionAreGoodAnswers) {
    const ConverterReply help = Reply({"--help"});
    EXPECT_EQ(help.exitCode, ExitCode::Done);
    for (const char* option : {"IN", "OUT", "--list", "--check", "--name NAME", "--values",
                               "--code-page", "--force", "--version", "Exit codes:"})
        EXPECT_NE(help.text.find(option), std::string::npos) << option;
    EXPECT_EQ(Reply({"--version"}).exitCode, ExitCode::Done);
    EXPECT_EQ(Reply({"--version"}).text, "tnt-convert 1.2.3\n");
}

TEST(ConverterArgumentsTest, HelpFitsATerminal) {
    std::size_t column = 0;
    for (const char letter : Reply({"--help"}).text) {
        column = letter == '\n' ? 0 : column + 1;
        ASSERT_LE(column, 90U);
    }
}

TEST(ConverterArgumentsTest, FilesThatAreMissingOrTooManyAreRefused) {
    ExpectRefused({}, "IN is required");
    ExpectRefused({"a"}, "OUT is required");
    EXPECT_EQ(Reply({"a", "b", "c"}).exitCode, ExitCode::WrongUsage);
    EXPECT_EQ(Reply({"a", "b", "--unknown"}).exitCode, ExitCode::WrongUsage);
}

TEST(ConverterArgumentsTest, WhatMakesNoSenseTogetherIsRefused) {
    ExpectRefused({"--list", "--check", "a"}, "--list excludes --check");
    ExpectRefused({"--list", "a", "b"}, "OUT excludes --list");
    ExpectRefused({"--check", "a", "--force"}, "--force excludes --check");
    ExpectRefused({"--check", "a", "--name", "x"}, "--name excludes --check");
}

TEST(ConverterArgumentsTest, ValuesAreSixNumbersOfTheirRange) {
    EXPECT_EQ(Parsed({"a", "b", "--values", "0,0,0,0,0,0"}).values, ColorMaterial());
    ExpectRefused({"a", "b", "--values", "1,2,3,4,5"},
                  "--values: six numbers with commas between them are wanted");
    ExpectRefused({"a", "b", "--values", "1,2,3,4,5,101"},
                  "--values: 101 is not between 0 and 100");
    ExpectRefused({"a", "b", "--values", "-1,2,3,4,5,6"}, "--values: -1 is not between 0 and 100");
    ExpectRefused({"a", "b", "--values", "1,2,x,4,5,6"}, "--values: This is not a number: \"x\"");
}

TEST(ConverterArgumentsTest, CodePageIsANumber) {
    EXPECT_EQ(Reply({"a", "b", "--code-page", "utf-8"}).exitCode, ExitCode::WrongUsage);
    EXPECT_EQ(Reply({"a", "b", "--code-page", "-1"}).exitCode, ExitCode::WrongUsage);
}

} // namespace
