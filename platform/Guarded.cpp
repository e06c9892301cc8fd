#include "platform/Guarded.h"

#include "common/RuntimeError.h"

#include <exception>
#include <new>

namespace {

// The exception that is being handled.
RuntimeError CurrentError() {
    try {
        throw;
    } catch (const RuntimeError& error) {
        return error;
    } catch (const std::bad_alloc&) {
        return {ErrorNumber::OutOfMemory, ErrorTexts::OutOfMemory};
    } catch (const std::exception& error) {
        return {ErrorNumber::Internal, error.what()};
    } catch (...) {
        return {ErrorNumber::Internal, ErrorTexts::UnknownError};
    }
}

} // namespace

void ReportCurrentException(ErrorSink& sink) noexcept {
    try {
        sink.ReportError(CurrentError());
    } catch (const std::exception&) {
        // There is not even the memory to tell it; the program goes on.
        return;
    }
}
