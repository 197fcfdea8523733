// AppKit's constants by value. Its releases rename them and change their types between enumerations
// and integers; the values stay.

#pragma once

namespace adm {

struct AppKitValue {
    unsigned long value;
    template <typename Type>
    constexpr operator Type() const {
        return static_cast<Type>(value);
    }
};

constexpr AppKitValue kTitledWindow = {1};
constexpr AppKitValue kResizableWindow = {8};
constexpr AppKitValue kBufferedBacking = {2};

constexpr AppKitValue kWidthAndHeightSizable = {2 | 16};

constexpr AppKitValue kSmallSquareBezel = {12};
constexpr AppKitValue kMomentaryLightButton = {0};
constexpr AppKitValue kSwitchButton = {3};
constexpr AppKitValue kRadioButton = {4};

constexpr AppKitValue kSmallControlSize = {1};
constexpr AppKitValue kMiniControlSize = {2};

constexpr AppKitValue kLeftAlignment = {0};
constexpr AppKitValue kCenterAlignment = {2};

constexpr AppKitValue kPremultipliedAlphaLast = {1};

} // namespace adm
