#pragma once

#include "common/RuntimeError.h"

#include <exception>

// Of several actions none of which keeps the others from being done: what went wrong first.
class FirstError {
public:
    template <class Action>
    void Watch(const Action& action) {
        try {
            action();
        } catch (const RuntimeError&) {
            if (!error_)
                error_ = std::current_exception();
        }
    }
    // Nothing when all went well.
    void Rethrow() const {
        if (error_)
            std::rethrow_exception(error_);
    }

private:
    std::exception_ptr error_;
};
