#include "library/SaveLosses.h"

#include "library/LibraryFileFormat.h"

SaveLosses NamesLostBySaving(const ColorLibrary& library, const std::string& mainKey,
                             std::string_view separator) {
    SaveLosses losses;
    const std::string& libraryName = library.Tree().At(mainKey).text;
    if (!LibraryFileFormat::NameComesBack(libraryName))
        losses.libraryName = libraryName;
    for (const std::string& group : library.GetGroupInMainnode(mainKey))
        if (const std::string& name = library.Tree().At(group).text;
            !LibraryFileFormat::NameComesBack(name))
            losses.names.push_back(name);
    const ColorTable& colors = library.Colors();
    for (int index = 1; index <= colors.UpperBound(); ++index)
        if (const ColorView view = colors.ViewAt(index);
            !LibraryFileFormat::NamesComeBack(view.color, separator) && view.KeyBeginsWith(mainKey))
            losses.names.push_back(view.color.name);
    return losses;
}
