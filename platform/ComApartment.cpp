#include "platform/ComApartment.h"

#include "common/RuntimeError.h"
#include "platform/SystemMessage.h"

#include <ole2.h>

ComApartment::ComApartment() {
    const HRESULT result = OleInitialize(nullptr);
    if (FAILED(result))
        throw SystemError(result);
}

ComApartment::~ComApartment() {
    OleUninitialize();
}
