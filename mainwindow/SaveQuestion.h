#pragma once

#include "common/ports/InfoTexts.h"
#include "library/SaveLosses.h"

#include <string>

// The prompt that names what a save would lose; of many names the first ones.
[[nodiscard]] std::string QuestionAbout(const SaveLosses& losses, InfoTexts& texts);
