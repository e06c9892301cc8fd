#include "platform/RegistryValueReader.h"

namespace {

constexpr DWORD kLargestValue = 1U << 20U; // the platform's own advice for a value's size
constexpr int kReadAttempts = 4;

} // namespace

std::optional<RegistryValue> ReadRegistryValue(const ValueQuery& query) {
    DWORD type = REG_NONE;
    DWORD size = 0;
    LSTATUS status = query(&type, nullptr, &size);
    for (int attempt = 0; attempt < kReadAttempts && size <= kLargestValue; ++attempt) {
        if (status != ERROR_SUCCESS && status != ERROR_MORE_DATA)
            return std::nullopt;
        std::string bytes(size, '\0');
        status = query(&type, reinterpret_cast<BYTE*>(bytes.data()), &size);
        if (status == ERROR_SUCCESS) {
            bytes.resize(size);
            return RegistryValue{type, std::move(bytes)};
        }
    }
    return std::nullopt;
}
