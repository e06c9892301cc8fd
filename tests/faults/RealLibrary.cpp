#include "tests/faults/RealLibrary.h"

void RealLibrary::Open(const std::string& path) {
    LibrarySession::Open(path);
    prompts.messages.clear();
}

void RealLibrary::AddColors(int count, const std::string& name) {
    const std::string group = library.Tree().MainNodes().front() + "G1";
    for (int number = 0; number < count; ++number)
        library.NewColorNode(group, name + std::to_string(number),
                             {255, 255, 255, 100, 100, 100, 30, 0, 0});
}
