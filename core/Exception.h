// The exceptions that carry a text. A host error is thrown as a plain int instead. Every hook
// catches both, and returns the int or, for an exception, 1.

#pragma once

#include <string>

namespace core {

// The base of all exceptions that carry a text.
class Exception {
  public:
    explicit Exception(std::string text) : _message(std::move(text)) {}
    explicit Exception(const char* text) : _message(text ? text : "") {}
    // There are no text resources: every identifier gives the same fixed text. (The overload for
    // int makes a literal 0 an identifier and not a null text.)
    explicit Exception(unsigned long /*resourceID*/) : _message(_resource_text) {}
    explicit Exception(int resourceID) : Exception(static_cast<unsigned long>(resourceID)) {}
    virtual ~Exception() = default;

    // Replaces the text by the format itself; the arguments are ignored.
    template <typename... Values>
    void message(const char* format, const Values&...) {
        _message = format ? format : "";
    }
    // Replaces the text by the fixed one.
    template <typename... Values>
    void message(unsigned long /*resourceID*/, const Values&...) {
        _message = _resource_text;
    }
    template <typename... Values>
    void message(int resourceID, const Values&... values) {
        message(static_cast<unsigned long>(resourceID), values...);
    }

    const std::string& getMessage() const { return _message; }

  private:
    static constexpr const char* _resource_text = "Resource string not implemented";
    std::string _message;
};

class OutOfMemoryException : public Exception {
  public:
    explicit OutOfMemoryException(unsigned long resourceID) : Exception(resourceID) {}
};

} // namespace core
