// What -[NSException raise] throws: a C++ exception that holds the object. The compiler matches no
// handler for Objective-C classes, so code that wants the object catches this, and code that is
// written for the platform too catches everything with catch (...).
// This header is an addition of this library; the platform has none of that name.
#pragma once

#include <Foundation/NSException.h>

#include <exception>
#include <string>

class __attribute__((visibility("default"))) NSRaisedException : public std::exception {
  public:
    explicit NSRaisedException(NSException* object);
    NSRaisedException(const NSRaisedException& other);
    NSRaisedException& operator=(const NSRaisedException&) = delete;
    ~NSRaisedException() override;

    // Lives as long as this.
    NSException* object() const { return _object; }
    // The name, a colon and the reason.
    const char* what() const noexcept override { return _text.c_str(); }

  private:
    NSException* _object;
    std::string _text;
};
