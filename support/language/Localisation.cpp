#include "support/language/Localisation.h"

#include "common/RuntimeError.h"
#include "support/language/Languages.h"

void Localisation::Choose(std::int32_t number) {
    const std::string code = LanguageCodeOrNone(number);
    if (code.empty())
        throw RuntimeError(ErrorNumber::SubscriptOutOfRange, ErrorTexts::NoSuchNumber);
    language_.SetIniFile(programFolder_ + "\\tntlng_" + code + ".ini");
    for (LocalizableForm* form : forms_())
        language_.SetAllControlText(*form);
}
