#include "platform/Guarded.h"

#include "common/RuntimeError.h"

#include <exception>

void ReportCurrentException(ErrorSink& sink) noexcept {
    try {
        throw;
    } catch (const RuntimeError& error) {
        sink.ReportError(error.what(), error.Member());
    } catch (const std::exception& error) {
        sink.ReportError(error.what(), {});
    } catch (...) {
        sink.ReportError("Unknown error", {});
    }
}
