// The exceptions that carry a text. A host error is thrown as a plain int instead; every hook
// turns the one into its code and the other into 1, so that none of them leaves the plug-in.

#pragma once

#include <string>

namespace core {

// A failure that a person can read. All exceptions of the system with a text derive from it.
class Exception {
  public:
    explicit Exception(std::string text) : _message(std::move(text)) {}
    explicit Exception(const char* text) : _message(text ? text : "") {}
    // Texts are not kept as resources, so that every identifier stands for the same words. (A
    // literal 0 would be a text as well as a long: it is an identifier.)
    explicit Exception(unsigned long /*resourceID*/) : _message(_resource_text) {}
    explicit Exception(int resourceID) : Exception(static_cast<unsigned long>(resourceID)) {}
    virtual ~Exception() = default;

    // Replaces the text by the format itself; the arguments are accepted and not formatted.
    template <typename... Values>
    void message(const char* format, const Values&...) {
        _message = format ? format : "";
    }
    // Replaces the text by the fixed words for a resource.
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

// Memory that could not be had.
class OutOfMemoryException : public Exception {
  public:
    explicit OutOfMemoryException(unsigned long resourceID) : Exception(resourceID) {}
};

} // namespace core
