#pragma once

#include "tests/platform/PollUntil.h"

#include <functional>
#include <sstream>
#include <string>
#include <vector>

// Prints what the job does and what it found, and counts.
class JobReport {
public:
    // Called at the end of each step with the step's number and name, for its picture.
    using StepEnd = std::function<void(int number, const std::string& name)>;
    explicit JobReport(StepEnd stepEnd) : stepEnd_(std::move(stepEnd)) {}

    // Runs one step.  What it throws fails the step and is printed; the job goes on.
    void Step(const std::string& name, const std::function<void()>& action);

    void Note(const std::string& text);
    void Check(bool holds, const std::string& statement);

    template <typename Value>
    void CheckEqual(const std::string& what, const Value& actual, const Value& expected) {
        Check(actual == expected,
              actual == expected ? what + ": " + Show(actual)
                                 : what + ": " + Show(actual) + ", expected " + Show(expected));
    }

    // Reads again and again until what is read is what is expected, or the time is over.
    template <typename Reader, typename Value>
    void CheckBecomes(const std::string& what, const Reader& read, const Value& expected) {
        Value actual{};
        static_cast<void>(PollUntil([&] { return (actual = read()) == expected; }));
        CheckEqual(what, actual, expected);
    }

    // Prints the closing line; the process's exit code.
    [[nodiscard]] int Finish() const;

private:
    static std::string Show(const std::string& text) { return "\"" + text + "\""; }
    static std::string Show(bool flag) { return flag ? "yes" : "no"; }
    template <typename Number>
    static std::string Show(const Number& number) {
        std::ostringstream stream;
        stream.precision(17);
        stream << number;
        return stream.str();
    }
    template <typename Element>
    static std::string Show(const std::vector<Element>& elements) {
        std::string text;
        for (const Element& element : elements)
            text += (text.empty() ? "" : " | ") + Show(element);
        return "[" + text + "]";
    }

    StepEnd stepEnd_;
    int steps_ = 0;
    int passed_ = 0;
    int failed_ = 0;
};
