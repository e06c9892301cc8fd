#include "support/settings/RegistryNumber.h"

namespace {

constexpr std::size_t kNumberSize = 4;

} // namespace

std::string RegistryNumberToBytes(std::uint32_t number) {
    std::string bytes;
    for (std::size_t index = 0; index < kNumberSize; ++index, number /= 256U)
        bytes += static_cast<char>(static_cast<unsigned char>(number % 256U));
    return bytes;
}

std::optional<std::uint32_t> RegistryNumberFromBytes(const std::string& bytes) {
    if (bytes.size() != kNumberSize)
        return {};
    std::uint32_t number = 0;
    for (std::size_t index = kNumberSize; index-- > 0;)
        number = number * 256U + static_cast<unsigned char>(bytes[index]);
    return number;
}
