#include "platform/SafeArrayAccess.h"

#include "common/RuntimeError.h"
#include "platform/SystemMessage.h"

SafeArrayAccess::SafeArrayAccess(SAFEARRAY* array) : array_(array) {
    if (array_ == nullptr)
        return;
    if (SafeArrayGetDim(array_) != 1)
        throw RuntimeError(ErrorNumber::TypeMismatch, ErrorTexts::WrongKindOfValue);
    const HRESULT result = SafeArrayAccessData(array_, &elements_);
    if (FAILED(result))
        throw SystemError(result);
    count_ = array_->rgsabound[0].cElements;
}

SafeArrayAccess::~SafeArrayAccess() {
    if (array_ != nullptr)
        SafeArrayUnaccessData(array_);
}

void* SafeArrayAccess::Element(std::size_t index) const noexcept {
    return static_cast<std::byte*>(elements_) + index * SafeArrayGetElemsize(array_);
}
