#pragma once

#include "common/ports/LocalizableForm.h"
#include "support/language/clsMultiLanguage.h"

#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

// Chooses the language file of a language number and applies it to the forms that take their texts
// from it.
class Localisation {
public:
    // programFolder: without a backslash at its end.  forms: gives those that are there, in the
    // order in which they take their texts.
    Localisation(clsMultiLanguage& language, std::string programFolder,
                 std::function<std::vector<LocalizableForm*>()> forms)
        : language_(language), programFolder_(std::move(programFolder)), forms_(std::move(forms)) {}

    // number: of a row in Languages.h; throws RuntimeError SubscriptOutOfRange for any other.
    // Without the file every text stays as it is.
    void Choose(std::int32_t number);

private:
    clsMultiLanguage& language_;
    std::string programFolder_;
    std::function<std::vector<LocalizableForm*>()> forms_;
};
