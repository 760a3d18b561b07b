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

// Marks a text for the translators (the program's Qt layer translates it where it is shown); this
// layer has no Qt, so the mark leaves the text as it is.
#ifndef QT_TRANSLATE_NOOP
#define QT_TRANSLATE_NOOP(context, text) text
#endif

const char* valuesInWords(int number)
{
    switch (number) {
    case InvalidProcedureCall: return QT_TRANSLATE_NOOP("Plotto", "are outside what a function accepts");
    case Overflow: return QT_TRANSLATE_NOOP("Plotto", "overflow");
    case SubscriptOutOfRange: return QT_TRANSLATE_NOOP("Plotto", "go past the end of a table");
    case DivisionByZero: return QT_TRANSLATE_NOOP("Plotto", "divide by zero");
    case TypeMismatch: return QT_TRANSLATE_NOOP("Plotto", "are not numbers");
    case InvalidPropertyValue: return QT_TRANSLATE_NOOP("Plotto", "are more than a control can take");
    default: return QT_TRANSLATE_NOOP("Plotto", "cannot be worked out");
    }
}

RuntimeError::RuntimeError(int number) : number_(number) { }

const char* RuntimeError::what() const noexcept { return errorMessage(number_); }

void raise(int number) { throw RuntimeError(number); }

}  // namespace rt
