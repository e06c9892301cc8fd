#pragma once

// Gives a variable another value for the length of a scope and its old value back on every way out.
template <typename Value>
class ValueRestorer {
public:
    ValueRestorer(Value& variable, Value during) : variable_(variable), before_(variable) {
        variable_ = during;
    }
    ~ValueRestorer() { variable_ = before_; }
    ValueRestorer(const ValueRestorer&) = delete;
    ValueRestorer& operator=(const ValueRestorer&) = delete;

private:
    Value& variable_;
    Value before_;
};
