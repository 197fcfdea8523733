// The product's name and version. The build reads both from here.

#pragma once

constexpr const char* product_name = "Tamborel";
constexpr int product_version_major = 1;
constexpr int product_version_minor = 4;
