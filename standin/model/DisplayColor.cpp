#include "standin/model/DisplayColor.h"

DisplayColor ResolveDisplayColor(const ColorLevels& levels) noexcept {
    if (levels.component)
        return {*levels.component, ColorLevel::Component};
    if (levels.face)
        return {*levels.face, ColorLevel::Face};
    if (levels.feature)
        return {*levels.feature, ColorLevel::Feature};
    if (levels.body)
        return {*levels.body, ColorLevel::Body};
    if (levels.part)
        return {*levels.part, ColorLevel::Part};
    return {kUnsetMaterial, ColorLevel::None};
}

const char* ColorLevelName(ColorLevel level) noexcept {
    switch (level) {
    case ColorLevel::Component:
        return "component";
    case ColorLevel::Face:
        return "face";
    case ColorLevel::Feature:
        return "feature";
    case ColorLevel::Body:
        return "body";
    case ColorLevel::Part:
        return "part";
    case ColorLevel::None:
        break;
    }
    return "nothing";
}
