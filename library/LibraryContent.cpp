#include "library/LibraryContent.h"

#include "common/Text.h"
#include "library/EncodedText.h"
#include "library/LibraryFileFormat.h"

#include <algorithm>
#include <utility>

namespace {

// A text in which a search stops at the end of the name, not at the name's own characters.
std::string Readable(std::string name, std::string_view separator) {
    for (std::size_t place = name.find(separator); place != std::string::npos;
         place = name.find(separator, place))
        name.replace(place, separator.size(), "/");
    std::ranges::replace(name, '=', '-');
    return InOneLine(std::move(name));
}

// Writes the lines of one library.
class Lines {
public:
    Lines(const LibraryContent& content, const AnsiCodePage& codePage, NameSpelling spelling)
        : content_(content), text_(codePage),
          separator_(LibraryFileFormat::FieldSeparator(codePage)), spelling_(spelling) {}

    void AppendHeader() {
        const int count = static_cast<int>(content_.groups.size()) + content_.colorCount;
        LibraryFileFormat::AppendHeader(text_.Line(), Spelled(content_.name), content_.key, count);
        text_.EndLine();
    }
    void AppendGroup(const LibraryContent::Group& group) {
        LibraryFileFormat::AppendGroup(text_.Line(), Spelled(group.name), group.key);
        text_.EndLine();
    }
    void AppendColor(const ColorView& view) {
        if (spelling_ == NameSpelling::AsItIs ||
            LibraryFileFormat::NamesComeBack(view.color, separator_))
            LibraryFileFormat::AppendColor(text_.Line(), view, separator_);
        else
            AppendReadable(view);
        text_.EndLine();
    }
    [[nodiscard]] LibraryContent::Composed Take() { return {text_.Take(), isRespelled_}; }

private:
    [[nodiscard]] std::string Spelled(const std::string& name) {
        const bool asItIs =
            spelling_ == NameSpelling::AsItIs || LibraryFileFormat::NameComesBack(name);
        isRespelled_ = isRespelled_ || !asItIs;
        return asItIs ? name : Readable(name, separator_);
    }
    void AppendReadable(const ColorView& view) {
        isRespelled_ = true;
        StoredColor color(view.color);
        const std::string altName = Readable(std::string(color.AltName()), separator_);
        color.name = CompactText(Readable(std::string(color.name.View()), separator_));
        color.SetAltName(altName);
        LibraryFileFormat::AppendColor(text_.Line(), {color, view.groupKey}, separator_);
    }

    const LibraryContent& content_;
    EncodedText text_;
    std::string separator_;
    NameSpelling spelling_;
    bool isRespelled_ = false;
};

} // namespace

LibraryContent LibraryContent::Of(const ColorLibrary& library, const std::string& mainKey,
                                  std::shared_ptr<const ColorSnapshot> snapshot) {
    LibraryContent content;
    content.colors = std::move(snapshot);
    content.name = library.Tree().At(mainKey).text;
    content.key = mainKey;
    for (const std::string& group : library.GetGroupInMainnode(mainKey)) {
        content.groups.push_back({library.Tree().At(group).text, group});
        content.colorCount += library.GetColorCountInGroup(group);
    }
    return content;
}

LibraryContent::Composed LibraryContent::Compose(const AnsiCodePage& codePage,
                                                 NameSpelling spelling,
                                                 WorkProgress& progress) const {
    progress.Starts(static_cast<int>(groups.size()) + colorCount);
    Lines lines(*this, codePage, spelling);
    lines.AppendHeader();
    int done = 0;
    for (const Group& group : groups) {
        lines.AppendGroup(group);
        progress.Reaches(++done);
    }
    for (std::size_t place = 0; place < colors->Count(); ++place) {
        const ColorView color = colors->At(place);
        if (!color.KeyBeginsWith(key))
            continue;
        lines.AppendColor(color);
        progress.Reaches(++done);
    }
    return lines.Take();
}
