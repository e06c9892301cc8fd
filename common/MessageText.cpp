#include "common/MessageText.h"

#include "common/Text.h"

#include <vector>

namespace {

constexpr const char* kMore = "...";

// The first lines only: a text may have very many of them.
std::vector<std::string> FirstLines(std::string_view text, std::size_t most) {
    const std::string_view lineBreak = kLineBreak;
    std::vector<std::string> lines;
    while (lines.size() < most) {
        const std::size_t end = text.find(lineBreak);
        lines.emplace_back(text.substr(0, end));
        if (end == std::string_view::npos)
            break;
        text.remove_prefix(end + lineBreak.size());
    }
    return lines;
}

bool HasRoom(const std::vector<std::string>& lines, const MessageRoom& room) {
    std::size_t shown = 0;
    for (const std::string& line : lines)
        shown += 1 + line.size() / (room.lineLength + 1);
    return shown <= room.lines;
}

std::string Cut(const std::string& line, std::size_t length) {
    if (line.size() <= length)
        return line;
    std::string cut;
    const std::vector<std::string> characters =
        CharactersOf(std::string_view(line).substr(0, 4 * length));
    if (characters.size() <= length)
        return line;
    for (std::size_t index = 0; index < length; ++index)
        cut += characters[index];
    return cut + kMore;
}

} // namespace

std::string FittedMessage(std::string_view text, const MessageRoom& room) {
    std::vector<std::string> lines = FirstLines(text, room.lines + 1);
    if (HasRoom(lines, room))
        return std::string(text);
    if (lines.size() > room.lines)
        lines.resize(room.lines - 1);
    std::string fitted;
    for (const std::string& line : lines)
        fitted += Cut(line, room.lineLength) + kLineBreak;
    return fitted + kMore;
}
