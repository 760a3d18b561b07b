// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The numbered run-time errors of the classic run time. An error is thrown where the fault happens
// and travels through the program's own frames to the outermost handler of the event, where the
// program's one error report shows it and ends the program.
#include <exception>
#include <string>

namespace rt {

enum ErrorNumber : int {
    InvalidProcedureCall = 5,
    Overflow = 6,
    SubscriptOutOfRange = 9,
    DivisionByZero = 11,
    TypeMismatch = 13,
    InvalidPropertyValue = 380,
};

// The classic message for an error number ("Overflow", "Division by zero", ...).
const char* errorMessage(int number);

// What an error says of the values that raised it, in plain words that complete "its values ..."
// ("overflow", "divide by zero"): for refusing a lesson's step without the classic report.
const char* valuesInWords(int number);

class RuntimeError : public std::exception {
public:
    explicit RuntimeError(int number);
    int number() const noexcept { return number_; }
    const char* what() const noexcept override;

private:
    int number_;
};

// Throws RuntimeError(number). Kept out of line so that the hot paths that call it stay small.
[[noreturn]] void raise(int number);

}  // namespace rt
