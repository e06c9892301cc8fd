#include "tests/faults/RealLibrary.h"

void RealLibrary::Open(const std::string& path) {
    prompts.chosenFiles.emplace_back(path);
    prompts.answers.push_back(Answer::No); // not at every start
    commands.mnuFileOpen_Click();
    prompts.messages.clear();
}

void RealLibrary::AddColors(int count, const std::string& name) {
    const std::string group = library.Tree().MainNodes().front() + "G1";
    for (int number = 0; number < count; ++number)
        library.NewColorNode(group, name + std::to_string(number));
}
