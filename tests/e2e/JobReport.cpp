#include "tests/e2e/JobReport.h"

#include <iostream>

void JobReport::Step(const std::string& name, const std::function<void()>& action) {
    std::cout << ++steps_ << ". " << name << std::endl;
    try {
        action();
    } catch (const std::exception& error) {
        Check(false, error.what());
    }
    stepEnd_(steps_, name);
}

void JobReport::Note(const std::string& text) {
    std::cout << "          " << text << std::endl;
}

void JobReport::Check(bool holds, const std::string& statement) {
    ++(holds ? passed_ : failed_);
    std::cout << (holds ? "   ok     " : "   FAILED ") << statement << std::endl;
}

int JobReport::Finish() const {
    std::cout << passed_ << " passed, " << failed_ << " failed" << std::endl;
    return failed_ == 0 && passed_ > 0 ? 0 : 1;
}
