// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/RuntimeError.h"

namespace rt {

const char* errorMessage(int number)
{
    switch (number) {
    case InvalidProcedureCall: return "Invalid procedure call or argument";
    case Overflow: return "Overflow";
    case SubscriptOutOfRange: return "Subscript out of range";
    case DivisionByZero: return "Division by zero";
    case TypeMismatch: return "Type mismatch";
    case InvalidPropertyValue: return "Invalid property value";
    default: return "Application-defined or object-defined error";
    }
}

const char* valuesInWords(int number)
{
    switch (number) {
    case InvalidProcedureCall: return "are outside what a function accepts";
    case Overflow: return "overflow";
    case SubscriptOutOfRange: return "go past the end of a table";
    case DivisionByZero: return "divide by zero";
    case TypeMismatch: return "are not numbers";
    case InvalidPropertyValue: return "are more than a control can take";
    default: return "cannot be worked out";
    }
}

RuntimeError::RuntimeError(int number) : number_(number) { }

const char* RuntimeError::what() const noexcept { return errorMessage(number_); }

void raise(int number) { throw RuntimeError(number); }

}  // namespace rt
