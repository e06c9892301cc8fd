#include "converter/linux/LinuxCodePages.h"

#include "common/Utf8.h"
#include "common/Windows1252.h"

#include <array>
#include <iconv.h>
#include <string>

namespace {

constexpr unsigned kThai = 874;
constexpr unsigned kFirst = 1250;
constexpr unsigned kLast = 1258;

// Characters of one code page, as iconv knows them.
class Characters {
public:
    explicit Characters(unsigned codePage)
        : conversion_(iconv_open("UTF-8", ("CP" + std::to_string(codePage)).c_str())) {}
    ~Characters() {
        if (*this)
            iconv_close(conversion_);
    }
    Characters(const Characters&) = delete;
    Characters& operator=(const Characters&) = delete;

    [[nodiscard]] explicit operator bool() const noexcept {
        return conversion_ != reinterpret_cast<iconv_t>(-1);
    }

    // Nothing for a byte without a meaning.
    [[nodiscard]] std::string Of(unsigned char byte) const {
        std::array<char, 4> character{};
        auto in = static_cast<char>(byte);
        char* from = &in;
        char* to = character.data();
        std::size_t fromSize = 1;
        std::size_t toSize = character.size();
        iconv(conversion_, nullptr, nullptr, nullptr, nullptr);
        iconv(conversion_, &from, &fromSize, &to, &toSize);
        iconv(conversion_, nullptr, nullptr, &to, &toSize); // what it keeps for an accent to come
        return {character.data(), to};
    }

private:
    iconv_t conversion_;
};

std::string Replacement() {
    std::string text;
    AppendCharacter(text, kReplacementCharacter);
    return text;
}

std::unique_ptr<AnsiCodePage> CodePageOf(const Characters& characters) {
    const auto characterOf = [&](unsigned char byte) {
        const std::string character = characters.Of(byte);
        return character.empty() ? Replacement() : character;
    };
    return std::make_unique<SingleByteCodePage>(
        characterOf, [&](unsigned char byte) { return !characters.Of(byte).empty(); });
}

} // namespace

std::unique_ptr<AnsiCodePage> LinuxCodePage(std::optional<unsigned> number) {
    const unsigned wanted = number.value_or(Windows1252::kNumber);
    if (wanted == Windows1252::kNumber)
        return std::make_unique<SingleByteCodePage>(Windows1252::CodePage());
    if (wanted != kThai && (wanted < kFirst || wanted > kLast))
        return nullptr;
    const Characters characters(wanted);
    return characters ? CodePageOf(characters) : nullptr;
}
